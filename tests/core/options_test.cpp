// The project options and the wiring of several woofers.
#include "core/options.h"

#include <gtest/gtest.h>

#include "core/window_life.h"
#include "support/desk.h"

namespace zefirondo {
namespace {

class Options : public testing::Test {
 protected:
  Options() { desk.Begin(); }
  void Open() {
    desk.Choose("mdithsm.mnuopzioni");
    desk.program.focus = nullptr;  // so that no leaving test runs before the button
  }
  [[nodiscard]] bool IsOpen() { return desk.program.FindWindow("frmopzioni")->open; }
  Desk desk;
};

TEST_F(Options, OpenWithTheValuesOfTheProject) {
  Open();
  EXPECT_TRUE(desk["frmopzioni.optbiamp"].checked);
  EXPECT_FALSE(desk["frmopzioni.optparallelo"].checked || desk["frmopzioni.optserie"].checked);
  EXPECT_EQ(desk.Text("frmopzioni.txtrs"), "0.1");
  EXPECT_EQ(desk.Text("frmopzioni.txtspessore"), "18");
  const Window& frame = desk.program.windows.mdithsm.window;
  const Window& window = desk.program.windows.frmopzioni.window;
  EXPECT_EQ(window.left, (frame.width - window.width) / 2);
  EXPECT_EQ(window.top, (frame.height - window.height) / 2);
}

TEST_F(Options, TakeOverWiringResistanceAndThickness) {
  struct WiringRow {
    const char* option;
    const char* wiring;
  };
  for (const WiringRow& row : {WiringRow{"optparallelo", "parallel"}, {"optserie", "series"}, {"optbiamp", "biamp"}}) {
    Open();
    desk.Click(std::string("frmopzioni.") + row.option);
    desk.Set("frmopzioni.txtrs", "0.25");
    desk.Set("frmopzioni.txtspessore", "21");
    desk.Click("frmopzioni.cmdok");
    EXPECT_EQ(desk.state.WooferWiring, row.wiring);
    EXPECT_FALSE(IsOpen());
    Open();
    EXPECT_TRUE(desk[std::string("frmopzioni.") + row.option].checked) << row.option;
    desk.Choose("frmopzioni.mnuchiudi");
  }
  EXPECT_EQ(desk.state.RsAmplifier, 0.25);
  EXPECT_EQ(desk.state.WoodThickness, 21);
}

TEST_F(Options, WithoutAResistanceChangeTheWiringAlone) {
  Open();
  desk.Click("frmopzioni.optserie");
  *desk["frmopzioni.txtrs"].text = "";
  *desk["frmopzioni.txtspessore"].text = "25";
  desk.program.focus = nullptr;
  desk.Click("frmopzioni.cmdok");
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Specify a value for Rs\" [OK] -> OK\n");
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(desk.state.WooferWiring, "series");
  EXPECT_EQ(desk.state.RsAmplifier, 0.1);
  EXPECT_EQ(desk.state.WoodThickness, 18);
}

TEST_F(Options, WithoutAThicknessChangeWiringAndResistance) {
  for (const char* const thickness : {"", "0", "0.0"}) {
    Open();
    desk.state.WooferWiring = "biamp";
    desk.Click("frmopzioni.optparallelo");
    *desk["frmopzioni.txtrs"].text = "0.4";
    *desk["frmopzioni.txtspessore"].text = thickness;
    desk.program.focus = nullptr;
    desk.Click("frmopzioni.cmdok");
    EXPECT_EQ(desk.TakeOut(),
              "message stop \"Error\" \"pecify a value for the thickness greater than zero\" [OK] -> OK\n");
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(desk.state.WooferWiring, "parallel");
    EXPECT_EQ(desk.state.RsAmplifier, 0.4);
    EXPECT_EQ(desk.state.WoodThickness, 18);
  }
}

TEST_F(Options, RoundTheThicknessHalfToEven) {
  struct ThicknessRow {
    const char* typed;
    int taken;
  };
  for (const ThicknessRow& row : {ThicknessRow{"18.5", 18}, {"19.5", 20}, {"21.51", 22}}) {
    Open();
    EXPECT_TRUE(desk.Type("frmopzioni.txtspessore", row.typed).Done());
    EXPECT_EQ(desk.Text("frmopzioni.txtspessore"), row.typed);
    desk.Click("frmopzioni.cmdok");
    EXPECT_EQ(desk.state.WoodThickness, row.taken) << row.typed;
  }
  EXPECT_EQ(desk.TakeOut(), "");
}

TEST_F(Options, FieldsHoldZeroAndNothing) {
  for (const char* const field : {"frmopzioni.txtrs", "frmopzioni.txtspessore"}) {
    for (const char* const text : {"0", ""}) {
      Open();
      desk.Set(field, text);
      EXPECT_EQ(desk.Click("frmopzioni.cmdok").held, &desk[field]) << field << " \"" << text << '"';
      EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Please enter a non zero value\" [OK] -> OK\n");
      desk.Choose("frmopzioni.mnuchiudi");
    }
  }
}

