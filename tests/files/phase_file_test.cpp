// The staging files of phase sequences, and phase traces.
#include "files/phase_file.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/run_time_error.h"
#include "support/bad_files.h"

namespace zefirondo {
namespace {

int StagingFailure(const std::filesystem::path& path) {
  try {
    StageSequence(path, std::string(1 << 20, 'x'));
  } catch (const RunTimeError& error) {
    return error.number();
  }
  return 0;
}

TEST(SequenceFile, IsNeverWrittenIntoAPipeOrAFolder) {
  const TemporaryFolder folder;
  EXPECT_EQ(StagingFailure(MakePipe(folder)), 75);  // and does not wait for a reader
  EXPECT_EQ(StagingFailure(MakeFolder(folder)), 75);
  EXPECT_EQ(StagingFailure(folder.path() / "no" / "s.ovl"), 75);
}

TEST(SequenceFile, IsWrittenOverItsBeginning) {
  const TemporaryFolder folder;
  const auto file = folder.Write("s", "0123456789");
  StageSequence(file, "abc");
  EXPECT_EQ(ReadFileBytes(file), "abc3456789");
  StageSequence(folder.path() / "new", "è");
  EXPECT_EQ(ReadFileBytes(folder.path() / "new"), "\xE8");
}

TEST(SequenceFile, GivesPlacesHertzAndDegrees) {
  const TemporaryFolder folder;
  const PhaseCurve curve = ReadSequence(folder.Write("s", ";Freq(Hz) degrees\r\n10 -90\r\n1000,45.5\r\n"));
  EXPECT_EQ(curve.hertz, (Curve{10, 1000, 0}));
  EXPECT_EQ(curve.degrees, (Curve{-90, 45.5, 0}));
  ASSERT_EQ(curve.x.size(), 3U);
  EXPECT_NEAR(curve.x[0], 10, 1e-12);  // 20 log10(10) − 10
  EXPECT_NEAR(curve.x[1], 50, 1e-12);
  EXPECT_EQ(curve.x[2], 0);
}

TEST(SequenceFile, OfBadRowsFails) {
  const TemporaryFolder folder;
  EXPECT_THROW((void)ReadSequence(folder.Write("s", ";Freq(Hz)\r\n10 -90\r\n20")), RunTimeError);
  EXPECT_THROW((void)ReadSequence(folder.Write("s", ";Freq(Hz)\r\n0 -90\r\n")), LogarithmError);
  EXPECT_THROW((void)ReadSequence(folder.Write("s", InUtf16(";Freq(Hz)\r\n10 -90\r\n"))), LogarithmError);
  EXPECT_FALSE(HasSequenceHeading(folder.Write("s", InUtf16(";Freq(Hz)\r\n10 -90\r\n"))));
  EXPECT_FALSE(HasSequenceHeading(folder.Write("s", std::string(3 << 20, ';'))));
  EXPECT_TRUE(HasSequenceHeading(folder.Write("s", ";Freq(Hz)" + std::string(3 << 20, ' '))));
}

class PhaseTraceReading : public testing::Test {
 protected:
  PhaseTraceReading() { desk.Begin(); }
  bool Import(const std::string& bytes) {
    desk.platform.files.emplace_back(desk.folder.Write("t.trc", bytes));
    curve = {};
    const bool read = ImportPhaseTrace(desk.program, curve);
    out = desk.TakeOut();
    return read;
  }
  Desk desk;
  PhaseCurve curve;
  std::string out;
};

// Hz = 10^((x + 10) / 20): 10 on the plot is 10 Hz, 50 is 1 kHz.
TEST_F(PhaseTraceReading, GivesBackTheHertzOfItsPlaces) {
  EXPECT_TRUE(Import(" 255 \r\n10            -90\r\n50            45.5\r\n"));
  EXPECT_EQ(curve.x, (Curve{10, 50, 0}));
  EXPECT_EQ(curve.degrees, (Curve{-90, 45.5, 0}));
  ASSERT_EQ(curve.hertz.size(), 3U);
  EXPECT_NEAR(curve.hertz[0], 10, 1e-12);
  EXPECT_NEAR(curve.hertz[1], 1000, 1e-9);
  EXPECT_EQ(curve.hertz[2], 0);
}

TEST_F(PhaseTraceReading, DropsItsFirstLineWhateverItHolds) {
  EXPECT_TRUE(Import("no colour at all, 1 2 3\r\n10 -90\r\n"));
  EXPECT_EQ(curve.x, (Curve{10, 0}));
  EXPECT_TRUE(Import("-5 1e30\n10 -90"));
  EXPECT_EQ(curve.x, (Curve{10, 0}));
}

TEST_F(PhaseTraceReading, BeyondEveryFrequencyIsTold) {
  EXPECT_FALSE(Import("255\r\n1e6 5\r\n"));  // 10^50000.5
  EXPECT_NE(out.find("message stop \"Error\" \"The file could not be opened. Overflow\" [OK] -> OK\n"),
            std::string::npos);
}

TEST_F(PhaseTraceReading, AsksWithWordsThatAreTheSameInBothLanguages) {
  for (const auto& [language, folder] :
       {std::pair{Language::English, "Response"}, std::pair{Language::Italian, "Tracciati"}}) {
    Desk other(language);
    other.Begin();
    other.platform.files.emplace_back(std::nullopt);
    EXPECT_FALSE(ImportPhaseTrace(other.program, curve));
    EXPECT_EQ(other.TakeOut(), "dialog open \"Tracciato (*.trc)|*.trc|\" default=\".trc\" folder=\"" +
                                   (other.folder.path() / folder).string() + "\" -> cancel\n");
  }
}

}  // namespace
}  // namespace zefirondo
