// Reading and showing numbers, and the arithmetic that fails instead of giving infinities.
//
// Every number that a user sees passes through `FormatNumber`, and later calculations read that text back:
// seven characters are the working precision of a value that goes from one step to another through a field.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zefirondo {

/// π and 2π as every formula of the program uses them.
inline constexpr double kPi = 3.14159265358979;
inline constexpr double kTwoPi = 6.28318530717958;

/// Reads the longest leading number of `text`: blanks, a sign, digits with one point, an exponent (E or D).
/// Stops at the first character that does not fit; gives 0 where there is no number. Never fails: what is too
/// large for a double gives the largest one.
[[nodiscard]] double ReadNumber(std::string_view text);

/// The text of a number on the screen: at most seven characters, cut and never rounded, or with "E-06" behind
/// it for a positive value below 0.001. Throws `RunTimeError` (overflow) above 7.9E+28.
[[nodiscard]] std::string FormatNumber(double value);

/// The text of a number in files: 15 significant digits, no exponent. Throws as `FormatNumber`.
[[nodiscard]] std::string FormatNumberFull(double value);

/// The text of a number as the system prints a double: up to 15 digits, a point, no blanks around it.
[[nodiscard]] std::string PlainNumber(double value);

/// A number in the pattern "#####0.00" of the plots' read-outs.
[[nodiscard]] std::string FormatTwoDecimals(double value);

/// Decimal logarithm as ln(x) / ln(10). Throws `LogarithmError` for x <= 0.
[[nodiscard]] double Log10(double x);

/// ln(10), the divisor of `Log10`.
inline constexpr double kLn10 = 2.302585092994045684;

/// Replaces the first "," of the text by ".".
[[nodiscard]] std::string CommaToPoint(std::string text);

/// Replaces carriage returns and line feeds by blanks. Scans as many characters as the text has without its
/// outer blanks, counted from the first one: with outer blanks the last characters stay unscanned, as wanted.
[[nodiscard]] std::string CleanLineBreaks(std::string text);

/// Whether the text holds a point.
[[nodiscard]] bool HasPoint(std::string_view text);

/// The text without leading and trailing blanks.
[[nodiscard]] std::string_view TrimBlanks(std::string_view text);

/// Rounds half to even, to an integer or to a number of decimals.
[[nodiscard]] double RoundHalfEven(double value);
[[nodiscard]] double RoundHalfEven(double value, int decimals);

/// Rounds half to even into a 16-bit integer. Throws `RunTimeError` (overflow) outside its range.
[[nodiscard]] std::int16_t ToInteger(double value);

/// a / b. Throws `RunTimeError`: division by zero for b = 0, overflow where the result has no double.
[[nodiscard]] double Divide(double a, double b);

/// Square root. Throws `RunTimeError` (invalid argument) for a negative value.
[[nodiscard]] double SquareRoot(double value);

/// base ^ exponent. Throws `RunTimeError`: invalid argument or overflow.
[[nodiscard]] double Power(double base, double exponent);

/// The value itself. Throws `RunTimeError` (overflow) when it is infinite or no number.
double Finite(double value);

}  // namespace zefirondo
