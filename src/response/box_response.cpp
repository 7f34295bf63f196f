#include "response/box_response.h"

#include <string>

#include "core/numbers.h"
#include "core/window_life.h"
#include "response/graph_surface.h"
#include "response/stored_traces.h"

namespace zefirondo {
namespace {

constexpr double kLeft = 20;      // 10 Hz
constexpr double kWidth = 53.96;  // to 4984 Hz
constexpr double kZeroDecibel = 40;

/// A slot that is stored anew while it is shown drops a sum that was made before.
void RestoreBox(Program& program) {
  DropBoxSum(program);
  RidisegnaCassa(program);
}

TraceGraph BoxTraces(Program& program) {
  ProjectState& s = program.state;
  BoxResponse& form = program.windows.frmgrafcassa;
  return {{TraceSlot{&s.Set1BoxFreq, &s.Set1BoxDb, &s.Set1BoxStored, &s.Set1BoxShown, &form.chkonoff1,
                     &form.mnusalvatracciatorosso, colour::kRed},
           TraceSlot{&s.Set2BoxFreq, &s.Set2BoxDb, &s.Set2BoxStored, &s.Set2BoxShown, &form.chkonoff2,
                     &form.mnusalvatracciatoblu, colour::kBlue}},
          &s.BoxFreq,
          &s.BoxDb,
          static_cast<double>(s.BoxScaleTop),
          &form.surface,
          DrawPlainBox,
          RestoreBox};
}

void cmdset1_Click(Program& program) { StoreTrace(program, BoxTraces(program), 0); }
void cmdset2_Click(Program& program) { StoreTrace(program, BoxTraces(program), 1); }
void chkonoff1_Click(Program& program) { ToggleTrace(program, BoxTraces(program), 0); }
void chkonoff2_Click(Program& program) { ToggleTrace(program, BoxTraces(program), 1); }

void frmgrafcassa_Load(Program& program) {
  BoxResponse& form = program.windows.frmgrafcassa;
  SendToBack(program, program.windows.frmthsm.window);
  form.surface.scale = {kLeft, kWidth, static_cast<double>(program.state.BoxScaleTop)};
  form.surface.Clear();
  form.OverlayFreq.clear();
  form.OverlayDb.clear();
  form.CalibrationDb = 0.0;
  const TraceGraph graph = BoxTraces(program);
  ShowTraceTicks(graph);
  for (const TraceSlot& slot : graph.slots) slot.save_entry->enabled = *slot.shown;
  form.cmdsomma.enabled = form.cmdcancella.enabled = false;
  EnableCalibration(program, false);
  program.state.GrafCassaOpen = true;
  RidisegnaCassa(program);
}

void frmgrafcassa_Activate(Program& program) {
  const ProjectState& s = program.state;
  BoxResponse& form = program.windows.frmgrafcassa;
  const std::string& tab = program.windows.frmthsm.selected_tab;
  std::string text = "****";
  if (tab == "ref" && s.F3v != 0.0) {
    text = FormatNumber(s.F3v);
  } else if (tab == "chi" && s.F3c != 0.0) {
    text = FormatNumber(s.F3c);
  }
  AssignText(program, form.txtF3dB, text);
}

void frmgrafcassa_Unload(Program& program) {
  CloseWindow(program, "frmfiltri");
  program.state.GrafCassaOpen = false;
}

void cmdcancella_Click(Program& program) {
  ProjectState& s = program.state;
  BoxResponse& form = program.windows.frmgrafcassa;
  DrawPlainBox(program);
  DropBoxSum(program);
  ForgetBoxTraces(program);
  // Slot 2 keeps its arrays, without effect: its flags have fallen.
  for (Curve* const curve :
       {&s.Set1BoxFreq, &s.Set1BoxDb, &s.SumPhaseDeg, &form.OverlayFreq, &form.OverlayDb, &s.FilterFreq, &s.FilterDb}) {
    curve->clear();
  }
  AssignText(program, form.txtdbcal, "0");
  EnableCalibration(program, false);
  s.FilterComputed = false;
  CloseWindow(program, "frmFase");
  if (form.released != nullptr) form.released(program);
}

void mnuimportatracciato_Click(Program& program) { PaintTraceFile(program, BoxTraces(program), program.Text(468)); }

void mnusalvatracciatorosso_Click(Program& program) { SaveTraceSlot(program, BoxTraces(program), 0); }
void mnusalvatracciatoblu_Click(Program& program) { SaveTraceSlot(program, BoxTraces(program), 1); }

void mnuchiudigraf_Click(Program& program) { CloseWindow(program, program.windows.frmgrafcassa.window); }

void mnufiltri_Click(Program& program) { OpenWindow(program, "frmfiltri"); }

void pctgraf_MouseDown(Program& program, double x, double y) {
  BoxResponse& form = program.windows.frmgrafcassa;
  ShowReadout(form.surface, form.txtpos, x, y, program.state.BoxScaleTop - (y + kZeroDecibel), {" dB"});
}

void pctgraf_MouseUp(Program& program) { HideReadout(program.windows.frmgrafcassa.txtpos); }

}  // namespace

void DrawPlainBox(Program& program) {
  const ProjectState& s = program.state;
  Surface& surface = program.windows.frmgrafcassa.surface;
  surface.Clear();
  GrigliaCassa(s.BoxScaleTop, surface);
  DisegnaCurva(s.BoxFreq, s.BoxDb, s.BoxScaleTop, surface, colour::kBlack);
}

void RidisegnaCassa(Program& program) {
  Window& window = program.windows.frmgrafcassa.window;
  LoadWindow(program, window);
  DrawPlainBox(program);
  const TraceGraph graph = BoxTraces(program);
  if (program.state.Set1BoxShown) DrawTrace(graph, 0);
  if (program.state.Set2BoxShown) DrawTrace(graph, 1);
  BringToFront(program, window);
  SendToBack(program, program.windows.frmthsm.window);
}

void ForgetBoxTraces(Program& program) { ForgetTraces(BoxTraces(program)); }

void EnableCalibration(Program& program, bool enabled) {
  BoxResponse& form = program.windows.frmgrafcassa;
  for (Control* const control : {&form.cmdpiu, &form.cmdmeno, &form.txtdbcal, &form.cmdcalibra}) {
    control->enabled = enabled;
  }
}

void DropBoxSum(Program& program) {
  BoxResponse& form = program.windows.frmgrafcassa;
  form.cmdcancella.enabled = form.cmdsomma.enabled = false;
  form.mnuimportaOverlay.enabled = true;
  program.state.SumFreq.clear();
  program.state.SumDb.clear();
}

void ConnectBoxResponse(Program& program) {
  BoxResponse& form = program.windows.frmgrafcassa;
  form.window.on.load = frmgrafcassa_Load;
  form.window.on.activate = frmgrafcassa_Activate;
  form.window.on.unload = frmgrafcassa_Unload;
  form.cmdset1.on.click = cmdset1_Click;
  form.cmdset2.on.click = cmdset2_Click;
  form.chkonoff1.on.click = chkonoff1_Click;
  form.chkonoff2.on.click = chkonoff2_Click;
  form.cmdcancella.on.click = cmdcancella_Click;
  form.mnuimportatracciato.on.click = mnuimportatracciato_Click;
  form.mnusalvatracciatorosso.on.click = mnusalvatracciatorosso_Click;
  form.mnusalvatracciatoblu.on.click = mnusalvatracciatoblu_Click;
  form.mnuchiudigraf.on.click = mnuchiudigraf_Click;
  form.mnufiltri.on.click = mnufiltri_Click;
  form.pctgraf.on.mouse_down = pctgraf_MouseDown;
  form.pctgraf.on.mouse_up = pctgraf_MouseUp;
}

}  // namespace zefirondo
