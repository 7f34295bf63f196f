// `frmescursione`, the excursion of the cone at an applied power.
#pragma once

#include "core/controls.h"
#include "core/windows/frequency_labels.h"

namespace zefirondo {

struct ExcursionGraph {
  Window window;
  Surface surface;
  FrequencyLabels frequencies;
  Control lbltitolo, pctgrafex, pctvalori, txtpos, lbldb, lblfrequenza, lblescursione, Line1;
  Control lblpot, txtpot, lblrms, cmdcalc;

  Control mnufileex, mnuchiudi;
  Control mnuvisualizza, mnugraffase, mnuspl, mnusplmax, mnuairspeed;
  Control mnucalcolatrice;
  Control mnuinfo3, mnuguida, mnuinformazioni;

  explicit ExcursionGraph(ProjectState& state);
};

}  // namespace zefirondo
