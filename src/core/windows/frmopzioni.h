// `frmopzioni`, the project options: wiring of the woofers, amplifier, thickness of the wood.
#pragma once

#include "core/controls.h"

namespace zefirondo {

struct ProjectOptions {
  Window window;
  Control fracollegamento, lblcollegamento, optbiamp, optparallelo, optserie;
  Control fraRsorgente, txtrs;
  Control fraspessore, lblspessore, txtspessore;
  Control cmdok;
  Control mnuchiudi;

  explicit ProjectOptions(ProjectState& state);
};

}  // namespace zefirondo
