// The offset, the delay and the fold against a second reckoning, on curves made for it.
#include <gtest/gtest.h>

#include "core/run_time_error.h"
#include "filters/phase_offset.h"
#include "filters/plain_phase.h"

namespace zefirondo {
namespace {

using plain::LateDriver;
using plain::PhaseRows;
using plain::Restless;

PhaseOffset OffsetAt(const PhaseRows& first, const PhaseRows& second, double fo, bool slope) {
  return OffsetOf(PhaseAt(first.hertz, first.degrees, fo, slope), PhaseAt(second.hertz, second.degrees, fo, slope), fo);
}

// ---- drivers whose delay is known beforehand ----

struct TwoDrivers {
  double first, second;  // ms
};

class OffsetOfLateDrivers : public testing::TestWithParam<TwoDrivers> {};

TEST_P(OffsetOfLateDrivers, IsTheirDifferenceInTimeAtAnyFrequencyWhenTheSlopeCounts) {
  const auto [first_ms, second_ms] = GetParam();
  const PhaseRows first = LateDriver(first_ms, 20, 2000, 2);
  const PhaseRows second = LateDriver(second_ms, 20, 2000, 2);
  int looked_at = 0;
  for (std::size_t row = 0; row + 1 < first.Count(); ++row) {
    // A wrap at the row behind the one that is taken is counted too: that frequency is another test's.
    if (plain::WrapsAt(first, row + 1) || plain::WrapsAt(second, row + 1)) continue;
    const PhaseOffset offset = OffsetAt(first, second, first.hertz[row], true);
    const double ms = std::fabs(first_ms - second_ms);
    ASSERT_NEAR(offset.degrees, 0.36 * ms * first.hertz[row], 1e-8) << first.hertz[row];
    ASSERT_NEAR(offset.milliseconds, ms, 1e-9);
    ASSERT_NEAR(offset.samples48, ms * 48, 0.005000001);
    ASSERT_NEAR(offset.samples44, ms * 44.1, 0.005000001);
    ++looked_at;
  }
  EXPECT_GT(looked_at, 950);
}

INSTANTIATE_TEST_SUITE_P(Pairs, OffsetOfLateDrivers,
                         testing::Values(TwoDrivers{0.1, 0.4}, TwoDrivers{1, 3}, TwoDrivers{3, 1}, TwoDrivers{2.5, 2.5},
                                         TwoDrivers{0.02, 6}, TwoDrivers{4.75, 5}));

TEST(OffsetAtAWrap, CountsTheWrapOfTheRowBehindTheOneTaken) {
  // -170 at 30 Hz and 175 at 40 Hz: at 35 Hz the row of 30 Hz is taken, with the turn that comes at 40 Hz.
  const Curve hertz{20, 30, 40, 50, 0};
  const Curve degrees{-120, -170, 175, 120, 0};
  EXPECT_EQ(PhaseAt(hertz, degrees, 35, true), -170 - 360);
  EXPECT_EQ(PhaseAt(hertz, degrees, 35, false), -170);
  EXPECT_EQ(PhaseAt(hertz, degrees, 29, true), -120);
}

struct Jump {
  const char* what;
  double before, after;
  int turns;
};

class WrapOfAPhase : public testing::TestWithParam<Jump> {};

TEST_P(WrapOfAPhase, IsARiseFromBelowZeroToAbove170) {
  const auto [what, before, after, turns] = GetParam();
  EXPECT_EQ(PhaseAt({10, 20, 30, 40, 0}, {before, after, 0, 0, 0}, 25, true), after - 360 * turns) << what;
  EXPECT_EQ(PhaseAt({10, 20, 30, 40, 0}, {before, after, 0, 0, 0}, 25, false), after) << what;
}

INSTANTIATE_TEST_SUITE_P(Edges, WrapOfAPhase,
                         testing::Values(Jump{"a wrap", -175, 175, 1}, Jump{"just above 170", -1, 170.001, 1},
                                         Jump{"170 itself", -175, 170, 0}, Jump{"from 0", 0, 175, 0},
                                         Jump{"from above", 10, 175, 0},
                                         Jump{"from the top to the bottom", 175, -175, 0},
                                         Jump{"a small step", -5, 5, 0}, Jump{"down to -171", -10, -171, 0}));

// ---- curves that jump about ----

TEST(OffsetOfRestlessCurves, EqualsTheSecondReckoning) {
  int wraps = 0;
  for (unsigned seed = 1; seed <= 60; ++seed) {
    const PhaseRows first = Restless(seed, 120);
    const PhaseRows second = Restless(seed + 1000, 90);
    for (std::size_t row = 1; row < first.Count(); ++row) wraps += plain::WrapsAt(first, row) ? 1 : 0;
    for (double fo = first.hertz.front() + 0.01; fo < first.hertz[first.Count() - 1] + 50; fo *= 1.07) {
      for (const bool slope : {false, true}) {
        const double one = plain::PhaseNear(first, fo, slope);
        const double other = plain::PhaseNear(second, fo, slope);
        ASSERT_DOUBLE_EQ(PhaseAt(first.hertz, first.degrees, fo, slope), one) << seed << " " << fo;
        ASSERT_DOUBLE_EQ(PhaseAt(second.hertz, second.degrees, fo, slope), other) << seed << " " << fo;
        const PhaseOffset offset = OffsetAt(first, second, fo, slope);
        ASSERT_NEAR(offset.degrees, plain::Apart(one, other), 1e-9);
        ASSERT_NEAR(offset.milliseconds, plain::Apart(one, other) / 0.36 / fo, 1e-9);
      }
    }
  }
  EXPECT_GT(wraps, 100);
}

TEST(OffsetOfRestlessCurves, TakesTheRowItselfWhenTheFrequencyIsOnIt) {
  const PhaseRows rows = Restless(7, 50);
  for (std::size_t row = 0; row + 1 < rows.Count(); ++row) {
    EXPECT_EQ(PhaseAt(rows.hertz, rows.degrees, rows.hertz[row], false), rows.degrees[row]);
  }
  // Behind the last row there is none that ends the search.
  EXPECT_EQ(PhaseAt(rows.hertz, rows.degrees, rows.hertz[rows.Count() - 1], false), 0);
}

TEST(OffsetOfRestlessCurves, BelowTheFirstRowTakesTheFirst) {
  EXPECT_EQ(PhaseAt({100, 200, 300, 0}, {-40, -50, -60, 0}, 45, true), -40);
}

TEST(OffsetOfPhases, HasItsSamplesRoundedToTwoDecimalsAndToEvenAtATie) {
  // 45 degrees at 1000 Hz: 0.125 ms, 6 samples and 5.5125 samples, which rounds to 5.51
  EXPECT_EQ(OffsetOf(45, 0, 1000).degrees, 45);
  EXPECT_EQ(OffsetOf(-45, -90, 1000).samples48, 6);
  EXPECT_EQ(OffsetOf(-45, -90, 1000).samples44, 5.51);
  // At 125 Hz 45000/1024 degrees are 1000/1024 ms, so 46.875 samples, a tie that goes up; three times as much is a tie
  // that goes down.
  EXPECT_EQ(OffsetOf(43.9453125, 0, 125).samples48, 46.88);
  EXPECT_EQ(OffsetOf(131.8359375, 0, 125).samples48, 140.62);
}

struct Sides {
  double first, second, degrees;
};

class OffsetBySides : public testing::TestWithParam<Sides> {};

TEST_P(OffsetBySides, AddsTheModuliUnlessBothStandOnOneSide) {
  EXPECT_EQ(OffsetOf(GetParam().first, GetParam().second, 50).degrees, GetParam().degrees);
  EXPECT_EQ(OffsetOf(GetParam().second, GetParam().first, 50).degrees, GetParam().degrees);
}

INSTANTIATE_TEST_SUITE_P(EachPair, OffsetBySides,
                         testing::Values(Sides{30, 100, 70}, Sides{-30, -100, 70}, Sides{30, -100, 130},
                                         Sides{175, -175, 350}, Sides{0, 60, 60}, Sides{0, -60, 60}, Sides{0, 0, 0},
                                         Sides{-545, -20, 525}));

// ---- the delay ----

TEST(DelayOfRestlessCurves, EqualsTheSecondReckoning) {
  int given_up = 0;
  int above = 0;
  for (unsigned seed = 1; seed <= 40; ++seed) {
    const PhaseRows rows = Restless(seed, 100);
    for (const double ms : {-1.5, -0.2, 0.0, 0.05, 0.7, 2.5, 9.0}) {
      const Curve delayed = ApplyDelay(rows.degrees, rows.hertz, ms);
      ASSERT_EQ(delayed.size(), rows.degrees.size());
      for (std::size_t i = 0; i < delayed.size(); ++i) {
        const double turned = rows.degrees[i] - 0.36 * ms * rows.hertz[i];
        if (plain::StandsAtAnEdge(turned)) continue;
        ASSERT_NEAR(delayed[i], plain::Folded(turned), 1e-8) << seed << " " << ms << " " << i;
        given_up += turned < -1620 ? 1 : 0;
        above += delayed[i] > 180 ? 1 : 0;
      }
    }
  }
  EXPECT_GT(given_up, 1000);  // both places where the fold gives up were met
  EXPECT_GT(above, 100);
}

TEST(DelayOfALateDriver, AlignsItWithTheLaterOne) {
  const PhaseRows early = LateDriver(0.8, 20, 900, 3);
  const PhaseRows late = LateDriver(2.3, 20, 900, 3);
  const Curve delayed = ApplyDelay(early.degrees, early.hertz, 1.5);
  for (std::size_t i = 0; i < early.Count(); ++i) {
    const double turns = (delayed[i] - late.degrees[i]) / 360;
    EXPECT_NEAR(turns, std::round(turns), 1e-10) << early.hertz[i];
  }
}

TEST(DelayOfAnEmptyCurve, FailsWithAnIndexError) {
  EXPECT_THROW(static_cast<void>(ApplyDelay({}, {10, 20, 0}, 1)), RunTimeError);
  EXPECT_THROW(static_cast<void>(ApplyDelay({}, {}, 1)), RunTimeError);
  EXPECT_THROW(static_cast<void>(ApplyDelay({1, 2, 0}, {}, 1)), RunTimeError);
  EXPECT_THROW(static_cast<void>(PhaseAt({10, 20, 0}, {}, 15, false)), RunTimeError);
  EXPECT_THROW(static_cast<void>(PhaseAt({}, {}, 15, false)), RunTimeError);
}

}  // namespace
}  // namespace zefirondo
