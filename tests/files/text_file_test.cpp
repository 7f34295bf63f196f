// Reading text files by lines, and writing them whole or not at all.
#include "files/text_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <functional>

#include "core/run_time_error.h"
#include "support/desk.h"
#include "support/nobody.h"

namespace zefirondo {
namespace {

int FailureOf(const std::function<void()>& act) {
  try {
    act();
  } catch (const RunTimeError& error) {
    return error.number();
  }
  return 0;
}

std::vector<std::string> NamesIn(const std::filesystem::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) names.push_back(entry.path().filename());
  return names;
}

// ---- reading ----

std::vector<std::string> LinesOf(const std::filesystem::path& file) {
  std::vector<std::string> lines;
  LineReader reader(file);
  while (true) {
    try {
      lines.push_back(reader.ReadLine());
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.number(), 62);
      return lines;
    }
  }
}

TEST(LineReader, EndsALineAtEveryKindOfEnd) {
  const TemporaryFolder folder;
  EXPECT_EQ(LinesOf(folder.Write("a", "1\r\n2\n3\r4")), (std::vector<std::string>{"1", "2", "3", "4"}));
  EXPECT_EQ(LinesOf(folder.Write("b", "1\n\r\n\r2\r")), (std::vector<std::string>{"1", "", "", "2"}));
  EXPECT_EQ(LinesOf(folder.Write("c", "\n\n")), (std::vector<std::string>{"", ""}));
  EXPECT_TRUE(LinesOf(folder.Write("d", "")).empty());
}

TEST(LineReader, KeepsEveryByte) {
  const TemporaryFolder folder;
  const std::string line("\0\x1A\xFF\x80 a", 6);
  EXPECT_EQ(LinesOf(folder.Write("a", line + "\r\n" + line)), (std::vector<std::string>{line, line}));
}

TEST(LineReader, JoinsWhatStandsInTwoBuffers) {
  // The buffer holds 65536 bytes: lines whose end falls before, on and behind its edge.
  const TemporaryFolder folder;
  for (const std::size_t length : {65533U, 65534U, 65535U, 65536U, 65537U, 200000U}) {
    const std::string line(length, 'x');
    EXPECT_EQ(LinesOf(folder.Write("a", line + "\r\nb\r\n")), (std::vector<std::string>{line, "b"})) << length;
    EXPECT_EQ(LinesOf(folder.Write("a", line + "\r")), (std::vector<std::string>{line})) << length;
  }
}

TEST(LineReader, KeepsTheFirstMegabyteOfALine) {
  const TemporaryFolder folder;
  const std::string kept(1 << 20, 'x');
  EXPECT_EQ(LinesOf(folder.Write("a", kept + std::string(1500000, 'y') + "\r\nb\n" + kept + "z")),
            (std::vector<std::string>{kept, "b", kept}));
}

TEST(LineReader, TellsWhyAFileCannotBeOpened) {
  const TemporaryFolder folder;
  const std::filesystem::path plain = folder.Write("plain", "x");
  std::filesystem::create_directory(folder.path() / "folder");
  ASSERT_EQ(::mkfifo((folder.path() / "pipe").c_str(), 0600), 0);
  std::filesystem::create_symlink("circle", folder.path() / "circle");
  struct Row {
    std::filesystem::path path;
    int number;
  };
  const Row rows[]{{folder.path() / "missing", 53},
                   {folder.path() / "missing" / "file", 76},
                   {plain / "file", 76},
                   {folder.path() / "folder", 75},
                   {folder.path() / "pipe", 75},
                   {folder.path() / "circle", 75},
                   {"/dev/null", 75},
                   {folder.path() / std::string(300, 'n'), 75},
                   {"zefirondo-test-missing", 53},
                   {"", 53}};
  for (const Row& row : rows) EXPECT_EQ(FailureOf([&] { LineReader reader(row.path); }), row.number) << row.path;
}

// ---- writing ----

TEST(WriteWholeFile, WritesANewFile) {
  const TemporaryFolder folder;
  WriteWholeFile(folder.path() / "new", std::string_view("a\r\n\0b", 5));
  EXPECT_EQ(ReadFileBytes(folder.path() / "new"), std::string("a\r\n\0b", 5));
  EXPECT_EQ(NamesIn(folder.path()), std::vector<std::string>{"new"});
}

TEST(WriteWholeFile, ReplacesALongerFile) {
  const TemporaryFolder folder;
  const std::filesystem::path file = folder.Write("file", std::string(100000, 'x'));
  WriteWholeFile(file, "short");
  EXPECT_EQ(ReadFileBytes(file), "short");
  EXPECT_EQ(NamesIn(folder.path()), std::vector<std::string>{"file"});
}

TEST(WriteWholeFile, PutsANewFileInThePlaceOfTheOld) {
  // A reader that has the old file open goes on reading the old one: nothing is written over.
  const TemporaryFolder folder;
  const std::filesystem::path file = folder.Write("file", "old text");
  LineReader reader(file);
  struct stat before {};
  ASSERT_EQ(::stat(file.c_str(), &before), 0);
  WriteWholeFile(file, "new");
  struct stat after {};
  ASSERT_EQ(::stat(file.c_str(), &after), 0);
  EXPECT_NE(before.st_ino, after.st_ino);
  EXPECT_EQ(reader.ReadLine(), "old text");
}

