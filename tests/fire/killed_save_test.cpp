// Saves that are killed, refused or lose their folder at every point: the old file is there, or the new one, whole.
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "fire/save_points.h"
#include "support/desk.h"
#include "support/nobody.h"

namespace zefirondo {
namespace {

constexpr int kPoints = 6;  // mkstemp, write, fchmod, fsync, close, rename: what decides about the file
constexpr const char* kCalls = "mkstemp write fchmod fsync close rename fsync close ";  // the last two: its folder

/// One kind of save: a project over an earlier one, or a trace over another file.
struct SaveKind {
  const char* name;
  const char* entry;
  const char* file;
  bool asks;         // whether it goes through the dialog
  std::size_t step;  // in bytes, between the sizes that a disk has room for: each kind writes by the same routine
};

constexpr std::array kKinds = std::to_array<SaveKind>({
    {"SaveProject", "mnusalvadir", "design.pro", false, 1},
    {"SaveProjectAs", "mnusalva", "design.pro", true, 17},
    {"SaveTrace", "frmgrafcassa.mnusalvatracciatorosso", "curve.trc", true, 9973},
});

class CutShort : public testing::TestWithParam<SaveKind> {
 protected:
  CutShort() {
    std::filesystem::create_directory(folder);
    desk = std::make_unique<Desk>();
    desk->DesignVented();
    if (IsProject()) {
      desk->platform.files.emplace_back(file);
      desk->Choose("mnusalva");
      desk->state.ProjectPath = file.string();
      desk->state.HasProjectPath = true;
    } else {
      desk->Click("frmgrafcassa.cmdset1");
      static_cast<void>(home.Write("home/curve.trc", "an earlier trace"));
    }
    old_bytes = ReadFileBytes(file);
    ChangeProject();
    new_bytes = WhatASaveWrites();
    desk->TakeOut();
  }

  [[nodiscard]] bool IsProject() const { return std::string(GetParam().file) == "design.pro"; }

  void ChangeProject() {
    desk->state.txtcommento = "a comment that makes the new file longer than the old one";
    MarkModified(desk->program);
  }

  /// The same save into another file, with nothing in its way.
  std::string WhatASaveWrites() {
    const std::filesystem::path other = home.path() / ("other-" + std::string(GetParam().file));
    const std::string before = desk->state.ProjectPath;
    desk->state.ProjectPath = other.string();
    Save(other);
    desk->state.ProjectPath = before;
    MarkModified(desk->program);
    return ReadFileBytes(other);
  }

  void Save(const std::filesystem::path& to) {
    if (GetParam().asks) desk->platform.files.emplace_back(to);
    EXPECT_TRUE(desk->Choose(GetParam().entry).Done());
  }

