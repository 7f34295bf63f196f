// Phase curves for the offset tool: from the clipboard, staged in a file, and from traces.
#pragma once

#include <filesystem>
#include <string>

#include "core/program.h"

namespace zefirondo {

/// A phase curve with its zero slots: the place on the plot 20·log10(F) − 10, F in Hz, degrees.
struct PhaseCurve {
  Curve x;
  Curve hertz;
  Curve degrees;
};

/// The staging file of one of the two curves.
[[nodiscard]] std::filesystem::path SequencePath(const Program& program, int number);

/// Writes the clipboard's text over the beginning of a staging file; a longer file keeps its tail, as wanted.
/// Throws `RunTimeError`.
void StageSequence(const std::filesystem::path& path, const std::string& text);

/// Whether the first line of a staged sequence is the heading ";Freq(Hz)". Throws `RunTimeError`.
[[nodiscard]] bool HasSequenceHeading(const std::filesystem::path& path);

/// Reads a staged sequence behind its heading. Throws `RunTimeError`, and `LogarithmError` for a frequency of 0.
[[nodiscard]] PhaseCurve ReadSequence(const std::filesystem::path& path);

/// Asks for a trace of the offset tool and reads it. False when there is none.
bool ImportPhaseTrace(Program& program, PhaseCurve& curve);

}  // namespace zefirondo
