// The closed box: its formulas, the choice of Qtc, the volume, the filling.
#include "box/closed_box.h"

#include <gtest/gtest.h>

#include "box/designs.h"
#include "box/volumes.h"
#include "core/events.h"
#include "core/run_time_error.h"
#include "core/window_life.h"

namespace zefirondo {
namespace {

TEST(ClosedBoxFormulas, VolumeForAQtc) {
  // 0.05 / (((0.707 / 0.4)² · 1.15) − 1), by python
  EXPECT_NEAR(ClosedVolume(0.05, 0.4, 0.707), 0.019285178002795639, 1e-16);
}

TEST(ClosedBoxFormulas, VolumeIsNegativeWhereTheQCannotBeReached) {
  // (0.4 / 0.4)² · 1.15 − 1 = 0.15; with Qtc = 0.9 · Qts the quotient is 0.9315 − 1 = −0.0685
  EXPECT_NEAR(ClosedVolume(0.03, 0.4, 0.4), 0.2, 1e-14);
  EXPECT_NEAR(ClosedVolume(0.00685, 0.5, 0.45), -0.1, 1e-14);
}

TEST(ClosedBoxFormulas, VolumeNeedsAQts) { EXPECT_THROW((void)ClosedVolume(0.05, 0, 0.707), RunTimeError); }

TEST(ClosedBoxFormulas, VolumeOfAQtcAtTheVeryLimitHasNoNumber) {
  // 1.15 (Qtc / Qts)² is exactly 1 for a Qtc next to Qts / √1.15 = 0.9325 Qts.
  bool found = false;
  for (double qts = 0.2; qts < 0.9 && !found; qts += 0.001) {
    double qtc = qts / std::sqrt(1.15) * (1 - 1e-15);
    for (int i = 0; i < 12 && !found; ++i, qtc = std::nextafter(qtc, 1.0)) {
      found = (qtc / qts) * (qtc / qts) * 1.15 - 1 == 0;
      if (!found) continue;
      EXPECT_THROW((void)ClosedVolume(0.05, qts, qtc), RunTimeError);
    }
  }
  EXPECT_TRUE(found);
}

TEST(ClosedBoxFormulas, ResonanceRatio) {
  // √((0.05 / 0.02 + 1) / 1.15) = √(3.5 / 1.15)
  EXPECT_NEAR(ClosedRatio(0.05, 0.02), 1.744556751977294, 1e-15);
}

struct F3Row {
  double qtc;
  double factor;  // F3 / Fc by python: √((√(a² + 4) + a) / 2), a = 1 / Qtc² − 2
};

constexpr F3Row kF3Rows[] = {{0.5, 1.5537739740300374},
                             {0.707, 1.0001510570214418},
                             {1.0, 0.78615137775742328},
                             {1.4, 0.70855310073309108},
                             {2.0, 0.67362320817489008}};

TEST(ClosedBoxFormulas, MinusThreeDecibelPoint) {
  for (const F3Row& row : kF3Rows) EXPECT_NEAR(ClosedF3(row.qtc, 50), 50 * row.factor, 1e-12) << row.qtc;
  EXPECT_NEAR(ClosedF3(0.707, 40), 40, 0.01);  // a Butterworth box: F3 is Fc
}

struct FillingRow {
  const char* text;
  double gamma;
};

constexpr FillingRow kFillings[] = {{"1.40(0%)", 1.400823478},
                                    {"1.27(10%)", 1.27272727},
                                    {"1.17(20%)", 1.166666666},
                                    {"1.12(25%)", 1.120658782},
                                    {"1.05(33%)", 1.050617609}};

TEST(Filling, EnlargesTheApparentVolumeByItsAdiabaticFactor) {
  for (const FillingRow& row : kFillings) {
    BoxDesk desk;
    desk.DesignClosedBox();
    desk.Pick("cmbk", "9");  // another text first, so that each row is a change
    desk.Pick("cmbk", row.text);
    EXPECT_EQ(desk.state.Kinternal, row.gamma);
    EXPECT_NEAR(ApparentVolume(desk.state, 0.05), 0.05 * 1.400823478 / row.gamma, 1e-16) << row.text;
  }
}

TEST(Filling, DoesNotDependOnThePressure) {
  ProjectState state;
  state.Kinternal = 1.27272727;
  state.Pressure = 90000;
  EXPECT_NEAR(ApparentVolume(state, 0.05), 0.05 * 1.400823478 / 1.27272727, 1e-16);
}

TEST(Filling, MarksTheProjectAndTheDesignAsChanged) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.state.ProjectModified = desk.state.DesignChanged = false;
  desk.Pick("cmbk", "1.27(10%)");
  EXPECT_TRUE(desk.state.ProjectModified);
  EXPECT_TRUE(desk.state.DesignChanged);
}

TEST(Filling, KeepsTheQtcWhileTheResonanceMoves) {
  BoxDesk desk;
  desk.DesignClosedBox();
  const double fc = desk.state.Fc;
  desk.Pick("cmbk", "1.17(20%)");
  EXPECT_EQ(desk.state.Qtc, 0.707);
  EXPECT_LT(desk.state.Fc, fc);
  // The apparent volume of the state is that of the field before the design, from 103.593 litres.
  EXPECT_NEAR(desk.state.Vba, 0.103593 * 1.400823478 / 1.166666666, 1e-15);
  EXPECT_EQ(desk.state.VbaClosed, desk.state.Vba);
}

TEST(Filling, TakesTheApparentVolumeOfTheTypedFigureAndNotOfTheShownOne) {
  // 60.0000567 litres are shown as 60.0000 once the box was computed; 1.400823478 / 1.27272727 is the filling.
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.Enter("txtvolnetto", "60.0000567");
  desk.Pick("cmbk", "1.27(10%)");
  EXPECT_EQ(desk.Text("txtvolnetto"), "60.0000");
  EXPECT_NEAR(desk.state.VbaClosed, 0.0600000567 * 1.400823478 / 1.27272727, 1e-15);
}

TEST(Filling, UnknownTextDoesNothingOnClick) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.state.DesignChanged = desk.state.ProjectModified = false;
  desk.Pick("cmbk", "1.3");
  EXPECT_EQ(desk.state.Kinternal, 1.400823478);
  EXPECT_FALSE(desk.state.DesignChanged);
  EXPECT_FALSE(desk.state.ProjectModified);
}

