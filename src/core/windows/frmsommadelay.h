// `frmsommadelay`, the delay that is added to one of two phase curves.
#pragma once

#include "core/controls.h"

namespace zefirondo {

struct DelayEntry {
  Window window;
  Control opt1, txtfase1, lblms1, opt2, txtfase2, lblms2;
  Control cmdsfasadelay, cmdannulla, cmdchiudi;
  Control mnuchiudi;

  explicit DelayEntry(ProjectState& state);
};

}  // namespace zefirondo
