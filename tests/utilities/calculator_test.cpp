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

// The mark stands behind a whole number; a second one changes nothing, and leading zeros stay as keyed.
INSTANTIATE_TEST_SUITE_P(Entry, CalculatorKeys,
                         testing::Values(Sum{".", "."}, Sum{".5", ".5"}, Sum{"1.5.2", "1.52"}, Sum{"007", "007."},
                                         Sum{"12.", "12."}, Sum{"1.0625", "1.0625"}, Sum{"0.5X4=", "2"}));

INSTANTIATE_TEST_SUITE_P(Signs, CalculatorKeys,
                         testing::Values(Sum{"-", "-0."}, Sum{"-5", "-5."}, Sum{"-.5", "-.5"}, Sum{"5-", "5."},
                                         Sum{"5--", "-"}, Sum{"5--.25=", "5.25"}, Sum{"3X-4=", "-12"},
                                         Sum{"8/-2=", "-4"}, Sum{"-2X-3=", "6"},
                                         // behind "=" a minus is no sign
                                         Sum{"2+3=-1=", "4"}));

INSTANTIATE_TEST_SUITE_P(Chains, CalculatorKeys,
                         testing::Values(Sum{"2+3=7=", "7"}, Sum{"2+3==", "5"}, Sum{"10-2-3=", "5"}, Sum{"2+3+", "5"},
                                         Sum{"7/2X4=", "14"}, Sum{"5+X3=", "15"}, Sum{"9=", "9."}));

INSTANTIATE_TEST_SUITE_P(Percents, CalculatorKeys,
                         testing::Values(Sum{"50%", "0.5"}, Sum{"50%X4=", "2"}, Sum{"200X10%", "0.1"},
                                         Sum{"200+10%=", "20"}, Sum{"8%", "0.08"}));

// CE takes back the number being keyed, and C everything.
INSTANTIATE_TEST_SUITE_P(TakenBack, CalculatorKeys,
                         testing::Values(Sum{"12+5E3=", "15"}, Sum{"12+5E", "0."}, Sum{"1.5E2", "2."},
                                         Sum{"12+5C3=", "3."}, Sum{"-C5", "5."}));

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

TEST(CalculatorDivision, ByZeroWarnsInItalian) {
  Desk desk(Language::Italian);
  desk.Begin();
  desk.Choose("mdithsm.mnucalcolatrice");
  EXPECT_EQ(Press(desk, "7/0+1="), "8");
  EXPECT_EQ(desk.TakeOut(), "message warning \"Calcolatrice\" \"Impossibile dividere per zero\" [OK] -> OK\n");
}

// Numbers too large for the machine end the program, like any failure of the arithmetic.
TEST(CalculatorOverflow, EndsTheProgram) {
  const std::string huge(309, '9');
  for (const std::string& keys : {huge + "X" + huge + "=", huge + "+" + huge + "=", huge + "--" + huge + "="}) {
    Desk desk;
    desk.Begin();
    desk.Choose("mdithsm.mnucalcolatrice");
    Press(desk, keys);
    EXPECT_EQ(desk.program.run, RunState::EndedByFailure);
    EXPECT_NE(desk.TakeOut().find("\"Overflow\""), std::string::npos);
  }
}

TEST(CalculatorState, FollowsTheKeys) {
  Desk desk;
  desk.Begin();
  desk.Choose("mdithsm.mnucalcolatrice");
  const Calculator& form = desk.program.windows.frmcalcolatrice;
  EXPECT_EQ(form.LastInput, "NESSUNO");
  EXPECT_EQ(form.OpFlag, " ");
  EXPECT_EQ(form.NumOps, 0);
  EXPECT_FALSE(form.DecimalFlag);
  Press(desk, "1.5");
  EXPECT_EQ(form.LastInput, "NUM");
  EXPECT_TRUE(form.DecimalFlag);
  Press(desk, "X");
  EXPECT_EQ(form.LastInput, "OP");
  EXPECT_EQ(form.OpFlag, "X");
  EXPECT_EQ(form.NumOps, 1);
  EXPECT_EQ(form.Op1, 1.5);
  EXPECT_EQ(form.TempReadout, "1.5");
  Press(desk, "-");
  EXPECT_EQ(form.LastInput, "NEG");
  EXPECT_EQ(form.OpFlag, "X");
  Press(desk, "4");
  EXPECT_FALSE(form.DecimalFlag);
  Press(desk, "%");
  EXPECT_EQ(form.OpFlag, "%");
  EXPECT_EQ(form.NumOps, 2);
  EXPECT_TRUE(form.DecimalFlag);
  Press(desk, "E");
  EXPECT_EQ(form.LastInput, "CE");
  Press(desk, "C");
  EXPECT_EQ(form.LastInput, "NESSUNO");
  EXPECT_EQ(form.OpFlag, " ");
  EXPECT_EQ(form.NumOps, 0);
  EXPECT_EQ(form.Op1, 0);
  EXPECT_EQ(form.Op2, 0);
}

TEST(CalculatorWindow, StartsAnewWhenItWasClosed) {
  Desk desk;
  desk.Begin();
  desk.Choose("mdithsm.mnucalcolatrice");
  Press(desk, "12+3");
  desk.Choose("frmcalcolatrice.mnuchiudi");
  EXPECT_FALSE(desk.program.windows.frmcalcolatrice.window.open);
  desk.Choose("mdithsm.mnucalcolatrice");
  EXPECT_EQ(Press(desk, ""), "0.");
  EXPECT_EQ(Press(desk, "4="), "4.");
}

TEST(CalculatorWindow, StandsInTheMiddleOfTheFrame) {
  Desk desk;
  desk.Begin();
  desk.Choose("mdithsm.mnucalcolatrice");
  const Window& window = desk.program.windows.frmcalcolatrice.window;
  const Window& frame = desk.program.windows.mdithsm.window;
  EXPECT_EQ(window.left * 2 + window.width, frame.width);
  EXPECT_EQ(window.top * 2 + window.height, frame.height);
}

TEST(CalculatorWindow, HasItsWords) {
  for (const Language language : {Language::English, Language::Italian}) {
    Desk desk(language);
    desk.Begin();
    desk.Choose("mdithsm.mnucalcolatrice");
    const bool english = language == Language::English;
    EXPECT_EQ(desk.program.windows.frmcalcolatrice.window.caption, english ? "Calculator" : "Calcolatrice");
    EXPECT_EQ(desk.Text("frmcalcolatrice.mnuchiudi"), english ? "&Close" : "&Chiudi");
    for (int digit = 0; digit < 10; ++digit) {
      EXPECT_EQ(desk.Text("frmcalcolatrice.Number(" + std::to_string(digit) + ")"), std::to_string(digit));
    }
    const std::vector<std::string> operators{"+", "-", "X", "/", "="};
    for (std::size_t i = 0; i < operators.size(); ++i) {
      EXPECT_EQ(desk.Text("frmcalcolatrice.Operator(" + std::to_string(i) + ")"), operators[i]);
    }
    EXPECT_EQ(desk.Text("frmcalcolatrice.CancelEntry"), "CE");
    EXPECT_EQ(desk.Text("frmcalcolatrice.Decimal"), ".");  // the mark that the display shows
  }
}

TEST(CalculatorWindow, HasNoLinkToTheProject) {
  Desk desk;
  desk.DesignVented();
  desk.state.ProjectModified = false;
  desk.Choose("frmgrafcassa.mnucalcolatrice");
  Press(desk, "2+3=");
  EXPECT_FALSE(desk.state.ProjectModified);
}

}  // namespace
}  // namespace zefirondo
