// The closed box, and what both boxes share.
#include "box/plain_design.h"

#include <cmath>

#include "box/plain_numbers.h"

namespace zefirondo::plain {

void Design::DesignBox(bool as_vented) {
  vented = as_vented;
  if (vented) {
    vb = 20 * TotalVas() * std::pow(qts, 3.3);
    VentedTuning();
    SweepNow();
    DefaultArea();
    ShowPole();
    Show("txtfb", fb);
    Show("txtvolnetto", vb * 1000);
    vba_vented = Apparent(vb);
    Show("txtvolappa", vba_vented * 1000);
    SumVolumes();
    SizePorts(false);
    Graph();
  } else {
    qtc = R("cmballi");
    VolumeFromQtc();
    Show("txtfreriso", std::sqrt(fc * fs));
    SumVolumes();
  }
}

// ---- the closed box ----

double Design::Ratio() const { return std::sqrt((TotalVas() / vba_closed + 1) / 1.15); }

void Design::Resonance() {
  fc = fs * Ratio();
  const double a = 1 / (qtc * qtc) - 2;
  f3c = fc * std::sqrt((a + std::sqrt(a * a + 4)) / 2);
}

void Design::VolumeFromQtc() {
  vc = TotalVas() / (1.15 * std::pow(qtc / qts, 2) - 1);
  vba_closed = Apparent(vc);
  Show("txtvolnetto", vc * 1000);
  Show("txtvolappa", vba_closed * 1000);
  Resonance();
  SweepNow();
  Show("txtfb", fc);
}

void Design::QtcFromVolume() {
  qtc = qts * Ratio();
  Show("cmballi", qtc);
  Resonance();
  SweepNow();
  Show("txtfb", fc);
  SumBoxVolume();
}

void Design::SumVolumes() {
  Show("txtvoloccu", drivers * R("txtvolume"));
  SumBoxVolume();
}

void Design::SumBoxVolume() {
  Show("txtboxvolume", R("txtvoloccu") + R("txtvolnetto") + R("txtingombro"));
  Dimensions();
}

void Design::PickQtc(const std::string& qtc_text) {
  design_changed = text["cmballi"] != qtc_text;
  if (!design_changed) return;
  Put("cmballi", qtc_text);
  qtc = Read(qtc_text);
  VolumeFromQtc();
  SumVolumes();
}

void Design::TypeVolume(const std::string& litres) {
  design_changed = text["txtvolnetto"] != litres;
  if (!design_changed) return;
  Put("txtvolnetto", litres);
  vba = Apparent(Read(litres) / 1000);
  Show("txtvolappa", vba * 1000);
  if (!vented) {
    vc = Read(litres) / 1000;
    vba_closed = vba;
    QtcFromVolume();
    return;
  }
  vba_vented = vba;
  vb = Read(litres) / 1000;
  Show("txtlungappa", TuneFromPort() * 100);
  SweepNow();
  Graph();
  ShowPole();
  Show("txtfb", fb);
  f3v = 0;  // the graph tells it when it next comes to the front
  Show("txtvolnetto", vb * 1000);
  SumVolumes();
  SizePorts(true);
}

void Design::TypeOccupied(const std::string& litres) {
  design_changed = text["txtingombro"] != litres;
  if (!design_changed) return;
  Put("txtingombro", litres);
  SumBoxVolume();
}

void Design::PickFilling(const std::string& filling) {
  const std::map<std::string, double> gammas{{"1.40(0%)", 1.400823478},
                                             {"1.27(10%)", 1.27272727},
                                             {"1.17(20%)", 1.166666666},
                                             {"1.12(25%)", 1.120658782},
                                             {"1.05(33%)", 1.050617609}};
  Put("cmbk", filling);
  kinternal = gammas.at(filling);
  vba = Apparent(R("txtvolnetto") / 1000);
  Show("txtvolappa", vba * 1000);
  design_changed = true;
  if (vented) {
    vba_vented = vba;
    SizePorts(true);
    return;
  }
  qtc = R("cmballi");
  vba_closed = Apparent(vc);
  Resonance();
  SweepNow();
  Show("txtfreriso", std::sqrt(fc * fs));
  Show("txtfb", fc);
  Show("txtvolnetto", vc * 1000);
  Show("txtvolappa", Apparent(R("txtvolnetto") / 1000) * 1000);
  SumVolumes();
  vba_closed = vba;
}

void Design::ChooseDrivers(int count, const std::string& connection, bool change_volume) {
  wiring = count > 1 ? connection : "biamp";
  Put("cmbnumdriver", std::to_string(count));
  if (count == drivers) return;
  drivers = count;
  design_changed = true;
  Show("txtvoloccu", drivers * R("txtvolume"));
  if (vented) {
    vb = change_volume ? 20 * TotalVas() * std::pow(qts, 3.3) : R("txtvolnetto") / 1000;
    VentedTuning();
    SweepNow();
    ShowPole();
    Show("txtfb", fb);
    Graph();
    Show("txtvolnetto", vb * 1000);
    vba_vented = Apparent(vb);
    Show("txtvolappa", vba_vented * 1000);
    Show("txtboxvolume", R("txtvoloccu") + vb * 1000 + R("txtingombro"));  // not of the shown volume
    Dimensions();
    DefaultArea();
    SizePorts(true);
  } else if (change_volume) {
    qtc = R("cmballi");
    VolumeFromQtc();
    SumBoxVolume();
  } else {
    vba_closed = Apparent(vc);
    Show("txtvolappa", vba_closed * 1000);
    QtcFromVolume();
  }
}

void Design::ChangeAir(const std::string& celsius, const std::string& pascal) {
  const auto enter = [&](const char* field, double& value, double entered) {
    const std::string shown = Shown(entered);
    value = entered;
    if (text[field] == shown) return;
    Put(field, shown);
    UpdateAir();
  };
  enter("txttemperatura", temperature, temperature);
  enter("txtpressione", pressure, pressure);
  Show("txtvelocita", velocity);
  const std::string before_t = text["txttemperatura"], before_p = text["txtpressione"];
  const auto type = [&](const char* field, double& value, const std::string& typed) {
    if (text[field] == typed) return;
    Put(field, typed);
    value = Read(typed);
    UpdateAir();
    air_changed = true;
  };
  type("txttemperatura", temperature, celsius);
  type("txtpressione", pressure, pascal);
  trapezoid = !text["txtld"].empty();
  if (air_changed || design_changed) {
    if (vented) {
      EnterVented();
    } else {
      qtc = R("cmballi");
      vba_closed = Apparent(vc);
      fc = fs * Ratio();
      SweepNow();
      Show("txtvolnetto", vc * 1000);
      Show("txtvolappa", vba_closed * 1000);
      Show("txtfb", fc);
      Show("txtfreriso", std::sqrt(fc * fs));
    }
  }
  air_changed = design_changed = false;
  if (vented) Graph();
}

}  // namespace zefirondo::plain
