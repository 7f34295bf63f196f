// Puts the program together: ties every event of every window to the routine that answers it.
#pragma once

#include "core/program.h"

namespace zefirondo {

/// To be called once, before `Start`.
void ConnectProgram(Program& program);

}  // namespace zefirondo
