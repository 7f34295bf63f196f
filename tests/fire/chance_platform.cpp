#include "fire/chance_platform.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "core/run_time_error.h"
#include "print/page.h"
#include "runner/words.h"

namespace zefirondo {
namespace {

std::vector<Answer> ButtonsOf(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::YesNo: return {Answer::Yes, Answer::No};
    case MessageButtons::YesNoCancel: return {Answer::Yes, Answer::No, Answer::Cancel};
    case MessageButtons::Ok: break;
  }
  return {Answer::Ok};
}

const char* AnswerName(Answer answer) {
  switch (answer) {
    case Answer::Yes: return "yes";
    case Answer::No: return "no";
    case Answer::Cancel: return "cancel";
    case Answer::Ok: break;
  }
  return "ok";
}

bool AllFinite(std::initializer_list<double> values) {
  return std::all_of(values.begin(), values.end(), [](double value) { return std::isfinite(value); });
}

bool HasPlace(const PageText& item) { return AllFinite({item.x, item.y}); }
bool HasPlace(const PageLine& item) { return AllFinite({item.x1, item.y1, item.x2, item.y2}); }
bool HasPlace(const PageBox& item) { return AllFinite({item.x1, item.y1, item.x2, item.y2}); }
bool HasPlace(const PagePicture& item) { return AllFinite({item.x, item.y, item.width, item.height}); }

}  // namespace

void ChancePlatform::BeginEvent() {
  boxes.clear();
  answers.clear();
  given.clear();
}

void ChancePlatform::Tell(std::string line) {
  if (told_at_once) std::printf("%s\n", line.c_str());
  given.push_back(std::move(line));
}

Answer ChancePlatform::ShowMessage(const MessageBox& box) {
  const std::vector<Answer> buttons = ButtonsOf(box.buttons);
  Answer answer = buttons.size() > 1 && dice_.Percent(50) ? Answer::Yes : dice_.Of(buttons);
  if (next_answer && std::find(buttons.begin(), buttons.end(), *next_answer) != buttons.end()) {
    answer = *next_answer;
    next_answer.reset();
  }
  if (box.text.empty() || box.title.empty()) complaints.emplace_back("a message box without words");
  boxes.push_back(box);
  answers.push_back(answer);
  if (buttons.size() > 1) Tell(std::string("answer ") + AnswerName(answer));
  Tell("# message " + Quoted(box.title) + " " + Quoted(box.text));
  return answer;
}

std::string ChancePlatform::ShowInput(const InputBox&) {
  static const std::vector<std::string> kInputs{"", "A title", "  ", "l\xC3\xA8vante \xE2\x82\xAC",
                                                std::string(400, 'W')};
  const std::string text = dice_.Of(kInputs);
  Tell("input " + Quoted(text));
  return text;
}

std::optional<std::filesystem::path> ChancePlatform::ChooseFile(const FileDialog& dialog) {
  if (dice_.Percent(12)) {
    Tell("file cancel");
    return std::nullopt;
  }
  const std::filesystem::path path = files_.Choose(dice_, dialog.filter);
  Tell("file " + Quoted(path.string()));
  return path;
}

std::optional<PrintChoice> ChancePlatform::ChoosePrinter() {
  if (dice_.Percent(20)) {
    Tell("printer cancel");
    return std::nullopt;
  }
  printer_fails_ = dice_.Percent(20);
  const PrintChoice choice{static_cast<int>(1 + dice_.Below(3)), dice_.Percent(50)};
  const std::string way = choice.landscape ? " landscape" : " portrait";
  Tell("printer " + (printer_fails_ ? "fail" : std::to_string(choice.copies) + way));
  return choice;
}

void ChancePlatform::Print(const std::vector<Page>& pages, const PrintChoice&) {
  if (printer_fails_) throw RunTimeError(ErrorNumber::DeviceError);
  for (const Page& page : pages) {
    for (const PageItem& item : page.items) {
      if (!std::visit([](const auto& placed) { return HasPlace(placed); }, item)) {
        complaints.emplace_back("something printed at no place");
      }
    }
  }
}

void ChancePlatform::EndProgram(bool by_failure) {
  ++ends;
  failed = by_failure;
}

}  // namespace zefirondo
