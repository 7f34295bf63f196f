// What the box page of the sheet does.
#pragma once

#include "core/program.h"

namespace zefirondo {

void ConnectBox(Program& program);

}  // namespace zefirondo
