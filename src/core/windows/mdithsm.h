// `mdithsm`, the frame in which the whole program lives.
#pragma once

#include "core/controls.h"

namespace zefirondo {

struct MainFrame {
  Window window;
  Control mdimnufile, mnuuscita;
  Control mnuparametri, mnuapriprogetto, mnuthisma, mnuinsmanuale;
  Control mnuimpostazioni, mnuopzioni;
  Control mnucalcola, mnudelay, munindu, mnucapa, mnucalcolatrice;
  Control mnuinfo, mnuguida, mnuinformazioni;

  explicit MainFrame(ProjectState& state);
};

}  // namespace zefirondo
