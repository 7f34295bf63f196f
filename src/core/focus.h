// The focus: where it is, and how it moves.
#pragma once

#include "core/program.h"

namespace zefirondo {

enum class FocusMove {
  Moved,
  Held,        // a test keeps it where it was
  Redirected,  // a leaving rule sent it to a control of its own choice
};

/// Moves the focus as a person's act does: the tests of the control that has it run first. A null target
/// takes it off the control that has it, to none.
FocusMove MoveFocus(Program& program, Control* target);

/// Moves the focus by the program's own will: without the test before leaving. Does nothing for a control that
/// cannot take it.
void GiveFocus(Program& program, Control& target);

/// The control that Tab leads to from the one that has the focus; null when there is none.
[[nodiscard]] Control* NextInTabOrder(const Program& program, bool backwards);

/// Takes the focus off a control that can no longer have it.
void DropLostFocus(Program& program);

}  // namespace zefirondo
