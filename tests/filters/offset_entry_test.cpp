// The small window that finds the offset of two phase curves at a frequency.
#include "filters/phase_desk.h"

namespace zefirondo {
namespace {

TEST(OffsetEntry, OpensEmptyWithTheSlopeLeftOut) {
  PhaseDesk desk;
  desk.PasteBoth();
  desk.Click("frmFaseSh.cmdcalcola");
  EXPECT_TRUE(desk.offset.window.open);
  EXPECT_TRUE(desk.offset.optrelativa.checked);
  EXPECT_FALSE(desk.offset.optcomplessiva.checked);
  EXPECT_EQ(desk.Text("frmfasecompl.txtfrequenza"), "");
  desk.Click("frmfasecompl.optcomplessiva");
  desk.Set("frmfasecompl.txtfrequenza", "25");
  desk.Choose("frmfasecompl.mnuchiudi");
  EXPECT_FALSE(desk.offset.window.open);
  EXPECT_FALSE(desk.tool.cmdsomma.enabled);
  desk.Click("frmFaseSh.cmdcalcola");
  EXPECT_TRUE(desk.offset.optrelativa.checked);
  EXPECT_EQ(desk.Text("frmfasecompl.txtfrequenza"), "");
}

TEST(OffsetEntry, WithoutAFrequencyAsksForOne) {
  PhaseDesk desk;
  desk.PasteBoth();
  desk.Click("frmFaseSh.cmdcalcola");
  desk.Click("frmfasecompl.cmdok");
  EXPECT_EQ(desk.TakeOut(), "message stop \"Enter a value\" \"You must specify a frequency value\" [OK] -> OK\n");
  EXPECT_TRUE(desk.offset.window.open);
  EXPECT_FALSE(desk.tool.cmdsomma.enabled);
}

TEST(OffsetEntry, RefusesZeroAndKeepsTheFocus) {
  PhaseDesk desk;
  desk.PasteBoth();
  desk.Click("frmFaseSh.cmdcalcola");
  for (const char* const zero : {"0", "0.0", "none"}) {
    desk.Set("frmfasecompl.txtfrequenza", zero);
    const Outcome outcome = desk.Click("frmfasecompl.cmdok");
    ASSERT_NE(outcome.held, nullptr) << zero;
    EXPECT_EQ(outcome.held->name, "txtfrequenza");
    EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Please enter a non zero value\" [OK] -> OK\n");
  }
  EXPECT_TRUE(desk.offset.window.open);
}

TEST(OffsetEntry, TakesNumbersOnly) {
  PhaseDesk desk;
  desk.PasteBoth();
  desk.Click("frmFaseSh.cmdcalcola");
  desk.Type("frmfasecompl.txtfrequenza", "2x5,5");
  EXPECT_EQ(desk.Text("frmfasecompl.txtfrequenza"), "25.5");
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Warning: Inputs must be a number\" [OK] -> OK\n");
}

// The first row stands at 10 Hz, whose place on the chart is 10 too.
TEST(OffsetEntry, RefusesAFrequencyBelowThePlaceOfTheFirstRow) {
  PhaseDesk desk;
  desk.PasteBoth();
  desk.FindOffset("9.9");
  EXPECT_EQ(desk.TakeOut(),
            "message stop \"Error\" \"The entered value is too small\\nProvare con un valore maggiore\" [OK] -> OK\n");
  EXPECT_TRUE(desk.offset.window.open);
  EXPECT_FALSE(desk.tool.cmdsomma.enabled);
  EXPECT_EQ(desk.state.PhaseShiftDeg, 0);
}

TEST(OffsetEntry, ComparesHertzWithThePlaceOfTheFirstRow) {
  // A curve from 1000 Hz on begins at the place 50: 50 Hz is taken, with the first row, and 49 Hz is not.
  PhaseDesk desk;
  desk.PasteText(";Freq(Hz)\n1000 -40\n2000 -60\n3000 -80\n");
  desk.PasteText(";Freq(Hz)\n1000 -10\n2000 -60\n3000 -80\n");
  desk.FindOffset("49");
  EXPECT_NE(desk.TakeOut().find("too small"), std::string::npos);
  desk.Set("frmfasecompl.txtfrequenza", "50");
  desk.Click("frmfasecompl.cmdok");
  EXPECT_EQ(desk.state.PhaseShiftDeg, 30);
  // 30 degrees at 50 Hz: 30 / 18000 s
  EXPECT_DOUBLE_EQ(desk.state.DelayMs, 5.0 / 3);
}

struct Found {
  const char* hertz;
  bool slope;
  double degrees;
  const char* shown;
};

