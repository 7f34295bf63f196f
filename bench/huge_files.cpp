// Reads files of hundreds of megabytes by every road, each in a process of its own with little memory, and prints
// what was said, how long it took, and the peak of the memory. Fails where the message is another one, or where the
// peak is above the bound.
//
// usage: huge_files [MEGABYTES]
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "support/desk.h"

namespace zefirondo {
namespace {

constexpr rlim_t kAddressSpace = rlim_t{1} << 30U;
constexpr long kMostKilobytes = 512L * 1024;

void AtImpedance(Desk& desk) {
  desk.BeginImpedance();
  desk.sheet.mnuimporta.enabled = true;
  desk.state.txtrvc = "5.8";
}
void AtData(Desk& desk) { desk.BeginImpedance(); }
void AtFrame(Desk& desk) { desk.Begin(); }
void AtBoxGraph(Desk& desk) { desk.DesignVented(); }
void AtLevelGraph(Desk& desk) {
  desk.DesignVented();
  desk.Choose("frmgrafcassa.mnuspl");
}
void AtOffsetTool(Desk& desk) {
  desk.Begin();
  desk.Choose("mdithsm.mnudelay");
}

struct HugeFile {
  const char* what;
  void (*prepare)(Desk&);
  const char* entry;
  const char* heading;
  const char* block;  // the file is full of these
  const char* told;
};

constexpr const char* kRow = "123.4567  12.345678\r\n";

const HugeFile kFiles[] = {
    {"measurement of rows", AtImpedance, "mnuimporta", "heading\r\n", kRow, "Out of memory"},
    {"measurement of rows below 1 Hz", AtImpedance, "mnuimporta", "heading\r\n", "0.5  12.345678\r\n",
     "Input past end of file"},
    {"measurement in one line", AtImpedance, "mnuimporta", "", "xxxxxxxxxxxxxxxx", "Input past end of file"},
    {"measurement in one field", AtImpedance, "mnuimporta", "heading\r\n", "7777777777777777",
     "Input past end of file"},
    {"measurement of blanks", AtImpedance, "mnuimporta", "heading\r\n", "                ", "Input past end of file"},
    {"capacitor, rows", AtFrame, "mdithsm.mnucapa", "a b\r\n", kRow, "Out of memory"},
    {"box response of rows", AtBoxGraph, "frmgrafcassa.mnuimportaOverlay", "heading\r\n", kRow, "Out of memory"},
    {"level response of rows", AtLevelGraph, "frmspl.mnuimportaOverlay", "heading\r\n", kRow, "Subscript out of range"},
    {"trace of rows", AtBoxGraph, "frmgrafcassa.mnuimportatracciato", " 255 \r\n", kRow, "Out of memory"},
    {"phase trace of rows", AtOffsetTool, "frmFaseSh.mnuimportafase", " 255 \r\n", kRow, "Out of memory"},
    {"driver data in one line", AtData, "mnuimportadati", "", "xxxxxxxxxxxxxxxx", "Input past end of file"},
};

void WriteHuge(const std::filesystem::path& path, const HugeFile& file, std::size_t bytes) {
  std::string chunk;
  while (chunk.size() < (1U << 20U)) chunk += file.block;
  std::ofstream out(path, std::ios::binary);
  out << file.heading;
  for (std::size_t written = 0; written < bytes; written += chunk.size()) out << chunk;
}

/// Whether the import told what it had to.
bool Read(const HugeFile& file, const std::filesystem::path& path) {
  const rlimit limit{kAddressSpace, kAddressSpace};
  ::setrlimit(RLIMIT_AS, &limit);
  Desk desk;
  file.prepare(desk);
  desk.TakeOut();
  desk.platform.files.emplace_back(path);
  desk.Choose(file.entry);
  const bool told = desk.out.find(file.told) != std::string::npos;
  if (!told) std::fputs(desk.out.c_str(), stderr);
  return told && desk.program.run == RunState::Running;
}

bool Measure(const HugeFile& file, std::size_t megabytes) {
  const TemporaryFolder folder;
  const std::filesystem::path path = folder.path() / "huge.any";
  WriteHuge(path, file, megabytes << 20U);
  const auto begin = std::chrono::steady_clock::now();
  const pid_t child = ::fork();
  if (child == 0) ::_exit(Read(file, path) ? 0 : 1);
  int status = 0;
  rusage usage{};
  ::wait4(child, &status, 0, &usage);
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - begin;
  const bool told = WIFEXITED(status) && WEXITSTATUS(status) == 0;
  const bool small = usage.ru_maxrss <= kMostKilobytes;
  std::printf("%-32s %6zu MB %7.2f s %7ld MB at most  %s%s\n", file.what, megabytes, seconds.count(),
              usage.ru_maxrss / 1024, told ? file.told : "ANOTHER MESSAGE", small ? "" : "  TOO MUCH");
  std::fflush(stdout);
  return told && small;
}

}  // namespace
}  // namespace zefirondo

int main(int count, char** words) {
  const std::size_t megabytes = count > 1 ? std::strtoul(words[1], nullptr, 10) : 300;
  bool all = true;
  for (const zefirondo::HugeFile& file : zefirondo::kFiles) all = zefirondo::Measure(file, megabytes) && all;
  return all ? 0 : 1;
}
