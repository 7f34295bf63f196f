// Which of the three sums is made, what it leaves, and the manners of imports and calibrations.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>

#include "core/acts.h"
#include "core/window_life.h"
#include "response/plain_curves.h"

namespace zefirondo {
namespace {

/// So many rows on the grid of the sweep, all at one level.
std::string Flat(int rows, double level) {
  std::string text = "heading\r\n";
  char line[64];
  for (int i = 1; i <= rows; ++i) {
    std::snprintf(line, sizeof line, "%.4f,%.2f\r\n", 0.7324 * i, level);
    text += line;
  }
  return text;
}

class SumDesk : public testing::Test {
 protected:
  SumDesk() { Prepare(); }

  void Prepare() {
    desk.DesignVented();
    desk.TakeOut();
  }
  std::string Import(const char* window, const std::string& bytes) {
    desk.platform.files.emplace_back(desk.folder.Write("r.ovl", bytes));
    desk.Choose(std::string(window) + ".mnuimportaOverlay");
    return desk.TakeOut();
  }
  /// The height above the bottom of the point of the curve drawn last.
  double Drawn(std::size_t i) {
    const Stroke& last = box.surface.strokes.back();
    return s.BoxScaleTop - box.surface.points.at(last.first + i).y;
  }

  Desk desk;
  ProjectState& s = desk.state;
  BoxResponse& box = desk.program.windows.frmgrafcassa;
  SplGraph& spl = desk.program.windows.frmspl;
};

// ---- the choice ----

struct Choice {
  bool computed, imported, designer;
  const char* terms;  // "FO" filter and overlay, "F" filter, "O" overlay
};

class SumChoice : public SumDesk, public testing::WithParamInterface<Choice> {};

TEST_P(SumChoice, FollowsTheFlagTheButtonAndTheWindow) {
  const Choice& choice = GetParam();
  // Levels stored as 43 and 45, so that each sum tells its terms: box + 3, + 5, or + 8.
  s.FilterFreq = s.FilterDb = Curve(6828, 43);
  box.OverlayFreq = box.OverlayDb = Curve(6828, 45);
  box.cmdsomma.enabled = true;
  if (choice.designer) desk.Choose("frmgrafcassa.mnufiltri");
  s.FilterComputed = choice.computed;
  box.cmdcalibra.enabled = choice.imported;
  desk.Click("frmgrafcassa.cmdsomma");
  ASSERT_EQ(desk.program.run, RunState::Running);
  ASSERT_EQ(box.surface.strokes.back().colour, colour::kMagenta);
  const std::string terms = choice.terms;
  const double added = terms == "FO" ? 8.00002 : terms == "F" ? 3.00001 : 5.00001;
  EXPECT_NEAR(Drawn(1000), s.BoxDb[1000] + added, 1e-9);
  EXPECT_EQ(box.surface.points.at(box.surface.strokes.back().first).x, terms == "F" ? 43 : 45);
}

// By the three rules in their order, worked by hand for all eight cases.
INSTANTIATE_TEST_SUITE_P(AllCases, SumChoice,
                         testing::Values(Choice{true, true, true, "FO"}, Choice{true, true, false, "FO"},
                                         Choice{true, false, true, "F"}, Choice{true, false, false, "O"},
                                         Choice{false, true, true, "O"}, Choice{false, true, false, "O"},
                                         Choice{false, false, true, "F"}, Choice{false, false, false, "O"}));

// ---- what a sum leaves ----

TEST_F(SumDesk, ASumIsNotKeptAndCannotBeMadeAgain) {
  Import("frmgrafcassa", Flat(6827, 2));
  const Curve overlay = box.OverlayDb;
  desk.Click("frmgrafcassa.cmdsomma");
  EXPECT_TRUE(s.SumFreq.empty() && s.SumDb.empty());
  EXPECT_EQ(box.OverlayDb, overlay);
  EXPECT_EQ(desk.Click("frmgrafcassa.cmdsomma").refusal, Refusal::Disabled);
  EXPECT_FALSE(box.mnuimportaOverlay.enabled);
  desk.Click("frmgrafcassa.cmdcancella");
  Import("frmgrafcassa", Flat(6827, 3));
  EXPECT_TRUE(box.cmdsomma.enabled);
}

TEST_F(SumDesk, AHiddenPhaseGraphOutlivesASum) {
  for (const bool hidden : {true, false}) {
    desk.Choose("frmgrafcassa.mnufase");
    desk.program.windows.frmFase.window.hidden = hidden;
    Import("frmgrafcassa", Flat(6827, 0));
    desk.Click("frmgrafcassa.cmdsomma");
    EXPECT_EQ(desk.program.windows.frmFase.window.open, hidden);
    desk.Click("frmgrafcassa.cmdcancella");
    EXPECT_FALSE(desk.program.windows.frmFase.window.open);  // that button closes it in any case
  }
}

TEST_F(SumDesk, AHiddenDesignerCountsAsOpen) {
  desk.Choose("frmgrafcassa.mnufiltri");
  desk.Click("frmfiltri.cmdvisualizza");
  desk.program.windows.frmfiltri.window.hidden = true;
  desk.Click("frmgrafcassa.cmdsomma");
  EXPECT_NEAR(Drawn(500), s.BoxDb[500] + s.FilterDb[500] - 39.99999, 1e-9);
}

TEST_F(SumDesk, EndsWithTheTextOfAnIndexWhereACurveIsShort) {
  const std::string ended = "message stop \"Error\" \"Subscript out of range\" [OK] -> OK\nended error\n";
  Import("frmgrafcassa", Flat(6000, 0));
  desk.Click("frmgrafcassa.cmdsomma");
  EXPECT_EQ(desk.TakeOut(), ended);
  Desk other;
  other.DesignVented();
  other.Choose("frmgrafcassa.mnufiltri");
  other.Click("frmfiltri.cmdvisualizza");
  other.Choose("frmfiltri.mnuchiudi");
  other.TakeOut();
  other.Click("frmgrafcassa.cmdsomma");  // a filter, no response, no window: the sum of a response that is not there
  EXPECT_EQ(other.TakeOut(), ended);
}

// ---- imports ----

TEST_F(SumDesk, RowsMayBeUnsortedHugeAndBeyondTheStep) {
  Import("frmgrafcassa", "x\n5000 -1e3\n20,500\n1e-3 3\n30\t4");
  EXPECT_EQ(box.OverlayDb, (Curve{-960, 540, 43, 44, 0}));
  EXPECT_NEAR(box.OverlayFreq[2], -60, 1e-12);  // 20·log10(0.001)
  EXPECT_EQ(desk.program.run, RunState::Running);
}

TEST_F(SumDesk, OnlyTheFirstLineIsAHeading) {
  Import("frmgrafcassa", "10 1\r\n20 2\r\n");
  EXPECT_EQ(box.OverlayDb, (Curve{42, 0}));
}

TEST_F(SumDesk, LimitsEndTheReadingAndAreNotUsed) {
  struct Row {
    const char* window;
    const char* rows;
    std::size_t points;
  };
  desk.Choose("frmgrafcassa.mnuspl");
  for (const Row& row : {Row{"frmgrafcassa", "x\n10 1\n6825.99 1\n6826 1\n11 1\n", 2},
                         {"frmgrafcassa", "x\n7000 1\n10 1\n", 0},
                         {"frmspl", "x\n10 1\n1999.99 1\n2000 1\n11 1\n", 2}}) {
    box.OverlayDb.clear();
    s.OverlaySplDb.clear();
    Control& entry = desk[std::string(row.window) + ".mnuimportaOverlay"];
    entry.enabled = true;
    Import(row.window, row.rows);
    const Curve& curve = row.window == std::string("frmspl") ? s.OverlaySplDb : box.OverlayDb;
    EXPECT_EQ(curve.size(), row.points == 0 ? 0 : row.points + 1) << row.rows;
    EXPECT_FALSE(entry.enabled);
  }
}

TEST_F(SumDesk, FailuresAreToldInBothLanguagesAndCloseNothing) {
  for (const Language language : {Language::English, Language::Italian}) {
    for (const char* const window : {"frmgrafcassa", "frmspl"}) {
      Desk other(language);
      other.DesignVented();
      other.Choose("frmgrafcassa.mnuspl");
      other.TakeOut();
      const auto import = [&](const std::filesystem::path& file) {
        other.platform.files.emplace_back(file);
        other.Choose(std::string(window) + ".mnuimportaOverlay");
        const std::string out = other.TakeOut();
        return out.substr(std::min(out.find("message"), out.size()));
      };
      const std::string box_start = language == Language::English
                                        ? "message stop \"Error\" \"The file could not be opened. "
                                        : "message stop \"Errore\" \"Il file non può essere aperto. ";
      const std::string end = "\" [OK] -> OK\n";
      EXPECT_EQ(import(other.folder.path() / "none.ovl"), box_start + "File not found" + end);
      EXPECT_EQ(import(other.folder.Write("a.ovl", "")), box_start + "Input past end of file" + end);
      EXPECT_EQ(import(other.folder.Write("b.ovl", "x\r\n10 1\r\n20")), box_start + "Input past end of file" + end);
      EXPECT_TRUE(other[std::string(window) + ".mnuimportaOverlay"].enabled);
      EXPECT_FALSE(other.program.windows.frmgrafcassa.cmdsomma.enabled);
      EXPECT_FALSE(other.program.windows.frmspl.cmdsommaspl.enabled);
      EXPECT_EQ(other.program.run, RunState::Running);
    }
  }
}

TEST_F(SumDesk, DialogsAreTheSameOnBothGraphsAndLanguages) {
  for (const Language language : {Language::English, Language::Italian}) {
    Desk other(language);
    other.DesignVented();
    other.Choose("frmgrafcassa.mnuspl");
    other.TakeOut();
    for (const char* const window : {"frmgrafcassa", "frmspl"}) {
      other.platform.files.emplace_back();
      other.Choose(std::string(window) + ".mnuimportaOverlay");
      EXPECT_EQ(other.TakeOut(), "dialog open \"Risposta in Frequenza (*.ovl)|*.ovl|\" default=\".ovl\" folder=\"" +
                                     (other.folder.path() / "Overlay").string() + "\" -> cancel\n");
      EXPECT_TRUE(other[std::string(window) + ".mnuimportaOverlay"].enabled);
    }
  }
}

TEST_F(SumDesk, AShorterLevelImportLeavesNothingOfALongerOne) {
  desk.Choose("frmgrafcassa.mnuspl");
  Import("frmspl", "x\n10 1\n20 2\n30 3\n");
  desk.Click("frmspl.cmdcancellaspl");
  Import("frmspl", "x\n40 7\n");
  EXPECT_EQ(s.OverlaySplDb, (Curve{7, 0}));
  EXPECT_EQ(s.OverlaySplFreq.size(), 2U);
  EXPECT_EQ(s.OverlaySplFreq[1], 0);
  EXPECT_EQ(s.SumDb, (Curve{7 + s.SplDb[0], 0}));
}

TEST_F(SumDesk, ALevelOverlayIsDrawnInTheOldScaleAndTheNewOneWaits) {
  desk.Choose("frmgrafcassa.mnuspl");
  const int before = s.SplScaleTop;
  Import("frmspl", "x\n10 500\n20 500\n30 500\n40 500\n");
  const Stroke& overlay = spl.surface.strokes.back();
  EXPECT_EQ(overlay.colour, colour::kGreen);
  EXPECT_EQ(spl.surface.points.at(overlay.first).y, before - 500);
  EXPECT_GT(s.SplScaleTop, 400);
  desk.Click("frmspl.cmdset1");  // no redraw
  EXPECT_EQ(spl.surface.scale.height, before);
  desk.Click("frmspl.cmdset1");  // shown already: a redraw
  EXPECT_EQ(spl.surface.scale.height, s.SplScaleTop);
}

TEST_F(SumDesk, ALevelSumBelowZeroHasTheLowestScale) {
  desk.Choose("frmgrafcassa.mnuspl");
  Import("frmspl", "x\n10 -900\n20 -900\n");
  EXPECT_EQ(s.SplScaleTop, 10);
}

TEST_F(SumDesk, ALevelSumShowsBothTraces) {
  desk.Choose("frmgrafcassa.mnuspl");
  desk.Click("frmspl.cmdset1");
  desk.Click("frmspl.cmdset2");
  desk.Click("frmspl.chkonoff2");
  Import("frmspl", Flat(100, 1));
  desk.Click("frmspl.chkonoff2");
  desk.Click("frmspl.cmdsommaspl");
  EXPECT_EQ(plain::ChainColours(spl.surface),
            (std::vector{colour::kBlack, colour::kMagenta, colour::kGreen, colour::kRed, colour::kBlue}));
  EXPECT_EQ(desk.Click("frmspl.cmdsommaspl").refusal, Refusal::Disabled);
}

// ---- calibration ----

TEST_F(SumDesk, CalibrationIsShownInTheProgramsNumberFormat) {
  Import("frmgrafcassa", Flat(10, 0));
  struct Row {
    const char *typed, *button, *shown;
    double kept;
  };
  // A sign before a point is lost in this format; the value itself is kept.
  for (const Row& row : {Row{"2.25", "cmdpiu", "3.25", 3.25},
                         {"-3", "cmdmeno", "-4", -4},
                         {"-1.5", "cmdpiu", "0.5", -0.5},
                         {"0", "cmdmeno", "-1", -1},
                         {"", "cmdpiu", "1", 1}}) {
    desk.Set("frmgrafcassa.txtdbcal", row.typed);
    desk.Click("frmgrafcassa.cmdcalibra");
    desk.Click(std::string("frmgrafcassa.") + row.button);
    EXPECT_EQ(desk.Text("frmgrafcassa.txtdbcal"), row.shown);
    EXPECT_EQ(box.CalibrationDb, row.kept);
  }
}

TEST_F(SumDesk, StepsCountFromWhatWasAppliedAndNotFromTheField) {
  Import("frmgrafcassa", Flat(10, 0));
  desk.Set("frmgrafcassa.txtdbcal", "7");
  desk.Click("frmgrafcassa.cmdpiu");
  EXPECT_EQ(desk.Text("frmgrafcassa.txtdbcal"), "1");
  EXPECT_EQ(box.OverlayDb[0], 41);
}

TEST_F(SumDesk, CalibrationMovesTheDrawingAndTheSum) {
  Import("frmgrafcassa", Flat(6827, 0));
  desk.Set("frmgrafcassa.txtdbcal", "-2");
  desk.Click("frmgrafcassa.cmdcalibra");
  EXPECT_EQ(box.surface.strokes.back().colour, colour::kGreen);
  EXPECT_EQ(Drawn(100), 38);
  desk.Click("frmgrafcassa.cmdsomma");
  EXPECT_NEAR(Drawn(100), s.BoxDb[100] - 2 + 0.00001, 1e-9);
}

TEST_F(SumDesk, ADesignChangeOpensTheImportAgain) {
  Import("frmgrafcassa", Flat(6827, 0));
  EXPECT_FALSE(box.mnuimportaOverlay.enabled);
  desk.Set("txtvolnetto", "80");
  desk.Leave();
  EXPECT_TRUE(box.mnuimportaOverlay.enabled);
  EXPECT_FALSE(box.cmdsomma.enabled || box.cmdcancella.enabled);
  EXPECT_EQ(plain::ChainColours(box.surface), std::vector{colour::kBlack});  // what was laid over is gone
}

}  // namespace
}  // namespace zefirondo
