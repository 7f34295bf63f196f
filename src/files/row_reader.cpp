#include "files/row_reader.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

#include "core/numbers.h"
#include "core/run_time_error.h"
#include "files/text_file.h"

namespace zefirondo {
namespace {

constexpr std::size_t kBufferSize = 1U << 16U;
constexpr std::size_t kLongestField = 1U << 12U;  // characters looked at; no number needs more
constexpr std::size_t kAhead = 64;                // a usual field and its separator fit into so much

bool IsBlank(char c) { return c == ' ' || c == '\t'; }
bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }
bool EndsField(char c) { return c == ',' || IsBlank(c) || IsLineEnd(c); }

double FileLength(std::FILE* file) {
  if (std::fseek(file, 0, SEEK_END) != 0) return 0.0;
  const long length = std::ftell(file);
  std::rewind(file);
  return static_cast<double>(length);
}

}  // namespace

RowReader::RowReader(const std::filesystem::path& path) : file_(OpenRegularFile(path)), buffer_(kBufferSize) {
  std::setvbuf(file_.get(), nullptr, _IONBF, 0);  // the buffer here is the only one
  length_ = FileLength(file_.get());
}

/// Moves what is left to the front of the buffer and reads on behind it. False when nothing came.
bool RowReader::Refill() {
  if (exhausted_) return false;
  std::copy(buffer_.begin() + static_cast<std::ptrdiff_t>(at_), buffer_.begin() + static_cast<std::ptrdiff_t>(size_),
            buffer_.begin());
  size_ -= at_;
  at_ = 0;
  const std::size_t wanted = buffer_.size() - size_;
  const std::size_t got = std::fread(buffer_.data() + size_, 1, wanted, file_.get());
  if (got < wanted && std::ferror(file_.get()) != 0) throw RunTimeError(ErrorNumber::DeviceError);
  exhausted_ = got < wanted;
  size_ += got;
  return got > 0;
}

bool RowReader::AtEnd() { return at_ == size_ && !Refill(); }

/// The characters up to the next one that ends them, or at most the first kilobytes of them.
template <class Ends>
std::string RowReader::ReadUntil(Ends ends) {
  std::string text;
  while (!AtEnd()) {
    const auto begin = buffer_.begin() + static_cast<std::ptrdiff_t>(at_);
    const auto end = buffer_.begin() + static_cast<std::ptrdiff_t>(size_);
    const auto stop = std::find_if(begin, end, ends);
    const std::size_t count = static_cast<std::size_t>(stop - begin);
    text.append(begin, begin + static_cast<std::ptrdiff_t>(std::min(count, kLongestField - text.size())));
    at_ += count;
    if (stop != end) break;
  }
  return text;
}

std::string RowReader::ReadLine() {
  if (AtEnd()) throw RunTimeError(ErrorNumber::EndOfFile);
  std::string line = ReadUntil(IsLineEnd);
  if (AtEnd()) return line;
  const char c = buffer_[at_++];
  if (c == '\r' && !AtEnd() && Peek() == '\n') ++at_;
  return line;
}

void RowReader::SkipBlanks() {
  do {
    while (at_ < size_ && IsBlank(Peek())) ++at_;
  } while (at_ == size_ && Refill());
}

/// Goes past what ended a field.
void RowReader::SkipSeparator() {
  SkipBlanks();
  if (at_ == size_ || !EndsField(Peek())) return;
  const char c = buffer_[at_++];
  if (c == '\r' && !AtEnd() && Peek() == '\n') ++at_;
}

double RowReader::ReadNumberField() {
  SkipBlanks();
  if (AtEnd()) throw RunTimeError(ErrorNumber::EndOfFile);
  if (size_ - at_ < kAhead) Refill();
  double value = 0.0;
  const char* const begin = buffer_.data() + at_;
  const char* const end = buffer_.data() + size_;
  const auto [stop, error] = std::from_chars(begin, end, value);
  const bool usual = error == std::errc() && stop != end && EndsField(*stop) && std::isfinite(value);
  if (usual) {
    at_ += static_cast<std::size_t>(stop - begin);
  } else {
    value = ReadNumber(ReadUntil(EndsField));  // of any length and any characters
  }
  SkipSeparator();
  return value;
}

Row RowReader::ReadRow() {
  Row row;
  row.first = ReadNumberField();
  row.second = ReadNumberField();
  return row;
}

}  // namespace zefirondo
