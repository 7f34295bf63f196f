// The members of the project record by name, for those who ask for them from outside.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "core/project_state.h"

namespace zefirondo {

/// A value somewhere in the program that can be asked for by name.
using ValueRef = std::variant<std::monostate, const double*, const float*, const std::int16_t*, const std::int32_t*,
                              const bool*, const std::string*, const Curve*>;

/// The member of the record with this name; `std::monostate` when there is none. Sheet fields are not among
/// them: their controls answer for them.
[[nodiscard]] ValueRef FindInRecord(const ProjectState& state, std::string_view name);

}  // namespace zefirondo
