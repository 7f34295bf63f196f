// The desktop of a script: boxes and dialogs take their answers from queues, and tell what was shown.
#pragma once

#include <deque>
#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/platform.h"
#include "print/page.h"

namespace zefirondo {

class QueuedPlatform : public Platform {
 public:
  /// Prints to `out`; the screen's width is in pixels.
  QueuedPlatform(std::string& out, Date today, double screen_width);

  // What a script queues.
  std::deque<Answer> answers;
  std::deque<std::optional<std::filesystem::path>> files;  // nothing: the dialog is cancelled
  std::deque<std::string> inputs;
  std::deque<bool> overwrites;
  std::string clipboard;
  struct Printer {
    bool cancelled = false;
    bool fails = false;
    PrintChoice choice;
  };
  std::deque<Printer> printers;

  // What a script asks for.
  std::vector<std::pair<std::string, std::string>> store;
  std::vector<Page> pages;
  int progress_updates = 0;  // how often a long work has shown how far it is

  /// What is still queued, in words; empty when all was used.
  [[nodiscard]] std::string LeftOver() const;

  Answer ShowMessage(const MessageBox& box) override;
  std::string ShowInput(const InputBox& box) override;
  std::optional<std::filesystem::path> ChooseFile(const FileDialog& dialog) override;
  std::string ClipboardText() override { return clipboard; }
  void ClearClipboard() override { clipboard.clear(); }
  std::optional<PrintChoice> ChoosePrinter() override;
  void Print(const std::vector<Page>& pages, const PrintChoice& choice) override;
  void WriteStore(const std::string& key, const std::string& value) override;
  Date Today() override { return today_; }
  double ScreenWidth() override { return screen_width_ * 15; }
  void ShowHelp(const std::filesystem::path& file) override;
  std::filesystem::path InformationTool() override { return {}; }
  bool StartTool(const std::filesystem::path& tool) override;
  void ShowProgress() override { ++progress_updates; }
  void EndProgram(bool failed) override;

 private:
  void Print(const std::string& line) { out_ += line + "\n"; }
  [[nodiscard]] std::optional<std::filesystem::path> TakeFile(const FileDialog& dialog);

  std::string& out_;
  bool printer_fails_ = false;
  Date today_;
  double screen_width_;
};

}  // namespace zefirondo
