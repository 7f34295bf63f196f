// A project after it was opened: what of the sheet it touches, and what the two odd roads of saving lead to.
#include <gtest/gtest.h>

#include <algorithm>

#include "files/project_file.h"
#include "files/sample_project.h"

namespace zefirondo {
namespace {

TEST(OpenedProject, LeavesTheReadOnlyFieldsOfTheDesign) {
  Desk fresh;
  for (const Lines& lines : {ClosedFile(), VentedFile()}) {
    Desk desk;
    OpenBytes(desk, FileOf(lines));
    for (const Control* const field : desk.sheet.window.controls) {
      if (!field->IsField()) continue;
      // The diameter was read first, and closes the area.
      const bool twin = field->name == "txtsd";
      EXPECT_EQ(field->locked, fresh[field->name].design.locked || twin) << field->name;
    }
    EXPECT_EQ(desk["txtzmax"].back, colour::kWindow);
  }
}

TEST(OpenedProject, IsNoImpedanceProjectAndHasNoCurveOfOne) {
  Desk desk;
  desk.BeginImpedance();
  desk.Choose("mnuesci");
  desk.platform.files.emplace_back(desk.folder.Write("opened.pro", FileOf(VentedFile())));
  desk.Choose("mdithsm.mnuapriprogetto");
  EXPECT_FALSE(desk.state.ImpedanceMode);
  EXPECT_EQ(desk.state.Fs, 0.0);
  EXPECT_EQ(desk.state.Zmax, 0.0);
  EXPECT_TRUE(desk.state.ImpFreq.empty());
  EXPECT_TRUE(desk.state.SplDb.empty());
  EXPECT_FALSE(desk.state.Set1BoxStored);
}

TEST(OpenedProject, TakesTheNumbersThatTheEventsOfTheFieldsGive) {
  Desk vented;
  OpenBytes(vented, FileOf(VentedFile()));
  EXPECT_EQ(vented.state.Ql, 10.0);
  EXPECT_GT(vented.state.Fb, 0.0);
  EXPECT_EQ(vented.state.Temperature, 21.5);
  Desk closed;
  OpenBytes(closed, FileOf(ClosedFile()));
  EXPECT_EQ(closed.state.Qtc, 0.8312);
  EXPECT_GT(closed.state.Fc, 0.0);
}

TEST(OpenedProject, ShowsTheDateOfItsLastSave) {
  Desk desk;
  FillSample(desk);  // the sheet shows 01/02/2003, and today is 20/11/2026
  desk.sheet.InsertBoxTab("chi", "Closed Box");
  desk.platform.files.emplace_back(desk.folder.path() / "dated.pro");
  SaveProjectAs(desk.program);
  EXPECT_EQ(desk.Text("txtdatacreaz"), "01/02/2003");
  Desk other;
  OpenFile(other, desk.folder.path() / "dated.pro");
  EXPECT_EQ(other.Text("txtdatacreaz"), "20/11/2026");
}

TEST(OpenedProject, TakesTheModelForItsTitleOnceThatFieldIsLeft) {
  Desk desk;
  OpenBytes(desk, FileOf(ClosedFile()));
  EXPECT_EQ(desk.state.ProjectTitle, "opened.pro");
  desk.Tab("gen");
  desk.Focus("txtmodello");
  desk.Leave();
  EXPECT_EQ(desk.state.ProjectTitle, "Maestrale 8");
}

TEST(OpenedProject, IsSavedWhereItWasOpened) {
  Desk desk;
  OpenBytes(desk, FileOf(ClosedFile()));
  MarkModified(desk.program);
  desk.state.txtmarca = "Later";
  desk.TakeOut();
  desk.Choose("mnusalvadir");
  EXPECT_EQ(desk.TakeOut(), "");
  EXPECT_NE(ReadFileBytes(desk.folder.path() / "opened.pro").find("\r\nBrand=Later\r\n"), std::string::npos);
}

TEST(OpenedProject, ReadsTheMisspeltTemperature) {
  Lines lines = ClosedFile();
  *std::find(lines.begin(), lines.end(), "Temperature=21.5") = "Temperaturae25";
  Desk desk;
  OpenBytes(desk, FileOf(lines));
  EXPECT_EQ(desk.Text("txttemperatura"), "25");
  EXPECT_EQ(desk.state.Temperature, 25.0);
}

TEST(OpenedProject, HasBothForcedEntriesBackWhenReadingFails) {
  Lines lines = ClosedFile();
  lines.pop_back();
  Desk desk;
  OpenBytes(desk, FileOf(lines));
  // What the filling of the fields set off stands: only a reading that comes to its end takes it back.
  EXPECT_TRUE(desk.state.ProjectModified);
  EXPECT_TRUE(desk["mnusalvadir"].enabled);
  EXPECT_TRUE(desk["cmdcalcola"].enabled);
  EXPECT_FALSE(desk["mnustampa"].enabled);
  EXPECT_TRUE(desk["mnuimportadati"].enabled);
  EXPECT_TRUE(desk.sheet.HasTab("chi"));
  EXPECT_EQ(desk.sheet.selected_tab, "gen");
}

TEST(OpenedProject, CanBeGivenUpAfterAFailedReadingAndAnotherOpened) {
  Desk desk;
  OpenBytes(desk, FileOf({"Manufacturer=Officina"}));
  desk.Choose("mnuesci");
  desk.TakeOut();
  desk.platform.files.emplace_back(desk.folder.Write("good.pro", FileOf(ClosedFile())));
  desk.Choose("mdithsm.mnuapriprogetto");
  EXPECT_TRUE(MessagesOf(desk.TakeOut()).empty());
  EXPECT_EQ(desk.sheet.selected_tab, "chi");
}

// ---- the two roads that end in a message, as wanted ----

TEST(ProjectOfTheCommandLine, IsSavedByTheDialogOnly) {
  Desk desk;
  const std::filesystem::path file = desk.folder.Write("given.pro", FileOf(ClosedFile()));
  desk.Begin(file.string());
  MarkModified(desk.program);
  // It is said to have a path, and has none: "Save Project" asks nothing and fails, however often.
  for (int times = 0; times < 2; ++times) {
    desk.TakeOut();
    desk.Choose("mnusalvadir");
    EXPECT_EQ(desk.TakeOut(), SaveFailure(75) + "\n");
    EXPECT_TRUE(desk.state.ProjectModified);
    EXPECT_TRUE(desk["mnuannulla"].enabled);
  }
  desk.platform.files.emplace_back(desk.folder.path() / "other.pro");
  desk.Choose("mnusalva");
  EXPECT_FALSE(desk.state.ProjectModified);
  EXPECT_EQ(desk.state.ProjectPath, "");  // "Save Project" fails again
  MarkModified(desk.program);
  desk.TakeOut();
  desk.Choose("mnusalvadir");
  EXPECT_EQ(desk.TakeOut(), SaveFailure(75) + "\n");
  EXPECT_EQ(ReadFileBytes(file), FileOf(ClosedFile()));
}

TEST(ProjectOfTheCommandLine, IsTheOneThatTheEntryOpensToo) {
  Desk desk;
  const std::filesystem::path file = desk.folder.Write("given.pro", FileOf(ClosedFile()));
  desk.Begin(file.string());
  desk.Choose("mnuesci");
  desk.TakeOut();
  desk.Choose("mdithsm.mnuapriprogetto");
  EXPECT_EQ(desk.TakeOut(), "");  // no dialog
  EXPECT_EQ(desk.state.FilePath, file.string());
  EXPECT_EQ(desk.state.ProjectPath, "");
}

TEST(ProjectWithoutABox, SavesInEitherWayAndIsNeverReadBack) {
  for (const bool as : {true, false}) {
    Desk desk;
    desk.BeginParameters();
    desk.FillWoofer();
    desk.platform.files.emplace_back(desk.folder.path() / "early.pro");
    as ? SaveProjectAs(desk.program) : SaveProject(desk.program);
    EXPECT_TRUE(MessagesOf(desk.TakeOut()).empty());
    Desk other;
    OpenFile(other, desk.folder.path() / "early.pro");
    // There is no section, so that the line of the apparent volume is taken for it.
    EXPECT_EQ(MessagesOf(other.TakeOut()), Lines{OpenFailure(62)}) << as;
    EXPECT_EQ(other.state.BoxSection, "ApparentVol=");
    EXPECT_EQ(other.Text("txtfs"), "35");  // all before it was read
    EXPECT_EQ(other.Text("txtmms"), "0.038");
    EXPECT_TRUE(other.state.ProjectLoaded);
    EXPECT_TRUE(other.state.HasProjectPath);
  }
}

TEST(ProjectWithBothBoxes, SavedQuicklyOnTheClosedOneIsReadAsAVentedOne) {
  Desk desk;
  FillSample(desk);
  desk.sheet.InsertBoxTab("ref", "Vented Box");
  desk.sheet.InsertBoxTab("chi", "Closed Box");
  desk.sheet.selected_tab = "chi";
  desk.platform.files.emplace_back(desk.folder.path() / "both.pro");
  SaveProject(desk.program);
  Desk other;
  OpenFile(other, desk.folder.path() / "both.pro");
  EXPECT_TRUE(other.sheet.HasTab("ref"));
  EXPECT_FALSE(other.sheet.HasTab("chi"));
  EXPECT_EQ(other.Text("cmbql"), "gnment=0.8312");  // "Alignment=0.8312" behind the 3 characters of "Ql="
  EXPECT_EQ(other.Text("cmbnumcond"), "um=2");      // "DriversNum=2" behind the 8 of "VentNum="
  EXPECT_EQ(MessagesOf(other.TakeOut()), Lines{OpenFailure(62)});
}

}  // namespace
}  // namespace zefirondo
