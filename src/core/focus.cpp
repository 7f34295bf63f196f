#include "core/focus.h"

#include <algorithm>

#include "core/fields.h"

namespace zefirondo {
namespace {

bool CanHaveFocus(const Control& control) {
  return control.TakesFocus() && control.window->open && !control.window->hidden && control.IsShown() &&
         control.IsUsable();
}

void Enter(Program& program, Control& target) {
  program.focus = &target;
  RunGotFocusRules(program, target);
  if (target.on.got_focus != nullptr) target.on.got_focus(program);
}

/// Runs what follows the loss of the focus. False when the focus has gone elsewhere than to `target` by it.
bool RunLost(Program& program, Control& old, Control* target) {
  program.focus = target;
  if (!RunLeftTest(program, old)) {
    Enter(program, old);
    return false;
  }
  if (old.on.lost_focus != nullptr) old.on.lost_focus(program);
  return program.focus == target;
}

FocusMove Hold(Program& program, Control& control) {
  program.held = &control;
  return FocusMove::Held;
}

/// `txtrvc` sends the focus on to `txtbl` once Qms is there, wherever the person was heading.
void RunLeavingRedirection(Program& program, const Control& old) {
  Sheet& sheet = program.windows.frmthsm;
  if (&old == &sheet.txtrvc && !sheet.txtqmesin.text->empty()) GiveFocus(program, sheet.txtbl);
}

}  // namespace

FocusMove MoveFocus(Program& program, Control* target) {
  Control* const old = program.focus;
  if (old == target) return FocusMove::Moved;
  if (old != nullptr) {
    const bool free = RunLeavingTest(program, *old) && (old->on.validate == nullptr || old->on.validate(program));
    if (!free) return Hold(program, *old);
    RunLeavingRedirection(program, *old);
    if (program.focus != old) return program.focus == target ? FocusMove::Moved : FocusMove::Redirected;
    if (!RunLost(program, *old, target)) {
      return program.focus == old ? Hold(program, *old) : FocusMove::Redirected;
    }
  }
  if (target == nullptr) return FocusMove::Moved;
  if (!CanHaveFocus(*target)) {
    program.focus = nullptr;
    return FocusMove::Redirected;
  }
  Enter(program, *target);
  return FocusMove::Moved;
}

void GiveFocus(Program& program, Control& target) {
  if (program.focus == &target || !CanHaveFocus(target)) return;
  if (Control* const old = program.focus; old != nullptr && !RunLost(program, *old, &target)) return;
  Enter(program, target);
}

Control* NextInTabOrder(const Program& program, bool backwards) {
  if (program.focus == nullptr) return nullptr;
  const std::vector<Control*>& controls = program.focus->window->controls;
  const auto count = static_cast<std::ptrdiff_t>(controls.size());
  auto at = std::find(controls.begin(), controls.end(), program.focus) - controls.begin();
  for (std::ptrdiff_t step = 0; step < count; ++step) {
    at = (at + (backwards ? count - 1 : 1)) % count;
    Control* const candidate = controls[static_cast<std::size_t>(at)];
    if (CanHaveFocus(*candidate)) return candidate;
  }
  return nullptr;
}

void DropLostFocus(Program& program) {
  if (program.focus != nullptr && !CanHaveFocus(*program.focus)) program.focus = nullptr;
}

}  // namespace zefirondo
