// The desk calculator, key by key.
#include <gtest/gtest.h>

#include <string>

#include "support/desk.h"

namespace zefirondo {
namespace {

/// Presses the keys of a text: digits, "." the decimal mark, "+-X/=" the operators, "%", "C", and "E" for CE.
std::string Press(Desk& desk, const std::string& keys) {
  static const std::string kOperators = "+-X/=";
  for (const char key : keys) {
    const std::size_t place = kOperators.find(key);
    std::string name = "frmcalcolatrice.";
    if (place != std::string::npos) {
      name += "Operator(" + std::to_string(place) + ")";
    } else if (key == '.') {
      name += "Decimal";
    } else if (key == '%') {
      name += "Percent";
    } else if (key == 'C') {
      name += "Cancel";
    } else if (key == 'E') {
      name += "CancelEntry";
    } else {
      name += std::string("Number(") + key + ")";
    }
    desk.Click(name);
  }
  return desk.Text("frmcalcolatrice.Readout");
}

struct Sum {
  const char* keys;
  const char* readout;
};

class CalculatorKeys : public testing::TestWithParam<Sum> {};

TEST_P(CalculatorKeys, ShowTheResult) {
  Desk desk;
  desk.Begin();
  desk.Choose("mdithsm.mnucalcolatrice");
  EXPECT_EQ(Press(desk, GetParam().keys), GetParam().readout);
}

// Worked out by hand: the second minus of "5--3" is a sign, and "%" prepares a multiplication by a hundredth.
INSTANTIATE_TEST_SUITE_P(ByHand, CalculatorKeys,
                         testing::Values(Sum{"", "0."}, Sum{"12", "12."}, Sum{"1.5", "1.5"}, Sum{"2+3=", "5"},
                                         Sum{"9-4=", "5"}, Sum{"6X7=", "42"}, Sum{"8/5=", "1.6"}, Sum{"5--3=", "8"},
                                         Sum{"200X10%=", "20"}, Sum{"2+3X4=", "20"}, Sum{"12E", "0."},
                                         Sum{"12+3C", "0."}, Sum{"-5+7=", "2"}));

TEST(CalculatorDivision, ByZeroWarnsAndKeepsTheNumber) {
  Desk desk;
  desk.Begin();
  desk.Choose("mdithsm.mnucalcolatrice");
  EXPECT_EQ(Press(desk, "7/0="), "7");
  EXPECT_EQ(desk.TakeOut(), "message warning \"Calculator\" \"You can not divide by zero\" [OK] -> OK\n");
}

TEST(CalculatorWindow, OpenedTwiceIsTheSame) {
  Desk desk;
  desk.Begin();
  desk.Choose("mdithsm.mnucalcolatrice");
  Press(desk, "12");
  desk.Choose("mdithsm.mnucalcolatrice");
  EXPECT_EQ(desk.Text("frmcalcolatrice.Readout"), "12.");
}

}  // namespace
}  // namespace zefirondo
