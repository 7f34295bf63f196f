// Trace files, byte for byte, and their way from the box graph to a file and back.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "core/run_time_error.h"
#include "files/trace_file.h"
#include "support/desk.h"

namespace zefirondo {
namespace {

constexpr const char* kSaved = "message stop \"Error\" \"The data can not be stored. ";
constexpr const char* kOpened = "message stop \"Error\" \"The file could not be opened. ";

TEST(TraceText, HasTheColourAndTheRowsInPrintZones) {
  // The zero slot and the last real point are left out; zones are 14 columns wide.
  EXPECT_EQ(TraceText(255, {20, 33.5, 7, 0}, {40, 41.25, 7, 0}),
            " 255 \r\n"
            "20            40\r\n"
            "33.5          41.25\r\n");
}

TEST(TraceText, KeepsABlankBehindALongNumber) {
  // 13 characters, 14 characters, and 16 characters: 20 log10(20) in 15 digits.
  EXPECT_EQ(TraceText(16711680, {26.0205999132, 26.02059991328, 26.020599913279624, 1, 0}, {1, 2, 3, 4, 0}),
            " 16711680 \r\n"
            "26.0205999132 1\r\n"
            "26.02059991328              2\r\n"
            "26.0205999132796            3\r\n");
}

TEST(TraceText, LosesTheSignBetweenMinusOneAndZero) {
  EXPECT_EQ(TraceText(0, {-0.5, -12.5, 1, 0}, {-0.25, -1, 1, 0}),
            " 0 \r\n"
            "0.5           0.25\r\n"
            "-12.5         -1\r\n");
}

TEST(TraceText, OfOnePointOrNoneIsTheColourLine) {
  EXPECT_EQ(TraceText(255, {20, 0}, {40, 0}), " 255 \r\n");
  EXPECT_EQ(TraceText(255, {0}, {0}), " 255 \r\n");
  EXPECT_EQ(TraceText(255, {}, {}), " 255 \r\n");
}

TEST(ReadTrace, ReadsColourAndPairsInFreeForm) {
  const TemporaryFolder folder;
  const Trace trace = ReadTrace(folder.Write("t", " 16711680 \r\n20            40\r\n33.5,-41.25\n1 2"));
  EXPECT_EQ(trace.colour, 16711680);
  EXPECT_EQ(trace.x, (Curve{20, 33.5, 1, 0}));  // the last row is not lost
  EXPECT_EQ(trace.y, (Curve{40, -41.25, 2, 0}));
  EXPECT_EQ(ReadTrace(folder.Write("t", " 255 \r\n")).x, (Curve{0}));
}

TEST(ReadTrace, GivesBackWhatWasWrittenButTheLastPoint) {
  const TemporaryFolder folder;
  const Curve x{20, 20.0636, 26.0205999132796, 30, 0};
  const Curve y{-40, 38.123456789, 61.5, 12, 0};
  const Trace trace = ReadTrace(folder.Write("t", TraceText(255, x, y)));
  EXPECT_EQ(trace.x, (Curve{20, 20.0636, 26.0205999132796, 0}));
  EXPECT_EQ(trace.y, (Curve{-40, 38.123456789, 61.5, 0}));
}

class BoxTraceFile : public testing::Test {
 protected:
  BoxTraceFile() {
    desk.DesignVented();
    desk.Click("frmgrafcassa.cmdset1");
    desk.Click("frmgrafcassa.cmdset2");
    desk.TakeOut();
  }

  std::string Saving(const std::filesystem::path& file) {
    desk.platform.files.emplace_back(file);
    desk.Choose("frmgrafcassa.mnusalvatracciatorosso");
    return desk.TakeOut();
  }
  std::string Importing(const std::filesystem::path& file) {
    desk.platform.files.emplace_back(file);
    desk.Choose("frmgrafcassa.mnuimportatracciato");
    return desk.TakeOut();
  }
  Surface& surface() { return desk.program.windows.frmgrafcassa.surface; }

