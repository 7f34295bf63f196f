#include "filters/filter_designer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "core/events.h"
#include "core/numbers.h"
#include "core/run_time_error.h"
#include "core/window_life.h"
#include "filters/filter_response.h"
#include "response/box_response.h"
#include "response/graph_surface.h"
#include "response/sweep.h"

namespace zefirondo {
namespace {

constexpr const char* kBandPass = "Band Pass";
constexpr std::array<std::string_view, 3> kSlopes{"6 dB/Oct", "12 dB/Oct", "18 dB/Oct"};
constexpr int kSteepest = 4;
constexpr int kBoxHeadroom = 25;

FilterDesigner& Designer(Program& program) { return program.windows.frmfiltri; }

bool Has(const Control& combo, std::string_view item) {
  return std::find(combo.list.begin(), combo.list.end(), item) != combo.list.end();
}

std::int16_t OrderOf(const std::string& slope) {
  const auto found = std::find(kSlopes.begin(), kSlopes.end(), slope);
  return static_cast<std::int16_t>(found == kSlopes.end() ? kSteepest : found - kSlopes.begin() + 1);
}

void cmbpendenza_Click(Program& program) {
  Designer(program).SlopeOrder = OrderOf(*Designer(program).cmbpendenza.text);
}

/// The number of a field in single precision.
float ReadSingle(const Control& field) {
  const double value = ReadNumber(*field.text);
  if (std::fabs(value) > std::numeric_limits<float>::max()) throw RunTimeError(ErrorNumber::Overflow);
  return static_cast<float>(value);
}

void TakeGain(Program& program) { Designer(program).Gain = ReadSingle(Designer(program).cmbgain); }

void TakeFrequencies(FilterDesigner& form) {
  form.Ft = ReadSingle(form.txtft);
  form.Fi = ReadSingle(form.txtFinf);
}

void frmfiltri_Load(Program& program) {
  FilterDesigner& form = Designer(program);
  form.Alignment = *form.cmballineamento.text;
  form.FilterType = *form.cmbtipo.text;
  cmbpendenza_Click(program);
  TakeGain(program);
  TakeFrequencies(form);
  for (Control* const control : {&form.lblFh, &form.txtFinf, &form.lblQ, &form.cmbQ, &form.cmdcanc, &form.mnusintesi}) {
    control->enabled = false;
  }
}

// ---- the choices ----

void EnableUpper(FilterDesigner& form, bool enabled) { form.lblft.enabled = form.txtft.enabled = enabled; }
void EnableLower(FilterDesigner& form, bool enabled) { form.lblFh.enabled = form.txtFinf.enabled = enabled; }

void cmbtipo_Click(Program& program) {
  FilterDesigner& form = Designer(program);
  const std::string& type = *form.cmbtipo.text;
  if (type == "Low Pass") {
    EnableLower(form, false);
    EnableUpper(form, true);
  } else if (type == "Hi Pass") {
    EnableLower(form, true);
    EnableUpper(form, false);
  } else if (type == kBandPass) {
    EnableLower(form, true);
    EnableUpper(form, true);
  }
  form.FilterType = type;
}

void ShowSlope(FilterDesigner& form, bool shown) { form.lblpendenza.visible = form.cmbpendenza.visible = shown; }
void EnableQ(FilterDesigner& form, bool enabled) { form.lblQ.enabled = form.cmbQ.enabled = enabled; }

void ShowTypes(FilterDesigner& form, bool shown) {
  form.cmbtipo.visible = form.lbltipo.visible = shown;
  form.txtFinf.visible = form.lblFh.visible = form.lblfhi.visible = shown;
}

void ChooseType(Program& program, const std::string& type) {
  AssignText(program, Designer(program).cmbtipo, type);
  cmbtipo_Click(program);
}

void ChooseSlopes(Program& program, const std::string& q) {
  FilterDesigner& form = Designer(program);
  AssignText(program, form.cmbQ, q);
  ShowSlope(form, true);
  if (!Has(form.cmbtipo, kBandPass)) form.cmbtipo.list.emplace_back(kBandPass);
  EnableQ(form, false);
  AssignText(program, form.lblft, program.Text(206));
  ShowTypes(form, true);
}

void ChooseShelving(Program& program) {
  FilterDesigner& form = Designer(program);
  AssignText(program, form.cmbQ, "0.707");
  ShowSlope(form, false);
  if (form.cmbtipo.list.size() == 3) {
    ChooseType(program, form.cmbtipo.list.front());
    form.cmbtipo.list.pop_back();
  }
  EnableQ(form, true);
  AssignText(program, form.lblft, program.Text(206));
  ShowTypes(form, true);
}

void ChoosePeaking(Program& program) {
  FilterDesigner& form = Designer(program);
  AssignText(program, form.cmbQ, "0.707");
  ShowSlope(form, false);
  AssignText(program, form.cmbtipo, "Low Pass");  // the text alone: the type plays no part here
  EnableQ(form, true);
  AssignText(program, form.lblft, program.Text(207));
  EnableUpper(form, true);
  ShowTypes(form, false);
}

void cmballineamento_Click(Program& program) {
  FilterDesigner& form = Designer(program);
  const std::string alignment = *form.cmballineamento.text;
  if (alignment == "Bessel") ChooseSlopes(program, "0.5");
  if (alignment == "Butterworth") ChooseSlopes(program, "0.707");
  if (alignment == "Shelving") ChooseShelving(program);
  if (alignment == "Peaking") ChoosePeaking(program);
  form.Alignment = alignment;
}

// ---- leaving: the text is repaired, and what the formulas work on stays until the next click, as wanted ----

void cmballineamento_LostFocus(Program& program) {
  Control& combo = Designer(program).cmballineamento;
  if (!Has(combo, *combo.text)) AssignText(program, combo, "Butterworth");
}

void cmbtipo_LostFocus(Program& program) {
  Control& combo = Designer(program).cmbtipo;
  if (!Has(combo, *combo.text)) AssignText(program, combo, "Low Pass");
}

void cmbpendenza_LostFocus(Program& program) {
  Control& combo = Designer(program).cmbpendenza;
  if (*combo.text == "0") program.ErrorMessage(program.Text(125));
  if (!Has(combo, *combo.text)) AssignText(program, combo, "12 dB/Oct");
}

// ---- the buttons ----

/// The top of the box graph by the box curve alone, kept as an integer while the sweep goes on.
int PeakOfBox(const ProjectState& s) {
  if (s.BoxDb.size() < kPointsTo5k) throw RunTimeError(ErrorNumber::IndexOutOfRange);
  int peak = 0;
  for (std::size_t i = 0; i < kPointsTo5k; ++i) {
    if (s.BoxDb[i] > peak) peak = ToInteger(s.BoxDb[i]);
  }
  return peak;
}

void StoreFilter(ProjectState& s, FilterCurves curves) {
  s.FilterFreq = curves.x;
  s.FilterPhaseFreq = std::move(curves.x);
  s.FilterDb = std::move(curves.db);
  s.FilterPhaseDeg = std::move(curves.degrees);
  s.SumFreq.resize(s.FilterFreq.size());  // ready for a sum
  s.SumDb.resize(s.FilterFreq.size());
}

void EraseFilter(ProjectState& s) {
  for (Curve* const curve : {&s.FilterFreq, &s.FilterDb, &s.FilterPhaseFreq, &s.FilterPhaseDeg}) curve->clear();
}

/// Computes the filter into the record; nothing for a combination that is not offered.
void ComputeFilter(ProjectState& s, const FilterDesigner& form) {
  EraseFilter(s);
  const FilterSettings settings{
      form.Alignment, form.FilterType, form.SlopeOrder, form.Gain, ReadNumber(*form.cmbQ.text), form.Ft, form.Fi};
  int peak = 0;
  if (auto curves = FilterResponse(settings)) {
    peak = PeakOfBox(s);
    StoreFilter(s, std::move(*curves));
  }
  s.BoxScaleTop = ToInteger(peak + kBoxHeadroom);  // the filter's own level has no say in it
}

void cmdvisualizza_Click(Program& program) {
  ProjectState& s = program.state;
  FilterDesigner& form = Designer(program);
  BoxResponse& box = program.windows.frmgrafcassa;
  TakeGain(program);
  TakeFrequencies(form);
  if (form.FilterType == kBandPass && form.Ft <= form.Fi && form.Alignment != "Peaking") {
    program.ErrorMessage(program.Text(137));
    return;
  }
  if (!program.windows.frmFase.window.hidden) CloseWindow(program, "frmFase");
  ComputeFilter(s, form);
  DisegnaCurva(s.FilterFreq, s.FilterDb, s.BoxScaleTop, box.surface, colour::kOrange);
  box.cmdsomma.enabled = box.cmdcancella.enabled = true;
  form.cmdvisualizza.enabled = form.cmdannulla.enabled = false;
  s.FilterComputed = true;
  form.cmdcanc.enabled = form.mnusintesi.enabled = true;
  if (*form.cmbgain.text != "0.0") form.mnupassivo.enabled = false;
  Blocca(program);
}

void cmdcanc_Click(Program& program) {
  ProjectState& s = program.state;
  FilterDesigner& form = Designer(program);
  DrawPlainBox(program);
  DropBoxSum(program);
  for (Curve* const curve : {&s.SumPhaseDeg, &s.Set1BoxFreq, &s.Set1BoxDb, &s.FilterFreq, &s.FilterDb}) {
    curve->clear();
  }
  ForgetBoxTraces(program);
  form.cmdvisualizza.enabled = form.cmdannulla.enabled = true;
  form.cmdcanc.enabled = false;
  s.FilterComputed = false;
  CloseWindow(program, "frmFase");
  form.mnusintesi.enabled = false;
  Sblocca(program);
}

void CloseDesigner(Program& program) { CloseWindow(program, Designer(program).window); }

void cmdannulla_Click(Program& program) {
  program.state.FilterComputed = false;
  CloseDesigner(program);
}

/// The button "Delete" of the box graph frees a filter that is shown.
void FreeAfterDelete(Program& program) {
  FilterDesigner& form = Designer(program);
  if (!form.window.open) return;
  form.cmdvisualizza.enabled = form.cmdannulla.enabled = true;
  form.cmdcanc.enabled = form.mnusintesi.enabled = false;
  Sblocca(program);
}

void SetLocked(Program& program, bool locked) {
  FilterDesigner& form = Designer(program);
  for (Control* const control : {&form.cmballineamento, &form.cmbtipo, &form.cmbpendenza, &form.txtft, &form.txtFinf,
                                 &form.cmbgain, &form.cmbQ}) {
    control->locked = locked;
    control->back = locked ? colour::kGrey : colour::kWindow;
  }
}

}  // namespace

void Blocca(Program& program) { SetLocked(program, true); }
void Sblocca(Program& program) { SetLocked(program, false); }

void ConnectFilterDesigner(Program& program) {
  FilterDesigner& form = Designer(program);
  form.window.on.load = frmfiltri_Load;
  form.cmballineamento.on.click = cmballineamento_Click;
  form.cmballineamento.on.lost_focus = cmballineamento_LostFocus;
  form.cmbtipo.on.click = cmbtipo_Click;
  form.cmbtipo.on.lost_focus = cmbtipo_LostFocus;
  form.cmbpendenza.on.click = cmbpendenza_Click;
  form.cmbpendenza.on.lost_focus = cmbpendenza_LostFocus;
  form.cmbgain.on.click = form.cmbgain.on.change = TakeGain;
  form.cmdvisualizza.on.click = cmdvisualizza_Click;
  form.cmdcanc.on.click = cmdcanc_Click;
  form.cmdannulla.on.click = cmdannulla_Click;
  form.mnuchiudi.on.click = CloseDesigner;
  program.windows.frmgrafcassa.released = FreeAfterDelete;
}

}  // namespace zefirondo
