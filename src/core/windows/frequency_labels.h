// The fixed labels under a plot, each below its frequency.
#pragma once

#include <array>
#include <string_view>

#include "core/controls.h"

namespace zefirondo {

/// The labels of one graph, by the names that its window gives them.
struct FrequencyLabels {
  std::array<Control, 16> labels;

  /// Describes as many labels as there are names; "Label40" reads "40", "lbl2k" reads "2k".
  void Describe(Window& window, ProjectState& state, std::initializer_list<const char*> names);
};

}  // namespace zefirondo
