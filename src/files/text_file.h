// Reading the program's text files, and writing them so that nothing is lost on the way.
#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace zefirondo {

/// A text file opened for reading, a line at a time. It keeps no more of the file than a buffer and the line.
class LineReader {
 public:
  /// Throws `RunTimeError`: file not found, path not found, permission denied, or path access for what is no
  /// regular file.
  explicit LineReader(const std::filesystem::path& path);

  /// The next line in the bytes of the file, without its end: carriage return, line feed, or both.
  /// Throws `RunTimeError` (end of file) behind the last one.
  std::string ReadLine();

 private:
  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };

  bool Fill();

  std::unique_ptr<std::FILE, Closer> file_;
  std::vector<char> buffer_;
  std::size_t at_ = 0;
  std::size_t size_ = 0;
};

/// Opens a regular file for reading. Throws as `LineReader`.
[[nodiscard]] std::FILE* OpenRegularFile(const std::filesystem::path& path);

/// Writes a file whole or not at all: into a new file beside it, flushed, which then takes its place in one
/// rename. Throws `RunTimeError`; the earlier file is then as it was.
void WriteWholeFile(const std::filesystem::path& path, std::string_view bytes);

}  // namespace zefirondo
