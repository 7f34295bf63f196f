// The second writing of the shown numbers, against figures cut by hand.
#include "box/plain_numbers.h"

#include <gtest/gtest.h>

namespace zefirondo {
namespace {

TEST(PlainNumbers, CutSevenCharacters) {
  const std::pair<double, const char*> rows[] = {{0, "0"},
                                                 {346.03116, "346.031"},
                                                 {0.35, "0.35"},
                                                 {0.123456789, "0.12345"},
                                                 {1234.56789, "1234.56"},
                                                 {0.0009, "900E-06"},
                                                 {12345678.9, "1234567"},
                                                 {5e-7, "0.5E-06"},
                                                 {0.000123456789, "123.456E-06"},
                                                 {-12.3456, "-12.345"},
                                                 {-0.5, "0.5"},
                                                 {-0.0001, "0.0001"},
                                                 {0.001, "0.001"},
                                                 {0.00099999, "999.99E-06"},
                                                 {100, "100"}};
  for (const auto& [value, text] : rows) EXPECT_EQ(plain::Shown(value), text);
  EXPECT_EQ(plain::Rounded(20.25, 1), "20.2");
  EXPECT_EQ(plain::Rounded(7.7691297, 2), "7.77");
  EXPECT_EQ(plain::Read("Troppo corto"), 0);
}

}  // namespace
}  // namespace zefirondo
