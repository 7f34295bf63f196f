// The window `frmfiltri`: its state machine, and the filter on the box graph.
#pragma once

#include "core/program.h"

namespace zefirondo {

/// Locks the controls of a filter that is shown, and frees them again.
void Blocca(Program& program);
void Sblocca(Program& program);

void ConnectFilterDesigner(Program& program);

}  // namespace zefirondo
