// What the graph windows do.
#pragma once

#include "core/program.h"

namespace zefirondo {

void ConnectResponse(Program& program);

}  // namespace zefirondo
