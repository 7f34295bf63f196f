// The vented box and its ports.
#include <cmath>

#include "box/plain_design.h"
#include "box/plain_numbers.h"

namespace zefirondo::plain {
namespace {

constexpr double kPi = 3.14159265358979;
constexpr double kTwoPi = 6.28318530717958;
constexpr double kGamma = 1.400823478;

// A length that was typed comes back out of its own tuning: the order of the operations decides its last digits, and is
// that of the formulas as they are told.

/// What the open end of a port adds to its length, in m.
double RoundEnd(double diameter_cm) { return diameter_cm / 200 * 8 / 9.42477796076937; }

double RectangularEnd(double a, double b) {
  const double p = a / 2, q = b / 2;
  return (q * q + p * p + p * q) / (p + q) * (16 / 28.27433388230811);
}

}  // namespace

void Design::VentedTuning() {
  fb = fs * std::pow(TotalVas() / vb, 0.31);
  f3v = fs * std::pow(TotalVas() / vb, 0.44);
}

void Design::ShowPole() { Show("txtfreriso", std::sqrt(fb * fs)); }

void Design::Graph() { text["frmgrafcassa.txtF3dB"] = f3v == 0 ? "****" : Shown(f3v); }

void Design::ForgetF3() {
  f3v = 0;
  Graph();
}

double Design::SmallestArea() const {
  const double cones = R("txtsd") * drivers, excursion = R("txtxmax") / 1000;
  const double flow = std::sqrt(2 * cones * cones * excursion / (0.075 * velocity) * kPi * fb);
  const double radius = std::sqrt(1 / (ports * kPi) * flow);
  return radius * radius * kPi;
}

void Design::DefaultArea() {
  area = SmallestArea();
  Show("txtminsv", area * 10000);
}

double Design::Compliance() const { return vba_vented / (pressure * kGamma); }

double Design::LengthOf(double section) const {
  const double omega = fb * kTwoPi;
  const double mass = 1 / (omega * omega * Compliance());
  return section * ports * mass / roo;
}

double Design::TuneFromPort() {
  const double length = R("txtlungmis") / 100;
  double apparent = 0;
  if (round) {
    apparent = length + 2 * RoundEnd(R("cmbDoa"));
  } else {
    const double a = R("cmbDoa") / 100, b = R("txtb") / 100;
    apparent = length + 2 * RectangularEnd(a, b);
    area = a * b;
  }
  fb = 1 / (std::sqrt(Compliance() * (roo * apparent / area / ports)) * kTwoPi);
  return apparent;
}

void Design::ShowSmallest() {
  Show("txtminsv", SmallestArea() * 10000);
  narrow = R("txtminsv") > R("txtareasez");
}

void Design::SizePorts(bool square) {
  double apparent = 0, end = 0;
  if (round) {
    apparent = LengthOf(area);
    Show("cmbDoa", std::sqrt(area / kPi) * 200);
    end = RoundEnd(R("cmbDoa"));
  } else {
    if (square) {
      Show("cmbDoa", std::sqrt(area) * 100);
      Put("txtb", text["cmbDoa"]);
    }
    const double a = R("cmbDoa") / 100, b = R("txtb") / 100;
    apparent = LengthOf(a * b);
    end = RectangularEnd(a, b);
  }
  const double length = apparent - 2 * end;
  const bool short_port = wall / 1000 > length;
  Show("txtlungmis", length * 100);
  Show("txtlungappa", apparent * 100);
  if (short_port) text["txtlungmis"] = text["txtlungappa"] = "Troppo corto";
  Show("txtareasez", area * 10000);
  Show("txtseztot", R("txtareasez") * ports);
  ShowSmallest();
}

void Design::PickLeakage(const std::string& ql_text) {
  design_changed = text["cmbql"] != ql_text;
  if (!design_changed) return;
  Put("cmbql", ql_text);
  ql = Read(ql_text);
  vb = R("txtvolnetto") / 1000;
  SweepNow();
  ShowPole();
  Show("txtfb", fb);
  ForgetF3();
  SumVolumes();
  SizePorts(true);
}

void Design::PickPorts(int count) {
  Put("cmbnumcond", std::to_string(count));
  if (count == ports) return;
  ports = count;
  DefaultArea();
  SizePorts(true);
  design_changed = true;
}

void Design::TakeSection() {
  const double a = R("cmbDoa");
  area = round ? kPi * std::pow(a / 200, 2) : a * R("txtb") / 10000;
  Show("txtareasez", area * 10000);
  SizePorts(false);
}

void Design::PickDiameter(const std::string& centimetres) {
  design_changed = false;
  if (text["cmbDoa"] == centimetres) return;
  Put("cmbDoa", centimetres);
  TakeSection();
  design_changed = text["cmbDoa"] != centimetres;  // written in another way by the sizing
  if (design_changed) TakeSection();
}

void Design::TypeDiameter(const std::string& centimetres) {
  design_changed = text["cmbDoa"] != centimetres;
  if (!design_changed) return;
  Put("cmbDoa", centimetres);
  TakeSection();
}

void Design::TypeSideB(const std::string& centimetres) {
  design_changed = text["txtb"] != centimetres;
  if (!design_changed) return;
  Put("txtb", centimetres);
  TakeSection();
}

void Design::TypeLength(const std::string& centimetres) {
  design_changed = text["txtlungmis"] != centimetres;
  if (!design_changed) return;
  Put("txtlungmis", centimetres);
  Show("txtlungappa", TuneFromPort() * 100);
  ShowSmallest();
  SweepNow();
  ForgetF3();
  Show("txtfb", fb);
  ShowPole();
}

void Design::ToggleSection() {
  round = !round;
  if (round) {
    Show("cmbDoa", std::sqrt(area / kPi) * 200);
  } else {
    Show("cmbDoa", std::sqrt(area) * 100);
    Put("txtb", text["cmbDoa"]);
  }
  SizePorts(false);
  design_changed = true;
}

void Design::TakeAlignment(double vb_vas, double fb_fs, double f3_fs) {
  const std::string before = text["txtvolnetto"];
  vb = R("txtvas") * drivers * vb_vas;
  fb = fs * fb_fs;
  f3v = fs * f3_fs;
  Show("txtfb", fb);
  text["frmgrafcassa.txtF3dB"] = Shown(f3v);
  Show("txtvolnetto", vb * 1000);
  design_changed = text["txtvolnetto"] != before;
  if (!design_changed) return;
  vba = vba_vented = Apparent(R("txtvolnetto") / 1000);
  Show("txtvolappa", vba * 1000);
  vb = R("txtvolnetto") / 1000;
  SweepNow();
  ShowPole();
  Show("txtvolnetto", vb * 1000);
  SumVolumes();
  SizePorts(false);
}

void Design::EnterVented() {
  if (!text["txtld"].empty()) Put("cmbforma", "Trapezoidal");
  vba_vented = Apparent(vb);
  Show("txtvolnetto", vb * 1000);
  Show("txtvolappa", vba_vented * 1000);
  if (air_changed) Show("txtlungappa", TuneFromPort() * 100);
  SweepNow();
  Show("txtfb", fb);
  ShowPole();
}

}  // namespace zefirondo::plain
