#include "runner/script.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <fstream>
#include <iterator>
#include <span>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "core/acts.h"
#include "core/fields.h"
#include "core/text.h"
#include "program/assembly.h"
#include "runner/names.h"
#include "runner/queued_platform.h"
#include "runner/script_error.h"
#include "runner/words.h"

namespace zefirondo {
namespace {

using Words = std::span<const std::string>;

/// The words of a command that is run, and all it works on.
class Script {
 public:
  Script(std::string& out, const ScriptOptions& options)
      : out_(out),
        platform_(out, options.today, options.screen_width),
        program_(platform_, options.language, options.folder) {
    ConnectProgram(program_);
    Window& frame = program_.windows.mdithsm.window;
    frame.width = options.screen_width * 15;
    frame.height = frame.width * 9 / 16;
  }

  void RunLine(std::string_view line);
  [[nodiscard]] std::string LeftOver() const { return platform_.LeftOver(); }

 private:
  struct Command;
  static const std::vector<Command>& Commands();

  void Print(const std::string& line) { out_ += line + "\n"; }
  void Report(const std::string& name, const Outcome& outcome);

  // Doing.
  void DoStart(Words words);
  void DoChoose(Words words);
  void DoFocus(Words words);
  void DoLeave(Words words);
  void DoType(Words words);
  void DoSet(Words words);
  void DoPick(Words words);
  void DoClick(Words words);
  void DoDoubleClick(Words words);
  void DoRightClick(Words words);
  void DoTab(Words words);
  void DoPress(Words words);
  void DoRelease(Words words);
  void DoClose(Words words);
  void DoClipboard(Words words);

  // Answering.
  void QueueAnswer(Words words);
  void QueueFile(Words words);
  void QueueInput(Words words);
  void QueueOverwrite(Words words);
  void QueuePrinter(Words words);

  // Asking.
  void AskGet(Words words);
  void AskLook(Words words);
  void AskList(Words words);
  void AskCaption(Words words);
  void AskPlace(Words words);
  void AskTabs(Words words);
  void AskWindows(Words words);
  void AskFocused(Words words);
  void AskCurve(Words words);
  void AskSurface(Words words);
  void AskStore(Words words);
  void AskPages(Words words);
  void AskEcho(Words words);

  Control& Field(const std::string& name);
  Control& Plot(const std::string& name);