TEST(Filling, UnknownTextFallsBackToPlainAirOnLeaving) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.Pick("cmbk", "1.05(33%)");
  desk.Enter("cmbk", "1.3");
  EXPECT_EQ(desk.Text("cmbk"), "1.40");
  EXPECT_EQ(desk.state.Kinternal, 1.400823478);
  EXPECT_EQ(desk.Text("txtvolappa"), "103.593");
}

TEST(Filling, IsKnownByItsFirstFourCharacters) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.Pick("cmbk", "1.12 of wool");
  EXPECT_EQ(desk.state.Kinternal, 1.120658782);
  desk.Pick("cmbk", "1.1");
  EXPECT_EQ(desk.state.Kinternal, 1.120658782);
}

TEST(Filling, TypedTextOfTheListIsLeftAloneOnLeaving) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.Enter("cmbk", "1.27");
  EXPECT_EQ(desk.Text("cmbk"), "1.27");
  EXPECT_EQ(desk.state.Kinternal, 1.400823478);  // no click, no change
}

TEST(ChoiceOfQtc, NothingHappensForTheTextFromBefore) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.Focus("cmballi");
  desk.state.ProjectModified = false;
  desk.state.Vc = 1;
  desk.Pick("cmballi", "0.707");
  EXPECT_EQ(desk.state.Vc, 1);
  EXPECT_FALSE(desk.state.ProjectModified);
}

TEST(ChoiceOfQtc, ComparesWithTheTextOnGettingTheFocusAndNotWithTheLastPick) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.Pick("cmballi", "1.0");
  desk.Pick("cmballi", "0.707");  // the text from before: no click, and the volume of 1.0 stays
  EXPECT_EQ(desk.Text("cmballi"), "0.707");
  EXPECT_EQ(desk.state.Qtc, 1.0);
  EXPECT_EQ(desk.Text("txtvolnetto"), "41.3577");
}