  /// Saves in a process of its own; how it ended.
  int SaveInAChild(const std::function<void()>& prepare) {
    const pid_t child = ::fork();
    if (child == 0) {
      ::prctl(PR_SET_DUMPABLE, 0);  // no core files
      prepare();
      Save(file);
      ::_exit(desk->out.find("message ") == std::string::npos ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return status;
  }

  /// The file is the old one or the new one, and opens.
  void ExpectWhole(bool is_new, const std::string& when) {
    const std::string bytes = ReadFileBytes(file);
    ASSERT_TRUE(bytes == (is_new ? new_bytes : old_bytes)) << when << ": " << bytes.size() << " bytes";
  }

  void ExpectOpens() {
    if (!IsProject()) return;
    Desk other;
    other.Begin(file.string());
    EXPECT_EQ(other.TakeOut(), "");
    EXPECT_EQ(other.sheet.tabs.size(), 5U);
    EXPECT_EQ(other.state.txtproduttore, desk->state.txtproduttore);
  }

  /// What saves have left beside the file.
  [[nodiscard]] std::vector<std::filesystem::path> Litter() const {
    std::vector<std::filesystem::path> litter;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      if (entry.path() != file) litter.push_back(entry.path());
    }
    return litter;
  }

  /// A save with nothing in its way goes well, whatever an earlier one has left.
  void ExpectNextSave(const std::string& when) {
    Expect({});
    ChangeProject();
    Save(file);
    EXPECT_EQ(desk->TakeOut().find("message "), std::string::npos) << when;
    ExpectWhole(true, when);
  }

  void PutOldBack() { static_cast<void>(home.Write("home/" + std::string(GetParam().file), old_bytes)); }

  TemporaryFolder home;
  std::filesystem::path folder = home.path() / "home";
  std::filesystem::path file = folder / GetParam().file;
  std::unique_ptr<Desk> desk;
  std::string old_bytes;
  std::string new_bytes;
};

TEST_P(CutShort, ASaveMakesTheseCallsAndNoOther) {
  ASSERT_NE(old_bytes, new_bytes);
  ASSERT_GT(old_bytes.size(), 10U);
  ASSERT_GT(new_bytes.size(), 1000U);
  Expect({});
  Save(file);
  EXPECT_EQ(CallsMade(), kCalls);
  ExpectWhole(true, "saved");
  EXPECT_TRUE(Litter().empty());
}

TEST_P(CutShort, KilledBeforeEveryCallItKeepsOneOfBoth) {
  for (int at = 1; at <= 9; ++at) {  // the ninth is behind the end
    PutOldBack();
    const int status = SaveInAChild([&] { Expect({at, Mishap::Killed}); });
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), at <= 8 ? kKilledStatus : 0) << at;
    ExpectWhole(at > kPoints, "killed before call " + std::to_string(at));
    ExpectOpens();
    // The file beside it is there from the first call until it takes the place.
    EXPECT_EQ(Litter().size(), at >= 2 && at <= kPoints ? 1U : 0U) << at;
    for (const std::filesystem::path& path : Litter()) std::filesystem::remove(path);
  }
}

TEST_P(CutShort, KilledInTheMiddleOfTheWriteItKeepsTheOld) {
  const int status = SaveInAChild([] { Expect({2, Mishap::KilledHalfway}); });
  EXPECT_EQ(WEXITSTATUS(status), kKilledStatus);
  ExpectWhole(false, "halfway");
  ASSERT_EQ(Litter().size(), 1U);
  EXPECT_EQ(ReadFileBytes(Litter().front()), new_bytes.substr(0, new_bytes.size() / 2));
}

// The system kills the process when its file grows beyond the limit.
TEST_P(CutShort, KilledAtEveryByteItKeepsTheOld) {
  for (std::size_t bytes = 0; bytes < new_bytes.size(); bytes += GetParam().step) {
    const int status = SaveInAChild([&] {
      std::signal(SIGXFSZ, SIG_DFL);
      const rlimit limit{bytes, bytes};
      ::setrlimit(RLIMIT_FSIZE, &limit);
    });
    ASSERT_TRUE(WIFSIGNALED(status)) << bytes;
    ASSERT_EQ(WTERMSIG(status), SIGXFSZ) << bytes;
    ExpectWhole(false, "killed at byte " + std::to_string(bytes));
    ASSERT_EQ(Litter().size(), 1U);
    ASSERT_EQ(std::filesystem::file_size(Litter().front()), bytes);
    std::filesystem::remove(Litter().front());
  }
  ExpectOpens();
  ExpectNextSave("behind all of them");
}

// 61 is the number of a full disk, and its text is what a trace shows.
TEST_P(CutShort, WithoutRoomForAnyOfItsBytesItKeepsTheOldAndSaysSo) {
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  ::getrlimit(RLIMIT_FSIZE, &before);
  for (std::size_t bytes = 0; bytes < new_bytes.size(); bytes += GetParam().step) {
    const rlimit limit{bytes, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    Save(file);
    ::setrlimit(RLIMIT_FSIZE, &before);
    ExpectWhole(false, "no room behind byte " + std::to_string(bytes));
    ASSERT_TRUE(Litter().empty()) << bytes;
    const char* const told = IsProject() ? "The data can not be stored. 61" : "The data can not be stored. Disk full";
    ASSERT_NE(desk->TakeOut().find(told), std::string::npos) << bytes;
    ASSERT_TRUE(desk->state.ProjectModified) << bytes;
  }
  std::signal(SIGXFSZ, handler);
  ExpectNextSave("with room again");
}

TEST_P(CutShort, RefusedAtEveryCallItKeepsTheOldAndSaysSo) {
  struct Error {
    int error;
    const char* number;
    const char* text;
  };
  for (const auto& [error, number, text] : {Error{ENOSPC, "61", "Disk full"},
                                            {EDQUOT, "61", "Disk full"},
                                            {EIO, "57", "Device I/O error"},
                                            {EROFS, "70", "Permission denied"},
                                            {EACCES, "70", "Permission denied"},
                                            {ENOENT, "76", "Path not found"},
                                            {ESTALE, "75", "Path/File access error"}}) {
    for (int at = 1; at <= 8; ++at) {
      PutOldBack();
      ChangeProject();
      Expect({at, Mishap::Refused, error});
      Save(file);
      // A mode that cannot be set, and a folder that cannot be flushed, are no failures.
      const bool fails = at <= kPoints && at != 3;
      const std::string why = IsProject() ? number : text;
      const std::string out = desk->TakeOut();
      EXPECT_EQ(out.find("message stop \"Error\" \"The data can not be stored. " + why + "\"") != std::string::npos,
                fails)
          << at << " " << text << ": " << out;
      EXPECT_EQ(out.find("message ") != std::string::npos, fails) << at;
      ExpectWhole(!fails, "refused at call " + std::to_string(at));
      EXPECT_TRUE(Litter().empty()) << at;
      EXPECT_EQ(desk->state.ProjectModified, fails || !IsProject()) << at;
    }
  }
}

TEST_P(CutShort, LosingItsFolderAtEveryCallItKeepsOneOfBothWhereTheFolderIs) {
  const std::filesystem::path elsewhere = home.path() / "elsewhere";
  for (int at = 1; at <= 8; ++at) {
    PutOldBack();
    ChangeProject();
    Expect({at, Mishap::FolderGone, 0, folder, elsewhere});
    Save(file);
    ASSERT_TRUE(std::filesystem::exists(elsewhere)) << at;
    const std::string out = desk->TakeOut();
    const bool fails = at <= kPoints;
    EXPECT_EQ(out.find(IsProject() ? "stored. 76" : "stored. Path not found") != std::string::npos, fails) << out;
    EXPECT_FALSE(std::filesystem::exists(folder)) << at;  // it is not made anew
    std::filesystem::rename(elsewhere, folder);
    ExpectWhole(!fails, "folder gone at call " + std::to_string(at));
    for (const std::filesystem::path& path : Litter()) std::filesystem::remove(path);
  }
  ExpectNextSave("with its folder again");
}

TEST_P(CutShort, IntoAVanishedFolderIsTold) {
  std::filesystem::remove_all(folder);
  Save(file);
  const std::string out = desk->TakeOut();
  EXPECT_NE(out.find(IsProject() ? "stored. 76" : "stored. Path not found"), std::string::npos) << out;
  EXPECT_FALSE(std::filesystem::exists(folder));
  EXPECT_EQ(desk->program.run, RunState::Running);
  std::filesystem::create_directory(folder);
  ExpectNextSave("with its folder again");
}

TEST_P(CutShort, IntoAReadOnlyFolderIsToldAndKeepsTheOld) {
  std::filesystem::permissions(home.path(), std::filesystem::perms(0755));
  std::filesystem::permissions(file, std::filesystem::perms(0666));
  std::filesystem::permissions(folder, std::filesystem::perms(0555));
  ASSERT_TRUE(::geteuid() != 0 || ::chown(file.c_str(), 65534, 65534) == 0);
  {
    const AsNobody nobody;
    Save(file);
  }
  const std::string out = desk->TakeOut();
  EXPECT_NE(out.find(IsProject() ? "stored. 70" : "stored. Permission denied"), std::string::npos) << out;
  ExpectWhole(false, "read only");
  EXPECT_TRUE(Litter().empty());
  std::filesystem::permissions(folder, std::filesystem::perms(0755));
  ExpectNextSave("with its rights again");
}

TEST_P(CutShort, IntoADeviceThatIsAlwaysFullIsTold) {
  const std::filesystem::path full = folder / ("full-" + std::string(GetParam().file));
  std::filesystem::create_symlink("/dev/full", full);
  desk->state.ProjectPath = full.string();
  Save(full);
  const std::string out = desk->TakeOut();
  EXPECT_NE(out.find(IsProject() ? "stored. 75" : "stored. Path/File access error"), std::string::npos) << out;
  EXPECT_TRUE(std::filesystem::is_character_file(full));  // no file has taken its place
}

// A killed save may have been one of another program that is still at it: only what is old is abandoned.
TEST_P(CutShort, WhatAKilledSaveLeftGoesWithALaterSave) {
  ASSERT_EQ(WEXITSTATUS(SaveInAChild([] { Expect({4, Mishap::Killed}); })), kKilledStatus);
  ASSERT_EQ(WEXITSTATUS(SaveInAChild([] { Expect({4, Mishap::Killed}); })), kKilledStatus);
  ASSERT_EQ(Litter().size(), 2U);
  const std::filesystem::path older = Litter().front();
  const std::filesystem::path younger = Litter().back();
  const auto now = std::filesystem::file_time_type::clock::now();
  std::filesystem::last_write_time(older, now - std::chrono::minutes(61));
  std::filesystem::last_write_time(younger, now - std::chrono::minutes(59));
  // Nothing else goes, however much it looks like one.
  const std::vector<std::string> others{"notes.pro", ".zefirondo-1234567", ".zefirondo-12345", "zefirondo-123456"};
  for (const std::string& name : others) {
    std::filesystem::last_write_time(home.Write("home/" + name, "x"), now - std::chrono::hours(1000));
  }
  std::filesystem::create_directory(folder / ".zefirondo-folder");
  std::filesystem::last_write_time(folder / ".zefirondo-folder", now - std::chrono::hours(1000));
  ExpectNextSave("beside litter");
  EXPECT_FALSE(std::filesystem::exists(older));
  EXPECT_TRUE(std::filesystem::exists(younger));
  for (const std::string& name : others) EXPECT_TRUE(std::filesystem::exists(folder / name)) << name;
  EXPECT_TRUE(std::filesystem::exists(folder / ".zefirondo-folder"));
}

INSTANTIATE_TEST_SUITE_P(Of, CutShort, testing::ValuesIn(kKinds),
                         [](const auto& kind) { return std::string(kind.param.name); });

}  // namespace
}  // namespace zefirondo
