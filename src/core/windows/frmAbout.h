// `frmAbout`, what the program says about itself.
#pragma once

#include "core/controls.h"

namespace zefirondo {

struct About {
  Window window;
  Control picIcon, lblTitle, lblVersion, lblDescription, lblDisclaimer, lblcontact;
  Control cmdok, cmdSysInfo;
  Control mnuchiudi;

  explicit About(ProjectState& state);
};

}  // namespace zefirondo
