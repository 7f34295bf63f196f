// `frmbox`, the choice of the box type when the proposal was refused.
#pragma once

#include "core/controls.h"

namespace zefirondo {

struct BoxTypeChoice {
  Window window;
  Control lblebp, txtebp, lbltesto, lbltipobox, cmbtipobox, cmdok;
  Control mnuchiudi;

  explicit BoxTypeChoice(ProjectState& state);
};

}  // namespace zefirondo
