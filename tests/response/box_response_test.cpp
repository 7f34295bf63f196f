// The box response window: what it shows when it opens, its two stored traces, its buttons, its read-out.
#include "response/box_response.h"

#include <gtest/gtest.h>

#include "core/acts.h"
#include "core/numbers.h"
#include "core/window_life.h"
#include "support/desk.h"

namespace zefirondo {
namespace {

class BoxWindow : public testing::Test {
 protected:
  BoxWindow() { desk.DesignVented(); }

  BoxResponse& form() { return desk.program.windows.frmgrafcassa; }
  ProjectState& state() { return desk.state; }

  /// The colours of the curves that stand on the plot, in the order drawn; the grid's lines have two points.
  std::vector<int> Curves() {
    std::vector<int> colours;
    for (const Stroke& stroke : form().surface.strokes) {
      if (stroke.count > 2) colours.push_back(stroke.colour);
    }
    return colours;
  }

  /// How many lines of the grid stand on the plot.
  std::size_t GridLines() { return form().surface.strokes.size() - Curves().size(); }

  /// Changes the design so that the computed curve is another one.
  void ChangeCurve() {
    desk.Tab("ref");
    desk.Focus("txtvolnetto");
    desk.Set("txtvolnetto", state().txtvolnetto == "60" ? "90" : "60");
    desk.Leave();
  }

  void PretendASum() {
    state().SumFreq = state().SumDb = {1, 2, 3};
    form().cmdsomma.enabled = form().cmdcancella.enabled = true;
    form().mnuimportaOverlay.enabled = false;
  }

  void ExpectNoSum() {
    EXPECT_TRUE(state().SumFreq.empty());
    EXPECT_TRUE(state().SumDb.empty());
    EXPECT_FALSE(form().cmdsomma.enabled);
    EXPECT_FALSE(form().cmdcancella.enabled);
    EXPECT_TRUE(form().mnuimportaOverlay.enabled);
  }

