// `frmbox`: the box type, when the proposal of the computation was refused.
#pragma once

#include "core/program.h"

namespace zefirondo {

/// Designs a box of this kind from the transducer, and shows its page.
void DesignBox(Program& program, bool vented);

void ConnectBoxType(Program& program);

}  // namespace zefirondo