class OffsetFound : public testing::TestWithParam<Found> {};

TEST_P(OffsetFound, IsShownAndOpensTheWayToTheDelay) {
  PhaseDesk desk;
  desk.PasteBoth();
  const auto [hertz, slope, degrees, shown] = GetParam();
  desk.FindOffset(hertz, slope);
  EXPECT_EQ(desk.state.PhaseShiftDeg, degrees);
  EXPECT_DOUBLE_EQ(desk.state.DelayMs, degrees / 0.36 / std::stod(hertz));
  EXPECT_EQ(desk.TakeOut(), std::string("message none \"Value obtained\" \"") + shown + "\" [OK] -> OK\n");
  EXPECT_FALSE(desk.offset.window.open);
  EXPECT_TRUE(desk.tool.cmdsomma.enabled);
}

// By hand, from the rows of both curves: the milliseconds are degrees / 0.36 / Hz, cut to seven characters, and the
// samples 48 and 44.1 times that, rounded to two decimals.
INSTANTIATE_TEST_SUITE_P(
    ByHand, OffsetFound,
    testing::Values(
        // -120 and -60: one sign
        Found{"25", false, 60,
              "Degrees phase shift = 60 °\\n\\nMilliseconds phase shift = 6.66666 ms\\n\\n"
              "Time offset in salmple @ 48KHz = 320 samp.\\n\\nTime offset in salmple @ 44.1KHz = 294 samp.\\n\\n"},
        // 175 and -120: two signs
        Found{"45", false, 295,
              "Degrees phase shift = 295 °\\n\\nMilliseconds phase shift = 18.2098 ms\\n\\n"
              "Time offset in salmple @ 48KHz = 874.07 samp.\\n\\nTime offset in salmple @ 44.1KHz = 803.06 "
              "samp.\\n\\n"},
        // 175 - 360 and -120: the turn brings both to one side
        Found{"45", true, 65,
              "Degrees phase shift = 65 °\\n\\nMilliseconds phase shift = 4.01234 ms\\n\\n"
              "Time offset in salmple @ 48KHz = 192.59 samp.\\n\\nTime offset in salmple @ 44.1KHz = 176.94 "
              "samp.\\n\\n"},
        // the row of 20 Hz itself
        Found{"20", true, 60,
              "Degrees phase shift = 60 °\\n\\nMilliseconds phase shift = 8.33333 ms\\n\\n"
              "Time offset in salmple @ 48KHz = 400 samp.\\n\\nTime offset in salmple @ 44.1KHz = 367.5 samp.\\n\\n"},
        // above all rows both are 0
        Found{"60", true, 0,
              "Degrees phase shift = 0 °\\n\\nMilliseconds phase shift = 0 ms\\n\\n"
              "Time offset in salmple @ 48KHz = 0 samp.\\n\\nTime offset in salmple @ 44.1KHz = 0 samp.\\n\\n"}));

TEST(OffsetEntry, SpeaksItalianToo) {
  PhaseDesk desk(Language::Italian);
  desk.PasteBoth();
  desk.Click("frmFaseSh.cmdcalcola");
  desk.Click("frmfasecompl.cmdok");
  desk.Set("frmfasecompl.txtfrequenza", "1");
  desk.Click("frmfasecompl.cmdok");
  desk.Set("frmfasecompl.txtfrequenza", "25");
  desk.Click("frmfasecompl.cmdok");
  EXPECT_EQ(desk.TakeOut(),
            "message stop \"Specificare valore\" \"E' necessario specificare un valore per la frequenza\" [OK] -> OK\n"
            "message stop \"Errore\" \"Il valore immesso è troppo piccolo\\nProvare con un valore maggiore\" [OK] -> "
            "OK\n"
            "message none \"Risultato\" \"Sfasamento in gradi = 60 °\\n\\nSfasamento in ms = 6.66666 ms\\n\\n"
            "Sfasamento in campioni @ 48KHz = 320 samp.\\n\\nSfasamento in campioni @ 44.1KHz = 294 samp.\\n\\n\" "
            "[OK] -> OK\n");
}

TEST(OffsetEntry, OfACurveThatWasEmptiedEndsWithAnIndexError) {
  PhaseDesk desk;
  desk.OpenDelay();
  desk.Click("frmsommadelay.cmdchiudi");  // with no delay added the black curve loses its degrees
  desk.FindOffset("25");
  EXPECT_NE(desk.TakeOut().find("Subscript out of range"), std::string::npos);
  EXPECT_EQ(desk.program.run, RunState::EndedByFailure);
}

}  // namespace
}  // namespace zefirondo
