// The window that compares two measured phase curves, and its two small windows.
#pragma once

#include "core/program.h"

namespace zefirondo {

/// Resets the tool: files, curves, traces, buttons, clipboard.
void CancellaTutto(Program& program);

void ConnectPhaseTool(Program& program);

}  // namespace zefirondo
