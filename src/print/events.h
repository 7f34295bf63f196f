// What the print entries do.
#pragma once

#include "core/program.h"

namespace zefirondo {

void ConnectPrint(Program& program);

}  // namespace zefirondo
