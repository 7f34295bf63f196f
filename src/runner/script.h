// Runs a script: one command a line, printed results.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "core/messages.h"
#include "core/platform.h"

namespace zefirondo {

struct ScriptOptions {
  Language language = Language::English;
  std::filesystem::path folder;
  Date today;
  double screen_width = 1920;  // pixels
};

struct ScriptResult {
  std::string out;
  std::string error;  // empty when the script ran to its end
};

/// Runs a whole script.
[[nodiscard]] ScriptResult RunScript(std::string_view script, const ScriptOptions& options);

}  // namespace zefirondo
