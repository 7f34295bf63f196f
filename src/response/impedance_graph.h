// `frmgrafico`, the graph of a measured impedance.
#pragma once

#include "core/program.h"

namespace zefirondo {

void ConnectImpedanceGraph(Program& program);

}  // namespace zefirondo