TEST(WriteWholeFile, KeepsTheModeOfTheOldFile) {
  const TemporaryFolder folder;
  const std::filesystem::path file = folder.Write("file", "old");
  ASSERT_EQ(::chmod(file.c_str(), 0640), 0);
  WriteWholeFile(file, "new");
  struct stat info {};
  ASSERT_EQ(::stat(file.c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 0777U, 0640U);
}

TEST(WriteWholeFile, GivesANewFileTheUsualMode) {
  const TemporaryFolder folder;
  const mode_t mask = ::umask(0027);
  WriteWholeFile(folder.path() / "new", "x");
  ::umask(mask);
  struct stat info {};
  ASSERT_EQ(::stat((folder.path() / "new").c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 0777U, 0640U);
}

TEST(WriteWholeFile, TakesTheLongestName) {
  const TemporaryFolder folder;
  const std::string name(255, 'n');
  WriteWholeFile(folder.path() / name, "x");
  EXPECT_EQ(NamesIn(folder.path()), std::vector<std::string>{name});
}

TEST(WriteWholeFile, FollowsALinkToItsFile) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.path() / "elsewhere");
  const std::filesystem::path file = folder.Write("elsewhere/file", "old");
  std::filesystem::create_symlink("elsewhere/file", folder.path() / "link");
  std::filesystem::create_symlink("link", folder.path() / "second");
  WriteWholeFile(folder.path() / "second", "new");
  EXPECT_TRUE(std::filesystem::is_symlink(folder.path() / "second"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder.path() / "link"));
  EXPECT_EQ(ReadFileBytes(file), "new");
  EXPECT_EQ(NamesIn(folder.path() / "elsewhere"), std::vector<std::string>{"file"});
}

TEST(WriteWholeFile, FollowsALinkToAFileThatIsNotThereYet) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.path() / "elsewhere");
  std::filesystem::create_symlink("elsewhere/file", folder.path() / "link");
  WriteWholeFile(folder.path() / "link", "new");
  EXPECT_TRUE(std::filesystem::is_symlink(folder.path() / "link"));
  EXPECT_EQ(ReadFileBytes(folder.path() / "elsewhere" / "file"), "new");
}

TEST(WriteWholeFile, RefusesWhatIsNoFile) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.path() / "folder");
  ASSERT_EQ(::mkfifo((folder.path() / "pipe").c_str(), 0600), 0);
  std::filesystem::create_symlink("folder", folder.path() / "link");
  std::filesystem::create_symlink("circle", folder.path() / "circle");
  for (const char* const name : {"folder", "pipe", "link", "circle"}) {
    EXPECT_EQ(FailureOf([&] { WriteWholeFile(folder.path() / name, "x"); }), 75) << name;
  }
  EXPECT_EQ(FailureOf([] { WriteWholeFile("/dev/null", "x"); }), 75);
  EXPECT_EQ(FailureOf([] { WriteWholeFile("", "x"); }), 75);
  EXPECT_EQ(NamesIn(folder.path()).size(), 4U);
}

TEST(WriteWholeFile, NeedsItsFolder) {
  const TemporaryFolder folder;
  const std::filesystem::path plain = folder.Write("plain", "x");
  EXPECT_EQ(FailureOf([&] { WriteWholeFile(folder.path() / "missing" / "file", "x"); }), 76);
  EXPECT_EQ(FailureOf([&] { WriteWholeFile(plain / "file", "x"); }), 76);
  EXPECT_EQ(NamesIn(folder.path()), std::vector<std::string>{"plain"});
}

TEST(WriteWholeFile, CleansUpWhenItCannotTakeThePlace) {
  // The name is too long for the rename, and not for the file beside it.
  const TemporaryFolder folder;
  EXPECT_EQ(FailureOf([&] { WriteWholeFile(folder.path() / std::string(256, 'n'), "x"); }), 75);
  EXPECT_TRUE(NamesIn(folder.path()).empty());
}

TEST(WriteWholeFile, NeedsPermission) {
  const TemporaryFolder folder;
  std::filesystem::permissions(folder.path(), std::filesystem::perms(0777));
  const std::filesystem::path file = folder.Write("file", "old");
  std::filesystem::create_directory(folder.path() / "closed");
  std::filesystem::permissions(file, std::filesystem::perms(0444));
  std::filesystem::permissions(folder.path() / "closed", std::filesystem::perms(0555));
  int read_only_file = 0;
  int read_only_folder = 0;
  {
    const AsNobody nobody;
    read_only_file = FailureOf([&] { WriteWholeFile(file, "new"); });
    read_only_folder = FailureOf([&] { WriteWholeFile(folder.path() / "closed" / "file", "new"); });
  }
  EXPECT_EQ(read_only_file, 70);
  EXPECT_EQ(read_only_folder, 70);
  EXPECT_EQ(ReadFileBytes(file), "old");
  EXPECT_EQ(NamesIn(folder.path()).size(), 2U);
  EXPECT_TRUE(NamesIn(folder.path() / "closed").empty());
}

/// No file may grow beyond some bytes, as on a disk without room.
class NoRoom {
 public:
  explicit NoRoom(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  NoRoom(const NoRoom&) = delete;
  NoRoom& operator=(const NoRoom&) = delete;
  ~NoRoom() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

 private:
  rlimit before_{};
  void (*handler_)(int);
};

TEST(WriteWholeFile, LeavesTheOldFileWholeWhenThereIsNoRoom) {
  const TemporaryFolder folder;
  const std::filesystem::path file = folder.Write("file", "the old text");
  int number = 0;
  {
    const NoRoom no_room(100);
    number = FailureOf([&] { WriteWholeFile(file, std::string(1000, 'n')); });
  }
  EXPECT_EQ(number, 61);
  EXPECT_EQ(ReadFileBytes(file), "the old text");
  EXPECT_EQ(NamesIn(folder.path()), std::vector<std::string>{"file"});
}

}  // namespace
}  // namespace zefirondo
