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

  /// The next line in the bytes of the file, without its end: carriage return, line feed, or both. It
  /// keeps at most the first megabyte of a line.
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
/// rename. Throws `RunTimeError`; the earlier file is then as it was. A program that is killed on the way leaves
/// the new file beside the old one; a save that goes well removes such files once they are an hour old.
void WriteWholeFile(const std::filesystem::path& path, std::string_view bytes);

}  // namespace zefirondo
