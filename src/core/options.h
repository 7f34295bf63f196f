// The project options and the wiring of several woofers, as the dialogs `frmopzioni` and `frmwooferconn` set them.
#pragma once

#include "core/program.h"

namespace zefirondo {

/// Takes the wiring over from the options of `frmwooferconn`.
void TakeWoofersWiring(Program& program);

void ConnectOptions(Program& program);

}  // namespace zefirondo
