// The reference level, by numbers worked with bc.
#include "response/reference_level.h"

#include <gtest/gtest.h>

#include "core/run_time_error.h"

namespace zefirondo {
namespace {

ProjectState RoundAir() {
  ProjectState state;
  state.Velocity = 345;
  state.roo = 1.18;
  state.DriversNum = 1;
  return state;
}

TEST(ReferenceLevel, IsThatOfTheReferenceEfficiency) {
  // Eta = 4·π²·35³·(0.1/0.45) / 345³ = 0.00915999; 10·log10: −20.38106
  // Lp = 10·log10(1/(2·π)) = −7.98180; Lq = 10·log10(4e-10 / (407.1e-12)) = −0.07641
  // Lref = −20.38106 − 7.98180 + 120 + 0.07641
  EXPECT_NEAR(ReferenceLevel(RoundAir(), 35, 0.1, 0.45), 91.71355, 1e-5);
}

TEST(ReferenceLevel, DoesNotKnowTheTypedSensitivity) {
  ProjectState state = RoundAir();
  const double level = ReferenceLevel(state, 35, 0.1, 0.45);
  state.txtsensibilita = "104";
  EXPECT_EQ(ReferenceLevel(state, 35, 0.1, 0.45), level);
}

TEST(ReferenceLevel, EndsInTheLogarithmWithoutComplianceOrResonance) {
  EXPECT_THROW(static_cast<void>(ReferenceLevel(RoundAir(), 35, 0, 0.45)), LogarithmError);
  EXPECT_THROW(static_cast<void>(ReferenceLevel(RoundAir(), 0, 0.1, 0.45)), LogarithmError);
}

TEST(ReferenceLevel, FailsWithoutAQes) {
  EXPECT_THROW(static_cast<void>(ReferenceLevel(RoundAir(), 35, 0.1, 0)), RunTimeError);
}

struct WiringRow {
  const char* wiring;
  std::int16_t drivers;
  double gain;  // 20·log10(2) = 6.0206, 20·log10(3) = 9.5424, 20·log10(4) = 12.0412
};

TEST(WiringGain, FollowsTheNumberOfTransducersButInSeries) {
  constexpr WiringRow kRows[]{{"parallel", 1, 0},       {"parallel", 2, 6.0206}, {"parallel", 3, 9.5424},
                              {"parallel", 4, 12.0412}, {"biamp", 2, 6.0206},    {"biamp", 4, 12.0412},
                              {"series", 1, 0},         {"series", 2, 0},        {"series", 4, 0},
                              {"Series", 2, 6.0206},  // the text is compared as it stands
                              {"", 2, 6.0206}};
  for (const WiringRow& row : kRows) {
    ProjectState state = RoundAir();
    state.WooferWiring = row.wiring;
    state.DriversNum = row.drivers;
    EXPECT_NEAR(WiringGain(state), row.gain, 5e-5) << row.wiring << " " << row.drivers;
  }
}

}  // namespace
}  // namespace zefirondo
