// One act of a person, as data: what it is done to and with, and how a script writes it.
#pragma once

#include <string>

#include "core/acts.h"
#include "fire/chance_platform.h"

namespace zefirondo {

enum class Act {
  Choose,
  Focus,
  Leave,
  Type,
  BackTab,
  Set,
  Pick,
  Click,
  DoubleClick,
  RightClick,
  Tab,
  Press,
  Release,
  Close,
  Clipboard,  // another program puts a text on it
  LoseFile,   // a file or folder of the program goes
};

struct Event {
  Act act = Act::Leave;
  Control* control = nullptr;
  Window* window = nullptr;
  std::string text;
  double x = 0.0, y = 0.0;
};

/// The line of a script that does the same; a comment for what a script cannot do.
[[nodiscard]] std::string ScriptLine(const Event& event);

void Perform(Program& program, ChancePlatform& platform, const Event& event);

}  // namespace zefirondo
