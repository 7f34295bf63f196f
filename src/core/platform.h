// What the program needs of the desktop around it. `screens/` answers with Qt, `runner/` with queued answers.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace zefirondo {

struct Page;

enum class MessageIcon { None, Stop, Warning, Question, Information };
enum class MessageButtons { Ok, YesNo, YesNoCancel };
enum class Answer { Ok, Yes, No, Cancel };

struct MessageBox {
  MessageIcon icon = MessageIcon::None;
  std::string title;
  std::string text;
  MessageButtons buttons = MessageButtons::Ok;
};

struct FileDialog {
  bool save = false;              // a save dialog asks before overwriting
  std::string filter;             // "words (*.ext)|*.ext|..."
  std::string default_extension;  // with its point
  std::filesystem::path folder;   // where it opens
};

struct InputBox {
  std::string title;
  std::string prompt;
};

struct PrintChoice {
  int copies = 1;
  bool landscape = false;
};

struct Date {
  int day = 1;
  int month = 1;
  int year = 2000;
};

/// A date as "dd/mm/yyyy".
[[nodiscard]] std::string DateText(const Date& date);

class Platform {
 public:
  Platform() = default;
  Platform(const Platform&) = delete;
  Platform& operator=(const Platform&) = delete;
  virtual ~Platform() = default;

  /// Shows a box and gives the button that closed it.
  virtual Answer ShowMessage(const MessageBox& box) = 0;
  /// The text typed into an input box; empty when it was cancelled.
  virtual std::string ShowInput(const InputBox& box) = 0;
  /// The path chosen, or nothing when the dialog was cancelled.
  virtual std::optional<std::filesystem::path> ChooseFile(const FileDialog& dialog) = 0;

  virtual std::string ClipboardText() = 0;
  virtual void ClearClipboard() = 0;

  /// The printer dialog, or nothing when it was cancelled.
  virtual std::optional<PrintChoice> ChoosePrinter() = 0;
  /// Prints the pages on the printer chosen last. Throws `RunTimeError` when the printer fails.
  virtual void Print(const std::vector<Page>& pages, const PrintChoice& choice) = 0;

  /// Writes a default value to the configuration store that ties files to programs; a failure is ignored.
  virtual void WriteStore(const std::string& key, const std::string& value) = 0;

  [[nodiscard]] virtual Date Today() = 0;
  /// The usable width of the screen, in twips.
  [[nodiscard]] virtual double ScreenWidth() = 0;
  /// Opens the help file at its index.
  virtual void ShowHelp(const std::filesystem::path& file) = 0;
  /// The path of the desktop's own information tool; empty when there is none.
  virtual std::filesystem::path InformationTool() = 0;
  /// Starts a program; false when it could not be started.
  virtual bool StartTool(const std::filesystem::path& tool) = 0;
  /// Shows how far a long work is, while it goes on.
  virtual void ShowProgress() = 0;
  /// Ends the program: it is the last thing that the program asks for.
  virtual void EndProgram(bool failed) = 0;
};

}  // namespace zefirondo
