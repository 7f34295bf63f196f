// The one place that runs events, and what routines use to set off the events of others.
#pragma once

#include <functional>
#include <string_view>

#include "core/program.h"

namespace zefirondo {

/// Runs an act to its end, with the keystrokes that it queued. What no routine caught shows its text here and
/// ends the program in good order.
void RunEvent(Program& program, const std::function<void()>& act);

/// Raises the click of a control or menu entry, as code does: nothing is tested, nothing is focused.
void RaiseClick(Program& program, Control& control);

/// Ticks or clears a check box; its click runs when that changes it.
void SetChecked(Program& program, Control& box, bool checked);

/// Sets an option, and clears the others of its frame, without any event.
void SetOption(Control& option);

/// Selects a tab of the sheet and runs the click of the strip.
void SelectTab(Program& program, std::string_view key);

}  // namespace zefirondo
