#include "runner/script.h"

#include <algorithm>

#include "program/assembly.h"
#include "runner/running_script.h"
#include "runner/script_error.h"

namespace zefirondo {
namespace {

constexpr std::size_t kMany = 1000000;

}  // namespace

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

Script::Script(std::string& out, const ScriptOptions& options)
    : out_(out),
      platform_(out, options.today, options.screen_width),
      program_(platform_, options.language, options.folder) {
  ConnectProgram(program_);
  Window& frame = program_.windows.mdithsm.window;
  frame.width = options.screen_width * 15;
  frame.height = frame.width * 9 / 16;
}

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
