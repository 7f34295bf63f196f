// Where a person's acts meet the program: one act at a time, and after each the screen shows the data.
#pragma once

#include <functional>

#include "core/program.h"

namespace zefirondo::screens {

class Stage {
 public:
  explicit Stage(Program& the_program) : program(the_program) {}

  Program& program;
  /// Notes what only the widgets know, before an act: where the caret stands.
  std::function<void()> read;
  /// Brings all widgets in line with the data.
  std::function<void()> show;

  /// Runs an act and shows what came of it. Does nothing while another act runs, or while the widgets are being
  /// brought in line: what they tell then is an echo of the program, not a person. True when the act was run.
  bool Act(const std::function<void()>& act);

  /// Shows the data as it stands, in the middle of an act too. The widgets' echoes become no acts.
  void Refresh();

  /// Whether what a widget tells now comes from a person.
  [[nodiscard]] bool Listening() const { return !acting_ && !showing_; }

 private:
  bool acting_ = false;
  bool showing_ = false;
};

}  // namespace zefirondo::screens
