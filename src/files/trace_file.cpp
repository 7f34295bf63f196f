#include "files/trace_file.h"

#include <algorithm>
#include <limits>

#include "core/numbers.h"
#include "core/run_time_error.h"
#include "files/row_reader.h"
#include "files/text_file.h"

namespace zefirondo {
namespace {

constexpr std::size_t kPrintZone = 14;
constexpr std::string_view kLineEnd = "\r\n";

FileDialog TraceDialog(const Program& program, const std::string& words, bool save) {
  FileDialog dialog;
  dialog.save = save;
  dialog.filter = words + " (*.trc)|*.trc" + (save ? "" : "|");
  dialog.default_extension = ".trc";
  dialog.folder = program.Folder(469);
  return dialog;
}

int ToColour(double number) {
  const double rounded = RoundHalfEven(number);
  if (!(rounded >= 0 && rounded <= 0xFFFFFF)) throw RunTimeError(ErrorNumber::Overflow);
  return static_cast<int>(rounded);
}

}  // namespace

std::string TraceText(int colour, const Curve& x, const Curve& y) {
  std::string text = " " + std::to_string(colour) + " ";
  text += kLineEnd;
  for (std::size_t i = 0; i + 2 < x.size(); ++i) {
    if (i >= y.size()) throw RunTimeError(ErrorNumber::IndexOutOfRange);
    std::string line = FormatNumberFull(x[i]);
    line.append(kPrintZone - line.size() % kPrintZone, ' ');  // up to the next zone, and at least one blank
    line += FormatNumberFull(y[i]);
    text.append(line).append(kLineEnd);
  }
  return text;
}

void SaveTrace(Program& program, int colour, const Curve& x, const Curve& y) {
  try {
    const auto path = program.platform.ChooseFile(TraceDialog(program, program.Text(468), true));
    if (!path) return;
    program.state.FilePath = path->string();
    WriteWholeFile(*path, TraceText(colour, x, y));
  } catch (const RunTimeError& error) {
    program.ErrorMessage(program.Text(183) + error.what());
  }
}

Trace ReadTrace(const std::filesystem::path& path) {
  RowReader reader(path);
  Trace trace;
  trace.colour = ToColour(reader.ReadNumberField());
  while (!reader.AtEnd()) {
    const Row row = reader.ReadRow();
    RequireRoom(trace.x.size());
    trace.x.push_back(row.first);
    trace.y.push_back(row.second);
  }
  trace.x.push_back(0.0);
  trace.y.push_back(0.0);
  return trace;
}

bool ImportTrace(Program& program, const std::string& words, Trace& trace) {
  try {
    const auto path = program.platform.ChooseFile(TraceDialog(program, words, false));
    if (!path) return false;
    program.state.FilePath = path->string();
    trace = ReadTrace(*path);
    return true;
  } catch (const RunTimeError& error) {
    program.ErrorMessage(program.Text(135) + error.what());
    return false;
  }
}

}  // namespace zefirondo
