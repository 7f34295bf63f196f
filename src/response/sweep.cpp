#include "response/sweep.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/numbers.h"
#include "core/run_time_error.h"

namespace zefirondo {
namespace {

constexpr double kBoxOffset = 40.0;  // 0 dB is stored as 40
constexpr int kBoxHeadroom = 25;

SweepGrid MakeGrid() {
  SweepGrid grid;
  grid.hertz.reserve(kPointsTo5k);
  grid.x.reserve(kPointsTo5k);
  double f = 0.0;
  for (std::size_t i = 0; i < kPointsTo5k; ++i) {
    f += kSweepStep;
    grid.hertz.push_back(f);
    grid.x.push_back(20 * Log10(f));
  }
  return grid;
}

void EraseBoxCurve(ProjectState& state) {
  state.BoxFreq.clear();
  state.BoxDb.clear();
}

}  // namespace

const SweepGrid& Sweep5k() {
  static const SweepGrid grid = MakeGrid();
  return grid;
}

void FillAbscissa(Curve& abscissa, std::size_t points) {
  const std::vector<double>& x = Sweep5k().x;
  abscissa.resize(points + 1);
  std::copy_n(x.begin(), points, abscissa.begin());
  abscissa[points] = 0.0;
}

VentedResponse::VentedResponse(double vb, double fs_hertz, double qts, double fb, double vas, double ql)
    : fs(fs_hertz), h2(0), a(0), b(0), c(0) {
  const double h = Divide(fb, fs);
  h2 = h * h;
  a = Divide(fb, ql * fs) + Divide(h2, qts);
  b = Divide(fb, fs * qts * ql) + Divide(vas, vb) + h2 + 1;
  c = Divide(fb, ql * fs) + Divide(1, qts);
}

void BeginArithmetic() { std::feclearexcept(FE_ALL_EXCEPT); }

void CheckArithmetic() {
  if (std::fetestexcept(FE_OVERFLOW) != 0) throw RunTimeError(ErrorNumber::Overflow);
  if (std::fetestexcept(FE_DIVBYZERO | FE_INVALID) != 0) throw RunTimeError(ErrorNumber::DivisionByZero);
}

namespace detail {

void CheckPoint(double squared_magnitude) {
  CheckArithmetic();
  if (!(squared_magnitude > 0.0)) throw LogarithmError();
}

void FinishLevels(Curve& levels, std::size_t points, double offset, LevelSweep& sweep) {
  for (std::size_t i = 0; i < points; ++i) levels[i] = std::log(levels[i]);
  for (std::size_t i = 0; i < points; ++i) levels[i] = 10 * (levels[i] / kLn10) + offset;
  std::array<double, 4> lanes{};  // four running maxima, so that none waits for the other
  std::size_t i = 0;
  for (; i + lanes.size() <= points; i += lanes.size()) {
    for (std::size_t lane = 0; lane < lanes.size(); ++lane) lanes[lane] = std::max(lanes[lane], levels[i + lane]);
  }
  for (; i < points; ++i) lanes[0] = std::max(lanes[0], levels[i]);
  sweep.maximum = *std::max_element(lanes.begin(), lanes.end());
}

}  // namespace detail

std::int16_t ScaleTop(double maximum, int headroom) { return ToInteger(RoundHalfEven(maximum) + headroom); }

void RispostaChiusa(ProjectState& state, double qtc, double fc) {
  EraseBoxCurve(state);
  const LevelSweep sweep = SweepLevels(ClosedResponse(qtc, fc), kPointsTo5k, kBoxOffset, state.BoxFreq, state.BoxDb);
  state.BoxScaleTop = ScaleTop(sweep.maximum, kBoxHeadroom);
}

void RispostaReflex(ProjectState& state, double vb, double fs, double qts, double fb, double vas_total) {
  EraseBoxCurve(state);  // also when the design has no curve
  const VentedResponse response(vb, fs, qts, fb, vas_total, state.Ql);
  const LevelSweep sweep = SweepLevels(response, kPointsTo5k, kBoxOffset, state.BoxFreq, state.BoxDb);
  state.BoxScaleTop = ScaleTop(sweep.maximum, kBoxHeadroom);
}

}  // namespace zefirondo
