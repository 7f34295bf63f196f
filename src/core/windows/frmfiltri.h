// `frmfiltri`, the designer of one ideal filter in front of the box.
#pragma once

#include <cstdint>
#include <string>

#include "core/controls.h"

namespace zefirondo {

struct FilterDesigner {
  Window window;
  Control lblallineamento, cmballineamento, lbltipo, cmbtipo, lblpendenza, cmbpendenza, lblQ, cmbQ, lblboost, cmbgain;
  Control lblft, txtft, lblfl, lblFh, txtFinf, lblfhi;
  Control cmdvisualizza, cmdcanc, cmdannulla;

  Control mnusintesi, mnupassivo, mnulowpass, mnuhipass, mnuattivo;
  Control mnucalcolatrice, mnuchiudi;
  Control mnuinfo, mnuguida, mnuinformazioni;

  // What the formulas work on; frequencies in Hz, the gain in dB, all in single precision.
  std::string Alignment, FilterType;
  std::int16_t SlopeOrder = 2;
  float Gain = 0.0F, Ft = 0.0F, Fi = 0.0F;

  explicit FilterDesigner(ProjectState& state);
};

}  // namespace zefirondo
