// The filter window: its choices, its two states, and the filter on the box graph.
#include "filters/filter_designer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "core/numbers.h"
#include "response/plain_curves.h"

namespace zefirondo {
namespace {

using plain::ChainColours;
using Items = std::vector<std::string>;

class FilterDesignerTest : public ::testing::Test {
 protected:
  Desk desk;
  ProjectState& s = desk.state;
  BoxResponse& box = desk.program.windows.frmgrafcassa;
  FilterDesigner& form = desk.program.windows.frmfiltri;

  FilterDesignerTest() {
    desk.DesignVented();
    desk.Choose("frmgrafcassa.mnufiltri");
    desk.TakeOut();
  }
  void Pick(const char* combo, const char* item) { desk.Pick(std::string("frmfiltri.") + combo, item); }
  void Set(const char* field, const char* text) { desk.Set(std::string("frmfiltri.") + field, text); }
  void Click(const char* button) { desk.Click(std::string("frmfiltri.") + button); }
  std::string Text(const char* name) { return desk.Text(std::string("frmfiltri.") + name); }

  void ExpectState(bool shown) {
    EXPECT_EQ(form.cmdvisualizza.enabled, !shown);
    EXPECT_EQ(form.cmdannulla.enabled, !shown);
    EXPECT_EQ(form.cmdcanc.enabled, shown);
    EXPECT_EQ(form.mnusintesi.enabled, shown);
    EXPECT_EQ(s.FilterComputed, shown);
    for (const Control* const control : {&form.cmballineamento, &form.cmbtipo, &form.cmbpendenza, &form.txtft,
                                         &form.txtFinf, &form.cmbgain, &form.cmbQ}) {
      EXPECT_EQ(control->locked, shown) << control->name;
      EXPECT_EQ(control->back, shown ? 14737632 : colour::kWindow) << control->name;
    }
  }
};

TEST_F(FilterDesignerTest, OpensWithItsDefaults) {
  EXPECT_EQ(form.window.caption, "Filter");
  EXPECT_EQ(form.Alignment, "Butterworth");
  EXPECT_EQ(form.FilterType, "Low Pass");
  EXPECT_EQ(form.SlopeOrder, 2);
  EXPECT_EQ(form.Gain, 0.0F);
  EXPECT_EQ(form.Ft, 50.0F);
  EXPECT_EQ(form.Fi, 20.0F);
  EXPECT_EQ(form.cmballineamento.list, (Items{"Butterworth", "Bessel", "Shelving", "Peaking"}));
  EXPECT_EQ(form.cmbtipo.list, (Items{"Low Pass", "Hi Pass", "Band Pass"}));
  EXPECT_EQ(form.cmbpendenza.list, (Items{"6 dB/Oct", "12 dB/Oct", "18 dB/Oct", "24 dB/Oct"}));
  EXPECT_EQ(form.cmbQ.list, (Items{"0.5", "0.707", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
  EXPECT_EQ(form.cmbgain.list.size(), 21U);
  EXPECT_EQ(form.cmbgain.list[10], "0.0");
  EXPECT_EQ(Text("cmbQ"), "0.707");
  EXPECT_EQ(Text("cmbgain"), "0.0");
  for (const Control* const control :
       {&form.lblFh, &form.txtFinf, &form.lblQ, &form.cmbQ, &form.cmdcanc, &form.mnusintesi}) {
    EXPECT_FALSE(control->enabled) << control->name;
  }
  EXPECT_TRUE(form.mnupassivo.enabled);
}

TEST_F(FilterDesignerTest, EachAlignmentHasItsControls) {
  struct Row {
    const char *alignment, *q, *resonance;
    bool slope, q_enabled, type_shown;
    std::size_t types;
  };
  for (const Row& row : {Row{"Bessel", "0.5", "High cutoff frequency", true, false, true, 3},
                         Row{"Shelving", "0.707", "High cutoff frequency", false, true, true, 2},
                         Row{"Butterworth", "0.707", "High cutoff frequency", true, false, true, 3},
                         Row{"Peaking", "0.707", "Resonance frequency", false, true, false, 3},
                         Row{"Shelving", "0.707", "High cutoff frequency", false, true, true, 2},
                         Row{"Peaking", "0.707", "Resonance frequency", false, true, false, 2},
                         Row{"Bessel", "0.5", "High cutoff frequency", true, false, true, 3}}) {
    SCOPED_TRACE(row.alignment);
    Pick("cmballineamento", row.alignment);
    EXPECT_EQ(form.Alignment, row.alignment);
    EXPECT_EQ(Text("cmbQ"), row.q);
    EXPECT_EQ(Text("lblft"), row.resonance);
    EXPECT_EQ(form.cmbpendenza.visible, row.slope);
    EXPECT_EQ(form.lblpendenza.visible, row.slope);
    EXPECT_EQ(form.cmbQ.enabled, row.q_enabled);
    EXPECT_EQ(form.lblQ.enabled, row.q_enabled);
    for (const Control* const control : {&form.cmbtipo, &form.lbltipo, &form.txtFinf, &form.lblFh, &form.lblfhi}) {
      EXPECT_EQ(control->visible, row.type_shown) << control->name;
    }
    EXPECT_EQ(form.cmbtipo.list.size(), row.types);
  }
}

TEST_F(FilterDesignerTest, ShelvingGoesBackToTheFirstType) {
  Pick("cmbtipo", "Band Pass");
  Pick("cmballineamento", "Shelving");
  EXPECT_EQ(Text("cmbtipo"), "Low Pass");
  EXPECT_EQ(form.FilterType, "Low Pass");
  EXPECT_FALSE(form.txtFinf.enabled);
}

TEST_F(FilterDesignerTest, PeakingOpensTheResonance) {
  Pick("cmbtipo", "Hi Pass");
  EXPECT_FALSE(form.txtft.enabled);
  Pick("cmballineamento", "Peaking");
  EXPECT_EQ(Text("cmbtipo"), "Low Pass");
  EXPECT_TRUE(form.txtft.enabled && form.lblft.enabled);
}

TEST_F(FilterDesignerTest, EachTypeOpensItsFrequencies) {
  for (const auto& [type, upper, lower] :
       {std::tuple{"Hi Pass", false, true}, {"Band Pass", true, true}, {"Low Pass", true, false}}) {
    Pick("cmbtipo", type);
    EXPECT_EQ(form.FilterType, type);
    EXPECT_EQ(form.txtft.enabled, upper) << type;
    EXPECT_EQ(form.lblft.enabled, upper) << type;
    EXPECT_EQ(form.txtFinf.enabled, lower) << type;
    EXPECT_EQ(form.lblFh.enabled, lower) << type;
  }
}

TEST_F(FilterDesignerTest, SlopeAndGainAreTakenAtOnce) {
  for (const auto& [slope, order] : {std::pair{"6 dB/Oct", 1}, {"12 dB/Oct", 2}, {"18 dB/Oct", 3}, {"24 dB/Oct", 4}}) {
    Pick("cmbpendenza", slope);
    EXPECT_EQ(form.SlopeOrder, order);
  }
  Pick("cmbgain", "-7");
  EXPECT_EQ(form.Gain, -7.0F);
  Set("cmbgain", "3.5");
  EXPECT_EQ(form.Gain, 3.5F);
}

TEST_F(FilterDesignerTest, LeavingRepairsTextsAndNotWhatIsComputed) {
  Pick("cmballineamento", "Bessel");
  Set("cmballineamento", "nothing");
  desk.Leave();
  EXPECT_EQ(Text("cmballineamento"), "Butterworth");
  EXPECT_EQ(form.Alignment, "Bessel");
  Pick("cmbtipo", "Hi Pass");
  Set("cmbtipo", "x");
  desk.Leave();
  EXPECT_EQ(Text("cmbtipo"), "Low Pass");
  EXPECT_EQ(form.FilterType, "Hi Pass");
  Pick("cmbpendenza", "24 dB/Oct");
  Set("cmbpendenza", "x");
  desk.Leave();
  EXPECT_EQ(Text("cmbpendenza"), "12 dB/Oct");
  EXPECT_EQ(form.SlopeOrder, 4);
  EXPECT_EQ(desk.TakeOut(), "");
  Set("cmbpendenza", "0");
  desk.Leave();
  EXPECT_EQ(Text("cmbpendenza"), "12 dB/Oct");
  EXPECT_EQ(form.SlopeOrder, 4);
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Please enter a non zero value\" [OK] -> OK\n");
}

TEST_F(FilterDesignerTest, AFrequencyOfZeroTakesTheFocusBack) {
  Pick("cmbtipo", "Band Pass");
  for (const char* const field : {"txtft", "txtFinf"}) {
    Set(field, "0");
    desk.Focus("frmfiltri.cmbgain");
    EXPECT_EQ(desk.program.focus, &desk[std::string("frmfiltri.") + field]);
    EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Please enter a non zero value\" [OK] -> OK\n");
    Set(field, "0.0");
    desk.Focus("frmfiltri.cmbgain");
    EXPECT_EQ(desk.TakeOut(), "");
    Set(field, "70");
    desk.Focus("frmfiltri.cmbgain");
    desk.Focus(std::string("frmfiltri.") + field);
    EXPECT_EQ(desk[std::string("frmfiltri.") + field].selection_length, 2U);
  }
}

TEST_F(FilterDesignerTest, KeysAreFiltered) {
  const std::string warning = "message stop \"Error\" \"Warning: Inputs must be a number\" [OK] -> OK\n";
  Set("cmbgain", "");
  desk.Type("frmfiltri.cmbgain", "-2,5");
  EXPECT_EQ(Text("cmbgain"), "-2.5");
  EXPECT_EQ(desk.TakeOut(), "");
  Set("txtft", "");
  desk.Type("frmfiltri.txtft", "8-");
  EXPECT_EQ(Text("txtft"), "8");
  EXPECT_EQ(desk.TakeOut(), warning);
}

TEST_F(FilterDesignerTest, ShowingLocksTheWindowAndDrawsOnTheBoxGraph) {
  ExpectState(false);
  Set("cmbgain", "0.0");
  Click("cmdvisualizza");
  ExpectState(true);
  EXPECT_TRUE(form.mnupassivo.enabled);
  EXPECT_TRUE(box.cmdsomma.enabled && box.cmdcancella.enabled);
  EXPECT_EQ(ChainColours(box.surface), (std::vector{colour::kBlack, colour::kOrange}));
  EXPECT_EQ(s.FilterFreq, s.FilterPhaseFreq);
  EXPECT_EQ(s.FilterDb.size(), 6828U);
  EXPECT_EQ(s.SumFreq.size(), 6828U);
  EXPECT_EQ(s.SumDb.size(), 6828U);
  // Second order low pass at 50 Hz, at 100.3388 Hz: 40 − 10 log10(1 + 2.006776⁴) = 27.644.
  EXPECT_NEAR(s.FilterDb[136], 40 - 10 * std::log10(1 + std::pow(137 * 0.7324 / 50, 4)), 1e-9);
  const double largest = *std::max_element(s.BoxDb.begin(), s.BoxDb.end());
  EXPECT_EQ(s.BoxScaleTop, std::nearbyint(largest) + 25);
  EXPECT_EQ(desk.Pick("frmfiltri.cmbtipo", "Hi Pass").refusal, Refusal::Locked);
}

TEST_F(FilterDesignerTest, OnlyTheExactTextOfNoGainLeavesThePassiveFilter) {
  Set("cmbgain", "0");
  Click("cmdvisualizza");
  EXPECT_FALSE(form.mnupassivo.enabled);
}

TEST_F(FilterDesignerTest, AGainRaisesTheFilterAndNotTheScale) {
  const std::int16_t top = s.BoxScaleTop;
  Pick("cmbgain", "10");
  Click("cmdvisualizza");
  EXPECT_NEAR(s.FilterDb[0], 50, 1e-6);
  EXPECT_EQ(s.BoxScaleTop, top);
}

TEST_F(FilterDesignerTest, ABandTurnedAroundIsRefusedButNotWithPeaking) {
  Pick("cmbtipo", "Band Pass");
  Set("txtFinf", "50");
  Click("cmdvisualizza");
  EXPECT_EQ(desk.TakeOut(),
            "message stop \"Error\" \"The upper cutoff frequency must be greater than the lower cutoff frequency\" "
            "[OK] -> OK\n");
  ExpectState(false);
  Pick("cmballineamento", "Peaking");
  Click("cmdvisualizza");
  EXPECT_EQ(desk.TakeOut(), "");
  ExpectState(true);
}

TEST_F(FilterDesignerTest, ShowingClosesThePhaseGraph) {
  desk.Choose("frmgrafcassa.mnufase");
  Click("cmdvisualizza");
  EXPECT_FALSE(desk.program.windows.frmFase.window.open);
}

TEST_F(FilterDesignerTest, DeleteFreesTheWindowAndCleansTheBoxGraph) {
  Click("cmdvisualizza");
  desk.Click("frmgrafcassa.cmdset1");
  desk.Click("frmgrafcassa.cmdset2");
  desk.Choose("frmgrafcassa.mnufase");
  Click("cmdcanc");
  ExpectState(false);
  EXPECT_EQ(ChainColours(box.surface), std::vector{colour::kBlack});
  EXPECT_FALSE(box.cmdsomma.enabled || box.cmdcancella.enabled);
  EXPECT_TRUE(box.mnuimportaOverlay.enabled);
  for (const Curve* const curve :
       {&s.SumFreq, &s.SumDb, &s.SumPhaseDeg, &s.Set1BoxFreq, &s.Set1BoxDb, &s.FilterFreq, &s.FilterDb}) {
    EXPECT_TRUE(curve->empty());
  }
  EXPECT_FALSE(s.Set1BoxStored || s.Set2BoxStored || s.Set1BoxShown || s.Set2BoxShown);
  EXPECT_FALSE(box.chkonoff1.visible || box.chkonoff2.visible || box.chkonoff1.checked || box.chkonoff2.checked);
  EXPECT_FALSE(desk.program.windows.frmFase.window.open);
}

TEST_F(FilterDesignerTest, DeleteOnTheBoxGraphFreesItToo) {
  Click("cmdvisualizza");
  desk.Click("frmgrafcassa.cmdcancella");
  ExpectState(false);
  EXPECT_TRUE(s.FilterDb.empty());
}

TEST_F(FilterDesignerTest, ItCanBeClosedInBothStates) {
  Click("cmdvisualizza");
  desk.Choose("frmfiltri.mnuchiudi");
  EXPECT_FALSE(form.window.open);
  EXPECT_TRUE(s.FilterComputed);  // the entry leaves the flag alone
  desk.Choose("frmgrafcassa.mnufiltri");
  Click("cmdannulla");
  EXPECT_FALSE(form.window.open);
  EXPECT_FALSE(s.FilterComputed);
  desk.Choose("frmgrafcassa.mnufiltri");
  desk.Choose("frmgrafcassa.mnuchiudigraf");
  EXPECT_FALSE(form.window.open);  // goes with the box graph
}

TEST_F(FilterDesignerTest, AZeroThatPassedTheTestEndsTheProgram) {
  Set("txtft", "0.0");
  Click("cmdvisualizza");
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Division by zero\" [OK] -> OK\nended error\n");
}

TEST_F(FilterDesignerTest, AShortBoxCurveEndsTheProgram) {
  s.BoxDb.resize(100);
  Click("cmdvisualizza");
  EXPECT_EQ(desk.program.run, RunState::EndedByFailure);
}

TEST_F(FilterDesignerTest, AFrequencyBeyondSinglePrecisionEndsTheProgram) {
  Set("txtft", std::string(40, '9').c_str());
  Click("cmdvisualizza");
  EXPECT_EQ(desk.program.run, RunState::EndedByFailure);
}

}  // namespace
}  // namespace zefirondo
