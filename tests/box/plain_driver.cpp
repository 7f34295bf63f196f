// The transducer, and how numbers come to stand in fields.
#include "box/plain_design.h"

#include <cmath>

#include "box/plain_numbers.h"

namespace zefirondo::plain {
namespace {

constexpr double kPi = 3.14159265358979;
constexpr double kTwoPi = 6.28318530717958;

}  // namespace

Design::Design()
    : text{{"txtingombro", "0"},
           {"cmballi", "0.707"},
           {"cmbk", "1.40"},
           {"cmbnumdriver", "1"},
           {"cmbql", "7"},
           {"cmbnumcond", "1"},
           {"cmbrappo", "1.62  1  0.62"},
           {"cmbforma", "Prismatic"},
           {"cmbgradi", "15"},
           {"txttemperatura", ""},
           {"txtpressione", ""},
           {"txtb", ""},
           {"cmbDoa", ""},
           {"txtld", ""},
           {"txtcas", ""}} {
  velocity = 20.04 * std::sqrt(298.15);
  roo = pressure * 29.0 / (298.15 * 8314.0);
}

double Design::R(const char* field) const {
  const auto found = text.find(field);
  return found == text.end() ? 0 : Read(found->second);
}

void Design::Show(const char* field, double value) {
  figures_[field] = {value, -1};
  Put(field, Shown(value));
}

void Design::ShowRounded(const char* field, double value, int decimals) {
  figures_[field] = {value, decimals};
  Put(field, Rounded(value, decimals));
}

bool Design::IsOnTheEdgeOf(const std::string& field, const std::string& other) const {
  const auto found = figures_.find(field);
  if (found == figures_.end()) return false;
  const auto& [value, decimals] = found->second;
  if (std::fabs(Read(other) - value) <= 1e-12 * std::fabs(value)) return true;
  for (const double hair : {1 - 1e-12, 1 + 1e-12}) {
    if ((decimals < 0 ? Shown(value * hair) : Rounded(value * hair, decimals)) == other) return true;
  }
  return false;
}

void Design::Put(const char* field, const std::string& value) {
  const std::string name = field;
  if ((name == "txtld" || name == "cmbgradi") && text[name] != value) dim_editing = true;
  text[name] = value;
}

void Design::UpdateAir() {
  roo = pressure * 28.9644 / ((temperature + 273.15) * 8314.472);
  velocity = std::sqrt(pressure * 1.400823478 / roo);
  Show("txtvelocita", velocity);
  if (!text["txtcas"].empty()) Show("txtvas", R("txtcas") * roo * velocity * velocity);
}

double Design::ConeArea() {
  if (text["txtsd"].empty()) Show("txtsd", kPi * std::pow(R("txtd") / 2000, 2));
  return R("txtsd");
}

void Design::Compute(bool impedance) {
  fs = R("txtfs");
  const double f = R("txtforo") / 2, d = R("txtdiambob") / 2;
  const double cone = (R("txtprof") - R("txtprofmag") - R("txtspesbordo")) * kPi * (d * d + f * f + d * f) / 3e6;
  Show("txtvolume", cone + R("txtprofmag") * kPi * std::pow(R("txtlagmagne") / 2, 2) / 1e6);
  const double sd = ConeArea();
  if (impedance) {
    ComputeFromImpedance(R("txtrvc"), R("txtqmesin"), sd);
  } else {
    ComputeFromMechanics(R("txtqmesin"), sd);
  }
  Put("txtqmes", text["txtqmesin"]);
  const double raised = (R("txtrvc") + amplifier) / R("txtrvc") * qes;
  qts = 1 / (1 / R("txtqmesin") + 1 / raised);
  ebp = fs / qes;
  Show("txtrendimento", 100 * 4 * kPi * kPi * std::pow(fs / velocity, 3) * vas / qes);
  Put("txtfstrasdu", text["txtfs"]);
}

void Design::ComputeFromImpedance(double re, double qms, double sd) {
  const double ratio = R("txtzmax") / re;
  const double res = R("txtzmax") - re;
  qes = qms / (ratio - 1);
  Show("txtqts", qms / ratio);
  Show("txtqes", qes);
  Show("txtrmes", res);
  const double lces = res / (qms * fs * kTwoPi);
  Show("txtlces", lces * 1000);
  Show("txtcmes", qms / (res * fs * kTwoPi) * 1e6);
  const double bl2 = std::pow(R("txtbl"), 2);
  const double mms = bl2 * R("txtcmes") / 1e6;  // of the shown figure
  const double rms = bl2 / R("txtrmes");
  Show("txtmms", mms);
  Show("txtcms", lces / bl2);
  Show("txtrms", rms);
  ShowAcoustics(sd, lces / bl2, mms, rms);
  vas = roo * sd * sd * lces / bl2 * velocity * velocity;
  Show("txtvas", vas);
}

void Design::ComputeFromMechanics(double qms, double sd) {
  qes = R("txtqes");
  const double mms = R("txtmms"), bl2 = std::pow(R("txtbl"), 2), omega = fs * kTwoPi;
  const double cms = 1 / (omega * omega * mms), rms = omega * mms / qms;
  Show("txtcms", cms);
  Show("txtrms", rms);
  Show("txtlces", bl2 * cms * 1000);
  Show("txtcmes", mms / bl2 * 1e6);
  Show("txtrmes", bl2 / rms);
  ShowAcoustics(sd, cms, mms, rms);
  vas = roo * sd * sd * cms * velocity * velocity;
  if (text["txtvas"].empty()) {
    Show("txtvas", vas);
  } else {
    vas = R("txtvas");
  }
}

void Design::ShowAcoustics(double sd, double cms, double mms, double rms) {
  Show("txtcas", sd * sd * cms);
  Show("txtmas", mms / (sd * sd));
  Show("txtras", rms / (sd * sd));
}

std::string Design::Proposal(const std::string& answer) const {
  const bool closed = ebp < 50;
  const std::string how = !closed && ebp > 50 && ebp < 90 ? "recommended" : "needed";
  const std::string box = closed ? "Closed Box" : "Vented Box";
  return "message information \"EBP= " + Shown(ebp) + "\" \"For this transducer is " + how + " a " + box +
         "\\nDo you want to create a " + box + "?\" [Yes No] -> " + answer + "\n";
}

double Design::LevelOfAll() const {
  const double efficiency = 4 * kPi * kPi * std::pow(fs / velocity, 3) * vas / R("txtqes");
  const double pascal_square = roo * velocity * 1e-12 / 4e-10;
  const double gain = wiring == "series" ? 0 : 20 * std::log10(drivers);
  return 10 * std::log10(efficiency * pascal_square / kTwoPi) + 120 + gain;
}

}  // namespace zefirondo::plain
