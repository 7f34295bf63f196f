// The calls to the system that a save makes, one by one, and what may befall it at each of them.
//
// The linker leads these calls of the program through wrappers (see CMakeLists.txt), which count them.
#pragma once

#include <filesystem>
#include <string>

namespace zefirondo {

enum class Mishap {
  None,
  Killed,         // the process ends before the call
  KilledHalfway,  // the same, but a write has written half of its bytes
  Refused,        // the call fails with `error`
  FolderGone,     // the folder goes away before the call, and the save goes on
};

struct SavePoint {
  int at = 0;  // the call that the mishap comes with, from 1 on; 0 for none
  Mishap mishap = Mishap::None;
  int error = 0;
  std::filesystem::path folder, elsewhere;  // of `FolderGone`
};

/// Sets the mishap of the next save, and forgets the calls made so far.
void Expect(const SavePoint& point);

/// The names of the calls since then, each with a blank behind it.
[[nodiscard]] const std::string& CallsMade();

/// How a killed process ends.
inline constexpr int kKilledStatus = 77;

}  // namespace zefirondo
