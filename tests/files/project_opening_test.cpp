// What opening a project file does, line by line, and how it fails.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

#include "files/project_file.h"
#include "files/sample_project.h"
#include "support/nobody.h"

namespace zefirondo {
namespace {

/// The file without its last line: reading fails at its end, so that what was read stands there untouched by
/// the page that would have been selected.
std::string Unfinished(Lines lines) {
  lines.pop_back();
  return FileOf(lines);
}

struct FieldRow {
  const char* field;
  const char* text;
};

void ExpectTexts(Desk& desk, const std::vector<FieldRow>& rows) {
  for (const FieldRow& row : rows) EXPECT_EQ(desk.Text(row.field), row.text) << row.field;
}

TEST(Reading, FillsTheFieldsOfTheHead) {
  Desk desk;
  OpenBytes(desk, Unfinished(LongestFile()));
  ExpectTexts(desk, {{"txtproduttore", "Officina Aria"},
                     {"txtmarca", "Brezza"},
                     {"txtmodello", "Maestrale 8"},
                     {"txtdatifor", "the bench"},
                     {"txtdatacreaz", "20/11/2026"},
                     {"txtcommento", "first  second"},
                     {"txtpotenza", "100"},
                     {"txtimpedenza", "8"},
                     {"txtsensibilita", "90.5"},
                     {"txthg", "6"},
                     {"txtxmax", "5"},
                     {"txtrendimento", "0.7"},
                     {"txtle", "0.55"},
                     {"cmbnumvc", "2"},
                     {"txtzmax", "52.36"},
                     {"txtzmin", "6.1"},
                     {"txtfs", "35"},
                     {"txtfstrasdu", "35"},
                     {"txtfl", "28.5"},
                     {"txtfh", "43.2"},
                     {"txtrvc", "5.6"},
                     {"txtbw", "14.7"},
                     {"txtbl", "9.5"},
                     {"txtd", "210"},
                     {"txtsd", "0.0346"},
                     {"txtlces", "21.5"},
                     {"txtcmes", "421.05"},
                     {"txtrmes", "46.7"},
                     {"txtqmes", "4.2"},
                     {"txtqmesin", "4.2"},
                     {"txtqes", "0.45"},
                     {"txtqts", "0.413"},
                     {"txtcms", "544E-06"},
                     {"txtmms", "0.038"},
                     {"txtrms", "1.98"},
                     {"txtcas", "0.65E-06"},
                     {"txtmas", "31.7"},
                     {"txtras", "1660.1"},
                     // The pressure's change writes it anew from Cas: 100500 · 1.400823478 · 0.65e-6 = 0.0915088.
                     {"txtvas", "0.09150"},
                     {"txtforo", "230"},
                     {"txtprof", "110"},
                     {"txtlagmagne", "140"},
                     {"txtprofmag", "50"},
                     {"txtesterno", "260"},
                     {"txtspesbordo", "8"},
                     {"txtdiambob", "38"},
                     {"txtvolume", "2.31"},
                     {"txttemperatura", "21.5"},
                     {"txtpressione", "100500"},
                     {"txtvelocita", "343.9"}});
}

TEST(Reading, FillsTheFieldsOfTheBox) {
  Desk desk;
  OpenBytes(desk, Unfinished(LongestFile()));
  ExpectTexts(desk, {{"cmbql", "10"},
                     {"cmbforma", "Trapezoidal"},
                     {"cmbrappo", "1.25  1  0.8"},
                     {"txtl", "30.1"},
                     {"txth", "37.6"},
                     {"txtp", "24.2"},
                     {"txtld", "19.5"},
                     {"txtboxvolume", "27.4"},
                     {"cmbnumcond", "2"},
                     {"txtlungmis", "12.3"},
                     {"txtlungappa", "18.9"},
                     {"cmbDoa", "7.5"},
                     {"txtareasez", "44.17"},
                     {"txtseztot", "88.35"},
                     {"txtminsv", "40.2"},
                     {"txtb", "5.9"},
                     {"cmbnumdriver", "2"},
                     {"txtvolnetto", "24.8"},
                     {"txtingombro", "0.5"},
                     {"txtvoloccu", "4.62"},
                     {"txtfb", "36.7"},
                     {"txtfreriso", "35.8"},
                     {"txtvolappa", "27.3"},
                     {"cmbk", "1.27(10%)"},
                     {"cmbgradi", "7.5"}});
}

TEST(Reading, TakesTheNumbers) {
  Desk desk;
  OpenBytes(desk, Unfinished(LongestFile()));
  const ProjectState& s = desk.state;
  EXPECT_EQ(s.Bw, 14.7);
  EXPECT_EQ(s.Qts, 0.413);
  EXPECT_EQ(s.Vas, 0.0912);
  EXPECT_EQ(s.Temperature, 21.5);
  EXPECT_EQ(s.Pressure, 100500);
  EXPECT_EQ(s.VentNum, 2);
  EXPECT_DOUBLE_EQ(s.SectArea1Vent, 0.004417);
  EXPECT_EQ(s.DriversNum, 2);
  EXPECT_DOUBLE_EQ(s.Vb, 0.0248);
  EXPECT_EQ(s.Vc, 0);
  EXPECT_DOUBLE_EQ(s.VbaVented, 0.0273);
  EXPECT_EQ(s.VbaClosed, 0);
  EXPECT_EQ(s.Kinternal, 1.27272727);
  EXPECT_EQ(s.EBP, 77.7777777777778);
  EXPECT_EQ(s.F3v, 28.25);
  EXPECT_EQ(s.WidthPrism, 30.125);
  EXPECT_EQ(s.HeightPrism, 37.5);
  EXPECT_EQ(s.DepthPrism, 0.75);
  EXPECT_EQ(s.DepthPrismTrapez, 26.5);
  EXPECT_EQ(s.WidthRearPrism, 18.25);
  EXPECT_EQ(s.WooferWiring, "series");
  EXPECT_EQ(s.RsAmplifier, 0.25);
  EXPECT_EQ(s.BoxSection, "VentedBox");
  EXPECT_EQ(s.Fs, 0);  // the field rules
  EXPECT_EQ(s.Zmax, 0);
  EXPECT_FALSE(s.ImpedanceMode);
}

TEST(Reading, TakesTheVolumesOfAClosedBoxForTheClosedBox) {
  Desk desk;
  OpenBytes(desk, Unfinished(ClosedFile()));
  EXPECT_EQ(desk.Text("cmballi"), "0.8312");
  EXPECT_DOUBLE_EQ(desk.state.Vc, 0.0248);
  EXPECT_EQ(desk.state.Vb, 0);
  EXPECT_DOUBLE_EQ(desk.state.VbaClosed, 0.0273);
  EXPECT_EQ(desk.state.VbaVented, 0);
  EXPECT_EQ(desk.state.BoxSection, "ClosedBox");
}

TEST(Reading, ComputesTheAirFromItsFieldsAndSkipsTheDensity) {
  Desk desk;
  Lines lines = LongestFile();
  *std::find(lines.begin(), lines.end(), "roo=1.18415") = "roo=99";
  OpenBytes(desk, Unfinished(lines));
  EXPECT_NEAR(desk.state.roo, 1.19, 0.05);
  EXPECT_FALSE(desk.state.AirChanged);
}

TEST(Reading, SkipsTheLevelsAndTheVolumeDisplacement) {
  Desk desk;
  Lines lines = LongestFile();
  *std::find(lines.begin(), lines.end(), "SPLmax=0") = "SPLmax=120";
  *std::find(lines.begin(), lines.end(), "USPL=0") = "USPL=90";
  OpenBytes(desk, Unfinished(lines));
  EXPECT_EQ(desk.state.SPLmax, 0);
  EXPECT_EQ(desk.state.USPL, 0);
}

TEST(Reading, PutsTheModelIntoTheCaptions) {
  Desk desk;
  OpenBytes(desk, Unfinished(LongestFile()));
  for (const char* const frame : {"fragenerale", "frathsm", "fradim", "frabox"}) {
    EXPECT_EQ(desk.Text(frame), "Transducer: -Maestrale 8-") << frame;
  }
}

TEST(Reading, PutsTheModelIntoTheCaptionsEvenOfAFileThatEndsThere) {
  Desk desk;
  OpenBytes(desk, "Manufacturer=a\r\nBrand=b\r\nModel=Maestrale\r\n");
  EXPECT_EQ(desk.Text("frabox"), "Transducer: -Maestrale-");
}

TEST(Reading, GoesByTheLengthOfTheKeyAndNotByTheKey) {
  Desk desk;
  Lines lines = LongestFile();
  lines[1] = "Xxxxx:Brezza";     // as long as "Brand="
  lines[7] = "Power=100";        // longer than "Pe=": its value begins at the fourth character
  lines[46] = "Temperaturae25";  // as the save writes it
  OpenBytes(desk, Unfinished(lines));
  ExpectTexts(desk, {{"txtmarca", "Brezza"}, {"txtpotenza", "er=100"}, {"txttemperatura", "25"}});
}

TEST(Reading, GivesAnEmptyValueForALineShorterThanItsKey) {
  Desk desk;
  Lines lines = LongestFile();
  lines[0] = "Manu";
  lines[1] = "";
  OpenBytes(desk, Unfinished(lines));
  ExpectTexts(desk, {{"txtproduttore", ""}, {"txtmarca", ""}, {"txtmodello", "Maestrale 8"}});
}

TEST(Reading, CutsTheDateAtItsColumns) {
  Desk desk;
  Lines lines = LongestFile();
  lines[4] = "DateAdded=05-06-2021 and more";
  OpenBytes(desk, Unfinished(lines));
  EXPECT_EQ(desk.Text("txtdatacreaz"), "05/06/2021");
}

TEST(Reading, TakesALineThatIsNoRearWidthForTheVolume) {
  Desk desk;
  OpenBytes(desk, Unfinished(VentedFile()));
  EXPECT_EQ(desk.Text("txtld"), "");
  EXPECT_EQ(desk.Text("txtboxvolume"), "27.4");
}

TEST(Reading, SetsF3ToZeroWithoutItsLine) {
  Desk desk;
  Lines lines = LongestFile();
  lines.erase(std::find(lines.begin(), lines.end(), "Fb-3dB=28.25"));
  desk.state.F3v = 99;
  OpenBytes(desk, Unfinished(lines));
  EXPECT_EQ(desk.state.F3v, 0);
  EXPECT_EQ(desk.state.WidthPrism, 30.125);
}

TEST(Reading, ForgetsThatTheAirHadChanged) {
  Desk desk;
  desk.Begin();
  desk.state.AirChanged = true;
  desk.platform.files.emplace_back(desk.folder.Write("opened.pro", Unfinished(ClosedFile())));
  desk.Choose("mdithsm.mnuapriprogetto");
  EXPECT_FALSE(desk.state.AirChanged);
}

TEST(Reading, ShowsASectionThatIsTooSmallInRed) {
  struct Row {
    const char* minimum;
    int colour;
  };
  for (const Row& row : {Row{"44.2", 255}, {"44.17", colour::kText}, {"9", colour::kText}, {"100", 255}}) {
    Desk desk;
    Lines lines = LongestFile();
    *std::find(lines.begin(), lines.end(), "MinAreaSect=40.2") = std::string("MinAreaSect=") + row.minimum;
    OpenBytes(desk, Unfinished(lines));
    EXPECT_EQ(desk["txtareasez"].fore, row.colour) << row.minimum;
  }
}

TEST(Reading, RoundsTheWallsToAnInteger) {
  for (const auto& [text, millimetres] : {std::pair{"21.5", 22}, {"22.5", 22}, {"18.4", 18}}) {
    Desk desk;
    Lines lines = ClosedFile();
    lines.back() = std::string("WoodThickness=") + text;
    OpenBytes(desk, FileOf(lines));
    EXPECT_EQ(desk.state.WoodThickness, millimetres) << text;
  }
}

TEST(Reading, TakesEveryKindOfLineEnd) {
  for (const std::string end : {"\r\n", "\n", "\r"}) {
    std::string bytes;
    for (const std::string& line : ClosedFile()) bytes += line + end;
    Desk desk;
    OpenBytes(desk, bytes);
    EXPECT_TRUE(MessagesOf(desk.TakeOut()).empty());
    EXPECT_EQ(desk.state.WoodThickness, 22);
  }
}

TEST(Reading, TakesALastLineWithoutAnEnd) {
  std::string bytes = FileOf(ClosedFile());
  bytes.resize(bytes.size() - 2);
  Desk desk;
  OpenBytes(desk, bytes);
  EXPECT_TRUE(MessagesOf(desk.TakeOut()).empty());
  EXPECT_EQ(desk.state.WoodThickness, 22);
}

TEST(Reading, ReadsCodePage1252) {
  Desk desk;
  Lines lines = ClosedFile();
  lines[0] = "Manufacturer=Caff\xE8 \xB5 \x80 \x9F";
  OpenBytes(desk, FileOf(lines));
  EXPECT_EQ(desk.Text("txtproduttore"), "Caffè µ € Ÿ");
}

// ---- a project opened to its end ----

TEST(Opening, SelectsTheTabOfTheBox) {
  Desk closed;
  OpenBytes(closed, FileOf(ClosedFile()));
  EXPECT_EQ(closed.sheet.selected_tab, "chi");
  EXPECT_EQ(closed.state.BoxSection, "Closed Box");
  ASSERT_EQ(closed.sheet.tabs.size(), 5U);
  EXPECT_EQ(closed.sheet.tabs[3].key, "chi");
  EXPECT_EQ(closed.sheet.tabs[3].caption, "Closed Box");

  Desk vented;
  OpenBytes(vented, FileOf(VentedFile()));
  EXPECT_EQ(vented.sheet.selected_tab, "ref");
  EXPECT_EQ(vented.state.BoxSection, "Vented Box");
  EXPECT_EQ(vented.sheet.tabs[3].key, "ref");
  EXPECT_EQ(vented.sheet.tabs[3].caption, "Vented Box");
}

TEST(Opening, ComputesTheCurveAnew) {
  Desk desk;
  OpenBytes(desk, FileOf(ClosedFile()));
  EXPECT_EQ(desk.state.BoxDb.size(), 6828U);
  EXPECT_TRUE(desk.program.windows.frmgrafcassa.window.open);
}

TEST(Opening, LeavesTheProjectUnmodified) {
  for (const Lines& lines : {ClosedFile(), VentedFile(), LongestFile()}) {
    Desk desk;
    OpenBytes(desk, FileOf(lines));
    EXPECT_TRUE(MessagesOf(desk.TakeOut()).empty());
    EXPECT_FALSE(desk.state.ProjectModified);
    EXPECT_FALSE(desk.state.DesignChanged);
    EXPECT_FALSE(desk.state.DimEditing);
    EXPECT_FALSE(desk.state.AirChanged);
    EXPECT_TRUE(desk.state.ProjectLoaded);
    EXPECT_TRUE(desk.state.HasProjectPath);
    EXPECT_FALSE(desk["cmdcalcola"].enabled);
    EXPECT_FALSE(desk["mnusalvadir"].enabled);
    EXPECT_FALSE(desk["mnuimporta"].enabled);
    EXPECT_FALSE(desk["mnuimportadati"].enabled);
    EXPECT_TRUE(desk["mnustampa"].enabled);
  }
}

TEST(Opening, TakesPathAndTitleFromTheDialog) {
  Desk desk;
  OpenBytes(desk, FileOf(ClosedFile()));
  const std::string path = (desk.folder.path() / "opened.pro").string();
  EXPECT_EQ(desk.state.FilePath, path);
  EXPECT_EQ(desk.state.ProjectPath, path);
  EXPECT_EQ(desk.state.ProjectTitle, "opened.pro");
  EXPECT_EQ(desk.TakeOut(), "dialog open \"Zefirondo Project (*.pro)|*.pro|\" default=\".pro\" folder=\"" +
                                (desk.folder.path() / "Project").string() + "\" -> " + path + "\n");
}

TEST(Opening, DoesNothingWhenTheDialogIsCancelled) {
  Desk desk;
  desk.Begin();
  desk.platform.files.emplace_back(std::nullopt);
  desk.Choose("mdithsm.mnuapriprogetto");
  EXPECT_TRUE(MessagesOf(desk.TakeOut()).empty());
  EXPECT_FALSE(desk.sheet.window.open);
  EXPECT_FALSE(desk.state.ProjectLoaded);
  EXPECT_FALSE(desk.state.HasProjectPath);
}

TEST(Opening, ShowsTheFullNumberOfAMeasurement) {
  Desk desk;
  Lines lines = ClosedFile();
  *std::find(lines.begin(), lines.end(), "Fs=35") = "Fs=34.7218543046358";
  OpenBytes(desk, FileOf(lines));
  EXPECT_EQ(desk.Text("txtfs"), "34.7218543046358");
  EXPECT_EQ(desk.Text("txtfstrasdu"), "34.7218543046358");
  EXPECT_EQ(desk.state.Fs, 0);
}

TEST(Opening, BringsBackACommentAsOneLine) {
  Desk desk;
  FillSample(desk);
  desk.state.txtcommento = "one\r\ntwo\r\nthree";
  desk.sheet.InsertBoxTab("chi", "Closed Box");
  desk.platform.files.emplace_back(desk.folder.path() / "comment.pro");
  SaveProjectAs(desk.program);
  Desk other;
  OpenFile(other, desk.folder.path() / "comment.pro");
  EXPECT_EQ(other.Text("txtcommento"), "one  two  three");
}

TEST(Opening, RoundsTripACodePageText) {
  Desk desk;
  FillSample(desk);
  desk.state.txtproduttore = "perché µ €";
  desk.state.txtmarca = "Ω";
  desk.sheet.InsertBoxTab("chi", "Closed Box");
  desk.platform.files.emplace_back(desk.folder.path() / "text.pro");
  SaveProjectAs(desk.program);
  Desk other;
  OpenFile(other, desk.folder.path() / "text.pro");
  EXPECT_EQ(other.Text("txtproduttore"), "perché µ €");
  EXPECT_EQ(other.Text("txtmarca"), "?");
}

// ---- files that shift ----

TEST(ShiftedFile, OfAProjectWithoutABoxEndsTooEarly) {
  Desk desk;
  FillSample(desk);
  desk.platform.files.emplace_back(desk.folder.path() / "early.pro");
  SaveProjectAs(desk.program);
  Desk other;
  OpenFile(other, desk.folder.path() / "early.pro");
  EXPECT_EQ(MessagesOf(other.TakeOut()), Lines{OpenFailure(62)});
  EXPECT_EQ(other.state.BoxSection, "ApparentVol=27.3");
  EXPECT_EQ(other.sheet.tabs.size(), 4U);
  // "Kint=1.27(10%)" stands where the shape is read, behind the 9 characters of "BoxShape=".
  EXPECT_EQ(other.Text("cmbforma"), "(10%)");
}

TEST(ShiftedFile, OfARectangularPortInTheOtherLanguage) {
  Lines lines = LongestFile();
  *std::find(lines.begin(), lines.end(), "Side b=5.9") = "Lato b=5.9";
  Desk desk;
  OpenBytes(desk, FileOf(lines));
  EXPECT_EQ(desk.Text("txtb"), "");
  EXPECT_EQ(desk.Text("cmbnumdriver"), "");  // behind the 11 characters of "DriversNum=" nothing is left
}

TEST(ShiftedFile, OfATrapezoidInTheOtherLanguage) {
  Lines lines = LongestFile();
  *std::find(lines.begin(), lines.end(), "BoxShape=Trapezoidal") = "BoxShape=Trapezoidale";
  Desk desk;
  OpenBytes(desk, FileOf(lines));
  // "DepthPrismTrapez=26.5" behind the 13 characters of "WooferWiring=".
  EXPECT_EQ(desk.state.WooferWiring, "pez=26.5");
  EXPECT_EQ(desk.state.DepthPrismTrapez, 0);
}

TEST(ShiftedFile, OfAProjectInItalianOpensInItalian) {
  Lines lines = LongestFile();
  *std::find(lines.begin(), lines.end(), "Side b=5.9") = "Lato b=5.9";
  *std::find(lines.begin(), lines.end(), "BoxShape=Trapezoidal") = "BoxShape=Trapezoidale";
  Desk desk(Language::Italian);
  OpenBytes(desk, FileOf(lines));
  EXPECT_TRUE(MessagesOf(desk.TakeOut()).empty());
  EXPECT_EQ(desk.Text("txtb"), "5.9");
  EXPECT_EQ(desk.state.DepthPrismTrapez, 26.5);
  EXPECT_EQ(desk.state.BoxSection, "Box Reflex");
}

TEST(ShiftedFile, OfTwoVentedTabsSavedQuicklyIsNoVentedBox) {
  Lines lines = VentedFile();
  *std::find(lines.begin(), lines.end(), "VentedBox") = "Vented Box";
  Desk desk;
  OpenBytes(desk, FileOf(lines));
  EXPECT_EQ(desk.sheet.tabs.size(), 4U);
  EXPECT_EQ(desk.Text("cmbforma"), "");  // "Ql=10" stood where the shape is read
}

// ---- failures ----

TEST(OpeningFailure, OfAMissingFileTellsItsNumber) {
  Desk desk;
  OpenFile(desk, desk.folder.path() / "missing.pro");
  EXPECT_EQ(MessagesOf(desk.TakeOut()), Lines{OpenFailure(53)});
}

TEST(OpeningFailure, OfAMissingFolderTellsItsNumber) {
  Desk desk;
  OpenFile(desk, desk.folder.path() / "missing" / "x.pro");
  EXPECT_EQ(MessagesOf(desk.TakeOut()), Lines{OpenFailure(76)});
}

TEST(OpeningFailure, OfAFolderTellsItsNumber) {
  Desk desk;
  std::filesystem::create_directory(desk.folder.path() / "folder.pro");
  OpenFile(desk, desk.folder.path() / "folder.pro");
  EXPECT_EQ(MessagesOf(desk.TakeOut()), Lines{OpenFailure(75)});
}

TEST(OpeningFailure, OfAPipeDoesNotWait) {
  Desk desk;
  ASSERT_EQ(::mkfifo((desk.folder.path() / "pipe.pro").c_str(), 0600), 0);
  OpenFile(desk, desk.folder.path() / "pipe.pro");
  EXPECT_EQ(MessagesOf(desk.TakeOut()), Lines{OpenFailure(75)});
}

TEST(OpeningFailure, OfAFileWithoutPermissionTellsItsNumber) {
  Desk desk;
  const std::filesystem::path file = desk.folder.Write("secret.pro", FileOf(ClosedFile()));
  std::filesystem::permissions(desk.folder.path(), std::filesystem::perms(0777));
  std::filesystem::permissions(file, std::filesystem::perms::none);
  {
    const AsNobody nobody;
    OpenFile(desk, file);
  }
  EXPECT_EQ(MessagesOf(desk.TakeOut()), Lines{OpenFailure(70)});
}

TEST(OpeningFailure, OfAnEmptyFileIsItsEnd) {
  Desk desk;
  OpenBytes(desk, "");
  EXPECT_EQ(MessagesOf(desk.TakeOut()), Lines{OpenFailure(62)});
}

TEST(OpeningFailure, LeavesTheSheetAsFarAsItWasRead) {
  Desk desk;
  OpenBytes(desk, FileOf({"Manufacturer=Officina", "Brand=Brezza"}));
  EXPECT_TRUE(desk.sheet.window.open);
  EXPECT_EQ(desk.Text("txtproduttore"), "Officina");
  EXPECT_EQ(desk.Text("txtmarca"), "Brezza");
  EXPECT_TRUE(desk.state.ProjectLoaded);
  EXPECT_TRUE(desk.state.HasProjectPath);
  EXPECT_EQ(desk.sheet.selected_tab, "gen");
  EXPECT_EQ(desk.program.run, RunState::Running);
}

TEST(OpeningFailure, ComesAtEveryLengthThatIsTooShort) {
  const Lines whole = LongestFile();
  for (std::size_t kept = 0; kept < whole.size(); ++kept) {
    Desk desk;
    OpenBytes(desk, FileOf(Lines(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(kept))));
    EXPECT_EQ(MessagesOf(desk.TakeOut()), Lines{OpenFailure(62)}) << kept << " lines";
    EXPECT_NE(desk.sheet.selected_tab, "ref") << kept << " lines";
  }
}

TEST(OpeningFailure, DoesNotComeForLinesBehindTheLast) {
  Desk desk;
  OpenBytes(desk, FileOf(LongestFile() + Lines{"more", "lines"}));
  EXPECT_TRUE(MessagesOf(desk.TakeOut()).empty());
  EXPECT_EQ(desk.sheet.selected_tab, "ref");
}

TEST(OpeningFailure, OfTooManyTransducersIsAnOverflow) {
  Desk desk;
  Lines lines = ClosedFile();
  *std::find(lines.begin(), lines.end(), "DriversNum=2") = "DriversNum=40000";
  OpenBytes(desk, FileOf(lines));
  EXPECT_EQ(MessagesOf(desk.TakeOut()), Lines{OpenFailure(6)});
}

TEST(OpeningFailure, OfAPathInQuotesIsAMissingFile) {
  Desk desk;
  const std::filesystem::path file = desk.folder.Write("given.pro", FileOf(ClosedFile()));
  desk.Begin("\"" + file.string() + "\"");
  const Lines messages = MessagesOf(desk.TakeOut());
  ASSERT_EQ(messages.size(), 1U);
  EXPECT_TRUE(messages[0] == OpenFailure(53) || messages[0] == OpenFailure(76)) << messages[0];
  EXPECT_EQ(desk.state.FilePath, "\"" + file.string() + "\"");
}

TEST(OpeningFailure, IsToldInItalianToo) {
  Desk desk(Language::Italian);
  OpenBytes(desk, "");
  EXPECT_EQ(MessagesOf(desk.TakeOut()),
            Lines{R"(message stop "Errore" "Il file non può essere aperto. 62" [OK] -> OK)"});
}

}  // namespace
}  // namespace zefirondo
