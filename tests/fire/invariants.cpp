#include "fire/invariants.h"

#include <algorithm>
#include <cmath>

#include "core/record.h"
#include "core/run_time_error.h"
#include "core/text.h"
#include "files/row_reader.h"
#include "runner/names.h"

namespace zefirondo {
namespace {

constexpr std::array<std::string_view, 3> kWirings{"biamp", "parallel", "series"};

/// The failures that arithmetic ends in, and the one text of the table that does.
constexpr std::array kEndings{ErrorNumber::InvalidArgument, ErrorNumber::Overflow, ErrorNumber::IndexOutOfRange,
                              ErrorNumber::DivisionByZero};

bool IsFinite(double value) { return std::isfinite(value); }

bool IsWhole(const std::string& text) {
  // A broken sequence of bytes does not come back as it was.
  std::string again;
  for (const char32_t character : Characters(text)) again += Utf8(static_cast<int>(character));
  return again == text;
}

}  // namespace

const std::vector<std::string_view>& RecordNumbers() {
  static const std::vector<std::string_view> kNames{"Temperature",
                                                    "Pressure",
                                                    "roo",
                                                    "Velocity",
                                                    "Kinternal",
                                                    "Fs",
                                                    "Zmax",
                                                    "Bw",
                                                    "Qts",
                                                    "Vas",
                                                    "EBP",
                                                    "Rzero",
                                                    "SectArea1Vent",
                                                    "Ql",
                                                    "Qtc",
                                                    "Fc",
                                                    "F3c",
                                                    "Fb",
                                                    "F3v",
                                                    "Vb",
                                                    "Vc",
                                                    "VbaClosed",
                                                    "VbaVented",
                                                    "Vba",
                                                    "WidthPrism",
                                                    "HeightPrism",
                                                    "DepthPrism",
                                                    "DepthPrismTrapez",
                                                    "WidthRearPrism",
                                                    "RsAmplifier",
                                                    "SPLmax",
                                                    "USPL",
                                                    "AlfaValue",
                                                    "AlfaSecond",
                                                    "ValRangeLow",
                                                    "ValRangeHigh",
                                                    "ValResult",
                                                    "PhaseShiftDeg",
                                                    "DelayMs",
                                                    "ImpFreq",
                                                    "ImpZ",
                                                    "BoxFreq",
                                                    "BoxDb",
                                                    "SplFreq",
                                                    "SplDb",
                                                    "SplMaxFreq",
                                                    "SplMaxDb",
                                                    "AirFreq",
                                                    "AirSpeed",
                                                    "OverlaySplFreq",
                                                    "OverlaySplDb",
                                                    "PhaseFreq",
                                                    "PhaseDeg",
                                                    "FilterFreq",
                                                    "FilterDb",
                                                    "FilterPhaseFreq",
                                                    "FilterPhaseDeg",
                                                    "SumFreq",
                                                    "SumDb",
                                                    "SumPhaseDeg",
                                                    "Set1BoxFreq",
                                                    "Set1BoxDb",
                                                    "Set2BoxFreq",
                                                    "Set2BoxDb",
                                                    "Set1SplFreq",
                                                    "Set1SplDb",
                                                    "Set2SplFreq",
                                                    "Set2SplDb",
                                                    "Set1PhaseFreq",
                                                    "Set1PhaseDeg",
                                                    "Set2PhaseFreq",
                                                    "Set2PhaseDeg",
                                                    "PhaseX1",
                                                    "PhaseHz1",
                                                    "PhaseDeg1",
                                                    "PhaseX2",
                                                    "PhaseHz2",
                                                    "PhaseDeg2"};
  return kNames;
}

void Invariants::Require(bool holds, std::string_view what) {
  if (!holds && failure_.empty()) failure_ = what;
}

bool Invariants::Chose(const Control& control) const { return event_.act == Act::Choose && event_.control == &control; }

/// By the mouse, or by keys that led to it.
bool Invariants::Clicked(const Control& control) const {
  const bool clicked = event_.act == Act::Click && event_.control == &control;
  return clicked || (event_.act == Act::Type && event_.control->window == control.window);
}

void Invariants::BeforeEvent(const Event& event) {
  const Program& p = program_;
  event_ = event;
  opening_ = Chose(p.windows.mdithsm.mnuapriprogetto) && WhyNot(program_, *event.control) == Refusal::None;
  fs_ = p.state.Fs;
  zmax_ = p.state.Zmax;
  wiring_ = p.state.WooferWiring;
  box_tabs_ = p.windows.frmthsm.tabs.size();
  modified_ = p.state.ProjectModified;
  selected_ = p.windows.frmthsm.selected_tab;
}

std::string Invariants::AfterEvent() {
  failure_.clear();
  Check();
  return failure_;
}

std::string Invariants::AfterStart(bool with_project) {
  event_ = {};
  opening_ = with_project;
  return AfterEvent();
}

void Invariants::Check() {
  CheckImport();
  CheckWiring();
  CheckRecord();
  CheckSurfaces();
  CheckWindows();
  CheckControls();
  if (program_.run == RunState::Running) {  // a failure stops a routine where it stands
    CheckTabs();
    CheckBoxTabs();
    CheckModified();
    CheckFocus();
  }
  CheckEnd();
}

/// `Fs` and `Zmax` are 0, or both were set by one import.
void Invariants::CheckImport() {
  const ProjectState& s = program_.state;
  Require((s.Fs == 0.0) == (s.Zmax == 0.0), "one of Fs and Zmax is 0 and the other is not");
  const bool moved = s.Fs != fs_ || s.Zmax != zmax_;
  const bool imported = Chose(program_.windows.frmthsm.mnuimporta);
  Require(!moved || s.Fs == 0.0 || imported, "Fs and Zmax were set by something that is no import");
}

/// A project file may bring any text; nothing else brings one that is none of the three.
void Invariants::CheckWiring() {
  const std::string& wiring = program_.state.WooferWiring;
  const bool known = std::find(kWirings.begin(), kWirings.end(), wiring) != kWirings.end();
  Require(known || wiring == wiring_ || opening_, "the wiring is none of the three: " + wiring);
}

void Invariants::CheckTabs() {
  const Sheet& sheet = program_.windows.frmthsm;
  if (!sheet.window.open) return;
  std::string keys;
  for (const TabStripItem& tab : sheet.tabs) keys += tab.key + " ";
  static const std::vector<std::string> kRows{"gen par dim imp ", "gen par dim chi imp ", "gen par dim ref imp ",
                                              "gen par dim chi ref imp ", "gen par dim ref chi imp "};
  Require(std::find(kRows.begin(), kRows.end(), keys) != kRows.end(), "the tabs are " + keys);
  Require(sheet.HasTab(sheet.selected_tab), "no tab is the selected one: " + sheet.selected_tab);
}

/// A proposal that was taken, with nothing that failed behind it.
bool Invariants::TookProposal() const {
  const std::vector<MessageBox>& boxes = platform_.boxes;
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    if (boxes[i].title.starts_with("EBP= ") && platform_.answers[i] == Answer::Yes) return true;
  }
  return false;
}

