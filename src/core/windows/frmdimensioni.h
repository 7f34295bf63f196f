// `frmdimensioni`, where the designer types an inner dimension of the box and the others follow.
#pragma once

#include "core/controls.h"

namespace zefirondo {

struct DimensionEntry {
  Window window;
  Control txtLmanual, txtHmanual, txtPmanual, cmdinserisci, cmdannulla;
  Control mnuchiudi;
  bool ChangedL = false, ChangedH = false, ChangedP = false;

  explicit DimensionEntry(ProjectState& state);
};

}  // namespace zefirondo