TEST(ChoiceOfQtc, TakesTheQtcAndSkipsTheVolumeWithoutATransducer) {
  for (double ProjectState::*zero : {&ProjectState::Vas, &ProjectState::Qts}) {
    BoxDesk desk;
    desk.DesignClosedBox();
    desk.state.*zero = 0;
    desk.state.ProjectModified = false;
    desk.Pick("cmballi", "1.0");
    EXPECT_TRUE(desk.Runs());
    EXPECT_EQ(desk.state.Qtc, 1.0);
    EXPECT_EQ(desk.Text("txtvolnetto"), "103.593");
    EXPECT_TRUE(desk.state.ProjectModified);
    EXPECT_EQ(desk.TakeOut(), "");
  }
}

TEST(ChoiceOfQtc, LeavesThePoleFrequencyAlone) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.state.txtfreriso = "marker";
  desk.Pick("cmballi", "1.4");
  EXPECT_EQ(desk.Text("txtfreriso"), "marker");
}

TEST(ChoiceOfQtc, RedrawsTheBoxGraph) {
  BoxDesk desk;
  desk.DesignClosedBox();
  CloseWindow(desk.program, "frmgrafcassa");
  desk.Pick("cmballi", "1.4");
  EXPECT_TRUE(desk.program.windows.frmgrafcassa.window.open);
}

TEST(ChoiceOfQtc, TypedValueDoesNotSurviveLeaving) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.Enter("cmballi", "0.9");
  EXPECT_EQ(desk.Text("cmballi"), "0.707");
  EXPECT_TRUE(desk.state.DesignChanged);
  EXPECT_EQ(desk.Text("txtvolnetto"), "103.593");
}

TEST(ChoiceOfQtc, TypedValueOfTheListStays) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.Enter("cmballi", "2.0");
  EXPECT_EQ(desk.Text("cmballi"), "2.0");
  EXPECT_TRUE(desk.state.DesignChanged);
  EXPECT_EQ(desk.state.Qtc, 0.707);
}

TEST(ChoiceOfQtc, LeavingWithTheSameTextClearsTheDesignFlag) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.state.DesignChanged = true;
  desk.Focus("cmballi");
  desk.Leave();
  EXPECT_FALSE(desk.state.DesignChanged);
}

TEST(ChoiceOfQtc, ComputedValueStaysUntilTheListIsUsed) {
  BoxDesk desk;
  desk.DesignClosedBox();
  // The volume of Qtc = 0.8312: Vas / ((0.8312 / Qts)² · 1.15 − 1) = 65.7 litres
  const double litres = 1000 * kClosedVas / (std::pow(0.8312 / kClosedQts, 2) * 1.15 - 1);
  desk.Enter("txtvolnetto", FormatNumber(litres));
  EXPECT_NEAR(desk.state.Qtc, 0.8312, 1e-5);
  const std::string computed = desk.Text("cmballi");
  EXPECT_EQ(computed.substr(0, 5), "0.831");
  desk.Focus("cmballi");
  desk.Leave();
  EXPECT_EQ(desk.Text("cmballi"), computed);
  desk.Pick("cmballi", "0.707");
  EXPECT_EQ(desk.Text("txtvolnetto"), "103.593");
}

TEST(ChoiceOfQtc, AnyChangeOfTheFieldMarksTheProject) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.state.ProjectModified = false;
  desk.Set("cmballi", "0.8");
  EXPECT_TRUE(desk.state.ProjectModified);
}

TEST(ChoiceOfQtc, ClickMarksTheProjectEvenWithoutAChangeOfTheText) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.Focus("cmballi");
  desk.state.FieldBefore = "1.0";
  desk.state.ProjectModified = false;
  desk.Pick("cmballi", "0.707");
  EXPECT_TRUE(desk.state.ProjectModified);
}

TEST(ClosedBox, ShowsANegativeVolumeWithoutAnyMessage) {
  // Qes = 0.9 makes Qts 0.75204, out of reach for Qtc = 0.5: −188.391 litres, cut to seven characters.
  BoxDesk desk;
  desk.Design({"35", "5.6", "4.2", "9.5", "210", "0.9", "0.038", "5"});
  desk.Pick("cmballi", "0.5");
  EXPECT_TRUE(desk.Runs());
  EXPECT_EQ(desk.TakeOut(), "");
  ExpectTexts(desk, {{"txtvolnetto", "-188.39"}, {"txtvolappa", "-188.39"}, {"txtboxvolume", "-186.76"}});
  ExpectNumbers(desk, {{"Vc", -0.18839102023032389}});
}

