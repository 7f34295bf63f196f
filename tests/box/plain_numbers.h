// Numbers on the screen written a second time, by printf: fifteen significant digits, of which seven characters stay.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace zefirondo::plain {

/// The leading number of a text, 0 without one.
inline double Read(const std::string& text) { return std::strtod(text.c_str(), nullptr); }

/// A positive number with fifteen significant digits, without an exponent and without zeros behind its last digit.
inline std::string Positional(double value) {
  char text[80];
  std::snprintf(text, sizeof text, "%.14e", value);
  const int exponent = std::atoi(std::string(text).substr(std::string(text).find('e') + 1).c_str());
  std::snprintf(text, sizeof text, "%.*f", std::max(0, 14 - exponent), value);
  std::string digits = text;
  if (digits.find('.') != std::string::npos) digits.erase(digits.find_last_not_of('0') + 1);
  if (digits.back() == '.') digits.pop_back();
  return digits;
}

/// As a field shows a number: cut and never rounded, millionths below 0.001, and the sign lost between -1 and 0.
inline std::string Shown(double value) {
  if (value == 0) return "0";
  std::string digits = Positional(std::fabs(value));
  const bool below_one = digits.substr(0, 2) == "0.";
  if (value < 0) return below_one ? digits.substr(0, 7) : ("-" + digits).substr(0, 7);
  if (digits.substr(0, 5) != "0.000") return digits.substr(0, 7);
  digits = digits.substr(2);
  digits.append(digits.size() < 6 ? 6 - digits.size() : 0, '0');
  std::string millionths = digits.substr(0, 6);
  millionths.erase(0, std::min(millionths.find_first_not_of('0'), millionths.size()));
  if (millionths.empty()) millionths = "0";
  if (digits.size() > 6) millionths += "." + digits.substr(6);
  return millionths.substr(0, 7) + "E-06";
}

/// Rounded to so many decimals, half to even, and shown.
inline std::string Rounded(double value, int decimals) {
  const double scale = std::pow(10.0, decimals);
  return Shown(std::nearbyint(value * scale) / scale);
}

}  // namespace zefirondo::plain
