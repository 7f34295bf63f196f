#include "fire/event_maker.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <utility>

#include "runner/names.h"

namespace zefirondo {
namespace {

struct UsualValue {
  const char* field;
  double value;
};

/// What is put into a field when a value that makes sense is wanted.
constexpr std::array kBoxValues = std::to_array<UsualValue>({
    {"txtvolnetto", 60}, {"txtingombro", 1},    {"txtlungmis", 15},  {"txtl", 40},           {"txth", 60},
    {"txtp", 30},        {"txtld", 20},         {"txtb", 8},         {"txttemperatura", 20}, {"txtpressione", 100000},
    {"txtpot", 50},      {"txtrs", 0.2},        {"txtspessore", 18}, {"txtf1", 200},         {"txtf2", 900},
    {"txtfase1", 1.5},   {"txtfase2", 1.5},     {"cmbDoa", 10.4},    {"cmbgradi", 10},       {"cmballi", 0.8},
    {"cmbql", 9},        {"cmbnumdriver", 2},   {"cmbnumcond", 2},   {"txtLmanual", 45},     {"txtHmanual", 65},
    {"txtPmanual", 33},  {"txtfrequenza", 100}, {"txtft", 80},       {"txtFinf", 40},
});

const std::vector<std::string> kEdges{
    "",       "0",        "0.0",   "-0",     "-1",     "1",     ".",     "-",
    "1e308",  "1e-308",   "9e999", "-9e999", "7.9e28", "1e29",  "32767", "32768",
    "-32769", "0.000001", "1,5",   "1.5.2",  "1e5",    "1d3",   "007",   "00",
    "0.5",    "2",        "3",     "500",    "100000", "-273",  "-274",  "45",
    "89.999", "90",       "180",   "20000",  "5",      "1e-30", "4e28",  "99999999999999999999999999999999"};

const std::vector<std::string> kSenseless{"abc",
                                          "   ",
                                          "1 2 3",
                                          "NaN",
                                          "inf",
                                          "\xC3\xA9\xE6\xBC\xA2\xF0\x9F\x98\x80",
                                          "Prismatic",
                                          "1.62  1  0.62",
                                          "a\r\nb",
                                          "=",
                                          std::string(3000, '9'),
                                          "%s%n"};

std::string Written(double value) {
  char buffer[40];
  std::snprintf(buffer, sizeof buffer, "%.5g", value);
  return buffer;
}

}  // namespace

std::string EventMaker::Vary(double usual) {
  if (dice_.Percent(50)) return Written(usual);
  return Written(usual * std::pow(10.0, dice_.Between(-0.4, 0.4)));
}

std::string EventMaker::RandomNumber() {
  const double size = std::pow(10.0, dice_.Between(-4, 5));
  return Written(dice_.Percent(10) ? -size : size);
}

std::string EventMaker::RandomText() {
  if (calm_ && !dice_.Percent(8)) return Vary(50);
  const std::size_t chance = dice_.Below(100);
  if (chance < 35) return dice_.Of(kEdges);
  if (chance < 90) return RandomNumber();
  return dice_.Of(kSenseless);
}

std::string EventMaker::UsualText(const Control& field) {
  const auto row = std::find_if(kBoxValues.begin(), kBoxValues.end(),
                                [&](const UsualValue& usual) { return usual.field == field.name; });
  return row != kBoxValues.end() && dice_.Percent(calm_ ? 95 : 60) ? Vary(row->value) : RandomText();
}

Event EventMaker::Resolve(const Step& step) {
  Event event{step.act};
  if (!step.name.empty()) event.control = &FindControl(program_, step.name);
  event.text = step.text;
  if (step.act == Act::Tab) {
    event.control = nullptr;
    if (!program_.windows.frmthsm.HasTab(step.text)) event.act = Act::Leave;
  }
  return event;
}

Window& EventMaker::RandomWindow() {
  if (program_.order.empty() || dice_.Percent(3)) return *dice_.Of(program_.all);
  return dice_.Percent(40) ? *program_.order.front() : *dice_.Of(program_.order);
}

/// Mostly a control that a person sees and could use, and that does something.
Control& EventMaker::RandomControl() {
  for (int attempt = 0; attempt < 60; ++attempt) {
    Control& control = *dice_.Of(RandomWindow().controls);
    const bool answers =
        control.on.click != nullptr || control.IsField() || control.TakesFocus() || control.kind == ControlKind::Plot;
    const bool serves = answers && WhyNot(program_, control) == Refusal::None;
    if (serves || dice_.Percent(5)) return control;
  }
  return program_.windows.frmthsm.TabStrip1;
}

bool EventMaker::EndsProject(const Control& control) const {
  const MainFrame& frame = program_.windows.mdithsm;
  const Sheet& sheet = program_.windows.frmthsm;
  return &control == &frame.mnuuscita || &control == &sheet.mnuesci || &control == &sheet.cmdreset ||
         &control == &sheet.mnuannulla || &control == &sheet.mnuannullasequenza;
}

Event EventMaker::ActOnField(Control& field) {
  const std::size_t chance = dice_.Below(100);
  if (chance < 5) return {Act::Focus, &field};
  if (chance < 10) return {Act::DoubleClick, &field};
  if (chance < 15) return {Act::RightClick, &field};
  if (field.kind == ControlKind::ComboBox && !field.list.empty() && chance < 50) {
    return {Act::Pick, &field, nullptr, dice_.Of(field.list)};
  }
  std::string text = UsualText(field);
  if (chance < 75) return {Act::Set, &field, nullptr, std::move(text)};
  static const std::vector<std::string> kKeys{"", "\r", "\t", "\b", "\b\b\b", "\r\r"};
  text.resize(std::min<std::size_t>(text.size(), 40));
  return {Act::Type, &field, nullptr, text + dice_.Of(kKeys)};
}

Event EventMaker::ActOnPlot(Control& plot) {
  if (dice_.Percent(40)) return {Act::Release, &plot};
  Event event{Act::Press, &plot};
  const Scale& scale = plot.surface->scale;
  event.x = scale.left + scale.width * dice_.Between(-0.2, 1.2);
  event.y = scale.height * dice_.Between(-0.2, 1.2);
  if (dice_.Percent(3)) event.x = dice_.Between(-1e9, 1e9);
  return event;
}

Event EventMaker::ActOn(Control& control) {
  if (control.IsMenu()) return {Act::Choose, &control};
  if (control.IsField()) return ActOnField(control);
  if (control.kind == ControlKind::Plot && control.surface != nullptr && dice_.Percent(80)) return ActOnPlot(control);
  switch (dice_.Below(12)) {
    case 0: return {Act::DoubleClick, &control};
    case 1: return {Act::RightClick, &control};
    case 2: return {Act::Focus, &control};
    default: return {Act::Click, &control};
  }
}

Event EventMaker::RandomAct() {
  const Sheet& sheet = program_.windows.frmthsm;
  const std::size_t chance = dice_.Below(1000);
  if (chance < 20) return {Act::Leave};
  if (chance < 30) return {Act::BackTab};
  if (chance < 45) return {Act::Clipboard, nullptr, nullptr, SampleFiles::ClipboardText(dice_)};
  if (chance < 50) {
    static const std::vector<std::string> kFiles{"Project",       "Response",   "Overlay",
                                                 "Impedances",    "woofer.ovl", "Sequenza1.ovl",
                                                 "Sequenza2.ovl", "vented.pro", "new.pro"};
    return {Act::LoseFile, nullptr, nullptr, dice_.Of(kFiles)};
  }
  if (chance < 70) {
    Window* const window = dice_.Percent(5) ? dice_.Of(program_.all) : dice_.Of(program_.order);
    const bool keeps = window == &program_.windows.mdithsm.window || window == &sheet.window;
    if (!keeps || dice_.Percent(10)) return {Act::Close, nullptr, window};
  }
  if (chance < 150 && !sheet.tabs.empty()) return {Act::Tab, nullptr, nullptr, dice_.Of(sheet.tabs).key};
  Control& control = RandomControl();
  if (EndsProject(control) && dice_.Percent(85)) return {Act::Leave};
  return ActOn(control);
}

Event EventMaker::Next() {
  // A road is left for a moment now and then, and sometimes for good.
  if (!road_.empty() && dice_.Percent(1)) road_.clear();
  if (!road_.empty() && !dice_.Percent(3)) {
    const Step step = road_.front();
    road_.pop_front();
    return Resolve(step);
  }
  const std::size_t wish = program_.windows.frmthsm.window.open ? 5 : 25;
  if (road_.empty() && dice_.Percent(wish)) PlanRoad();
  return RandomAct();
}

}  // namespace zefirondo
