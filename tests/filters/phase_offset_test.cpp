// The offset of two phase curves and the delay that aligns them, worked out by hand.
#include "filters/phase_offset.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/run_time_error.h"

namespace zefirondo {
namespace {

struct Fold {
  double from;
  double to;
};

class PhaseFold : public testing::TestWithParam<Fold> {};

TEST_P(PhaseFold, BringsAPhaseBackByItsBand) { EXPECT_EQ(FoldPhase(GetParam().from), GetParam().to); }

// Both edges of each band: the first band that holds a value decides. At 540 and above one turn is not enough, and
// below -1620 nothing is left.
INSTANTIATE_TEST_SUITE_P(EachBand, PhaseFold,
                         testing::Values(Fold{0, 0}, Fold{-180, -180}, Fold{-181, 179}, Fold{-540, -180},
                                         Fold{-541, 179}, Fold{-900, -180}, Fold{-901, 179}, Fold{-1260, -180},
                                         Fold{-1261, 179}, Fold{-1620, -180}, Fold{-1621, 0}, Fold{90, 90},
                                         Fold{179, 179}, Fold{180, -180}, Fold{539, 179}, Fold{600, 240}));

TEST(PhaseOffsetOf, CurvesOfOneSignIsTheirDifference) {
  const PhaseOffset offset = OffsetOf(-120, -30, 100);
  EXPECT_EQ(offset.degrees, 90);
  EXPECT_DOUBLE_EQ(offset.milliseconds, 2.5);  // a quarter of 10 ms
  EXPECT_EQ(offset.samples48, 120);
  EXPECT_EQ(offset.samples44, 110.25);
}

TEST(PhaseOffsetOf, CurvesOfOppositeSignsIsTheSumOfTheModuli) {
  EXPECT_EQ(OffsetOf(170, -170, 100).degrees, 340);
  EXPECT_EQ(OffsetOf(0, -20, 100).degrees, 20);
}

TEST(PhaseOffsetOf, AFrequencyOfZeroFails) { EXPECT_THROW(static_cast<void>(OffsetOf(1, 2, 0)), RunTimeError); }

// A curve that wraps from the bottom to the top edge between 30 and 40 Hz, with its zero slot.
const Curve kHertz{10, 20, 30, 40, 50, 0};
const Curve kDegrees{-60, -120, -175, 175, 120, 0};

TEST(PhaseAtAFrequency, IsThatOfTheLastPointAtOrBelow) {
  EXPECT_EQ(PhaseAt(kHertz, kDegrees, 25, false), -120);
  EXPECT_EQ(PhaseAt(kHertz, kDegrees, 20, false), -120);
  EXPECT_EQ(PhaseAt(kHertz, kDegrees, 45, false), 175);
}

TEST(PhaseAtAFrequency, LosesATurnForEachWrapWhenTheSlopeCounts) {
  EXPECT_EQ(PhaseAt(kHertz, kDegrees, 45, true), 175 - 360);
  EXPECT_EQ(PhaseAt(kHertz, kDegrees, 25, true), -120);
}

TEST(PhaseAtAFrequency, IsZeroAboveAllPoints) { EXPECT_EQ(PhaseAt(kHertz, kDegrees, 60, true), 0); }

TEST(PhaseDelay, TakesAPartOfATurnOffEachPoint) {
  // 1 ms is 36 degrees at 100 Hz, 180 at 500 Hz and 720 at 2 kHz
  const Curve delayed = ApplyDelay({10, 10, 10, 0}, {100, 500, 2000, 0}, 1);
  ASSERT_EQ(delayed.size(), 4U);
  EXPECT_NEAR(delayed[0], -26, 1e-12);
  EXPECT_NEAR(delayed[1], -170, 1e-12);
  EXPECT_NEAR(delayed[2], 10, 1e-12);
  EXPECT_EQ(delayed[3], 0);
}

TEST(PhaseDelay, OfNothingOnlyFolds) { EXPECT_EQ(ApplyDelay({200, -90}, {100, 200}, 0), (Curve{-160, -90})); }

}  // namespace
}  // namespace zefirondo
