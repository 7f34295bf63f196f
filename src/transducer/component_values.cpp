#include "transducer/component_values.h"

#include <algorithm>
#include <string>

#include "core/numbers.h"
#include "core/run_time_error.h"
#include "core/window_life.h"
#include "files/impedance_file.h"

namespace zefirondo {
namespace {

constexpr double kFailed = -1.0;
constexpr double kScaleBelow = 19000.0;  // Hz, rows that count for the scale of the graph
constexpr std::size_t kResultCharacters = 9;

/// The first row of the data.
Row FirstRow(RowReader& reader) {
  Row row = reader.ReadRow();
  while (IsBeforeData(row)) row = reader.ReadRow();
  return row;
}

bool Brackets(const CurvePoint& current, double f, const Row& next) { return current.f <= f && f <= next.first; }

/// Walks on to the bracket of a frequency. The end of the file is tested first, and a pair is read only after a
/// miss: the first row is lost to (0, 0), and the last bracket is never tested.
CurvePoint WalkCapacitive(RowReader& reader, double f, CurvePoint& current, Row& next) {
  while (!reader.AtEnd()) {
    if (Brackets(current, f, next)) return current;
    current = {next.first, next.second};
    next = reader.ReadRow();
  }
  return {};
}

/// Walks on to the bracket of a frequency. Each round reads the next pair and then compares: the row behind the
/// bracket of the first frequency is passed over by the search for the second.
CurvePoint WalkInductive(RowReader& reader, double f, CurvePoint& current) {
  while (!reader.AtEnd()) {
    const Row next = reader.ReadRow();
    if (Brackets(current, f, next)) return current;
    current = {next.first, next.second};
  }
  return {};
}

double Square(double value) { return value * value; }

std::string ResultText(double value) { return PlainNumber(value).substr(0, kResultCharacters); }

/// The two frequencies of a tool; false when they were refused with a message.
template <class Form>
bool TakeFrequencies(Program& program, const Form& form) {
  const std::string& f1 = *form.txtf1.text;
  const std::string& f2 = *form.txtf2.text;
  if (ReadNumber(f2) <= ReadNumber(f1)) {
    program.Message(MessageIcon::Stop, program.Text(150), program.Text(151));
    return false;
  }
  if (f1.empty() || f2.empty()) {
    program.Message(MessageIcon::Stop, program.Text(152), program.Text(151));
    return false;
  }
  program.state.ValRangeLow = ReadNumber(f1);
  program.state.ValRangeHigh = ReadNumber(f2);
  return true;
}

// The result shows in every case: after a failure it reads -1, as wanted.

void frmvalc_cmdavanti_Click(Program& program) {
  CapacitorTool& form = program.windows.frmvalc;
  if (!TakeFrequencies(program, form)) return;
  const double value = CapacitorFromCurve(program);
  program.Message(MessageIcon::Information, program.Text(156) + ResultText(value) + " µF", program.Text(157));
  CloseWindow(program, form.window);
}

void frmvalf_cmdavanti_Click(Program& program) {
  InductorTool& form = program.windows.frmvalf;
  if (!TakeFrequencies(program, form)) return;
  const double value = InductorFromCurve(program);
  program.Message(MessageIcon::Information,
                  program.Text(153) + ResultText(value) + " mH\n" + program.Text(154) +
                      ResultText(program.state.ValResult) + " Ohm",
                  program.Text(155));
  CloseWindow(program, form.window);
}

void frmvalf_Load(Program& program) { program.state.ValResult = 0.0; }
void frmvalc_mnuchiudi_Click(Program& program) { CloseWindow(program, program.windows.frmvalc.window); }
void frmvalf_mnuchiudi_Click(Program& program) { CloseWindow(program, program.windows.frmvalf.window); }

FileDialog MeasurementDialog(const Program& program) {
  FileDialog dialog;
  dialog.filter = program.Text(470) + " (*.ovl)|*.ovl|File di testo (*.txt)|*.txt";
  dialog.folder = program.Folder(471);
  return dialog;
}

/// Reads the curve for the graph beside a tool.
void ReadMeasurement(ProjectState& s, const std::filesystem::path& path) {
  RowReader reader(path);
  double largest = 0.0;
  ImpedanceStore store(s.ImpFreq, s.ImpZ);
  ReadImpedanceRows(reader, [&](const Row& row) {
    store.Add(row);
    if (row.first < kScaleBelow) largest = std::max(largest, row.second);
  });
  s.ImpScaleTop = ToInteger(RoundHalfEven(largest) + 10);
}

void OpenTool(Program& program, std::string_view tool) {
  ProjectState& s = program.state;
  try {
    const auto path = program.platform.ChooseFile(MeasurementDialog(program));
    if (!path) return;
    s.FilePath = path->string();
    ReadMeasurement(s, *path);
    CloseWindow(program, "frmgrafico");
    OpenWindow(program, "frmgrafico");
  } catch (const RunTimeError& error) {
    program.ErrorMessage(program.Text(166) + error.what());
    return;
  }
  OpenWindow(program, tool);
}

void mnucapa_Click(Program& program) { OpenTool(program, "frmvalc"); }
void munindu_Click(Program& program) { OpenTool(program, "frmvalf"); }

}  // namespace

CurvePoints FindCapacitivePoints(const std::filesystem::path& path, double f1, double f2) {
  RowReader reader(path);
  const Row first = FirstRow(reader);
  CurvePoint current{first.first, first.second};
  Row next;
  CurvePoints points;
  points.a = WalkCapacitive(reader, f1, current, next);
  points.b = WalkCapacitive(reader, f2, current, next);
  return points;
}

CurvePoints FindInductivePoints(const std::filesystem::path& path, double f1, double f2) {
  RowReader reader(path);
  CurvePoint current{FirstRow(reader).first, 0.0};  // the first row keeps its frequency, with a modulus of 0
  CurvePoints points;
  points.a = WalkInductive(reader, f1, current);
  points.b = WalkInductive(reader, f2, current);
  return points;
}

double CapacitorOf(const CurvePoints& points) {
  const auto& [a, b] = points;
  const double above = Square(b.f) - Square(a.f);
  const double below = kPi * kPi * ((Square(a.z) - Square(b.z)) * 4.0) * (Square(b.f) * Square(a.f));
  const double farad = SquareRoot(Divide(above, below));
  return ReadNumber(FormatNumberFull(farad * 1000000));
}

double InductorOf(const CurvePoints& points) {
  const auto& [a, b] = points;
  return SquareRoot(Divide(Square(a.z) - Square(b.z), Square(a.f) - Square(b.f))) * (1.0 / kTwoPi);
}

double ResistorOf(const CurvePoints& points, double henry) {
  return SquareRoot(Square(points.b.z) - Square(points.b.f * kTwoPi * henry));
}

double CapacitorFromCurve(Program& program) {
  const ProjectState& s = program.state;
  try {
    const CurvePoints points = FindCapacitivePoints(s.FilePath, s.ValRangeLow, s.ValRangeHigh);
    if (points.b.z > points.a.z) {
      program.ErrorMessage(program.Text(192));
      return kFailed;
    }
    return CapacitorOf(points);
  } catch (const RunTimeError& error) {
    program.ErrorMessage(program.Text(193) + error.what());
    return kFailed;
  }
}

double InductorFromCurve(Program& program) {
  ProjectState& s = program.state;
  double inductor = 0.0;
  try {
    const CurvePoints points = FindInductivePoints(s.FilePath, s.ValRangeLow, s.ValRangeHigh);
    if (points.b.z < points.a.z) {
      program.ErrorMessage(program.Text(194));
      return kFailed;
    }
    const double henry = InductorOf(points);
    inductor = henry * 1000;
    s.ValResult = ResistorOf(points, henry);
    return inductor;
  } catch (const RunTimeError& error) {
    program.ErrorMessage(program.Text(195) + error.what());
    if (s.ValResult != 0.0) return kFailed;
    s.ValResult = kFailed;
    return inductor;
  }
}

void ConnectComponentValues(Program& program) {
  program.windows.mdithsm.mnucapa.on.click = mnucapa_Click;
  program.windows.mdithsm.munindu.on.click = munindu_Click;
  CapacitorTool& capacitor = program.windows.frmvalc;
  capacitor.cmdavanti.on.click = frmvalc_cmdavanti_Click;
  capacitor.mnuchiudi.on.click = frmvalc_mnuchiudi_Click;
  InductorTool& inductor = program.windows.frmvalf;
  inductor.window.on.load = frmvalf_Load;
  inductor.cmdavanti.on.click = frmvalf_cmdavanti_Click;
  inductor.mnuchiudi.on.click = frmvalf_mnuchiudi_Click;
}

}  // namespace zefirondo