/// A box tab comes with a design or an opened project, and goes with a reset, an undo or the sheet.
void Invariants::CheckBoxTabs() {
  Windows& w = program_.windows;
  const Sheet& sheet = w.frmthsm;
  const std::size_t now = std::max<std::size_t>(sheet.tabs.size(), 4);  // none before the first sheet
  const bool designs = Clicked(sheet.cmdcalcola) || Clicked(w.frmbox.cmdok) || Chose(w.frmbox.mnuchiudi) ||
                       event_.window == &w.frmbox.window;
  const bool leaves = Clicked(sheet.cmdreset) || Chose(sheet.mnuannulla) || Chose(sheet.mnuannullasequenza) ||
                      Chose(sheet.mnuesci) || event_.window == &sheet.window;
  const std::size_t before = std::max<std::size_t>(box_tabs_, 4);
  Require(now <= before || designs || opening_, "a box tab came from nowhere");
  Require(now >= before || leaves || opening_, "a box tab went for no reason");
  Require(!TookProposal() || now > 4, "a box was designed and has no tab");
  Require(sheet.window.open || now <= 4, "a box tab outlives its project");
  const bool cancelled = !platform_.given.empty() && platform_.given.front() == "file cancel";
  const bool opened = opening_ && !cancelled && platform_.boxes.empty();
  const bool known = program_.state.BoxSection == program_.Text(210) || program_.state.BoxSection == program_.Text(211);
  Require(!opened || !known || now == 5, "an opened box has no tab");
}

