// The desk calculator `frmcalcolatrice`. It has no link to the project.
#pragma once

#include "core/program.h"

namespace zefirondo {

void ConnectCalculator(Program& program);

}  // namespace zefirondo
