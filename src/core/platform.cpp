#include "core/platform.h"

#include <algorithm>

namespace zefirondo {
namespace {

std::string Padded(int number, std::size_t width) {
  std::string digits = std::to_string(number);
  return digits.insert(0, width - std::min(width, digits.size()), '0');
}

}  // namespace

std::string DateText(const Date& date) {
  return Padded(date.day, 2) + "/" + Padded(date.month, 2) + "/" + Padded(date.year, 4);
}

}  // namespace zefirondo
