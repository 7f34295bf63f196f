// What the filter designer and the sums do.
#pragma once

#include "core/program.h"

namespace zefirondo {

void ConnectFilters(Program& program);

}  // namespace zefirondo
