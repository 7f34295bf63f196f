#include "fire/save_points.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

// NOLINTBEGIN(bugprone-reserved-identifier): the linker's own names for what it wraps.
extern "C" {
int __real_mkstemp(char* pattern);
ssize_t __real_write(int descriptor, const void* bytes, size_t count);
int __real_fchmod(int descriptor, mode_t mode);
int __real_fsync(int descriptor);
int __real_close(int descriptor);
int __real_rename(const char* from, const char* to);
int __wrap_mkstemp(char* pattern);
ssize_t __wrap_write(int descriptor, const void* bytes, size_t count);
int __wrap_fchmod(int descriptor, mode_t mode);
int __wrap_fsync(int descriptor);
int __wrap_close(int descriptor);
int __wrap_rename(const char* from, const char* to);
}

namespace zefirondo {
namespace {

SavePoint g_point;
int g_count = 0;
std::string g_calls;

/// Counts a call. True when it has to fail, with its error set.
bool Passes(const char* name) {
  ++g_count;
  g_calls.append(name).append(" ");
  if (g_count != g_point.at) return false;
  std::error_code ignored;
  switch (g_point.mishap) {
    case Mishap::Killed:
    case Mishap::KilledHalfway: ::_exit(kKilledStatus);
    case Mishap::Refused: errno = g_point.error; return true;
    case Mishap::FolderGone: std::filesystem::rename(g_point.folder, g_point.elsewhere, ignored); return false;
    case Mishap::None: break;
  }
  return false;
}

}  // namespace

void Expect(const SavePoint& point) {
  g_point = point;
  g_count = 0;
  g_calls.clear();
}

const std::string& CallsMade() { return g_calls; }

}  // namespace zefirondo

using zefirondo::Passes;

int __wrap_mkstemp(char* pattern) { return Passes("mkstemp") ? -1 : __real_mkstemp(pattern); }

ssize_t __wrap_write(int descriptor, const void* bytes, size_t count) {
  using namespace zefirondo;
  const bool halfway = g_point.mishap == Mishap::KilledHalfway && g_count + 1 == g_point.at;
  if (halfway && __real_write(descriptor, bytes, count / 2) < 0) return -1;
  return Passes("write") ? -1 : __real_write(descriptor, bytes, count);
}

int __wrap_fchmod(int descriptor, mode_t mode) { return Passes("fchmod") ? -1 : __real_fchmod(descriptor, mode); }
int __wrap_fsync(int descriptor) { return Passes("fsync") ? -1 : __real_fsync(descriptor); }

/// A close that fails has closed.
int __wrap_close(int descriptor) {
  const bool fails = Passes("close");
  const int error = errno;
  const int result = __real_close(descriptor);
  if (!fails) return result;
  errno = error;
  return -1;
}

int __wrap_rename(const char* from, const char* to) { return Passes("rename") ? -1 : __real_rename(from, to); }
// NOLINTEND(bugprone-reserved-identifier)
