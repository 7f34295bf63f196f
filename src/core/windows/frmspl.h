// `frmspl`, the response at 1 W and 1 m.
#pragma once

#include "core/controls.h"
#include "core/windows/frequency_labels.h"

namespace zefirondo {

struct SplGraph {
  Window window;
  Surface surface;
  FrequencyLabels frequencies;
  Control lblnomegrafspl, pctgrafspl, pctvalori, txtpos, lbldb, lblfrequenzaspl;
  Control lblovl1, cmdset1, lblset1, chkonoff1, lblonoff1;
  Control lblovl2, cmdset2, lblset2, chkonoff2, lblonoff2;
  Control cmdsommaspl, cmdcancellaspl;

  Control mnufile, mnuimportatracciato, mnusalvasplRosso, mnusalvaSplBlu, mnuimportaOverlay, mnuchiudi;
  Control mnuvisualizza, mnugraffase, mnusplmax, mnuescursione, mnuairspeed;
  Control mnucalcolatrice;
  Control mnuinfo4, mnuguida, mnuinformazioni;

  explicit SplGraph(ProjectState& state);
};

}  // namespace zefirondo
