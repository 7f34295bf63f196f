// What leaves a plot, what closes and orders the graph windows, and the keys of their power fields.
#include "box/box_type.h"
#include "core/acts.h"
#include "core/window_life.h"
#include "response/box_response.h"
#include "response/phase.h"
#include "response/plain_curves.h"
#include "response/spl.h"

namespace zefirondo {
namespace {

const std::string kWarning = "message stop \"Error\" \"Warning: Inputs must be a number\" [OK] -> OK\n";

class GraphDesk : public testing::Test {
 protected:
  GraphDesk() { desk.DesignVented(); }

  void Open(const char* entry) { desk.Choose(std::string("frmgrafcassa.") + entry); }
  Window& WindowOf(const char* name) { return *desk.program.FindWindow(name); }
  const std::vector<Window*>& order() { return desk.program.order; }
  std::vector<Point> LastCurve(const char* plot) {
    const Surface& surface = *desk[plot].surface;
    const Stroke chain = plain::Chains(surface).back();
    const auto first = surface.points.begin() + static_cast<std::ptrdiff_t>(chain.first);
    return {first, first + static_cast<std::ptrdiff_t>(chain.count)};
  }

  Desk desk;
  ProjectState& s = desk.state;
};

// ---- what is drawn outside a plot, for its edge to cut off ----

TEST_F(GraphDesk, CurvesBeginLeftOfTheirPlots) {
  for (const char* const entry : {"mnuspl", "mnusplmax", "mnuairspeed", "mnufase"}) Open(entry);
  for (const char* const plot : {"frmgrafcassa.pctgraf", "frmspl.pctgrafspl", "frmsplMax.pctgrafspl",
                                 "frmairspeed.pctgrafair", "frmFase.pctgrafFase"}) {
    EXPECT_NEAR(LastCurve(plot).front().x, -2.705, 5e-4) << plot;  // 20·log10(0.7324)
    EXPECT_LT(LastCurve(plot).front().x, desk[plot].surface->scale.left) << plot;
  }
}

TEST_F(GraphDesk, TheAirSpeedGoesOnBehindItsPlot) {
  Open("mnuairspeed");
  const Surface& surface = *desk["frmairspeed.pctgrafair"].surface;
  EXPECT_EQ(surface.scale.left + surface.scale.width, 60);  // 1 kHz
  // The last point drawn is the one before 2000.92 Hz.
  EXPECT_NEAR(LastCurve("frmairspeed.pctgrafair").back().x, 20 * std::log10(2000.1844), 1e-6);
}

TEST_F(GraphDesk, TheBoxCurveEndsAtTheLastPointButOne) {
  // 6826 steps are 4999.3624 Hz: right of 4984 Hz, where the plot ends.
  EXPECT_NEAR(LastCurve("frmgrafcassa.pctgraf").back().x, 20 * std::log10(4999.3624), 1e-6);
}

TEST_F(GraphDesk, AnExcursionBetweenTwentyAndThirtyLeavesItsPlot) {
  desk.sheet.selected_tab = "chi";
  s.Qtc = 0.7;
  s.Fc = 60;
  s.WooferWiring = "biamp";
  s.txtpotenza = "1";
  Open("mnuescursione");
  const double one = 20 - LastCurve("frmescursione.pctgrafex").front().y;
  // The excursion goes with the root of the power; the field holds what it takes for 29.9 mm, and then for 30.1 mm.
  for (const auto& [wanted, y] : {std::pair{29.9, 20 - 29.9}, {30.1, 0.0}}) {
    desk.Set("frmescursione.txtpot", std::to_string(wanted / one * (wanted / one)));
    desk.Click("frmescursione.cmdcalc");
    EXPECT_NEAR(LastCurve("frmescursione.pctgrafex").front().y, y, 1e-4);
  }
}

// ---- closing and order ----

TEST_F(GraphDesk, AChangeOfTheBoxTypeClosesTheAirSpeedToo) {
  for (const bool vented : {false, true}) {
    for (const char* const entry : {"mnuspl", "mnusplmax", "mnuescursione", "mnuairspeed", "mnufase"}) Open(entry);
    DesignBox(desk.program, vented);
    for (const char* const name : {"frmspl", "frmsplMax", "frmescursione", "frmairspeed", "frmFase"}) {
      EXPECT_FALSE(WindowOf(name).open) << name;
    }
    EXPECT_FALSE(s.GrafAirspeedOpen);
    EXPECT_TRUE(WindowOf("frmgrafcassa").open);
    desk.sheet.selected_tab = "ref";
  }
}

TEST_F(GraphDesk, ADesignTakenAnewAsAnotherTypeClosesTheAirSpeed) {
  Open("mnuairspeed");
  desk.Tab("par");
  ASSERT_EQ(desk.Set("txtqes", "0.9").refusal, Refusal::None);
  desk.platform.answers.push_back(Answer::Yes);
  ASSERT_EQ(desk.Click("cmdcalcola").refusal, Refusal::None);
  EXPECT_EQ(desk.sheet.selected_tab, "chi");
  EXPECT_FALSE(WindowOf("frmairspeed").open);
}

TEST_F(GraphDesk, AChangeOfTheDesignLeavesTheAirSpeedOpen) {
  Open("mnuairspeed");
  desk.Set("txtvolnetto", "80");
  desk.Leave();
  EXPECT_TRUE(WindowOf("frmairspeed").open);
}

TEST_F(GraphDesk, DeleteOnTheBoxGraphClosesThePhaseGraphAlone) {
  Open("mnuspl");
  Open("mnufase");
  desk["frmgrafcassa.cmdcancella"].enabled = true;
  desk.Click("frmgrafcassa.cmdcancella");
  EXPECT_FALSE(WindowOf("frmFase").open);
  EXPECT_TRUE(WindowOf("frmspl").open);
}

TEST_F(GraphDesk, ARedrawOfTheBoxGraphPutsItBeforeTheSheet) {
  BringToFront(desk.program, desk.sheet.window);
  RidisegnaCassa(desk.program);
  EXPECT_EQ(order().front()->name, "frmgrafcassa");
  EXPECT_EQ(order()[order().size() - 2]->name, "frmthsm");
}

TEST_F(GraphDesk, ARedrawOfTheLevelsLeavesTheOrder) {
  Open("mnuspl");
  BringToFront(desk.program, desk.sheet.window);
  const std::vector<Window*> before = order();
  RidisegnaSpl(desk.program);
  EXPECT_EQ(order(), before);
}

TEST_F(GraphDesk, TracesOfTheBoxOutliveItsWindowAndThoseOfTheOthersDoNot) {
  Open("mnuspl");
  Open("mnufase");
  for (const char* const button : {"frmgrafcassa.cmdset1", "frmspl.cmdset1", "frmFase.cmdset1"}) desk.Click(button);
  for (const char* const name : {"frmspl", "frmFase", "frmgrafcassa"}) CloseWindow(desk.program, name);
  EXPECT_TRUE(s.Set1BoxStored && s.Set1BoxShown);
  EXPECT_FALSE(s.Set1SplStored || s.Set1PhaseStored);
  OpenWindow(desk.program, "frmgrafcassa");
  Open("mnuspl");
  Open("mnufase");
  EXPECT_TRUE(desk["frmgrafcassa.chkonoff1"].visible);
  EXPECT_FALSE(desk["frmspl.chkonoff1"].visible || desk["frmFase.chkonoff1"].visible);
}

TEST_F(GraphDesk, LevelsOutliveTheClosingOfTheBoxGraph) {
  Open("mnuspl");
  CloseWindow(desk.program, "frmgrafcassa");
  EXPECT_TRUE(WindowOf("frmspl").open);
  EXPECT_FALSE(s.SplDb.empty());
  EXPECT_FALSE(s.BoxDb.empty());
}

TEST_F(GraphDesk, ThePhaseOfAFilterIsDrawnOverThatOfTheBox) {
  desk.Choose("frmgrafcassa.mnufiltri");
  desk.Click("frmfiltri.cmdvisualizza");
  Open("mnufase");
  const Surface& surface = *desk["frmFase.pctgrafFase"].surface;
  const std::vector<Stroke> chains = plain::Chains(surface);
  ASSERT_EQ(chains.size(), 3U);
  for (std::size_t i = 0; i < chains[1].count; i += 500) {
    EXPECT_EQ(surface.points[chains[1].first + i].y, 180 - s.FilterPhaseDeg[i]);
    EXPECT_EQ(surface.points[chains[2].first + i].y, 180 - s.SumPhaseDeg[i]);
    EXPECT_EQ(surface.points[chains[2].first + i].x, s.FilterPhaseFreq[i]);
  }
  // A redraw knows neither of them, and leaves what stood there.
  RidisegnaFase(desk.program);
  EXPECT_EQ(plain::ChainColours(surface),
            (std::vector{colour::kBlack, colour::kOrange, colour::kMagenta, colour::kBlack}));
}

// ---- the keys of the power fields ----

TEST_F(GraphDesk, PowerFieldsTakeTheirKeys) {
  for (const char* const entry : {"mnusplmax", "mnuescursione", "mnuairspeed"}) Open(entry);
  desk.TakeOut();
  struct Row {
    const char *held, *keys, *text;
    std::size_t warnings, caret;
  };
  for (const std::string window : {"frmsplMax", "frmescursione", "frmairspeed"}) {
    Control& field = desk[window + ".txtpot"];
    // After a 0 a digit only warns: it goes in before the 0, where the caret was put. Another key warns twice.
    for (const Row& row : {Row{"", "12.5", "12.5", 0, 4},
                           {"0", ".5", "0.5", 0, 3},
                           {"0", "\b", "", 0, 0},
                           {"0", "5", "50", 1, 1},
                           {"0", "x", "0", 2, 0},
                           {"0", ",", ".0", 1, 1},
                           {"3.5", ".", "3.5", 1, 0},
                           {"3.5", ",", "3.5", 1, 0},
                           {"7", "-", "7", 1, 0},
                           {"7", ",5", "7.5", 0, 3}}) {
      desk.Set(window + ".txtpot", row.held);
      desk.Type(window + ".txtpot", row.keys);
      EXPECT_EQ(desk.Text(window + ".txtpot"), row.text) << row.held << " then " << row.keys;
      EXPECT_EQ(field.selection_start, row.caret) << row.held << " then " << row.keys;
      std::string warnings;
      for (std::size_t i = 0; i < row.warnings; ++i) warnings += kWarning;
      EXPECT_EQ(desk.TakeOut(), warnings) << row.held << " then " << row.keys;
    }
  }
}

}  // namespace
}  // namespace zefirondo
