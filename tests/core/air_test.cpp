// The air. Expected values are worked out in Python from
//   start:    c = 20.04 · sqrt(298.15),  ρ = 101325 · 29 / (298.15 · 8314)
//   otherwise ρ = P · 28.9644 / ((T + 273.15) · 8314.472),  c = sqrt(1.400823478 · P / ρ)
#include "core/air.h"

#include <gtest/gtest.h>

#include "core/run_time_error.h"
#include "support/desk.h"

namespace zefirondo {
namespace {

constexpr double kStartRoo = 1.1854132477839954;
constexpr double kStartVelocity = 346.0310925914028;
constexpr double kModelRoo = 1.1838908393237058;
constexpr double kModelVelocity = 346.2535080618973;

void ExpectAir(const ProjectState& state, double roo, double velocity) {
  EXPECT_NEAR(state.roo, roo, 1e-14);
  EXPECT_NEAR(state.Velocity, velocity, 1e-10);
}

TEST(AriaDaTP, IsAnIdealGas) {
  struct Row {
    double temperature, pressure, roo, velocity;
  };
  for (const Row& row :
       {Row{25, 101325, kModelRoo, kModelVelocity}, Row{0, 101325, 1.2922462154287495, 331.4189810413605},
        Row{30, 101325, 1.16436435343679, 349.1447866076561}, Row{20, 95000, 1.1289210425015224, 343.33788266813065},
        Row{-273, 101325, 2353.1803582961093, 7.766447392730545}}) {
    const Air air = AriaDaTP(row.temperature, row.pressure);
    EXPECT_NEAR(air.roo / row.roo, 1.0, 1e-14);
    EXPECT_NEAR(air.velocity / row.velocity, 1.0, 1e-14);
  }
}

TEST(AriaDaTP, SpeedDoesNotDependOnThePressure) {
  EXPECT_NEAR(AriaDaTP(25, 50000).velocity, AriaDaTP(25, 101325).velocity, 1e-10);
}

TEST(AriaDaTP, FailsAtAbsoluteZero) { EXPECT_THROW(static_cast<void>(AriaDaTP(-273.15, 101325)), RunTimeError); }

TEST(Air, OfANewSheetIsThatOfTheSimpleConstants) {
  Desk desk;
  desk.BeginParameters();
  ExpectAir(desk.state, kStartRoo, kStartVelocity);
  for (const char* const field : {"txttemperatura", "txtpressione", "txtvelocita"}) EXPECT_EQ(desk.Text(field), "");
}

/// The page "imp" of an empty project.
class AirPage : public testing::Test {
 protected:
  void SetUp() override {
    desk.BeginParameters();
    desk.Tab("imp");
  }
  Desk desk;
};

TEST_F(AirPage, MovesTheAirToTheFinerFormulasAtItsFirstVisit) {
  ExpectAir(desk.state, kModelRoo, kModelVelocity);
  EXPECT_EQ(desk.Text("txttemperatura"), "25");
  EXPECT_EQ(desk.Text("txtpressione"), "101325");
  EXPECT_EQ(desk.Text("txtvelocita"), "346.253");
}

TEST_F(AirPage, RemembersTheTextsAndMarksNothing) {
  EXPECT_EQ(desk.sheet.TempBefore, "25");
  EXPECT_EQ(desk.sheet.PressBefore, "101325");
  EXPECT_FALSE(desk.state.AirChanged);
  desk.Tab("gen");
  EXPECT_FALSE(desk.state.AirChanged);
  EXPECT_FALSE(desk.state.ProjectModified);
}

TEST_F(AirPage, TakesTheFocusToTheTemperature) {
  EXPECT_EQ(desk.program.focus, &desk["txttemperatura"]);
  EXPECT_EQ(desk["txttemperatura"].selection_length, 2U);
}

TEST_F(AirPage, FollowsTheTemperature) {
  desk.Set("txttemperatura", "30");
  EXPECT_EQ(desk.state.Temperature, 30.0);
  ExpectAir(desk.state, 1.16436435343679, 349.1447866076561);
  EXPECT_EQ(desk.Text("txtvelocita"), "349.144");
}

TEST_F(AirPage, FollowsThePressure) {
  desk.Set("txtpressione", "90000");
  EXPECT_EQ(desk.state.Pressure, 90000.0);
  ExpectAir(desk.state, 1.0515684731224626, 346.25350806189726);
}

TEST_F(AirPage, KeepsTheFactorOfFreeAirWhateverFillsTheBox) {
  desk.state.Kinternal = 1.05;
  desk.Set("txttemperatura", "30");
  ExpectAir(desk.state, 1.16436435343679, 349.1447866076561);
}

TEST_F(AirPage, AcceptsTheLowestTemperatureAndNothingBelow) {
  desk.Set("txttemperatura", "-273");
  EXPECT_EQ(desk.state.Temperature, -273.0);
  EXPECT_EQ(desk.Text("txtvelocita"), "7.76644");
  desk.Set("txttemperatura", "-273.1");
  EXPECT_EQ(desk.state.Temperature, -273.0);
  EXPECT_EQ(desk.Text("txtvelocita"), "7.76644");
}

TEST_F(AirPage, TakesAZeroPressureForNoNumber) {
  desk.Set("txtpressione", "0");
  EXPECT_EQ(desk.state.Pressure, 101325.0);
  ExpectAir(desk.state, kModelRoo, kModelVelocity);
  desk.Leave();
  EXPECT_EQ(desk.program.focus, &desk["txtpressione"]);
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Please enter a non zero value\" [OK] -> OK\n");
  EXPECT_FALSE(desk.state.AirChanged);
}

TEST_F(AirPage, TakesAZeroTemperatureAndRefusesItsTextOnLeaving) {
  desk.Set("txttemperatura", "0");
  EXPECT_EQ(desk.state.Temperature, 0.0);
  ExpectAir(desk.state, 1.2922462154287495, 331.4189810413605);
  desk.Leave();
  EXPECT_EQ(desk.program.focus, &desk["txttemperatura"]);
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Please enter a non zero value\" [OK] -> OK\n");
  desk.Set("txttemperatura", "0.5");
  desk.Leave();
  EXPECT_EQ(desk.state.Temperature, 0.5);
  EXPECT_EQ(desk.program.focus, nullptr);
}

