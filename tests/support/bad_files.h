// Files that no reader can use, of every kind that a person may choose by mistake.
#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "support/desk.h"

namespace zefirondo {

/// A text as an editor saves it in two bytes a character.
inline std::string InUtf16(const std::string& text) {
  std::string wide = "\xFF\xFE";
  for (const char c : text) wide += {c, '\0'};
  return wide;
}

inline std::filesystem::path MakeFolder(const TemporaryFolder& folder) {
  const std::filesystem::path path = folder.path() / "folder.any";
  std::filesystem::create_directory(path);
  return path;
}

inline std::filesystem::path MakePipe(const TemporaryFolder& folder) {
  const std::filesystem::path path = folder.path() / "pipe.any";
  ::mkfifo(path.c_str(), 0600);
  return path;
}

inline std::filesystem::path MakeUnreadable(const TemporaryFolder& folder, const std::string& bytes) {
  std::filesystem::permissions(folder.path(), std::filesystem::perms(0777));
  std::filesystem::path path = folder.Write("unreadable.any", bytes);
  std::filesystem::permissions(path, std::filesystem::perms(0));
  return path;
}

}  // namespace zefirondo
