// `frmairspeed`, the air speed in the ports of a vented box.
#pragma once

#include "core/controls.h"
#include "core/windows/frequency_labels.h"

namespace zefirondo {

struct AirSpeedGraph {
  Window window;
  Surface surface;
  FrequencyLabels frequencies;
  Control lbltitolo, pctgrafair, pctvalori, txtpos, lbldb, lblfrequenza;
  Control lblairspeed2, Line2, lblairspeed1, Line1;
  Control lblpot, txtpot, lblrms, cmdcalc;

  Control mnufileex, mnuchiudi;
  Control mnuvisualizza, mnugraffase, mnuspl, mnusplmax, mnuescursione;
  Control mnucalcolatrice;
  Control mnuinfo3, mnuguida, mnuinformazioni;

  explicit AirSpeedGraph(ProjectState& state);
};

}  // namespace zefirondo
