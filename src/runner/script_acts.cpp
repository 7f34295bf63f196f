// The commands that do something, and those that queue an answer for it.
#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <iterator>
#include <utility>

#include "core/fields.h"
#include "core/text.h"
#include "runner/names.h"
#include "runner/running_script.h"
#include "runner/script_error.h"

namespace zefirondo {
namespace {

std::string_view RefusalName(Refusal refusal) {
  switch (refusal) {
    case Refusal::Disabled: return "disabled";
    case Refusal::Hidden: return "hidden";
    case Refusal::Locked: return "locked";
    default: return "not open";
  }
}

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

}  // namespace

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

}  // namespace zefirondo
