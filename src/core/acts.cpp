#include "core/acts.h"

#include <new>
#include <utility>

#include "core/events.h"
#include "core/fields.h"
#include "core/focus.h"
#include "core/run_time_error.h"
#include "core/shell.h"
#include "core/text.h"
#include "core/window_life.h"

namespace zefirondo {
namespace {

bool Running(const Program& program) { return program.run == RunState::Running; }

/// The frame's menu bar is gone while the sheet's stands in its place: there is one project at a time.
bool FrameMenuIsReplaced(const Program& program, const Control& control) {
  return control.IsMenu() && control.window == &program.windows.mdithsm.window && program.windows.frmthsm.window.open;
}

/// A click on a window that is not in front brings it there first.
void ComeToFront(Program& program, Window& window) {
  const bool frame = &window == &program.windows.mdithsm.window;
  if (!frame && (program.order.front() != &window || program.active != &window)) BringToFront(program, window);
}

/// Changes a field's text as an edit does, with the caret behind what was entered.
void Edit(Program& program, Control& field, std::string text, std::size_t caret) {
  field.selection_start = caret;
  field.selection_length = 0;
  if (text == *field.text) return;
  *field.text = std::move(text);
  if (field.on.change != nullptr) field.on.change(program);
}

void ReplaceSelection(Program& program, Control& field, std::size_t start, std::size_t length,
                      const std::string& with) {
  std::string text = *field.text;
  const std::size_t first = ByteOffset(text, start);
  const std::size_t last = ByteOffset(text, start + length);
  text.replace(first, last - first, with);
  Edit(program, field, std::move(text), start + CharacterCount(with));
}

/// A character, backspace or Enter reaches the field.
void Deliver(Program& program, Control& field, int key) {
  if (!field.IsField() || field.locked) return;
  if (key == key::kBackspace) {
    if (field.selection_length > 0) {
      ReplaceSelection(program, field, field.selection_start, field.selection_length, "");
    } else if (field.selection_start > 0) {
      ReplaceSelection(program, field, field.selection_start - 1, 1, "");
    }
    return;
  }
  if (key == key::kEnter) {
    if (field.design.multiline) ReplaceSelection(program, field, field.selection_start, field.selection_length, "\r\n");
    return;
  }
  if (key >= ' ') ReplaceSelection(program, field, field.selection_start, field.selection_length, Utf8(key));
}

void RunKey(Program& program, int key) {
  Control* const control = program.focus;
  if (control == nullptr) return;
  if (control->on.key != nullptr && control->on.key(program, key)) return;
  if (key == key::kTab) {
    if (Control* const next = NextInTabOrder(program, false)) MoveFocus(program, next);
    return;
  }
  if (control->kind == ControlKind::Button) {
    if (key == key::kEnter || key == ' ') RaiseClick(program, *control);
    return;
  }
  const bool typed_into_locked = control->locked && key != key::kEnter;
  if (typed_into_locked || !control->IsField() || !FilterKey(program, *control, key)) return;
  if (program.focus == control) Deliver(program, *control, key);
}

void RunQueuedKeys(Program& program) {
  while (!program.keys.empty()) {
    const int key = program.keys.front();
    program.keys.pop_front();
    RunKey(program, key);
  }
}

void FailAndEnd(Program& program, const std::string& text) {
  program.run = RunState::EndedByFailure;
  program.ErrorMessage(text);
}

/// Brings the control's window to the front and moves the focus; tells what a test held.
struct Arrival {
  Outcome outcome;
  bool arrived = false;
};

Arrival Approach(Program& program, Control& control, Control* focus_target) {
  Arrival arrival;
  ComeToFront(program, *control.window);
  const FocusMove move = MoveFocus(program, focus_target);
  if (move == FocusMove::Held) arrival.outcome.held = program.focus;
  arrival.arrived = program.focus == focus_target;
  return arrival;
}

/// Performs an act on a control that a person could reach: refuses it, or runs it as one event.
template <class Act>
Outcome Perform(Program& program, const Control& control, Act act) {
  Outcome outcome;
  outcome.refusal = WhyNot(program, control);
  if (outcome.refusal != Refusal::None) return outcome;
  RunEvent(program, [&] { outcome = act(); });
  return outcome;
}

/// Performs an act that goes into a field: it must have the focus, and not be locked.
template <class Act>
Outcome PerformInField(Program& program, Control& field, Act act) {
  if (WhyNot(program, field) == Refusal::None && field.locked) return {Refusal::Locked, nullptr};
  return Perform(program, field, [&] {
    Arrival arrival = Approach(program, field, &field);
    if (arrival.outcome.held == nullptr && !arrival.arrived) arrival.outcome.held = program.focus;
    if (arrival.arrived) act();
    return arrival.outcome;
  });
}

}  // namespace

Refusal WhyNot(Program& program, const Control& control) {
  if (!control.window->open) return Refusal::NotOpen;
  if (control.window->hidden || !control.IsShown() || FrameMenuIsReplaced(program, control)) return Refusal::Hidden;
  if (!control.IsUsable()) return Refusal::Disabled;
  return Refusal::None;
}

void RunEvent(Program& program, const std::function<void()>& act) {
  if (!Running(program)) return;
  program.held = nullptr;
  try {
    act();
    RunQueuedKeys(program);
    DropLostFocus(program);
  } catch (const RunTimeError& error) {
    FailAndEnd(program, error.what());
  } catch (const LogarithmError&) {
    FailAndEnd(program, program.Text(191));
  } catch (const std::bad_alloc&) {
    FailAndEnd(program, RunTimeError(ErrorNumber::OutOfMemory).what());
  } catch (const ProgramEnd&) {
    // The program has said what there was to say.
  }
  if (!Running(program)) {
    program.keys.clear();
    program.platform.EndProgram(program.run == RunState::EndedByFailure);
  }
}

void RaiseClick(Program& program, Control& control) {
  if (control.on.click != nullptr) control.on.click(program);
}

void SetChecked(Program& program, Control& box, bool checked) {
  if (box.checked == checked) return;
  box.checked = checked;
  RaiseClick(program, box);
}

void SetOption(Control& option) {
  for (Control* const other : option.window->controls) {
    if (other->kind == ControlKind::Option && other->parent == option.parent) other->checked = other == &option;
  }
}

void SelectTab(Program& program, std::string_view key) {
  Sheet& sheet = program.windows.frmthsm;
  sheet.selected_tab = key;
  RaiseClick(program, sheet.TabStrip1);
}

void Start(Program& program, const std::string& command_line) {
  program.run = RunState::Running;
  RunEvent(program, [&] { StartProgram(program, command_line); });
}

Outcome Choose(Program& program, Control& entry) {
  return Perform(program, entry, [&] {
    ComeToFront(program, *entry.window);
    RaiseClick(program, entry);
    return Outcome{};
  });
}

Outcome Focus(Program& program, Control& control) {
  return Perform(program, control, [&] { return Approach(program, control, &control).outcome; });
}

Outcome Leave(Program& program) {
  Outcome outcome;
  RunEvent(program, [&] {
    if (MoveFocus(program, nullptr) == FocusMove::Held) outcome.held = program.focus;
  });
  return outcome;
}

Outcome Click(Program& program, Control& control) {
  return Perform(program, control, [&] {
    ComeToFront(program, *control.window);
    // The reset is for a project that went wrong: no test may stand before it.
    if (&control == &program.windows.frmthsm.cmdreset) {
      program.focus = &control;
    } else {
      const Arrival arrival = Approach(program, control, control.TakesFocus() ? &control : nullptr);
      if (arrival.outcome.held != nullptr) return arrival.outcome;
    }
    if (control.kind == ControlKind::CheckBox) control.checked = !control.checked;
    if (control.kind == ControlKind::Option) SetOption(control);
    RaiseClick(program, control);
    return Outcome{};
  });
}

Outcome DoubleClick(Program& program, Control& control) {
  return Perform(program, control, [&] {
    const Arrival arrival = Approach(program, control, control.TakesFocus() ? &control : nullptr);
    if (arrival.outcome.held == nullptr && control.on.double_click != nullptr) control.on.double_click(program);
    return arrival.outcome;
  });
}

Outcome RightClick(Program& program, Control& control) {
  return Perform(program, control, [&] {
    const Arrival arrival = Approach(program, control, control.TakesFocus() ? &control : nullptr);
    if (arrival.outcome.held == nullptr && control.on.right_click != nullptr) control.on.right_click(program);
    return arrival.outcome;
  });
}

Outcome BeginTyping(Program& program, Control& field) {
  return PerformInField(program, field, [] {});
}

Outcome PressKey(Program& program, int key) {
  RunEvent(program, [&] {
    if (program.focus != nullptr) ComeToFront(program, *program.focus->window);
    RunKey(program, key);
  });
  return {Refusal::None, program.held};
}

Outcome PressBackTab(Program& program) {
  RunEvent(program, [&] {
    if (Control* const previous = NextInTabOrder(program, true)) MoveFocus(program, previous);
  });
  return {Refusal::None, program.held};
}

Outcome Paste(Program& program, Control& field, const std::string& text) {
  return PerformInField(program, field, [&] { Edit(program, field, text, CharacterCount(text)); });
}

Outcome Pick(Program& program, Control& combo, const std::string& item) {
  return PerformInField(program, combo, [&] {
    AssignText(program, combo, item);
    RaiseClick(program, combo);
  });
}

Outcome ClickTab(Program& program, std::string_view key) {
  Control& strip = program.windows.frmthsm.TabStrip1;
  return Perform(program, strip, [&] {
    const Arrival arrival = Approach(program, strip, &strip);
    if (arrival.outcome.held == nullptr) SelectTab(program, key);
    return arrival.outcome;
  });
}

Outcome PressMouse(Program& program, Control& plot, double x, double y) {
  return Perform(program, plot, [&] {
    ComeToFront(program, *plot.window);
    if (plot.on.mouse_down != nullptr) plot.on.mouse_down(program, x, y);
    return Outcome{};
  });
}

Outcome ReleaseMouse(Program& program, Control& plot) {
  return Perform(program, plot, [&] {
    if (plot.on.mouse_up != nullptr) plot.on.mouse_up(program);
    return Outcome{};
  });
}

Outcome CloseBox(Program& program, Window& window) {
  if (!window.open) return {Refusal::NotOpen, nullptr};
  if (window.hidden) return {Refusal::Hidden, nullptr};
  RunEvent(program, [&] {
    if (window.on.close_box == nullptr || window.on.close_box(program)) CloseWindow(program, window);
  });
  return {};
}

}  // namespace zefirondo