  std::string& out_;
  QueuedPlatform platform_;
  Program program_;
};

constexpr std::size_t kMany = 1000000;

struct Script::Command {
  std::string_view name;
  void (Script::*run)(Words);
  std::size_t least;
  std::size_t most;
  bool asks;  // answered even after the program has ended
};

const std::vector<Script::Command>& Script::Commands() {
  static const std::vector<Command> commands{
      {"start", &Script::DoStart, 0, kMany, false},
      {"choose", &Script::DoChoose, 1, 1, false},
      {"focus", &Script::DoFocus, 1, 1, false},
      {"leave", &Script::DoLeave, 0, 0, false},
      {"type", &Script::DoType, 2, 2, false},
      {"set", &Script::DoSet, 2, 2, false},
      {"pick", &Script::DoPick, 2, 2, false},
      {"click", &Script::DoClick, 1, 1, false},
      {"dblclick", &Script::DoDoubleClick, 1, 1, false},
      {"rightclick", &Script::DoRightClick, 1, 1, false},
      {"tab", &Script::DoTab, 1, 1, false},
      {"press", &Script::DoPress, 3, 3, false},
      {"release", &Script::DoRelease, 1, 1, false},
      {"close", &Script::DoClose, 1, 1, false},
      {"clipboard", &Script::DoClipboard, 1, 1, false},
      {"answer", &Script::QueueAnswer, 1, 1, false},
      {"file", &Script::QueueFile, 1, 1, false},
      {"input", &Script::QueueInput, 1, 1, false},
      {"overwrite", &Script::QueueOverwrite, 1, 1, false},
      {"printer", &Script::QueuePrinter, 1, 2, false},
      {"get", &Script::AskGet, 1, kMany, true},
      {"look", &Script::AskLook, 1, kMany, true},
      {"list", &Script::AskList, 1, 1, true},
      {"caption", &Script::AskCaption, 1, kMany, true},
      {"place", &Script::AskPlace, 1, kMany, true},
      {"tabs", &Script::AskTabs, 0, 0, true},
      {"windows", &Script::AskWindows, 0, 0, true},
      {"focused", &Script::AskFocused, 0, 0, true},
      {"curve", &Script::AskCurve, 1, 3, true},
      {"surface", &Script::AskSurface, 1, 1, true},
      {"store", &Script::AskStore, 0, 0, true},
      {"pages", &Script::AskPages, 0, 0, true},
      {"echo", &Script::AskEcho, 0, kMany, true},
  };
  return commands;
}

void Script::RunLine(std::string_view line) {
  const std::vector<std::string> words = SplitWords(line);
  if (words.empty()) return;
  const std::vector<Command>& commands = Commands();
  const auto command = std::find_if(commands.begin(), commands.end(),
                                    [&](const Command& candidate) { return candidate.name == words.front(); });
  if (command == commands.end()) throw ScriptError("unknown command " + words.front());
  const Words arguments = Words(words).subspan(1);
  if (arguments.size() < command->least || arguments.size() > command->most) {
    throw ScriptError(words.front() + " has the wrong number of words");
  }
  const bool over = program_.run == RunState::Ended || program_.run == RunState::EndedByFailure;
  if (over && !command->asks) {
    Print("ended");
    return;
  }
  (this->*command->run)(arguments);
}

std::string_view RefusalName(Refusal refusal) {
  switch (refusal) {
    case Refusal::Disabled: return "disabled";
    case Refusal::Hidden: return "hidden";
    case Refusal::Locked: return "locked";
    default: return "not open";
  }
}

void Script::Report(const std::string& name, const Outcome& outcome) {
  if (outcome.refusal != Refusal::None) Print("refused " + name + ": " + std::string(RefusalName(outcome.refusal)));
  if (outcome.held != nullptr) Print("held " + PrintedName(*outcome.held));
}

Control& Script::Field(const std::string& name) {
  Control& control = FindControl(program_, name);
  if (!control.IsField()) throw ScriptError(name + " is no field");
  return control;
}

Control& Script::Plot(const std::string& name) {
  Control& control = FindControl(program_, name);
  if (control.surface == nullptr) throw ScriptError(name + " is no plot");
  return control;
}

std::string Joined(Words words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : " ") + word;
  return text;
}

double ReadScriptNumber(const std::string& word) {
  double value = 0.0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
  if (error != std::errc() || end != word.data() + word.size() || !std::isfinite(value)) {
    throw ScriptError(word + " is no number");
  }
  return value;
}

double ReadIndex(const std::string& word) {
  const double index = ReadScriptNumber(word);
  if (index < 0 || index != std::floor(index)) throw ScriptError(word + " is no index");
  return index;
}

// ---- doing ----

void Script::DoStart(Words words) {
  if (program_.run != RunState::NotStarted) throw ScriptError("the program was started before");
  Start(program_, Joined(words));
}

void Script::DoChoose(Words words) {
  Control& entry = FindControl(program_, words[0]);
  if (entry.kind != ControlKind::MenuEntry) throw ScriptError(words[0] + " is no menu entry");
  Report(words[0], Choose(program_, entry));
}

void Script::DoFocus(Words words) {
  Control& control = FindControl(program_, words[0]);
  if (!control.TakesFocus()) throw ScriptError(words[0] + " cannot take the focus");
  Report(words[0], Focus(program_, control));
}

void Script::DoLeave(Words) { Report("", Leave(program_)); }

/// The keys that a text stands for.
std::vector<int> KeysOf(std::string_view text) {
  struct Name {
    std::string_view name;
    int key;
  };
  static constexpr std::array<Name, 3> kNames{
      {{"{ENTER}", key::kEnter}, {"{TAB}", key::kTab}, {"{BACKSPACE}", key::kBackspace}}};
  std::vector<int> keys;
  while (!text.empty()) {
    const auto named = std::find_if(kNames.begin(), kNames.end(),
                                    [&](const Name& candidate) { return text.starts_with(candidate.name); });
    if (named != kNames.end()) {
      keys.push_back(named->key);
      text.remove_prefix(named->name.size());
      continue;
    }
    const std::size_t length = ByteOffset(text, 1);
    for (const char32_t c : Characters(text.substr(0, length))) keys.push_back(static_cast<int>(c));
    text.remove_prefix(length);
  }
  return keys;
}

void Script::DoType(Words words) {
  Outcome outcome = BeginTyping(program_, Field(words[0]));
  for (const int pressed : KeysOf(words[1])) {
    if (!outcome.Done() || program_.run != RunState::Running) break;
    outcome = PressKey(program_, pressed);
  }
  Report(words[0], outcome);
}

void Script::DoSet(Words words) { Report(words[0], Paste(program_, Field(words[0]), words[1])); }

void Script::DoPick(Words words) {
  Control& combo = FindControl(program_, words[0]);
  if (combo.kind != ControlKind::ComboBox) throw ScriptError(words[0] + " has no list");
  const bool shown = WhyNot(program_, combo) == Refusal::None && !combo.locked;
  if (shown && std::find(combo.list.begin(), combo.list.end(), words[1]) == combo.list.end()) {
    throw ScriptError(words[0] + " has no item " + Quoted(words[1]));
  }
  Report(words[0], Pick(program_, combo, words[1]));
}

void Script::DoClick(Words words) {
  Control& control = FindControl(program_, words[0]);
  if (control.IsMenu()) throw ScriptError(words[0] + " is a menu entry, which is chosen");
  Report(words[0], Click(program_, control));
}

void Script::DoDoubleClick(Words words) { Report(words[0], DoubleClick(program_, FindControl(program_, words[0]))); }

void Script::DoRightClick(Words words) { Report(words[0], RightClick(program_, FindControl(program_, words[0]))); }

void Script::DoTab(Words words) {
  static constexpr std::array<std::string_view, 6> kKeys{"gen", "par", "dim", "chi", "ref", "imp"};
  if (std::find(kKeys.begin(), kKeys.end(), words[0]) == kKeys.end()) throw ScriptError("there is no tab " + words[0]);
  const Sheet& sheet = program_.windows.frmthsm;
  if (sheet.window.open && !sheet.HasTab(words[0])) {
    Report(words[0], {Refusal::Hidden, nullptr});
    return;
  }
  Report(words[0], ClickTab(program_, words[0]));
}

void Script::DoPress(Words words) {
  Control& plot = Plot(words[0]);
  Report(words[0], PressMouse(program_, plot, ReadScriptNumber(words[1]), ReadScriptNumber(words[2])));
}

void Script::DoRelease(Words words) { Report(words[0], ReleaseMouse(program_, Plot(words[0]))); }

void Script::DoClose(Words words) {
  Window* const window = program_.FindWindow(words[0]);
  if (window == nullptr) throw ScriptError("there is no window " + words[0]);
  Report(words[0], CloseBox(program_, *window));
}

void Script::DoClipboard(Words words) {
  if (words[0].empty()) {
    platform_.clipboard.clear();
    return;
  }
  std::error_code error;
  std::ifstream file(words[0], std::ios::binary);
  if (!file || std::filesystem::is_directory(words[0], error)) {
    throw ScriptError("the file " + words[0] + " cannot be read");
  }
  platform_.clipboard.assign(std::istreambuf_iterator<char>(file), {});
}

// ---- answering ----

void Script::QueueAnswer(Words words) {
  struct Name {
    std::string_view name;
    Answer answer;
  };
  static constexpr std::array<Name, 4> kNames{
      {{"yes", Answer::Yes}, {"no", Answer::No}, {"cancel", Answer::Cancel}, {"ok", Answer::Ok}}};
  const auto named =
      std::find_if(kNames.begin(), kNames.end(), [&](const Name& candidate) { return candidate.name == words[0]; });
  if (named == kNames.end()) throw ScriptError("there is no answer " + words[0]);
  platform_.answers.push_back(named->answer);
}

void Script::QueueFile(Words words) {
  if (words[0] == "cancel") {
    platform_.files.emplace_back(std::nullopt);
  } else {
    platform_.files.emplace_back(words[0]);
  }
}

void Script::QueueInput(Words words) { platform_.inputs.push_back(words[0]); }

void Script::QueueOverwrite(Words words) {
  if (words[0] != "yes" && words[0] != "no") throw ScriptError("overwrite takes yes or no");
  platform_.overwrites.push_back(words[0] == "yes");
}

void Script::QueuePrinter(Words words) {
  QueuedPlatform::Printer printer;
  if (words[0] == "cancel" || words[0] == "fail") {
    if (words.size() > 1) throw ScriptError("printer " + words[0] + " takes no more words");
    printer.cancelled = words[0] == "cancel";
    printer.fails = words[0] == "fail";
  } else {
    const double copies = ReadScriptNumber(words[0]);
    if (!(copies >= 1 && copies <= 999 && copies == std::floor(copies))) throw ScriptError("no number of copies");
    printer.choice.copies = static_cast<int>(copies);
    const std::string orientation = words.size() > 1 ? words[1] : "portrait";
    if (orientation != "portrait" && orientation != "landscape") throw ScriptError("no orientation " + orientation);
    printer.choice.landscape = orientation == "landscape";
  }
  platform_.printers.push_back(printer);
}

// ---- asking ----

std::string Flag(bool flag) { return flag ? "-1" : "0"; }

std::string ValueText(const std::string& name, const ValueRef& value) {
  return std::visit(
      [&](const auto& pointer) -> std::string {
        using T = std::remove_cvref_t<decltype(pointer)>;
        if constexpr (std::is_same_v<T, const double*> || std::is_same_v<T, const float*>) {
          return NumberText(static_cast<double>(*pointer));
        } else if constexpr (std::is_same_v<T, const bool*>) {
          return Flag(*pointer);
        } else if constexpr (std::is_same_v<T, const std::string*>) {
          return Quoted(*pointer);
        } else if constexpr (std::is_same_v<T, const std::int16_t*> || std::is_same_v<T, const std::int32_t*>) {
          return std::to_string(*pointer);
        } else {
          throw ScriptError(name + " is a curve");
        }
      },
      value);
}

void Script::AskGet(Words words) {
  for (const std::string& name : words) {
    const Named named = FindName(program_, name);
    std::string value;
    if (named.window != nullptr) {
      value = Quoted(named.window->caption);
    } else if (named.control != nullptr) {
      const bool ticks = named.control->kind == ControlKind::CheckBox || named.control->kind == ControlKind::Option;
      value = ticks ? Flag(named.control->checked) : Quoted(*named.control->text);
    } else if (!named.tab.empty()) {
      throw ScriptError(name + " is a tab");
    } else {
      value = ValueText(name, named.value);
    }
    Print(name + " = " + value);
  }
}

std::string ColourText(int colour) {
  switch (colour) {
    case colour::kWindow: return "window";
    case colour::kText: return "text";
    case colour::kFace: return "face";
    default: return std::to_string(colour);
  }
}

void Script::AskLook(Words words) {
  const auto bit = [](bool flag) { return flag ? "1" : "0"; };
  for (const std::string& name : words) {
    const Control& control = FindControl(program_, name);
    if (control.IsMenu()) {
      Print(name + " enabled=" + bit(control.enabled) + " checked=" + bit(control.checked));
      continue;
    }
    Print(name + " enabled=" + bit(control.enabled) + " visible=" + bit(control.visible) +
          " locked=" + bit(control.locked) + " back=" + ColourText(control.back) + " fore=" + ColourText(control.fore));
  }
}

void Script::AskList(Words words) {
  const Control& control = FindControl(program_, words[0]);
  if (control.kind != ControlKind::ComboBox) throw ScriptError(words[0] + " has no list");
  std::string line = words[0] + ":";
  for (const std::string& item : control.list) line += " " + Quoted(item);
  Print(line);
}

void Script::AskCaption(Words words) {
  for (const std::string& name : words) {
    const Named named = FindName(program_, name);
    std::string caption;
    std::string tip;
    if (named.window != nullptr) {
      caption = named.window->caption;
    } else if (named.control != nullptr) {
      caption = named.control->IsField() ? named.control->label : *named.control->text;
      tip = named.control->tip;
    } else if (!named.tab.empty()) {
      const std::vector<TabStripItem>& tabs = program_.windows.frmthsm.tabs;
      caption = std::find_if(tabs.begin(), tabs.end(), [&](const auto& tab) { return tab.key == named.tab; })->caption;
    } else {
      throw ScriptError(name + " has no caption");
    }
    Print(name + " caption=" + Quoted(caption) + " tip=" + Quoted(tip));
  }
}

void Script::AskPlace(Words words) {
  for (const std::string& name : words) {
    const Named named = FindName(program_, name);
    if (named.window != nullptr) {
      Print(name + " left=" + NumberText(named.window->left) + " top=" + NumberText(named.window->top));
    } else if (named.control != nullptr) {
      Print(name + " left=" + NumberText(named.control->left) + " top=" + NumberText(named.control->top) +
            " width=" + NumberText(named.control->width));
    } else {
      throw ScriptError(name + " has no place");
    }
  }
}

void Script::AskTabs(Words) {
  const Sheet& sheet = program_.windows.frmthsm;
  std::string line = "tabs";
  for (const TabStripItem& tab : sheet.tabs) line += " " + tab.key;
  Print(line + " selected=" + sheet.selected_tab);
}

void Script::AskWindows(Words) {
  std::string line = "windows";
  for (const Window* const window : program_.order) {
    line += " " + std::string(window->name) + (window->hidden ? "(hidden)" : "");
  }
  Print(line);
}

void Script::AskFocused(Words) {
  Print("focused " + (program_.focus != nullptr ? PrintedName(*program_.focus) : "none"));
}

void Script::AskCurve(Words words) {
  const Named named = FindName(program_, words[0]);
  const auto* const pointer = std::get_if<const Curve*>(&named.value);
  if (pointer == nullptr) throw ScriptError(words[0] + " is no curve");
  const Curve& curve = **pointer;
  Print(words[0] + " upper=" + std::to_string(static_cast<long long>(curve.size()) - 1));
  if (curve.empty()) return;
  const double upper = static_cast<double>(curve.size() - 1);
  const double first = words.size() > 1 ? ReadIndex(words[1]) : 0.0;
  const double last = words.size() > 2 ? ReadIndex(words[2]) : (words.size() > 1 ? first : upper);
  const double end = std::min(last, upper);
  if (first > end) return;
  for (auto index = static_cast<std::size_t>(first); index <= static_cast<std::size_t>(end); ++index) {
    Print(words[0] + "(" + std::to_string(index) + ") = " + NumberText(curve[index]));
  }
}

void Script::AskSurface(Words words) {
  const Control& plot = Plot(words[0]);
  const Surface& surface = *plot.surface;
  Print("surface " + words[0] + " left=" + NumberText(surface.scale.left) +
        " width=" + NumberText(surface.scale.width) + " height=" + NumberText(surface.scale.height));
  for (const Stroke& stroke : surface.strokes) {
    for (std::size_t i = stroke.first; i + 1 < stroke.first + stroke.count; ++i) {
      const Point& a = surface.points[i];
      const Point& b = surface.points[i + 1];
      Print("line " + NumberText(a.x) + " " + NumberText(a.y) + " " + NumberText(b.x) + " " + NumberText(b.y) + " " +
            std::to_string(stroke.colour));
    }
  }
  for (const StripLabel& label : surface.labels) Print("label " + Quoted(label.text) + " " + NumberText(label.at));
  if (plot.readout != nullptr && plot.readout->visible) Print("readout " + Quoted(*plot.readout->text));
}

void Script::AskStore(Words) {
  for (const auto& [key, value] : platform_.store) Print(key + " = " + Quoted(value));
}

/// One line of what went to the printer.
struct PageLineText {
  std::string operator()(const PageText& item) const {
    return "text " + NumberText(item.x) + " " + NumberText(item.y) + " " + Quoted(item.text) +
           (item.tab != 0 ? " tab=" + std::to_string(item.tab) : "");
  }
  std::string operator()(const PageLine& item) const { return "line " + Corners(item.x1, item.y1, item.x2, item.y2); }
  std::string operator()(const PageBox& item) const { return "box " + Corners(item.x1, item.y1, item.x2, item.y2); }
  std::string operator()(const PagePicture& item) const {
    return "picture " + Corners(item.x, item.y, item.width, item.height) + " " + item.source;
  }

