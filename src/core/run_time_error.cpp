#include "core/run_time_error.h"

namespace zefirondo {

const char* RunTimeError::what() const noexcept {
  switch (number_) {
    case ErrorNumber::InvalidArgument: return "Invalid procedure call or argument";
    case ErrorNumber::Overflow: return "Overflow";
    case ErrorNumber::OutOfMemory: return "Out of memory";
    case ErrorNumber::IndexOutOfRange: return "Subscript out of range";
    case ErrorNumber::DivisionByZero: return "Division by zero";
    case ErrorNumber::FileNotFound: return "File not found";
    case ErrorNumber::DeviceError: return "Device I/O error";
    case ErrorNumber::DiskFull: return "Disk full";
    case ErrorNumber::EndOfFile: return "Input past end of file";
    case ErrorNumber::PermissionDenied: return "Permission denied";
    case ErrorNumber::PathAccess: return "Path/File access error";
    case ErrorNumber::PathNotFound: return "Path not found";
    case ErrorNumber::DialogCancelled: return "Cancel was selected";
  }
  return "Unknown error";
}

}  // namespace zefirondo
