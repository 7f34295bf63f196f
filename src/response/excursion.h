// `frmescursione`: the excursion of the cone against frequency at an applied power.
//
// Source: R. H. Small, "Closed-Box" (1972) and "Vented-Box Loudspeaker Systems" (1973): displacement functions.
#pragma once

#include "core/program.h"

namespace zefirondo {

/// A curve that is drawn and thrown away.
struct DrawnCurve {
  Curve x;
  Curve y;
};

/// Excursion in mm of the closed box, 0.7324 Hz to 1 kHz, with the zero slot behind. `power` in W before the rule
/// of the wiring inside. Throws `RunTimeError` or `LogarithmError`.
[[nodiscard]] DrawnCurve EscursioneChiusa(const ProjectState& state, double power);

/// Excursion in mm of the vented box, 10.7324 Hz to 1010 Hz. Throws `RunTimeError` or `LogarithmError`.
[[nodiscard]] DrawnCurve EscursioneReflex(const ProjectState& state, double power);

void ApriEscursione(Program& program);

void ConnectExcursion(Program& program);

}  // namespace zefirondo
