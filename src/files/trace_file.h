// Traces: a curve in the coordinates of its graph, behind a line with its colour.
#pragma once

#include "core/program.h"

namespace zefirondo {

/// Asks for a path and writes a curve. The zero slot and the last real point are left out, as wanted.
void SaveTrace(Program& program, int colour, const Curve& x, const Curve& y);

struct Trace {
  int colour = 0;
  Curve x;  // with the zero slot behind them
  Curve y;
};

/// Reads a trace. Throws `RunTimeError`.
[[nodiscard]] Trace ReadTrace(const std::filesystem::path& path);

/// The text of a trace file, in its bytes. Throws `RunTimeError` (overflow).
[[nodiscard]] std::string TraceText(int colour, const Curve& x, const Curve& y);

/// Asks for a trace by a dialog with these words in its filter, and reads it. False when there is none: the dialog
/// was cancelled, or the failure was shown.
bool ImportTrace(Program& program, const std::string& words, Trace& trace);

}  // namespace zefirondo
