// The phase offset of two measured curves, and the delay that aligns them.
#pragma once

#include "core/project_state.h"

namespace zefirondo {

struct PhaseOffset {
  double degrees = 0.0;
  double milliseconds = 0.0;
  double samples48 = 0.0;  // at 48 kHz
  double samples44 = 0.0;  // at 44.1 kHz
};

/// The phase in degrees of a curve at `fo` Hz: that of the last point at or below it, less a turn for each wrap from
/// the bottom to the top edge before it when `take_slope` is set; 0 above all points. Throws `RunTimeError`
/// (index) for an empty curve.
[[nodiscard]] double PhaseAt(const Curve& hertz, const Curve& degrees, double fo, bool take_slope);

/// The offset of two phases at `fo` Hz. Throws `RunTimeError` (division by zero) for fo = 0.
[[nodiscard]] PhaseOffset OffsetOf(double first, double second, double fo);

/// A phase in degrees brought back into the chart by whole turns; below −1620 it gives 0, and at or above 540 it
/// stays above 180, both as wanted.
[[nodiscard]] double FoldPhase(double degrees);

/// The degrees of a curve after a delay. Throws `RunTimeError` (index) for an empty curve.
[[nodiscard]] Curve ApplyDelay(const Curve& degrees, const Curve& hertz, double milliseconds);

}  // namespace zefirondo
