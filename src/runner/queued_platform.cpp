#include "runner/queued_platform.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <system_error>

#include "core/run_time_error.h"
#include "runner/script_error.h"
#include "runner/words.h"

namespace zefirondo {
namespace {

std::string_view IconName(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::Stop: return "stop";
    case MessageIcon::Warning: return "warning";
    case MessageIcon::Question: return "question";
    case MessageIcon::Information: return "information";
    case MessageIcon::None: break;
  }
  return "none";
}

std::string_view AnswerName(Answer answer) {
  switch (answer) {
    case Answer::Yes: return "Yes";
    case Answer::No: return "No";
    case Answer::Cancel: return "Cancel";
    case Answer::Ok: break;
  }
  return "OK";
}

std::vector<Answer> ButtonsOf(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::YesNo: return {Answer::Yes, Answer::No};
    case MessageButtons::YesNoCancel: return {Answer::Yes, Answer::No, Answer::Cancel};
    case MessageButtons::Ok: break;
  }
  return {Answer::Ok};
}

template <class T>
T TakeFront(std::deque<T>& queue) {
  T front = std::move(queue.front());
  queue.pop_front();
  return front;
}

}  // namespace

QueuedPlatform::QueuedPlatform(std::string& out, Date today, double screen_width)
    : out_(out), today_(today), screen_width_(screen_width) {}

std::string QueuedPlatform::LeftOver() const {
  if (!answers.empty()) return "answer " + std::string(AnswerName(answers.front()));
  if (!files.empty()) return "file " + (files.front() ? files.front()->string() : "cancel");
  if (!inputs.empty()) return "input " + inputs.front();
  if (!printers.empty()) return "printer";
  if (!overwrites.empty()) return std::string("overwrite ") + (overwrites.front() ? "yes" : "no");
  return {};
}

Answer QueuedPlatform::ShowMessage(const MessageBox& box) {
  const std::vector<Answer> buttons = ButtonsOf(box.buttons);
  const auto fits = [&](Answer answer) { return std::find(buttons.begin(), buttons.end(), answer) != buttons.end(); };
  Answer given = Answer::Ok;
  if (!answers.empty() && fits(answers.front())) {
    given = TakeFront(answers);
  } else if (buttons.size() > 1) {
    throw ScriptError("no answer is queued for the message box " + Quoted(box.text));
  }
  std::string names;
  for (const Answer button : buttons) names.append(names.empty() ? "" : " ").append(AnswerName(button));
  Print("message " + std::string(IconName(box.icon)) + " " + Quoted(box.title) + " " + Quoted(box.text) + " [" + names +
        "] -> " + std::string(AnswerName(given)));
  return given;
}

std::string QueuedPlatform::ShowInput(const InputBox& box) {
  if (inputs.empty()) throw ScriptError("no input is queued for the input box " + Quoted(box.prompt));
  std::string text = TakeFront(inputs);
  Print("input " + Quoted(box.title) + " " + Quoted(box.prompt) + " -> " + Quoted(text));
  return text;
}

std::optional<std::filesystem::path> QueuedPlatform::TakeFile(const FileDialog& dialog) {
  while (!files.empty()) {
    std::optional<std::filesystem::path> path = TakeFront(files);
    if (!path) return path;
    if (!path->has_extension()) *path += dialog.default_extension;
    std::error_code error;
    if (!dialog.save) {
      // A bare name is looked for where the dialog opened, when the current folder does not have it.
      const std::filesystem::path there = dialog.folder / *path;
      if (path->is_relative() && !std::filesystem::exists(*path, error) && std::filesystem::exists(there, error)) {
        return there;
      }
      return path;
    }
    if (!std::filesystem::exists(*path, error) || overwrites.empty() || TakeFront(overwrites)) return path;
    if (files.empty()) return std::nullopt;  // the file is kept, and the dialog given up
  }
  throw ScriptError("no file is queued for the dialog " + Quoted(dialog.filter));
}

std::optional<std::filesystem::path> QueuedPlatform::ChooseFile(const FileDialog& dialog) {
  std::optional<std::filesystem::path> path = TakeFile(dialog);
  Print(std::string("dialog ") + (dialog.save ? "save " : "open ") + Quoted(dialog.filter) +
        " default=" + Quoted(dialog.default_extension) + " folder=" + Quoted(dialog.folder.string()) + " -> " +
        (path ? path->string() : "cancel"));
  return path;
}

std::optional<PrintChoice> QueuedPlatform::ChoosePrinter() {
  if (printers.empty()) throw ScriptError("no printer is queued for the printer dialog");
  const Printer printer = TakeFront(printers);
  if (printer.cancelled) {
    Print("printer -> cancel");
    return std::nullopt;
  }
  printer_fails_ = printer.fails;
  Print("printer -> " + std::to_string(printer.choice.copies) +
        (printer.choice.landscape ? " landscape" : " portrait"));
  return printer.choice;
}

void QueuedPlatform::Print(const std::vector<Page>& printed, const PrintChoice&) {
  if (printer_fails_) throw RunTimeError(ErrorNumber::DeviceError);
  pages.insert(pages.end(), printed.begin(), printed.end());
}

void QueuedPlatform::WriteStore(const std::string& key, const std::string& value) { store.emplace_back(key, value); }

void QueuedPlatform::ShowHelp(const std::filesystem::path& file) { Print("help " + Quoted(file.string())); }

bool QueuedPlatform::StartTool(const std::filesystem::path& tool) {
  Print("tool " + Quoted(tool.string()));
  return true;
}

void QueuedPlatform::EndProgram(bool failed) { Print(failed ? "ended error" : "ended"); }

}  // namespace zefirondo
