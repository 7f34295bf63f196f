#include "filters/filter_response.h"

#include <cmath>
#include <functional>

#include "core/numbers.h"
#include "response/sweep.h"

namespace zefirondo {
namespace {

constexpr double kOffset = 40;  // 0 dB is plotted at 40
constexpr double kButterworthDivisor = 1.4142;
constexpr double kBesselDivisor = 2.0;

/// Level as plotted and phase in radians, at one frequency.
struct FilterPoint {
  double y = 0.0;
  double phase = 0.0;
};

double HalfPi() { return 2 * std::atan(1.0); }

/// A failure of the arithmetic before a logarithm comes before that of the logarithm itself.
double CheckedLog10(double x) {
  if (!(x > 0)) CheckArithmetic();
  return Log10(x);
}

// ---- slopes: Butterworth and Bessel ----

/// The attenuation in dB of one slope by the ratio that grows into its stop band.
double ButterworthSlope(double ratio, int order) {
  return 20 * CheckedLog10(1 / std::sqrt(std::pow(ratio, 2 * order) + 1));
}
double BesselSlope(double ratio, int order) { return 20 * CheckedLog10(1 / std::sqrt(std::pow(ratio + 1, order))); }

/// Phases are known for the first two orders; the others have none.
double LowPhase(double f, double ft, int order, double divisor) {
  if (order == 1) return std::atan(ft / f) - HalfPi();
  if (order == 2) return std::atan((ft / f - f / ft) / divisor) - HalfPi();
  return 0.0;
}
double HighPhase(double f, double fi, int order, double divisor) {
  if (order == 1) return HalfPi() - std::atan(f / fi);
  if (order == 2) return HalfPi() - std::atan((f / fi - fi / f) / divisor);
  return 0.0;
}

struct SlopeFilter {
  double (*slope)(double ratio, int order);
  double divisor;
  bool high;  // attenuates below Fi
  bool low;   // attenuates above Ft
  int order;
  double ft, fi;
  double level;  // gain + 40, formed in single precision

  FilterPoint operator()(double f) const {
    FilterPoint point{level, 0.0};
    if (high) {
      point.y = slope(fi / f, order) + point.y;
      point.phase += HighPhase(f, fi, order, divisor);
    }
    if (low) {
      point.y += slope(f / ft, order);
      point.phase += LowPhase(f, ft, order, divisor);
    }
    return point;
  }
};

// ---- equalisers: shelving and peaking ----

struct ShelvingFilter {
  bool low;
  double f0, a_gain, q;

  FilterPoint operator()(double f) const {
    const double w = f / f0;
    const double u = w * w;
    const double g = a_gain;
    const double a = low ? g * g - u * g : g - g * g * u;
    const double c = low ? 1 - u * g : g - u;
    const double b = (std::sqrt(g) * g / q) * w;
    const double d = (std::sqrt(g) / q) * w;
    const double n = a * a + g * g * g * u / (q * q);
    const double den = c * c + u * g / (q * q);
    const double s = low ? d * a - c * b : c * b - d * a;
    const double t = d * b + c * a;
    FilterPoint point;
    point.y = 10 * CheckedLog10(n / den) + kOffset;
    if (s != 0) point.phase = low ? std::atan(t / s) - HalfPi() : HalfPi() - std::atan(t / s);
    return point;
  }
};

struct PeakingFilter {
  double ft, a_gain, q;

  FilterPoint operator()(double f) const {
    const double w = f / ft;
    const double u = w * w;
    const double g = a_gain;
    const double a = 1 - u;
    const double b = g * w / q;
    const double c = w / (q * g);
    const double n = a * a + g * g * u / (q * q);
    const double den = a * a + u / (g * g * q * q);
    return {10 * CheckedLog10(n / den) + kOffset, std::atan((b - c) * a / (a * a + c * b))};
  }
};

using FilterFormula = std::function<FilterPoint(double)>;

std::optional<FilterFormula> ChooseSlope(const FilterSettings& s) {
  SlopeFilter filter{nullptr, 0, false, false, s.order, s.ft, s.fi, static_cast<double>(s.gain + 40.0F)};
  if (s.alignment == "Butterworth") {
    filter.slope = ButterworthSlope;
    filter.divisor = kButterworthDivisor;
  } else if (s.alignment == "Bessel") {
    filter.slope = BesselSlope;
    filter.divisor = kBesselDivisor;
  } else {
    return std::nullopt;
  }
  filter.high = s.type == "Hi Pass" || s.type == "Band Pass";
  filter.low = s.type == "Low Pass" || s.type == "Band Pass";
  if (!filter.high && !filter.low) return std::nullopt;
  return filter;
}

double GainFactor(const FilterSettings& s) { return Power(10.0, static_cast<double>(s.gain) / 40); }

std::optional<FilterFormula> ChooseFormula(const FilterSettings& s) {
  if (s.alignment == "Shelving" && s.type == "Low Pass") return ShelvingFilter{true, s.ft, GainFactor(s), s.q};
  if (s.alignment == "Shelving" && s.type == "Hi Pass") return ShelvingFilter{false, s.fi, GainFactor(s), s.q};
  if (s.alignment == "Peaking") return PeakingFilter{s.ft, GainFactor(s), s.q};
  return ChooseSlope(s);
}

}  // namespace

std::optional<FilterCurves> FilterResponse(const FilterSettings& settings) {
  const std::optional<FilterFormula> formula = ChooseFormula(settings);
  if (!formula) return std::nullopt;
  const std::vector<double>& hertz = Sweep5k().hertz;
  FilterCurves curves;
  FillAbscissa(curves.x, kPointsTo5k);
  curves.db.assign(kPointsTo5k + 1, 0.0);
  curves.degrees.assign(kPointsTo5k + 1, 0.0);
  BeginArithmetic();
  for (std::size_t i = 0; i < kPointsTo5k; ++i) {
    const FilterPoint point = (*formula)(hertz[i]);
    CheckArithmetic();
    curves.db[i] = point.y;
    curves.degrees[i] = point.phase * 180 / kPi;
  }
  return curves;
}

}  // namespace zefirondo
