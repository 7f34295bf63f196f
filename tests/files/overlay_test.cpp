// Measured responses on the box and level graphs: what is read of them, what stops it, what a failure leaves.
#include "files/overlay_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "core/numbers.h"
#include "core/run_time_error.h"
#include "support/desk.h"

namespace zefirondo {
namespace {

using Rows = std::vector<std::pair<double, double>>;

/// The rows that an import hands on, with what was printed behind the line of the dialog.
class Overlay : public testing::Test {
 protected:
  Overlay() { desk.Begin(); }
  Rows Read(const std::string& bytes, double limit = 6826) {
    Rows rows;
    desk.platform.files.emplace_back(desk.folder.Write("r.ovl", bytes));
    desk.TakeOut();
    done = ImportOverlay(desk.program, limit, [&](const Row& row) { rows.emplace_back(row.first, row.second); });
    out = desk.TakeOut();
    out = out.substr(out.find('\n') + 1);
    return rows;
  }
  Desk desk;
  bool done = false;
  std::string out;
};

TEST_F(Overlay, DropsTheFirstLineWhole) {
  EXPECT_EQ(Read("1 2, 3 4;\r\n20 5\r\n"), (Rows{{20, 5}}));
  EXPECT_EQ(Read("20 5\r\n30 6\r\n"), (Rows{{30, 6}}));  // also when it is a row
  EXPECT_EQ(Read("\r\n20 5\r\n"), (Rows{{20, 5}}));
  EXPECT_TRUE(done);
}

TEST_F(Overlay, KeepsTheLastRow) {
  for (const char* const end : {"", "\r\n", "\n", "\r", " ", "\t\r\n"}) {
    EXPECT_EQ(Read(std::string("x\r\n20 5\r\n30 6") + end), (Rows{{20, 5}, {30, 6}})) << end;
    EXPECT_TRUE(done && out.empty());
  }
}

TEST_F(Overlay, HasNoLeadingSkip) {
  EXPECT_EQ(Read("x\r\n0 5\r\n0.5 6\r\nOhm dB\r\n20 7\r\n"), (Rows{{0, 5}, {0.5, 6}, {0, 0}, {20, 7}}));
}

TEST_F(Overlay, StopsAtTheLimitForGood) {
  EXPECT_EQ(Read("x\r\n20 5\r\n6825.9999 6\r\n6826 7\r\n30 8\r\n"), (Rows{{20, 5}, {6825.9999, 6}}));
  EXPECT_EQ(Read("x\r\n20 5\r\n1999.9999 6\r\n2000 7\r\n30 8\r\n", 2000), (Rows{{20, 5}, {1999.9999, 6}}));
  EXPECT_EQ(Read("x\r\n1e9 5\r\n20 6\r\n"), Rows{});
  EXPECT_EQ(Read("x\r\n20 5\r\n7000 6\r\n30"), (Rows{{20, 5}}));  // half a row behind it is never reached
  EXPECT_TRUE(done && out.empty());
}

TEST_F(Overlay, TakesEverySeparatorAndASign) {
  EXPECT_EQ(Read("x\r\n20,-5.5\r\n30   6\r40\t+7\n50\r\n-8e-1\r\n"), (Rows{{20, -5.5}, {30, 6}, {40, 7}, {50, -0.8}}));
}

TEST_F(Overlay, TakesAThirdFieldForTheNextFrequency) {
  EXPECT_EQ(Read("x\r\n20 5 77\r\n30 6 88\r\n"), (Rows{{20, 5}, {77, 30}, {6, 88}}));
}

TEST_F(Overlay, OfAHeadingAloneHasNoRows) {
  for (const char* const text : {"x", "x\r\n", "\r\n"}) {
    EXPECT_EQ(Read(text), Rows{});
    EXPECT_TRUE(done && out.empty());
  }
}

TEST_F(Overlay, ThatEndsInARowHandsOnThoseBeforeAndTellsWhy) {
  EXPECT_EQ(Read("x\r\n20 5\r\n30 6\r\n40"), (Rows{{20, 5}, {30, 6}}));
  EXPECT_FALSE(done);
  EXPECT_EQ(out, "message stop \"Error\" \"The file could not be opened. Input past end of file\" [OK] -> OK\n");
  EXPECT_EQ(Read("x\r\n20 5\r\n\r\n"), (Rows{{20, 5}}));  // an empty line is half a row
  EXPECT_FALSE(done);
}

// The rows are known before they are written, with separators of every kind.
TEST_F(Overlay, GivesBackTheRowsOfAGeneratedFile) {
  std::mt19937 random(21);
  const char* const separators[] = {" ", "   ", ",", "\t", " ,", ", "};
  const char* const ends[] = {"\r\n", "\n", "\r", ",", " \r\n"};
  for (int file = 0; file < 20; ++file) {
    std::string text = "made up, for 1 test;\r\n";
    Rows rows;
    for (int i = 0; i < 400; ++i) {
      const double f = static_cast<double>(1 + random() % 65536) / 8;  // up to 8192 Hz
      const double level = static_cast<double>(random() % 4096) / 16 - 128;
      text += PlainNumber(f) + separators[random() % 6] + PlainNumber(level) + ends[random() % 5];
      rows.emplace_back(f, level);
    }
    const auto high = std::find_if(rows.begin(), rows.end(), [](const auto& row) { return row.first >= 6826; });
    rows.erase(high, rows.end());
    EXPECT_EQ(Read(text), rows) << "file " << file;
  }
}

TEST_F(Overlay, AsksInItsFolderInBothLanguages) {
  for (const Language language : {Language::English, Language::Italian}) {
    Desk other(language);
    other.Begin();
    other.platform.files.emplace_back(std::nullopt);
    EXPECT_FALSE(ImportOverlay(other.program, 2000, [](const Row&) {}));
    EXPECT_EQ(other.TakeOut(), "dialog open \"Risposta in Frequenza (*.ovl)|*.ovl|\" default=\".ovl\" folder=\"" +
                                   (other.folder.path() / "Overlay").string() + "\" -> cancel\n");
  }
}

// A measurement of more rows than any has: the message, and not the memory of the machine.
TEST_F(Overlay, OfTooManyRowsIsRefused) {
  EXPECT_NO_THROW(RequireRoom(kMostRows - 1));
  EXPECT_THROW(RequireRoom(kMostRows), RunTimeError);
  std::string text = "x\n";
  text.reserve(20 << 20);
  for (std::size_t i = 0; i <= kMostRows; ++i) text += "9 9\n";
  std::size_t rows = 0;
  desk.platform.files.emplace_back(desk.folder.Write("r.ovl", text));
  desk.TakeOut();
  EXPECT_FALSE(ImportOverlay(desk.program, 2000, [&](const Row&) { ++rows; }));
  EXPECT_EQ(rows, kMostRows);
  EXPECT_NE(desk.TakeOut().find("message stop \"Error\" \"The file could not be opened. Out of memory\" [OK] -> OK\n"),
            std::string::npos);
}

/// The two graphs that take a response.
struct GraphRow {
  const char* name;
  bool level;
};

class OverlayOnGraph : public testing::TestWithParam<GraphRow> {
 protected:
  OverlayOnGraph() {
    desk.DesignVented();
    if (GetParam().level) desk.Choose("frmgrafcassa.mnuspl");
    desk.TakeOut();
  }
  std::string Import(const std::string& bytes) {
    desk.platform.files.emplace_back(desk.folder.Write("r.ovl", bytes));
    desk.Choose(Named("mnuimportaOverlay"));
    const std::string out = desk.TakeOut();
    return out.substr(out.find('\n') + 1);
  }
  [[nodiscard]] std::string Named(const std::string& control) const {
    return (GetParam().level ? "frmspl." : "frmgrafcassa.") + control;
  }
  /// The curve that an import fills: places and levels.
  [[nodiscard]] const Curve& x() const {
    return GetParam().level ? desk.state.OverlaySplFreq : desk.program.windows.frmgrafcassa.OverlayFreq;
  }
  [[nodiscard]] const Curve& y() const {
    return GetParam().level ? desk.state.OverlaySplDb : desk.program.windows.frmgrafcassa.OverlayDb;
  }
  void ExpectButtons(bool imported) {
    EXPECT_EQ(desk[Named(GetParam().level ? "cmdsommaspl" : "cmdsomma")].enabled, imported);
    EXPECT_EQ(desk[Named(GetParam().level ? "cmdcancellaspl" : "cmdcancella")].enabled, imported);
    EXPECT_EQ(desk[Named("mnuimportaOverlay")].enabled, !imported);
  }
  Desk desk;
};

TEST_P(OverlayOnGraph, StandsAtTheLogarithmOfItsFrequency) {
  EXPECT_EQ(Import("x\r\n10 3\r\n100 -4.5\r\n1000 6\r\n"), "");
  const double offset = GetParam().level ? 0 : 40;
  ASSERT_EQ(x().size(), 4U);  // with the zero slot
  EXPECT_NEAR(x()[0], 20, 1e-12);
  EXPECT_NEAR(x()[1], 40, 1e-12);
  EXPECT_NEAR(x()[2], 60, 1e-12);
  EXPECT_EQ(y(), (Curve{3 + offset, -4.5 + offset, 6 + offset, 0}));
  EXPECT_EQ(x()[3], 0);
  ExpectButtons(true);
}

TEST_P(OverlayOnGraph, EndsAtItsLimit) {
  EXPECT_EQ(Import(GetParam().level ? "x\n10 1\n1999.99 2\n2000 3\n20 4\n" : "x\n10 1\n6825.99 2\n6826 3\n20 4\n"), "");
  EXPECT_EQ(x().size(), 3U);
}

TEST_P(OverlayOnGraph, KeepsTheRowsBeforeAFailure) {
  EXPECT_EQ(Import("x\r\n10 3\r\n100 4\r\n200"),
            "message stop \"Error\" \"The file could not be opened. Input past end of file\" [OK] -> OK\n");
  EXPECT_EQ(x().size(), 3U);
  EXPECT_EQ(y()[1], GetParam().level ? 4 : 44);
  ExpectButtons(false);
}

TEST_P(OverlayOnGraph, EndsTheProgramAtAFrequencyWithoutALogarithm) {
  for (const char* const f : {"0", "-20", "Hz", "", ";5"}) {
    Desk other;
    other.DesignVented();
    if (GetParam().level) other.Choose("frmgrafcassa.mnuspl");
    other.TakeOut();
    other.platform.files.emplace_back(other.folder.Write("r.ovl", std::string("x\r\n10 1\r\n") + f + ",5\r\n"));
    other.Choose(Named("mnuimportaOverlay"));
    const std::string out = other.TakeOut();
    EXPECT_EQ(out.substr(out.find('\n') + 1),
              "message stop \"Error\" \"Error, logarithm of a number less than or equal to zero\" [OK] -> OK\n"
              "ended error\n")
        << f;
    EXPECT_EQ(other.program.run, RunState::EndedByFailure);
  }
}

TEST_P(OverlayOnGraph, ReadsNoLogarithmBehindItsLimit) {
  EXPECT_EQ(Import("x\r\n10 1\r\n7000 2\r\n0 3\r\n"), "");
  EXPECT_EQ(desk.program.run, RunState::Running);
}

INSTANTIATE_TEST_SUITE_P(Both, OverlayOnGraph, testing::Values(GraphRow{"box", false}, GraphRow{"level", true}),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace zefirondo
