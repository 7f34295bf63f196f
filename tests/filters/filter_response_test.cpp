// Every filter formula against a second one: slopes from their attenuation, equalisers as quotients of complex
// polynomials, phases from their definition. Long double, over all points.
#include "filters/filter_response.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>

#include "core/run_time_error.h"

namespace zefirondo {
namespace {

using Complex = std::complex<long double>;

const long double kHalfPi = std::acos(-1.0L) / 2;

struct Reference {
  long double db = 40, radians = 0;
};

long double Attenuation(const FilterSettings& s, long double ratio) {
  const long double grown = s.alignment == "Bessel" ? std::pow(1 + ratio, static_cast<long double>(s.order))
                                                    : 1 + std::pow(ratio, 2.0L * s.order);
  return -10 * std::log10(grown);
}

Reference Slopes(const FilterSettings& s, long double f) {
  Reference r{s.gain + 40.0L, 0};
  const long double divisor = s.alignment == "Bessel" ? 2.0L : 1.4142L;
  const auto angle = [&](long double ratio) {  // of a slope's low-pass term, ratio = f / cutoff
    if (s.order == 1) return -std::atan(ratio);
    if (s.order == 2) return std::atan((1 / ratio - ratio) / divisor) - kHalfPi;
    return 0.0L;
  };
  if (s.type != "Hi Pass") {
    r.db += Attenuation(s, f / s.ft);
    r.radians += angle(f / s.ft);
  }
  if (s.type != "Low Pass") {
    r.db += Attenuation(s, s.fi / f);
    r.radians -= angle(s.fi / f);  // the mirror image
  }
  return r;
}

/// N and D are squared magnitudes of a + jb and c + jd; the phase of the quotient is folded as the program shows it.
Reference Shelf(const FilterSettings& s, long double f) {
  const bool low = s.type == "Low Pass";
  const long double w = f / (low ? s.ft : s.fi);
  const long double g = std::pow(10.0L, s.gain / 40.0L);
  const long double root = std::sqrt(g);
  const Complex n(low ? g * (g - w * w) : g * (1 - g * w * w), root * g * w / s.q);
  const Complex d(low ? 1 - g * w * w : g - w * w, root * w / s.q);
  Reference r;
  r.db += 20 * std::log10(std::abs(n) / std::abs(d));
  const Complex cross = n * std::conj(d);  // t + j·(b·c − a·d)
  const long double s_term = low ? -cross.imag() : cross.imag();
  if (s_term != 0) r.radians = (low ? 1 : -1) * (std::atan(cross.real() / s_term) - kHalfPi);
  return r;
}

Reference Peak(const FilterSettings& s, long double f) {
  const long double w = f / s.ft;
  const long double g = std::pow(10.0L, s.gain / 40.0L);
  const Complex quotient = Complex(1 - w * w, g * w / s.q) / Complex(1 - w * w, w / (s.q * g));
  return {40 + 20 * std::log10(std::abs(quotient)), std::arg(quotient)};
}

void ExpectReference(const FilterSettings& s, Reference (*reference)(const FilterSettings&, long double)) {
  SCOPED_TRACE(s.alignment + " " + s.type + " order " + std::to_string(s.order) + " gain " + std::to_string(s.gain) +
               " Q " + std::to_string(s.q));
  const auto curves = FilterResponse(s);
  ASSERT_TRUE(curves);
  ASSERT_EQ(curves->db.size(), 6828U);
  ASSERT_EQ(curves->x.size(), 6828U);
  ASSERT_EQ(curves->degrees.size(), 6828U);
  long double level = 0;
  long double phase = 0;
  for (std::size_t i = 0; i < 6827; ++i) {
    const long double f = 0.7324L * static_cast<long double>(i + 1);
    const Reference wanted = reference(s, f);
    level = std::max({level, std::fabs(curves->db[i] - wanted.db), std::fabs(curves->x[i] - 20 * std::log10(f))});
    phase = std::max(phase, std::fabs(curves->degrees[i] - wanted.radians * 90 / kHalfPi));
  }
  EXPECT_LT(level, 1e-7L);
  EXPECT_LT(phase, 1e-6L);
  EXPECT_EQ(curves->x[6827], 0.0);
  EXPECT_EQ(curves->db[6827], 0.0);
  EXPECT_EQ(curves->degrees[6827], 0.0);
}

TEST(FilterResponse, SlopesEqualTheReference) {
  for (const char* const alignment : {"Butterworth", "Bessel"}) {
    for (const char* const type : {"Low Pass", "Hi Pass", "Band Pass"}) {
      for (std::int16_t order = 1; order <= 4; ++order) {
        for (const float gain : {-7.0F, 0.0F, 4.5F}) {
          ExpectReference({alignment, type, order, gain, 3, 180.0F, 35.0F}, Slopes);
        }
      }
    }
  }
}

TEST(FilterResponse, ShelvesEqualTheReference) {
  for (const char* const type : {"Low Pass", "Hi Pass"}) {
    for (const float gain : {-10.0F, -3.0F, 6.0F}) {
      for (const double q : {0.5, 0.707, 4.0}) {
        ExpectReference({"Shelving", type, 2, gain, q, 120.0F, 60.0F}, Shelf);
      }
    }
  }
}

TEST(FilterResponse, PeaksEqualTheReferenceWithAnyType) {
  for (const char* const type : {"Low Pass", "Hi Pass", "Band Pass", "anything"}) {
    for (const float gain : {-10.0F, 2.0F, 9.0F}) {
      for (const double q : {0.5, 2.0, 10.0}) {
        ExpectReference({"Peaking", type, 2, gain, q, 47.0F, 60.0F}, Peak);
      }
    }
  }
}

TEST(FilterResponse, EqualisersWithoutGainAreExactlyFlat) {
  for (const auto& [alignment, type] :
       {std::pair{"Shelving", "Low Pass"}, {"Shelving", "Hi Pass"}, {"Peaking", "Low Pass"}}) {
    for (const double q : {0.5, 0.707, 3.0}) {
      const auto curves = FilterResponse({alignment, type, 2, 0.0F, q, 120.0F, 60.0F});
      ASSERT_TRUE(curves);
      for (std::size_t i = 0; i < 6827; ++i) {
        ASSERT_EQ(curves->db[i], 40.0) << alignment << " " << i;
        ASSERT_EQ(curves->degrees[i], 0.0) << alignment << " " << i;
      }
    }
  }
}

TEST(FilterResponse, FirstOrderIsThreeDecibelDownAtItsCutoff) {
  // 40 + 6 − 10 log10(2), and atan(1) − π/2.
  const auto curves = FilterResponse({"Butterworth", "Low Pass", 1, 6.0F, 1, 0.7324F, 20});
  ASSERT_TRUE(curves);
  EXPECT_NEAR(curves->db.front(), 46 - 3.0103, 1e-5);
  EXPECT_NEAR(curves->degrees.front(), -45, 1e-5);
}

TEST(FilterResponse, ThirdAndFourthOrderHaveNoPhase) {
  for (const char* const alignment : {"Butterworth", "Bessel"}) {
    for (const auto order : {std::int16_t{3}, std::int16_t{4}}) {
      const auto curves = FilterResponse({alignment, "Band Pass", order, 3, 1, 80, 20});
      ASSERT_TRUE(curves);
      EXPECT_TRUE(std::all_of(curves->degrees.begin(), curves->degrees.end(), [](double d) { return d == 0.0; }));
    }
  }
}

TEST(FilterResponse, OtherCombinationsComputeNothing) {
  EXPECT_FALSE(FilterResponse({"Shelving", "Band Pass", 2, 0, 1, 80, 20}));
  EXPECT_FALSE(FilterResponse({"Butterworth", "", 2, 0, 1, 80, 20}));
  EXPECT_FALSE(FilterResponse({"Chebyshev", "Low Pass", 2, 0, 1, 80, 20}));
}

ErrorNumber FailureOf(const FilterSettings& settings) {
  try {
    (void)FilterResponse(settings);
  } catch (const RunTimeError& error) {
    return static_cast<ErrorNumber>(error.number());
  } catch (const LogarithmError&) {
    ADD_FAILURE() << "the logarithm failed before the arithmetic was looked at";
  }
  return ErrorNumber{};
}

TEST(FilterResponse, ZeroFrequenciesAndQsAreDivisionsByZero) {
  for (const FilterSettings& settings :
       {FilterSettings{"Butterworth", "Low Pass", 2, 0, 1, 0, 20},
        FilterSettings{"Butterworth", "Low Pass", 4, 0, 1, 0, 20}, FilterSettings{"Bessel", "Low Pass", 1, 0, 1, 0, 20},
        FilterSettings{"Butterworth", "Hi Pass", 1, 0, 1, 50, 0}, FilterSettings{"Bessel", "Hi Pass", 2, 0, 1, 50, 0},
        FilterSettings{"Shelving", "Low Pass", 2, 0, 1, 0, 20}, FilterSettings{"Shelving", "Hi Pass", 2, 0, 1, 50, 0},
        FilterSettings{"Peaking", "Low Pass", 2, 0, 1, 0, 20},
        FilterSettings{"Peaking", "Low Pass", 2, 0, 0, 50, 20}}) {
    EXPECT_EQ(FailureOf(settings), ErrorNumber::DivisionByZero) << settings.alignment << " " << settings.type;
  }
}

TEST(FilterResponse, ASteepHighPassFromZeroDividesByNothing) {
  // Only the phases of the first two orders divide by the lower cutoff.
  const auto curves = FilterResponse({"Butterworth", "Hi Pass", 3, 0, 1, 50, 0});
  ASSERT_TRUE(curves);
  EXPECT_EQ(curves->db[100], 40.0);
}

TEST(FilterResponse, AGainBeyondAllNumbersOverflows) {
  EXPECT_EQ(FailureOf({"Peaking", "Low Pass", 2, 1e6F, 1, 50, 20}), ErrorNumber::Overflow);
  EXPECT_EQ(FailureOf({"Shelving", "Hi Pass", 2, 1e6F, 1, 50, 20}), ErrorNumber::Overflow);
}

}  // namespace
}  // namespace zefirondo
