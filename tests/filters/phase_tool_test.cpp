// The window of the phase offset tool: its chart, traces from files, its ways back to the start, its read-out.
#include "filters/phase_tool.h"
#include "filters/phase_desk.h"
#include "response/graph_surface.h"

namespace zefirondo {
namespace {

// ---- the chart ----

TEST(PhaseOffsetChart, HasItsGridFromTenHertzToTenThousand) {
  Surface surface;
  surface.scale = {10, 66, 360};
  DrawPhaseGrid(surface);
  const auto line = [&](std::size_t i) {
    const Point* const p = &surface.points[surface.strokes[i].first];
    return std::vector<double>{p[0].x, p[0].y, p[1].x, p[1].y};
  };
  ASSERT_EQ(surface.strokes.size(), 8U + 10 + 10 + 10 + 1);
  const std::vector<double> heights{315, 270, 225, 180, 135, 90, 45, 0};
  for (std::size_t i = 0; i < heights.size(); ++i) {
    EXPECT_EQ(line(i), (std::vector<double>{0, heights[i], 76, heights[i]}));
  }
  std::vector<double> hertz;
  for (const double decade : {10.0, 100.0, 1000.0}) {
    for (int k = 1; k <= 10; ++k) hertz.push_back(k * decade);
  }
  hertz.push_back(10000);  // once more, and none at 20 kHz
  for (std::size_t i = 0; i < hertz.size(); ++i) {
    const std::vector<double> found = line(heights.size() + i);
    EXPECT_NEAR(found[0], 20 * std::log10(hertz[i]) - 10, 1e-12) << hertz[i];
    EXPECT_EQ(found[2], found[0]);
    EXPECT_EQ(found[1], 0);
    EXPECT_EQ(found[3], 360);
  }
  for (const Stroke& stroke : surface.strokes) EXPECT_EQ(stroke.colour, 0);
}

TEST(PhaseOffsetChart, IsDrawnOverWhatStands) {
  Surface surface;
  surface.scale = {10, 66, 360};
  surface.Line(1, 2, 3, 4, 255);
  DrawPhaseGrid(surface);
  EXPECT_EQ(surface.strokes.front().colour, 255);
}

TEST(PhaseOffsetTool, OpensWithTheGridAndWithoutCurves) {
  PhaseDesk desk;
  EXPECT_TRUE(desk.tool.window.open);
  EXPECT_EQ(desk.GridLines(), 39U);
  EXPECT_TRUE(desk.Chart().empty());
  EXPECT_EQ(desk.tool.surface.scale, (Scale{10, 66, 360}));
  for (const Control* const control : {&desk.tool.mnusalvarosso, &desk.tool.mnusalvablu, &desk.tool.cmdcalcola,
                                       &desk.tool.cmdset1, &desk.tool.cmdset2, &desk.tool.cmdsomma}) {
    EXPECT_FALSE(control->enabled) << control->name;
  }
  for (const Control* const control :
       {&desk.tool.cmdimporta, &desk.tool.cmdcancella, &desk.tool.cmdchiudi, &desk.tool.mnuimportafase}) {
    EXPECT_TRUE(control->enabled) << control->name;
  }
  EXPECT_FALSE(desk.tool.chkonoff1.visible || desk.tool.chkonoff2.visible || desk.tool.txtposFase.visible);
}

TEST(PhaseOffsetTool, ClearsTheTraceFlagsWhenItOpens) {
  Desk desk;
  desk.Begin();
  desk.state.Set1PhaseStored = desk.state.Set1PhaseShown = true;
  desk.state.Set2PhaseStored = desk.state.Set2PhaseShown = true;
  desk.Choose("mdithsm.mnudelay");
  EXPECT_FALSE(desk.state.Set1PhaseStored || desk.state.Set1PhaseShown || desk.state.Set2PhaseStored ||
               desk.state.Set2PhaseShown);
}

// ---- traces from files ----

class PhaseTraceFile : public testing::Test {
 protected:
  std::string Import(const std::string& bytes) { return ImportFile(desk.folder.Write("a.trc", bytes)); }
  std::string ImportFile(const std::filesystem::path& path) {
    desk.platform.files.emplace_back(path);
    desk.Choose("frmFaseSh.mnuimportafase");
    return desk.TakeOut();
  }
  std::string DialogLine(const std::string& answer) {
    return "dialog open \"Tracciato (*.trc)|*.trc|\" default=\".trc\" folder=\"" +
           (desk.folder.path() / "Response").string() + "\" -> " + answer + "\n";
  }
  PhaseDesk desk;
};

TEST_F(PhaseTraceFile, GivesPlacesHertzAndDegrees) {
  // x = 10, 30, 50, 70 are 10, 100, 1000 and 10000 Hz
  EXPECT_EQ(Import(" 255 \r\n10            -60\r\n30            -120\r\n50            175\r\n70            90\r\n"),
            DialogLine((desk.folder.path() / "a.trc").string()));
  EXPECT_EQ(desk.state.PhaseX1, (Curve{10, 30, 50, 70, 0}));
  EXPECT_EQ(desk.state.PhaseDeg1, (Curve{-60, -120, 175, 90, 0}));
  ExpectNear(desk.state.PhaseHz1, {10, 100, 1000, 10000, 0});
  EXPECT_EQ(desk.state.PhaseCurveCount, 1);
  EXPECT_TRUE(desk.tool.cmdset1.enabled);
  EXPECT_FALSE(desk.tool.cmdcalcola.enabled);
  EXPECT_EQ(desk.Colours(), std::vector<int>{0});  // black, whatever colour the file names
}

TEST_F(PhaseTraceFile, IsTheSecondCurveBehindAPastedOne) {
  desk.PasteText(kBlackText);
  Import(" 0 \r\n10 -60\r\n30 -120\r\n50 175\r\n70 90\r\n");
  EXPECT_EQ(desk.state.PhaseCurveCount, 2);
  EXPECT_EQ(desk.state.PhaseDeg1, kBlackDeg);
  EXPECT_EQ(desk.state.PhaseDeg2, (Curve{-60, -120, 175, 90, 0}));
  EXPECT_TRUE(desk.tool.cmdset2.enabled && desk.tool.cmdcalcola.enabled);
  EXPECT_FALSE(desk.tool.cmdimporta.enabled || desk.tool.mnuimportafase.enabled);
  EXPECT_EQ(desk.Colours(), (std::vector<int>{0, 16711935}));
}

TEST_F(PhaseTraceFile, BeforeAPastedCurveMakesThatOneTheSecond) {
  Import(" 0 \r\n10 -60\r\n30 -120\r\n");
  desk.PasteText(kMagentaText);
  EXPECT_EQ(desk.state.PhaseCurveCount, 2);
  EXPECT_EQ(desk.state.PhaseDeg2, kMagentaDeg);
  EXPECT_TRUE(std::filesystem::exists(desk.folder.path() / "Sequenza2.ovl"));
}

TEST_F(PhaseTraceFile, DropsTheFirstLineWhateverItHolds) {
  Import("red, or so\r\n10 -60\r\n");
  EXPECT_EQ(desk.state.PhaseDeg1, (Curve{-60, 0}));
}

TEST_F(PhaseTraceFile, CancelledChangesNothing) {
  desk.platform.files.emplace_back(std::nullopt);
  desk.Choose("frmFaseSh.mnuimportafase");
  EXPECT_EQ(desk.TakeOut(), DialogLine("cancel"));
  EXPECT_EQ(desk.state.PhaseCurveCount, 0);
}

struct BadFile {
  const char* bytes;
  const char* why;
};

TEST_F(PhaseTraceFile, DamagedShowsTheMessageAndKeepsTheTool) {
  const std::filesystem::path folder = desk.folder.path();
  for (const auto& [bytes, why] :
       {BadFile{"", "Input past end of file"}, BadFile{" 0 \r\n10 -60\r\n30", "Input past end of file"},
        BadFile{" 0 \r\n9999 -60\r\n", "Overflow"}}) {
    EXPECT_EQ(Import(bytes), DialogLine((folder / "a.trc").string()) +
                                 "message stop \"Error\" \"The file could not be opened. " + why + "\" [OK] -> OK\n");
    EXPECT_EQ(desk.state.PhaseCurveCount, 0);
    EXPECT_TRUE(desk.state.PhaseX1.empty());
    EXPECT_FALSE(desk.tool.cmdset1.enabled);
    EXPECT_TRUE(desk.Chart().empty());
  }
  EXPECT_NE(ImportFile(folder / "none.trc").find("The file could not be opened. File not found"), std::string::npos);
  EXPECT_EQ(desk.program.run, RunState::Running);
}

TEST(PhaseTraceFileInItalian, IsLookedForInItsFolder) {
  PhaseDesk desk(Language::Italian);
  desk.platform.files.emplace_back(std::nullopt);
  desk.Choose("frmFaseSh.mnuimportafase");
  EXPECT_EQ(desk.TakeOut(), "dialog open \"Tracciato (*.trc)|*.trc|\" default=\".trc\" folder=\"" +
                                (desk.folder.path() / "Tracciati").string() + "\" -> cancel\n");
}

// ---- back to the start ----

void ExpectStart(PhaseDesk& desk) {
  const ProjectState& s = desk.state;
  for (const Curve* const curve :
       {&s.PhaseX1, &s.PhaseDeg1, &s.PhaseHz1, &s.PhaseX2, &s.PhaseDeg2, &s.PhaseHz2, &s.Set1PhaseFreq, &s.Set1PhaseDeg,
        &s.Set2PhaseFreq, &s.Set2PhaseDeg, &s.SumPhaseDeg}) {
    EXPECT_TRUE(curve->empty());
  }
  EXPECT_EQ(s.PhaseCurveCount, 0);
  EXPECT_EQ(s.DelayedCurve, "");
  EXPECT_FALSE(s.Set1PhaseStored || s.Set1PhaseShown || s.Set2PhaseStored || s.Set2PhaseShown);
  EXPECT_EQ(desk.platform.clipboard, "");
  EXPECT_FALSE(std::filesystem::exists(desk.folder.path() / "Sequenza1.ovl"));
  EXPECT_FALSE(std::filesystem::exists(desk.folder.path() / "Sequenza2.ovl"));
  EXPECT_FALSE(desk.offset.window.open || desk.delay.window.open);
}

void ExpectStartOfTheWindow(PhaseDesk& desk) {
  for (const Control* const control : {&desk.tool.cmdset1, &desk.tool.cmdset2, &desk.tool.mnusalvarosso,
                                       &desk.tool.mnusalvablu, &desk.tool.cmdcalcola, &desk.tool.cmdsomma}) {
    EXPECT_FALSE(control->enabled) << control->name;
  }
  EXPECT_TRUE(desk.tool.cmdimporta.enabled && desk.tool.mnuimportafase.enabled);
  for (const Control* const tick : {&desk.tool.chkonoff1, &desk.tool.chkonoff2}) {
    EXPECT_FALSE(tick->checked || tick->visible) << tick->name;
  }
  EXPECT_TRUE(desk.Chart().empty());
  EXPECT_EQ(desk.GridLines(), 39U);
}

/// Two curves, both traces, a delay, both small windows, and something on the clipboard.
void FillTool(PhaseDesk& desk) {
  desk.PasteBoth();
  desk.Click("frmFaseSh.cmdset1");
  desk.Click("frmFaseSh.cmdset2");
  desk.FindOffset("25");
  desk.Click("frmFaseSh.cmdsomma");
  desk.Click("frmsommadelay.cmdsfasadelay");
  desk.Click("frmFaseSh.cmdcalcola");
  desk.platform.clipboard = "a word";
  ASSERT_TRUE(desk.offset.window.open && desk.delay.window.open);
  ASSERT_EQ(desk.state.DelayedCurve, "Magenta");
  ASSERT_TRUE(desk.state.Set1PhaseShown && desk.state.Set2PhaseShown);
}

TEST(PhaseOffsetTool, IsEmptiedByItsCancelButton) {
  PhaseDesk desk;
  FillTool(desk);
  desk.Click("frmFaseSh.cmdcancella");
  ExpectStart(desk);
  ExpectStartOfTheWindow(desk);
  EXPECT_TRUE(desk.tool.window.open);
  desk.PasteText(kMagentaText);
  EXPECT_EQ(desk.state.PhaseDeg1, kMagentaDeg);
}

TEST(PhaseOffsetTool, IsEmptiedFromEachCountOfCurves) {
  for (const int count : {0, 1, 2}) {
    PhaseDesk desk;
    if (count > 0) desk.PasteText(kBlackText);
    if (count > 1) desk.PasteText(kMagentaText);
    ASSERT_EQ(desk.state.PhaseCurveCount, count);
    desk.Click("frmFaseSh.cmdcancella");
    ExpectStart(desk);
    ExpectStartOfTheWindow(desk);
  }
}

TEST(PhaseOffsetTool, IsEmptiedAndClosedByItsCloseButton) {
  PhaseDesk desk;
  FillTool(desk);
  desk.Click("frmFaseSh.cmdchiudi");
  ExpectStart(desk);
  EXPECT_FALSE(desk.tool.window.open);
}

TEST(PhaseOffsetTool, IsEmptiedWhenItsMenuClosesIt) {
  PhaseDesk desk;
  FillTool(desk);
  desk.Choose("frmFaseSh.mnuchiudifase");
  ExpectStart(desk);
  EXPECT_FALSE(desk.tool.window.open);
}

TEST(PhaseOffsetTool, IsEmptiedByItsCloseBox) {
  PhaseDesk desk;
  FillTool(desk);
  CloseBox(desk.program, desk.tool.window);
  ExpectStart(desk);
  EXPECT_FALSE(desk.tool.window.open);
  desk.Choose("mdithsm.mnudelay");
  ExpectStartOfTheWindow(desk);
}

// ---- the read-out ----

struct Press {
  double x, y;
  const char* text;
  bool right, below;
};

class PhaseOffsetReadout : public testing::TestWithParam<Press> {};

// f = 10^((x + 10) / 20), p = 180 - y; the chart reaches from 10 to 76, with its middle at 43 and 180.
TEST_P(PhaseOffsetReadout, ShowsFrequencyAndPhaseTowardsTheMiddle) {
  PhaseDesk desk;
  const auto [x, y, text, right, below] = GetParam();
  PressMouse(desk.program, desk.tool.pctgrafFase, x, y);
  const Control& readout = desk.tool.txtposFase;
  EXPECT_TRUE(readout.visible);
  EXPECT_EQ(*readout.text, text);
  EXPECT_EQ(readout.left > x, right);
  EXPECT_EQ(readout.top > y, below);
  ReleaseMouse(desk.program, desk.tool.pctgrafFase);
  EXPECT_FALSE(readout.visible);
}

INSTANTIATE_TEST_SUITE_P(Corners, PhaseOffsetReadout,
                         testing::Values(Press{30, 45, "100.00 Hz ; 135.00 °", true, true},
                                         Press{50, 45, "1000.00 Hz ; 135.00 °", false, true},
                                         Press{10, 300, "10.00 Hz ; -120.00 °", true, false},
                                         Press{70, 270, "10000.00 Hz ; -90.00 °", false, false},
                                         Press{42.5, 179, "421.70 Hz ; 1.00 °", true, true},
                                         Press{43.5, 181, "473.15 Hz ; -1.00 °", false, false}));

}  // namespace
}  // namespace zefirondo