TEST(ClosedBox, VolumeOfZeroIsTakenBackWithoutAMessage) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.state.DesignChanged = true;
  desk.Enter("txtvolnetto", "0");
  EXPECT_EQ(desk.Text("txtvolnetto"), "103.593");
  EXPECT_TRUE(desk.state.DesignChanged);  // not even looked at
  EXPECT_EQ(desk.TakeOut(), "");
}

TEST(ClosedBox, SameVolumeChangesNothingButTheDesignFlag) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.state.DesignChanged = true;
  desk.state.ProjectModified = false;
  desk.state.txtvolappa = "marker";
  desk.Enter("txtvolnetto", "103.593");
  EXPECT_FALSE(desk.state.DesignChanged);
  EXPECT_FALSE(desk.state.ProjectModified);
  EXPECT_EQ(desk.Text("txtvolappa"), "marker");
}

TEST(ClosedBox, TypedVolumeKeepsTheVolumeOfTheTransducers) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.state.txtvoloccu = "2.5";
  desk.Enter("txtvolnetto", "30");
  EXPECT_EQ(desk.Text("txtvoloccu"), "2.5");
  EXPECT_EQ(desk.Text("txtboxvolume"), "32.5");
}

TEST(ClosedBox, TypedVolumeDropsTheSumOfTheGraph) {
  BoxDesk desk;
  desk.DesignClosedBox();
  BoxResponse& graph = desk.program.windows.frmgrafcassa;
  graph.cmdcancella.enabled = graph.cmdsomma.enabled = true;
  graph.mnuimportaOverlay.enabled = false;
  desk.state.SumFreq = desk.state.SumDb = {1, 2};
  desk.state.ProjectModified = false;
  desk.Enter("txtvolnetto", "30");
  EXPECT_FALSE(graph.cmdcancella.enabled);
  EXPECT_FALSE(graph.cmdsomma.enabled);
  EXPECT_TRUE(graph.mnuimportaOverlay.enabled);
  EXPECT_TRUE(desk.state.SumFreq.empty());
  EXPECT_TRUE(desk.state.SumDb.empty());
  EXPECT_TRUE(desk.state.ProjectModified);
}

TEST(ClosedBox, TypedVolumeSkipsTheQtcWithoutATransducer) {
  for (double ProjectState::*zero : {&ProjectState::Vas, &ProjectState::Qts}) {
    BoxDesk desk;
    desk.DesignClosedBox();
    desk.state.*zero = 0;
    CloseWindow(desk.program, "frmgrafcassa");
    desk.Enter("txtvolnetto", "30");
    EXPECT_TRUE(desk.Runs());
    ExpectNumbers(desk, {{"Vc", 0.03}, {"VbaClosed", 0.03}, {"Qtc", 0.707}});
    EXPECT_EQ(desk.Text("txtfb"), "35.4413");
    EXPECT_TRUE(desk.program.windows.frmgrafcassa.window.open);  // drawn in every case
  }
}

TEST(ClosedBox, EmptyVolumeCountsAsZeroAndSkipsTheQtc) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.Enter("txtvolnetto", "");
  EXPECT_TRUE(desk.Runs());
  EXPECT_EQ(desk.state.VbaClosed, 0);
  EXPECT_EQ(desk.state.Qtc, 0.707);
  EXPECT_TRUE(desk.state.DesignChanged);
}

TEST(ClosedBox, UsesTheResonanceOfAnImportedImpedanceFirst) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.state.Fs = 44;  // twice the typed one
  desk.Pick("cmballi", "1.0");
  EXPECT_EQ(desk.Text("txtfb"), "100.258");  // 2 · 50.1292373
}

TEST(ClosedBox, FixedVolumeReadsTheApparentVolumeBackFromTheField) {
  BoxDesk desk;
  desk.DesignClosedBox();
  ChiusaVolumeFisso(desk.program, 0.0123456789);
  EXPECT_EQ(desk.Text("txtvolnetto"), "12.3456");
  EXPECT_EQ(desk.state.Vc, 0.0123456789);
  EXPECT_NEAR(desk.state.VbaClosed, 0.0123456, 1e-15);
  EXPECT_EQ(desk.Text("txtvolappa"), "12.3456");
  EXPECT_EQ(desk.Text("txtboxvolume"), "13.9740");  // 1.62848 + 12.3456
}

}  // namespace
}  // namespace zefirondo
