// A script that runs: its program, its desktop, and a routine for each command.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/acts.h"
#include "core/program.h"
#include "runner/queued_platform.h"
#include "runner/script.h"
#include "runner/words.h"

namespace zefirondo {

class Script {
 public:
  Script(std::string& out, const ScriptOptions& options);

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

}  // namespace zefirondo
