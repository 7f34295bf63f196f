// The roads that a builder takes, with values near those that make sense.
#include <array>

#include "fire/event_maker.h"
#include "runner/names.h"

namespace zefirondo {
namespace {

struct UsualValue {
  const char* field;
  double value;
};

constexpr std::array kRatings = std::to_array<UsualValue>({
    {"txtpotenza", 100},
    {"txtimpedenza", 8},
    {"txtsensibilita", 90},
    {"txtxmax", 5},
});

constexpr std::array kDimensions = std::to_array<UsualValue>({
    {"txtforo", 230},
    {"txtprof", 110},
    {"txtlagmagne", 140},
    {"txtprofmag", 50},
    {"txtesterno", 260},
    {"txtspesbordo", 8},
    {"txtdiambob", 38},
});

constexpr std::array kParameters = std::to_array<UsualValue>({
    {"txtfs", 35},
    {"txtrvc", 5.6},
    {"txtqmesin", 4.2},
    {"txtbl", 9.5},
    {"txtd", 210},
    {"txtqes", 0.45},
    {"txtqts", 0.41},
    {"txtmms", 0.038},
});

}  // namespace

void EventMaker::PlanWoofer() {
  for (const auto& [field, value] : kRatings) road_.push_back({Act::Set, field, Vary(value)});
  road_.push_back({Act::Tab, "", "dim"});
  for (const auto& [field, value] : kDimensions) road_.push_back({Act::Set, field, Vary(value)});
  road_.push_back({Act::Focus, "txtvolume", ""});
  road_.push_back({Act::Tab, "", "par"});
}

void EventMaker::PlanParameters() {
  road_.push_back({Act::Choose, "mdithsm.mnuinsmanuale", ""});
  PlanWoofer();
  for (const auto& [field, value] : kParameters) road_.push_back({Act::Set, field, Vary(value)});
  road_.push_back({Act::Click, "cmdcalcola", ""});
}

void EventMaker::PlanImpedance() {
  road_.push_back({Act::Choose, "mdithsm.mnuthisma", ""});
  road_.push_back({Act::Choose, "mnuimportadati", ""});
  if (dice_.Percent(50)) PlanWoofer();
  road_.push_back({Act::Choose, "mnuimporta", ""});
  road_.push_back({Act::Set, "txtd", Vary(210)});
  road_.push_back({Act::Click, "cmdcalcola", ""});
}

/// Acts on the page and the windows of a designed box.
void EventMaker::PlanPage() {
  static const std::vector<std::string> kGraphs{"mnufase",       "mnuspl",      "mnusplmax",
                                                "mnuescursione", "mnuairspeed", "mnufiltri"};
  static const std::vector<std::string> kTabs{"chi", "ref"};
  switch (dice_.Below(7)) {
    case 0: road_.push_back({Act::Choose, "frmgrafcassa." + dice_.Of(kGraphs), ""}); break;
    case 1: PlanDimensions(); break;
    case 2: PlanFilter(); break;
    case 3: PlanOverlay(); break;
    case 4: PlanAlignment(); break;
    case 5: PlanBoxFields(); break;
    default: road_.push_back({Act::Tab, "", dice_.Of(kTabs)});
  }
}

/// A filter, shown and summed.
void EventMaker::PlanFilter() {
  const FilterDesigner& form = program_.windows.frmfiltri;
  road_.push_back({Act::Choose, "frmgrafcassa.mnufiltri", ""});
  for (const Control* const field : {&form.cmballineamento, &form.cmbtipo, &form.cmbpendenza, &form.cmbQ, &form.cmbgain,
                                     &form.txtft, &form.txtFinf}) {
    if (dice_.Percent(60)) PlanField(*field);
  }
  road_.push_back({Act::Click, "frmfiltri.cmdvisualizza", ""});
  if (dice_.Percent(40)) PlanOverlay();
  if (dice_.Percent(60)) road_.push_back({Act::Click, "frmgrafcassa.cmdsomma", ""});
}

/// A measured response laid over a curve, calibrated and summed.
void EventMaker::PlanOverlay() {
  if (dice_.Percent(30)) {
    road_.push_back({Act::Choose, "frmgrafcassa.mnuspl", ""});
    road_.push_back({Act::Choose, "frmspl.mnuimportaOverlay", ""});
    road_.push_back({Act::Click, "frmspl.cmdsommaspl", ""});
    return;
  }
  road_.push_back({Act::Choose, "frmgrafcassa.mnuimportaOverlay", ""});
  road_.push_back({Act::Click, dice_.Percent(50) ? "frmgrafcassa.cmdpiu" : "frmgrafcassa.cmdcalibra", ""});
  road_.push_back({Act::Click, "frmgrafcassa.cmdsomma", ""});
}

/// One of the classic alignments.
void EventMaker::PlanAlignment() {
  road_.push_back({Act::Tab, "", "ref"});
  road_.push_back({Act::RightClick, "txtvolnetto", ""});
  std::vector<const Control*> options;
  for (const Control* const control : program_.windows.frmalfa.window.controls) {
    if (control->kind == ControlKind::Option) options.push_back(control);
  }
  road_.push_back({Act::Click, PrintedName(*dice_.Of(options)), ""});
  road_.push_back({Act::Click, "frmalfa.cmdok", ""});
}

/// Some fields of the box page, each left for the next.
void EventMaker::PlanBoxFields() {
  const Sheet& sheet = program_.windows.frmthsm;
  for (const Control* const field :
       {&sheet.cmbnumdriver, &sheet.txtvolnetto, &sheet.txtingombro, &sheet.cmbk, &sheet.cmballi, &sheet.cmbql,
        &sheet.cmbforma, &sheet.cmbrappo, &sheet.txtld, &sheet.cmbgradi, &sheet.cmbnumcond, &sheet.txtlungmis,
        &sheet.cmbDoa, &sheet.txtb}) {
    if (dice_.Percent(30)) PlanField(*field);
  }
  if (dice_.Percent(30)) road_.push_back({Act::Click, sheet.RoundPort() ? "imgforma(0)" : "imgforma(1)", ""});
  if (program_.windows.frmwooferconn.window.open) road_.push_back({Act::Click, "frmwooferconn.Command1", ""});
}

void EventMaker::PlanField(const Control& field) {
  if (!field.list.empty() && dice_.Percent(80)) {
    road_.push_back({Act::Pick, PrintedName(field), dice_.Of(field.list)});
  } else {
    road_.push_back({Act::Set, PrintedName(field), UsualText(field)});
  }
}

/// Fills a small window in and presses one of its buttons.
void EventMaker::PlanWindow(const Window& window) {
  std::vector<const Control*> options;
  std::vector<const Control*> buttons;
  for (const Control* const control : window.controls) {
    if (!control->enabled || control->locked) continue;
    if (control->IsField() && dice_.Percent(70)) PlanField(*control);
    if (control->kind == ControlKind::Option) options.push_back(control);
    if (control->kind == ControlKind::Button) buttons.push_back(control);
  }
  if (!options.empty()) road_.push_back({Act::Click, PrintedName(*dice_.Of(options)), ""});
  if (!buttons.empty()) road_.push_back({Act::Click, PrintedName(*dice_.Of(buttons)), ""});
}

/// A dimension or two of the box typed by hand.
void EventMaker::PlanDimensions() {
  static const std::vector<std::string> kShown{"txtl", "txth", "txtp"};
  static const std::vector<std::string> kTyped{"txtLmanual", "txtHmanual", "txtPmanual"};
  if (dice_.Percent(50)) road_.push_back({Act::Pick, "cmbforma", dice_.Of(program_.windows.frmthsm.cmbforma.list)});
  road_.push_back({Act::DoubleClick, dice_.Of(kShown), ""});
  const std::size_t count = 1 + dice_.Below(2);
  for (std::size_t i = 0; i < count; ++i) {
    road_.push_back({Act::Set, "frmdimensioni." + dice_.Of(kTyped), Vary(40)});
  }
  road_.push_back({Act::Click, "frmdimensioni.cmdinserisci", ""});
}

/// A component value from a measurement.
void EventMaker::PlanComponent() {
  const std::string tool = dice_.Percent(50) ? "frmvalc" : "frmvalf";
  road_.push_back({Act::Choose, tool == "frmvalc" ? "mdithsm.mnucapa" : "mdithsm.munindu", ""});
  road_.push_back({Act::Set, tool + ".txtf1", Vary(110)});
  road_.push_back({Act::Set, tool + ".txtf2", Vary(400)});
  road_.push_back({Act::Click, tool + ".cmdavanti", ""});
}

/// Two phase curves, their offset, and the delay added.
void EventMaker::PlanPhase() {
  road_.push_back({Act::Choose, "mdithsm.mnudelay", ""});
  for (int curve = 0; curve < 2; ++curve) {
    road_.push_back({Act::Clipboard, "", SampleFiles::ClipboardText(dice_)});
    road_.push_back({Act::Click, "frmFaseSh.cmdimporta", ""});
  }
  road_.push_back({Act::Click, "frmFaseSh.cmdcalcola", ""});
  road_.push_back({Act::Set, "frmfasecompl.txtfrequenza", Vary(100)});
  road_.push_back({Act::Click, dice_.Percent(50) ? "frmfasecompl.optrelativa" : "frmfasecompl.optcomplessiva", ""});
  road_.push_back({Act::Click, "frmfasecompl.cmdok", ""});
  road_.push_back({Act::Click, "frmFaseSh.cmdsomma", ""});
  road_.push_back({Act::Click, dice_.Percent(50) ? "frmsommadelay.opt1" : "frmsommadelay.opt2", ""});
  road_.push_back({Act::Click, "frmsommadelay.cmdsfasadelay", ""});
  road_.push_back({Act::Click, "frmsommadelay.cmdchiudi", ""});
}

void EventMaker::PlanRoad() {
  Window& window = RandomWindow();
  if (window.open && window.name != "frmthsm" && dice_.Percent(50)) return PlanWindow(window);
  if (!program_.windows.frmthsm.window.open) {
    switch (dice_.Below(8)) {
      case 0:
      case 1: PlanImpedance(); break;
      case 2: PlanComponent(); break;
      case 3: PlanPhase(); break;
      case 4: road_.push_back({Act::Choose, "mdithsm.mnuapriprogetto", ""}); break;
      default: PlanParameters();
    }
  } else if (program_.windows.frmthsm.tabs.size() > 4) {
    PlanPage();
  } else if (dice_.Percent(50)) {
    road_.push_back({Act::Tab, "", "par"});
    for (const auto& [field, value] : kParameters) road_.push_back({Act::Set, field, Vary(value)});
    road_.push_back({Act::Click, "cmdcalcola", ""});
  } else {
    PlanWoofer();
  }
}

}  // namespace zefirondo
