#include "core/numbers.h"

#include <algorithm>
#include <array>
#include <cfenv>
#include <charconv>
#include <cmath>
#include <limits>

#include "core/run_time_error.h"

namespace zefirondo {
namespace {

constexpr double kDecimalLimit = 7.9228162514264338e28;  // the largest 96-bit integer
constexpr int kDecimalScale = 28;                        // its most decimals
constexpr int kSignificantDigits = 15;
constexpr std::size_t kShownCharacters = 7;
constexpr int kSmallestPlainPoint = -2;  // of 0.001: below it a positive number is shown in millionths

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// A number as the platform's scaled decimal type holds it: 0.`digits` × 10^`point`.
struct Decimal {
  bool negative = false;
  std::string digits;  // no zeros at either end; empty for 0
  int point = 0;       // how many digits stand before the point; may be negative
};

Decimal ToDecimal(double value) {
  if (!(std::fabs(value) < kDecimalLimit)) throw RunTimeError(ErrorNumber::Overflow);
  Decimal decimal;
  decimal.negative = std::signbit(value);
  value = std::fabs(value);
  if (value == 0.0) return decimal;

  std::array<char, 80> buffer{};
  char* const first = buffer.data();
  char* const last = first + buffer.size();
  const bool limited_by_scale = value < 1e-14;
  if (limited_by_scale) {  // fewer digits fit behind the point than are significant
    const char* const end = std::to_chars(first, last, value, std::chars_format::fixed, kDecimalScale).ptr;
    decimal.digits.assign(static_cast<const char*>(first) + 2, end);
    decimal.point = 0;
  } else {
    const char* const end =
        std::to_chars(first, last, value, std::chars_format::scientific, kSignificantDigits - 1).ptr;
    const char* const exponent = std::find(static_cast<const char*>(first), end, 'e');
    decimal.digits.assign(1, *first);
    decimal.digits.append(static_cast<const char*>(first) + 2, exponent);
    int power = 0;
    const char* const number = exponent + (exponent[1] == '+' ? 2 : 1);
    std::from_chars(number, end, power);
    decimal.point = power + 1;
  }
  decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
  const std::size_t leading = std::min(decimal.digits.find_first_not_of('0'), decimal.digits.size());
  decimal.digits.erase(0, leading);
  decimal.point -= static_cast<int>(leading);
  return decimal;
}

/// The plain text form: a blank or "-" first, no zero before the point, no exponent.
std::string TextForm(const Decimal& decimal) {
  std::string text(1, decimal.negative ? '-' : ' ');
  const int count = static_cast<int>(decimal.digits.size());
  if (decimal.point <= 0) {
    text += '.';
    text.append(static_cast<std::size_t>(-decimal.point), '0');
    text += decimal.digits;
  } else if (decimal.point >= count) {
    text += decimal.digits;
    text.append(static_cast<std::size_t>(decimal.point - count), '0');
  } else {
    text.append(decimal.digits, 0, static_cast<std::size_t>(decimal.point));
    text += '.';
    text.append(decimal.digits, static_cast<std::size_t>(decimal.point));
  }
  return text;
}

/// Cuts a text form to what the screen shows. A negative value with nothing before its point loses its sign
/// here, which is wanted.
std::string CutForScreen(const std::string& form) {
  if (form[1] == '.') return ("0" + form.substr(1, 20)).substr(0, kShownCharacters);
  if (form[0] == ' ') return form.substr(1, kShownCharacters);
  return form.substr(0, kShownCharacters);
}

/// Where the leading number of a text begins and ends, and how large it is by its digits alone.
struct NumberSpan {
  std::size_t begin = 0;
  std::size_t end = 0;
  bool negative = false;
  bool huge = false;  // what does not fit a double is too large, not too small
};

NumberSpan FindNumber(std::string_view text) {
  NumberSpan span;
  std::size_t at = text.find_first_not_of(" \t");
  if (at == std::string_view::npos) return span;
  if (text[at] == '+' || text[at] == '-') span.negative = text[at++] == '-';
  span.begin = at;

  bool point = false;
  bool digits = false;
  bool nonzero = false;
  long long magnitude = 0;  // power of ten of the first digit that is not zero
  for (; at < text.size(); ++at) {
    const char c = text[at];
    if (c == '.' && !point) {
      point = true;
    } else if (IsDigit(c)) {
      digits = true;
      nonzero = nonzero || c != '0';
      if (nonzero && !point) ++magnitude;
      if (!nonzero && point) --magnitude;
    } else {
      break;
    }
  }
  if (!digits) return NumberSpan{};
  span.end = at;

  long long power = 0;
  if (at < text.size() && (std::string_view("eEdD").find(text[at]) != std::string_view::npos)) {
    std::size_t tail = at + 1;
    const bool minus = tail < text.size() && text[tail] == '-';
    if (tail < text.size() && (text[tail] == '+' || text[tail] == '-')) ++tail;
    if (tail < text.size() && IsDigit(text[tail])) {
      for (; tail < text.size() && IsDigit(text[tail]); ++tail) {
        power = std::min(power * 10 + (text[tail] - '0'), 1'000'000'000LL);
      }
      if (minus) power = -power;
      span.end = tail;
    }
  }
  span.huge = magnitude + power > 0;
  return span;
}

}  // namespace

double ReadNumber(std::string_view text) {
  const NumberSpan span = FindNumber(text);
  if (span.end == span.begin) return 0.0;
  std::string number(text.substr(span.begin, span.end - span.begin));
  std::replace_if(
      number.begin(), number.end(), [](char c) { return c == 'd' || c == 'D'; }, 'e');
  double value = 0.0;
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
  if (error == std::errc::result_out_of_range) value = span.huge ? std::numeric_limits<double>::max() : 0.0;
  return span.negative ? -value : value;
}

std::string FormatNumber(double value) {
  Decimal decimal = ToDecimal(value);
  if (decimal.digits.empty()) return "0";
  // The exponent form serves positive values only, which is wanted.
  if (!decimal.negative && decimal.point < kSmallestPlainPoint) {
    decimal.point += 6;
    return CutForScreen(TextForm(decimal)) + "E-06";
  }
  return CutForScreen(TextForm(decimal));
}

std::string FormatNumberFull(double value) {
  const Decimal decimal = ToDecimal(value);
  if (decimal.digits.empty()) return "0";
  std::string form = TextForm(decimal);
  if (form[1] == '.') return "0" + form.substr(1);  // the sign is lost here too, as wanted
  return form[0] == ' ' ? form.substr(1) : form;
}

std::string PlainNumber(double value) {
  std::array<char, 40> buffer{};
  const auto end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, kSignificantDigits)
          .ptr;
  std::string text(buffer.data(), end);
  std::replace(text.begin(), text.end(), 'e', 'E');
  return text;
}

std::string FormatTwoDecimals(double value) {
  std::array<char, 400> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, 2).ptr;
  std::string text(buffer.data(), end);
  return text == "-0.00" ? "0.00" : text;
}

