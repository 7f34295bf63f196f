// The two graphs on paper: the box response and the measured impedance, as they stand on the screen.
#pragma once

#include <string>

#include "core/program.h"
#include "print/page.h"

namespace zefirondo {

/// The pages of the two graphs. The words on them are Italian in both languages, as wanted. Both throw `RunTimeError`
/// for a graph without a scale.
[[nodiscard]] Page BoxGraphPage(Program& program);
[[nodiscard]] Page ImpedancePage(Program& program);

void ConnectGraphPages(Program& program);

}  // namespace zefirondo
