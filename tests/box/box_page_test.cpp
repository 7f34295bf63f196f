// The box page: what the closed and the vented design share, and the entering of its tabs.
#include "box/box_page.h"

#include <gtest/gtest.h>

#include "box/designs.h"
#include "core/window_life.h"

namespace zefirondo {
namespace {

struct LookRow {
  const char* name;
  const char* caption;
  const char* unit;
};

TEST(BoxPage, FieldsHaveTheirCaptionsAndUnits) {
  BoxDesk desk;
  desk.BeginParameters();
  constexpr LookRow kRows[] = {
      {"cmbk", "Gamma=Cp/Cv", ""},
      {"cmbnumdriver", "Transducers", ""},
      {"txtvolnetto", "Net Vol. Box", "l"},
      {"txtingombro", "Vol. Occupied", "l"},
      {"txtvoloccu", "Vol. Transducers", "l"},
      {"txtvolappa", "Vol. apparent", "l"},
      {"txtfb", "Box Frequency", "Hz"},
      {"txtfreriso", "Pole Frequency", "Hz"},
      {"txtfstrasdu", "Fs Transducer", "Hz"},
      {"txtboxvolume", "Box Volume", "l"},
      {"cmbnumcond", "Num Ports", ""},
      {"txtlungmis", "Effective Length", "Cm"},
      {"txtlungappa", "Apparent Length", "Cm"},
      {"txtareasez", "One Sectional Area", "Cm²"},
      {"txtseztot", "All Sectional Area", "Cm²"},
      {"txtminsv", "Min. One Sect. Area", "Cm²"},
      {"cmbforma", "Shape", ""},
      {"cmbrappo", "Ratio", ""},
      {"txtl", "Width L", "Cm"},
      {"txth", "Height H", "Cm"},
      {"txtp", "Depth P", "Cm"},
  };
  for (const LookRow& row : kRows) {
    EXPECT_EQ(desk[row.name].label, row.caption) << row.name;
    EXPECT_EQ(desk[row.name].unit, row.unit) << row.name;
  }
  ExpectTexts(desk, {{"lblqtc", "Qtc"},
                     {"fraql", "Q of the Box Leakage Losses"},
                     {"lblperdita", "Leakage"},
                     {"framisubox", "Internal Dimensions"},
                     {"lblDoL", "Internal Diameter"},
                     {"lblUoX", "Cm"},
                     {"lblLD", "Rear LD"},
                     {"lblgradi", "Tilt"}});
  EXPECT_EQ(desk["cmbgradi"].unit, "Deg.");
}

struct ListRow {
  const char* name;
  const char* text;
  std::vector<std::string> list;
};

TEST(BoxPage, CombosHaveTheirListsAndFirstTexts) {
  BoxDesk desk;
  desk.BeginParameters();
  const ListRow kRows[] = {
      {"cmballi", "0.707", {"0.5", "0.707", "1.0", "1.4", "2.0"}},
      {"cmbk", "1.40", {"1.40(0%)", "1.27(10%)", "1.17(20%)", "1.12(25%)", "1.05(33%)"}},
      {"cmbnumdriver", "1", {"1", "2", "3", "4"}},
      {"cmbql", "7", {"5", "7", "10", "15", "20"}},
      {"cmbnumcond", "1", {"1", "2", "3", "4", "5", "6"}},
      {"cmbDoa", "", {"3.5", "4.5", "5.7", "6.6", "7.5", "9.5", "10.4", "12.1", "13.4", "15.56", "19.2"}},
      {"cmbforma", "Prismatic", {"Prismatic", "Trapezoidal"}},
      {"cmbrappo", "1.62  1  0.62", {"1.62  1  0.62", "1.25  1  0.8"}},
      {"cmbgradi", "15", {"7.5", "10", "15", "20"}},
  };
  for (const ListRow& row : kRows) {
    EXPECT_EQ(desk.Text(row.name), row.text) << row.name;
    EXPECT_EQ(desk[row.name].list, row.list) << row.name;
  }
  EXPECT_EQ(desk.Text("txtingombro"), "0");
  EXPECT_EQ(desk.state.Ql, 7);
}

TEST(BoxPage, NetVolumeTellsOfTheRightButton) {
  BoxDesk desk;
  desk.BeginParameters();
  EXPECT_EQ(desk["txtvolnetto"].tip, "Funzione associata al tasto destro del mouse");
  for (const char* const name : {"txtl", "txth", "txtp"}) EXPECT_EQ(desk[name].tip, "Doppio click per modificare");
}

TEST(NetVolume, RightButtonIsForVentedBoxes) {
  BoxDesk desk;
  desk.DesignClosedBox();
  RightClick(desk.program, desk["txtvolnetto"]);
  EXPECT_EQ(desk.TakeOut(),
            "message information \"Information\" \"Feature available only for Vented Box\" [OK] -> OK\n");
}

TEST(NetVolume, RightButtonSpeaksItalianAndKnowsTheItalianSection) {
  BoxDesk closed(Language::Italian);
  closed.DesignClosedBox();
  RightClick(closed.program, closed["txtvolnetto"]);
  EXPECT_EQ(closed.TakeOut(),
            "message information \"Informazione\" \"Funzione disponibile solo in caso di Box reflex\" [OK] -> OK\n");
  BoxDesk vented(Language::Italian);
  vented.DesignVentedBox();
  RightClick(vented.program, vented["txtvolnetto"]);
  EXPECT_TRUE(vented.program.FindWindow("frmalfa")->open);
}

TEST(NetVolume, RightButtonShowsNoMessageForAVentedBox) {
  BoxDesk desk;
  desk.DesignVentedBox();
  RightClick(desk.program, desk["txtvolnetto"]);
  EXPECT_EQ(desk.TakeOut(), "");
}

TEST(OccupiedVolume, EntersTheBoxVolumeAndNotThatOfTheTransducers) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.state.txtvoloccu = "2";
  desk.state.ProjectModified = false;
  desk.Enter("txtingombro", "1.5");
  EXPECT_EQ(desk.Text("txtboxvolume"), "103.586");  // 2 + 100.086 + 1.5
  EXPECT_EQ(desk.Text("txtvoloccu"), "2");
  EXPECT_EQ(desk.Text("txtl"), "47");  // 103.586^(1/3) · 10 = 46.964
  EXPECT_TRUE(desk.state.DesignChanged);
  EXPECT_TRUE(desk.state.ProjectModified);
}

TEST(OccupiedVolume, SameTextOnlyClearsTheDesignFlag) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.state.txtboxvolume = "marker";
  desk.state.ProjectModified = false;
  desk.state.DesignChanged = true;
  desk.Enter("txtingombro", "0");
  EXPECT_EQ(desk.Text("txtboxvolume"), "marker");
  EXPECT_FALSE(desk.state.DesignChanged);
  EXPECT_FALSE(desk.state.ProjectModified);
}

