// The title of a project or a measurement on paper.
#pragma once

#include <string>

namespace zefirondo {

/// A title without its last four characters, the extension of a file. The name of a model, which is a title too, loses
/// them just so, as wanted; a shorter one is empty.
[[nodiscard]] std::string WithoutExtension(const std::string& title);

}  // namespace zefirondo
