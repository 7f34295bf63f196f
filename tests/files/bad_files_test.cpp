// Every reader before every kind of bad file: the message of the case, and a program that goes on.
#include <gtest/gtest.h>

#include <functional>

#include "support/bad_files.h"
#include "support/nobody.h"

namespace zefirondo {
namespace {

constexpr const char* kPastEnd = "Input past end of file";
constexpr const char* kNoFailure = "";

/// A way by which a file comes in, with what it says to files that have bytes.
struct Reader {
  const char* name;
  void (*prepare)(Desk&);
  const char* entry;
  const char* message;   // what stands before the reason
  const char* rows;      // a file of it that two bytes a character spoil
  const char* empty;     // the reasons: no byte at all,
  const char* one_line;  // a file without a line end,
  const char* megabyte;  // lines of a megabyte,
  const char* wide;      // two bytes a character
};

void PrintTo(const Reader& reader, std::ostream* out) { *out << reader.name; }

void OpenImpedance(Desk& desk) {
  desk.BeginImpedance();
  desk.sheet.mnuimporta.enabled = true;
  desk.state.txtrvc = "5";
}
void OpenData(Desk& desk) { desk.BeginImpedance(); }
void OpenFrame(Desk& desk) { desk.Begin(); }
void OpenBoxGraph(Desk& desk) { desk.DesignVented(); }
void OpenLevelGraph(Desk& desk) {
  desk.DesignVented();
  desk.Choose("frmgrafcassa.mnuspl");
}
void OpenPhaseGraph(Desk& desk) {
  desk.DesignVented();
  desk.Choose("frmgrafcassa.mnufase");
}
void OpenOffsetTool(Desk& desk) {
  desk.Begin();
  desk.Choose("mdithsm.mnudelay");
}

constexpr const char* kOpened = "The file could not be opened. ";
constexpr const char* kProcessed = "There was an error while processing data. ";
constexpr const char* kLogarithm = "logarithm";  // the reason of a frequency that reads as 0, which ends the program

// A field of letters or of NULs reads as 0. A colour of 0 with no row behind it is a trace, and a heading with
// nothing behind it a response without rows.
const Reader kReaders[] = {
    {"impedance", OpenImpedance, "mnuimporta", kOpened, "x\r\n40 45\r\n50 6\r\n1 1\r\n", kPastEnd, kPastEnd, kPastEnd,
     kPastEnd},
    {"capacitor", OpenFrame, "mdithsm.mnucapa", kProcessed, "x y\r\n40 45\r\n50 6\r\n1 1\r\n", kPastEnd, kPastEnd,
     kPastEnd, kPastEnd},
    {"inductor", OpenFrame, "mdithsm.munindu", kProcessed, "x y\r\n40 45\r\n50 6\r\n1 1\r\n", kPastEnd, kPastEnd,
     kPastEnd, kPastEnd},
    {"data", OpenData, "mnuimportadati", kOpened, "a\r\nb\r\n", kPastEnd, kPastEnd, kPastEnd, kPastEnd},
    {"box_response", OpenBoxGraph, "frmgrafcassa.mnuimportaOverlay", kOpened, "x\r\n40 5\r\n50 6\r\n", kPastEnd,
     kNoFailure, kLogarithm, kLogarithm},
    {"level_response", OpenLevelGraph, "frmspl.mnuimportaOverlay", kOpened, "x\r\n40 5\r\n50 6\r\n", kPastEnd,
     kNoFailure, kLogarithm, kLogarithm},
    {"box_trace", OpenBoxGraph, "frmgrafcassa.mnuimportatracciato", kOpened, "255\r\n20 30\r\n", kPastEnd, kNoFailure,
     kNoFailure, kPastEnd},
    {"level_trace", OpenLevelGraph, "frmspl.mnuimportatracciato", kOpened, "255\r\n20 30\r\n", kPastEnd, kNoFailure,
     kNoFailure, kPastEnd},
    {"phase_trace", OpenPhaseGraph, "frmFase.mnuimportafase", kOpened, "255\r\n20 30\r\n", kPastEnd, kNoFailure,
     kNoFailure, kPastEnd},
    {"offset_trace", OpenOffsetTool, "frmFaseSh.mnuimportafase", kOpened, "255\r\n20 30\r\n", kPastEnd, kNoFailure,
     kNoFailure, kPastEnd},
};

class BadFile : public testing::TestWithParam<Reader> {
 protected:
  BadFile() {
    GetParam().prepare(desk);
    desk.TakeOut();
  }
  /// What was shown behind the line of the dialog.
  std::string Import(const std::filesystem::path& file) {
    desk.platform.files.emplace_back(file);
    EXPECT_TRUE(desk.Choose(GetParam().entry).Done());
    const std::string out = desk.TakeOut();
    return out.substr(out.find('\n') + 1);
  }
  void Expect(const std::filesystem::path& file, const std::string& why) {
    const std::string out = Import(file);
    if (why == kLogarithm) {
      EXPECT_EQ(out,
                "message stop \"Error\" \"Error, logarithm of a number less than or equal to zero\" [OK] -> OK\n"
                "ended error\n");
      return;
    }
    EXPECT_EQ(out, why.empty()
                       ? ""
                       : std::string("message stop \"Error\" \"") + GetParam().message + why + "\" [OK] -> OK\n");
    EXPECT_EQ(desk.program.run, RunState::Running);
  }
  void ExpectBytes(const std::string& bytes, const std::string& why) {
    Expect(desk.folder.Write("file.any", bytes), why);
  }
  Desk desk;
};

TEST_P(BadFile, ThatIsMissing) {
  Expect(desk.folder.path() / "none.ovl", "File not found");
  Expect(desk.folder.path() / "no" / "ne.ovl", "Path not found");
}

TEST_P(BadFile, ThatIsAFolder) { Expect(MakeFolder(desk.folder), "Path/File access error"); }

TEST_P(BadFile, ThatIsAPipeDoesNotHang) { Expect(MakePipe(desk.folder), "Path/File access error"); }

TEST_P(BadFile, ThatMayNotBeRead) {
  const std::filesystem::path file = MakeUnreadable(desk.folder, GetParam().rows);
  const AsNobody nobody;
  Expect(file, "Permission denied");
}

TEST_P(BadFile, ThatIsEmpty) { ExpectBytes("", GetParam().empty); }

TEST_P(BadFile, WithoutLineEnds) { ExpectBytes(std::string(200000, 'x'), GetParam().one_line); }

TEST_P(BadFile, OfNuls) { ExpectBytes(std::string(200000, '\0'), GetParam().one_line); }

TEST_P(BadFile, OfLinesOfMegabytes) {
  const std::string line = std::string(3 << 20, 'x') + "\r\n";
  ExpectBytes(line + line + line, GetParam().megabyte);
}

TEST_P(BadFile, InTwoBytesACharacter) { ExpectBytes(InUtf16(GetParam().rows), GetParam().wide); }

INSTANTIATE_TEST_SUITE_P(OfEveryReader, BadFile, testing::ValuesIn(kReaders),
                         [](const auto& reader) { return std::string(reader.param.name); });

}  // namespace
}  // namespace zefirondo