  static std::string Corners(double a, double b, double c, double d) {
    return NumberText(a) + " " + NumberText(b) + " " + NumberText(c) + " " + NumberText(d);
  }
};

void Script::AskPages(Words) {
  int number = 0;
  for (const Page& page : platform_.pages) {
    Print("page " + std::to_string(++number) + (page.landscape ? " landscape" : " portrait"));
    for (const PageItem& item : page.items) Print(std::visit(PageLineText{}, item));
    if (page.last) Print("end");
  }
}

void Script::AskEcho(Words words) { Print(words.empty() ? "echo" : "echo " + Joined(words)); }

}  // namespace

ScriptResult RunScript(std::string_view text, const ScriptOptions& options) {
  ScriptResult result;
  Script script(result.out, options);
  std::size_t number = 0;
  while (!text.empty()) {
    ++number;
    const std::size_t end = std::min(text.find('\n'), text.size());
    try {
      script.RunLine(text.substr(0, end));
    } catch (const ScriptError& error) {
      result.error = "line " + std::to_string(number) + ": " + error.what();
      return result;
    }
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  if (const std::string left = script.LeftOver(); !left.empty()) {
    result.error = "line " + std::to_string(number) + ": nothing took the queued " + left;
  }
  return result;
}

}  // namespace zefirondo
