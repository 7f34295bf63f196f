#include "box/geometry.h"

#include <cmath>

#include "core/focus.h"
#include "core/numbers.h"
#include "core/window_life.h"

namespace zefirondo {
namespace {

constexpr const char* kRatioHigh = "1.62  1  0.62";
constexpr const char* kRatioLow = "1.25  1  0.8";
constexpr double kDefaultTilt = 15.0;
constexpr double kLargestTilt = 30.0;

double CubeRoot(double volume) {
  // A negative volume, of a Qtc that cannot be reached, gives negative dimensions.
  return volume < 0 ? -std::pow(-volume, 1.0 / 3.0) : std::pow(volume, 1.0 / 3.0);
}

void SetTrapezoidControls(Sheet& sheet, bool trapezoid) {
  sheet.imgbox[0].visible = !trapezoid;
  sheet.imgbox[1].visible = trapezoid;
  for (Control* const control : {&sheet.lblLD, &sheet.txtld, &sheet.lblgradi, &sheet.cmbgradi}) {
    control->enabled = trapezoid;
  }
}

/// Takes over a trapezoid of this depth, on the front width of the state.
void TakeTrapezoid(Program& program, double area, double depth) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  const double rear = Divide(2 * area, depth) - s.WidthPrism;
  ShowDimension(program, sheet.txtp, depth);
  ShowDimension(program, sheet.txtld, rear);
  s.DepthPrismTrapez = depth;
  s.WidthRearPrism = rear;
}

/// Computes the trapezoid at a tilt; on failure the tilt goes back to the last one accepted.
bool TiltTo(Program& program, double area, double degrees) {
  Sheet& sheet = program.windows.frmthsm;
  const double depth = ProfonditaTrapezio(program, area, program.state.WidthPrism, degrees);
  if (depth == -1) {
    AssignNumber(program, sheet.cmbgradi, sheet.LastTilt);
    return false;
  }
  TakeTrapezoid(program, area, depth);
  return true;
}

/// The plan area in cm² of the gross volume over a height in cm.
double PlanArea(const ProjectState& s, double height) { return Divide(ReadNumber(s.txtboxvolume) * 1000, height); }

void ChoosePrism(Program& program) {
  FormaPrismatica(program);
  DimensioniBox(program);
  program.state.DimEditing = false;
}

void ChooseTrapezoid(Program& program) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  SetTrapezoidControls(sheet, true);
  GiveFocus(program, sheet.cmbgradi);
  const bool editing = s.DimEditing;
  if (!TiltTo(program, PlanArea(s, ReadNumber(s.txth)), ReadNumber(s.cmbgradi))) {
    s.DimEditing = editing;
    return;
  }
  sheet.LastTilt = ReadNumber(s.cmbgradi);
  s.DimEditing = false;
}

void cmbforma_Click(Program& program) {
  if (program.state.cmbforma == program.Text(504)) {
    ChoosePrism(program);
  } else if (program.state.cmbforma == program.Text(503)) {
    ChooseTrapezoid(program);
  }
}

void cmbforma_LostFocus(Program& program) {
  const std::string& text = program.state.cmbforma;
  if (text == program.Text(504) || text == program.Text(503)) return;
  AssignText(program, program.windows.frmthsm.cmbforma, program.Text(504));
  ChoosePrism(program);
}

bool IsRatio(const std::string& text) { return text == kRatioHigh || text == kRatioLow; }

void cmbrappo_Click(Program& program) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  if (IsRatio(s.cmbrappo)) {
    DimensioniBox(program);
    sheet.txtld.locked = false;
    sheet.txtld.back = colour::kWindow;
  } else {
    AssignText(program, sheet.cmbrappo, kRatioHigh);
    DimensioniBox(program);
  }
  s.DimEditing = false;
}

void cmbrappo_LostFocus(Program& program) {
  // Merely passing through with "Non standard" discards dimensions made by hand, as wanted.
  if (IsRatio(program.state.cmbrappo)) return;
  AssignText(program, program.windows.frmthsm.cmbrappo, kRatioHigh);
  DimensioniBox(program);
}

void NoteDimensionEdit(Program& program) {
  program.state.DimEditing = true;
  MarkModified(program);
}

void cmbgradi_GotFocus(Program& program) {
  const double tilt = ReadNumber(program.state.cmbgradi);
  if (tilt > 0) program.windows.frmthsm.LastTilt = tilt;
}

void cmbgradi_Click(Program& program) {
  ProjectState& s = program.state;
  if (TiltTo(program, PlanArea(s, s.HeightPrism), ReadNumber(s.cmbgradi))) {
    program.windows.frmthsm.LastTilt = ReadNumber(s.cmbgradi);
  }
}

void cmbgradi_LostFocus(Program& program) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  if (!s.DimEditing) return;
  const double tilt = ReadNumber(s.cmbgradi);
  if (tilt > 0 && tilt <= kLargestTilt) {
    cmbgradi_Click(program);
    s.DimEditing = false;
    return;
  }
  // The field falls back to 15 degrees, and the depth is still computed with the angle as typed, as wanted.
  AssignText(program, sheet.cmbgradi, "15");
  if (!TiltTo(program, PlanArea(s, s.HeightPrism), tilt)) return;
  sheet.LastTilt = kDefaultTilt;
  s.DimEditing = false;
}