TEST_F(Options, ClosedByTheMenuTakeNothingOver) {
  Open();
  desk.Click("frmopzioni.optserie");
  desk.Set("frmopzioni.txtrs", "3");
  desk.Set("frmopzioni.txtspessore", "30");
  desk.Choose("frmopzioni.mnuchiudi");
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(desk.state.WooferWiring, "biamp");
  EXPECT_EQ(desk.state.RsAmplifier, 0.1);
  EXPECT_EQ(desk.state.WoodThickness, 18);
}

TEST_F(Options, OfAnUnknownWiringSetNone) {
  desk.state.WooferWiring = "star";
  Open();
  for (const char* const option : {"optbiamp", "optparallelo", "optserie"}) {
    EXPECT_FALSE(desk[std::string("frmopzioni.") + option].checked) << option;
  }
  desk.Click("frmopzioni.cmdok");
  EXPECT_EQ(desk.state.WooferWiring, "star");
  OpenWindow(desk.program, "frmwooferconn");
  for (const char* const option : {"optbiamp", "optparallelo", "optserie"}) {
    EXPECT_FALSE(desk[std::string("frmwooferconn.") + option].checked) << option;
  }
}

TEST_F(Options, LiveUntilAProjectEnds) {
  Open();
  desk.Click("frmopzioni.optserie");
  desk.Set("frmopzioni.txtrs", "0.7");
  desk.Set("frmopzioni.txtspessore", "30");
  desk.Click("frmopzioni.cmdok");
  desk.Choose("mdithsm.mnuinsmanuale");
  EXPECT_EQ(desk.state.WooferWiring, "series");
  EXPECT_EQ(desk.state.RsAmplifier, 0.7);
  EXPECT_EQ(desk.state.WoodThickness, 30);
  desk.Tab("par");
  desk.Click("cmdreset");
  EXPECT_EQ(desk.state.WooferWiring, "biamp");
  EXPECT_EQ(desk.state.RsAmplifier, 0.1);
  EXPECT_EQ(desk.state.WoodThickness, 18);
}

struct CaptionRow {
  const char* control;
  const char* english;
};

TEST_F(Options, HaveTheirCaptions) {
  Open();
  OpenWindow(desk.program, "frmwooferconn");
  for (const CaptionRow& row : {
           CaptionRow{"frmopzioni.fracollegamento", "Project with more woofer in the same volume"},
           {"frmopzioni.lblcollegamento", "Connecting the amplifier to the woofers"},
           {"frmopzioni.optbiamp", "One woofer for each channel of the amplifier"},
           {"frmopzioni.optparallelo", "Woofers connected in parallel to  one amplifier channel"},
           {"frmopzioni.optserie", "Woofers connected in series to  one amplifier channel"},
           {"frmopzioni.fraRsorgente", "Amplifier output Resistance"},
           {"frmopzioni.fraspessore", "Thickness of the wooden Box"},
           {"frmopzioni.lblspessore", "Thickness"},
           {"frmopzioni.mnuchiudi", "&Close Project Options"},
           {"frmwooferconn.fracollegamento", "Project with more than one woofer"},
           {"frmwooferconn.lblwarn1", "WARNING! To each woofer will be applied the same power rating"},
           {"frmwooferconn.mnuchiudi", "&Close Wooofers Wiring"},
       }) {
    EXPECT_EQ(desk.Text(row.control), row.english) << row.control;
  }
  EXPECT_EQ(desk.program.windows.frmopzioni.window.caption, "Project Options");
  EXPECT_EQ(desk.program.windows.frmwooferconn.window.caption, "Wooofers Wiring");
}

}  // namespace
}  // namespace zefirondo
