#include "runner/names.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "runner/script_error.h"

namespace zefirondo {
namespace {

/// A name without its index: "imgforma(1)" is "imgforma" and "1".
struct Element {
  std::string_view name;
  std::optional<std::string_view> index;
};

Element SplitIndex(std::string_view name) {
  const std::size_t open = name.find('(');
  if (open == std::string_view::npos || name.back() != ')') return {name, std::nullopt};
  return {name.substr(0, open), name.substr(open + 1, name.size() - open - 2)};
}

std::optional<int> ReadIndex(std::string_view text) {
  int index = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), index);
  if (error != std::errc() || end != text.data() + text.size() || index < 0) return std::nullopt;
  return index;
}

bool FindInWindow(Program& program, Window& window, std::string_view name, Named& named) {
  const Element element = SplitIndex(name);
  Sheet& sheet = program.windows.frmthsm;
  if (&window == &sheet.window && element.name == sheet.TabStrip1.name && element.index) {
    named.tab = *element.index;
    return sheet.HasTab(*element.index);
  }
  const std::optional<int> index = element.index ? ReadIndex(*element.index) : -1;
  if (!index) return false;
  named.control = window.Find(element.name, *index);
  if (named.control != nullptr) return true;
  const auto value = std::find_if(window.values.begin(), window.values.end(),
                                  [&](const WindowValue& candidate) { return candidate.name == name; });
  if (value == window.values.end()) return false;
  named.value = value->value;
  return true;
}

}  // namespace

Named FindName(Program& program, std::string_view name) {
  Named named;
  named.window = program.FindWindow(name);
  if (named.window != nullptr) return named;
  if (const std::size_t point = name.find('.'); point != std::string_view::npos) {
    Window* const window = program.FindWindow(name.substr(0, point));
    if (window != nullptr && FindInWindow(program, *window, name.substr(point + 1), named)) return named;
    throw ScriptError("there is no " + std::string(name));
  }
  if (FindInWindow(program, program.windows.frmthsm.window, name, named)) return named;
  named.value = FindInRecord(program.state, name);
  if (std::holds_alternative<std::monostate>(named.value)) throw ScriptError("there is no " + std::string(name));
  return named;
}

Control& FindControl(Program& program, std::string_view name) {
  const Named named = FindName(program, name);
  if (named.control == nullptr) throw ScriptError(std::string(name) + " is no control");
  return *named.control;
}

std::string PrintedName(const Control& control) {
  const std::string name = control.FullName();
  return control.window->name == "frmthsm" ? name : std::string(control.window->name) + "." + name;
}

}  // namespace zefirondo
