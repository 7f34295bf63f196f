// What the fuzz targets share: the input as a file, and a program without a screen that opens it.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "core/acts.h"
#include "core/program.h"
#include "program/assembly.h"
#include "runner/queued_platform.h"

namespace zefirondo {

/// A file in memory with these bytes, under a name with an extension: a dialog would add one to a bare name.
class FuzzFile {
 public:
  FuzzFile(const std::uint8_t* data, std::size_t size) : descriptor_(::memfd_create("input", 0)) {
    if (descriptor_ < 0) std::abort();
    while (size > 0) {
      const ssize_t written = ::write(descriptor_, data, size);
      if (written <= 0) std::abort();
      data += written;
      size -= static_cast<std::size_t>(written);
    }
    ::unlink(path_.c_str());
    if (::symlink(("/proc/self/fd/" + std::to_string(descriptor_)).c_str(), path_.c_str()) != 0) std::abort();
  }
  FuzzFile(const FuzzFile&) = delete;
  FuzzFile& operator=(const FuzzFile&) = delete;
  ~FuzzFile() {
    ::unlink(path_.c_str());
    ::close(descriptor_);
  }

  [[nodiscard]] const std::string& path() const { return path_; }

 private:
  int descriptor_;
  std::string path_ = "/tmp/zefirondo-fuzz-" + std::to_string(::getpid()) + ".any";
};

struct FuzzDesk {
  std::string out;
  QueuedPlatform platform{out, {20, 11, 2026}, 1920};
  Program program{platform, Language::English, "/nonexistent"};

  FuzzDesk() { ConnectProgram(program); }

  /// An import that did not find its file has tested nothing.
  void ExpectFound() const {
    if (out.find("File not found") != std::string::npos) std::abort();
  }
};

}  // namespace zefirondo