TEST(NumberOfTransducers, SameNumberAsksNothing) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.state.WooferWiring = "series";
  desk.Pick("cmbnumdriver", "1");
  EXPECT_EQ(desk.TakeOut(), "");
  EXPECT_EQ(desk.state.WooferWiring, "biamp");  // one transducer is always on a channel of its own
  EXPECT_FALSE(desk.state.DesignChanged);
}

TEST(NumberOfTransducers, AHigherOneWaitsForTheWiring) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.Pick("cmbnumdriver", "3");
  EXPECT_EQ(desk.state.DriversNum, 1);
  EXPECT_EQ(desk.Text("txtvolnetto"), "103.593");
  EXPECT_EQ(desk.TakeOut(), "");
}

TEST(NumberOfTransducers, BackToOneAsksAtOnce) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.ChooseDrivers("2", Answer::Yes);
  desk.state.WooferWiring = "parallel";
  desk.TakeOut();
  desk.platform.answers.push_back(Answer::Yes);
  desk.Pick("cmbnumdriver", "1");
  EXPECT_EQ(desk.state.WooferWiring, "biamp");
  EXPECT_EQ(desk.state.DriversNum, 1);
  EXPECT_EQ(desk.Text("txtvolnetto"), "103.593");
  EXPECT_NE(desk.TakeOut(), "");
}

TEST(NumberOfTransducers, AsksWhatHasToGiveWayInAClosedBox) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.ChooseDrivers("2", Answer::Yes);
  EXPECT_EQ(desk.TakeOut(),
            "message question \"What would you change?\" \"To change the volume click on 'Yes' \\n\\no change the Qtc "
            "click 'No' \" [Yes No] -> Yes\n");
  EXPECT_TRUE(desk.state.DesignChanged);
}

