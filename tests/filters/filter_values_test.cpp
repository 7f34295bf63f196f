// Single values of the filter formulas, worked by hand.
#include <gtest/gtest.h>

#include <cmath>

#include "filters/filter_response.h"
#include "response/sweep.h"

namespace zefirondo {
namespace {

TEST(FilterValues, OfTheFirstOrderAtItsCutoff) {
  // 73.24 Hz is the 100th point: −3.0103 dB and −45 degrees; Bessel: (1 + 1)^(1/2), also −3.0103.
  const double half_power = 10 * std::log10(2.0);
  for (const char* const alignment : {"Butterworth", "Bessel"}) {
    for (const float gain : {0.0F, 4.0F, -10.0F}) {
      const auto low = FilterResponse({alignment, "Low Pass", 1, gain, 0.7, 73.24F, 20});
      ASSERT_TRUE(low);
      EXPECT_NEAR(low->db[99], 40 + static_cast<double>(gain) - half_power, 1e-5);
      EXPECT_NEAR(low->degrees[99], -45, 1e-4);
      const auto high = FilterResponse({alignment, "Hi Pass", 1, gain, 0.7, 500, 73.24F});
      ASSERT_TRUE(high);
      EXPECT_NEAR(high->db[99], 40 + static_cast<double>(gain) - half_power, 1e-5);
      EXPECT_NEAR(high->degrees[99], 45, 1e-4);
    }
  }
}

TEST(FilterValues, OfTheOthersAtTheirCutoff) {
  struct Row {
    const char* alignment;
    std::int16_t order;
    double db, degrees;
  };
  // Butterworth is 3.0103 dB down in every order, the Bessel of this program 3.0103 dB an order.
  for (const Row& row : {Row{"Butterworth", 2, 36.9897, -90},
                         {"Butterworth", 3, 36.9897, 0},
                         {"Butterworth", 4, 36.9897, 0},
                         {"Bessel", 2, 33.9794, -90},
                         {"Bessel", 3, 30.9691, 0},
                         {"Bessel", 4, 27.9588, 0}}) {
    const auto low = FilterResponse({row.alignment, "Low Pass", row.order, 0, 0.7, 73.24F, 20});
    ASSERT_TRUE(low);
    EXPECT_NEAR(low->db[99], row.db, 1e-4) << row.alignment << row.order;
    EXPECT_NEAR(low->degrees[99], row.degrees, 1e-4) << row.alignment << row.order;
  }
}

TEST(FilterValues, QPlaysNoPartInSlopes) {
  for (const char* const alignment : {"Butterworth", "Bessel"}) {
    const auto one = FilterResponse({alignment, "Band Pass", 2, 1, 0.5, 200, 20});
    const auto other = FilterResponse({alignment, "Band Pass", 2, 1, 9, 200, 20});
    ASSERT_TRUE(one && other);
    EXPECT_EQ(one->db, other->db);
    EXPECT_EQ(one->degrees, other->degrees);
  }
}

TEST(FilterValues, ABandIsItsTwoSlopesTogether) {
  const auto low = FilterResponse({"Butterworth", "Low Pass", 2, 0, 1, 200, 20});
  const auto high = FilterResponse({"Butterworth", "Hi Pass", 2, 0, 1, 200, 20});
  const auto band = FilterResponse({"Butterworth", "Band Pass", 2, 0, 1, 200, 20});
  ASSERT_TRUE(low && high && band);
  for (std::size_t i = 0; i < 6827; ++i) {
    ASSERT_NEAR(band->db[i], low->db[i] + high->db[i] - 40, 1e-10) << i;
    ASSERT_NEAR(band->degrees[i], low->degrees[i] + high->degrees[i], 1e-10) << i;
  }
}

TEST(FilterValues, GainAndFortyMeetInSinglePrecision) {
  // 0.1 dB: the single nearest to 40.1 is 40.099998474121094. At 0.7324 Hz a low pass at 5 kHz takes nothing off.
  const auto curves = FilterResponse({"Butterworth", "Low Pass", 4, 0.1F, 1, 5000, 20});
  ASSERT_TRUE(curves);
  EXPECT_NEAR(curves->db[0], 40.099998474121094, 1e-13);
}

TEST(FilterValues, TheSweepIsThatOfTheBox) {
  const auto curves = FilterResponse({"Peaking", "Low Pass", 1, 3, 1, 100, 20});
  ASSERT_TRUE(curves);
  ASSERT_EQ(curves->x.size(), 6828U);
  for (std::size_t i = 0; i < 6827; ++i) ASSERT_EQ(curves->x[i], Sweep5k().x[i]);
}

}  // namespace
}  // namespace zefirondo
