// `frmfasecompl`, the frequency at which the offset of two phase curves is found.
#pragma once

#include "core/controls.h"

namespace zefirondo {

struct PhaseOffsetEntry {
  Window window;
  Control fraandamento, optrelativa, optcomplessiva;
  Control frafrequenza, lblfrequanza, txtfrequenza, lblHz;
  Control cmdok;
  Control mnuchiudi;

  explicit PhaseOffsetEntry(ProjectState& state);
};

}  // namespace zefirondo
