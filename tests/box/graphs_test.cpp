// Which changes on the box page close the graphs that no longer match the design, and which leave them open.
#include <gtest/gtest.h>

#include "box/designs.h"
#include "core/window_life.h"

namespace zefirondo {
namespace {

struct Act {
  const char* name;
  void (*run)(BoxDesk& d);
  bool closes;
};

constexpr const char* kMatching[] = {"frmescursione", "frmspl", "frmsplMax", "frmFase"};

void OpenGraphs(BoxDesk& desk) {
  for (const char* const entry : {"mnuescursione", "mnuspl", "mnusplmax", "mnufase"}) {
    ASSERT_TRUE(desk.Choose(std::string("frmgrafcassa.") + entry).Done()) << entry;
  }
  for (const char* const name : kMatching) ASSERT_TRUE(desk.program.FindWindow(name)->open) << name;
}

void ExpectGraphs(const BoxDesk& desk, bool closed) {
  for (const char* const name : kMatching) EXPECT_EQ(desk.program.FindWindow(name)->open, !closed) << name;
  EXPECT_TRUE(desk.program.windows.frmgrafcassa.window.open);
}

class VentedGraphs : public testing::TestWithParam<Act> {};
class ClosedGraphs : public testing::TestWithParam<Act> {};

std::string NameOf(const testing::TestParamInfo<Act>& info) { return info.param.name; }

TEST_P(VentedGraphs, CloseWhenTheyNoLongerMatch) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.Click("imgforma(0)");
  OpenGraphs(desk);
  ASSERT_TRUE(desk.Choose("frmgrafcassa.mnuairspeed").Done());
  GetParam().run(desk);
  ASSERT_TRUE(desk.Runs());
  ExpectGraphs(desk, GetParam().closes);
  EXPECT_TRUE(desk.program.FindWindow("frmairspeed")->open);  // goes with a change of the box type only
}

const Act kVentedActs[] = {
    {"TypedVolume", [](BoxDesk& d) { d.Enter("txtvolnetto", "60"); }, true},
    {"SameVolume", [](BoxDesk& d) { d.Enter("txtvolnetto", "100.086"); }, false},
    {"Leakage", [](BoxDesk& d) { d.Pick("cmbql", "10"); }, true},
    {"Filling", [](BoxDesk& d) { d.Pick("cmbk", "1.27(10%)"); }, true},
    {"Transducers", [](BoxDesk& d) { d.ChooseDrivers("2", Answer::Yes); }, true},
    {"Alignment", [](BoxDesk& d) { d.TakeAlignment(0.05, 42, 50); }, true},
    {"Ports", [](BoxDesk& d) { d.Pick("cmbnumcond", "2"); }, true},
    {"PickedSide", [](BoxDesk& d) { d.Pick("cmbDoa", "10.4"); }, true},
    {"TypedSide", [](BoxDesk& d) { d.Enter("cmbDoa", "11"); }, true},
    {"SideB", [](BoxDesk& d) { d.Enter("txtb", "11"); }, false},
    {"Length", [](BoxDesk& d) { d.Enter("txtlungmis", "12"); }, false},
    {"SectionToggle", [](BoxDesk& d) { d.Click("imgforma(1)"); }, false},
    {"OccupiedVolume", [](BoxDesk& d) { d.Enter("txtingombro", "2"); }, false},
    {"EnteringAfterAChange",
     [](BoxDesk& d) {
       d.Tab("gen");
       d.state.DesignChanged = true;
       d.Tab("ref");
     },
     true},
    {"EnteringWithoutAChange",
     [](BoxDesk& d) {
       d.Tab("gen");
       d.state.DesignChanged = false;
       d.Tab("ref");
     },
     false},
};

INSTANTIATE_TEST_SUITE_P(Box, VentedGraphs, testing::ValuesIn(kVentedActs), NameOf);

TEST_P(ClosedGraphs, CloseWhenTheyNoLongerMatch) {
  BoxDesk desk;
  desk.DesignClosedBox();
  OpenGraphs(desk);
  GetParam().run(desk);
  ASSERT_TRUE(desk.Runs());
  ExpectGraphs(desk, GetParam().closes);
}

const Act kClosedActs[] = {
    {"TypedVolume", [](BoxDesk& d) { d.Enter("txtvolnetto", "60"); }, true},
    {"VolumeOfZero", [](BoxDesk& d) { d.Enter("txtvolnetto", "0"); }, false},
    {"Qtc", [](BoxDesk& d) { d.Pick("cmballi", "1.0"); }, true},
    {"QtcWithoutATransducer",
     [](BoxDesk& d) {
       d.state.Qts = 0;
       d.Pick("cmballi", "1.0");
     },
     true},
    {"SameQtc", [](BoxDesk& d) { d.Pick("cmballi", "0.707"); }, false},
    {"Filling", [](BoxDesk& d) { d.Pick("cmbk", "1.27(10%)"); }, true},
    {"UnknownFilling", [](BoxDesk& d) { d.Pick("cmbk", "1.3"); }, false},
    {"TransducersYes", [](BoxDesk& d) { d.ChooseDrivers("2", Answer::Yes); }, true},
    {"TransducersNo", [](BoxDesk& d) { d.ChooseDrivers("2", Answer::No); }, true},
    {"OccupiedVolume", [](BoxDesk& d) { d.Enter("txtingombro", "2"); }, false},
    {"EnteringAfterAChange",
     [](BoxDesk& d) {
       d.Tab("dim");
       d.state.AirChanged = true;
       d.Tab("chi");
     },
     true},
};

INSTANTIATE_TEST_SUITE_P(Box, ClosedGraphs, testing::ValuesIn(kClosedActs), NameOf);

TEST(Graphs, HiddenOnOtherPagesAndShownAgainOnTheBoxPage) {
  BoxDesk desk;
  desk.DesignVentedBox();
  OpenGraphs(desk);
  desk.Tab("par");
  for (const char* const name : kMatching) EXPECT_TRUE(desk.program.FindWindow(name)->hidden) << name;
  desk.Tab("ref");
  for (const char* const name : kMatching) EXPECT_FALSE(desk.program.FindWindow(name)->hidden) << name;
}

TEST(Wiring, ButtonTakesTheNumberOfTransducersOver) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.Pick("cmbnumdriver", "2");
  EXPECT_TRUE(desk.program.FindWindow("frmwooferconn")->open);
  EXPECT_EQ(desk.state.DriversNum, 1);
  desk.platform.answers.push_back(Answer::Yes);
  desk.Click("frmwooferconn.Command1");
  EXPECT_EQ(desk.state.DriversNum, 2);
  EXPECT_EQ(desk.Text("txtvolnetto"), "200.173");
}

TEST(Wiring, ClosingByTheMenuLeavesTheNumberAsItWas) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.Pick("cmbnumdriver", "2");
  desk.Choose("frmwooferconn.mnuchiudi");
  EXPECT_EQ(desk.state.DriversNum, 1);
  EXPECT_EQ(desk.Text("txtvolnetto"), "100.086");
  EXPECT_EQ(desk.TakeOut(), "");
}

TEST(Chart, OpensByTheRightButtonOnTheVolumeOfAVentedBox) {
  BoxDesk vented;
  vented.DesignVentedBox();
  RightClick(vented.program, vented["txtvolnetto"]);
  EXPECT_TRUE(vented.program.FindWindow("frmalfa")->open);
  BoxDesk closed;
  closed.DesignClosedBox();
  RightClick(closed.program, closed["txtvolnetto"]);
  EXPECT_FALSE(closed.program.FindWindow("frmalfa")->open);
}

}  // namespace
}  // namespace zefirondo