TEST_F(AirPage, MarksAChangedTextOnLeaving) {
  desk.Set("txttemperatura", "20");
  EXPECT_FALSE(desk.state.AirChanged);
  EXPECT_FALSE(desk.state.ProjectModified);
  desk.Leave();
  EXPECT_TRUE(desk.state.AirChanged);
  EXPECT_TRUE(desk.state.ProjectModified);
}

TEST_F(AirPage, MarksAChangedPressureOnLeaving) {
  desk.Set("txtpressione", "100000");
  desk.Leave();
  EXPECT_TRUE(desk.state.AirChanged);
  EXPECT_TRUE(desk.state.ProjectModified);
}

TEST_F(AirPage, LeavesVasAloneWhileThereIsNoCompliance) {
  *desk["txtvas"].text = "0.1";
  desk.Set("txttemperatura", "30");
  EXPECT_EQ(desk.Text("txtvas"), "0.1");
}

TEST_F(AirPage, RewritesTheFieldOfVasButNotItsNumber) {
  *desk["txtcas"].text = "0.65E-06";
  desk.state.Vas = 0.1;
  desk.Set("txttemperatura", "30");
  // 349.1447866² · (0.65e-6 · 1.164364353) = 0.0922599...
  EXPECT_EQ(desk.Text("txtvas"), "0.09225");
  EXPECT_EQ(desk.state.Vas, 0.1);
}

TEST_F(AirPage, DefaultOnTheDefaultsChangesNothing) {
  desk.Click("cmddefault");
  EXPECT_FALSE(desk.state.AirChanged);
  EXPECT_FALSE(desk.state.ProjectModified);
  EXPECT_EQ(desk.state.roo, 1.18389083932371);
  EXPECT_NEAR(desk.state.Velocity, 346.2535080618967, 1e-12);
}

TEST_F(AirPage, DefaultBringsTheAirBack) {
  desk.Set("txttemperatura", "30");
  desk.Set("txtpressione", "90000");
  desk.Click("cmddefault");
  EXPECT_EQ(desk.state.Temperature, 25.0);
  EXPECT_EQ(desk.state.Pressure, 101325.0);
  ExpectAir(desk.state, kModelRoo, kModelVelocity);
  EXPECT_EQ(desk.Text("txttemperatura"), "25");
  EXPECT_EQ(desk.Text("txtpressione"), "101325");
  EXPECT_EQ(desk.Text("txtvelocita"), "346.253");
  EXPECT_TRUE(desk.state.AirChanged);
  EXPECT_EQ(desk.sheet.TempBefore, "30");
  EXPECT_EQ(desk.sheet.PressBefore, "90000");
}

TEST_F(AirPage, DefaultSetsNumbersAndSpeedWhateverStoodThere) {
  *desk["txtvelocita"].text = "1";
  desk.state.Temperature = 40;
  desk.state.Pressure = 90000;
  desk.Click("cmddefault");  // the two texts are the default ones already, and change nothing
  EXPECT_EQ(desk.state.Temperature, 25.0);
  EXPECT_EQ(desk.state.Pressure, 101325.0);
  EXPECT_EQ(desk.Text("txtvelocita"), "346.253");
}

TEST_F(AirPage, DefaultAloneMarksNoProject) {
  *desk["txttemperatura"].text = "30";
  desk["cmddefault"].on.click(desk.program);
  EXPECT_TRUE(desk.state.AirChanged);
  EXPECT_FALSE(desk.state.ProjectModified);
}

TEST_F(AirPage, DefaultClearsTheChangeWhenBothTextsStay) {
  desk.state.AirChanged = true;
  desk.Click("cmddefault");
  EXPECT_FALSE(desk.state.AirChanged);
}

TEST_F(AirPage, DefaultSetsTheSpeedOfSoundWhereTheTextsAreTheDefaultsAlready) {
  desk.state.Velocity = 340;
  desk.Click("cmddefault");
  EXPECT_NEAR(desk.state.Velocity, 346.2535080618967, 1e-12);
  EXPECT_EQ(desk.Text("txtvelocita"), "346.253");
}

TEST(AirOfANewSheet, ReplacesAnyOther) {
  ProjectState state;
  state.Temperature = 10;
  state.Pressure = 90000;
  SetStartAir(state);
  EXPECT_EQ(state.Temperature, 25);
  EXPECT_EQ(state.Pressure, 101325);
  ExpectAir(state, kStartRoo, kStartVelocity);
}

TEST(AirOfANewSheet, MovesToTheFinerOneByDefault) {
  Desk desk;
  desk.BeginParameters();
  desk["cmddefault"].on.click(desk.program);
  ExpectAir(desk.state, 1.18389083932371, 346.2535080618967);
}

}  // namespace
}  // namespace zefirondo
