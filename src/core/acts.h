// A person's acts, as both faces of the program perform them.
//
// Each act runs to its end, with all that it sets off, before it returns. A failure that nothing catches shows
// its text and ends the program in good order.
#pragma once

#include <string>
#include <string_view>

#include "core/program.h"

namespace zefirondo {

/// Why a person could not do something.
enum class Refusal { None, Disabled, Hidden, NotOpen, Locked };

struct Outcome {
  Refusal refusal = Refusal::None;
  const Control* held = nullptr;  // the control that keeps the focus, when a test held it

  [[nodiscard]] bool Done() const { return refusal == Refusal::None && held == nullptr; }
};

/// Whether a person could do something with a control or a menu entry as it stands.
[[nodiscard]] Refusal WhyNot(Program& program, const Control& control);

/// Starts the program; the command line is the path of a project to open, taken as it stands.
void Start(Program& program, const std::string& command_line);

Outcome Choose(Program& program, Control& entry);
Outcome Focus(Program& program, Control& control);
Outcome Leave(Program& program);
Outcome Click(Program& program, Control& control);
Outcome DoubleClick(Program& program, Control& control);
Outcome RightClick(Program& program, Control& control);

/// Gives a field the focus, so that keys can be sent to it.
Outcome BeginTyping(Program& program, Control& field);

/// Sends a key to the control that has the focus, and then the keys that it queued. Characters are given by
/// their code points.
Outcome PressKey(Program& program, int key);
Outcome PressBackTab(Program& program);

/// Puts a text in place of all that a field holds, as a paste does: one change event, no key filter.
Outcome Paste(Program& program, Control& field, const std::string& text);

/// Chooses an item of a combo box: its text, its change event, its click.
Outcome Pick(Program& program, Control& combo, const std::string& item);

/// Selects a tab of the sheet.
Outcome ClickTab(Program& program, std::string_view key);

Outcome PressMouse(Program& program, Control& plot, double x, double y);
Outcome ReleaseMouse(Program& program, Control& plot);

/// The close box of a window.
Outcome CloseBox(Program& program, Window& window);

}  // namespace zefirondo
