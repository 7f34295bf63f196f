// The small window that adds a delay to one of two phase curves.
#include "filters/phase_desk.h"

namespace zefirondo {
namespace {

constexpr int kWhite = 16777215;
constexpr int kGrey = 14737632;
constexpr const char* kNotZero = "message stop \"Error\" \"Please enter a non zero value\" [OK] -> OK\n";

// 2.5 ms are 9 degrees for each 10 Hz; what falls below -180 comes up a turn.
const Curve kBlackLater{-69, -138, 158, 139, 75, 0};
const Curve kMagentaLater{-39, -78, -117, -156, 165, 0};

class DelayEntryWindow : public testing::Test {
 protected:
  DelayEntryWindow() { desk.OpenDelay(); }

  void Add(const char* option, const char* field, const char* milliseconds) {
    desk.Click(std::string("frmsommadelay.") + option);
    desk.Set(std::string("frmsommadelay.") + field, milliseconds);
    desk.Click("frmsommadelay.cmdsfasadelay");
  }
  PhaseDesk desk;
  DelayEntry& form = desk.delay;
  ProjectState& s = desk.state;
};

TEST_F(DelayEntryWindow, OpensForTheMagentaCurveWithTheDelayFound) {
  EXPECT_TRUE(form.opt2.checked);
  EXPECT_FALSE(form.opt1.checked);
  EXPECT_EQ(*form.txtfase2.text, "6.66666");  // 60 degrees at 25 Hz
  EXPECT_EQ(*form.txtfase1.text, "");
  EXPECT_TRUE(form.txtfase2.enabled);
  EXPECT_FALSE(form.txtfase1.enabled);
  EXPECT_EQ(form.txtfase2.back, kWhite);
  EXPECT_EQ(form.txtfase1.back, kGrey);
  EXPECT_TRUE(form.cmdsfasadelay.enabled);
  EXPECT_FALSE(form.cmdannulla.enabled);
}

TEST_F(DelayEntryWindow, MovesTheDelayToTheFieldOfTheCurveChosen) {
  desk.Click("frmsommadelay.opt1");
  EXPECT_FALSE(form.opt2.checked);
  EXPECT_TRUE(form.txtfase1.enabled);
  EXPECT_EQ(form.txtfase1.back, kWhite);
  EXPECT_EQ(*form.txtfase1.text, "6.66666");
  EXPECT_FALSE(form.txtfase2.enabled);
  EXPECT_EQ(form.txtfase2.back, kGrey);
  EXPECT_EQ(*form.txtfase2.text, "");
  desk.Set("frmsommadelay.txtfase1", "2.5");
  desk.Click("frmsommadelay.opt2");
  EXPECT_EQ(*form.txtfase2.text, "2.5");
  EXPECT_EQ(*form.txtfase1.text, "");
}

TEST_F(DelayEntryWindow, TakesATypedDelayOnLeavingTheField) {
  desk.Set("frmsommadelay.txtfase2", "3.25");
  EXPECT_DOUBLE_EQ(s.DelayMs, 60 / 9.0);
  desk.Leave();
  EXPECT_EQ(s.DelayMs, 3.25);
  desk.Set("frmsommadelay.txtfase2", "");  // an empty field leaves it
  desk.Leave();
  EXPECT_EQ(s.DelayMs, 3.25);
}

TEST_F(DelayEntryWindow, KeepsTheDelayFoundInFullUntilItsFieldWasVisited) {
  desk.Click("frmsommadelay.cmdsfasadelay");
  EXPECT_DOUBLE_EQ(s.DelayMs, 60 / 9.0);
}

TEST_F(DelayEntryWindow, RefusesZeroInBothFields) {
  desk.Set("frmsommadelay.txtfase2", "0");
  EXPECT_EQ(desk.Leave().held, &form.txtfase2);
  EXPECT_EQ(desk.TakeOut(), kNotZero);
  desk.Set("frmsommadelay.txtfase2", "1");
  desk.Click("frmsommadelay.opt1");
  desk.Set("frmsommadelay.txtfase1", "0.000");
  EXPECT_EQ(desk.Click("frmsommadelay.cmdsfasadelay").held, &form.txtfase1);
  EXPECT_EQ(desk.TakeOut(), kNotZero);
  EXPECT_EQ(s.DelayMs, 1);
}

TEST_F(DelayEntryWindow, FiltersTheKeysOfTheMagentaFieldAlone) {
  desk.Type("frmsommadelay.txtfase2", "1-5");
  EXPECT_EQ(*form.txtfase2.text, "15");
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Warning: Inputs must be a number\" [OK] -> OK\n");
  desk.Click("frmsommadelay.opt1");
  desk.Type("frmsommadelay.txtfase1", "-2.5");
  EXPECT_EQ(*form.txtfase1.text, "-2.5");
  EXPECT_EQ(desk.TakeOut(), "");
  desk.Leave();
  EXPECT_EQ(s.DelayMs, -2.5);  // so the black curve may be moved forward too
}

TEST_F(DelayEntryWindow, DelaysTheMagentaCurve) {
  Add("opt2", "txtfase2", "2.5");
  EXPECT_EQ(s.DelayedCurve, "Magenta");
  ExpectNear(s.SumPhaseDeg, kMagentaLater);
  EXPECT_EQ(s.PhaseDeg2, kMagentaDeg);  // until the window is closed
  ASSERT_EQ(desk.Colours(), (std::vector<int>{0, 16711935}));
  ExpectNear(desk.Chart()[0].degrees, Drawn(kBlackDeg));
  ExpectNear(desk.Chart()[1].degrees, Drawn(kMagentaLater));
  EXPECT_EQ(desk.GridLines(), 39U);
  EXPECT_FALSE(form.cmdsfasadelay.enabled);
  EXPECT_TRUE(form.cmdannulla.enabled);
}

TEST_F(DelayEntryWindow, DelaysTheBlackCurve) {
  Add("opt1", "txtfase1", "2.5");
  EXPECT_EQ(s.DelayedCurve, "Nero");
  ExpectNear(s.SumPhaseDeg, kBlackLater);
  EXPECT_EQ(s.PhaseDeg1, kBlackDeg);
  ASSERT_EQ(desk.Colours(), (std::vector<int>{0, 16711935}));
  ExpectNear(desk.Chart()[0].degrees, Drawn(kBlackLater));
  ExpectNear(desk.Chart()[1].degrees, Drawn(kMagentaDeg));
}

TEST_F(DelayEntryWindow, TakesTheDelayBack) {
  Add("opt2", "txtfase2", "2.5");
  desk.Click("frmsommadelay.cmdannulla");
  EXPECT_EQ(s.SumPhaseDeg, kMagentaDeg);
  ASSERT_EQ(desk.Colours(), (std::vector<int>{0, 16711935}));
  ExpectNear(desk.Chart()[0].degrees, Drawn(kBlackDeg));
  ExpectNear(desk.Chart()[1].degrees, Drawn(kMagentaDeg));
  EXPECT_TRUE(form.cmdsfasadelay.enabled);
  EXPECT_FALSE(form.cmdannulla.enabled);
  desk.Click("frmsommadelay.cmdchiudi");
  EXPECT_EQ(s.PhaseDeg2, kMagentaDeg);
}

TEST_F(DelayEntryWindow, TakesTheBlackDelayBack) {
  Add("opt1", "txtfase1", "2.5");
  desk.Click("frmsommadelay.cmdannulla");
  EXPECT_EQ(s.SumPhaseDeg, kBlackDeg);
  desk.Click("frmsommadelay.cmdchiudi");
  EXPECT_EQ(s.PhaseDeg1, kBlackDeg);
  EXPECT_EQ(s.PhaseDeg2, kMagentaDeg);
}

TEST_F(DelayEntryWindow, ClosedByItsButtonMakesTheDelayedCurveTheCurve) {
  Add("opt2", "txtfase2", "2.5");
  desk.Click("frmsommadelay.cmdchiudi");
  EXPECT_FALSE(form.window.open);
  ExpectNear(s.PhaseDeg2, kMagentaLater);
  EXPECT_EQ(s.PhaseDeg1, kBlackDeg);
}

TEST_F(DelayEntryWindow, ClosedByItsButtonCommitsTheBlackCurveToo) {
  Add("opt1", "txtfase1", "2.5");
  desk.Click("frmsommadelay.cmdchiudi");
  ExpectNear(s.PhaseDeg1, kBlackLater);
  EXPECT_EQ(s.PhaseDeg2, kMagentaDeg);
}

TEST_F(DelayEntryWindow, ClosedByItsMenuCommitsNothing) {
  Add("opt2", "txtfase2", "2.5");
  desk.Choose("frmsommadelay.mnuchiudi");
  EXPECT_FALSE(form.window.open);
  EXPECT_EQ(s.PhaseDeg2, kMagentaDeg);
  EXPECT_EQ(s.PhaseDeg1, kBlackDeg);
}

TEST_F(DelayEntryWindow, ClosedByItsButtonWithNoDelayAddedEmptiesTheBlackCurve) {
  desk.Click("frmsommadelay.cmdchiudi");
  EXPECT_TRUE(s.PhaseDeg1.empty());
  EXPECT_EQ(s.PhaseDeg2, kMagentaDeg);
  EXPECT_FALSE(s.PhaseX1.empty());
  desk.Click("frmFaseSh.cmdsomma");
  desk.Click("frmsommadelay.opt1");
  desk.Click("frmsommadelay.cmdsfasadelay");
  EXPECT_EQ(desk.program.run, RunState::EndedByFailure);
  EXPECT_NE(desk.TakeOut().find("Subscript out of range"), std::string::npos);
}

TEST_F(DelayEntryWindow, AddedTwiceDelaysTheDelayedCurve) {
  Add("opt2", "txtfase2", "1.5");
  desk.Click("frmsommadelay.cmdchiudi");
  desk.Click("frmFaseSh.cmdsomma");
  EXPECT_EQ(*form.txtfase2.text, "1.5");
  EXPECT_TRUE(form.cmdsfasadelay.enabled);
  Add("opt2", "txtfase2", "1");
  desk.Click("frmsommadelay.cmdchiudi");
  ExpectNear(s.PhaseDeg2, kMagentaLater);
}

TEST_F(DelayEntryWindow, ComesToTheFrontInsteadOfOpeningTwice) {
  Add("opt2", "txtfase2", "2.5");
  desk.Click("frmFaseSh.cmdsomma");
  EXPECT_TRUE(form.cmdannulla.enabled);
  EXPECT_EQ(desk.program.order.front(), &form.window);
}

TEST(DelayOfEqualPhases, IsZeroAndOnlyFolds) {
  PhaseDesk desk;
  desk.PasteText(";Freq(Hz)\n10 -60\n20 200\n30 -180\n40 180\n50 0\n");
  desk.PasteText(";Freq(Hz)\n10 -60\n20 200\n30 -180\n40 180\n50 0\n");
  desk.FindOffset("25");
  EXPECT_EQ(desk.state.DelayMs, 0);
  desk.Click("frmFaseSh.cmdsomma");
  EXPECT_EQ(desk.Text("frmsommadelay.txtfase2"), "0");
  desk.Click("frmsommadelay.cmdsfasadelay");
  EXPECT_EQ(desk.state.SumPhaseDeg, (Curve{-60, -160, -180, -180, 0, 0}));
}

}  // namespace
}  // namespace zefirondo
