// The project options and the wiring of several woofers.
#include "core/options.h"

#include <gtest/gtest.h>

#include "core/acts.h"
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

TEST_F(Options, FilterTheKeysOfTheResistance) {
  Open();
  const std::string number = "message stop \"Error\" \"Warning: Inputs must be a number\" [OK] -> OK\n";
  desk.Set("frmopzioni.txtrs", "");
  desk.Type("frmopzioni.txtrs", "1,25");
  EXPECT_EQ(desk.Text("frmopzioni.txtrs"), "1.25");  // a comma is a point
  EXPECT_EQ(desk.TakeOut(), "");
  desk.Type("frmopzioni.txtrs", "-x.");
  EXPECT_EQ(desk.Text("frmopzioni.txtrs"), "1.25");
  EXPECT_EQ(desk.TakeOut(), number + number + number);
}

TEST_F(Options, FilterTheKeysOfTheThicknessWithWordsOfTheirOwn) {
  const std::string number = "message stop \"Error\" \"Warning: Inputs must be a number\" [OK] -> OK\n";
  const std::string integer = "message stop \"Error\" \"Warning! Enter a integer numeric value\" [OK] -> OK\n";
  Open();
  desk.Set("frmopzioni.txtspessore", "");
  desk.Type("frmopzioni.txtspessore", "1,8x-");
  EXPECT_EQ(desk.Text("frmopzioni.txtspessore"), "18");
  EXPECT_EQ(desk.TakeOut(), integer + integer + integer);
  desk.Type("frmopzioni.txtspessore", ".5");
  EXPECT_EQ(desk.Text("frmopzioni.txtspessore"), "18.5");  // a first point is accepted, in spite of the words
  desk.Type("frmopzioni.txtspessore", ".");
  EXPECT_EQ(desk.TakeOut(), integer);
  desk.Set("frmopzioni.txtspessore", "0");
  desk.Type("frmopzioni.txtspessore", "5");
  EXPECT_EQ(desk.Text("frmopzioni.txtspessore"), "0");
  EXPECT_EQ(desk.TakeOut(), number);  // behind a leading 0 it says what every field says
}

TEST_F(Options, SelectWhatTheirFieldsHold) {
  Open();
  desk.Focus("frmopzioni.txtspessore");
  EXPECT_EQ(desk["frmopzioni.txtspessore"].selection_length, 2U);
  desk.Focus("frmopzioni.txtrs");
  EXPECT_EQ(desk["frmopzioni.txtrs"].selection_length, 3U);
}

TEST_F(Options, AreOpenedBeforeThereIsAProject) {
  EXPECT_FALSE(desk.program.FindWindow("frmthsm")->open);
  EXPECT_TRUE(desk.Choose("mdithsm.mnuopzioni").Done());
  EXPECT_TRUE(IsOpen());
}

TEST_F(Options, ClosedByTheCloseBoxTakeNothingOver) {
  Open();
  desk.Click("frmopzioni.optserie");
  CloseBox(desk.program, desk.program.windows.frmopzioni.window);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(desk.state.WooferWiring, "biamp");
}

TEST_F(Options, TakeOverAThicknessThatRoundsToNothing) {
  Open();
  desk.Set("frmopzioni.txtspessore", "0.4");  // it does not read as 0
  desk.Click("frmopzioni.cmdok");
  EXPECT_EQ(desk.state.WoodThickness, 0);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(desk.TakeOut(), "");
}

TEST_F(Options, AThicknessBeyondAnIntegerEndsTheProgram) {
  Open();
  desk.Set("frmopzioni.txtspessore", "40000");
  desk.Click("frmopzioni.cmdok");
  EXPECT_EQ(desk.program.run, RunState::EndedByFailure);  // nothing catches it
  EXPECT_NE(desk.TakeOut().find("Overflow"), std::string::npos);
}

TEST(OptionWords, AreItalianToo) {
  Desk desk(Language::Italian);
  desk.Begin();
  desk.Choose("mdithsm.mnuopzioni");
  *desk["frmopzioni.txtrs"].text = "";
  desk.program.focus = nullptr;
  desk.Click("frmopzioni.cmdok");
  *desk["frmopzioni.txtrs"].text = "0.1";
  *desk["frmopzioni.txtspessore"].text = "";
  desk.program.focus = nullptr;
  desk.Click("frmopzioni.cmdok");
  OpenWindow(desk.program, "frmwooferconn");
  CloseBox(desk.program, desk.program.windows.frmwooferconn.window);
  EXPECT_EQ(desk.TakeOut(),
            "message stop \"Errore\" \"Specificare un valore per Rs\" [OK] -> OK\n"
            "message stop \"Errore\" \"Specificare un valore per lo Spessore maggiore di zero\" [OK] -> OK\n"
            "message stop \"Errore\" \"Non è possibile chiudere questa finestra\" [OK] -> OK\n");
}

}  // namespace
}  // namespace zefirondo