  Desk desk;
};

constexpr int kBlack = 0;
constexpr int kRed = 255;
constexpr int kBlue = 16711680;

// ---- opening ----

TEST_F(BoxWindow, OpensWithADesignBeforeTheSheet) {
  EXPECT_TRUE(form().window.open);
  EXPECT_TRUE(state().GrafCassaOpen);
  ASSERT_GE(desk.program.order.size(), 3U);
  EXPECT_EQ(desk.program.order[0], &form().window);
  EXPECT_EQ(desk.program.order[1], &desk.sheet.window);
}

TEST_F(BoxWindow, StandsAtItsPlace) {
  EXPECT_EQ(form().window.left, 5000);
  EXPECT_EQ(form().window.top, 2900);
}

TEST_F(BoxWindow, HasTheScaleOfTheCurve) {
  EXPECT_EQ(form().surface.scale.left, 20);
  EXPECT_EQ(form().surface.scale.width, 53.96);
  EXPECT_EQ(form().surface.scale.height, state().BoxScaleTop);
}

TEST_F(BoxWindow, KeepsItsScaleUntilItIsOpenedAgain) {
  state().BoxScaleTop = 90;
  RidisegnaCassa(desk.program);
  EXPECT_NE(form().surface.scale.height, 90);
  ASSERT_TRUE(CloseWindow(desk.program, form().window));
  OpenWindow(desk.program, form().window);
  EXPECT_EQ(form().surface.scale.height, 90);
}

TEST_F(BoxWindow, StartsPlain) {
  for (const char* const name : {"cmdsomma", "cmdcancella", "cmdpiu", "cmdmeno", "txtdbcal", "cmdcalibra"}) {
    EXPECT_FALSE(desk[std::string("frmgrafcassa.") + name].enabled) << name;
  }
  EXPECT_EQ(desk.Text("frmgrafcassa.txtdbcal"), "0");
  EXPECT_FALSE(form().chkonoff1.visible);
  EXPECT_FALSE(form().chkonoff2.visible);
  EXPECT_FALSE(form().mnusalvatracciatorosso.enabled);
  EXPECT_FALSE(form().mnusalvatracciatoblu.enabled);
  EXPECT_FALSE(form().txtpos.visible);
}

TEST_F(BoxWindow, DrawsTheGridAndTheCurve) {
  EXPECT_EQ(Curves(), std::vector<int>{kBlack});
  // A top of 65 to 69 has 6 levels; 25 verticals.
  EXPECT_EQ(GridLines(), 6U + 25U);
  const Stroke& curve = form().surface.strokes.back();
  EXPECT_EQ(curve.count, 6826U);  // 6825 segments, of an upper bound of 6827
  const Point& first = form().surface.points[curve.first];
  EXPECT_EQ(first.x, state().BoxFreq[0]);
  EXPECT_EQ(first.y, state().BoxScaleTop - state().BoxDb[0]);
}

TEST_F(BoxWindow, ShowsF3OfAVentedDesign) { EXPECT_EQ(desk.Text("frmgrafcassa.txtF3dB"), FormatNumber(state().F3v)); }

TEST_F(BoxWindow, ShowsStarsWithoutAnF3) {
  ASSERT_TRUE(CloseWindow(desk.program, form().window));
  state().F3v = 0;
  OpenWindow(desk.program, form().window);
  EXPECT_EQ(desk.Text("frmgrafcassa.txtF3dB"), "****");
}

TEST_F(BoxWindow, ShowsF3ByTheSelectedTabEachTimeItBecomesActive) {
  state().F3v = 33.25;
  state().F3c = 44.5;
  struct Row {
    const char* tab;
    double f3v, f3c;
    const char* text;
  };
  for (const Row& row : {Row{"ref", 33.25, 44.5, "33.25"},
                         {"ref", 0, 44.5, "****"},
                         {"chi", 33.25, 44.5, "44.5"},
                         {"chi", 33.25, 0, "****"},
                         {"par", 33.25, 44.5, "****"}}) {
    desk.sheet.selected_tab = row.tab;
    state().F3v = row.f3v;
    state().F3c = row.f3c;
    BringToFront(desk.program, desk.sheet.window);
    BringToFront(desk.program, form().window);
    EXPECT_EQ(desk.Text("frmgrafcassa.txtF3dB"), row.text) << row.tab;
  }
}

TEST_F(BoxWindow, ClearsItsFlagWhenItCloses) {
  const Curve curve = state().BoxDb;
  desk.Choose("frmgrafcassa.mnuchiudigraf");
  EXPECT_FALSE(form().window.open);
  EXPECT_FALSE(state().GrafCassaOpen);
  EXPECT_EQ(state().BoxDb, curve);
}

TEST_F(BoxWindow, IsOpenedByARedraw) {
  desk.Choose("frmgrafcassa.mnuchiudigraf");
  RidisegnaCassa(desk.program);
  EXPECT_TRUE(form().window.open);
  EXPECT_EQ(Curves(), std::vector<int>{kBlack});
}

TEST_F(BoxWindow, ForgetsTheImportedResponseWithItsClosing) {
  form().OverlayFreq = form().OverlayDb = {1, 2, 3};
  form().CalibrationDb = 3;
  ASSERT_TRUE(CloseWindow(desk.program, form().window));
  OpenWindow(desk.program, form().window);
  EXPECT_TRUE(form().OverlayFreq.empty());
  EXPECT_TRUE(form().OverlayDb.empty());
  EXPECT_EQ(form().CalibrationDb, 0);
}

// ---- stored traces ----

struct SlotRow {
  const char* set;
  const char* tick;
  const char* save;
  Curve ProjectState::*freq;
  Curve ProjectState::*db;
  bool ProjectState::*stored;
  bool ProjectState::*shown;
  int colour;
};

const SlotRow kSlots[]{
    {"frmgrafcassa.cmdset1", "frmgrafcassa.chkonoff1", "frmgrafcassa.mnusalvatracciatorosso",
     &ProjectState::Set1BoxFreq, &ProjectState::Set1BoxDb, &ProjectState::Set1BoxStored, &ProjectState::Set1BoxShown,
     kRed},
    {"frmgrafcassa.cmdset2", "frmgrafcassa.chkonoff2", "frmgrafcassa.mnusalvatracciatoblu", &ProjectState::Set2BoxFreq,
     &ProjectState::Set2BoxDb, &ProjectState::Set2BoxStored, &ProjectState::Set2BoxShown, kBlue},
};

class BoxTrace : public BoxWindow, public testing::WithParamInterface<std::size_t> {
 protected:
  const SlotRow& slot = kSlots[GetParam()];
};

TEST_P(BoxTrace, HasOneElementBeforeItIsStored) {
  EXPECT_EQ((state().*slot.freq).size(), 1U);
  EXPECT_EQ((state().*slot.db).size(), 1U);
}

TEST_P(BoxTrace, IsStoredAndDrawnOnTopOfWhatIsThere) {
  PretendASum();
  desk.Click(slot.set);
  EXPECT_EQ(state().*slot.freq, state().BoxFreq);
  EXPECT_EQ(state().*slot.db, state().BoxDb);
  EXPECT_TRUE(state().*slot.stored);
  EXPECT_TRUE(state().*slot.shown);
  EXPECT_TRUE(desk[slot.tick].visible);
  EXPECT_TRUE(desk[slot.tick].checked);
  EXPECT_TRUE(desk[slot.save].enabled);
  EXPECT_EQ(Curves(), (std::vector<int>{kBlack, slot.colour}));
  EXPECT_EQ(state().SumDb.size(), 3U);  // the first storing leaves the sum alone
}

TEST_P(BoxTrace, IsReplacedAndDrawnAnewWithoutTheSum) {
  desk.Click(slot.set);
  const Curve first = state().*slot.db;
  ChangeCurve();
  PretendASum();
  desk.Click(slot.set);
  EXPECT_NE(state().*slot.db, first);
  EXPECT_EQ(state().*slot.db, state().BoxDb);
  EXPECT_EQ(Curves(), (std::vector<int>{kBlack, slot.colour}));
  ExpectNoSum();
}

TEST_P(BoxTrace, GoesWithItsTickAndComesBack) {
  desk.Click(slot.set);
  desk.Click(slot.tick);
  EXPECT_FALSE(state().*slot.shown);
  EXPECT_TRUE(state().*slot.stored);
  EXPECT_FALSE(desk[slot.save].enabled);
  EXPECT_EQ(Curves(), std::vector<int>{kBlack});
  EXPECT_EQ(GridLines(), 31U);
  desk.Click(slot.tick);
  EXPECT_TRUE(state().*slot.shown);
  EXPECT_TRUE(desk[slot.save].enabled);
  EXPECT_EQ(Curves(), (std::vector<int>{kBlack, slot.colour}));
}

TEST_P(BoxTrace, GoesAndLeavesTheOtherOne) {
  const SlotRow& other = kSlots[1 - GetParam()];
  desk.Click(slot.set);
  desk.Click(other.set);
  desk.Click(slot.tick);
  EXPECT_EQ(Curves(), (std::vector<int>{kBlack, other.colour}));
  desk.Click(other.tick);
  desk.Click(slot.tick);  // and does not bring back the other
  EXPECT_EQ(Curves(), (std::vector<int>{kBlack, slot.colour}));
}

TEST_P(BoxTrace, IsSetAgainWhileItIsNotShown) {
  desk.Click(slot.set);
  desk.Click(slot.tick);
  ChangeCurve();
  desk.Click(slot.set);
  EXPECT_EQ(state().*slot.db, state().BoxDb);
  EXPECT_TRUE(desk[slot.tick].checked);
  EXPECT_EQ(Curves(), (std::vector<int>{kBlack, slot.colour}));
}

TEST_P(BoxTrace, OutlivesTheWindow) {
  desk.Click(slot.set);
  desk.Choose("frmgrafcassa.mnuchiudigraf");
  OpenWindow(desk.program, form().window);
  EXPECT_TRUE(desk[slot.tick].visible);
  EXPECT_TRUE(desk[slot.tick].checked);
  EXPECT_TRUE(desk[slot.save].enabled);
  EXPECT_EQ(Curves(), (std::vector<int>{kBlack, slot.colour}));
}

TEST_P(BoxTrace, ThatIsNotShownComesBackUnticked) {
  desk.Click(slot.set);
  desk.Click(slot.tick);
  desk.Choose("frmgrafcassa.mnuchiudigraf");
  OpenWindow(desk.program, form().window);
  EXPECT_TRUE(desk[slot.tick].visible);
  EXPECT_FALSE(desk[slot.tick].checked);
  EXPECT_FALSE(desk[slot.save].enabled);
  EXPECT_EQ(Curves(), std::vector<int>{kBlack});
}

INSTANTIATE_TEST_SUITE_P(BothSlots, BoxTrace, testing::Values(0U, 1U));

TEST_F(BoxWindow, PaintsBlackThenRedThenBlue) {
  desk.Click("frmgrafcassa.cmdset2");
  desk.Click("frmgrafcassa.cmdset1");
  EXPECT_EQ(Curves(), (std::vector<int>{kBlack, kBlue, kRed}));  // as they were switched on
  RidisegnaCassa(desk.program);
  EXPECT_EQ(Curves(), (std::vector<int>{kBlack, kRed, kBlue}));
}

TEST_F(BoxWindow, LosesWhatIsLaidOverInARedraw) {
  form().surface.Line(20, 0, 30, 10, colour::kGreen);
  RidisegnaCassa(desk.program);
  for (const Stroke& stroke : form().surface.strokes) EXPECT_NE(stroke.colour, colour::kGreen);
}

// ---- delete ----

TEST_F(BoxWindow, IsPlainAgainAfterDelete) {
  desk.Click("frmgrafcassa.cmdset1");
  desk.Click("frmgrafcassa.cmdset2");
  const Curve second = state().Set2BoxDb;
  PretendASum();
  state().SumPhaseDeg = state().FilterFreq = state().FilterDb = {1, 2};
  form().OverlayFreq = form().OverlayDb = {1, 2};
  state().FilterComputed = true;
  for (Control* const control : {&form().cmdpiu, &form().cmdmeno, &form().txtdbcal, &form().cmdcalibra}) {
    control->enabled = true;
  }
  desk.Set("frmgrafcassa.txtdbcal", "3.5");

  desk.Click("frmgrafcassa.cmdcancella");

  EXPECT_EQ(Curves(), std::vector<int>{kBlack});
  EXPECT_EQ(GridLines(), 31U);
  ExpectNoSum();
  for (const Curve* const curve : {&state().SumPhaseDeg, &state().Set1BoxFreq, &state().Set1BoxDb, &form().OverlayFreq,
                                   &form().OverlayDb, &state().FilterFreq, &state().FilterDb}) {
    EXPECT_TRUE(curve->empty());
  }
  EXPECT_EQ(state().Set2BoxDb, second);  // kept, and without effect
  for (const bool flag : {state().Set1BoxStored, state().Set1BoxShown, state().Set2BoxStored, state().Set2BoxShown}) {
    EXPECT_FALSE(flag);
  }
  for (const char* const tick : {"frmgrafcassa.chkonoff1", "frmgrafcassa.chkonoff2"}) {
    EXPECT_FALSE(desk[tick].visible);
    EXPECT_FALSE(desk[tick].checked);
  }
  EXPECT_EQ(desk.Text("frmgrafcassa.txtdbcal"), "0");
  for (const char* const name : {"cmdpiu", "cmdmeno", "txtdbcal", "cmdcalibra"}) {
    EXPECT_FALSE(desk[std::string("frmgrafcassa.") + name].enabled) << name;
  }
  EXPECT_FALSE(state().FilterComputed);
}

// ---- the read-out ----

TEST_F(BoxWindow, TellsDecibelsAtTheMouse) {
  // At x = 40, 100 Hz; the plot's top stands for top − 40 dB.
  PressMouse(desk.program, form().pctgraf, 40, 0);
  EXPECT_TRUE(form().txtpos.visible);
  EXPECT_EQ(*form().txtpos.text, "100.00 Hz ; " + std::to_string(state().BoxScaleTop - 40) + ".00 dB");
  ReleaseMouse(desk.program, form().pctgraf);
  EXPECT_FALSE(form().txtpos.visible);
}

TEST_F(BoxWindow, TellsZeroDecibelsFortyUnderTheTop) {
  PressMouse(desk.program, form().pctgraf, 60, state().BoxScaleTop - 40);
  EXPECT_EQ(*form().txtpos.text, "1000.00 Hz ; 0.00 dB");
}

// ---- the calibration's keys ----

struct KeyRow {
  const char* keys;
  const char* text;
  std::size_t warnings;
};

TEST_F(BoxWindow, FiltersTheKeysOfTheCalibration) {
  const std::string warning = "message stop \"Error\" \"Warning: Inputs must be a number\" [OK] -> OK\n";
  for (const KeyRow& row : {KeyRow{"-3.5", "-3.5", 0},
                            {"3,5", "3.5", 0},
                            {"1.2.3", "1.23", 1},
                            {"12a", "12", 1},
                            {"12\b4", "14", 0},
                            {"05", "05", 0}}) {
    form().txtdbcal.enabled = true;
    desk.Set("frmgrafcassa.txtdbcal", "");
    desk.TakeOut();
    desk.Type("frmgrafcassa.txtdbcal", row.keys);
    EXPECT_EQ(desk.Text("frmgrafcassa.txtdbcal"), row.text) << row.keys;
    std::string expected;
    for (std::size_t i = 0; i < row.warnings; ++i) expected += warning;
    EXPECT_EQ(desk.TakeOut(), expected) << row.keys;
  }
}

TEST_F(BoxWindow, MovesOnFromTheCalibrationByEnter) {
  form().txtdbcal.enabled = form().cmdpiu.enabled = true;
  desk.Type("frmgrafcassa.txtdbcal", "3\n");
  EXPECT_EQ(desk.program.focus, &form().cmdpiu);
}

// ---- the words ----

TEST(BoxWindowWords, AreThoseOfTheLanguage) {
  struct Row {
    const char* name;
    const char* english;
    const char* italian;
  };
  constexpr Row kRows[]{{"lblnomegraf", "Frequency - dB", "Grafico Frequenza - dB"},
                        {"cmdsomma", "&Add Graphics", "&Somma grafici"},
                        {"cmdcancella", "&Delete", "&Cancella"},
                        {"fraleggenda", "Caption", "Leggenda"},
                        {"lblcassa", "Box", "Cassa"},
                        {"lblfiltro", "Filter", "Filtro"},
                        {"lblimport", "Import", "Import."},
                        {"lblsomma", "Sum", "Somma"},
                        {"Label1", "Calibration", "Calibrazione"},
                        {"cmdcalibra", "&Apply", "C&alibra"},
                        {"lbl3dB", "-3dB @", "-3dB @"},
                        {"lblhz", "Hz", "Hz"},
                        {"lblovl1", "Trk1", "Trk1"},
                        {"lblovl2", "Trk2", "Trk2"},
                        {"lblset1", "Set", "Set"},
                        {"lblonoff2", "On/Off", "On/Off"},
                        {"lbldbcal", "dB", "dB"}};
  for (const Language language : {Language::English, Language::Italian}) {
    Desk desk(language);
    const bool english = language == Language::English;
    desk.DesignVented();
    EXPECT_EQ(desk.program.windows.frmgrafcassa.window.caption,
              english ? "Transfer Function" : "Funzione di trasferimento");
    for (const Row& row : kRows) {
      EXPECT_EQ(desk.Text(std::string("frmgrafcassa.") + row.name), english ? row.english : row.italian) << row.name;
    }
  }
}

}  // namespace
}  // namespace zefirondo
