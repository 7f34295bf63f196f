// The read-out of every plot: its text, its width, its place, and the oddity of the phase graph. A plot is 6015 twips
// high, so a unit of one that is H units high has 6015 / H twips.
#include "core/acts.h"
#include "core/numbers.h"
#include "response/plain_curves.h"

namespace zefirondo {
namespace {

struct PlotRow {
  const char *name, *window, *plot, *readout;
  double width;  // of the plot, in x
  const char* unit;
  double below;  // twips between the mouse and a read-out under it
};

const PlotRow kPlots[]{
    {"Box", "frmgrafcassa", "pctgraf", "txtpos", 53.96, " dB", 60},
    {"Spl", "frmspl", "pctgrafspl", "txtpos", 56.02, " dB", 60},
    {"SplMax", "frmsplMax", "pctgrafspl", "txtpos", 56.02, " dB", 60},
    {"Excursion", "frmescursione", "pctgrafex", "txtpos", 50, " mm", 50},
    {"AirSpeed", "frmairspeed", "pctgrafair", "txtpos", 50, " m/s", 50},
    {"Phase", "frmFase", "pctgrafFase", "txtposFase", 53.96, " °", 60},
};

class EveryReadout : public testing::TestWithParam<PlotRow> {
 protected:
  EveryReadout() {
    desk.DesignVented();
    for (const char* const entry : {"mnuspl", "mnusplmax", "mnuescursione", "mnuairspeed", "mnufase"}) {
      desk.Choose(std::string("frmgrafcassa.") + entry);
    }
    // Round heights, and a value of 5.00 five units above the bottom of each plot.
    for (const char* const plot : {"frmspl.pctgrafspl", "frmsplMax.pctgrafspl", "frmairspeed.pctgrafair"}) {
      desk[plot].surface->scale.height = 100;
    }
    desk.state.BoxScaleTop = 65;
    desk["frmgrafcassa.pctgraf"].surface->scale.height = 65;
  }

  Control& plot() { return desk[std::string(row.window) + "." + row.plot]; }
  Control& readout() { return desk[std::string(row.window) + "." + row.readout]; }
  double height() { return plot().surface->scale.height; }
  double unit_twips() { return 6015 / height(); }

  const PlotRow& row = GetParam();
  Desk desk;
};

TEST_P(EveryReadout, IsHiddenUntilAButtonIsPressedAndAfterItsRelease) {
  EXPECT_FALSE(readout().visible);
  PressMouse(desk.program, plot(), 30, 5);
  EXPECT_TRUE(readout().visible);
  ReleaseMouse(desk.program, plot());
  EXPECT_FALSE(readout().visible);
}

TEST_P(EveryReadout, EndsInItsUnit) {
  // 20·log10(f) = 30 is 31.6228 Hz.
  PressMouse(desk.program, plot(), 30, 5);
  EXPECT_EQ(readout().text->substr(0, 11), "31.62 Hz ; ");
  EXPECT_TRUE(readout().text->ends_with(row.unit)) << *readout().text;
}

TEST_P(EveryReadout, ChangesItsSideSevenRightOfTheMiddle) {
  const double border = row.width / 2 + 7;
  PressMouse(desk.program, plot(), border, 5);
  EXPECT_NEAR(readout().left, border + 1, 1e-9);
  PressMouse(desk.program, plot(), border + 0.001, 5);
  EXPECT_NEAR(readout().left, border + 0.001 - readout().width + 7, 1e-9);
}

TEST_P(EveryReadout, StandsUnderTheMouseInTheUpperHalfAndAboveItInTheLower) {
  PressMouse(desk.program, plot(), 30, height() / 2);
  EXPECT_NEAR(readout().top, height() / 2 + row.below / unit_twips(), 1e-9);
  PressMouse(desk.program, plot(), 30, height() / 2 + 0.001);
  EXPECT_NEAR(readout().top, height() / 2 + 0.001 - 320 / unit_twips(), 1e-9);
}

INSTANTIATE_TEST_SUITE_P(All, EveryReadout, testing::ValuesIn(kPlots),
                         [](const testing::TestParamInfo<PlotRow>& instance) { return instance.param.name; });

class Readouts : public testing::Test {
 protected:
  Readouts() { desk.DesignVented(); }

  struct Shown {
    std::string text;
    double width;
  };
  Shown Press(const std::string& window, const std::string& plot, double x, double y) {
    Control& control = desk[window + "." + plot];
    PressMouse(desk.program, control, x, y);
    return {*control.readout->text, control.readout->width};
  }

  Desk desk;
};

TEST_F(Readouts, OfTheBoxIsInDecibel) {
  desk.state.BoxScaleTop = 65;
  const Shown shown = Press("frmgrafcassa", "pctgraf", 60, 37.5);  // 65 − 37.5 − 40
  EXPECT_EQ(shown.text, "1000.00 Hz ; -12.50 dB");
  EXPECT_EQ(shown.width, 14);  // "1000.00 -12.50": the words in between are left out
}

TEST_F(Readouts, OfTheExcursionCountsFromTwenty) {
  desk.Choose("frmgrafcassa.mnuescursione");
  const Shown shown = Press("frmescursione", "pctgrafex", 20, 12.25);
  EXPECT_EQ(shown.text, "10.00 Hz ; 7.75 mm");
  EXPECT_EQ(shown.width, 10);
}

TEST_F(Readouts, OfTheLevelsGoesByTheHeightOfItsOwnPlot) {
  desk.Choose("frmgrafcassa.mnuspl");
  const double height = desk["frmspl.pctgrafspl"].surface->scale.height;
  desk.state.SplScaleTop = 7;  // another graph owns the scale now
  EXPECT_EQ(Press("frmspl", "pctgrafspl", 40, 10).text, "100.00 Hz ; " + FormatTwoDecimals(height - 10) + " dB");
}

TEST_F(Readouts, OfThePhaseIsAsWideAsAValueOnTheBoxScale) {
  desk.Choose("frmgrafcassa.mnufase");
  struct Row {
    int top;
    double y;
    const char* text;
    double width;
  };
  // Shown is 180 − y; the width is that of "100.00" and of top − (180 − y).
  for (const Row& row : {Row{65, 90, "100.00 Hz ; 90.00 °", 13},   // "-25.00"
                         {65, 115, "100.00 Hz ; 65.00 °", 11},     // "0.00"
                         {65, 270, "100.00 Hz ; -90.00 °", 13},    // "155.00"
                         {171, 180, "100.00 Hz ; 0.00 °", 13},     // "171.00"
                         {190, 0, "100.00 Hz ; 180.00 °", 12}}) {  // "10.00"
    desk.state.BoxScaleTop = static_cast<std::int16_t>(row.top);
    const Shown shown = Press("frmFase", "pctgrafFase", 40, row.y);
    EXPECT_EQ(shown.text, row.text);
    EXPECT_EQ(shown.width, row.width) << row.text;
  }
}

}  // namespace
}  // namespace zefirondo
