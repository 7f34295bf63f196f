#include "filters/summation.h"

#include <algorithm>

#include "core/numbers.h"
#include "core/run_time_error.h"
#include "core/window_life.h"
#include "files/overlay_file.h"
#include "response/box_response.h"
#include "response/graph_surface.h"
#include "response/spl.h"
#include "response/sweep.h"

namespace zefirondo {
namespace {

// The number of the sweep's points compared with hertz, as wanted.
constexpr double kBoxLimit = 6826;
constexpr double kSplLimit = 2000;
constexpr double kOffset = 40;
constexpr int kSplHeadroom = 10;
constexpr double kThreeTerms = 79.99998;
constexpr double kTwoTerms = 39.99999;

double At(const Curve& curve, std::size_t i) {
  if (i >= curve.size()) throw RunTimeError(ErrorNumber::IndexOutOfRange);
  return curve[i];
}

/// Fills the sum at every point of the sweep, with the zero slot behind.
template <class Level>
void Sum(ProjectState& s, const Curve& x, Level level) {
  s.SumFreq.assign(kPointsTo5k + 1, 0.0);
  s.SumDb.assign(kPointsTo5k + 1, 0.0);
  for (std::size_t i = 0; i < kPointsTo5k; ++i) {
    s.SumFreq[i] = At(x, i);
    s.SumDb[i] = Finite(level(i));
  }
}

void EraseSum(ProjectState& s) {
  s.SumFreq.clear();
  s.SumDb.clear();
}

// ---- the box graph ----

void DrawOverlay(Program& program) {
  BoxResponse& form = program.windows.frmgrafcassa;
  DisegnaCurva(form.OverlayFreq, form.OverlayDb, program.state.BoxScaleTop, form.surface, colour::kGreen);
}

void DrawFilter(Program& program, int colour) {
  const ProjectState& s = program.state;
  if (!s.FilterComputed) return;
  DisegnaCurva(s.FilterFreq, s.FilterDb, s.BoxScaleTop, program.windows.frmgrafcassa.surface, colour);
}

void frmgrafcassa_mnuimportaOverlay_Click(Program& program) {
  BoxResponse& form = program.windows.frmgrafcassa;
  Curve freq;
  Curve db;
  const bool read = ImportOverlay(program, kBoxLimit, [&](const Row& row) {
    freq.push_back(20 * Log10(row.first));
    db.push_back(row.second + kOffset);
  });
  if (!freq.empty()) {
    freq.push_back(0.0);  // the zero slot
    db.push_back(0.0);
    form.OverlayFreq = std::move(freq);
    form.OverlayDb = std::move(db);
  }
  if (!read) return;
  DrawOverlay(program);
  form.cmdsomma.enabled = form.cmdcancella.enabled = true;
  EnableCalibration(program, true);
  form.mnuimportaOverlay.enabled = false;
  form.CalibrationDb = 0.0;
}

/// Moves the imported response by so many dB, relative to the array as it stands.
void Calibrate(Program& program, double db, int filter_colour) {
  RidisegnaCassa(program);
  for (double& level : program.windows.frmgrafcassa.OverlayDb) level = Finite(level + db);
  DrawOverlay(program);
  DrawFilter(program, filter_colour);
}

void cmdcalibra_Click(Program& program) {
  BoxResponse& form = program.windows.frmgrafcassa;
  form.CalibrationDb = ReadNumber(*form.txtdbcal.text);
  Calibrate(program, form.CalibrationDb, colour::kOrange);
}

void StepCalibration(Program& program, double db) {
  BoxResponse& form = program.windows.frmgrafcassa;
  form.CalibrationDb = Finite(form.CalibrationDb + db);
  AssignNumber(program, form.txtdbcal, form.CalibrationDb);
  Calibrate(program, db, colour::kCyan);  // cyan where the button "Apply" has orange, as wanted
}

void cmdpiu_Click(Program& program) { StepCalibration(program, 1); }
void cmdmeno_Click(Program& program) { StepCalibration(program, -1); }

void cmdsomma_Click(Program& program) {
  ProjectState& s = program.state;
  BoxResponse& form = program.windows.frmgrafcassa;
  const bool designer_open = program.windows.frmfiltri.window.open;
  if (s.FilterComputed && form.cmdcalibra.enabled) {
    SommaTutto(program);
  } else if (!form.cmdcalibra.enabled && designer_open) {
    SommaFiltro(program);
  } else {
    SommaRisposta(program);
  }
  DisegnaCurva(s.SumFreq, s.SumDb, s.BoxScaleTop, form.surface, colour::kMagenta);
  EraseSum(s);
  form.cmdsomma.enabled = false;
  EnableCalibration(program, false);
  if (!program.windows.frmFase.window.hidden) CloseWindow(program, "frmFase");  // its filter phase matches no more
}

// ---- the SPL graph ----

/// What an import on the SPL graph fills; it grows row by row, with the zero slots behind.
struct SplOverlay {
  ProjectState& s;
  double largest = 0.0;
  std::size_t count = 0;

