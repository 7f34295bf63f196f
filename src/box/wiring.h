// The button of `frmwooferconn`: the wiring and the number of transducers are taken over together.
#pragma once

#include "core/program.h"

namespace zefirondo {

void ConnectWiring(Program& program);

}  // namespace zefirondo
