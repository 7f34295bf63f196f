#include "core/windows/frequency_labels.h"

#include <cstring>

namespace zefirondo {

void FrequencyLabels::Describe(Window& window, ProjectState& state, std::initializer_list<const char*> names) {
  std::size_t place = 0;
  for (const char* const name : names) {
    ControlDesign design;
    design.caption = name + std::strcspn(name, "0123456789");
    DescribeControl(window, labels.at(place++), ControlKind::Label, name, -1, design, state);
  }
}

}  // namespace zefirondo
