#include "core/controls.h"

#include <algorithm>

namespace zefirondo {
namespace {

int DefaultBackground(ControlKind kind, int back) {
  const bool field = kind == ControlKind::TextBox || kind == ControlKind::ComboBox;
  if (back == colour::kFace && field) return colour::kWindow;
  if (back == colour::kFace && kind == ControlKind::Plot) return colour::kWhite;
  return back;
}

}  // namespace

bool Control::TakesFocus() const {
  switch (kind) {
    case ControlKind::TextBox:
    case ControlKind::ComboBox:
    case ControlKind::CheckBox:
    case ControlKind::Option:
    case ControlKind::Button:
    case ControlKind::TabStrip: return true;
    default: return false;
  }
}

bool Control::IsShown() const {
  for (const Control* control = this; control != nullptr; control = control->parent) {
    if (!control->visible) return false;
  }
  return true;
}

bool Control::IsUsable() const {
  for (const Control* control = this; control != nullptr; control = control->parent) {
    if (!control->enabled) return false;
  }
  return true;
}

std::string Control::FullName() const {
  std::string full(name);
  if (index >= 0) full += "(" + std::to_string(index) + ")";
  return full;
}

Control* Window::Find(std::string_view control, int index) const {
  const auto found = std::find_if(controls.begin(), controls.end(), [&](const Control* candidate) {
    return candidate->name == control && candidate->index == index;
  });
  return found == controls.end() ? nullptr : *found;
}

bool Window::HasMenus() const {
  return std::any_of(controls.begin(), controls.end(), [](const Control* control) { return control->IsMenu(); });
}

void DescribeControl(Window& window, Control& control, ControlKind kind, std::string_view name, int index,
                     const ControlDesign& design, ProjectState& state) {
  control.window = &window;
  control.kind = kind;
  control.name = name;
  control.index = index;
  control.design = design;
  control.text = design.field != nullptr ? &(state.*design.field) : &control.own_text;
  if (*design.parent != '\0') control.parent = window.Find(design.parent);
  window.controls.push_back(&control);
}

void ApplyDesign(Window& window, Language language) {
  window.caption = window.caption_design.Text(language);
  window.left = window.design_left;
  window.top = window.design_top;
  for (Control* const control : window.controls) {
    const ControlDesign& design = control->design;
    *control->text = (control->IsField() ? design.text : design.caption).Text(language);
    control->label = control->IsField() ? design.caption.Text(language) : std::string();
    control->unit = design.unit.Text(language);
    control->tip = design.tip.Text(language);
    control->enabled = design.enabled;
    control->visible = design.visible;
    control->locked = design.locked;
    control->checked = false;
    control->back = DefaultBackground(control->kind, design.back);
    control->fore = colour::kText;
    control->selection_start = control->selection_length = 0;
    control->progress = 0;
    control->list.clear();
    for (const Caption& item : design.list) control->list.push_back(item.Text(language));
  }
}

}  // namespace zefirondo
