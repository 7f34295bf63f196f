#include "files/text_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <system_error>

#include "core/run_time_error.h"

namespace zefirondo {
namespace {

constexpr std::size_t kBufferSize = 1U << 16U;
constexpr std::size_t kLongestLine = 1U << 20U;  // what follows in a line is passed over
constexpr int kMostLinks = 40;                   // as many as the system follows itself
constexpr std::string_view kTemporaryName = ".zefirondo-XXXXXX";
constexpr std::string_view kTemporaryPrefix = kTemporaryName.substr(0, kTemporaryName.size() - 6);
constexpr std::chrono::hours kAbandonedAfter{1};  // no save takes so long: its program was killed

struct ErrnoRow {
  int error;
  ErrorNumber number;
};

constexpr std::array kErrors = std::to_array<ErrnoRow>({
    {ENOENT, ErrorNumber::PathNotFound},
    {ENOTDIR, ErrorNumber::PathNotFound},
    {EACCES, ErrorNumber::PermissionDenied},
    {EPERM, ErrorNumber::PermissionDenied},
    {EROFS, ErrorNumber::PermissionDenied},
    {ENOSPC, ErrorNumber::DiskFull},
    {EDQUOT, ErrorNumber::DiskFull},
    {EFBIG, ErrorNumber::DiskFull},
    {EIO, ErrorNumber::DeviceError},
    {ENOMEM, ErrorNumber::OutOfMemory},
});

[[noreturn]] void ThrowErrno(int error) {
  const auto row =
      std::find_if(kErrors.begin(), kErrors.end(), [&](const ErrnoRow& candidate) { return candidate.error == error; });
  throw RunTimeError(row != kErrors.end() ? row->number : ErrorNumber::PathAccess);
}

/// A file descriptor that is closed at the end, and a file that is removed unless it took its place.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::filesystem::path& target) {
    // A name of its own: one made from the target's could be too long for the folder.
    std::string pattern = (target.parent_path() / kTemporaryName).string();
    descriptor_ = ::mkstemp(pattern.data());
    if (descriptor_ < 0) ThrowErrno(errno);
    path_ = pattern;
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    if (descriptor_ >= 0) ::close(descriptor_);
    if (!placed_) ::unlink(path_.c_str());
  }

  void Write(std::string_view bytes) const {
    while (!bytes.empty()) {
      const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
      if (written < 0 && errno == EINTR) continue;
      if (written < 0) ThrowErrno(errno);
      bytes.remove_prefix(static_cast<std::size_t>(written));
    }
  }

  /// Gives the new file the mode of the one it replaces, or the usual one.
  void TakeMode(const std::filesystem::path& target) const {
    struct stat info {};
    mode_t mode = 0;
    if (::stat(target.c_str(), &info) == 0) {
      mode = info.st_mode & 07777U;
    } else {
      const mode_t mask = ::umask(0);
      ::umask(mask);
      mode = 0666U & ~mask;
    }
    static_cast<void>(::fchmod(descriptor_, mode));  // a file system without modes is no failure
  }

  void TakePlace(const std::filesystem::path& target) {
    if (::fsync(descriptor_) != 0) ThrowErrno(errno);
    const int descriptor = descriptor_;
    descriptor_ = -1;
    if (::close(descriptor) != 0) ThrowErrno(errno);
    if (::rename(path_.c_str(), target.c_str()) != 0) ThrowErrno(errno);
    placed_ = true;
  }

 private:
  int descriptor_ = -1;
  std::string path_;
  bool placed_ = false;
};

/// Makes the rename itself last; a file system that cannot do it has done its best.
void FlushFolder(const std::filesystem::path& folder) {
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  static_cast<void>(::fsync(descriptor));
  ::close(descriptor);
}

bool IsAbandoned(const std::filesystem::directory_entry& entry) {
  const std::string name = entry.path().filename().string();
  if (!name.starts_with(kTemporaryPrefix) || name.size() != kTemporaryName.size()) return false;
  std::error_code error;
  if (!std::filesystem::is_regular_file(entry.symlink_status(error))) return false;
  const auto written = entry.last_write_time(error);
  return !error && written < std::filesystem::file_time_type::clock::now() - kAbandonedAfter;
}

