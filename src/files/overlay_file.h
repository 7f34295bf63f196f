// Measured responses: a heading line, then rows of frequency in Hz and level in dB.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>

#include "core/program.h"
#include "files/row_reader.h"

namespace zefirondo {

/// Asks for a response file and hands its rows to `use`, up to the first one at `limit` Hz or above, which is not
/// used. False when the dialog was cancelled, or when a failure was shown: the rows before it have been used.
bool ImportOverlay(Program& program, double limit, const std::function<void(const Row&)>& use);

}  // namespace zefirondo
