// Transducer data files: read by position alone, each value into its field.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>

#include "support/bad_files.h"

namespace zefirondo {
namespace {

struct WdrLine {
  std::size_t line;
  std::size_t column;
  const char* field;
  const char* value;
  const char* shown;
};

// The values shown are worked out by hand: a first comma is a point, and metres become millimetres.
const WdrLine kLines[] = {
    {2, 7, "txtmarca", "Vento, Nord", "Vento, Nord"},
    {3, 7, "txtmodello", "M,22", "M,22"},
    {4, 14, "txtproduttore", " Officina, due ", " Officina, due "},
    {5, 12, "txtdatifor", "a,b", "a,b"},
    {6, 9, "txtcommento", "c,d;e=f", "c,d;e=f"},
    {10, 6, "txtimpedenza", "8,5", "8.5"},
    {12, 4, "txtpotenza", "120,5,1", "120.5,1"},
    {13, 5, "txtsensibilita", "91,2", "91.2"},
    {14, 4, "txtrvc", "5,000", "5.000"},
    {15, 4, "txtle", "0,0009", "0.9"},
    {18, 4, "txtbl", "9,5", "9.5"},
    {19, 6, "txtxmax", "5,5E-3", "5.5"},
    {29, 4, "txtrendimento", "0,0123", "1.23"},
    {30, 4, "txtd", "0.21", "210"},
    {32, 7, "cmbnumvc", "1,5", "1,5"},
    {34, 4, "txthg", "0,008", "8"},
    {48, 7, "txtspesbordo", "0.0065 m", "6.5"},
    {49, 7, "txtprof", "0.1104", "110.4"},
    {50, 10, "txtprofmag", "0.05", "50"},
    {51, 8, "txtlagmagne", "0.14", "140"},
    {52, 8, "txtforo", "0.23", "230"},
    {53, 7, "txtesterno", "0.26", "260"},
    {54, 5, "txtdiambob", "0.038", "38"},
    {55, 6, "txtvolume", "0.0025", "2.5"},
};

std::string WdrText(std::size_t count = 55, const char* end = "\r\n") {
  std::vector<std::string> lines(count, "what stands here counts for nothing");
  for (const WdrLine& row : kLines) {
    if (row.line <= count) lines[row.line - 1] = std::string(row.column - 1, '8') + row.value;
  }
  std::string text;
  for (const std::string& line : lines) text += line + end;
  return text;
}

class DataImport : public testing::Test {
 protected:
  DataImport() {
    desk.BeginImpedance();
    desk.TakeOut();
  }
  /// What was shown behind the line of the dialog.
  std::string Import(const std::filesystem::path& file) {
    desk.platform.files.emplace_back(file);
    desk.Choose("mnuimportadati");
    const std::string out = desk.TakeOut();
    return out.substr(out.find('\n') + 1);
  }
  Desk desk;
};

TEST_F(DataImport, TakesEveryValueFromItsPlace) {
  EXPECT_EQ(Import(desk.folder.Write("d.wdr", WdrText())), "");
  for (const WdrLine& row : kLines) EXPECT_EQ(desk.Text(row.field), row.shown) << "line " << row.line;
  EXPECT_EQ(desk.Text("fragenerale"), "Transducer: -M,22-");
  for (const char* const frame : {"frathsm", "fradim", "frabox"}) EXPECT_EQ(desk.Text(frame), "Transducer: -M,22-");
  EXPECT_TRUE(desk.state.DataImported);
  EXPECT_TRUE(desk["mnuannulla"].enabled);
  EXPECT_FALSE(desk["mnuimportadati"].enabled);
  EXPECT_TRUE(desk["mnuimporta"].enabled);
  EXPECT_EQ(desk.state.FilePath, (desk.folder.path() / "d.wdr").string());
}

TEST_F(DataImport, TakesEveryKindOfLineEndAndNoMoreThanItsLines) {
  EXPECT_EQ(Import(desk.folder.Write("d.wdr", WdrText(80, "\n"))), "");
  EXPECT_EQ(desk.Text("txtvolume"), "2.5");
  EXPECT_EQ(desk.Text("txtmarca"), "Vento, Nord");
}

TEST_F(DataImport, TakesLastLineWithoutAnEndAndShortLines) {
  std::string text(54, '\n');
  EXPECT_EQ(Import(desk.folder.Write("d.wdr", text + "Vol:=0.004")), "");
  EXPECT_EQ(desk.Text("txtvolume"), "4");
  EXPECT_EQ(desk.Text("txtmarca"), "");
  EXPECT_EQ(desk.Text("txtrvc"), "");
  EXPECT_EQ(desk.Text("txtd"), "0");  // nothing, times its scale
}

TEST_F(DataImport, AsksInTheFolderOfTheProgram) {
  desk.platform.files.emplace_back(std::nullopt);
  desk.Choose("mnuimportadati");
  EXPECT_EQ(desk.TakeOut(), "dialog open \"Data File (*.wdr)|*.wdr|\" default=\".wdr\" folder=\"" +
                                desk.folder.path().string() + "\" -> cancel\n");
  EXPECT_FALSE(desk.state.DataImported);
  EXPECT_TRUE(desk["mnuimportadati"].enabled);
  EXPECT_EQ(desk.state.FilePath, "");
}

constexpr const char* kPastEnd =
    "message stop \"Error\" \"The file could not be opened. Input past end of file\" [OK] -> OK\n";

TEST_F(DataImport, FailsAtAMissingLineAndKeepsWhatWasRead) {
  EXPECT_EQ(Import(desk.folder.Write("d.wdr", WdrText(54))), kPastEnd);
  for (const WdrLine& row : kLines) {
    if (row.line < 55) {
      EXPECT_EQ(desk.Text(row.field), row.shown) << "line " << row.line;
    }
  }
  EXPECT_EQ(desk.Text("txtvolume"), "");
  EXPECT_FALSE(desk.state.DataImported);
  EXPECT_FALSE(desk["mnuannulla"].enabled);
  EXPECT_TRUE(desk["mnuimportadati"].enabled);
  EXPECT_FALSE(desk["mnuimporta"].enabled);
}

TEST_F(DataImport, FailsAtAFileThatIsNone) {
  using namespace std::string_literals;
  const auto told = [](const std::string& why) {
    return "message stop \"Error\" \"The file could not be opened. " + why + "\" [OK] -> OK\n";
  };
  EXPECT_EQ(Import(desk.folder.Write("d.wdr", "")), kPastEnd);
  EXPECT_EQ(Import(desk.folder.Write("d.wdr", std::string(1 << 20, 'x'))), kPastEnd);  // one long line
  EXPECT_EQ(Import(desk.folder.Write("d.wdr", "\0\0\0"s)), kPastEnd);
  EXPECT_EQ(Import(desk.folder.path() / "none.wdr"), told("File not found"));
  std::filesystem::create_directory(desk.folder.path() / "folder.wdr");
  EXPECT_EQ(Import(desk.folder.path() / "folder.wdr"), told("Path/File access error"));
  ASSERT_EQ(::mkfifo((desk.folder.path() / "pipe.wdr").c_str(), 0600), 0);
  EXPECT_EQ(Import(desk.folder.path() / "pipe.wdr"), told("Path/File access error"));
}

// Two bytes a character: each line gives two, the second of which is a NUL, and so line 30 has no diameter.
TEST_F(DataImport, InTwoBytesACharacterReadsNoNumbers) {
  EXPECT_EQ(Import(desk.folder.Write("d.wdr", InUtf16(WdrText()))), "");
  EXPECT_TRUE(desk.state.DataImported);
  EXPECT_EQ(desk.Text("txtd"), "0");
}

TEST_F(DataImport, FailsAtANumberBeyondTheDecimals) {
  std::string text = WdrText();
  text.replace(text.find("0,0009"), 6, "9E+28,");
  EXPECT_EQ(Import(desk.folder.Write("d.wdr", text)),
            "message stop \"Error\" \"The file could not be opened. Overflow\" [OK] -> OK\n");
  EXPECT_EQ(desk.Text("txtrvc"), "5.000");
  EXPECT_EQ(desk.Text("txtbl"), "");
}

// The reminder looks at the mode alone: it shows though no impedance was read.
TEST_F(DataImport, RemindsOutsideTheImpedanceMode) {
  desk.state.ImpedanceMode = false;
  desk.platform.files.emplace_back(std::nullopt);
  desk.Choose("mnuimportadati");
  const std::string out = desk.TakeOut();
  EXPECT_EQ(
      out.substr(0, out.find("dialog")),
      "message warning \"Warning!\" \"You must import the Data of the transducer for which you have already imported "
      "the Impedance\" [OK] -> OK\n");
}

TEST_F(DataImport, IsUndone) {
  Import(desk.folder.Write("d.wdr", WdrText()));
  desk.Choose("mnuannulla");
  for (const WdrLine& row : kLines) {
    EXPECT_EQ(desk.Text(row.field), row.field == std::string("cmbnumvc") ? "1" : "") << row.field;
  }
  EXPECT_FALSE(desk.state.DataImported);
  EXPECT_TRUE(desk["mnuimportadati"].enabled);
  EXPECT_FALSE(desk["mnuannulla"].enabled);
  EXPECT_EQ(desk.sheet.tabs.size(), 4U);
  EXPECT_EQ(desk.sheet.selected_tab, "gen");
}

}  // namespace
}  // namespace zefirondo
