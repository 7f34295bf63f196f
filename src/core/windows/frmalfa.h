// `frmalfa`, the chart of twelve classic vented alignments.
#pragma once

#include <array>

#include "core/controls.h"

namespace zefirondo {

struct AlignmentChart {
  Window window;
  // The capitals of "Su" are mixed on purpose: the names are as they are known.
  Control VbSuVas0954, VbSuVas1337, VbSUVas224, VbSUVas339, VbSUVas707, VbSuVas9479, VbSuVas1372, VbSUVas179;
  Control VbSuVas2062, VbSuVas260, VbSUVas366, VbSUVas429;
  std::array<Control, 12> lblallineamento;  // the kind of each alignment, beside its option
  Control lblVbSuVas, txtVbsuVas, lblFbsuFs, txtFbSuFs, cmdok;
  Control mnuchiudi;

  explicit AlignmentChart(ProjectState& state);
};

}  // namespace zefirondo
