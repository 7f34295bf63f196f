// The filter window beside its main roads: the entries without a deed, keys, texts that no list holds, hidden graphs.
#include <gtest/gtest.h>

#include <cmath>

#include "core/acts.h"
#include "core/window_life.h"
#include "response/plain_curves.h"

namespace zefirondo {
namespace {

const std::string kWarning = "message stop \"Error\" \"Warning: Inputs must be a number\" [OK] -> OK\n";

class FilterWindow : public testing::Test {
 protected:
  Desk desk;
  ProjectState& s = desk.state;
  BoxResponse& box = desk.program.windows.frmgrafcassa;
  FilterDesigner& form = desk.program.windows.frmfiltri;

  FilterWindow() {
    desk.DesignVented();
    desk.Choose("frmgrafcassa.mnufiltri");
    desk.TakeOut();
  }
  Outcome Pick(const char* combo, const char* item) { return desk.Pick(std::string("frmfiltri.") + combo, item); }
  void Set(const char* field, const char* text) { desk.Set(std::string("frmfiltri.") + field, text); }
  void Click(const char* button) { desk.Click(std::string("frmfiltri.") + button); }
  std::string Text(const char* name) { return desk.Text(std::string("frmfiltri.") + name); }
  void Reopen() {
    CloseWindow(desk.program, form.window);
    desk.Choose("frmgrafcassa.mnufiltri");
  }
};

// ---- the synthesis entries ----

TEST_F(FilterWindow, SynthesisIsShutWhileAFilterIsEdited) {
  for (const char* const entry : {"mnulowpass", "mnuhipass", "mnuattivo"}) {
    EXPECT_EQ(desk.Choose(std::string("frmfiltri.") + entry).refusal, Refusal::Disabled) << entry;
  }
}

TEST_F(FilterWindow, SynthesisEntriesDoNothing) {
  Click("cmdvisualizza");
  desk.TakeOut();
  const Curve filter = s.FilterDb;
  const std::vector<Window*> order = desk.program.order;
  const std::size_t strokes = box.surface.strokes.size();
  for (const char* const entry : {"mnulowpass", "mnuhipass", "mnuattivo"}) {
    EXPECT_EQ(desk.Choose(std::string("frmfiltri.") + entry).refusal, Refusal::None) << entry;
    EXPECT_EQ(desk.TakeOut(), "");
    EXPECT_EQ(s.FilterDb, filter);
    EXPECT_EQ(desk.program.order, order);
    EXPECT_EQ(box.surface.strokes.size(), strokes);
    EXPECT_TRUE(s.FilterComputed && form.cmdcanc.enabled && form.cmbQ.locked);
  }
}

TEST_F(FilterWindow, AGainShutsThePassiveEntriesAlone) {
  Pick("cmbgain", "3");
  Click("cmdvisualizza");
  EXPECT_EQ(desk.Choose("frmfiltri.mnulowpass").refusal, Refusal::Disabled);
  EXPECT_EQ(desk.Choose("frmfiltri.mnuhipass").refusal, Refusal::Disabled);
  EXPECT_EQ(desk.Choose("frmfiltri.mnuattivo").refusal, Refusal::None);
  // They stay shut for a later filter without a gain, until the window is opened again.
  Click("cmdcanc");
  Pick("cmbgain", "0.0");
  Click("cmdvisualizza");
  EXPECT_FALSE(form.mnupassivo.enabled);
  Reopen();
  EXPECT_TRUE(form.mnupassivo.enabled);
}

TEST_F(FilterWindow, DeleteOnEitherWindowShutsTheSynthesis) {
  for (const char* const button : {"frmfiltri.cmdcanc", "frmgrafcassa.cmdcancella"}) {
    Click("cmdvisualizza");
    EXPECT_TRUE(form.mnusintesi.enabled);
    desk.Click(button);
    EXPECT_FALSE(form.mnusintesi.enabled) << button;
  }
}

// ---- opening ----

TEST_F(FilterWindow, OpensWithItsTexts) {
  for (const auto& [name, text] : {std::pair{"cmballineamento", "Butterworth"},
                                   {"cmbtipo", "Low Pass"},
                                   {"cmbpendenza", "12 dB/Oct"},
                                   {"cmbQ", "0.707"},
                                   {"cmbgain", "0.0"},
                                   {"txtft", "50"},
                                   {"txtFinf", "20"}}) {
    EXPECT_EQ(Text(name), text) << name;
  }
  const std::vector<std::string> gains{"-10", "-9", "-8", "-7", "-6", "-5", "-4", "-3", "-2", "-1", "0.0",
                                       "1",   "2",  "3",  "4",  "5",  "6",  "7",  "8",  "9",  "10"};
  EXPECT_EQ(form.cmbgain.list, gains);
  EXPECT_TRUE(form.cmdvisualizza.enabled && form.cmdannulla.enabled);
}

TEST_F(FilterWindow, IsBackAtItsDesignWhenItIsOpenedAgain) {
  Pick("cmballineamento", "Shelving");
  Pick("cmbtipo", "Hi Pass");
  Click("cmdvisualizza");
  Reopen();
  EXPECT_EQ(form.Alignment, "Butterworth");
  EXPECT_EQ(form.FilterType, "Low Pass");
  EXPECT_EQ(form.cmbtipo.list.size(), 3U);
  EXPECT_TRUE(form.cmbpendenza.visible);
  EXPECT_FALSE(form.cmbQ.locked);
  EXPECT_TRUE(s.FilterComputed);
}

TEST_F(FilterWindow, ComesForwardAsItIsWhenItIsChosenAgain) {
  Pick("cmballineamento", "Peaking");
  BringToFront(desk.program, box.window);
  desk.Choose("frmgrafcassa.mnufiltri");
  EXPECT_EQ(desk.program.order.front(), &form.window);
  EXPECT_EQ(form.Alignment, "Peaking");
}

// ---- the choices ----

TEST_F(FilterWindow, PeakingShowsLowPassAndLeavesTheTypeThatWasChosen) {
  Pick("cmbtipo", "Hi Pass");
  Pick("cmballineamento", "Peaking");
  EXPECT_EQ(Text("cmbtipo"), "Low Pass");
  EXPECT_EQ(form.FilterType, "Hi Pass");
  Pick("cmballineamento", "Butterworth");
  Click("cmdvisualizza");  // with the type as it was clicked last: at 2 kHz a high pass at 20 Hz is flat
  EXPECT_NEAR(s.FilterDb[2730], 40, 1e-3);
}

TEST_F(FilterWindow, ARepairedTextIsNotWhatIsComputed) {
  Pick("cmbpendenza", "24 dB/Oct");
  Set("cmbpendenza", "x");
  desk.Leave();
  EXPECT_EQ(Text("cmbpendenza"), "12 dB/Oct");
  Click("cmdvisualizza");
  // Fourth order at 99.6064 Hz: 40 − 10·log10(1 + (99.6064 / 50)^8)
  EXPECT_NEAR(s.FilterDb[135], 40 - 10 * std::log10(1 + std::pow(136 * 0.7324 / 50, 8)), 1e-9);
}

TEST_F(FilterWindow, TakesItsNumbersAfreshFromTheFields) {
  Pick("cmballineamento", "Peaking");
  Set("cmbQ", "2");
  Set("cmbgain", "6");
  Set("txtft", "73.24 Hz");  // the leading number; the 100th point of the sweep
  Click("cmdvisualizza");
  EXPECT_NEAR(s.FilterDb[99], 46, 1e-6);
}

TEST_F(FilterWindow, ACombinationWithoutAFormulaComputesNothing) {
  Pick("cmbtipo", "Band Pass");
  Pick("cmballineamento", "Shelving");
  form.FilterType = "Band Pass";  // the list offers it no more
  form.cmbtipo.list.clear();
  Click("cmdvisualizza");
  for (const Curve* const curve : {&s.FilterFreq, &s.FilterDb, &s.FilterPhaseFreq, &s.FilterPhaseDeg}) {
    EXPECT_TRUE(curve->empty());
  }
  EXPECT_EQ(plain::ChainColours(box.surface), std::vector{colour::kBlack});
  EXPECT_TRUE(s.FilterComputed && form.cmdcanc.enabled);
}

TEST_F(FilterWindow, ABandMustRise) {
  Pick("cmbtipo", "Band Pass");
  for (const auto& [low, high, refused] : {std::tuple{"60", "50", true}, {"50", "50", true}, {"49.9", "50", false}}) {
    Set("txtFinf", low);
    Set("txtft", high);
    desk.TakeOut();
    Click("cmdvisualizza");
    EXPECT_EQ(desk.TakeOut().empty(), !refused) << low;
    EXPECT_EQ(s.FilterComputed, !refused) << low;
  }
}

TEST(FilterWindowInItalian, NamesTheFrequencyByTheAlignment) {
  Desk desk(Language::Italian);
  desk.DesignVented();
  desk.Choose("frmgrafcassa.mnufiltri");
  for (const auto& [alignment, words] : {std::pair{"Peaking", "Freq. Risonanza"},
                                         {"Shelving", "Freq. Taglio Sup"},
                                         {"Peaking", "Freq. Risonanza"},
                                         {"Bessel", "Freq. Taglio Sup"}}) {
    desk.Pick("frmfiltri.cmballineamento", alignment);
    EXPECT_EQ(desk.Text("frmfiltri.lblft"), words) << alignment;
  }
}

// ---- keys ----

TEST_F(FilterWindow, FieldsFilterTheirKeys) {
  Pick("cmballineamento", "Shelving");  // opens Q
  Pick("cmbtipo", "Hi Pass");
  struct Row {
    const char *field, *keys, *text;
    std::size_t warnings;
  };
  for (const Row& row : {Row{"cmbgain", "-2,5", "-2.5", 0},
                         {"cmbgain", "1.2.5", "1.25", 1},
                         {"cmbgain", "x", "", 1},
                         {"cmbgain", "05", "0", 1},
                         {"cmbgain", "0.5", "0.5", 0},
                         {"cmbgain", "12\b", "1", 0},
                         {"cmbQ", "1,9", "1.9", 0},
                         {"cmbQ", "0,9", "0", 2},  // only a point goes on from a 0
                         {"cmbQ", "2-", "2", 1},
                         {"cmbQ", "1..", "1.", 1},
                         {"txtFinf", "33,5", "33.5", 0},
                         {"txtFinf", "-", "", 1},
                         {"txtFinf", "3 ", "3", 1}}) {
    Set(row.field, "");
    desk.TakeOut();
    desk.Type(std::string("frmfiltri.") + row.field, row.keys);
    EXPECT_EQ(Text(row.field), row.text) << row.field << " " << row.keys;
    std::string warnings;
    for (std::size_t i = 0; i < row.warnings; ++i) warnings += kWarning;
    EXPECT_EQ(desk.TakeOut(), warnings) << row.field << " " << row.keys;
  }
}

TEST_F(FilterWindow, EnterMovesOn) {
  desk.Type("frmfiltri.cmbgain", "3\n");
  EXPECT_EQ(desk.program.focus, &form.txtft);  // the next field that is open
}

TEST_F(FilterWindow, LockedControlsTakeNothing) {
  Click("cmdvisualizza");
  for (const char* const field : {"cmballineamento", "cmbtipo", "cmbpendenza", "cmbgain", "txtft"}) {
    EXPECT_EQ(desk.Set(std::string("frmfiltri.") + field, "7").refusal, Refusal::Locked) << field;
  }
}

// ---- the phase graph beside it ----

TEST_F(FilterWindow, AHiddenPhaseGraphStaysWithAFilterAndGoesWithItsDeletion) {
  desk.Choose("frmgrafcassa.mnufase");
  Window& phase = desk.program.windows.frmFase.window;
  phase.hidden = true;
  Click("cmdvisualizza");
  EXPECT_TRUE(phase.open);
  Click("cmdcanc");
  EXPECT_FALSE(phase.open);
}

TEST_F(FilterWindow, DeleteKeepsThePhasesAndTheSecondTraceOutOfSight) {
  Click("cmdvisualizza");
  desk.Click("frmgrafcassa.cmdset2");
  const Curve second = s.Set2BoxDb;
  const Curve phase = s.FilterPhaseDeg;
  Click("cmdcanc");
  EXPECT_EQ(s.Set2BoxDb, second);
  EXPECT_EQ(s.FilterPhaseDeg, phase);
}

}  // namespace
}  // namespace zefirondo
