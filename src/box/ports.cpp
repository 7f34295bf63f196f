#include "box/ports.h"

#include "box/vented_box.h"
#include "core/numbers.h"
#include "core/window_life.h"
#include "response/box_response.h"

namespace zefirondo {
namespace {

constexpr double kFreeAirGamma = 1.400823478;
constexpr double kThreePi = 9.42477796076937;
constexpr double kNinePi = 28.27433388230811;
constexpr double kAirSpeedLimit = 7.5 / 100;       // of the speed of sound
constexpr const char* kTooShort = "Troppo corto";  // in both languages

/// The sides of a rectangular section in m.
struct Sides {
  double a = 0.0;
  double b = 0.0;
};

Sides ReadSides(const ProjectState& s) { return {ReadNumber(s.cmbDoa) / 100, ReadNumber(s.txtb) / 100}; }

bool RoundIsFilled(Program& program) { return program.windows.frmthsm.RoundPort() && !program.state.cmbDoa.empty(); }

/// The smallest section, and the actual one in red below it.
void ShowMinimumSection(Program& program) {
  const ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  AssignNumber(program, sheet.txtminsv, SezioneMinima(s, s.txtxmax, s.txtsd) * 10000);
  const bool too_small = ReadNumber(s.txtminsv) > ReadNumber(s.txtareasez);
  sheet.txtareasez.fore = too_small ? colour::kRed : colour::kText;
}

/// Lengths, sections and the minimum, once the length of the port is known.
void ShowPort(Program& program, double apparent, double length) {
  const ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  if (s.WoodThickness / 1000.0 > length) {
    AssignText(program, sheet.txtlungmis, kTooShort);
    AssignText(program, sheet.txtlungappa, kTooShort);
  } else {
    AssignNumber(program, sheet.txtlungmis, length * 100);
    AssignNumber(program, sheet.txtlungappa, apparent * 100);
  }
  AssignNumber(program, sheet.txtareasez, s.SectArea1Vent * 10000);
  AssignNumber(program, sheet.txtseztot, ReadNumber(s.txtareasez) * s.VentNum);
  ShowMinimumSection(program);
}

void SizeRoundPort(Program& program) {
  const ProjectState& s = program.state;
  const double apparent = ApparentLength(s, s.SectArea1Vent);
  AssignNumber(program, program.windows.frmthsm.cmbDoa, SquareRoot(s.SectArea1Vent / kPi) * 200);
  ShowPort(program, apparent, apparent - 2 * EndRound(ReadNumber(s.cmbDoa)));
}

void MakeSquare(Program& program) {
  Sheet& sheet = program.windows.frmthsm;
  AssignNumber(program, sheet.cmbDoa, SquareRoot(program.state.SectArea1Vent) * 100);
  AssignText(program, sheet.txtb, program.state.cmbDoa);
}

void SizeRectangularPort(Program& program) {
  const ProjectState& s = program.state;
  if (s.txtb.empty()) return;
  if (s.SquarePortSection) MakeSquare(program);
  const Sides sides = ReadSides(s);
  const double apparent = ApparentLength(s, sides.a * sides.b);
  ShowPort(program, apparent, apparent - 2 * EndRect(sides.a, sides.b));
}

/// Sets `Fb` from the length in the field and the port as it stands; gives the apparent length in m, or 0 and
/// the tuning left alone when no section is known.
double TuneFromLength(Program& program) {
  ProjectState& s = program.state;
  const double length = ReadNumber(s.txtlungmis) / 100;
  if (RoundIsFilled(program)) {
    const double apparent = length + 2 * EndRound(ReadNumber(s.cmbDoa));
    s.Fb = PortTuning(s, apparent, s.SectArea1Vent);
    return apparent;
  }
  if (!s.txtb.empty()) {
    const Sides sides = ReadSides(s);
    const double apparent = length + 2 * EndRect(sides.a, sides.b);
    s.SectArea1Vent = Finite(sides.a * sides.b);
    s.Fb = PortTuning(s, apparent, s.SectArea1Vent);
    return apparent;
  }
  return 0.0;
}

/// Takes the section over from the fields; false when they are not filled.
bool TakeSection(Program& program) {
  ProjectState& s = program.state;
  if (s.cmbDoa.empty()) return false;
  if (program.windows.frmthsm.RoundPort()) {
    const double radius = ReadNumber(s.cmbDoa) / 100 / 2;
    s.SectArea1Vent = Finite(kPi * (radius * radius));
  } else {
    if (s.txtb.empty()) return false;
    s.SectArea1Vent = Finite(ReadNumber(s.cmbDoa) * ReadNumber(s.txtb)) / 10000;
  }
  AssignNumber(program, program.windows.frmthsm.txtareasez, s.SectArea1Vent * 10000);
  DimensionaCondotto(program);
  return true;
}

void txtlungmis_LostFocus(Program& program) {
  ProjectState& s = program.state;
  s.DesignChanged = s.txtlungmis != s.FieldBefore;
  if (!s.DesignChanged) return;
  LunghezzaDigitata(program);
  DropBoxSum(program);
  MarkModified(program);
}

void cmbDoa_Click(Program& program) {
  ProjectState& s = program.state;
  if (s.cmbDoa == s.FieldBefore) return;
  s.FieldBefore = s.cmbDoa;
  if (TakeSection(program)) MarkModified(program);
  ChiudiGrafici(program);
}

void cmbDoa_LostFocus(Program& program) {
  ProjectState& s = program.state;
  s.DesignChanged = s.cmbDoa != s.FieldBefore;
  if (!s.DesignChanged) return;
  TakeSection(program);
  ChiudiGrafici(program);
}

void txtb_LostFocus(Program& program) {
  ProjectState& s = program.state;
  s.DesignChanged = s.txtb != s.FieldBefore;
  if (!s.DesignChanged || s.cmbDoa.empty() || s.txtb.empty()) return;
  s.SectArea1Vent = Finite(ReadNumber(s.cmbDoa) * ReadNumber(s.txtb)) / 10000;
  AssignNumber(program, program.windows.frmthsm.txtareasez, s.SectArea1Vent * 10000);
  DimensionaCondotto(program);
}

void cmbnumcond_Click(Program& program) {
  ProjectState& s = program.state;
  const double count = ReadNumber(s.cmbnumcond);
  if (count == s.VentNum) return;
  s.VentNum = ToInteger(count);
  SetDefaultPortArea(program);
  DimensionaCondottoQuadrato(program);
  MarkModified(program);
  s.DesignChanged = true;
  ChiudiGrafici(program);
}

void imgforma_Click(Program& program) {
  ProjectState& s = program.state;
  if (program.windows.frmthsm.RoundPort()) {
    ShowRectangularPort(program);
    MakeSquare(program);
  } else {
    ShowRoundPort(program);
    AssignNumber(program, program.windows.frmthsm.cmbDoa, SquareRoot(s.SectArea1Vent / kPi) * 200);
  }
  DimensionaCondotto(program);
  MarkModified(program);
  s.DesignChanged = true;
}

}  // namespace

double BoxCompliance(const ProjectState& s) { return Divide(s.VbaVented, s.Pressure * kFreeAirGamma); }

double ApparentLength(const ProjectState& s, double section) {
  const double omega = s.Fb * kTwoPi;
  const double mass = Divide(1, omega * omega * BoxCompliance(s));
  return Divide(section * s.VentNum * mass, s.roo);
}

double EndRound(double diameter_cm) { return ((diameter_cm / 200) * 8) / kThreePi; }

double EndRect(double a, double b) {
  const double p = a / 2;
  const double q = b / 2;
  return Divide(q * q + p * p + p * q, p + q) * (16 / kNinePi);
}

double PortTuning(const ProjectState& s, double apparent_length, double section) {
  const double mass = Divide(Divide(s.roo * apparent_length, section), s.VentNum);
  return Divide(1, SquareRoot(BoxCompliance(s) * mass) * kTwoPi);
}

double SezioneMinima(const ProjectState& state, const std::string& xmax, const std::string& sd) {
  const double excursion = ReadNumber(xmax) / 1000;
  const double area = ReadNumber(sd) * state.DriversNum;
  const double speed = kAirSpeedLimit * state.Velocity;
  const double half = Divide(area * area * excursion, speed);
  const double q = SquareRoot((half + half) * kPi * state.Fb);
  const double r = SquareRoot(Divide(1, state.VentNum * kPi) * q);
  return Finite(r * r * kPi);
}

void DimensionaCondotto(Program& program) {
  if (program.windows.frmthsm.RoundPort()) {
    SizeRoundPort(program);
  } else {
    SizeRectangularPort(program);
  }
}

void DimensionaCondottoQuadrato(Program& program) {
  program.state.SquarePortSection = true;
  DimensionaCondotto(program);
  program.state.SquarePortSection = false;
}

void LunghezzaDigitata(Program& program) {
  const ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  const double apparent = TuneFromLength(program);
  ShowMinimumSection(program);
  SweepVented(program);
  RidisegnaCassa(program);
  ForgetF3(program);
  AssignNumber(program, sheet.txtfb, s.Fb);
  ShowVentedPole(program);
  AssignNumber(program, sheet.txtlungappa, apparent * 100);
}

void FbDaCondotto(Program& program) {
  const double apparent = TuneFromLength(program);
  ShowVentedPole(program);
  AssignNumber(program, program.windows.frmthsm.txtlungappa, apparent * 100);
}

void ShowRoundPort(Program& program) {
  Sheet& sheet = program.windows.frmthsm;
  sheet.imgforma[0].visible = true;
  sheet.imgforma[1].visible = false;
  AssignText(program, sheet.lblDoL, program.Text(201));
  AssignText(program, sheet.lblUoX, "Cm");
  sheet.txtb.visible = sheet.lblunib.visible = false;
}

void ShowRectangularPort(Program& program) {
  Sheet& sheet = program.windows.frmthsm;
  sheet.imgforma[0].visible = false;
  sheet.imgforma[1].visible = true;
  AssignText(program, sheet.lblDoL, program.Text(199));
  AssignText(program, sheet.lblUoX, program.Text(200));
  sheet.txtb.visible = sheet.lblunib.visible = true;
}

void ConnectPorts(Program& program) {
  Sheet& sheet = program.windows.frmthsm;
  sheet.txtlungmis.on.lost_focus = txtlungmis_LostFocus;
  sheet.cmbDoa.on.click = cmbDoa_Click;
  sheet.cmbDoa.on.lost_focus = cmbDoa_LostFocus;
  sheet.txtb.on.lost_focus = txtb_LostFocus;
  sheet.cmbnumcond.on.click = cmbnumcond_Click;
  for (Control& picture : sheet.imgforma) picture.on.click = imgforma_Click;
}

}  // namespace zefirondo
