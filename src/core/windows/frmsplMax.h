// `frmsplMax`, the response at an applied power.
#pragma once

#include "core/controls.h"
#include "core/windows/frequency_labels.h"

namespace zefirondo {

struct SplMaxGraph {
  Window window;
  Surface surface;
  FrequencyLabels frequencies;
  Control lblnomegrafspl, pctgrafspl, pctvalori, txtpos, lbldb, lblfrequenzaspl, lblpot, txtpot, lblrms, cmdcalc;

  Control mnufile, mnuchiudi;
  Control mnuvisualizza, mnugraffase, mnuspl, mnuescursione, mnuairspeed;
  Control mnucalcolatrice;
  Control mnuinfo4, mnuguida, mnuinformazioni;

  explicit SplMaxGraph(ProjectState& state);
};

}  // namespace zefirondo