/// What has just been marked can be saved, unless a page was selected behind it.
void Invariants::CheckModified() {
  const bool marked = program_.state.ProjectModified && !modified_;
  const Sheet& sheet = program_.windows.frmthsm;
  const bool selects = event_.act == Act::Tab || event_.control == &sheet.TabStrip1 || sheet.selected_tab != selected_;
  if (marked && sheet.window.open && !selects) Require(sheet.mnusalvadir.enabled, "a modified project cannot be saved");
}

void Invariants::CheckCurve(const Curve& curve, std::string_view name) {
  if (curve.empty()) return;
  Require(curve.size() <= kMostRows + 1, "a curve without end: " + std::string(name));
  const Seen seen{curve.data(), curve.size(), curve.front(), curve[curve.size() / 2], curve.back()};
  Seen& last = seen_[std::string(name)];
  if (seen == last) return;
  last = seen;
  Require(std::all_of(curve.begin(), curve.end(), IsFinite), "not finite: " + std::string(name));
}

void Invariants::CheckValue(const ValueRef& value, std::string_view name) {
  if (const auto* const number = std::get_if<const double*>(&value)) {
    Require(std::isfinite(**number), "not finite: " + std::string(name));
  } else if (const auto* const single = std::get_if<const float*>(&value)) {
    Require(std::isfinite(**single), "not finite: " + std::string(name));
  } else if (const auto* const curve = std::get_if<const Curve*>(&value)) {
    CheckCurve(**curve, name);
  } else {
    Require(!std::holds_alternative<std::monostate>(value), "the record has no " + std::string(name));
  }
}

void Invariants::CheckRecord() {
  for (const std::string_view name : RecordNumbers()) CheckValue(FindInRecord(program_.state, name), name);
  for (const Window* const window : program_.all) {
    for (const WindowValue& value : window->values) CheckValue(value.value, value.name);
  }
}

void Invariants::CheckSurfaces() {
  for (const Window* const window : program_.all) {
    for (const Control* const control : window->controls) {
      if (control->surface == nullptr || !window->open) continue;
      const Surface& surface = *control->surface;
      const std::string name = PrintedName(*control);
      const Scale& scale = surface.scale;
      Require(std::isfinite(scale.left) && std::isfinite(scale.width) && std::isfinite(scale.height),
              "no scale: " + name);
      for (const Stroke& stroke : surface.strokes) {
        Require(stroke.first + stroke.count <= surface.points.size(), "a stroke without points: " + name);
      }
      // Clearing and drawing anew raises the revision: what stands was looked at.
      Seen& last = seen_[name];
      const Seen seen{nullptr, static_cast<std::size_t>(surface.revision), 0, 0, 0};
      if (seen == last) continue;
      last = seen;
      const bool drawn = std::all_of(surface.points.begin(), surface.points.end(), [](const Point& point) {
        return std::isfinite(point.x) && std::isfinite(point.y);
      });
      Require(drawn, "a point at no place: " + name);
    }
  }
}

