// What the program needs of the desktop, answered with Qt.
#pragma once

#include <QElapsedTimer>
#include <QStringList>
#include <functional>
#include <map>
#include <memory>

#include "core/messages.h"
#include "core/platform.h"

class QPrinter;
class QWidget;

namespace zefirondo::screens {

class ManualViewer;

class QtPlatform : public Platform {
 public:
  explicit QtPlatform(Language language);
  ~QtPlatform() override;

  /// The window that dialogs stand before, and what brings the screen in line before one is shown.
  void Attach(QWidget* window, std::function<void()> refresh);

  [[nodiscard]] bool ended() const { return ended_; }
  [[nodiscard]] int exit_status() const { return failed_ ? 1 : 0; }

  Answer ShowMessage(const MessageBox& box) override;
  std::string ShowInput(const InputBox& box) override;
  std::optional<std::filesystem::path> ChooseFile(const FileDialog& dialog) override;
  std::string ClipboardText() override;
  void ClearClipboard() override;
  std::optional<PrintChoice> ChoosePrinter() override;
  void Print(const std::vector<Page>& pages, const PrintChoice& choice) override;
  void WriteStore(const std::string& key, const std::string& value) override;
  Date Today() override;
  double ScreenWidth() override;
  void ShowHelp(const std::filesystem::path& file) override;
  std::filesystem::path InformationTool() override;
  bool StartTool(const std::filesystem::path& tool) override;
  void ShowProgress() override;
  void EndProgram(bool failed) override;

 protected:
  /// The folders that may hold the folder "manual", the first one before the others.
  [[nodiscard]] virtual QStringList ManualPlaces(const std::filesystem::path& file) const;

 private:
  void Refresh() const;

  Language language_;
  QWidget* window_ = nullptr;
  std::function<void()> refresh_;
  std::map<std::string, std::string> store_;
  std::unique_ptr<QPrinter> printer_;     // of the last printer dialog
  std::unique_ptr<ManualViewer> manual_;  // once it was opened
  QElapsedTimer progress_shown_;
  bool ended_ = false;
  bool failed_ = false;
};

/// The filters of a file dialog, from "words (*.ext)|*.ext|..." to Qt's "words (*.ext)".
[[nodiscard]] std::vector<std::string> NameFilters(const std::string& filter);

}  // namespace zefirondo::screens