double Log10(double x) {
  if (!(x > 0.0)) throw LogarithmError();
  return std::log(x) / kLn10;
}

std::string CommaToPoint(std::string text) {
  if (const std::size_t comma = text.find(','); comma != std::string::npos) text[comma] = '.';
  return text;
}

std::string CleanLineBreaks(std::string text) {
  const std::size_t scanned = TrimBlanks(text).size();
  std::replace_if(
      text.begin(), text.begin() + static_cast<std::ptrdiff_t>(scanned), [](char c) { return c == '\r' || c == '\n'; },
      ' ');
  return text;
}

bool HasPoint(std::string_view text) { return text.find('.') != std::string_view::npos; }

std::string_view TrimBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

double RoundHalfEven(double value) { return std::nearbyint(value); }

double RoundHalfEven(double value, int decimals) {
  const double scale = std::pow(10.0, decimals);
  const double scaled = value * scale;
  return std::isfinite(scaled) ? std::nearbyint(scaled) / scale : value;
}

std::int16_t ToInteger(double value) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= std::numeric_limits<std::int16_t>::min() && rounded <= std::numeric_limits<std::int16_t>::max())) {
    throw RunTimeError(ErrorNumber::Overflow);
  }
  return static_cast<std::int16_t>(rounded);
}

double Divide(double a, double b) {
  if (b == 0.0) throw RunTimeError(ErrorNumber::DivisionByZero);
  return Finite(a / b);
}

double SquareRoot(double value) {
  if (value < 0.0) throw RunTimeError(ErrorNumber::InvalidArgument);
  return Finite(std::sqrt(value));
}

double Power(double base, double exponent) {
  if (base == 0.0 && exponent < 0.0) throw RunTimeError(ErrorNumber::DivisionByZero);
  const double value = std::pow(base, exponent);
  if (std::isnan(value)) throw RunTimeError(ErrorNumber::InvalidArgument);
  return Finite(value);
}

double Finite(double value) {
  if (!std::isfinite(value)) throw RunTimeError(ErrorNumber::Overflow);
  return value;
}

}  // namespace zefirondo
