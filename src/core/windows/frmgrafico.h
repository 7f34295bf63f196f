// `frmgrafico`, the graph of a measured impedance.
#pragma once

#include "core/controls.h"
#include "core/windows/frequency_labels.h"

namespace zefirondo {

struct ImpedanceGraph {
  Window window;
  Surface surface;
  FrequencyLabels frequencies;
  Control lblnomegraf, pctgrafimp, pctvalori, txtpos, lblfrequenza, Text1;
  Control mnufilegrafico, mnugrafstampa, mnuchiudigraf;
  Control mnuinfo3, mnuguida, mnuinformazioni;

  explicit ImpedanceGraph(ProjectState& state);
};

}  // namespace zefirondo
