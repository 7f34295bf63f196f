// The stored traces of the phase offset tool.
#include "filters/phase_desk.h"

namespace zefirondo {
namespace {

constexpr int kBlack = 0;
constexpr int kMagenta = 16711935;
constexpr int kRed = 255;
constexpr int kBlue = 16711680;

using Colours = std::vector<int>;

TEST(StoredPhaseTrace, OfTheBlackCurveIsShownInRed) {
  PhaseDesk desk;
  desk.PasteText(kBlackText);
  desk.Click("frmFaseSh.cmdset1");
  EXPECT_EQ(desk.state.Set1PhaseFreq, desk.state.PhaseX1);
  EXPECT_EQ(desk.state.Set1PhaseDeg, kBlackDeg);
  EXPECT_TRUE(desk.state.Set1PhaseStored && desk.state.Set1PhaseShown);
  EXPECT_TRUE(desk.tool.chkonoff1.visible && desk.tool.chkonoff1.checked);
  EXPECT_TRUE(desk.tool.mnusalvarosso.enabled);
  EXPECT_FALSE(desk.tool.mnusalvablu.enabled);
  ASSERT_EQ(desk.Colours(), (Colours{kBlack, kRed}));
  EXPECT_EQ(desk.Chart()[1].degrees, Drawn(kBlackDeg));  // with the scale of the curve, no half turn lower
}

TEST(StoredPhaseTrace, OfTheMagentaCurveIsShownInBlue) {
  PhaseDesk desk;
  desk.PasteBoth();
  desk.Click("frmFaseSh.cmdset2");
  EXPECT_EQ(desk.state.Set2PhaseFreq, desk.state.PhaseX2);
  EXPECT_EQ(desk.state.Set2PhaseDeg, kMagentaDeg);
  EXPECT_TRUE(desk.state.Set2PhaseStored && desk.state.Set2PhaseShown);
  EXPECT_TRUE(desk.tool.chkonoff2.visible && desk.tool.chkonoff2.checked);
  EXPECT_TRUE(desk.tool.mnusalvablu.enabled);
  EXPECT_FALSE(desk.tool.mnusalvarosso.enabled);
  ASSERT_EQ(desk.Colours(), (Colours{kBlack, kMagenta, kBlue}));
  EXPECT_EQ(desk.Chart()[2].degrees, Drawn(kMagentaDeg));
}

TEST(StoredPhaseTrace, SwitchedOffRedrawsTheCurvesAndTheOtherTrace) {
  PhaseDesk desk;
  desk.PasteBoth();
  desk.Click("frmFaseSh.cmdset1");
  desk.Click("frmFaseSh.cmdset2");
  desk.Click("frmFaseSh.chkonoff1");
  EXPECT_EQ(desk.Colours(), (Colours{kBlack, kMagenta, kBlue}));
  EXPECT_EQ(desk.GridLines(), 39U);
  EXPECT_TRUE(desk.state.Set1PhaseStored);
  EXPECT_FALSE(desk.state.Set1PhaseShown || desk.tool.mnusalvarosso.enabled);
  desk.Click("frmFaseSh.chkonoff1");
  EXPECT_EQ(desk.Colours(), (Colours{kBlack, kMagenta, kBlue, kRed}));
  EXPECT_TRUE(desk.state.Set1PhaseShown && desk.tool.mnusalvarosso.enabled);
  desk.Click("frmFaseSh.chkonoff2");
  EXPECT_EQ(desk.Colours(), (Colours{kMagenta, kBlack, kRed}));  // the second curve comes first here
  EXPECT_FALSE(desk.state.Set2PhaseShown || desk.tool.mnusalvablu.enabled);
  desk.Click("frmFaseSh.chkonoff1");
  EXPECT_EQ(desk.Colours(), (Colours{kBlack, kMagenta}));
}

TEST(StoredPhaseTrace, SwitchedOffWithOneCurveDrawsThatAlone) {
  PhaseDesk desk;
  desk.PasteText(kBlackText);
  desk.Click("frmFaseSh.cmdset1");
  desk.Click("frmFaseSh.chkonoff1");
  EXPECT_EQ(desk.Colours(), Colours{kBlack});
}

TEST(StoredPhaseTrace, StoredAgainWhileShownRedrawsTheGraphOfTheDesignInstead) {
  PhaseDesk desk;
  desk.PasteText(kBlackText);
  desk.Click("frmFaseSh.cmdset1");
  desk.state.PhaseDeg1[0] = 12;
  const Colours before = desk.Colours();
  desk.Click("frmFaseSh.cmdset1");
  EXPECT_EQ(desk.state.Set1PhaseDeg[0], 12);
  EXPECT_EQ(desk.Colours(), before);
  // The phase graph of the design has the red trace now, half a turn lower as in each redraw of it.
  const Surface& graph = desk.program.windows.frmFase.surface;
  ASSERT_FALSE(graph.strokes.empty());
  EXPECT_EQ(graph.strokes.back().colour, kRed);
  EXPECT_EQ(graph.points[graph.strokes.back().first].y, 360 - 12);
}

TEST(StoredPhaseTrace, StoredAgainWhileHiddenIsTickedAgain) {
  PhaseDesk desk;
  desk.PasteText(kBlackText);
  desk.Click("frmFaseSh.cmdset1");
  desk.Click("frmFaseSh.chkonoff1");
  desk.Click("frmFaseSh.cmdset1");
  EXPECT_TRUE(desk.tool.chkonoff1.checked && desk.state.Set1PhaseShown);
  EXPECT_EQ(desk.Colours(), (Colours{kBlack, kRed}));
}

TEST(StoredPhaseTrace, OfADelayedCurveIsTheDelayedOne) {
  PhaseDesk desk;
  desk.OpenDelay();
  desk.Set("frmsommadelay.txtfase2", "2.5");
  desk.Click("frmsommadelay.cmdsfasadelay");
  desk.Click("frmsommadelay.cmdchiudi");
  desk.Click("frmFaseSh.cmdset2");
  // 2.5 ms are 9 degrees for each 10 Hz
  ExpectNear(desk.state.Set2PhaseDeg, {-39, -78, -117, -156, 165, 0});
}

TEST(SavedPhaseTrace, HasTheColourAndThePlacesOfTheChart) {
  PhaseDesk desk;
  desk.PasteBoth();
  desk.Click("frmFaseSh.cmdset1");
  desk.Click("frmFaseSh.cmdset2");
  const std::filesystem::path red = desk.folder.path() / "red.trc";
  const std::filesystem::path blue = desk.folder.path() / "blue.trc";
  desk.platform.files = {red, blue};
  desk.Choose("frmFaseSh.mnusalvarosso");
  desk.Choose("frmFaseSh.mnusalvablu");
  // 20 log10(f) - 10 for 10, 20, 30 and 40 Hz to 15 digits; the last row is left out
  EXPECT_EQ(ReadFileBytes(red),
            " 255 \r\n"
            "10            -60\r\n"
            "16.0205999132796            -120\r\n"
            "19.5424250943932            -175\r\n"
            "22.0411998265592            175\r\n");
  EXPECT_EQ(ReadFileBytes(blue),
            " 16711680 \r\n"
            "10            -30\r\n"
            "16.0205999132796            -60\r\n"
            "19.5424250943932            -90\r\n"
            "22.0411998265592            -120\r\n");
}

TEST(SavedPhaseTrace, ComesBackAsACurveWithoutItsLastRow) {
  PhaseDesk desk;
  desk.PasteText(kBlackText);
  desk.Click("frmFaseSh.cmdset1");
  const std::filesystem::path red = desk.folder.path() / "red.trc";
  desk.platform.files = {red, red};
  desk.Choose("frmFaseSh.mnusalvarosso");
  desk.Click("frmFaseSh.cmdcancella");
  desk.Choose("frmFaseSh.mnuimportafase");
  ExpectNear(desk.state.PhaseHz1, {10, 20, 30, 40, 0});
  EXPECT_EQ(desk.state.PhaseDeg1, (Curve{-60, -120, -175, 175, 0}));
}

TEST(SavedPhaseTrace, CancelledWritesNothing) {
  PhaseDesk desk;
  desk.PasteText(kBlackText);
  desk.Click("frmFaseSh.cmdset1");
  desk.TakeOut();
  desk.platform.files.emplace_back(std::nullopt);
  desk.Choose("frmFaseSh.mnusalvarosso");
  EXPECT_EQ(desk.TakeOut(), "dialog save \"Response (*.trc)|*.trc\" default=\".trc\" folder=\"" +
                                (desk.folder.path() / "Response").string() + "\" -> cancel\n");
}

}  // namespace
}  // namespace zefirondo