/// The order holds the open windows once each, the frame last, and nothing points to one that is gone.
void Invariants::CheckWindows() {
  const std::vector<Window*>& order = program_.order;
  for (Window* const window : program_.all) {
    const auto times = std::count(order.begin(), order.end(), window);
    Require(times == (window->open ? 1 : 0), "the order of windows is wrong about " + std::string(window->name));
  }
  Require(order.size() <= program_.all.size(), "the order of windows holds more than there are");
  const Window& frame = program_.windows.mdithsm.window;
  if (frame.open) Require(order.back() == &frame, "the frame is not behind the others");
  const Window* const active = program_.active;
  const bool there = active == nullptr || (active->open && !active->hidden);
  Require(there, "the active window is gone: " + std::string(active == nullptr ? "" : active->name));
}

void Invariants::CheckFocus() {
  const Control* const focus = program_.focus;
  if (focus != nullptr) {
    const std::string name = PrintedName(*focus);
    Require(focus->window->open, "the focus is in a closed window: " + name);
    Require(!focus->window->hidden, "the focus is in a hidden window: " + name);
    Require(focus->IsShown() && focus->IsUsable() && focus->TakesFocus(), "the focus is where it cannot be: " + name);
  }
  const Control* const held = program_.held;
  Require(held == nullptr || held == focus, "what held the focus has it not");
  Require(program_.keys.empty(), "keystrokes are left over");
}

/// The whole of what windows point to, and texts that every face can show.
void Invariants::CheckControls() {
  for (const Window* const window : program_.all) {
    for (const Control* const control : window->controls) {
      Require(control->window == window, "a control of another window: " + control->FullName());
      const Control* const parent = control->parent;
      Require(parent == nullptr || parent->window == window, "a parent elsewhere: " + control->FullName());
      if (!window->open || control->text->size() > 10000) continue;
      Require(IsWhole(*control->text), "half a character: " + PrintedName(*control));
    }
  }
}

void Invariants::CheckEnd() {
  for (const std::string& complaint : platform_.complaints) Require(false, complaint);
  if (program_.run == RunState::Running) {
    Require(platform_.ends == 0, "the end was told of a program that runs");
    return;
  }
  Require(platform_.ends == 1, "the end was not told once");
  Require(platform_.failed == (program_.run == RunState::EndedByFailure), "the end was told wrongly");
  const MainFrame& frame = program_.windows.mdithsm;
  if (program_.run == RunState::Ended) {
    Require(Chose(frame.mnuuscita) || event_.window == &frame.window, "the program ended by itself");
    Require(!program_.state.ProjectModified, "the program ended with a modified project");
    return;
  }
  CheckLastWords();
}

/// A failure is told before the end: by the stop message of the place that runs events, or by one of two boxes with
/// words of their own, of a narrow screen and of a clipboard that is no sequence to its end.
void Invariants::CheckLastWords() {
  if (platform_.boxes.empty()) return Require(false, "the program failed without a word");
  const MessageBox& last = platform_.boxes.back();
  const bool narrow = platform_.screen_width < 1024 && last.title == "Impostazione Schermo";
  const bool pasted = Clicked(program_.windows.frmFaseSh.cmdimporta) && last.icon == MessageIcon::None &&
                      last.title == program_.windows.mdithsm.window.caption &&
                      last.text == RunTimeError(ErrorNumber::EndOfFile).what();
  if (narrow || pasted) return;
  Require(last.icon == MessageIcon::Stop && last.buttons == MessageButtons::Ok, "the failure is no stop message");
  Require(last.title == program_.Text(108), "the failure has another title: " + last.title);
  const bool known = last.text == program_.Text(191) ||
                     std::any_of(kEndings.begin(), kEndings.end(),
                                 [&](ErrorNumber number) { return last.text == RunTimeError(number).what(); });
  Require(known, "the failure has an unknown text: " + last.text);
}

}  // namespace zefirondo
