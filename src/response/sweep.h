// How every curve is sampled, and the transfer functions of the closed and the vented box.
//
// Sources: R. H. Small, "Closed-Box Loudspeaker Systems" (1972) and "Vented-Box Loudspeaker Systems" (1973).
#pragma once

#include <cfenv>
#include <cstddef>
#include <vector>

#include "core/project_state.h"
#include "core/run_time_error.h"

namespace zefirondo {

/// The step of every sweep in Hz, added before each point: frequencies are sums, not products.
inline constexpr double kSweepStep = 0.7324;
inline constexpr std::size_t kPointsTo5k = 6827;
inline constexpr std::size_t kPointsTo2k = 2732;
inline constexpr std::size_t kPointsTo1k = 1366;

/// The frequencies of a sweep and their places on a plot; they do not depend on any design.
struct SweepGrid {
  std::vector<double> hertz;
  std::vector<double> x;  // 20·log10(f)
};

/// The grid from 0.7324 Hz to 5000.09 Hz; shorter sweeps use its beginning.
[[nodiscard]] const SweepGrid& Sweep5k();

/// Gives a curve's abscissa the first `points` places of the grid, with the zero slot behind them.
void FillAbscissa(Curve& abscissa, std::size_t points);

/// What a sweep of levels leaves.
struct LevelSweep {
  double maximum = 0.0;  // the largest value stored; a curve that stays below 0 keeps 0
};

/// The squared magnitude of the closed box, a second order high-pass: x² / ((x − 1)² + x / Qtc²), x = (f/Fc)².
struct ClosedResponse {
  double fc;
  double qtc_squared;

  ClosedResponse(double qtc, double fc_hertz) : fc(fc_hertz), qtc_squared(qtc * qtc) {}

  [[nodiscard]] double operator()(double f) const {
    const double ratio = f / fc;
    const double x = ratio * ratio;
    return (x * x) / ((x - 1) * (x - 1) + x / qtc_squared);
  }
};

/// The squared magnitude of the vented box, a fourth order high-pass with one loss term.
/// `alpha` is the compliance ratio Vas/Vb. Throws `RunTimeError` for a zero among the divisors.
struct VentedResponse {
  double fs;
  double h2;  // (Fb/Fs)²
  double a, b, c;

  VentedResponse(double vb, double fs_hertz, double qts, double fb, double vas, double ql);

  [[nodiscard]] double operator()(double f) const {
    const double ratio = f / fs;
    const double x = ratio * ratio;
    const double v = x * x;
    const double first = v - b * x + h2;
    const double second = c * x - a;
    return (v * v) / (first * first + second * second * x);
  }
};

/// Arithmetic that runs unguarded stands between these two. The second throws `RunTimeError` (overflow, or division
/// by zero) when any operation between them failed.
void BeginArithmetic();
void CheckArithmetic();

namespace detail {
void CheckPoint(double squared_magnitude);
void FinishLevels(Curve& levels, std::size_t points, double offset, LevelSweep& sweep);
}  // namespace detail

/// Fills a curve with 10·Log10(G²) + `offset` over the first `points` of the grid, and the zero slot behind
/// them. The arithmetic runs unguarded; the floating-point flags tell at the end whether it failed, and then
/// the first point that failed decides what is thrown: `RunTimeError` or `LogarithmError`. A failed sweep
/// leaves no curve behind.
template <class SquaredMagnitude>
LevelSweep SweepLevels(const SquaredMagnitude& response, std::size_t points, double offset, Curve& abscissa,
                       Curve& levels) {
  LevelSweep sweep;
  const std::vector<double>& hertz = Sweep5k().hertz;
  FillAbscissa(abscissa, points);
  levels.resize(points + 1);
  levels[points] = 0.0;
  BeginArithmetic();
  for (std::size_t i = 0; i < points; ++i) levels[i] = response(hertz[i]);
  detail::FinishLevels(levels, points, offset, sweep);
  if (std::fetestexcept(FE_DIVBYZERO | FE_INVALID | FE_OVERFLOW) == 0) return sweep;

  abscissa.clear();
  levels.clear();
  volatile double point = 0.0;  // through memory, so that its flags are raised before they are read
  for (std::size_t i = 0; i < points; ++i) {
    BeginArithmetic();
    point = response(hertz[i]);
    detail::CheckPoint(point);
  }
  throw RunTimeError(ErrorNumber::Overflow);
}

/// The top of a level scale: the largest value rounded, ties to even, and `headroom` above it.
[[nodiscard]] std::int16_t ScaleTop(double maximum, int headroom);

/// The box transfer function into `BoxFreq`, `BoxDb` and `BoxScaleTop`. `Qtc` has no unit, `Fc` is in Hz.
void RispostaChiusa(ProjectState& state, double qtc, double fc);

/// The same for the vented box. Volumes in m³, frequencies in Hz; `vas_total` is that of all transducers.
void RispostaReflex(ProjectState& state, double vb, double fs, double qts, double fb, double vas_total);

}  // namespace zefirondo
