#include "box/box_page.h"

#include <algorithm>
#include <array>

#include "box/closed_box.h"
#include "box/geometry.h"
#include "box/ports.h"
#include "box/vented_box.h"
#include "box/volumes.h"
#include "core/events.h"
#include "core/numbers.h"
#include "core/sheet.h"
#include "core/window_life.h"
#include "response/box_response.h"

namespace zefirondo {
namespace {

/// The filling of the box by the first four characters of `cmbk`.
struct Filling {
  std::string_view text;
  double gamma;
};

constexpr std::array<Filling, 5> kFillings{{
    {"1.40", 1.400823478},
    {"1.27", 1.27272727},
    {"1.17", 1.166666666},
    {"1.12", 1.120658782},
    {"1.05", 1.050617609},
}};

const Filling* FindFilling(std::string_view text) {
  const auto found = std::find_if(kFillings.begin(), kFillings.end(),
                                  [&](const Filling& filling) { return text.substr(0, 4) == filling.text; });
  return found == kFillings.end() ? nullptr : &*found;
}

bool OnClosedTab(const Program& program) { return program.windows.frmthsm.selected_tab == "chi"; }
bool OnVentedTab(const Program& program) { return program.windows.frmthsm.selected_tab == "ref"; }

void cmbk_Click(Program& program) {
  ProjectState& s = program.state;
  const Filling* const filling = FindFilling(s.cmbk);
  if (filling == nullptr) return;
  s.Kinternal = filling->gamma;
  s.Vba = ApparentVolume(s, ReadNumber(s.txtvolnetto) / 1000);
  AssignNumber(program, program.windows.frmthsm.txtvolappa, s.Vba * 1000);
  if (OnClosedTab(program)) {
    ChiusaVolumeFisso(program, s.Vc);
    s.VbaClosed = s.Vba;
  } else {
    s.VbaVented = s.Vba;
    DimensionaCondottoQuadrato(program);
  }
  MarkModified(program);
  ChiudiGrafici(program);
  s.DesignChanged = true;
}

void cmbk_LostFocus(Program& program) {
  if (FindFilling(program.state.cmbk) != nullptr) return;
  AssignText(program, program.windows.frmthsm.cmbk, "1.40");
  cmbk_Click(program);
}

void cmbnumdriver_Click(Program& program) {
  if (ReadNumber(program.state.cmbnumdriver) > 1) {
    OpenWindow(program, "frmwooferconn");  // its button takes the number over
    return;
  }
  program.state.WooferWiring = "biamp";
  SelNumDriver(program);
}

void cmbnumdriver_LostFocus(Program& program) {
  const double count = RoundHalfEven(ReadNumber(program.state.cmbnumdriver));
  if (count < 1 || count > 4) {
    AssignNumber(program, program.windows.frmthsm.cmbnumdriver, program.state.DriversNum);
  }
}

void txtingombro_LostFocus(Program& program) {
  ProjectState& s = program.state;
  s.DesignChanged = s.txtingombro != s.FieldBefore;
  if (!s.DesignChanged) return;
  SumBoxVolume(program);
  MarkModified(program);
}

void txtvolnetto_RightClick(Program& program) {
  if (program.state.BoxSection == program.Text(211)) {
    OpenWindow(program, "frmalfa");
  } else {
    program.Message(MessageIcon::Information, program.Text(187), program.Text(188));
  }
}

/// Warns of what a change made elsewhere did to the design, once its tab is entered.
void WarnOfChanges(Program& program, int text) {
  OpenWindow(program, program.windows.frmgrafcassa.window);
  program.Message(MessageIcon::Information, program.Text(186) + "\n" + program.Text(text), program.Text(188));
  program.state.DesignChanged = program.state.AirChanged = false;
  ChiudiGrafici(program);
}

void EnterClosedPage(Program& program) {
  ProjectState& s = program.state;
  if (s.AirChanged || s.DesignChanged) {
    AggiornaChiusa(program);
    WarnOfChanges(program, 189);
    return;
  }
  if (s.ProjectLoaded) RiapriChiusa(program);
  s.FieldBefore = s.cmballi;
  MostraGrafici(program);
}

void EnterVentedPage(Program& program) {
  ProjectState& s = program.state;
  if (s.AirChanged || s.DesignChanged) {
    AggiornaReflex(program);
    WarnOfChanges(program, 190);
    return;
  }
  if (s.ProjectLoaded) RiapriReflex(program);
  MostraGrafici(program);
}

void EnterBoxPage(Program& program, bool vented) {
  Sheet& sheet = program.windows.frmthsm;
  ShowPageFrame(program, sheet.frabox);
  sheet.fravented.visible = sheet.fraql.visible = vented;
  sheet.fratiporispo.visible = !vented;
  ShowBoxShape(program);
  vented ? EnterVentedPage(program) : EnterClosedPage(program);
  program.state.BoxSection = program.Text(vented ? 211 : 210);
  sheet.mnusalvadir.enabled = true;
  DropBoxSum(program);
}

void TabStrip1_Click(Program& program) {
  const std::string key = program.windows.frmthsm.selected_tab;
  if (key == "chi" || key == "ref") {
    EnterBoxPage(program, key == "ref");
  } else {
    ShowFixedPage(program, key);
  }
}

}  // namespace

void SelNumDriver(Program& program) {
  const double count = RoundHalfEven(ReadNumber(program.state.cmbnumdriver));
  if (count == program.state.DriversNum) return;
  if (OnClosedTab(program)) ChiusaNumDriver(program, ToInteger(count));
  if (OnVentedTab(program)) ReflexNumDriver(program, ToInteger(count));
}

void VolnettoLostfocus(Program& program) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  if (s.txtvolnetto == "0") {
    AssignText(program, sheet.txtvolnetto, s.FieldBefore);
    return;
  }
  s.DesignChanged = s.txtvolnetto != s.FieldBefore;
  if (!s.DesignChanged) return;
  s.Vba = ApparentVolume(s, ReadNumber(s.txtvolnetto) / 1000);
  AssignNumber(program, sheet.txtvolappa, s.Vba * 1000);
  if (OnClosedTab(program)) ChiusaVolnetto(program);
  if (OnVentedTab(program)) ReflexVolnetto(program);
  CloseDesignChange(program);
}

void InsertBoxPage(Program& program, std::string_view key) {
  program.windows.frmthsm.InsertBoxTab(key, program.Text(key == "ref" ? 211 : 210));
  SelectTab(program, key);
}

void ConnectBoxPage(Program& program) {
  Sheet& sheet = program.windows.frmthsm;
  sheet.TabStrip1.on.click = TabStrip1_Click;
  sheet.cmbk.on.click = cmbk_Click;
  sheet.cmbk.on.lost_focus = cmbk_LostFocus;
  sheet.cmbnumdriver.on.click = cmbnumdriver_Click;
  sheet.cmbnumdriver.on.lost_focus = cmbnumdriver_LostFocus;
  sheet.txtvolnetto.on.lost_focus = VolnettoLostfocus;
  sheet.txtvolnetto.on.right_click = txtvolnetto_RightClick;
  sheet.txtingombro.on.lost_focus = txtingombro_LostFocus;
}

}  // namespace zefirondo
