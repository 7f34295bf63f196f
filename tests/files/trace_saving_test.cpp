// Saving the traces of the box graph: what the file holds, and every way in which it cannot be written.
#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "core/numbers.h"
#include "support/bad_files.h"
#include "support/nobody.h"

namespace zefirondo {
namespace {

class TraceSaving : public testing::TestWithParam<Language> {
 protected:
  TraceSaving() : desk(GetParam()) {
    desk.DesignVented();
    desk.Click("frmgrafcassa.cmdset1");
    desk.Click("frmgrafcassa.cmdset2");
    desk.TakeOut();
  }
  [[nodiscard]] bool English() const { return GetParam() == Language::English; }
  std::string Save(const char* entry, const std::filesystem::path& file) {
    desk.platform.files.emplace_back(file);
    EXPECT_TRUE(desk.Choose(entry).Done());
    return desk.TakeOut();
  }
  void ExpectFailure(const std::filesystem::path& file, const std::string& why) {
    const std::string out = Save("frmgrafcassa.mnusalvatracciatorosso", file);
    EXPECT_EQ(out.substr(out.find('\n') + 1),
              (English() ? "message stop \"Error\" \"The data can not be stored. "
                         : "message stop \"Errore\" \"I dati non possono essere scritti. ") +
                  why + "\" [OK] -> OK\n");
    EXPECT_EQ(desk.program.run, RunState::Running);
  }
  Desk desk;
};

// 6827 points and the zero slot: 6826 rows, from 20 log10(0.7324) to 20 log10(6826 · 0.7324).
TEST_P(TraceSaving, WritesEveryPointButTheLast) {
  for (const auto& [entry, colour] : {std::pair{"frmgrafcassa.mnusalvatracciatorosso", " 255 "},
                                      {"frmgrafcassa.mnusalvatracciatoblu", " 16711680 "}}) {
    const std::filesystem::path file = desk.folder.path() / "t.trc";
    Save(entry, file);
    const std::string text = ReadFileBytes(file);
    EXPECT_EQ(text.substr(0, text.find("\r\n")), colour);
    std::istringstream rows(text.substr(text.find("\r\n") + 2));
    double x = 0;
    double y = 0;
    double first = 0;
    int count = 0;
    while (rows >> x >> y) {
      if (count++ == 0) first = x;
    }
    EXPECT_EQ(count, 6826);
    EXPECT_NEAR(first, 20 * std::log10(0.7324), 1e-12);
    EXPECT_NEAR(x, 20 * std::log10(6826 * 0.7324), 1e-11);
    EXPECT_NEAR(y, desk.state.BoxDb[6825], 1e-11);
    EXPECT_EQ(text.substr(text.size() - 2), "\r\n");
  }
}

TEST_P(TraceSaving, AsksInItsFolder) {
  const std::filesystem::path file = desk.folder.path() / "t.trc";
  EXPECT_EQ(Save("frmgrafcassa.mnusalvatracciatoblu", file),
            English() ? "dialog save \"Response (*.trc)|*.trc\" default=\".trc\" folder=\"" +
                            (desk.folder.path() / "Response").string() + "\" -> " + file.string() + "\n"
                      : "dialog save \"Tracciato (*.trc)|*.trc\" default=\".trc\" folder=\"" +
                            (desk.folder.path() / "Tracciati").string() + "\" -> " + file.string() + "\n");
}

TEST_P(TraceSaving, TakesTheExtensionOfItsKind) {
  Save("frmgrafcassa.mnusalvatracciatorosso", desk.folder.path() / "bare");
  EXPECT_TRUE(std::filesystem::exists(desk.folder.path() / "bare.trc"));
}

TEST_P(TraceSaving, AsksBeforeItOverwrites) {
  const std::filesystem::path file = desk.folder.Write("t.trc", "mine");
  desk.platform.overwrites.push_back(false);
  Save("frmgrafcassa.mnusalvatracciatorosso", file);
  EXPECT_EQ(ReadFileBytes(file), "mine");
  desk.platform.overwrites.push_back(true);
  Save("frmgrafcassa.mnusalvatracciatorosso", file);
  EXPECT_EQ(ReadFileBytes(file).substr(0, 7), " 255 \r\n");
}

TEST_P(TraceSaving, IntoNoFolderIsTold) { ExpectFailure(desk.folder.path() / "no" / "t.trc", "Path not found"); }

TEST_P(TraceSaving, OverAFolderOrAPipeIsTold) {
  desk.platform.overwrites = {true, true};
  std::filesystem::create_directory(desk.folder.path() / "folder.trc");
  ExpectFailure(desk.folder.path() / "folder.trc", "Path/File access error");
  std::filesystem::rename(MakePipe(desk.folder), desk.folder.path() / "pipe.trc");
  ExpectFailure(desk.folder.path() / "pipe.trc", "Path/File access error");
}

TEST_P(TraceSaving, OverAFileOfOthersIsTold) {
  const std::filesystem::path file = MakeUnreadable(desk.folder, "old");
  std::filesystem::rename(file, desk.folder.path() / "t.trc");
  const AsNobody nobody;
  ExpectFailure(desk.folder.path() / "t.trc", "Permission denied");
}

TEST_P(TraceSaving, ClosesItsEntryWithTheTick) {
  EXPECT_TRUE(desk["frmgrafcassa.mnusalvatracciatorosso"].enabled);
  desk.Click("frmgrafcassa.chkonoff1");
  EXPECT_EQ(desk.Choose("frmgrafcassa.mnusalvatracciatorosso").refusal, Refusal::Disabled);
  EXPECT_TRUE(desk["frmgrafcassa.mnusalvatracciatoblu"].enabled);
}

TEST_P(TraceSaving, ImportSpeaksItsLanguage) {
  desk.platform.files.emplace_back(desk.folder.path() / "none.trc");
  desk.Choose("frmgrafcassa.mnuimportatracciato");
  const std::string out = desk.TakeOut();
  EXPECT_EQ(out.substr(out.find('\n') + 1),
            English() ? "message stop \"Error\" \"The file could not be opened. File not found\" [OK] -> OK\n"
                      : "message stop \"Errore\" \"Il file non può essere aperto. File not found\" [OK] -> OK\n");
}

INSTANTIATE_TEST_SUITE_P(Both, TraceSaving, testing::Values(Language::English, Language::Italian),
                         [](const auto& language) {
                           return std::string(language.param == Language::English ? "English" : "Italian");
                         });

}  // namespace
}  // namespace zefirondo
