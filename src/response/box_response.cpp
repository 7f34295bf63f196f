#include "response/box_response.h"

#include <initializer_list>
#include <string>

#include "core/events.h"
#include "core/numbers.h"
#include "core/window_life.h"
#include "files/trace_file.h"
#include "response/graph_surface.h"

namespace zefirondo {
namespace {

constexpr double kLeft = 20;      // 10 Hz
constexpr double kWidth = 53.96;  // to 4984 Hz
constexpr double kZeroDecibel = 40;

/// One of the two stored traces of the box graph.
struct Slot {
  Curve ProjectState::*freq;
  Curve ProjectState::*db;
  bool ProjectState::*stored;
  bool ProjectState::*shown;
  Control BoxResponse::*tick;
  Control BoxResponse::*save_entry;
  int colour;
};

constexpr Slot kSlot1{&ProjectState::Set1BoxFreq,
                      &ProjectState::Set1BoxDb,
                      &ProjectState::Set1BoxStored,
                      &ProjectState::Set1BoxShown,
                      &BoxResponse::chkonoff1,
                      &BoxResponse::mnusalvatracciatorosso,
                      colour::kRed};
constexpr Slot kSlot2{&ProjectState::Set2BoxFreq,
                      &ProjectState::Set2BoxDb,
                      &ProjectState::Set2BoxStored,
                      &ProjectState::Set2BoxShown,
                      &BoxResponse::chkonoff2,
                      &BoxResponse::mnusalvatracciatoblu,
                      colour::kBlue};

void DrawSlot(Program& program, const Slot& slot) {
  ProjectState& s = program.state;
  DisegnaCurva(s.*slot.freq, s.*slot.db, s.BoxScaleTop, program.windows.frmgrafcassa.surface, slot.colour);
}

/// Clears the plot, and draws the grid and the computed curve.
void DrawPlain(Program& program) {
  const ProjectState& s = program.state;
  Surface& surface = program.windows.frmgrafcassa.surface;
  surface.Clear();
  GrigliaCassa(s.BoxScaleTop, surface);
  DisegnaCurva(s.BoxFreq, s.BoxDb, s.BoxScaleTop, surface, colour::kBlack);
}

void StoreSlot(Program& program, const Slot& slot) {
  ProjectState& s = program.state;
  BoxResponse& form = program.windows.frmgrafcassa;
  s.*slot.freq = s.BoxFreq;
  s.*slot.db = s.BoxDb;
  if (s.*slot.shown) {
    DropBoxSum(program);
    RidisegnaCassa(program);
    return;
  }
  s.*slot.stored = s.*slot.shown = true;
  (form.*slot.tick).visible = true;
  SetChecked(program, form.*slot.tick, true);
}

void ToggleSlot(Program& program, const Slot& slot, const Slot& other) {
  ProjectState& s = program.state;
  BoxResponse& form = program.windows.frmgrafcassa;
  if (!(s.*slot.stored)) return;
  const bool ticked = (form.*slot.tick).checked;
  s.*slot.shown = ticked;
  (form.*slot.save_entry).enabled = ticked;
  if (ticked) {
    DrawSlot(program, slot);
    return;
  }
  DrawPlain(program);
  if (s.*other.shown) DrawSlot(program, other);
}

void cmdset1_Click(Program& program) { StoreSlot(program, kSlot1); }
void cmdset2_Click(Program& program) { StoreSlot(program, kSlot2); }
void chkonoff1_Click(Program& program) { ToggleSlot(program, kSlot1, kSlot2); }
void chkonoff2_Click(Program& program) { ToggleSlot(program, kSlot2, kSlot1); }

void ShowSlotAtLoad(Program& program, const Slot& slot) {
  const ProjectState& s = program.state;
  BoxResponse& form = program.windows.frmgrafcassa;
  (form.*slot.tick).visible = s.*slot.stored;
  (form.*slot.tick).checked = s.*slot.shown;
  (form.*slot.save_entry).enabled = s.*slot.shown;
}

void DisableCalibration(BoxResponse& form) {
  for (Control* const control : {&form.cmdpiu, &form.cmdmeno, &form.txtdbcal, &form.cmdcalibra}) {
    control->enabled = false;
  }
}

void frmgrafcassa_Load(Program& program) {
  BoxResponse& form = program.windows.frmgrafcassa;
  SendToBack(program, program.windows.frmthsm.window);
  form.surface.scale = {kLeft, kWidth, static_cast<double>(program.state.BoxScaleTop)};
  form.surface.Clear();
  form.OverlayFreq.clear();
  form.OverlayDb.clear();
  form.CalibrationDb = 0.0;
  ShowSlotAtLoad(program, kSlot1);
  ShowSlotAtLoad(program, kSlot2);
  form.cmdsomma.enabled = form.cmdcancella.enabled = false;
  DisableCalibration(form);
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

void ForgetSlots(Program& program) {
  ProjectState& s = program.state;
  BoxResponse& form = program.windows.frmgrafcassa;
  s.Set1BoxFreq.clear();  // slot 2 keeps its arrays, without effect: its flags fall
  s.Set1BoxDb.clear();
  for (const Slot* const slot : {&kSlot1, &kSlot2}) {
    s.*slot->stored = s.*slot->shown = false;
    (form.*slot->tick).visible = (form.*slot->tick).checked = false;
  }
}

void cmdcancella_Click(Program& program) {
  ProjectState& s = program.state;
  BoxResponse& form = program.windows.frmgrafcassa;
  DrawPlain(program);
  DropBoxSum(program);
  ForgetSlots(program);
  for (Curve* const curve : {&s.SumPhaseDeg, &form.OverlayFreq, &form.OverlayDb, &s.FilterFreq, &s.FilterDb}) {
    curve->clear();
  }
  AssignText(program, form.txtdbcal, "0");
  DisableCalibration(form);
  s.FilterComputed = false;
  CloseWindow(program, "frmFase");
}

void mnuimportatracciato_Click(Program& program) {
  Trace trace;
  if (!ImportTrace(program, program.Text(468), trace)) return;
  DisegnaCurva(trace.x, trace.y, program.state.BoxScaleTop, program.windows.frmgrafcassa.surface, trace.colour);
}

void SaveSlot(Program& program, const Slot& slot) {
  SaveTrace(program, slot.colour, program.state.*slot.freq, program.state.*slot.db);
}

void mnusalvatracciatorosso_Click(Program& program) { SaveSlot(program, kSlot1); }
void mnusalvatracciatoblu_Click(Program& program) { SaveSlot(program, kSlot2); }

void mnuchiudigraf_Click(Program& program) { CloseWindow(program, program.windows.frmgrafcassa.window); }

void mnufiltri_Click(Program& program) { OpenWindow(program, "frmfiltri"); }

void pctgraf_MouseDown(Program& program, double x, double y) {
  BoxResponse& form = program.windows.frmgrafcassa;
  ShowReadout(form.surface, form.txtpos, x, y, program.state.BoxScaleTop - (y + kZeroDecibel), {" dB"});
}

void pctgraf_MouseUp(Program& program) { HideReadout(program.windows.frmgrafcassa.txtpos); }

}  // namespace

void RidisegnaCassa(Program& program) {
  const ProjectState& s = program.state;
  Window& window = program.windows.frmgrafcassa.window;
  LoadWindow(program, window);
  DrawPlain(program);
  if (s.Set1BoxShown) DrawSlot(program, kSlot1);
  if (s.Set2BoxShown) DrawSlot(program, kSlot2);
  BringToFront(program, window);
  SendToBack(program, program.windows.frmthsm.window);
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
