// Component values from two points of an impedance curve: a capacitor, or an inductor with its resistor.
//
// The two searches differ at the ends of the file, and both forms are wanted.
#pragma once

#include <filesystem>

#include "core/program.h"

namespace zefirondo {

/// A point of the curve: frequency in Hz, modulus in ohm.
struct CurvePoint {
  double f = 0.0;
  double z = 0.0;
};

struct CurvePoints {
  CurvePoint a;  // at the first frequency
  CurvePoint b;  // at the second one
};

/// The rows at or just below two frequencies; a frequency that no pair of rows brackets gives (0, 0). Both throw
/// `RunTimeError`.
[[nodiscard]] CurvePoints FindCapacitivePoints(const std::filesystem::path& path, double f1, double f2);
[[nodiscard]] CurvePoints FindInductivePoints(const std::filesystem::path& path, double f1, double f2);

/// C in µF of a series of capacitor and resistor: |Z|² = R² + 1 / (2πfC)². Throws `RunTimeError`.
[[nodiscard]] double CapacitorOf(const CurvePoints& points);

/// L in H, and R in ohm beside it, of a series of both: |Z|² = R² + (2πfL)². Both throw `RunTimeError`.
[[nodiscard]] double InductorOf(const CurvePoints& points);
[[nodiscard]] double ResistorOf(const CurvePoints& points, double henry);

/// The values between `ValRangeLow` and `ValRangeHigh`, with their messages; −1 after a failure. The second sets
/// `ValResult` to the resistor.
double CapacitorFromCurve(Program& program);
double InductorFromCurve(Program& program);

void ConnectComponentValues(Program& program);

}  // namespace zefirondo
