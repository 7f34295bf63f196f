// Dimensions typed by hand in `frmdimensioni`: the others are solved so that the volume stays.
#pragma once

#include "core/program.h"

namespace zefirondo {

void ConnectDimensionEntry(Program& program);

}  // namespace zefirondo
