// What a saved project holds, byte for byte, by the tables of the format written out by hand.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "files/project_file.h"
#include "files/sample_project.h"

namespace zefirondo {
namespace {

/// A project with these box tabs, and one of them or another page selected.
class Saving : public testing::Test {
 protected:
  void Prepare(const Lines& box_tabs, const std::string& selected) {
    FillSample(desk);
    for (const std::string& key : box_tabs) desk.sheet.InsertBoxTab(key, key);
    desk.sheet.selected_tab = selected;
    target = desk.folder.path() / "saved.pro";
  }

  std::string SavedAs() {
    desk.platform.files.emplace_back(target);
    SaveProjectAs(desk.program);
    return ReadFileBytes(target);
  }

  std::string Saved() {
    desk.platform.files.emplace_back(target);
    SaveProject(desk.program);
    return ReadFileBytes(target);
  }

  /// The one line that begins so in the saved bytes.
  static std::string LineOf(const std::string& bytes, const std::string& key) {
    const std::size_t at = bytes.find("\r\n" + key);
    if (at == std::string::npos) return "none";
    return bytes.substr(at + 2, bytes.find("\r\n", at + 2) - at - 2);
  }

  Desk desk;
  std::filesystem::path target;
};

Lines Closed(const std::string& first) {
  return Lines{first, "Alignment=0.8312"} + ShapeLines("Prismatic") + Lines{"BoxVolume=27.4"} + kVolumeLines;
}

Lines Vented(const std::string& first, const Lines& side = {}, const std::string& shape = "Prismatic") {
  return Lines{first, "Ql=10"} + ShapeLines(shape) + Lines{"BoxVolume=27.4"} + kPortLines + side + kVolumeLines;
}

const Lines kTailWithF3 = kTailLines + kF3Line + kPrismLines + kOptionLines;
const Lines kTailWithoutF3 = kTailLines + kPrismLines + kOptionLines;

TEST_F(Saving, WritesAProjectWithoutABoxWithoutASection) {
  Prepare({}, "par");
  EXPECT_EQ(SavedAs(), FileOf(kHeadLines + kTailWithF3));
}

TEST_F(Saving, WritesAClosedBox) {
  Prepare({"chi"}, "chi");
  desk.state.F3v = 0;
  EXPECT_EQ(SavedAs(), FileOf(kHeadLines + Closed("ClosedBox") + kTailWithoutF3));
  EXPECT_EQ(Saved(), FileOf(kHeadLines + Closed("ClosedBox") + kTailWithoutF3));
  EXPECT_EQ(ReadFileBytes(target), FileOf(ClosedFile()));
}

TEST_F(Saving, WritesAVentedBoxWithARoundPort) {
  Prepare({"ref"}, "ref");
  EXPECT_EQ(SavedAs(), FileOf(kHeadLines + Vented("VentedBox") + kTailWithF3));
  EXPECT_EQ(Saved(), FileOf(VentedFile()));
}

TEST_F(Saving, GoesByTheOneBoxTabWhateverPageIsShown) {
  Prepare({"ref"}, "gen");
  EXPECT_EQ(SavedAs(), FileOf(VentedFile()));
}

TEST_F(Saving, WritesTheSideOfARectangularPort) {
  Prepare({"ref"}, "ref");
  desk.sheet.imgforma[0].visible = false;
  desk.sheet.imgforma[1].visible = true;
  desk.state.txtb = "5.9";
  EXPECT_EQ(SavedAs(), FileOf(kHeadLines + Vented("VentedBox", {"Side b=5.9"}) + kTailWithF3));
  desk.state.txtb = "";  // the picture decides, with one box tab
  EXPECT_EQ(SavedAs(), FileOf(kHeadLines + Vented("VentedBox", {"Side b="}) + kTailWithF3));
}

TEST_F(Saving, LeavesTheSideOutWhileThePictureIsRound) {
  Prepare({"ref"}, "ref");
  desk.state.txtb = "5.9";
  EXPECT_EQ(SavedAs(), FileOf(VentedFile()));
}

TEST_F(Saving, WritesATrapezoid) {
  Prepare({"ref"}, "ref");
  desk.state.cmbforma = "Trapezoidal";
  desk.state.txtld = "19.5";
  desk.sheet.imgforma[1].visible = true;
  desk.state.txtb = "5.9";
  EXPECT_EQ(SavedAs(), FileOf(LongestFile()));
  EXPECT_EQ(Saved(), FileOf(LongestFile()));
}

TEST_F(Saving, WritesTheRearWidthByItsFieldAndTheTrapezoidByTheShape) {
  Prepare({"chi"}, "chi");
  desk.state.F3v = 0;
  desk.state.txtld = "19.5";  // a prism with a rear width
  const Lines with_ld = Lines{"ClosedBox", "Alignment=0.8312"} + ShapeLines("Prismatic") +
                        Lines{"Ld=19.5", "BoxVolume=27.4"} + kVolumeLines;
  EXPECT_EQ(SavedAs(), FileOf(kHeadLines + with_ld + kTailWithoutF3));
  desk.state.txtld = "";
  desk.state.cmbforma = "Trapezoidal";  // a trapezoid without one
  const Lines without_ld =
      Lines{"ClosedBox", "Alignment=0.8312"} + ShapeLines("Trapezoidal") + Lines{"BoxVolume=27.4"} + kVolumeLines;
  EXPECT_EQ(SavedAs(), FileOf(kHeadLines + without_ld + kTailLines + kPrismLines + kTrapezoidLines + kOptionLines));
}

// ---- both box tabs ----

TEST_F(Saving, WritesTheSelectedOneOfTwoBoxTabs) {
  Prepare({"ref", "chi"}, "chi");
  EXPECT_EQ(SavedAs(), FileOf(kHeadLines + Closed("ClosedBox") + kTailWithF3));
  desk.sheet.selected_tab = "ref";
  EXPECT_EQ(SavedAs(), FileOf(VentedFile()));
}

TEST_F(Saving, TellsTwoBoxTabsOtherwiseWithTheQuickSave) {
  Prepare({"ref", "chi"}, "chi");
  EXPECT_EQ(Saved(), FileOf(kHeadLines + Closed("VentedBox") + kTailWithF3));
  desk.sheet.selected_tab = "ref";
  EXPECT_EQ(Saved(), FileOf(kHeadLines + Vented("Vented Box") + kTailWithF3));
}

TEST_F(Saving, WritesNoSectionForTwoBoxTabsOnAnotherPage) {
  Prepare({"ref", "chi"}, "dim");
  EXPECT_EQ(SavedAs(), FileOf(kHeadLines + kTailWithF3));
  EXPECT_EQ(Saved(), FileOf(kHeadLines + kTailWithF3));
}

TEST_F(Saving, GoesByTheSideItselfWithTwoBoxTabs) {
  Prepare({"ref", "chi"}, "ref");
  desk.sheet.imgforma[1].visible = true;  // the picture decides nothing here
  EXPECT_EQ(SavedAs(), FileOf(VentedFile()));
  desk.sheet.imgforma[1].visible = false;
  desk.state.txtb = "5.9";
  EXPECT_EQ(SavedAs(), FileOf(kHeadLines + Vented("VentedBox", {"Side b=5.9"}) + kTailWithF3));
}

// ---- the other language ----

class SavingInItalian : public Saving {
 protected:
  SavingInItalian() : italian(Language::Italian) {}