/// Removes what saves left in a folder that were killed on their way. They hinder nobody: a failure is ignored.
void RemoveAbandoned(const std::filesystem::path& folder) {
  std::error_code error;
  std::vector<std::filesystem::path> abandoned;
  for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    if (IsAbandoned(*entry)) abandoned.push_back(entry->path());
  }
  for (const std::filesystem::path& path : abandoned) std::filesystem::remove(path, error);
}

/// Follows a link to what it points to, which need not exist; a circle of links has no end.
std::filesystem::path FollowLinks(std::filesystem::path target) {
  std::error_code error;
  for (int link = 0; std::filesystem::is_symlink(target, error); ++link) {
    const std::filesystem::path next = std::filesystem::read_symlink(target, error);
    if (error || link == kMostLinks) throw RunTimeError(ErrorNumber::PathAccess);
    target = target.parent_path() / next;
  }
  return target;
}

/// The file that a path means: a link is followed, so that a save replaces what it points to.
std::filesystem::path ResolveTarget(const std::filesystem::path& path) {
  std::error_code error;
  const std::filesystem::path whole = std::filesystem::absolute(path, error);
  if (error) throw RunTimeError(ErrorNumber::PathAccess);
  std::filesystem::path target = FollowLinks(whole);
  if (!std::filesystem::exists(target, error)) return target;
  // What is no regular file (a folder, a device, a pipe) is never replaced.
  if (!std::filesystem::is_regular_file(target, error)) throw RunTimeError(ErrorNumber::PathAccess);
  if (::access(target.c_str(), W_OK) != 0) ThrowErrno(errno);
  return target;
}

}  // namespace

std::FILE* OpenRegularFile(const std::filesystem::path& path) {
  // Opened without waiting, so that a pipe cannot hold the program.
  const int descriptor = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (descriptor < 0) {
    const int failure = errno;
    std::error_code error;
    const std::filesystem::path folder = path.parent_path();
    if (failure == ENOENT && (folder.empty() || std::filesystem::is_directory(folder, error))) {
      throw RunTimeError(ErrorNumber::FileNotFound);
    }
    ThrowErrno(failure);
  }
  struct stat info {};
  if (::fstat(descriptor, &info) != 0 || !S_ISREG(info.st_mode)) {
    ::close(descriptor);
    throw RunTimeError(ErrorNumber::PathAccess);
  }
  std::FILE* const file = ::fdopen(descriptor, "rb");
  if (file == nullptr) {
    ::close(descriptor);
    throw RunTimeError(ErrorNumber::PathAccess);
  }
  return file;
}

LineReader::LineReader(const std::filesystem::path& path) : file_(OpenRegularFile(path)), buffer_(kBufferSize) {}

bool LineReader::Fill() {
  at_ = 0;
  size_ = std::fread(buffer_.data(), 1, buffer_.size(), file_.get());
  if (size_ == 0 && std::ferror(file_.get()) != 0) throw RunTimeError(ErrorNumber::DeviceError);
  return size_ > 0;
}

std::string LineReader::ReadLine() {
  if (at_ == size_ && !Fill()) throw RunTimeError(ErrorNumber::EndOfFile);
  std::string line;
  do {
    const char* const begin = buffer_.data() + at_;
    const char* const end = buffer_.data() + size_;
    const char* const stop = std::find_if(begin, end, [](char c) { return c == '\r' || c == '\n'; });
    line.append(begin, std::min(static_cast<std::size_t>(stop - begin), kLongestLine - line.size()));
    at_ = static_cast<std::size_t>(stop - buffer_.data());
    if (stop == end) continue;
    const bool carriage_return = *stop == '\r';
    ++at_;
    if (carriage_return && (at_ < size_ || Fill()) && buffer_[at_] == '\n') ++at_;
    return line;
  } while (Fill());
  return line;
}

void WriteWholeFile(const std::filesystem::path& path, std::string_view bytes) {
  if (path.empty()) throw RunTimeError(ErrorNumber::PathAccess);
  const std::filesystem::path target = ResolveTarget(path);
  TemporaryFile temporary(target);
  temporary.Write(bytes);
  temporary.TakeMode(target);
  temporary.TakePlace(target);
  FlushFolder(target.parent_path());
  RemoveAbandoned(target.parent_path());
}

}  // namespace zefirondo
