// The power of the excursion and air speed graphs, by the wiring of the drivers. The rules are not all alike, and
// each is wanted as it stands.
#pragma once

#include "core/program.h"

namespace zefirondo {

/// One row of the rules: what becomes of a power P with N drivers.
enum class PowerRule {
  Shown,          // what the window shows on load: P, N·P in parallel
  Opened,         // vented excursion and air speed on opening: P, P/N in series
  Redrawn,        // the same after the window's button: P, P/N in series and in parallel
  RedrawnClosed,  // closed excursion after the button: P, P·N in series, P/N in parallel
  InsideClosed,   // within the closed excursion: P, P/N in series, P·N in parallel
};

/// Throws `RunTimeError` for a division by zero.
[[nodiscard]] double ApplyPowerRule(const ProjectState& state, PowerRule rule, double power);

/// Reads a window's power for its redraw. What is not above 0 shows its message, puts the power of the sheet back
/// and gives 0.
[[nodiscard]] double TakeTypedPower(Program& program, Control& txtpot);

}  // namespace zefirondo