  std::string SaveItalian(bool as) {
    italian.platform.files.emplace_back(italian.folder.path() / "salvato.pro");
    as ? SaveProjectAs(italian.program) : SaveProject(italian.program);
    return ReadFileBytes(italian.folder.path() / "salvato.pro");
  }

  Desk italian;
};

TEST_F(SavingInItalian, WritesSideShapeAndSecondTabInItalian) {
  FillSample(italian);
  italian.sheet.InsertBoxTab("ref", "Box Reflex");
  italian.sheet.selected_tab = "ref";
  italian.state.cmbforma = "Trapezoidale";
  italian.state.txtb = "5.9";
  italian.sheet.imgforma[1].visible = true;
  const Lines tail = kTailLines + kF3Line + kPrismLines + kTrapezoidLines + kOptionLines;
  EXPECT_EQ(SaveItalian(true), FileOf(kHeadLines + Vented("VentedBox", {"Lato b=5.9"}, "Trapezoidale") + tail));
  EXPECT_EQ(SaveItalian(false), FileOf(kHeadLines + Vented("VentedBox", {"Lato b=5.9"}, "Trapezoidale") + tail));

  italian.sheet.InsertBoxTab("chi", "Box Chiuso");
  EXPECT_EQ(SaveItalian(true), FileOf(kHeadLines + Vented("VentedBox", {"Lato b=5.9"}, "Trapezoidale") + tail));
  EXPECT_EQ(SaveItalian(false), FileOf(kHeadLines + Vented("Box Reflex", {"Lato b=5.9"}, "Trapezoidale") + tail));
}

TEST_F(SavingInItalian, TakesTheEnglishShapeForNoTrapezoid) {
  FillSample(italian);
  italian.sheet.InsertBoxTab("chi", "Box Chiuso");
  italian.sheet.selected_tab = "chi";
  italian.state.cmbforma = "Trapezoidal";
  italian.state.F3v = 0;
  EXPECT_EQ(SaveItalian(true),
            FileOf(kHeadLines + Lines{"ClosedBox", "Alignment=0.8312"} + ShapeLines("Trapezoidal") +
                   Lines{"BoxVolume=27.4"} + kVolumeLines + kTailLines + kPrismLines + kOptionLines));
}

// ---- single lines ----

TEST_F(Saving, WritesStandInsForEmptyFields) {
  Prepare({"ref"}, "ref");
  for (Control* const control : desk.sheet.window.controls) {
    if (control->IsField()) control->text->clear();
  }
  const Lines expected{"Manufacturer=",
                       "Brand=",
                       "Model=",
                       "ProvidedBy=",
                       "DateAdded=20/11/2026",
                       "DateModified=20/11/2026",
                       "Comment=",
                       "Pe=0",
                       "Znom=8",
                       "Spl=0",
                       "Hg=0",
                       "Xmax=0",
                       "no=0",
                       "Le=0",
                       "numVC=1",
                       "Zmax=",
                       "Zmin=0",
                       "Fs=",
                       "Fl=0",
                       "Fh=0",
                       "Rvc=",
                       "Bw=",
                       "Bl=",
                       "D=",
                       "Sd=",
                       "Lces=",
                       "Cmes=",
                       "Res=",
                       "Qms=",
                       "Qes=",
                       "Qts=",
                       "Cms=",
                       "Mms=",
                       "Rms=",
                       "Cas=",
                       "Mas=",
                       "Ras=",
                       "Vas=",
                       "Basket=0",
                       "Depth=0",
                       "Magnet=0",
                       "MagDepth=0",
                       "Outer=0",
                       "Thickness=0",
                       "Vcd=0",
                       "Dvol=0",
                       "Temperaturae25",
                       "Pressure=101325",
                       "Velocity=346.031",
                       "VentedBox",
                       "Ql=",
                       "BoxShape=",
                       "Ratio=",
                       "W=",
                       "H=",
                       "D=",
                       "BoxVolume=",
                       "VentNum=",
                       "MeasuredVent=",
                       "ApparentVent=",
                       "DiamOSideA=",
                       "SectArea1Vent=",
                       "SectAreaTot=",
                       "MinAreaSect=",
                       "DriversNum=",
                       "NetVolume=",
                       "OccupiedVol=",
                       "DriverVol=",
                       "Fb=",
                       "Freq.riso=",
                       "ApparentVol=",
                       "Kint=",
                       "Kinternal=1.27272727",
                       "roo=1.18415",
                       "EBP=77.7777777777778",
                       "Vd=0",
                       "SPLmax=0",
                       "USPL=0",
                       "Fb-3dB=28.25",
                       "WidthPrism=30.125",
                       "HeightPrism=37.5",
                       "DepthPrism=0.75",
                       "WooferWiring=series",
                       "RsAmplifier=0.25",
                       "WoodThickness=22"};
  EXPECT_EQ(SavedAs(), FileOf(expected));
}

TEST_F(Saving, MisspellsTheEmptyTemperatureWithTheDialogOnly) {
  Prepare({"chi"}, "chi");
  desk.state.txttemperatura = "";
  EXPECT_EQ(LineOf(SavedAs(), "Temperatur"), "Temperaturae25");
  EXPECT_EQ(LineOf(Saved(), "Temperatur"), "Temperature=25");
}

TEST_F(Saving, WritesTheNumbersOfAMeasurementInFull) {
  Prepare({}, "par");
  desk.state.Fs = 34.72185430463576;  // 15 digits: 34.7218543046358
  desk.state.Zmax = 1234.5678901234567;
  const std::string bytes = SavedAs();
  EXPECT_EQ(LineOf(bytes, "Fs="), "Fs=34.7218543046358");
  EXPECT_EQ(LineOf(bytes, "Zmax="), "Zmax=1234.56789012346");
}

TEST_F(Saving, WritesTheLevelsOnceTheyAreKnown) {
  Prepare({}, "par");
  desk.state.SPLmax = 111.71355;
  desk.state.USPL = 91.71355;
  const std::string bytes = SavedAs();
  EXPECT_EQ(LineOf(bytes, "SPLmax="), "SPLmax=111.71355");
  EXPECT_EQ(LineOf(bytes, "USPL="), "USPL=91.71355");
}

TEST_F(Saving, WritesNumbersBelowOneWithTheirZeroAndWithoutTheirSign) {
  Prepare({}, "par");
  desk.state.WidthPrism = -12.5;
  desk.state.HeightPrism = 0.000001234;
  desk.state.DepthPrism = -0.5;  // its sign is lost
  const std::string bytes = SavedAs();
  EXPECT_EQ(LineOf(bytes, "WidthPrism="), "WidthPrism=-12.5");
  EXPECT_EQ(LineOf(bytes, "HeightPrism="), "HeightPrism=0.000001234");
  EXPECT_EQ(LineOf(bytes, "DepthPrism="), "DepthPrism=0.5");
}

TEST_F(Saving, WritesCodePage1252) {
  Prepare({}, "par");
  desk.state.txtproduttore = "è";
  desk.state.txtmarca = "µ €";
  desk.state.txtmodello = "Ω → 日";  // not in the code page
  EXPECT_TRUE(SavedAs().starts_with("Manufacturer=\xE8\r\nBrand=\xB5 \x80\r\nModel=? ? ?\r\n"));
}

TEST_F(Saving, KeepsTheLastBreaksOfACommentWithOuterBlanks) {
  Prepare({}, "par");
  // Without its outer blanks the text has 4 characters: as many are looked at, so the break behind them stays.
  desk.state.txtcommento = "  ab\r\n ";
  EXPECT_NE(SavedAs().find("Comment=  ab\r\n \r\nPe="), std::string::npos);
}

// ---- where it is written, and what follows ----

TEST_F(Saving, AsksForThePathOnceWithTheQuickSave) {
  Prepare({}, "par");
  Saved();
  EXPECT_EQ(desk.TakeOut(), "dialog save \"Zefirondo Project (*.pro)|*.pro\" default=\".pro\" folder=\"" +
                                (desk.folder.path() / "Project").string() + "\" -> " + target.string() + "\n");
  EXPECT_EQ(desk.state.ProjectPath, target.string());
  EXPECT_TRUE(desk.state.HasProjectPath);
  SaveProject(desk.program);
  EXPECT_EQ(desk.TakeOut(), "");
}

TEST_F(Saving, AsksAlwaysWithTheOtherAndKeepsTheEarlierPath) {
  Prepare({}, "par");
  Saved();
  const std::filesystem::path other = desk.folder.path() / "other.pro";
  for (int times = 0; times < 2; ++times) {
    desk.TakeOut();
    desk.platform.files.emplace_back(other);
    SaveProjectAs(desk.program);
    EXPECT_TRUE(desk.TakeOut().starts_with("dialog save "));
  }
  EXPECT_EQ(desk.state.FilePath, other.string());
  EXPECT_EQ(desk.state.ProjectPath, target.string());
  desk.state.txtmarca = "Later";
  SaveProject(desk.program);
  EXPECT_EQ(LineOf(ReadFileBytes(target), "Brand="), "Brand=Later");
  EXPECT_EQ(LineOf(ReadFileBytes(other), "Brand="), "Brand=Brezza");
}

TEST_F(Saving, LeavesAProjectWithoutAPathWithoutOne) {
  Prepare({}, "par");
  SavedAs();
  EXPECT_FALSE(desk.state.HasProjectPath);
  EXPECT_EQ(desk.state.ProjectPath, "");
}

TEST_F(Saving, EndsTheModification) {
  for (const bool as : {true, false}) {
    Desk other;
    FillSample(other);
    MarkModified(other.program);
    other.state.DesignChanged = other.state.AirChanged = true;
    ASSERT_TRUE(other["mnusalvadir"].enabled);
    other.platform.files.emplace_back(other.folder.path() / "saved.pro");
    as ? SaveProjectAs(other.program) : SaveProject(other.program);
    EXPECT_FALSE(other.state.ProjectModified);
    EXPECT_FALSE(other.state.DesignChanged);
    EXPECT_FALSE(other.state.AirChanged);
    EXPECT_TRUE(other.state.ProjectSaved);
    EXPECT_FALSE(other["mnusalvadir"].enabled);
  }
}

TEST_F(Saving, RemembersACancelledDialogAndWritesNothing) {
  for (const bool as : {true, false}) {
    Desk other;
    FillSample(other);
    MarkModified(other.program);
    other.platform.files.emplace_back(std::nullopt);
    as ? SaveProjectAs(other.program) : SaveProject(other.program);
    EXPECT_EQ(other.state.LastSaveError, 32755);
    EXPECT_TRUE(other.state.ProjectModified);
    EXPECT_FALSE(other.state.HasProjectPath);
    EXPECT_TRUE(MessagesOf(other.TakeOut()).empty());
  }
}

// ---- failures ----

TEST_F(Saving, FailsOnAMissingFolder) {
  Prepare({}, "par");
  MarkModified(desk.program);
  desk["mnuannulla"].enabled = false;
  target = desk.folder.path() / "missing" / "saved.pro";
  Saved();
  EXPECT_EQ(MessagesOf(desk.TakeOut()), Lines{SaveFailure(76)});
  EXPECT_TRUE(desk.state.ProjectModified);
  EXPECT_TRUE(desk["mnuannulla"].enabled);
  EXPECT_EQ(desk.state.LastSaveError, 76);
}

TEST_F(Saving, FailsOnAFolder) {
  Prepare({}, "par");
  target = desk.folder.path() / "folder.pro";
  std::filesystem::create_directory(target);
  desk.platform.files.emplace_back(target);
  SaveProjectAs(desk.program);
  EXPECT_EQ(MessagesOf(desk.TakeOut()), Lines{SaveFailure(75)});
  EXPECT_TRUE(std::filesystem::is_directory(target));
}

TEST_F(Saving, FailsOnAPipeWithoutWaiting) {
  Prepare({}, "par");
  target = desk.folder.path() / "pipe.pro";
  ASSERT_EQ(::mkfifo(target.c_str(), 0600), 0);
  desk.platform.files.emplace_back(target);
  SaveProjectAs(desk.program);
  EXPECT_EQ(MessagesOf(desk.TakeOut()), Lines{SaveFailure(75)});
}

TEST_F(Saving, FailsOnANumberThatHasNoText) {
  Prepare({}, "par");
  Saved();
  const std::string before = ReadFileBytes(target);
  desk.TakeOut();
  desk.state.EBP = 1e29;  // beyond the decimal type
  SaveProject(desk.program);
  EXPECT_EQ(MessagesOf(desk.TakeOut()), Lines{SaveFailure(6)});
  EXPECT_EQ(ReadFileBytes(target), before);
}

TEST_F(Saving, ToAProjectOfTheCommandLineHasNoPath) {
  const std::filesystem::path file = desk.folder.Write("given.pro", FileOf(ClosedFile()));
  desk.Begin(file.string());
  EXPECT_TRUE(desk.state.HasProjectPath);
  EXPECT_EQ(desk.state.ProjectPath, "");
  EXPECT_EQ(desk.state.FilePath, file.string());
  MarkModified(desk.program);
  desk.TakeOut();
  desk.Choose("mnusalvadir");
  EXPECT_EQ(MessagesOf(desk.TakeOut()), Lines{SaveFailure(75)});
  EXPECT_EQ(ReadFileBytes(file), FileOf(ClosedFile()));
}

}  // namespace
}  // namespace zefirondo
