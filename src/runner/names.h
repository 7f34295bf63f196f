// The names of a script: windows, controls, menu entries, tabs, values of the record and of windows.
#pragma once

#include <string>
#include <string_view>

#include "core/program.h"
#include "core/record.h"

namespace zefirondo {

/// What a name means: one of its members is set.
struct Named {
  Window* window = nullptr;
  Control* control = nullptr;
  std::string tab;  // the key of a tab
  ValueRef value;
};

/// Throws `ScriptError` for a name that nothing has.
[[nodiscard]] Named FindName(Program& program, std::string_view name);

/// The same, for a name that must be a control.
[[nodiscard]] Control& FindControl(Program& program, std::string_view name);

/// How a control is called in what is printed: bare on the sheet, behind its window elsewhere.
[[nodiscard]] std::string PrintedName(const Control& control);

}  // namespace zefirondo
