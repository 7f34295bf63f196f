// Imported responses, their calibration, and the sums, on the box and SPL graphs.
#include "filters/summation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>

#include "core/numbers.h"
#include "response/plain_curves.h"

namespace zefirondo {
namespace {

using plain::ChainColours;

/// A response on the grid of the sweep, with the level 10·sin of the row, to so many rows.
std::string Overlay(int rows) {
  std::string text = "made up\r\n";
  char line[64];
  for (int i = 1; i <= rows; ++i) {
    std::snprintf(line, sizeof line, "%.4f %.6f\r\n", 0.7324 * i, 10 * std::sin(i * 0.01));
    text += line;
  }
  return text;
}

double OverlayLevel(std::size_t i) { return std::round(10 * std::sin(static_cast<double>(i + 1) * 0.01) * 1e6) / 1e6; }

class SummationTest : public ::testing::Test {
 public:
  Desk desk;
  ProjectState& s = desk.state;
  BoxResponse& box = desk.program.windows.frmgrafcassa;
  SplGraph& spl = desk.program.windows.frmspl;

  SummationTest() {
    desk.DesignVented();
    desk.TakeOut();
  }
  void Import(const char* window, const std::string& bytes) {
    desk.platform.files.emplace_back(desk.folder.Write("response.ovl", bytes));
    desk.Choose(std::string(window) + ".mnuimportaOverlay");
  }
  void ImportOnBox(const std::string& bytes) { Import("frmgrafcassa", bytes); }
  void ImportOnSpl(const std::string& bytes) {
    desk.Choose("frmgrafcassa.mnuspl");
    Import("frmspl", bytes);
  }
  void ShowFilter() {
    desk.Choose("frmgrafcassa.mnufiltri");
    desk.Click("frmfiltri.cmdvisualizza");
  }
  void ExpectCalibration(bool enabled) {
    for (const Control* const control : {&box.cmdpiu, &box.cmdmeno, &box.txtdbcal, &box.cmdcalibra}) {
      EXPECT_EQ(control->enabled, enabled) << control->name;
    }
  }
  void ExpectEndedByIndex() {
    EXPECT_EQ(desk.program.run, RunState::EndedByFailure);
    EXPECT_NE(desk.TakeOut().find("ended error"), std::string::npos);
  }
  /// The sum was drawn last: its point is compared with what its terms give.
  void ExpectDrawnSum(double (*level)(const SummationTest&, std::size_t), const Curve& x) {
    const Stroke sum = plain::Chains(box.surface).back();
    ASSERT_EQ(sum.colour, colour::kMagenta);
    ASSERT_EQ(sum.count, 6826U);
    for (std::size_t i = 0; i < sum.count; ++i) {
      ASSERT_NEAR(s.BoxScaleTop - box.surface.points[sum.first + i].y, level(*this, i), 1e-9) << i;
      ASSERT_EQ(box.surface.points[sum.first + i].x, x[i]);
    }
    EXPECT_TRUE(s.SumFreq.empty() && s.SumDb.empty());
    EXPECT_FALSE(box.cmdsomma.enabled);
    EXPECT_TRUE(box.cmdcancella.enabled);
    ExpectCalibration(false);
  }
};

TEST_F(SummationTest, AnImportIsDrawnGreenAndOpensTheButtons) {
  ExpectCalibration(false);
  box.CalibrationDb = 3;
  ImportOnBox(Overlay(6827));
  EXPECT_EQ(desk.TakeOut(), "dialog open \"Risposta in Frequenza (*.ovl)|*.ovl|\" default=\".ovl\" folder=\"" +
                                (desk.folder.path() / "Overlay").string() + "\" -> " +
                                (desk.folder.path() / "response.ovl").string() + "\n");
  ASSERT_EQ(box.OverlayDb.size(), 6828U);
  for (std::size_t i = 0; i < 6827; ++i) {
    ASSERT_NEAR(box.OverlayDb[i], OverlayLevel(i) + 40, 1e-9);
    ASSERT_NEAR(box.OverlayFreq[i], 20 * std::log10(0.7324 * static_cast<double>(i + 1)), 1e-9);
  }
  EXPECT_EQ(ChainColours(box.surface), (std::vector{colour::kBlack, colour::kGreen}));
  EXPECT_TRUE(box.cmdsomma.enabled && box.cmdcancella.enabled);
  EXPECT_FALSE(box.mnuimportaOverlay.enabled);
  ExpectCalibration(true);
  EXPECT_EQ(box.CalibrationDb, 0.0);
}

TEST_F(SummationTest, TheBoxImportEndsAt6826Hertz) {
  ImportOnBox("x\r\n10 1\r\n6825.9 2\r\n6826 3\r\n20 4\r\n");
  ASSERT_EQ(box.OverlayDb.size(), 3U);  // two rows and the zero slot
  EXPECT_EQ(box.OverlayDb[1], 42.0);
  EXPECT_EQ(box.OverlayDb[2], 0.0);
}

TEST_F(SummationTest, ACancelledImportDoesNothing) {
  desk.platform.files.emplace_back();
  desk.Choose("frmgrafcassa.mnuimportaOverlay");
  EXPECT_TRUE(box.mnuimportaOverlay.enabled);
  EXPECT_FALSE(box.cmdsomma.enabled);
  EXPECT_TRUE(box.OverlayDb.empty());
}

TEST_F(SummationTest, AFileWithoutRowsLeavesTheCurvesAlone) {
  ImportOnBox("heading\r\n");
  EXPECT_TRUE(box.OverlayFreq.empty() && box.OverlayDb.empty());
}

TEST_F(SummationTest, AFileThatEndsInAPairIsTold) {
  ImportOnBox("x\r\n10 1\r\n20");
  EXPECT_NE(desk.TakeOut().find("message stop \"Error\" \"The file could not be opened. "), std::string::npos);
  EXPECT_EQ(desk.program.run, RunState::Running);
  EXPECT_FALSE(box.cmdsomma.enabled);
  EXPECT_TRUE(box.mnuimportaOverlay.enabled);
}

TEST_F(SummationTest, AFrequencyOfZeroEndsTheProgramOnBothGraphs) {
  for (const bool on_spl : {false, true}) {
    Desk other;
    other.DesignVented();
    if (on_spl) other.Choose("frmgrafcassa.mnuspl");
    other.TakeOut();
    other.platform.files.emplace_back(other.folder.Write("zero.ovl", "x\r\n10 1\r\n0 2\r\n"));
    other.Choose(on_spl ? "frmspl.mnuimportaOverlay" : "frmgrafcassa.mnuimportaOverlay");
    const std::string out = other.TakeOut();
    EXPECT_NE(out.find("\"Error, logarithm of a number less than or equal to zero\" [OK] -> OK\nended error\n"),
              std::string::npos)
        << out;
  }
}

TEST_F(SummationTest, CalibratingTwiceAddsTwice) {
  ImportOnBox(Overlay(100));
  const double before = box.OverlayDb[50];
  desk.Set("frmgrafcassa.txtdbcal", "2.5");
  desk.Click("frmgrafcassa.cmdcalibra");
  EXPECT_NEAR(box.OverlayDb[50], before + 2.5, 1e-12);
  EXPECT_EQ(box.OverlayDb[100], 2.5);  // the zero slot goes along
  EXPECT_EQ(box.CalibrationDb, 2.5);
  desk.Click("frmgrafcassa.cmdcalibra");
  EXPECT_NEAR(box.OverlayDb[50], before + 5, 1e-12);
  EXPECT_EQ(ChainColours(box.surface), (std::vector{colour::kBlack, colour::kGreen}));
}

TEST_F(SummationTest, StepsCountOnFromTheCalibration) {
  ImportOnBox(Overlay(100));
  const double before = box.OverlayDb[50];
  desk.Set("frmgrafcassa.txtdbcal", "2.5");
  desk.Click("frmgrafcassa.cmdcalibra");
  desk.Click("frmgrafcassa.cmdpiu");
  EXPECT_EQ(desk.Text("frmgrafcassa.txtdbcal"), "3.5");
  desk.Click("frmgrafcassa.cmdmeno");
  desk.Click("frmgrafcassa.cmdmeno");
  EXPECT_EQ(desk.Text("frmgrafcassa.txtdbcal"), "1.5");
  EXPECT_EQ(box.CalibrationDb, 1.5);
  EXPECT_NEAR(box.OverlayDb[50], before + 1.5, 1e-12);
}

TEST_F(SummationTest, TheFilterComesBackOrangeOrCyan) {
  ImportOnBox(Overlay(100));
  desk.Click("frmgrafcassa.cmdset1");  // stored: not shown before, so the buttons stay
  ShowFilter();
  desk.Click("frmgrafcassa.cmdcalibra");
  EXPECT_EQ(ChainColours(box.surface), (std::vector{colour::kBlack, colour::kRed, colour::kGreen, colour::kOrange}));
  for (const char* const step : {"cmdpiu", "cmdmeno"}) {
    desk.Click(std::string("frmgrafcassa.") + step);
    EXPECT_EQ(ChainColours(box.surface), (std::vector{colour::kBlack, colour::kRed, colour::kGreen, colour::kCyan}));
  }
}

TEST_F(SummationTest, CalibrationTakesASign) {
  ImportOnBox(Overlay(100));
  desk.Set("frmgrafcassa.txtdbcal", "");
  desk.Type("frmgrafcassa.txtdbcal", "-1,5");
  EXPECT_EQ(desk.Text("frmgrafcassa.txtdbcal"), "-1.5");
  EXPECT_EQ(desk.TakeOut().find("message"), std::string::npos);
  desk.Type("frmgrafcassa.txtdbcal", ".");
  EXPECT_NE(desk.TakeOut().find("Warning: Inputs must be a number"), std::string::npos);
}

TEST_F(SummationTest, BoxAndResponse) {
  ImportOnBox(Overlay(6827));
  desk.Click("frmgrafcassa.cmdsomma");
  ExpectDrawnSum([](const SummationTest& t, std::size_t i) { return t.s.BoxDb[i] + (OverlayLevel(i) + 40) - 39.99999; },
                 box.OverlayFreq);
}

TEST_F(SummationTest, BoxAndFilter) {
  ShowFilter();
  desk.Choose("frmgrafcassa.mnufase");
  desk.Click("frmgrafcassa.cmdsomma");
  EXPECT_FALSE(desk.program.windows.frmFase.window.open);
  ExpectDrawnSum([](const SummationTest& t, std::size_t i) { return t.s.BoxDb[i] + t.s.FilterDb[i] - 39.99999; },
                 s.FilterFreq);
}

TEST_F(SummationTest, BoxFilterAndResponse) {
  ImportOnBox(Overlay(6827));
  ShowFilter();
  desk.Click("frmgrafcassa.cmdsomma");
  ExpectDrawnSum([](const SummationTest& t,
                    std::size_t i) { return t.s.BoxDb[i] + t.s.FilterDb[i] + (OverlayLevel(i) + 40) - 79.99998; },
                 box.OverlayFreq);
}

TEST_F(SummationTest, AFilterWindowWithoutAFilterLeavesBoxAndResponse) {
  ImportOnBox(Overlay(6827));
  desk.Choose("frmgrafcassa.mnufiltri");
  desk.Click("frmgrafcassa.cmdsomma");
  EXPECT_EQ(plain::Chains(box.surface).back().colour, colour::kMagenta);
}

TEST_F(SummationTest, ThreeFlatResponsesStayWithinTheirConstant) {
  s.FilterDb = s.BoxDb = box.OverlayDb = box.OverlayFreq = Curve(6828, 40.0);
  SommaTutto(desk.program);
  EXPECT_NEAR(s.SumDb[0], 40.00002, 1e-10);
  EXPECT_EQ(s.SumDb.size(), 6828U);
  EXPECT_EQ(s.SumDb[6827], 0.0);
}

TEST_F(SummationTest, AShortResponseEndsTheProgram) {
  ImportOnBox(Overlay(6825));  // with the zero slot one short
  desk.Click("frmgrafcassa.cmdsomma");
  ExpectEndedByIndex();
}

TEST_F(SummationTest, TheZeroSlotCountsAsAPoint) {
  ImportOnBox(Overlay(6826));
  desk.Click("frmgrafcassa.cmdsomma");
  EXPECT_EQ(desk.program.run, RunState::Running);
}

TEST_F(SummationTest, AFilterWithItsWindowClosedMeetsNoResponse) {
  ShowFilter();
  desk.Choose("frmfiltri.mnuchiudi");
  desk.Click("frmgrafcassa.cmdsomma");
  ExpectEndedByIndex();
}

TEST_F(SummationTest, DeleteBringsTheGraphBackToItsPlainState) {
  ImportOnBox(Overlay(6827));
  desk.Click("frmgrafcassa.cmdpiu");
  desk.Click("frmgrafcassa.cmdsomma");
  desk.Click("frmgrafcassa.cmdcancella");
  EXPECT_TRUE(box.OverlayFreq.empty() && box.OverlayDb.empty());
  EXPECT_EQ(desk.Text("frmgrafcassa.txtdbcal"), "0");
  EXPECT_TRUE(box.mnuimportaOverlay.enabled);
  EXPECT_FALSE(box.cmdsomma.enabled || box.cmdcancella.enabled);
  EXPECT_EQ(ChainColours(box.surface), std::vector{colour::kBlack});
}

TEST_F(SummationTest, TheLevelImportAddsAtOnceAndRescalesLater) {
  desk.Choose("frmgrafcassa.mnuspl");
  const std::int16_t before = s.SplScaleTop;
  Import("frmspl", Overlay(2800));          // rows from 2000 Hz on are not taken
  ASSERT_EQ(s.OverlaySplDb.size(), 2731U);  // 2730 · 0.7324 = 1999.45 Hz, and the zero slot
  double largest = 0;
  for (std::size_t i = 0; i < 2730; ++i) {
    ASSERT_NEAR(s.OverlaySplDb[i], OverlayLevel(i), 1e-9);
    ASSERT_NEAR(s.SumDb[i], s.SplDb[i] + OverlayLevel(i), 1e-9);
    ASSERT_EQ(s.SumFreq[i], s.OverlaySplFreq[i]);
    largest = std::max(largest, s.SumDb[i]);
  }
  const Stroke overlay = plain::Chains(spl.surface).back();
  EXPECT_EQ(overlay.colour, colour::kGreen);
  EXPECT_NEAR(spl.surface.points[overlay.first + 9].y, before - OverlayLevel(9), 1e-9);
  EXPECT_EQ(s.SplScaleTop, std::nearbyint(largest) + 10);
  EXPECT_EQ(spl.surface.scale.height, before);
  EXPECT_TRUE(spl.cmdsommaspl.enabled && spl.cmdcancellaspl.enabled);
  EXPECT_FALSE(spl.mnuimportaOverlay.enabled);
}

TEST_F(SummationTest, TheLevelSumIsDrawnOnceWithTheTraces) {
  ImportOnSpl(Overlay(500));
  const Curve sum = s.SumDb;
  desk.Click("frmspl.cmdset2");
  desk.Click("frmspl.cmdsommaspl");
  EXPECT_EQ(ChainColours(spl.surface), (std::vector{colour::kBlack, colour::kMagenta, colour::kGreen, colour::kBlue}));
  const Stroke drawn = plain::Chains(spl.surface)[1];
  EXPECT_DOUBLE_EQ(spl.surface.points[drawn.first + 99].y, s.SplScaleTop - sum[99]);
  EXPECT_EQ(spl.surface.scale.height, s.SplScaleTop);
  for (const Curve* const curve : {&s.SumFreq, &s.SumDb, &s.OverlaySplFreq, &s.OverlaySplDb}) {
    EXPECT_TRUE(curve->empty());
  }
  EXPECT_FALSE(spl.cmdsommaspl.enabled);
  EXPECT_TRUE(spl.cmdcancellaspl.enabled);
}

TEST_F(SummationTest, DeleteOnTheLevelGraphTakesTheScaleOfTheCurve) {
  desk.Choose("frmgrafcassa.mnuspl");
  const std::int16_t plain_top = s.SplScaleTop;
  desk.Click("frmspl.cmdset1");
  desk.Click("frmspl.cmdset2");
  Import("frmspl", Overlay(500));
  EXPECT_NE(s.SplScaleTop, plain_top);
  desk.Click("frmspl.cmdcancellaspl");
  EXPECT_EQ(s.SplScaleTop, plain_top);
  EXPECT_EQ(ChainColours(spl.surface), std::vector{colour::kBlack});
  EXPECT_FALSE(spl.cmdsommaspl.enabled || spl.cmdcancellaspl.enabled);
  EXPECT_TRUE(spl.mnuimportaOverlay.enabled);
  EXPECT_TRUE(s.SumFreq.empty() && s.SumDb.empty() && s.Set1SplFreq.empty() && s.Set1SplDb.empty());
  EXPECT_FALSE(s.Set2SplFreq.empty());
  EXPECT_FALSE(s.Set1SplStored || s.Set1SplShown || s.Set2SplStored || s.Set2SplShown);
  EXPECT_FALSE(spl.chkonoff1.visible || spl.chkonoff2.visible || spl.chkonoff1.checked || spl.chkonoff2.checked);
}

TEST_F(SummationTest, ALevelFileWithMoreRowsThanTheCurveIsTold) {
  std::string text = "x\n";
  for (int i = 0; i < 2800; ++i) text += "100 1\n";
  ImportOnSpl(text);
  EXPECT_NE(desk.TakeOut().find("The file could not be opened. "), std::string::npos);
  EXPECT_EQ(desk.program.run, RunState::Running);
}

}  // namespace
}  // namespace zefirondo
