// The free-form reader of every file of curves: numbers two at a time, without regard to lines.
//
// A field ends at a comma, a blank, a tab or a line end; blanks and tabs before it are skipped, and so are those
// behind it, with the one comma or line end that may follow them. A semicolon is no separator. Text that does not
// read as a number reads as 0, and only the point is a decimal sign.
#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/run_time_error.h"

namespace zefirondo {

struct Row {
  double first = 0.0;  // mostly a frequency in Hz
  double second = 0.0;
};

/// No measurement has more rows: a reading that would keep more of them fails with "Out of memory", so that a file
/// of any size is met in bounded memory.
inline constexpr std::size_t kMostRows = (std::size_t{1} << 22U) - 1;

/// Throws `RunTimeError` (out of memory) when there is no room for one more behind so many rows.
inline void RequireRoom(std::size_t rows) {
  if (rows >= kMostRows) throw RunTimeError(ErrorNumber::OutOfMemory);
}

/// Reads a file of any size in bounded memory. Throws `RunTimeError`: what opening a file may throw, and the end
/// of the file where a field is asked for behind it.
class RowReader {
 public:
  explicit RowReader(const std::filesystem::path& path);

  /// The length of the file in bytes.
  [[nodiscard]] double length() const { return length_; }

  /// Whether nothing stands behind the field that was read last.
  [[nodiscard]] bool AtEnd();

  /// A whole line as text, at most its first kilobytes.
  std::string ReadLine();

  double ReadNumberField();
  Row ReadRow();

 private:
  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };

  bool Refill();
  [[nodiscard]] char Peek() const { return buffer_[at_]; }
  void SkipBlanks();
  void SkipSeparator();
  template <class Ends>
  std::string ReadUntil(Ends ends);

  std::unique_ptr<std::FILE, Closer> file_;
  double length_ = 0.0;
  std::vector<char> buffer_;
  std::size_t at_ = 0;
  std::size_t size_ = 0;
  bool exhausted_ = false;  // the file has nothing more for the buffer
};

}  // namespace zefirondo
