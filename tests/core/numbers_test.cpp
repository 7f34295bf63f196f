// Reading and showing numbers. The expected texts of `FormatNumber` follow from its rule by hand: the plain text
// form has a blank or "-" first and no zero before the point; a form whose second character is the point loses its
// first character and gains a "0"; seven characters are left.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "core/events.h"
#include "core/numbers.h"
#include "core/run_time_error.h"
#include "support/desk.h"

namespace zefirondo {
namespace {

struct Reading {
  const char* text;
  double value;
};

class ReadNumberOf : public testing::TestWithParam<Reading> {};

TEST_P(ReadNumberOf, GivesTheLongestLeadingNumber) { EXPECT_EQ(ReadNumber(GetParam().text), GetParam().value); }

INSTANTIATE_TEST_SUITE_P(Texts, ReadNumberOf,
                         testing::Values(Reading{"", 0}, Reading{"   ", 0}, Reading{"abc", 0}, Reading{"-", 0},
                                         Reading{".", 0}, Reading{"+.", 0}, Reading{"e5", 0}, Reading{"35", 35},
                                         Reading{"  35", 35}, Reading{"35  ", 35}, Reading{"+4.5", 4.5},
                                         Reading{"-4.5", -4.5}, Reading{".5", 0.5}, Reading{"5.", 5},
                                         Reading{"-.25", -0.25}, Reading{"1,5", 1}, Reading{",5", 0},
                                         Reading{"1.5.2", 1.5}, Reading{"12abc", 12}, Reading{"1.40(0%)", 1.4},
                                         Reading{"1.62  1  0.62", 1.62}, Reading{"2e3", 2000}, Reading{"2E3", 2000},
                                         Reading{"2d3", 2000}, Reading{"2D3", 2000}, Reading{"2E+3", 2000},
                                         Reading{"25e-1", 2.5}, Reading{"25D-1x", 2.5}, Reading{"7e", 7},
                                         Reading{"7e+", 7}, Reading{"7ex", 7}, Reading{"0007", 7},
                                         Reading{"123.456E-06", 0.000123456}, Reading{"Troppo corto", 0}));

TEST(ReadNumber, NeverFails) {
  EXPECT_EQ(ReadNumber("1e999"), std::numeric_limits<double>::max());
  EXPECT_EQ(ReadNumber("-1e999"), -std::numeric_limits<double>::max());
  EXPECT_EQ(ReadNumber(std::string(400, '9')), std::numeric_limits<double>::max());
  EXPECT_EQ(ReadNumber("1e-999"), 0.0);
  EXPECT_EQ(ReadNumber("0." + std::string(400, '0') + "1"), 0.0);
  EXPECT_EQ(ReadNumber("1e99999999999999999999"), std::numeric_limits<double>::max());
}

struct Shown {
  double value;
  const char* text;
};

class FormatNumberOf : public testing::TestWithParam<Shown> {};

TEST_P(FormatNumberOf, CutsAtSevenCharacters) { EXPECT_EQ(FormatNumber(GetParam().value), GetParam().text); }

INSTANTIATE_TEST_SUITE_P(WorkedNumbers, FormatNumberOf,
                         testing::Values(Shown{0, "0"}, Shown{346.03116, "346.031"}, Shown{0.35, "0.35"},
                                         Shown{0.123456789, "0.12345"}, Shown{1234.56789, "1234.56"},
                                         Shown{12345678.9, "1234567"}, Shown{0.0009, "900E-06"},
                                         Shown{0.000123456789, "123.456E-06"}, Shown{0.0000005, "0.5E-06"},
                                         Shown{-12.3456, "-12.345"}, Shown{-0.5, "0.5"}, Shown{-0.0001, "0.0001"}));

INSTANTIATE_TEST_SUITE_P(Edges, FormatNumberOf,
                         testing::Values(Shown{0.001, "0.001"}, Shown{0.00099999, "999.99E-06"}, Shown{-0.0, "0"},
                                         Shown{7, "7"}, Shown{1000000, "1000000"}, Shown{123456.78, "123456."},
                                         Shown{99999.99, "99999.9"}, Shown{-1234567.8, "-123456"},
                                         Shown{2e28, "2000000"}, Shown{1e-10, "0.0001E-06"},
                                         Shown{1e-20, "0.00000E-06"}, Shown{1e-40, "0"}, Shown{-1e-40, "0"},
                                         Shown{-0.1234567, "0.12345"}, Shown{-1.5, "-1.5"}, Shown{1.0 / 3, "0.33333"},
                                         Shown{0.1 + 0.2, "0.3"},
                                         // 15 significant digits make it 0.001, which is not below 0.001.
                                         Shown{0.00099999999999999980, "0.001"}));

TEST(FormatNumber, ShowsAtMostElevenCharacters) {
  for (double value = 1.23456789e-9; value < 1e20; value *= 7.3) {
    const std::string text = FormatNumber(value);
    const bool millionths = text.ends_with("E-06");
    EXPECT_EQ(millionths, value < 0.001) << value;
    EXPECT_LE(text.size(), millionths ? 11U : 7U) << value;
  }
}

TEST(FormatNumber, ItsExponentTextReadsBack) { EXPECT_EQ(ReadNumber(FormatNumber(0.000123456)), 0.000123456); }

TEST(FormatNumber, FailsAboveTheDecimalRange) {
  for (const double value : {8e28, -8e28, 1e300, std::numeric_limits<double>::infinity()}) {
    try {
      static_cast<void>(FormatNumber(value));
      ADD_FAILURE() << value;
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.number(), 6);
    }
    EXPECT_THROW(static_cast<void>(FormatNumberFull(value)), RunTimeError);
  }
  EXPECT_EQ(FormatNumber(7.9e28), "7900000");
}

class FormatNumberFullOf : public testing::TestWithParam<Shown> {};

TEST_P(FormatNumberFullOf, KeepsFifteenDigitsWithoutExponent) {
  EXPECT_EQ(FormatNumberFull(GetParam().value), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Values, FormatNumberFullOf,
                         testing::Values(Shown{0, "0"}, Shown{35, "35"}, Shown{-35.5, "-35.5"}, Shown{0.35, "0.35"},
                                         Shown{-0.35, "0.35"}, Shown{0.000123456789, "0.000123456789"},
                                         Shown{1.0 / 3, "0.333333333333333"}, Shown{2.0 / 3, "0.666666666666667"},
                                         Shown{1.40082347812345678, "1.40082347812346"},
                                         Shown{123456789012345678.0, "123456789012346000"},
                                         Shown{1e20, "100000000000000000000"}, Shown{1e-10, "0.0000000001"},
                                         Shown{-1234567890.125, "-1234567890.125"}));

TEST(Log10, IsTheQuotientOfNaturalLogarithms) {
  EXPECT_EQ(Log10(1), 0.0);
  EXPECT_NEAR(Log10(1000), 3.0, 1e-15);
  EXPECT_NEAR(Log10(0.01), -2.0, 1e-15);
  EXPECT_NEAR(Log10(2), 0.30102999566398120, 1e-16);
}

TEST(Log10, OfAValueThatIsNotPositiveEndsTheProgram) {
  for (const double value : {0.0, -1.0, std::nan("")}) {
    Desk desk;
    desk.BeginParameters();
    desk.state.ProjectModified = true;  // nothing is asked, and nothing saved
    RunEvent(desk.program, [&] { static_cast<void>(Log10(value)); });
    EXPECT_EQ(desk.TakeOut(),
              "message stop \"Error\" \"Error, logarithm of a number less than or equal to zero\" [OK] -> OK\n"
              "ended error\n");
    EXPECT_EQ(desk.program.run, RunState::EndedByFailure);
  }
}

TEST(RunTimeFailure, ThatNothingCatchesShowsItsTextAndEnds) {
  Desk desk;
  desk.BeginParameters();
  RunEvent(desk.program, [] { static_cast<void>(FormatNumber(8e28)); });
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Overflow\" [OK] -> OK\nended error\n");
}

TEST(CommaToPoint, ReplacesTheFirstCommaOnly) {
  EXPECT_EQ(CommaToPoint("1,5"), "1.5");
  EXPECT_EQ(CommaToPoint("1,5,2"), "1.5,2");
  EXPECT_EQ(CommaToPoint("1.5"), "1.5");
  EXPECT_EQ(CommaToPoint(""), "");
}

TEST(CleanLineBreaks, MakesBlanksOfThem) {
  EXPECT_EQ(CleanLineBreaks("one\r\ntwo\nthree"), "one  two three");
  EXPECT_EQ(CleanLineBreaks(""), "");
}

TEST(CleanLineBreaks, ScansOnlyAsManyCharactersAsTheTrimmedTextHas) {
  // "  a\nb\nc" has 7 characters, 5 of them without the outer blanks: the break at index 5 stays.
  EXPECT_EQ(CleanLineBreaks("  a\nb\nc"), "  a b\nc");
  // Trailing blanks shorten the scan too: "ab" + "\n" + "c" has 4 of its 7 characters, which reaches the break.
  EXPECT_EQ(CleanLineBreaks("ab\nc   "), "ab c   ");
}

TEST(HasPoint, LooksForAPointOnly) {
  EXPECT_TRUE(HasPoint("1.5"));
  EXPECT_TRUE(HasPoint("."));
  EXPECT_FALSE(HasPoint("1,5"));
  EXPECT_FALSE(HasPoint(""));
}

TEST(Rounding, GoesHalfToEven) {
  EXPECT_EQ(RoundHalfEven(0.5), 0.0);
  EXPECT_EQ(RoundHalfEven(1.5), 2.0);
  EXPECT_EQ(RoundHalfEven(2.5), 2.0);
  EXPECT_EQ(RoundHalfEven(-2.5), -2.0);
  EXPECT_EQ(RoundHalfEven(2.500001), 3.0);
  EXPECT_EQ(RoundHalfEven(0.25, 1), 0.2);
  EXPECT_EQ(RoundHalfEven(0.75, 1), 0.8);
  EXPECT_EQ(RoundHalfEven(12.125, 2), 12.12);
  EXPECT_EQ(RoundHalfEven(12.375, 2), 12.38);
}

TEST(Rounding, IntoAnIntegerOfSixteenBits) {
  EXPECT_EQ(ToInteger(2.5), 2);
  EXPECT_EQ(ToInteger(3.5), 4);
  EXPECT_EQ(ToInteger(32767.4), 32767);
  EXPECT_EQ(ToInteger(-32768.5), -32768);  // half to even
  EXPECT_THROW(static_cast<void>(ToInteger(32767.5)), RunTimeError);
  EXPECT_THROW(static_cast<void>(ToInteger(-32769)), RunTimeError);
}

int NumberOf(const std::function<void()>& act) {
  try {
    act();
  } catch (const RunTimeError& error) {
    return error.number();
  }
  return 0;
}

TEST(Arithmetic, FailsWithTheClassicNumbers) {
  EXPECT_EQ(NumberOf([] { static_cast<void>(Divide(1, 0)); }), 11);
  EXPECT_EQ(NumberOf([] { static_cast<void>(Divide(1e300, 1e-300)); }), 6);
  EXPECT_EQ(NumberOf([] { static_cast<void>(SquareRoot(-1)); }), 5);
  EXPECT_EQ(NumberOf([] { static_cast<void>(Power(-2, 0.5)); }), 5);
  EXPECT_EQ(NumberOf([] { static_cast<void>(Power(1e300, 2)); }), 6);
  EXPECT_EQ(NumberOf([] { static_cast<void>(Power(0, -1)); }), 11);
  EXPECT_EQ(Divide(7, 2), 3.5);
  EXPECT_EQ(SquareRoot(9), 3.0);
  EXPECT_EQ(Power(2, 10), 1024.0);
}

TEST(Pi, IsTheOneOfEveryFormula) {
  EXPECT_EQ(kPi, 3.14159265358979);
  EXPECT_EQ(kTwoPi, 6.28318530717958);
}

TEST(FormatTwoDecimals, ShowsTwoDecimalsAlways) {
  EXPECT_EQ(FormatTwoDecimals(0), "0.00");
  EXPECT_EQ(FormatTwoDecimals(-0.001), "0.00");
  EXPECT_EQ(FormatTwoDecimals(1234.567), "1234.57");
  EXPECT_EQ(FormatTwoDecimals(-3.14159), "-3.14");
}

}  // namespace
}  // namespace zefirondo
