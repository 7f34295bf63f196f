#include "filters/phase_tool.h"

#include <array>
#include <system_error>

#include "core/events.h"
#include "core/numbers.h"
#include "core/run_time_error.h"
#include "core/window_life.h"
#include "files/phase_file.h"
#include "files/trace_file.h"
#include "filters/phase_offset.h"
#include "response/graph_surface.h"
#include "response/phase.h"

namespace zefirondo {
namespace {

constexpr double kLeft = 10;   // 10 Hz
constexpr double kWidth = 66;  // to 20 kHz
constexpr double kHeight = 360;
constexpr double kTop = 180;
constexpr double kPlotShift = 10;
constexpr const char* kBlackCurve = "Nero";
constexpr const char* kMagentaCurve = "Magenta";

PhaseOffsetTool& Tool(Program& program) { return program.windows.frmFaseSh; }

/// One of the two curves of the tool, with its trace slot.
struct CurveSlot {
  Curve ProjectState::*x;
  Curve ProjectState::*hertz;
  Curve ProjectState::*degrees;
  Curve ProjectState::*trace_x;
  Curve ProjectState::*trace_degrees;
  bool ProjectState::*stored;
  bool ProjectState::*shown;
  Control PhaseOffsetTool::*set;
  Control PhaseOffsetTool::*tick;
  Control PhaseOffsetTool::*save_entry;
  int colour;
  int trace_colour;
};

constexpr std::array<CurveSlot, 2> kSlots{{
    {&ProjectState::PhaseX1, &ProjectState::PhaseHz1, &ProjectState::PhaseDeg1, &ProjectState::Set1PhaseFreq,
     &ProjectState::Set1PhaseDeg, &ProjectState::Set1PhaseStored, &ProjectState::Set1PhaseShown,
     &PhaseOffsetTool::cmdset1, &PhaseOffsetTool::chkonoff1, &PhaseOffsetTool::mnusalvarosso, colour::kBlack,
     colour::kRed},
    {&ProjectState::PhaseX2, &ProjectState::PhaseHz2, &ProjectState::PhaseDeg2, &ProjectState::Set2PhaseFreq,
     &ProjectState::Set2PhaseDeg, &ProjectState::Set2PhaseStored, &ProjectState::Set2PhaseShown,
     &PhaseOffsetTool::cmdset2, &PhaseOffsetTool::chkonoff2, &PhaseOffsetTool::mnusalvablu, colour::kMagenta,
     colour::kBlue},
}};

// ---- the chart ----

void DrawCurve(Program& program, const CurveSlot& slot) {
  const ProjectState& s = program.state;
  DisegnaCurva(s.*slot.x, s.*slot.degrees, kTop, Tool(program).surface, slot.colour);
}

void DrawTraceOf(Program& program, const CurveSlot& slot) {
  const ProjectState& s = program.state;
  DisegnaCurva(s.*slot.trace_x, s.*slot.trace_degrees, kTop, Tool(program).surface, slot.trace_colour);
}

void ClearChart(Program& program) {
  Tool(program).surface.Clear();
  DrawPhaseGrid(Tool(program).surface);
}

/// Both curves, with the degrees given in place of those of one of them.
void DrawBothWith(Program& program, const CurveSlot& slot, const Curve& degrees) {
  const ProjectState& s = program.state;
  ClearChart(program);
  for (const CurveSlot& each : kSlots) {
    const Curve& shown = each.x == slot.x ? degrees : s.*each.degrees;
    DisegnaCurva(s.*each.x, shown, kTop, Tool(program).surface, each.colour);
  }
}

// ---- bringing curves in ----

void TakeCurve(ProjectState& s, const CurveSlot& slot, PhaseCurve curve) {
  s.*slot.x = std::move(curve.x);
  s.*slot.hertz = std::move(curve.hertz);
  s.*slot.degrees = std::move(curve.degrees);
}

/// What the arrival of a curve opens and closes.
void NoteCurve(Program& program, int number) {
  PhaseOffsetTool& form = Tool(program);
  (form.*kSlots.at(static_cast<std::size_t>(number - 1)).set).enabled = true;
  if (number != 2) return;
  form.cmdcalcola.enabled = true;
  form.cmdimporta.enabled = form.mnuimportafase.enabled = false;
}

void RefuseClipboard(Program& program, int text, int title) {
  program.Message(MessageIcon::Information, program.Text(text), program.Text(title));
}

/// Reads the staged sequence; a failure shows its text in a plain box and ends the program.
void TakeStagedSequence(Program& program, const std::filesystem::path& path, int number) {
  ProjectState& s = program.state;
  const CurveSlot& slot = kSlots.at(static_cast<std::size_t>(number - 1));
  try {
    if (!HasSequenceHeading(path)) {
      RefuseClipboard(program, 140, 141);
      s.PhaseCurveCount = 0;
      program.platform.ClearClipboard();
      return;
    }
    TakeCurve(s, slot, ReadSequence(path));
  } catch (const RunTimeError& error) {
    program.Message(MessageIcon::None, error.what(), program.windows.mdithsm.window.caption);
    EndNow(program, true);
  }
  DrawCurve(program, slot);
  NoteCurve(program, number);
}

void PastePhaseSequence(Program& program) {
  ProjectState& s = program.state;
  s.PhaseCurveCount = ToInteger(s.PhaseCurveCount + 0.7324);  // the constant of the sweep, as wanted
  const int number = s.PhaseCurveCount;
  const std::string text = program.platform.ClipboardText();
  if (text.empty()) {
    RefuseClipboard(program, 138, 139);
    CancellaTutto(program);
    return;
  }
  const std::filesystem::path path = SequencePath(program, number);
  StageSequence(path, text);
  program.platform.ClearClipboard();
  TakeStagedSequence(program, path, number);
}

void mnuimportafase_Click(Program& program) {
  ProjectState& s = program.state;
  PhaseCurve curve;
  if (!ImportPhaseTrace(program, curve)) return;
  const int number = s.PhaseCurveCount + 1;
  if (number > 2) return;
  const CurveSlot& slot = kSlots.at(static_cast<std::size_t>(number - 1));
  TakeCurve(s, slot, std::move(curve));
  NoteCurve(program, number);
  DrawCurve(program, slot);
  s.PhaseCurveCount = static_cast<std::int16_t>(number);
}

// ---- stored traces ----

void StoreCurve(Program& program, const CurveSlot& slot) {
  ProjectState& s = program.state;
  PhaseOffsetTool& form = Tool(program);
  s.*slot.trace_x = s.*slot.x;
  s.*slot.trace_degrees = s.*slot.degrees;
  if (s.*slot.shown) {
    RidisegnaFase(program);  // the graph that shares these traces
    return;
  }
  s.*slot.stored = s.*slot.shown = true;
  (form.*slot.tick).visible = true;
  SetChecked(program, form.*slot.tick, true);
}

void ToggleCurveTrace(Program& program, std::size_t place) {
  ProjectState& s = program.state;
  PhaseOffsetTool& form = Tool(program);
  const CurveSlot& slot = kSlots.at(place);
  const CurveSlot& other = kSlots.at(1 - place);
  if (!(s.*slot.stored)) return;
  const bool ticked = (form.*slot.tick).checked;
  s.*slot.shown = (form.*slot.save_entry).enabled = ticked;
  if (ticked) {
    DrawTraceOf(program, slot);
    return;
  }
  ClearChart(program);
  DrawCurve(program, slot);
  if (s.PhaseCurveCount == 2) DrawCurve(program, other);
  if (s.*other.shown) DrawTraceOf(program, other);
}

void SaveCurveTrace(Program& program, const CurveSlot& slot) {
  SaveTrace(program, slot.trace_colour, program.state.*slot.trace_x, program.state.*slot.trace_degrees);
}

void cmdset1_Click(Program& program) { StoreCurve(program, kSlots[0]); }
void cmdset2_Click(Program& program) { StoreCurve(program, kSlots[1]); }
void chkonoff1_Click(Program& program) { ToggleCurveTrace(program, 0); }
void chkonoff2_Click(Program& program) { ToggleCurveTrace(program, 1); }
void mnusalvarosso_Click(Program& program) { SaveCurveTrace(program, kSlots[0]); }
void mnusalvablu_Click(Program& program) { SaveCurveTrace(program, kSlots[1]); }

// ---- the window ----

void frmFaseSh_Load(Program& program) {
  ProjectState& s = program.state;
  PhaseOffsetTool& form = Tool(program);
  form.surface.scale = {kLeft, kWidth, kHeight};
  ClearChart(program);
  for (Control* const control :
       {&form.mnusalvarosso, &form.mnusalvablu, &form.cmdcalcola, &form.cmdset1, &form.cmdset2, &form.cmdsomma}) {
    control->enabled = false;
  }
  for (const CurveSlot& slot : kSlots) s.*slot.stored = s.*slot.shown = false;
}

void CloseTool(Program& program) { CloseWindow(program, Tool(program).window); }

void cmdchiudi_Click(Program& program) {
  CancellaTutto(program);
  CloseWindow(program, "frmsommadelay");
  CloseTool(program);
}

void mnuchiudifase_Click(Program& program) {
  ProjectState& s = program.state;
  for (Curve* const curve : {&s.PhaseX1, &s.PhaseDeg1, &s.PhaseX2, &s.PhaseDeg2}) curve->clear();
  CloseTool(program);
}

void OpenOffset(Program& program) { OpenWindow(program, "frmfasecompl"); }
void OpenDelay(Program& program) { OpenWindow(program, "frmsommadelay"); }

void pctgrafFase_MouseDown(Program& program, double x, double y) {
  PhaseOffsetTool& form = Tool(program);
  ShowReadout(form.surface, form.txtposFase, x, y, kTop - y,
              {.unit = " °", .frequency_shift = kPlotShift, .middle = kLeft});
}

void pctgrafFase_MouseUp(Program& program) { HideReadout(Tool(program).txtposFase); }

// ---- the offset ----

void frmfasecompl_Load(Program& program) { program.windows.frmfasecompl.optrelativa.checked = true; }

void ShowOffset(Program& program, const PhaseOffset& offset) {
  const auto line = [&](int text, double value, const char* unit) {
    return program.Text(text) + FormatNumber(value) + unit + "\n\n";
  };
  program.Message(MessageIcon::None,
                  line(145, offset.degrees, " °") + line(146, offset.milliseconds, " ms") +
                      line(509, offset.samples48, " samp.") + line(510, offset.samples44, " samp."),
                  program.Text(147));
}

void frmfasecompl_cmdok_Click(Program& program) {
  ProjectState& s = program.state;
  PhaseOffsetEntry& form = program.windows.frmfasecompl;
  if (form.txtfrequenza.text->empty()) {
    program.Message(MessageIcon::Stop, program.Text(142), program.Text(143));
    return;
  }
  if (s.PhaseX1.empty()) throw RunTimeError(ErrorNumber::IndexOutOfRange);
  const double fo = ReadNumber(*form.txtfrequenza.text);
  if (fo < s.PhaseX1.front()) {  // hertz against the place on the plot, as wanted
    program.ErrorMessage(program.Text(144) + "\nProvare con un valore maggiore");
    return;
  }
  const bool slope = form.optcomplessiva.checked;
  const PhaseOffset offset =
      OffsetOf(PhaseAt(s.PhaseHz1, s.PhaseDeg1, fo, slope), PhaseAt(s.PhaseHz2, s.PhaseDeg2, fo, slope), fo);
  s.PhaseShiftDeg = offset.degrees;
  s.DelayMs = offset.milliseconds;
  Tool(program).cmdsomma.enabled = true;
  CloseWindow(program, form.window);
  ShowOffset(program, offset);
}

void frmfasecompl_Close(Program& program) { CloseWindow(program, program.windows.frmfasecompl.window); }

// ---- the delay ----

DelayEntry& Delay(Program& program) { return program.windows.frmsommadelay; }

void ChooseCurve(Program& program, Control& chosen, Control& other) {
  chosen.enabled = true;
  chosen.back = colour::kWhite;
  other.enabled = false;
  other.back = colour::kGrey;
  AssignText(program, other, "");
  AssignNumber(program, chosen, program.state.DelayMs);
}

void opt1_Click(Program& program) { ChooseCurve(program, Delay(program).txtfase1, Delay(program).txtfase2); }
void opt2_Click(Program& program) { ChooseCurve(program, Delay(program).txtfase2, Delay(program).txtfase1); }

void frmsommadelay_Load(Program& program) {
  DelayEntry& form = Delay(program);
  SetOption(form.opt2);
  opt2_Click(program);
  form.cmdannulla.enabled = false;
}

void TakeDelay(ProjectState& s, const Control& field) {
  if (!field.text->empty()) s.DelayMs = ReadNumber(*field.text);
}

void txtfase1_LostFocus(Program& program) { TakeDelay(program.state, Delay(program).txtfase1); }
void txtfase2_LostFocus(Program& program) { TakeDelay(program.state, Delay(program).txtfase2); }

const CurveSlot& DelayedSlot(const ProjectState& s) { return kSlots.at(s.DelayedCurve == kMagentaCurve ? 1 : 0); }

void cmdsfasadelay_Click(Program& program) {
  ProjectState& s = program.state;
  DelayEntry& form = Delay(program);
  s.DelayedCurve = form.opt2.checked ? kMagentaCurve : kBlackCurve;
  const CurveSlot& slot = DelayedSlot(s);
  s.SumPhaseDeg = ApplyDelay(s.*slot.degrees, s.*slot.hertz, s.DelayMs);
  DrawBothWith(program, slot, s.SumPhaseDeg);
  form.cmdsfasadelay.enabled = false;
  form.cmdannulla.enabled = true;
}

void frmsommadelay_cmdannulla_Click(Program& program) {
  ProjectState& s = program.state;
  DelayEntry& form = Delay(program);
  const CurveSlot& slot = DelayedSlot(s);
  s.SumPhaseDeg = s.*slot.degrees;
  DrawBothWith(program, slot, s.SumPhaseDeg);
  form.cmdsfasadelay.enabled = true;
  form.cmdannulla.enabled = false;
}

/// The delayed curve becomes the curve. With no delay added the black curve is emptied, as wanted.
void frmsommadelay_cmdchiudi_Click(Program& program) {
  ProjectState& s = program.state;
  s.*DelayedSlot(s).degrees = s.SumPhaseDeg;
  CloseWindow(program, Delay(program).window);
}

void frmsommadelay_mnuchiudi_Click(Program& program) { CloseWindow(program, Delay(program).window); }

void ConnectTool(Program& program) {
  PhaseOffsetTool& form = Tool(program);
  form.window.on.load = frmFaseSh_Load;
  form.window.on.unload = CancellaTutto;
  form.cmdimporta.on.click = PastePhaseSequence;
  form.cmdcalcola.on.click = OpenOffset;
  form.cmdsomma.on.click = OpenDelay;
  form.cmdcancella.on.click = CancellaTutto;
  form.cmdchiudi.on.click = cmdchiudi_Click;
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

}  // namespace

void CancellaTutto(Program& program) {
  ProjectState& s = program.state;
  PhaseOffsetTool& form = Tool(program);
  std::error_code ignored;
  for (const int number : {1, 2}) std::filesystem::remove(SequencePath(program, number), ignored);
  form.surface.Clear();
  for (const CurveSlot& slot : kSlots) {
    for (Curve ProjectState::*const curve : {slot.x, slot.degrees, slot.hertz, slot.trace_x, slot.trace_degrees}) {
      (s.*curve).clear();
    }
    s.*slot.stored = s.*slot.shown = false;
    (form.*slot.set).enabled = (form.*slot.save_entry).enabled = false;
    (form.*slot.tick).checked = (form.*slot.tick).visible = false;
  }
  s.SumPhaseDeg.clear();
  s.PhaseCurveCount = 0;
  DrawPhaseGrid(form.surface);
  form.mnuimportafase.enabled = form.cmdimporta.enabled = true;
  program.platform.ClearClipboard();
  form.cmdcalcola.enabled = form.cmdsomma.enabled = false;
  s.DelayedCurve.clear();
  CloseWindow(program, "frmsommadelay");
  CloseWindow(program, "frmfasecompl");
}

void ConnectPhaseTool(Program& program) {
  ConnectTool(program);
  PhaseOffsetEntry& offset = program.windows.frmfasecompl;
  offset.window.on.load = frmfasecompl_Load;
  offset.cmdok.on.click = frmfasecompl_cmdok_Click;
  offset.mnuchiudi.on.click = frmfasecompl_Close;

  DelayEntry& delay = Delay(program);
  delay.window.on.load = frmsommadelay_Load;
  delay.opt1.on.click = opt1_Click;
  delay.opt2.on.click = opt2_Click;
  delay.txtfase1.on.lost_focus = txtfase1_LostFocus;
  delay.txtfase2.on.lost_focus = txtfase2_LostFocus;
  delay.cmdsfasadelay.on.click = cmdsfasadelay_Click;
  delay.cmdannulla.on.click = frmsommadelay_cmdannulla_Click;
  delay.cmdchiudi.on.click = frmsommadelay_cmdchiudi_Click;
  delay.mnuchiudi.on.click = frmsommadelay_mnuchiudi_Click;
}

}  // namespace zefirondo