TEST(NumberOfTransducers, AsksWhatHasToGiveWayInAVentedBox) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.ChooseDrivers("2", Answer::No);
  EXPECT_EQ(desk.TakeOut(),
            "message question \"What would you change?\" \"To change the volume click on 'Yes' \\n\\nTo change the "
            "Frequency Response click 'No' \" [Yes No] -> No\n");
  EXPECT_TRUE(desk.state.DesignChanged);
}

TEST(NumberOfTransducers, AsksInItalianToo) {
  BoxDesk desk(Language::Italian);
  desk.DesignVentedBox();
  desk.ChooseDrivers("2", Answer::No);
  EXPECT_EQ(desk.TakeOut(),
            "message question \"Cosa cambiare?\" \"Per cambiare il Volume cliccare su 'Si' \\n\\nPer cambiare il tipo "
            "di risposta cliccare su No \" [Yes No] -> No\n");
}

TEST(NumberOfTransducers, IsRoundedToAnInteger) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.ChooseDrivers("2.4", Answer::Yes);
  EXPECT_EQ(desk.state.DriversNum, 2);
}

TEST(NumberOfTransducers, DoesNothingOnAnotherTab) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.Tab("gen");
  desk.state.cmbnumdriver = "2";
  SelNumDriver(desk.program);
  EXPECT_EQ(desk.state.DriversNum, 1);
  EXPECT_EQ(desk.TakeOut(), "");
}

TEST(NumberOfTransducers, ClosedBoxIsSkippedWithoutATransducer) {
  for (const Answer answer : {Answer::Yes, Answer::No}) {
    BoxDesk desk;
    desk.DesignClosedBox();
    desk.state.Qts = 0;
    desk.ChooseDrivers("2", answer);
    EXPECT_TRUE(desk.Runs());
    EXPECT_EQ(desk.state.DriversNum, 2);
    ExpectTexts(desk, {{"txtvolnetto", "103.593"}, {"txtvoloccu", "3.25696"}, {"txtfb", "35.4413"}});
  }
}

TEST(NumberOfTransducers, HeldVolumeShowsItsApparentVolumeAnew) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.state.txtvolappa = "marker";
  desk.state.VbaClosed = 1;
  desk.ChooseDrivers("2", Answer::No);
  EXPECT_EQ(desk.Text("txtvolappa"), "103.593");
  ExpectNumbers(desk, {{"VbaClosed", 0.10359331792676159}});
}

TEST(NumberOfTransducers, HeldVolumeOfZeroIsSkipped) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.state.VbaClosed = 0;
  desk.ChooseDrivers("2", Answer::No);
  EXPECT_TRUE(desk.Runs());
  EXPECT_EQ(desk.state.Qtc, 0.707);
  EXPECT_EQ(desk.Text("txtfb"), "35.4413");
}

TEST(NumberOfTransducers, DropsTheSumOfTheGraph) {
  for (const bool vented : {false, true}) {
    BoxDesk desk;
    vented ? desk.DesignVentedBox() : desk.DesignClosedBox();
    BoxResponse& graph = desk.program.windows.frmgrafcassa;
    graph.cmdcancella.enabled = graph.cmdsomma.enabled = true;
    graph.mnuimportaOverlay.enabled = false;
    desk.state.SumFreq = desk.state.SumDb = {1, 2};
    desk.ChooseDrivers("2", Answer::Yes);
    EXPECT_FALSE(graph.cmdcancella.enabled || graph.cmdsomma.enabled);
    EXPECT_TRUE(graph.mnuimportaOverlay.enabled);
    EXPECT_TRUE(desk.state.SumFreq.empty() && desk.state.SumDb.empty());
  }
}

struct LeavingRow {
  const char* typed;
  const char* left;
};

TEST(NumberOfTransducers, OutOfRangeGoesBackOnLeaving) {
  constexpr LeavingRow kRows[] = {{"0", "1"},   {"5", "1"},     {"9", "1"},     {"", "1"},  {"0.5", "1"},
                                  {"4.6", "1"}, {"0.6", "0.6"}, {"4.5", "4.5"}, {"3", "3"}, {"4", "4"}};
  for (const LeavingRow& row : kRows) {
    BoxDesk desk;
    desk.DesignVentedBox();
    desk.Enter("cmbnumdriver", row.typed);
    EXPECT_EQ(desk.Text("cmbnumdriver"), row.left) << row.typed;
    EXPECT_EQ(desk.state.DriversNum, 1);
  }
}