  void Add(const Row& row) {
    for (Curve* const curve : {&s.OverlaySplFreq, &s.SumFreq, &s.OverlaySplDb, &s.SumDb}) {
      curve->resize(count + 2);
      curve->back() = 0.0;  // also where an earlier import was longer
    }
    const double x = 20 * Log10(row.first);
    s.OverlaySplFreq[count] = s.SumFreq[count] = x;
    s.OverlaySplDb[count] = row.second;
    s.SumDb[count] = Finite(row.second + At(s.SplDb, count));
    largest = std::max(largest, s.SumDb[count]);
    ++count;
  }
};

void frmspl_mnuimportaOverlay_Click(Program& program) {
  ProjectState& s = program.state;
  SplGraph& form = program.windows.frmspl;
  SplOverlay overlay{s};
  if (!ImportOverlay(program, kSplLimit, [&](const Row& row) { overlay.Add(row); })) return;
  DisegnaCurva(s.OverlaySplFreq, s.OverlaySplDb, s.SplScaleTop, form.surface, colour::kGreen);
  s.SplScaleTop = ScaleTop(overlay.largest, kSplHeadroom);  // from the next redraw on
  form.cmdsommaspl.enabled = form.cmdcancellaspl.enabled = true;
  form.mnuimportaOverlay.enabled = false;
}

void DrawShownTraces(Program& program) {
  const TraceGraph graph = SplTraces(program);
  for (std::size_t slot = 0; slot < graph.slots.size(); ++slot) {
    if (*graph.slots.at(slot).shown) DrawTrace(graph, slot);
  }
}

void cmdsommaspl_Click(Program& program) {
  ProjectState& s = program.state;
  SplGraph& form = program.windows.frmspl;
  DrawPlainSpl(program);
  DisegnaCurva(s.SumFreq, s.SumDb, s.SplScaleTop, form.surface, colour::kMagenta);
  DisegnaCurva(s.OverlaySplFreq, s.OverlaySplDb, s.SplScaleTop, form.surface, colour::kGreen);
  for (Curve* const curve : {&s.SumFreq, &s.SumDb, &s.OverlaySplFreq, &s.OverlaySplDb}) curve->clear();
  form.cmdsommaspl.enabled = false;
  DrawShownTraces(program);
}

void cmdcancellaspl_Click(Program& program) {
  ProjectState& s = program.state;
  SplGraph& form = program.windows.frmspl;
  double largest = 0.0;
  for (const double level : s.SplDb) largest = std::max(largest, level);
  s.SplScaleTop = ScaleTop(largest, kSplHeadroom);
  DrawPlainSpl(program);
  form.cmdcancellaspl.enabled = form.cmdsommaspl.enabled = false;
  form.mnuimportaOverlay.enabled = true;
  for (Curve* const curve : {&s.SumFreq, &s.SumDb, &s.Set1SplFreq, &s.Set1SplDb}) curve->clear();
  ForgetTraces(SplTraces(program));
}

}  // namespace

void SommaTutto(Program& program) {
  ProjectState& s = program.state;
  const BoxResponse& form = program.windows.frmgrafcassa;
  Sum(s, form.OverlayFreq,
      [&](std::size_t i) { return (At(s.FilterDb, i) + At(form.OverlayDb, i)) + At(s.BoxDb, i) - kThreeTerms; });
}

void SommaFiltro(Program& program) {
  ProjectState& s = program.state;
  Sum(s, s.FilterFreq, [&](std::size_t i) { return At(s.BoxDb, i) + At(s.FilterDb, i) - kTwoTerms; });
}

void SommaRisposta(Program& program) {
  ProjectState& s = program.state;
  const BoxResponse& form = program.windows.frmgrafcassa;
  Sum(s, form.OverlayFreq, [&](std::size_t i) { return At(s.BoxDb, i) + At(form.OverlayDb, i) - kTwoTerms; });
}

void ConnectSummation(Program& program) {
  BoxResponse& box = program.windows.frmgrafcassa;
  box.mnuimportaOverlay.on.click = frmgrafcassa_mnuimportaOverlay_Click;
  box.cmdcalibra.on.click = cmdcalibra_Click;
  box.cmdpiu.on.click = cmdpiu_Click;
  box.cmdmeno.on.click = cmdmeno_Click;
  box.cmdsomma.on.click = cmdsomma_Click;
  SplGraph& spl = program.windows.frmspl;
  spl.mnuimportaOverlay.on.click = frmspl_mnuimportaOverlay_Click;
  spl.cmdsommaspl.on.click = cmdsommaspl_Click;
  spl.cmdcancellaspl.on.click = cmdcancellaspl_Click;
}

}  // namespace zefirondo
