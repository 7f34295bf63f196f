// `frmFaseSh`, the tool that finds the delay between two phase curves.
#pragma once

#include "core/controls.h"

namespace zefirondo {

struct PhaseOffsetTool {
  Window window;
  Surface surface;
  Control lbltitolo, pctgrafFase, txtposFase, lblfrequenza;
  Control lblovl1, cmdset1, lblset1, chkonoff1, lblonoff1;
  Control lblovl2, cmdset2, lblset2, chkonoff2, lblonoff2;
  Control cmdimporta, cmdcalcola, cmdsomma, cmdcancella, cmdchiudi;

  Control mnufilefase, mnuimportafase, mnusalvarosso, mnusalvablu, mnuchiudifase;
  Control mnucalcolatrice;
  Control mnuinfoFase, mnuguida, mnuinformazioni;

  explicit PhaseOffsetTool(ProjectState& state);
};

}  // namespace zefirondo