TEST(NumberOfTransducers, OutOfRangeGoesBackToTheirNumber) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.ChooseDrivers("3", Answer::Yes);
  for (const char* const typed : {"0", "7"}) {
    desk.Enter("cmbnumdriver", typed);
    EXPECT_EQ(desk.Text("cmbnumdriver"), "3");
  }
}

void ExpectPages(BoxDesk& desk, bool vented) {
  const Sheet& sheet = desk.sheet;
  EXPECT_TRUE(sheet.frabox.visible);
  EXPECT_EQ(sheet.fravented.visible, vented);
  EXPECT_EQ(sheet.fraql.visible, vented);
  EXPECT_EQ(sheet.fratiporispo.visible, !vented);
  EXPECT_FALSE(sheet.fragenerale.visible || sheet.frathsm.visible || sheet.fradim.visible || sheet.fraimpo.visible);
}

TEST(EnteringTheTab, ShowsTheFramesOfTheBox) {
  BoxDesk vented;
  vented.DesignVentedBox();
  ExpectPages(vented, true);
  BoxDesk closed;
  closed.DesignClosedBox();
  ExpectPages(closed, false);
}

TEST(EnteringTheTab, NamesTheSection) {
  BoxDesk vented;
  vented.DesignVentedBox();
  EXPECT_EQ(vented.state.BoxSection, "Vented Box");
  BoxDesk closed(Language::Italian);
  closed.DesignClosedBox();
  EXPECT_EQ(closed.state.BoxSection, "Box Chiuso");
}

TEST(EnteringTheTab, OtherPagesHideTheGraphAndSaving) {
  for (const bool vented : {false, true}) {
    for (const char* const key : {"gen", "par", "dim", "imp"}) {
      BoxDesk desk;
      vented ? desk.DesignVentedBox() : desk.DesignClosedBox();
      EXPECT_FALSE(desk.program.windows.frmgrafcassa.window.hidden);
      EXPECT_TRUE(desk.sheet.mnusalvadir.enabled);
      desk.Tab(key);
      EXPECT_TRUE(desk.program.windows.frmgrafcassa.window.hidden) << key;
      EXPECT_FALSE(desk.sheet.mnusalvadir.enabled) << key;
      desk.Tab(vented ? "ref" : "chi");
      EXPECT_FALSE(desk.program.windows.frmgrafcassa.window.hidden) << key;
      EXPECT_TRUE(desk.sheet.mnusalvadir.enabled) << key;
      EXPECT_EQ(desk.TakeOut(), "") << key;  // nothing was changed, nothing is warned of
    }
  }
}

TEST(EnteringTheTab, DropsTheSumOfTheGraph) {
  for (const bool vented : {false, true}) {
    BoxDesk desk;
    vented ? desk.DesignVentedBox() : desk.DesignClosedBox();
    desk.Tab("gen");
    BoxResponse& graph = desk.program.windows.frmgrafcassa;
    graph.cmdcancella.enabled = graph.cmdsomma.enabled = true;
    graph.mnuimportaOverlay.enabled = false;
    desk.state.SumFreq = desk.state.SumDb = {1, 2};
    desk.Tab(vented ? "ref" : "chi");
    EXPECT_FALSE(graph.cmdcancella.enabled || graph.cmdsomma.enabled);
    EXPECT_TRUE(graph.mnuimportaOverlay.enabled);
    EXPECT_TRUE(desk.state.SumFreq.empty() && desk.state.SumDb.empty());
  }
}

TEST(EnteringTheTab, ClosedTabRemembersTheQtc) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.Tab("gen");
  desk.state.FieldBefore = "marker";
  desk.Tab("chi");
  EXPECT_EQ(desk.state.FieldBefore, "0.707");
}

TEST(EnteringTheTab, ShowsTheShapeThatBelongsToTheRearSide) {
  for (const char* const key : {"chi", "ref"}) {
    BoxDesk desk;
    key == std::string("chi") ? desk.DesignClosedBox() : desk.DesignVentedBox();
    for (const char* const rear : {"21.4", ""}) {
      desk.Tab("gen");
      desk.state.txtld = rear;
      desk.Tab(key);
      const bool trapezoid = *rear != '\0';
      EXPECT_EQ(desk.sheet.imgbox[0].visible, !trapezoid);
      EXPECT_EQ(desk.sheet.imgbox[1].visible, trapezoid);
    }
  }
}

