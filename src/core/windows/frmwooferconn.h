// `frmwooferconn`, how several woofers in one box are wired to the amplifier.
#pragma once

#include "core/controls.h"

namespace zefirondo {

struct WooferWiringChoice {
  Window window;
  Control fracollegamento, lblcollegamento, optbiamp, lblwarn1, optparallelo, lblwarn2, optserie, lblwarn3;
  Control Command1;
  Control mnuchiudi;

  explicit WooferWiringChoice(ProjectState& state);
};

}  // namespace zefirondo
