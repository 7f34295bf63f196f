// The sweep and the transfer functions, against a second writing of them and against numbers worked by hand.
#include "response/sweep.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <tuple>

#include "core/run_time_error.h"
#include "response/plain_box.h"

namespace zefirondo {
namespace {

constexpr double kDecibelTolerance = 1e-9;  // the two writings round differently; 1e-9 dB is far below any step

// ---- the sampling ----

TEST(Sweep, HasTheThreeLengthsOfTheGraphs) {
  EXPECT_EQ(kPointsTo5k, 6827U);
  EXPECT_EQ(kPointsTo2k, 2732U);
  EXPECT_EQ(kPointsTo1k, 1366U);
  EXPECT_EQ(Sweep5k().hertz.size(), 6827U);
  EXPECT_EQ(Sweep5k().x.size(), 6827U);
}

TEST(Sweep, AddsTheStepBeforeEachPoint) {
  double f = 0.0;
  for (std::size_t i = 0; i < kPointsTo5k; ++i) {
    f += 0.7324;
    ASSERT_EQ(Sweep5k().hertz[i], f) << "point " << i;
  }
}

TEST(Sweep, IsARunningSumAndNoProduct) {
  std::size_t different = 0;
  for (std::size_t i = 0; i < kPointsTo5k; ++i) {
    if (Sweep5k().hertz[i] != 0.7324 * static_cast<double>(i + 1)) ++different;
  }
  EXPECT_GT(different, 6000U);  // a product would agree everywhere
}

TEST(Sweep, ReachesTheFrequenciesOfTheGraphs) {
  // 6827, 2732 and 1366 steps of 0.7324 Hz.
  EXPECT_NEAR(Sweep5k().hertz[6826], 5000.0948, 1e-6);
  EXPECT_NEAR(Sweep5k().hertz[2731], 2000.9168, 1e-6);
  EXPECT_NEAR(Sweep5k().hertz[1365], 1000.4584, 1e-6);
}

TEST(Sweep, HoldsTwentyLogarithmsOfTheFrequency) {
  for (std::size_t i = 0; i < kPointsTo5k; ++i) {
    ASSERT_NEAR(Sweep5k().x[i], 20 * std::log10(Sweep5k().hertz[i]), 1e-12) << "point " << i;
  }
}

TEST(Sweep, StoresTheFirstPointLeftOfThePlot) {
  EXPECT_NEAR(Sweep5k().x[0], -2.705033, 5e-7);  // 20·l(0.7324)/l(10), with bc
}

TEST(Sweep, GivesAnAbscissaItsZeroSlot) {
  for (const std::size_t length : {3U, 2733U, 6828U}) {  // whatever stood there
    Curve abscissa(length, 7.0);
    FillAbscissa(abscissa, kPointsTo2k);
    ASSERT_EQ(abscissa.size(), 2733U);
    EXPECT_EQ(abscissa[2731], Sweep5k().x[2731]);
    EXPECT_EQ(abscissa[2732], 0.0);
  }
}

// ---- the closed box ----

class ClosedCurve : public testing::TestWithParam<std::tuple<double, double>> {};

TEST_P(ClosedCurve, AgreesWithTheTransferFunctionAtEveryPoint) {
  const auto [qtc, fc] = GetParam();
  ProjectState state;
  RispostaChiusa(state, qtc, fc);
  ASSERT_EQ(state.BoxDb.size(), 6828U);
  for (std::size_t i = 0; i < kPointsTo5k; ++i) {
    const auto expected = static_cast<double>(plain::ClosedDb(qtc, fc, Sweep5k().hertz[i]));
    ASSERT_NEAR(state.BoxDb[i], expected, kDecibelTolerance) << "point " << i;
    ASSERT_EQ(state.BoxFreq[i], Sweep5k().x[i]) << "point " << i;
  }
}

INSTANTIATE_TEST_SUITE_P(EveryQtc, ClosedCurve,
                         testing::Combine(testing::Values(0.5, 0.707, 0.8312, 1.0, 1.4, 2.0),
                                          testing::Values(18.0, 50.0, 123.4)));

TEST(ClosedBox, IsBitForBitTheArithmeticInTheGivenOrder) {
  ProjectState state;
  RispostaChiusa(state, 0.707, 50);
  double f = 0.0;
  for (std::size_t i = 0; i < kPointsTo5k; ++i) {
    f += 0.7324;
    const double x = (f / 50) * (f / 50);
    const double g2 = (x * x) / ((x - 1) * (x - 1) + x / (0.707 * 0.707));
    ASSERT_EQ(state.BoxDb[i], 10 * (std::log(g2) / std::log(10.0)) + 40) << "point " << i;
  }
}

TEST(ClosedBox, StandsThreeDecibelsDownAtItsResonance) {
  // x = 1, so G² = 1 / (1/Qtc²) = Qtc² = 0.499849, and 10·log10 of it + 40 = 36.9884.
  const ClosedResponse response(0.707, 50);
  EXPECT_NEAR(response(50), 0.499849, 1e-12);
  ProjectState state;
  RispostaChiusa(state, 0.707, 50);
  // 68 steps are 49.8032 Hz and 69 are 50.5356 Hz: the curve rises through 36.9884 between them.
  EXPECT_LT(state.BoxDb[67], 36.9884);
  EXPECT_GT(state.BoxDb[68], 36.9884);
}

TEST(ClosedBox, HasAScaleTopOf65WithoutAPeak) {
  ProjectState state;
  RispostaChiusa(state, 0.707, 50);
  EXPECT_EQ(state.BoxScaleTop, 65);
}

TEST(ClosedBox, PeaksWithAQtcOfTwo) {
  // The largest |G|² of a second order high-pass is Q⁴ / (Q² − 1/4) = 16 / 3.75, which is 6.3009 dB.
  ProjectState state;
  RispostaChiusa(state, 2, 50);
  EXPECT_NEAR(*std::max_element(state.BoxDb.begin(), state.BoxDb.end()), 46.3009, 1e-3);
  EXPECT_EQ(state.BoxScaleTop, 71);
}

TEST(ClosedBox, LeavesAZeroSlotBehindTheLastPoint) {
  ProjectState state;
  RispostaChiusa(state, 1, 60);
  EXPECT_EQ(state.BoxFreq.size() - 1, 6827U);
  EXPECT_EQ(state.BoxDb.size() - 1, 6827U);
  EXPECT_EQ(state.BoxFreq[6827], 0.0);
  EXPECT_EQ(state.BoxDb[6827], 0.0);
  EXPECT_NE(state.BoxDb[6826], 0.0);
}

TEST(ClosedBox, KeepsAMaximumOfZeroForACurveThatStaysBelowIt) {
  // Fc = 1e9 Hz: at 5 kHz |G|² is about (5e-6)⁴, which is −212 dB, and −172 as stored.
  ProjectState state;
  RispostaChiusa(state, 0.707, 1e9);
  EXPECT_LT(*std::max_element(state.BoxDb.begin(), state.BoxDb.begin() + 6827), 0.0);
  EXPECT_EQ(state.BoxScaleTop, 25);
}

TEST(ClosedBox, ReplacesTheCurveThatWasThere) {
  ProjectState state;
  RispostaChiusa(state, 2, 50);
  const Curve first = state.BoxDb;
  RispostaChiusa(state, 0.5, 80);
  EXPECT_EQ(state.BoxDb.size(), 6828U);
  EXPECT_NE(state.BoxDb, first);
  ProjectState fresh;
  RispostaChiusa(fresh, 0.5, 80);
  EXPECT_EQ(state.BoxDb, fresh.BoxDb);
  EXPECT_EQ(state.BoxScaleTop, fresh.BoxScaleTop);
}

// ---- the vented box ----

constexpr double kVas = 0.0912;  // m³, of one transducer

class VentedCurve : public testing::TestWithParam<std::tuple<double, int>> {};

TEST_P(VentedCurve, AgreesWithTheTransferFunctionAtEveryPoint) {
  const auto [ql, drivers] = GetParam();
  ProjectState state;
  state.Ql = ql;
  const double vas = drivers * kVas;
  RispostaReflex(state, 0.0635, 33.5, 0.385, 37.25, vas);
  ASSERT_EQ(state.BoxDb.size(), 6828U);
  ASSERT_EQ(state.BoxFreq.size(), 6828U);
  EXPECT_EQ(state.BoxDb[6827], 0.0);
  EXPECT_EQ(state.BoxFreq[6827], 0.0);
  const plain::Vented box{0.0635, 33.5, 0.385, 37.25, vas, ql};
  double highest = 0.0;
  for (std::size_t i = 0; i < kPointsTo5k; ++i) {
    const auto expected = static_cast<double>(plain::VentedDb(box, Sweep5k().hertz[i]));
    ASSERT_NEAR(state.BoxDb[i], expected, kDecibelTolerance) << "point " << i;
    ASSERT_EQ(state.BoxFreq[i], Sweep5k().x[i]) << "point " << i;
    highest = std::max(highest, expected);
  }
  EXPECT_EQ(state.BoxScaleTop, std::lround(highest) + 25);
}

INSTANTIATE_TEST_SUITE_P(EveryQlAndNumberOfTransducers, VentedCurve,
                         testing::Combine(testing::Values(5.0, 7.0, 10.0, 15.0, 20.0), testing::Values(1, 2, 3, 4)));

TEST(VentedBox, IsBitForBitTheArithmeticInTheGivenOrder) {
  const double vb = 0.0635, fs = 33.5, qts = 0.385, fb = 37.25, ql = 7;
  ProjectState state;
  state.Ql = ql;
  RispostaReflex(state, vb, fs, qts, fb, kVas);
  const double h2 = (fb / fs) * (fb / fs);
  const double a = fb / (ql * fs) + h2 / qts;
  const double b = fb / (fs * qts * ql) + kVas / vb + h2 + 1;
  const double c = fb / (ql * fs) + 1 / qts;
  double f = 0.0;
  for (std::size_t i = 0; i < kPointsTo5k; ++i) {
    f += 0.7324;
    const double x = (f / fs) * (f / fs);
    const double v = x * x;
    const double den = (v - b * x + h2) * (v - b * x + h2) + (c * x - a) * (c * x - a) * x;
    ASSERT_EQ(state.BoxDb[i], 10 * (std::log(v * v / den) / std::log(10.0)) + 40) << "point " << i;
  }
}

TEST(VentedBox, FollowsALossChangedFromSevenToTwenty) {
  ProjectState state;
  state.Ql = 7;
  RispostaReflex(state, 0.0635, 33.5, 0.385, 37.25, kVas);
  const Curve seven = state.BoxDb;
  state.Ql = 20;
  RispostaReflex(state, 0.0635, 33.5, 0.385, 37.25, kVas);
  // At the tuning the lossier box is the quieter one; point 50 is 37.3524 Hz.
  EXPECT_GT(state.BoxDb[50], seven[50] + 0.1);
  // Far above it both are flat.
  EXPECT_NEAR(state.BoxDb[6826], 40, 1e-3);
  EXPECT_NEAR(seven[6826], 40, 1e-3);
}

// ---- the scale ----

TEST(ScaleTop, RoundsTiesToTheEvenInteger) {
  EXPECT_EQ(ScaleTop(42.5, 0), 42);
  EXPECT_EQ(ScaleTop(43.5, 0), 44);
  EXPECT_EQ(ScaleTop(42.5, 25), 67);
  EXPECT_EQ(ScaleTop(43.5, 25), 69);
  EXPECT_EQ(ScaleTop(40, 25), 65);
  EXPECT_EQ(ScaleTop(46.30, 25), 71);
}

TEST(ScaleTop, IsASixteenBitInteger) {
  EXPECT_EQ(ScaleTop(32742, 25), 32767);
  EXPECT_THROW(static_cast<void>(ScaleTop(32743, 25)), RunTimeError);
}

// ---- failures ----

int FailureOf(void (*act)(ProjectState&), ProjectState& state) {
  try {
    act(state);
  } catch (const RunTimeError& error) {
    return error.number();
  }
  return 0;
}

TEST(BoxSweepFailure, IsADivisionByZeroForAZeroAmongTheClosedBoxArguments) {
  ProjectState state;
  EXPECT_EQ(FailureOf([](ProjectState& s) { RispostaChiusa(s, 0.707, 0); }, state), 11);
  EXPECT_EQ(FailureOf([](ProjectState& s) { RispostaChiusa(s, 0, 50); }, state), 11);
}

TEST(BoxSweepFailure, IsADivisionByZeroForAZeroAmongTheVentedBoxArguments) {
  ProjectState state;
  state.Ql = 7;
  EXPECT_EQ(FailureOf([](ProjectState& s) { RispostaReflex(s, 0, 33, 0.4, 37, 0.1); }, state), 11);
  EXPECT_EQ(FailureOf([](ProjectState& s) { RispostaReflex(s, 0.06, 0, 0.4, 37, 0.1); }, state), 11);
  EXPECT_EQ(FailureOf([](ProjectState& s) { RispostaReflex(s, 0.06, 33, 0, 37, 0.1); }, state), 11);
  state.Ql = 0;
  EXPECT_EQ(FailureOf([](ProjectState& s) { RispostaReflex(s, 0.06, 33, 0.4, 37, 0.1); }, state), 11);
}

TEST(BoxSweepFailure, IsAnOverflowWhereTheSquareHasNoDouble) {
  ProjectState state;
  EXPECT_EQ(FailureOf([](ProjectState& s) { RispostaChiusa(s, 0.707, 1e-200); }, state), 6);
}

TEST(BoxSweepFailure, IsTheLogarithmWhereTheMagnitudeVanishes) {
  // (0.7324 / 1e200)⁴ is below the smallest double: the magnitude is 0.
  ProjectState state;
  EXPECT_THROW(RispostaChiusa(state, 0.707, 1e200), LogarithmError);
}

TEST(BoxSweepFailure, LeavesNoCurveThatCouldBeDrawn) {
  ProjectState state;
  state.Ql = 7;
  for (void (*act)(ProjectState&) : {+[](ProjectState& s) { RispostaChiusa(s, 0.707, 0); },
                                     +[](ProjectState& s) { RispostaReflex(s, 0, 33, 0.4, 37, 0.1); }}) {
    RispostaChiusa(state, 0.707, 50);
    ASSERT_EQ(FailureOf(act, state), 11);
    EXPECT_TRUE(state.BoxFreq.empty());
    EXPECT_TRUE(state.BoxDb.empty());
  }
}

TEST(BoxSweepFailure, DoesNotSpoilTheNextSweep) {
  ProjectState state;
  EXPECT_THROW(RispostaChiusa(state, 0.707, 0), RunTimeError);
  RispostaChiusa(state, 0.707, 50);
  EXPECT_EQ(state.BoxScaleTop, 65);
}

}  // namespace
}  // namespace zefirondo
