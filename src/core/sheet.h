// The pages of the sheet that every project has, and what their fields do on their own.
#pragma once

#include <string_view>

#include "core/program.h"

namespace zefirondo {

/// Shows one of the pages "gen", "par", "dim", "imp".
void ShowFixedPage(Program& program, std::string_view key);

/// Shows a page's frame and hides the others.
void ShowPageFrame(Program& program, const Control& frame);

void ConnectSheet(Program& program);

}  // namespace zefirondo