  Desk desk;
};

TEST_F(BoxTraceFile, IsSavedInTheColourOfItsSlot) {
  const std::filesystem::path folder = desk.folder.path();
  const std::string responses = (folder / "Response").string();
  EXPECT_EQ(Saving(folder / "red.trc"), "dialog save \"Response (*.trc)|*.trc\" default=\".trc\" folder=\"" +
                                            responses + "\" -> " + (folder / "red.trc").string() + "\n");
  EXPECT_EQ(ReadFileBytes(folder / "red.trc"), TraceText(255, desk.state.Set1BoxFreq, desk.state.Set1BoxDb));
  desk.platform.files.emplace_back(folder / "blue.trc");
  desk.Choose("frmgrafcassa.mnusalvatracciatoblu");
  const Trace blue = ReadTrace(folder / "blue.trc");
  EXPECT_EQ(blue.colour, 16711680);
  EXPECT_EQ(blue.x.size() + 1, desk.state.Set2BoxFreq.size());
}

TEST_F(BoxTraceFile, ReadBackIsOnlyPainted) {
  const auto file = desk.folder.path() / "red.trc";
  Saving(file);
  const Curve before = desk.state.BoxDb;
  const std::size_t strokes = surface().strokes.size();
  EXPECT_EQ(Importing(file), "dialog open \"Response (*.trc)|*.trc|\" default=\".trc\" folder=\"" +
                                 (desk.folder.path() / "Response").string() + "\" -> " + file.string() + "\n");
  ASSERT_EQ(surface().strokes.size(), strokes + 1);
  EXPECT_EQ(surface().strokes.back().colour, 255);
  EXPECT_EQ(surface().strokes.back().scale.height, desk.state.BoxScaleTop);
  EXPECT_EQ(desk.state.BoxDb, before);
  desk.Click("frmgrafcassa.cmdset1");  // redraws, and the painted trace is gone
  EXPECT_EQ(surface().strokes.size(), strokes);
}

TEST_F(BoxTraceFile, IsPaintedInTheColourOfItsFile) {
  Importing(desk.folder.Write("t.trc", " 65280 \r\n25 30\r\n30 35\r\n35 40\r\n"));
  const Stroke& stroke = surface().strokes.back();
  EXPECT_EQ(stroke.colour, 65280);
  EXPECT_EQ(surface().points.at(stroke.first).x, 25);
}

TEST_F(BoxTraceFile, CancelledDialogChangesNothing) {
  desk.platform.files.emplace_back(std::nullopt);
  desk.platform.files.emplace_back(std::nullopt);
  const std::size_t strokes = surface().strokes.size();
  desk.Choose("frmgrafcassa.mnuimportatracciato");
  desk.Choose("frmgrafcassa.mnusalvatracciatorosso");
  EXPECT_EQ(desk.TakeOut().find("message"), std::string::npos);
  EXPECT_EQ(surface().strokes.size(), strokes);
}

TEST_F(BoxTraceFile, ThatCannotBeSavedTellsWhy) {
  const std::filesystem::path folder = desk.folder.path();
  EXPECT_NE(Saving(folder / "no" / "t.trc").find(kSaved + std::string("Path not found\" [OK]")), std::string::npos);
  desk.state.Set1BoxDb[0] = 8e28;  // beyond the decimals of a file
  EXPECT_NE(Saving(folder / "t.trc").find(kSaved + std::string("Overflow\" [OK]")), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(folder / "t.trc"));
}

TEST_F(BoxTraceFile, ThatCannotBeReadTellsWhy) {
  const auto failure = [&](const std::filesystem::path& file) {
    const std::string out = Importing(file);
    return out.substr(std::min(out.find("message"), out.size()));
  };
  const auto told = [](const std::string& text) { return kOpened + text + "\" [OK] -> OK\n"; };
  const std::size_t strokes = surface().strokes.size();
  const std::filesystem::path folder = desk.folder.path();
  EXPECT_EQ(failure(folder / "none.trc"), told("File not found"));
  std::filesystem::create_directory(folder / "folder.trc");
  EXPECT_EQ(failure(folder / "folder.trc"), told("Path/File access error"));
  ASSERT_EQ(::mkfifo((folder / "pipe.trc").c_str(), 0600), 0);
  EXPECT_EQ(failure(folder / "pipe.trc"), told("Path/File access error"));
  EXPECT_EQ(failure(desk.folder.Write("t.trc", "")), told("Input past end of file"));
  EXPECT_EQ(failure(desk.folder.Write("t.trc", "255\r\n20 30\r\n40")), told("Input past end of file"));
  EXPECT_EQ(failure(desk.folder.Write("t.trc", "1e30\r\n20 30\r\n")), told("Overflow"));
  EXPECT_EQ(surface().strokes.size(), strokes);  // nothing of them was painted
}

}  // namespace
}  // namespace zefirondo
