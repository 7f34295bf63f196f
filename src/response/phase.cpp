#include "response/phase.h"

#include <cmath>
#include <utility>

#include "core/numbers.h"
#include "core/run_time_error.h"
#include "core/window_life.h"
#include "response/graph_surface.h"
#include "response/spl.h"
#include "response/sweep.h"

namespace zefirondo {
namespace {

constexpr double kLeft = 20;      // 10 Hz
constexpr double kWidth = 53.96;  // to 4984 Hz
constexpr double kHeight = 360;   // degrees
constexpr double kTop = 180;
constexpr double kLoweredTop = 360;
constexpr const char* kTraceWords = "Tracciato";

/// The curve gives way to a new one, which stands once all of it was computed.
Curve BeginSweep(ProjectState& s) {
  s.PhaseDeg.clear();
  FillAbscissa(s.PhaseFreq, kPointsTo5k);
  return Curve(kPointsTo5k + 1, 0.0);
}

void DrawPhase(Program& program) {
  const ProjectState& s = program.state;
  Surface& surface = program.windows.frmFase.surface;
  GrigliaFase(surface);
  DisegnaCurva(s.PhaseFreq, s.PhaseDeg, kTop, surface, colour::kBlack);
}

void DrawPlainPhase(Program& program) {
  program.windows.frmFase.surface.Clear();
  DrawPhase(program);
}

TraceGraph PhaseTraces(Program& program) {
  ProjectState& s = program.state;
  PhaseGraph& form = program.windows.frmFase;
  return {{TraceSlot{&s.Set1PhaseFreq, &s.Set1PhaseDeg, &s.Set1PhaseStored, &s.Set1PhaseShown, &form.chkonoff1,
                     &form.mnusalvarosso, colour::kRed},
           TraceSlot{&s.Set2PhaseFreq, &s.Set2PhaseDeg, &s.Set2PhaseStored, &s.Set2PhaseShown, &form.chkonoff2,
                     &form.mnusalvablu, colour::kBlue}},
          &s.PhaseFreq,
          &s.PhaseDeg,
          kTop,
          &form.surface,
          DrawPlainPhase,
          RidisegnaFase};
}

/// The sum of the filter's phase and that of the box, point by point.
void SumWithFilter(ProjectState& s) {
  if (s.FilterPhaseDeg.size() < kPointsTo5k || s.PhaseDeg.size() < kPointsTo5k) {
    throw RunTimeError(ErrorNumber::IndexOutOfRange);
  }
  s.SumPhaseDeg.assign(kPointsTo5k + 1, 0.0);
  for (std::size_t i = 0; i < kPointsTo5k; ++i) s.SumPhaseDeg[i] = FoldPhaseSum(s.FilterPhaseDeg[i] + s.PhaseDeg[i]);
}

void frmFase_Load(Program& program) {
  PhaseGraph& form = program.windows.frmFase;
  SendToBack(program, program.windows.frmthsm.window);
  form.surface.scale = {kLeft, kWidth, kHeight};
  form.surface.Clear();
  form.mnusalvarosso.enabled = form.mnusalvablu.enabled = false;
  program.state.GrafFaseOpen = true;
}

void frmFase_Unload(Program& program) {
  ProjectState& s = program.state;
  for (Curve* const curve : {&s.PhaseFreq, &s.PhaseDeg, &s.Set1PhaseFreq, &s.Set1PhaseDeg, &s.Set2PhaseFreq,
                             &s.Set2PhaseDeg, &s.SumPhaseDeg}) {
    curve->clear();
  }
  s.Set1PhaseStored = s.Set2PhaseStored = s.Set1PhaseShown = s.Set2PhaseShown = s.GrafFaseOpen = false;
}

void cmdset1_Click(Program& program) { StoreTrace(program, PhaseTraces(program), 0); }
void cmdset2_Click(Program& program) { StoreTrace(program, PhaseTraces(program), 1); }
void chkonoff1_Click(Program& program) { ToggleTrace(program, PhaseTraces(program), 0); }
void chkonoff2_Click(Program& program) { ToggleTrace(program, PhaseTraces(program), 1); }
void mnuimportafase_Click(Program& program) { PaintTraceFile(program, PhaseTraces(program), kTraceWords); }
void mnusalvarosso_Click(Program& program) { SaveTraceSlot(program, PhaseTraces(program), 0); }
void mnusalvablu_Click(Program& program) { SaveTraceSlot(program, PhaseTraces(program), 1); }
void mnuchiudifase_Click(Program& program) { CloseWindow(program, program.windows.frmFase.window); }

void pctgrafFase_MouseDown(Program& program, double x, double y) {
  PhaseGraph& form = program.windows.frmFase;
  const double value = 180 - y;
  // The width is reckoned with a value on the scale of the box graph, as wanted.
  const double width_of = program.state.BoxScaleTop - value;
  ShowReadout(form.surface, form.txtposFase, x, y, value, {.unit = " °", .width_of = &width_of});
}

void pctgrafFase_MouseUp(Program& program) { HideReadout(program.windows.frmFase.txtposFase); }

}  // namespace

void FaseChiusa(ProjectState& s, double qtc, double fc) {
  Curve degrees = BeginSweep(s);
  const std::vector<double>& hertz = Sweep5k().hertz;
  const double half_turn = 2 * std::atan(1.0);
  BeginArithmetic();
  for (std::size_t i = 0; i < kPointsTo5k; ++i) {
    const double r = fc / hertz[i];
    const double a = r / qtc;
    const double b = 1 - r * r;
    const double t = half_turn - std::atan(b / a);
    degrees[i] = (t * 180) / kPi;
  }
  CheckArithmetic();
  s.PhaseDeg = std::move(degrees);
}

void FaseReflex(ProjectState& s, double vb, double fs, double qts, double fb, double vas_total) {
  Curve degrees = BeginSweep(s);
  const double ql = s.Ql;
  const double alpha = Divide(vas_total, vb);
  const double p1 = Divide(1, ql * fb) + Divide(1, fs * qts);
  const double p2 = Divide(1, qts * fb) + Divide(1, ql + fs);  // a sum, where the term above has a product: wanted
  const double p3 = (Divide(1, fs * fs) + Divide(alpha, fb * fb)) + Divide(1, ((fs * fb) * qts) * ql);
  const std::vector<double>& hertz = Sweep5k().hertz;
  const double half_turn = 2 * std::atan(1.0);
  double previous = 0.0;
  bool falling = true;
  BeginArithmetic();
  for (std::size_t i = 0; i < kPointsTo5k; ++i) {
    const double f = hertz[i];
    const double g = (fs * fb) / f;
    const double im = (((p1 * g) / f) - p2) * g;
    const double re = (g * g * (1 / (f * f) - p3)) + 1;
    const double t = std::atan(re / im) - half_turn;
    const double d = (t * 180) / kPi;
    falling = falling && previous > d;  // one unwrapping step: from the first jump on all values are raised
    degrees[i] = falling ? d : d + 180;
    previous = d;
  }
  CheckArithmetic();
  s.PhaseDeg = std::move(degrees);
}

double FoldPhaseSum(double degrees) {
  if (degrees < -180) return degrees + 360;
  if (degrees >= 180) return degrees - 360;
  return degrees;
}

void RidisegnaFase(Program& program) {
  SplGraph& spl = program.windows.frmspl;
  LoadWindow(program, spl.window);
  spl.surface.Clear();
  DrawPhase(program);
  const TraceGraph graph = PhaseTraces(program);
  if (program.state.Set2PhaseShown) DrawTrace(graph, 1);
  if (program.state.Set1PhaseShown) DrawTraceAt(graph, 0, kLoweredTop);
}

void ApriFase(Program& program) {
  ProjectState& s = program.state;
  OpenWindow(program, program.windows.frmFase.window);
  if (program.windows.frmthsm.selected_tab == "ref") {
    FaseReflex(s, s.Vb, TransducerFs(s), s.Qts, s.Fb, TotalVas(s));
  } else {
    FaseChiusa(s, s.Qtc, s.Fc);
  }
  DrawPhase(program);
  if (!s.FilterComputed) return;
  SumWithFilter(s);
  Surface& surface = program.windows.frmFase.surface;
  DisegnaCurva(s.FilterPhaseFreq, s.FilterPhaseDeg, kTop, surface, colour::kOrange);
  DisegnaCurva(s.FilterPhaseFreq, s.SumPhaseDeg, kTop, surface, colour::kMagenta);
}

void ConnectPhase(Program& program) {
  PhaseGraph& form = program.windows.frmFase;
  form.window.on.load = frmFase_Load;
  form.window.on.unload = frmFase_Unload;
  form.cmdset1.on.click = cmdset1_Click;
  form.cmdset2.on.click = cmdset2_Click;
  form.chkonoff1.on.click = chkonoff1_Click;
  form.chkonoff2.on.click = chkonoff2_Click;
  form.mnuimportafase.on.click = mnuimportafase_Click;
  form.mnusalvarosso.on.click = mnusalvarosso_Click;
  form.mnusalvablu.on.click = mnusalvablu_Click;
  form.mnuchiudifase.on.click = mnuchiudifase_Click;
  form.pctgrafFase.on.mouse_down = pctgrafFase_MouseDown;
  form.pctgrafFase.on.mouse_up = pctgrafFase_MouseUp;
}

}  // namespace zefirondo
