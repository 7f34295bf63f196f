#include "response/spl.h"

#include "core/numbers.h"
#include "core/window_life.h"
#include "response/applied_power.h"
#include "response/graph_surface.h"
#include "response/reference_level.h"
#include "response/sweep.h"

namespace zefirondo {
namespace {

constexpr double kLeft = 10;      // 3.16 Hz
constexpr double kWidth = 56.02;  // to 2 kHz
constexpr int kHeadroom = 10;
constexpr const char* kTraceWords = "Tracciato";

/// The vented response of the level curves: the tuning is the number that the sheet shows, QL an integer, and the
/// compliance that of one driver, all as wanted.
VentedResponse LevelResponse(const ProjectState& s) {
  return VentedResponse(s.Vb, TransducerFs(s), s.Qts, ReadNumber(s.txtfb), s.Vas, ToInteger(ReadNumber(s.cmbql)));
}

/// Sweeps a level curve and sets the scale that the level and air speed graphs share.
template <class Response>
void SweepSpl(ProjectState& s, const Response& response, double level, Curve& x, Curve& y) {
  x.clear();
  y.clear();
  const LevelSweep sweep = SweepLevels(response, kPointsTo2k, level, x, y);
  s.SplScaleTop = ScaleTop(sweep.maximum, kHeadroom);
}

void DrawSpl(Program& program) {
  const ProjectState& s = program.state;
  Surface& surface = program.windows.frmspl.surface;
  GrigliaSpl(s.SplScaleTop, surface);
  DisegnaCurva(s.SplFreq, s.SplDb, s.SplScaleTop, surface, colour::kBlack);
}

void DrawSplMax(Program& program) {
  ProjectState& s = program.state;
  Surface& surface = program.windows.frmsplMax.surface;
  GrigliaSpl(s.SplScaleTop, surface);
  DisegnaCurva(s.SplMaxFreq, s.SplMaxDb, s.SplScaleTop, surface, colour::kBlack);
  s.SplMaxFreq.clear();  // drawn and thrown away
  s.SplMaxDb.clear();
}

double OneDriverLevel(const ProjectState& s) {
  const DriverInputs driver = GatherDriver(s);
  return ReferenceLevel(s, driver.fs, driver.vas, driver.qes);
}

void TakeOneWattLevel(ProjectState& s) { s.USPL = OneDriverLevel(s) + WiringGain(s); }

void TakePowerLevel(ProjectState& s, double power) {
  const double one_watt = OneDriverLevel(s);  // a failure here comes before that of the power's logarithm
  s.SPLmax = 10 * Log10(power) + one_watt + WiringGain(s);
}

bool OnVentedTab(const Program& program) { return program.windows.frmthsm.selected_tab == "ref"; }

void ComputeSplMax(Program& program, double power) {
  OnVentedTab(program) ? SplMaxReflex(program, power) : SplMaxChiusa(program, power);
}

void frmspl_Load(Program& program) {
  ProjectState& s = program.state;
  SplGraph& form = program.windows.frmspl;
  SendToBack(program, program.windows.frmthsm.window);
  form.surface.scale = {kLeft, kWidth, static_cast<double>(s.SplScaleTop)};
  form.surface.Clear();
  form.cmdsommaspl.enabled = form.cmdcancellaspl.enabled = false;
  ShowTraceTicks(SplTraces(program));
  form.mnusalvasplRosso.enabled = form.mnusalvaSplBlu.enabled = false;
  s.GrafSplOpen = true;
}

void frmspl_Unload(Program& program) {
  ProjectState& s = program.state;
  for (Curve* const curve : {&s.SplFreq, &s.SplDb, &s.Set1SplFreq, &s.Set1SplDb, &s.Set2SplFreq, &s.Set2SplDb}) {
    curve->clear();
  }
  s.Set1SplStored = s.Set2SplStored = s.Set1SplShown = s.Set2SplShown = s.GrafSplOpen = false;
}

/// A slot that is stored anew while it is shown drops a sum that was made before.
void RestoreSpl(Program& program) {
  SplGraph& form = program.windows.frmspl;
  form.cmdcancellaspl.enabled = form.cmdsommaspl.enabled = false;
  form.mnuimportaOverlay.enabled = true;
  program.state.SumFreq.clear();
  program.state.SumDb.clear();
  RidisegnaSpl(program);
}

void frmspl_cmdset1_Click(Program& program) { StoreTrace(program, SplTraces(program), 0); }
void frmspl_cmdset2_Click(Program& program) { StoreTrace(program, SplTraces(program), 1); }
void frmspl_chkonoff1_Click(Program& program) { ToggleTrace(program, SplTraces(program), 0); }
void frmspl_chkonoff2_Click(Program& program) { ToggleTrace(program, SplTraces(program), 1); }
void mnuimportatracciato_Click(Program& program) { PaintTraceFile(program, SplTraces(program), kTraceWords); }
void mnusalvasplRosso_Click(Program& program) { SaveTraceSlot(program, SplTraces(program), 0); }
void mnusalvaSplBlu_Click(Program& program) { SaveTraceSlot(program, SplTraces(program), 1); }
void frmspl_mnuchiudi_Click(Program& program) { CloseWindow(program, program.windows.frmspl.window); }

void ShowLevelReadout(const Surface& surface, Control& readout, double x, double y) {
  ShowReadout(surface, readout, x, y, surface.scale.height - y, {" dB"});
}

void frmspl_MouseDown(Program& program, double x, double y) {
  SplGraph& form = program.windows.frmspl;
  ShowLevelReadout(form.surface, form.txtpos, x, y);
}

void frmspl_MouseUp(Program& program) { HideReadout(program.windows.frmspl.txtpos); }

void frmsplMax_Load(Program& program) {
  ProjectState& s = program.state;
  SplMaxGraph& form = program.windows.frmsplMax;
  SendToBack(program, program.windows.frmthsm.window);
  form.surface.scale = {kLeft, kWidth, static_cast<double>(s.SplScaleTop)};
  form.surface.Clear();
  AssignText(program, form.lblnomegrafspl, program.Text(317) + " @ " + s.txtpotenza + " W Rms");
  AssignText(program, form.txtpot, s.txtpotenza);
  s.GrafSplMaxOpen = true;
}

void frmsplMax_Unload(Program& program) { program.state.GrafSplMaxOpen = false; }

void frmsplMax_cmdcalc_Click(Program& program) {
  SplMaxGraph& form = program.windows.frmsplMax;
  const double power = TakeTypedPower(program, form.txtpot);
  if (power == 0.0) return;
  form.surface.Clear();
  ComputeSplMax(program, power);
  // No " @ " in this form of the title, as wanted.
  AssignText(program, form.lblnomegrafspl, program.Text(205) + *form.txtpot.text + " W Rms");
}

void frmsplMax_mnuchiudi_Click(Program& program) { CloseWindow(program, program.windows.frmsplMax.window); }

void frmsplMax_MouseDown(Program& program, double x, double y) {
  SplMaxGraph& form = program.windows.frmsplMax;
  ShowLevelReadout(form.surface, form.txtpos, x, y);
}

void frmsplMax_MouseUp(Program& program) { HideReadout(program.windows.frmsplMax.txtpos); }

}  // namespace

void SplReflex(Program& program) {
  ProjectState& s = program.state;
  const VentedResponse response = LevelResponse(s);
  TakeOneWattLevel(s);
  SweepSpl(s, response, s.USPL, s.SplFreq, s.SplDb);
  DrawSpl(program);
}

void SplChiusa(Program& program) {
  ProjectState& s = program.state;
  TakeOneWattLevel(s);
  SweepSpl(s, ClosedResponse(s.Qtc, s.Fc), s.USPL, s.SplFreq, s.SplDb);
  DrawSpl(program);
}

void SplMaxReflex(Program& program, double power) {
  ProjectState& s = program.state;
  const VentedResponse response = LevelResponse(s);
  TakePowerLevel(s, power);
  SweepSpl(s, response, s.SPLmax, s.SplMaxFreq, s.SplMaxDb);
  DrawSplMax(program);
}

void SplMaxChiusa(Program& program, double power) {
  ProjectState& s = program.state;
  TakePowerLevel(s, power);
  SweepSpl(s, ClosedResponse(s.Qtc, s.Fc), s.SPLmax, s.SplMaxFreq, s.SplMaxDb);
  DrawSplMax(program);
}

TraceGraph SplTraces(Program& program) {
  ProjectState& s = program.state;
  SplGraph& form = program.windows.frmspl;
  return {{TraceSlot{&s.Set1SplFreq, &s.Set1SplDb, &s.Set1SplStored, &s.Set1SplShown, &form.chkonoff1,
                     &form.mnusalvasplRosso, colour::kRed},
           TraceSlot{&s.Set2SplFreq, &s.Set2SplDb, &s.Set2SplStored, &s.Set2SplShown, &form.chkonoff2,
                     &form.mnusalvaSplBlu, colour::kBlue}},
          &s.SplFreq,
          &s.SplDb,
          static_cast<double>(s.SplScaleTop),
          &form.surface,
          DrawPlainSpl,
          RestoreSpl};
}

void DrawPlainSpl(Program& program) {
  program.windows.frmspl.surface.Clear();
  DrawSpl(program);
}

void RidisegnaSpl(Program& program) {
  DrawPlainSpl(program);
  const TraceGraph graph = SplTraces(program);
  if (program.state.Set1SplShown) DrawTrace(graph, 0);
  if (program.state.Set2SplShown) DrawTrace(graph, 1);
}

void ApriSpl(Program& program) {
  OpenWindow(program, program.windows.frmspl.window);
  OnVentedTab(program) ? SplReflex(program) : SplChiusa(program);
}

void ApriSplMax(Program& program) {
  const double power = ReadNumber(program.state.txtpotenza);
  OpenWindow(program, program.windows.frmsplMax.window);
  ComputeSplMax(program, power);
}

void ConnectSpl(Program& program) {
  SplGraph& spl = program.windows.frmspl;
  spl.window.on.load = frmspl_Load;
  spl.window.on.unload = frmspl_Unload;
  spl.cmdset1.on.click = frmspl_cmdset1_Click;
  spl.cmdset2.on.click = frmspl_cmdset2_Click;
  spl.chkonoff1.on.click = frmspl_chkonoff1_Click;
  spl.chkonoff2.on.click = frmspl_chkonoff2_Click;
  spl.mnuimportatracciato.on.click = mnuimportatracciato_Click;
  spl.mnusalvasplRosso.on.click = mnusalvasplRosso_Click;
  spl.mnusalvaSplBlu.on.click = mnusalvaSplBlu_Click;
  spl.mnuchiudi.on.click = frmspl_mnuchiudi_Click;
  spl.pctgrafspl.on.mouse_down = frmspl_MouseDown;
  spl.pctgrafspl.on.mouse_up = frmspl_MouseUp;

  SplMaxGraph& max = program.windows.frmsplMax;
  max.window.on.load = frmsplMax_Load;
  max.window.on.unload = frmsplMax_Unload;
  max.cmdcalc.on.click = frmsplMax_cmdcalc_Click;
  max.mnuchiudi.on.click = frmsplMax_mnuchiudi_Click;
  max.pctgrafspl.on.mouse_down = frmsplMax_MouseDown;
  max.pctgrafspl.on.mouse_up = frmsplMax_MouseUp;
}

}  // namespace zefirondo
