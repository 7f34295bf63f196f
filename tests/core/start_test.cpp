// The order of the start-up, where it shows, and what a new sheet takes from where.
#include <gtest/gtest.h>

#include "core/shell.h"
#include "files/sample_project.h"

namespace zefirondo {
namespace {

TEST(StartWithAProject, SetsTheOptionsFirstSoThatThoseOfTheFileStand) {
  Desk desk;
  desk.Begin(desk.folder.Write("given.pro", FileOf(LongestFile())).string());
  EXPECT_EQ(desk.TakeOut(), "");
  EXPECT_EQ(desk.state.WooferWiring, "series");
  EXPECT_EQ(desk.state.RsAmplifier, 0.25);
  EXPECT_EQ(desk.state.WoodThickness, 22);
  EXPECT_TRUE(desk.state.ProjectLoaded);
}

TEST(StartWithAProject, ForgetsWhatGraphItOpened) {
  Desk desk;
  desk.Begin(desk.folder.Write("given.pro", FileOf(ClosedFile())).string());
  const Window& graph = desk.program.windows.frmgrafcassa.window;
  EXPECT_TRUE(graph.open);
  EXPECT_FALSE(desk.state.GrafCassaOpen);  // the flags are cleared behind the opening
  desk.Tab("par");
  EXPECT_FALSE(graph.hidden);  // and a graph without its flag stays shown
}

TEST(StartWithAProject, LeavesTitleAndPathOfTheProjectEmpty) {
  Desk desk;
  const std::string path = desk.folder.Write("given.pro", FileOf(ClosedFile())).string();
  desk.Begin(path);
  EXPECT_EQ(desk.state.FilePath, path);
  EXPECT_EQ(desk.state.ProjectPath, "");
  EXPECT_EQ(desk.state.ProjectTitle, "");
}

TEST(StartWithAProject, OnANarrowScreenEndsWithoutAQuestion) {
  Desk desk(Language::English, 1023);
  Lines lines = ClosedFile();
  lines.pop_back();  // a reading that fails leaves the project modified
  desk.Begin(desk.folder.Write("short.pro", FileOf(lines)).string());
  EXPECT_TRUE(desk.state.ProjectModified);
  const Lines messages = MessagesOf(desk.TakeOut());
  ASSERT_EQ(messages.size(), 2U);
  EXPECT_EQ(messages[0], OpenFailure(62));
  EXPECT_TRUE(messages[1].starts_with("message stop \"Impostazione Schermo\" ")) << messages[1];
  EXPECT_EQ(desk.program.run, RunState::EndedByFailure);
}

TEST(StartUp, TiesTheSameFilesInEveryLanguageAndWithEveryProject) {
  Desk plain;
  plain.Begin();
  Desk italian(Language::Italian);
  italian.Begin("missing.pro");
  EXPECT_EQ(plain.platform.store, italian.platform.store);
}

TEST(SheetCreation, TakesNumbersFromTheFieldsAndTheAirFromItsDefaults) {
  Desk desk;
  ProjectState& s = desk.state;
  s.DriversNum = s.VentNum = 3;
  s.Ql = 15;
  s.Temperature = 40;
  s.Pressure = 90000;
  s.roo = s.Velocity = 1;
  s.ProjectModified = true;
  s.Set1BoxFreq = s.Set1BoxDb = s.Set2BoxFreq = s.Set2BoxDb = {1, 2, 3};
  desk.BeginParameters();
  EXPECT_EQ(s.DriversNum, 1);
  EXPECT_EQ(s.VentNum, 1);
  EXPECT_EQ(s.Ql, 7.0);
  EXPECT_EQ(s.Temperature, 25.0);
  EXPECT_EQ(s.Pressure, 101325.0);
  EXPECT_NEAR(s.roo, 1.18541, 1e-5);
  EXPECT_NEAR(s.Velocity, 346.031, 1e-3);
  EXPECT_FALSE(s.ProjectModified);
  for (const Curve* const curve : {&s.Set1BoxFreq, &s.Set1BoxDb, &s.Set2BoxFreq, &s.Set2BoxDb}) {
    EXPECT_EQ(*curve, Curve{0.0});
  }
}

TEST(SheetCreation, LeavesEveryOtherCurveEmpty) {
  Desk desk;
  desk.BeginParameters();
  const ProjectState& s = desk.state;
  for (const Curve* const curve :
       {&s.ImpFreq,    &s.ImpZ,          &s.BoxFreq,      &s.BoxDb,         &s.SplFreq,         &s.SplDb,
        &s.SplMaxFreq, &s.SplMaxDb,      &s.AirFreq,      &s.AirSpeed,      &s.OverlaySplFreq,  &s.OverlaySplDb,
        &s.PhaseFreq,  &s.PhaseDeg,      &s.FilterFreq,   &s.FilterDb,      &s.FilterPhaseFreq, &s.FilterPhaseDeg,
        &s.SumFreq,    &s.SumDb,         &s.SumPhaseDeg,  &s.Set1SplFreq,   &s.Set1SplDb,       &s.Set2SplFreq,
        &s.Set2SplDb,  &s.Set1PhaseFreq, &s.Set1PhaseDeg, &s.Set2PhaseFreq, &s.Set2PhaseDeg,    &s.PhaseX1,
        &s.PhaseHz1,   &s.PhaseDeg1,     &s.PhaseX2,      &s.PhaseHz2,      &s.PhaseDeg2}) {
    EXPECT_TRUE(curve->empty());
  }
}

TEST(NewProject, AfterAnImpedanceProjectHasFieldsOfItsOwnKind) {
  Desk desk;
  desk.BeginImpedance();
  desk.Choose("mnuesci");
  EXPECT_FALSE(desk.state.ImpedanceMode);
  desk.Choose("mdithsm.mnuinsmanuale");
  EXPECT_FALSE(desk["txtqes"].locked);
  EXPECT_TRUE(desk["txtzmax"].locked);
  desk.Choose("mnuesci");
  desk.Choose("mdithsm.mnuthisma");
  EXPECT_TRUE(desk.state.ImpedanceMode);
  EXPECT_TRUE(desk["txtqes"].locked);
  EXPECT_FALSE(desk["txtzmax"].locked);
  EXPECT_TRUE(desk["mnuimportadati"].enabled);
}

TEST(NewProject, ForgetsThePathOfTheOneBefore) {
  for (const char* const entry : {"mdithsm.mnuthisma", "mdithsm.mnuinsmanuale"}) {
    Desk desk;
    OpenBytes(desk, FileOf(ClosedFile()));
    ASSERT_TRUE(desk.state.HasProjectPath);
    desk.Choose("mnuesci");
    EXPECT_TRUE(desk.state.HasProjectPath) << "the end of a project keeps it";
    desk.Choose(entry);
    EXPECT_FALSE(desk.state.HasProjectPath) << entry;
  }
}

TEST(OptionsOfTheFrame, SurviveIntoTheNextNewProject) {
  Desk desk;
  desk.Begin();
  desk.Choose("mdithsm.mnuopzioni");
  desk.Click("frmopzioni.optserie");
  desk.Click("frmopzioni.cmdok");
  desk.Choose("mdithsm.mnuinsmanuale");
  EXPECT_EQ(desk.state.WooferWiring, "series");
  desk.Choose("mnuesci");
  EXPECT_EQ(desk.state.WooferWiring, "biamp");
}

}  // namespace
}  // namespace zefirondo
