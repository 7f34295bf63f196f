// Starts zefirondo-run as its users do, and takes what it printed.
#pragma once

#include <sys/wait.h>

#include <cstdlib>
#include <string>

#include "support/desk.h"

namespace zefirondo {

struct Finished {
  int status = -1;
  std::string out;
  std::string error;
};

/// Runs `zefirondo-run` with these words (as a shell takes them) in a folder, with a text on its standard input and
/// with changes to its environment ("NAME=VALUE ...").
inline Finished RunProcess(const TemporaryFolder& folder, const std::string& words, const std::string& input = {},
                           const std::string& environment = {}) {
  static_cast<void>(folder.Write(".in", input));
  const std::string command = "cd '" + folder.path().string() + "' && " + environment + " '" ZEFIRONDO_RUN "' " +
                              words + " <.in >.out 2>.error";
  const int raw = std::system(command.c_str());
  Finished finished;
  if (WIFEXITED(raw)) finished.status = WEXITSTATUS(raw);
  finished.out = ReadFileBytes(folder.path() / ".out");
  finished.error = ReadFileBytes(folder.path() / ".error");
  return finished;
}

}  // namespace zefirondo
