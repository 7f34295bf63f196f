// What the transducer's side of the program does.
#pragma once

#include "core/program.h"

namespace zefirondo {

void ConnectTransducer(Program& program);

}  // namespace zefirondo
