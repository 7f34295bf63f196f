// `frmvalf`, an inductor and its resistor from two frequencies of a measured impedance.
#pragma once

#include "core/controls.h"

namespace zefirondo {

struct InductorTool {
  Window window;
  Control lbldescriz, lblf1, txtf1, lblf2, txtf2, cmdavanti;
  Control mnuchiudi;

  explicit InductorTool(ProjectState& state);
};

}  // namespace zefirondo
