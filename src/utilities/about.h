// `frmAbout`, and the desktop's information tool behind its button.
#pragma once

#include "core/program.h"

namespace zefirondo {

void ConnectAbout(Program& program);

}  // namespace zefirondo
