// A desktop without a screen whose every box and dialog is answered by chance.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "core/platform.h"
#include "fire/dice.h"
#include "fire/sample_files.h"

namespace zefirondo {

class ChancePlatform : public Platform {
 public:
  ChancePlatform(Dice& dice, const SampleFiles& files) : dice_(dice), files_(files) {}

  double screen_width = 1920;  // pixels
  std::string clipboard;
  std::vector<MessageBox> boxes;        // those of the event that runs
  std::vector<Answer> answers;          // what they were answered with
  std::vector<std::string> given;       // the same and all other answers, as a script gives them
  std::vector<std::string> complaints;  // what the program should never have asked for
  int ends = 0;                         // how often the program said that it ended
  bool failed = false;                  // what it said then
  bool told_at_once = false;            // whether answers are printed as they are given
  std::optional<Answer> next_answer;    // instead of chance, where it fits

  void BeginEvent();

  Answer ShowMessage(const MessageBox& box) override;
  std::string ShowInput(const InputBox& box) override;
  std::optional<std::filesystem::path> ChooseFile(const FileDialog& dialog) override;
  std::string ClipboardText() override { return clipboard; }
  void ClearClipboard() override { clipboard.clear(); }
  std::optional<PrintChoice> ChoosePrinter() override;
  void Print(const std::vector<Page>& pages, const PrintChoice& choice) override;
  void WriteStore(const std::string&, const std::string&) override {}
  Date Today() override { return {20, 11, 2026}; }
  double ScreenWidth() override { return screen_width * 15; }
  void ShowHelp(const std::filesystem::path&) override {}
  std::filesystem::path InformationTool() override { return dice_.Percent(50) ? "/usr/bin/tool" : ""; }
  bool StartTool(const std::filesystem::path&) override { return dice_.Percent(50); }
  void ShowProgress() override {}
  void EndProgram(bool by_failure) override;

 private:
  void Tell(std::string line);

  Dice& dice_;
  const SampleFiles& files_;
  bool printer_fails_ = false;
};

}  // namespace zefirondo
