// What the small utilities do.
#pragma once

#include "core/program.h"

namespace zefirondo {

void ConnectUtilities(Program& program);

}  // namespace zefirondo