/// A rear side below the front: depth and tilt follow from it.
void TakeRearSide(Program& program, double area) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  s.DepthPrismTrapez = Divide(2 * area, s.WidthPrism + s.WidthRearPrism);
  ShowDimension(program, sheet.txtp, s.DepthPrismTrapez);
  const double slope = Divide((s.WidthPrism - s.WidthRearPrism) / 2, s.DepthPrismTrapez);
  sheet.LastTilt = std::atan(slope) * 180 / kPi;
  AssignNumber(program, sheet.cmbgradi, RoundHalfEven(sheet.LastTilt, 2));
}

void txtld_LostFocus(Program& program) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  s.WidthRearPrism = ReadNumber(s.txtld);
  const double area = PlanArea(s, s.HeightPrism);
  if (!s.DimEditing) return;
  if (s.WidthRearPrism < s.WidthPrism) {
    TakeRearSide(program, area);
  } else {  // a rear side as wide as the front gives the default tilt, and no prism, as wanted
    AssignText(program, sheet.cmbgradi, "15");
    sheet.LastTilt = kDefaultTilt;
    TiltTo(program, area, kDefaultTilt);
  }
  s.DimEditing = false;
}

void OpenDimensionEntry(Program& program) { OpenWindow(program, program.windows.frmdimensioni.window); }

}  // namespace

void DimensioniBox(Program& program) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  const double volume = ReadNumber(s.txtboxvolume);
  FormaPrismatica(program);
  if (volume == 0.0) return;
  const double side = CubeRoot(volume);  // dm
  const bool low = s.cmbrappo == kRatioLow;
  s.WidthPrism = side * 10;
  s.HeightPrism = side * (low ? 1.25 : 1.62) * 10;
  s.DepthPrism = side * (low ? 0.8 : 0.62) * 10;
  if (s.cmbrappo == "Non standard") AssignText(program, sheet.cmbrappo, kRatioHigh);
  ShowDimension(program, sheet.txtl, s.WidthPrism);
  ShowDimension(program, sheet.txth, s.HeightPrism);
  ShowDimension(program, sheet.txtp, s.DepthPrism);
}

void FormaPrismatica(Program& program) {
  Sheet& sheet = program.windows.frmthsm;
  SetTrapezoidControls(sheet, false);
  AssignText(program, sheet.txtld, "");
  AssignText(program, sheet.cmbforma, program.Text(504));
}

void ShowTrapezoid(Program& program) { SetTrapezoidControls(program.windows.frmthsm, true); }

void ShowBoxShape(Program& program) { SetTrapezoidControls(program.windows.frmthsm, !program.state.txtld.empty()); }

std::optional<double> TrapezoidDepth(double area, double width, double degrees) {
  const double t = std::tan(degrees * kPi / 180);
  const double delta = width * width - 4 * t * area;
  if (delta < 0) return std::nullopt;
  const double x1 = Divide(SquareRoot(delta) + width, t + t);
  const double x2 = Divide(width - SquareRoot(delta), t + t);
  return x2 < x1 ? x2 : x1;
}

double ProfonditaTrapezio(Program& program, double area, double width, double degrees) {
  const std::optional<double> depth = TrapezoidDepth(area, width, degrees);
  if (depth) return *depth;
  program.ErrorMessage(program.Text(196));
  return -1;
}

std::string Proporzioni(double volume, double a, double b, double c) {
  const double side = Power(volume, 0.333333);
  const auto part = [&](double dimension) { return FormatNumber(RoundHalfEven(Divide(dimension, side), 1)); };
  return part(a) + "  " + part(b) + "  " + part(c);
}

void ShowDimension(Program& program, Control& field, double centimetres) {
  AssignNumber(program, field, RoundHalfEven(centimetres, 1));
}

void ConnectGeometry(Program& program) {
  Sheet& sheet = program.windows.frmthsm;
  sheet.cmbforma.on.change = MarkModified;
  sheet.cmbforma.on.click = cmbforma_Click;
  sheet.cmbforma.on.lost_focus = cmbforma_LostFocus;
  sheet.cmbrappo.on.change = MarkModified;
  sheet.cmbrappo.on.click = cmbrappo_Click;
  sheet.cmbrappo.on.lost_focus = cmbrappo_LostFocus;
  sheet.cmbgradi.on.change = NoteDimensionEdit;
  sheet.cmbgradi.on.got_focus = cmbgradi_GotFocus;
  sheet.cmbgradi.on.click = cmbgradi_Click;
  sheet.cmbgradi.on.lost_focus = cmbgradi_LostFocus;
  sheet.txtld.on.change = NoteDimensionEdit;
  sheet.txtld.on.lost_focus = txtld_LostFocus;
  for (Control* const field : {&sheet.txtl, &sheet.txth, &sheet.txtp}) field->on.double_click = OpenDimensionEntry;
}

}  // namespace zefirondo
