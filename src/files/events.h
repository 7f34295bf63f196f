// What the file entries of the menus do.
#pragma once

#include "core/program.h"

namespace zefirondo {

void ConnectFiles(Program& program);

}  // namespace zefirondo
