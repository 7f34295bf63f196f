// Run-time failures: one type with the classic number and the text that messages show.
#pragma once

#include <stdexcept>
#include <string>

namespace zefirondo {

/// The numbers that messages and `LastSaveError` show. They are the classic ones of this kind of program.
enum class ErrorNumber : int {
  InvalidArgument = 5,
  Overflow = 6,
  OutOfMemory = 7,
  IndexOutOfRange = 9,
  DivisionByZero = 11,
  FileNotFound = 53,
  DeviceError = 57,
  DiskFull = 61,
  EndOfFile = 62,
  PermissionDenied = 70,
  PathAccess = 75,
  PathNotFound = 76,
  DialogCancelled = 32755,
};

/// A failure of the arithmetic, of an index or of a file. A routine that owns a message for it catches it;
/// otherwise it reaches the place that runs events, which shows its text and ends the program.
class RunTimeError : public std::exception {
 public:
  explicit RunTimeError(ErrorNumber number) : number_(number) {}

  [[nodiscard]] int number() const { return static_cast<int>(number_); }
  [[nodiscard]] const char* what() const noexcept override;

 private:
  ErrorNumber number_;
};

/// The logarithm of a value that is not positive. It is no `RunTimeError`, because no routine may catch it:
/// it always ends the program, with a message of its own.
class LogarithmError : public std::exception {
 public:
  [[nodiscard]] const char* what() const noexcept override { return "Logarithm of a value that is not positive"; }
};

}  // namespace zefirondo
