#include "filters/phase_offset.h"

#include <array>
#include <cmath>

#include "core/numbers.h"
#include "core/run_time_error.h"

namespace zefirondo {
namespace {

constexpr double kEdge = 170;  // degrees from which a jump is a wrap

}  // namespace

double PhaseAt(const Curve& hertz, const Curve& degrees, double fo, bool take_slope) {
  if (hertz.empty() || degrees.size() < hertz.size()) throw RunTimeError(ErrorNumber::IndexOutOfRange);
  std::int16_t wraps = 0;
  for (std::size_t i = 1; i < hertz.size(); ++i) {
    if (std::fabs(degrees[i]) > kEdge && degrees[i] > 0 && degrees[i - 1] < 0) wraps = ToInteger(wraps + 1.0);
    if (fo < hertz[i]) return degrees[i - 1] - wraps * 360.0 * (take_slope ? 1 : 0);
  }
  return 0.0;
}

PhaseOffset OffsetOf(double first, double second, double fo) {
  const auto sign = [](double value) { return (value > 0) - (value < 0); };
  PhaseOffset offset;
  offset.degrees = sign(first) == sign(second) ? std::fabs(first - second) : std::fabs(second) + std::fabs(first);
  offset.milliseconds = Divide(offset.degrees, fo * 360.0) * 1000.0;
  offset.samples48 = RoundHalfEven(offset.milliseconds * 48000.0 / 1000.0, 2);
  offset.samples44 = RoundHalfEven(offset.milliseconds * 44100.0 / 1000.0, 2);
  return offset;
}

double FoldPhase(double v) {
  struct Band {
    double from, to, turn;
  };
  static constexpr std::array<Band, 5> kBands{
      {{-180, 0, 0}, {-540, -180, 360}, {-900, -540, 720}, {-1260, -900, 1080}, {-1620, -1260, 1440}}};
  for (const Band& band : kBands) {
    if (band.from <= v && v <= band.to) return v + band.turn;
  }
  if (v >= 180) return v - 360;
  return v >= 0 ? v : 0.0;
}

Curve ApplyDelay(const Curve& degrees, const Curve& hertz, double milliseconds) {
  if (degrees.empty() || hertz.size() < degrees.size()) throw RunTimeError(ErrorNumber::IndexOutOfRange);
  Curve delayed(degrees.size(), 0.0);
  for (std::size_t i = 0; i < degrees.size(); ++i) {
    const double shift = Finite((milliseconds / 1000.0) * 360.0 * hertz[i]);
    delayed[i] = FoldPhase(degrees[i] - shift);
  }
  return delayed;
}

}  // namespace zefirondo