constexpr const char* kClosedWarning =
    "message information \"Information\" \"Warning!\\nWith the above changes have been made several changes to the "
    "project\" [OK] -> OK\n";
constexpr const char* kVentedWarning =
    "message information \"Information\" \"Warning!\\nWith the above changes may have been made several changes to the "
    "project\" [OK] -> OK\n";

TEST(EnteringTheTab, WarnsOfChangesAndForgetsThem) {
  for (bool ProjectState::*flag : {&ProjectState::DesignChanged, &ProjectState::AirChanged}) {
    for (const bool vented : {false, true}) {
      BoxDesk desk;
      vented ? desk.DesignVentedBox() : desk.DesignClosedBox();
      desk.Tab("gen");
      CloseWindow(desk.program, "frmgrafcassa");
      desk.state.*flag = true;
      desk.Tab(vented ? "ref" : "chi");
      EXPECT_EQ(desk.TakeOut(), vented ? kVentedWarning : kClosedWarning);
      EXPECT_FALSE(desk.state.DesignChanged);
      EXPECT_FALSE(desk.state.AirChanged);
      EXPECT_TRUE(desk.program.windows.frmgrafcassa.window.open);
      desk.Tab("gen");
      desk.Tab(vented ? "ref" : "chi");
      EXPECT_EQ(desk.TakeOut(), "");
    }
  }
}

TEST(EnteringTheTab, WarnsInItalian) {
  for (const bool vented : {false, true}) {
    BoxDesk desk(Language::Italian);
    vented ? desk.DesignVentedBox() : desk.DesignClosedBox();
    desk.Tab("gen");
    desk.state.DesignChanged = true;
    desk.Tab(vented ? "ref" : "chi");
    const std::string verb = vented ? "potrebbero essere state" : "sono state";
    EXPECT_EQ(desk.TakeOut(), "message information \"Informazione\" \"Attenzione!\\nCon la precedente modifica " +
                                  verb + " apportate diverse variazioni al progetto\" [OK] -> OK\n");
  }
}

TEST(EnteringTheClosedTab, UpdatesTheDesignFromItsVolume) {
  // 80 litres at Qtc 0.707, by the script of the whole designs; F3c is not computed anew, and the sum of the volumes
  // is not written.
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.Tab("gen");
  desk.state.Vc = 0.08;
  desk.state.DesignChanged = true;
  desk.Tab("chi");
  ExpectTexts(desk, {{"txtvolnetto", "80"},
                     {"txtvolappa", "80"},
                     {"txtfb", "38.7609"},
                     {"txtfreriso", "29.2017"},
                     {"txtboxvolume", "105.221"}});
  ExpectNumbers(desk, {{"VbaClosed", 0.08}, {"Fc", 38.760950089492489}, {"F3c", 35.446724430615099}});
  ExpectClosedCurve(desk, 0.707, 38.760950089492489);
}

TEST(EnteringTheClosedTab, OpenedProjectRebuildsItsCurveAndWritesNoField) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.Tab("gen");
  desk.state.ProjectLoaded = true;
  desk.state.Vc = 0.08;
  desk.state.BoxFreq.clear();
  desk.state.BoxDb.clear();
  desk.Tab("chi");
  ExpectTexts(desk,
              {{"txtvolnetto", "103.593"}, {"txtvolappa", "103.593"}, {"txtfb", "35.4413"}, {"txtfreriso", "27.9232"}});
  ExpectNumbers(desk, {{"VbaClosed", 0.08}, {"Fc", 38.760950089492489}});
  ExpectClosedCurve(desk, 0.707, 38.760950089492489);
}

TEST(EnteringTheTab, NewProjectThatDidNotChangeKeepsItsCurve) {
  for (const bool vented : {false, true}) {
    BoxDesk desk;
    vented ? desk.DesignVentedBox() : desk.DesignClosedBox();
    desk.Tab("gen");
    desk.state.BoxDb[kProbe] = 12;
    desk.Tab(vented ? "ref" : "chi");
    EXPECT_EQ(desk.state.BoxDb[kProbe], 12);
  }
}

}  // namespace
}  // namespace zefirondo
