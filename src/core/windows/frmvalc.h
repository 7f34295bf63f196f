// `frmvalc`, a capacitor from two frequencies of a measured impedance.
#pragma once

#include "core/controls.h"

namespace zefirondo {

struct CapacitorTool {
  Window window;
  Control lbldescriz, lblf1, txtf1, lblf2, txtf2, cmdavanti;
  Control mnuchiudi;

  explicit CapacitorTool(ProjectState& state);
};

}  // namespace zefirondo
