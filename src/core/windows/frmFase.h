// `frmFase`, the phase of the box response, and of a filter in front of it.
#pragma once

#include "core/controls.h"
#include "core/windows/frequency_labels.h"

namespace zefirondo {

struct PhaseGraph {
  Window window;
  Surface surface;
  FrequencyLabels frequencies;
  Control lbltitolo, pctgrafFase, txtposFase, lblfrequenza;
  Control lbl180, lbl135, lbl90, lbl45, lbl0, lbl_45, lbl_90, lbl_135, lbl_180;
  Control fraleggenda, Label1, Label2, Label3;
  Control lblovl1, cmdset1, lblset1, chkonoff1, lblonoff1;
  Control lblovl2, cmdset2, lblset2, chkonoff2, lblonoff2;

  Control mnufilefase, mnuimportafase, mnusalvarosso, mnusalvablu, mnuchiudifase;
  Control mnuvisualizzafase, mnuspl, mnusplmax, mnuescursione, mnuairspeed;
  Control mnucalcolatrice;
  Control mnuinfoFase, mnuguida, mnuinformazioni;

  explicit PhaseGraph(ProjectState& state);
};

}  // namespace zefirondo
