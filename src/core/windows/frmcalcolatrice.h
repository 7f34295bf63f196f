// `frmcalcolatrice`, a small desk calculator.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/controls.h"

namespace zefirondo {

struct Calculator {
  Window window;
  Control Readout;
  std::array<Control, 10> Number;
  std::array<Control, 5> Operator;
  Control Decimal, Percent, Cancel, CancelEntry;
  Control mnuchiudi;

  double Op1 = 0.0;  // the first operand and running result
  double Op2 = 0.0;
  bool DecimalFlag = false;           // the point has been keyed in the number being entered
  std::int16_t NumOps = 0;            // operands pending
  std::string LastInput = "NESSUNO";  // "NESSUNO", "NUM", "OP", "NEG" or "CE"
  std::string OpFlag = " ";           // the operator pending
  std::string TempReadout;            // the display when an operator was pressed

  explicit Calculator(ProjectState& state);
};

}  // namespace zefirondo
