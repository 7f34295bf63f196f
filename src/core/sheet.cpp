#include "core/sheet.h"

#include "core/events.h"
#include "core/fields.h"
#include "core/focus.h"
#include "core/numbers.h"
#include "core/shell.h"
#include "core/window_life.h"

namespace zefirondo {
namespace {

void ShowSettingsPage(Program& program) {
  ProjectState& state = program.state;
  Sheet& sheet = program.windows.frmthsm;
  // Filling an empty field runs its change: the first visit moves the air to the finer formulas, as wanted.
  AssignNumber(program, sheet.txttemperatura, state.Temperature);
  AssignNumber(program, sheet.txtpressione, state.Pressure);
  AssignNumber(program, sheet.txtvelocita, state.Velocity);
  ShowPageFrame(program, sheet.fraimpo);
  GiveFocus(program, sheet.txttemperatura);
  sheet.TempBefore = state.txttemperatura;
  sheet.PressBefore = state.txtpressione;
}

void SelectSecondTab(Program& program) { SelectTab(program, program.windows.frmthsm.tabs.at(1).key); }

void txtmodello_LostFocus(Program& program) {
  program.state.ProjectTitle = program.state.txtmodello;
  ShowModelName(program);
}

void RatingField_Change(Program& program) {
  const ProjectState& s = program.state;
  if (!s.txtpotenza.empty() && !s.txtimpedenza.empty() && !s.txtsensibilita.empty() && !s.txtxmax.empty()) {
    program.windows.frmthsm.cmdnext.enabled = true;
  }
}

void TestBothRules(Program& program) {
  TestImpedanceRule(program);
  TestParametersRule(program);
}

void CloseTwin(const std::string& text, const std::string& twin_text, Control& twin) {
  if (text.empty() || !twin_text.empty()) return;
  twin.back = colour::kGrey;
  twin.locked = true;
}

// Diameter and area are two forms of one value: the one that is filled first closes the other.
void txtd_Change(Program& program) {
  CloseTwin(program.state.txtd, program.state.txtsd, program.windows.frmthsm.txtsd);
  TestBothRules(program);
}

void txtsd_Change(Program& program) {
  CloseTwin(program.state.txtsd, program.state.txtd, program.windows.frmthsm.txtd);
  TestBothRules(program);
}

void txtd_LostFocus(Program& program) {
  const ProjectState& s = program.state;
  if (!s.txtsd.empty() || s.txtd.empty()) return;
  const double radius = ReadNumber(s.txtd) / 2000;  // mm across to m
  AssignNumber(program, program.windows.frmthsm.txtsd, kPi * (radius * radius));
}

void txtsd_LostFocus(Program& program) {
  const ProjectState& s = program.state;
  if (!s.txtd.empty() || s.txtsd.empty()) return;
  AssignNumber(program, program.windows.frmthsm.txtd, 2000 * SquareRoot(ReadNumber(s.txtsd) / kPi));
}

void txtvolume_Change(Program& program) { program.windows.frmthsm.cmdnext1.enabled = true; }

void cmbnumvc_LostFocus(Program& program) {
  const std::string& text = program.state.cmbnumvc;
  if (text != "1" && text != "2") AssignText(program, program.windows.frmthsm.cmbnumvc, "1");
}

}  // namespace

void ShowPageFrame(Program& program, const Control& frame) {
  Sheet& sheet = program.windows.frmthsm;
  for (Control* const page : {&sheet.fragenerale, &sheet.frathsm, &sheet.fradim, &sheet.frabox, &sheet.fraimpo}) {
    page->visible = page == &frame;
  }
}

void ShowFixedPage(Program& program, std::string_view key) {
  Sheet& sheet = program.windows.frmthsm;
  if (key == "gen") {
    ShowPageFrame(program, sheet.fragenerale);
    GiveFocus(program, sheet.txtproduttore);
  } else if (key == "par") {
    ShowPageFrame(program, sheet.frathsm);
    GiveFocus(program, sheet.txtzmax.locked ? sheet.txtfs : sheet.txtzmax);
  } else if (key == "dim") {
    ShowPageFrame(program, sheet.fradim);
    GiveFocus(program, sheet.txtforo);
    sheet.txtvolume.locked = true;
  } else {
    ShowSettingsPage(program);
  }
  sheet.mnusalvadir.enabled = false;
  NascondiGrafici(program);
}

void ConnectSheet(Program& program) {
  Sheet& sheet = program.windows.frmthsm;
  sheet.cmdnext.on.click = sheet.cmdnext1.on.click = SelectSecondTab;
  sheet.txtmodello.on.lost_focus = txtmodello_LostFocus;
  for (Control* const field : {&sheet.txtpotenza, &sheet.txtimpedenza, &sheet.txtsensibilita, &sheet.txtxmax}) {
    field->on.change = RatingField_Change;
  }
  sheet.txtzmax.on.change = TestImpedanceRule;
  for (Control* const field : {&sheet.txtqes, &sheet.txtqts, &sheet.txtmms}) field->on.change = TestParametersRule;
  for (Control* const field : {&sheet.txtfs, &sheet.txtrvc, &sheet.txtqmesin, &sheet.txtbl}) {
    field->on.change = TestBothRules;
  }
  sheet.txtd.on.change = txtd_Change;
  sheet.txtd.on.lost_focus = txtd_LostFocus;
  sheet.txtsd.on.change = txtsd_Change;
  sheet.txtsd.on.lost_focus = txtsd_LostFocus;
  sheet.txtvolume.on.change = txtvolume_Change;
  sheet.cmbnumvc.on.lost_focus = cmbnumvc_LostFocus;
}

}  // namespace zefirondo
