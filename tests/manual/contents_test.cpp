// The manual tells everything that a person meets, in the words of the program.
#include <gtest/gtest.h>

#include <array>
#include <cctype>

#include "core/run_time_error.h"
#include "manual/pages.h"

namespace zefirondo {
namespace {

class ManualContents : public testing::TestWithParam<Language> {
 protected:
  Desk desk{GetParam()};
  Manual manual = ReadManual(GetParam());
  std::string whole = WholeText(manual);

  void ExpectTold(const Caption& caption, const Control& control) const {
    const std::string words = Written(caption.Text(GetParam()));
    const bool has_letter = std::any_of(words.begin(), words.end(), [](unsigned char c) { return std::isalpha(c); });
    const bool told = !has_letter || whole.find(words) != std::string::npos;
    EXPECT_TRUE(told) << control.FullName() << ": " << words;
  }
};

INSTANTIATE_TEST_SUITE_P(Languages, ManualContents, testing::Values(Language::English, Language::Italian),
                         [](const auto& instance) { return FolderName(instance.param); });

TEST_P(ManualContents, EveryWindowHasItsPlace) {
  EXPECT_EQ(desk.program.all.size(), 22u);
  for (const Window* const window : desk.program.all) {
    const auto home = std::find_if(manual.begin(), manual.end(), [&](const auto& entry) {
      return Holds(entry.second.Anchors(), std::string(window->name));
    });
    ASSERT_NE(home, manual.end()) << window->name;
    const std::string text = home->second.Text();
    EXPECT_NE(text.find(Written(window->caption_design.Text(GetParam()))), std::string::npos) << window->name;
    EXPECT_NE(text.find(window->name), std::string::npos) << window->name;
  }
}

TEST_P(ManualContents, EveryFieldOfTheSheetIsTold) {
  const std::string names = manual.at("runner.html").Text();
  std::size_t fields = 0;
  for (const Control* const control : desk.sheet.window.controls) {
    if (control->design.field == nullptr) continue;
    ExpectTold(control->design.caption, *control);
    ExpectTold(control->design.unit, *control);
    EXPECT_NE(names.find(control->name), std::string::npos) << control->name;
    ++fields;
  }
  EXPECT_EQ(fields, 76u);  // 14 + 24 + 8 + 27 + 3, page by page
}

TEST_P(ManualContents, EveryCaptionIsTold) {
  for (const Window* const window : desk.program.all) {
    for (const Control* const control : window->controls) {
      // The lines of the information window speak for themselves, and "2k" on an axis too.
      if (window->name == "frmAbout" && control->kind == ControlKind::Label) continue;
      if (control->name == "Text1") continue;  // "Ohm", written downwards
      const std::string words = Written(control->design.caption.Text(GetParam()));
      if (words.empty() || std::isdigit(static_cast<unsigned char>(words.front())) != 0) continue;
      ExpectTold(control->design.caption, *control);
      if (control->IsField()) ExpectTold(control->design.unit, *control);
    }
  }
}

TEST_P(ManualContents, EveryItemOfAListIsTold) {
  for (const Control* const control : desk.sheet.window.controls) {
    for (const Caption& item : control->design.list) ExpectTold(item, *control);
  }
}

TEST_P(ManualContents, EveryMessageIsTold) {
  // The rows of the table that are boxes or their titles, from the first to the last of each run.
  constexpr std::array<std::pair<int, int>, 8> kRuns{
      {{101, 102}, {108, 108}, {114, 114}, {125, 125}, {132, 161}, {163, 163}, {164, 197}, {509, 510}}};
  const std::string text = manual.at("messages.html").Text();
  for (const auto& [first, last] : kRuns) {
    for (int id = first; id <= last; ++id) {
      const std::string words = Simplified(MessageText(id, GetParam()));
      ASSERT_FALSE(words.empty()) << id;
      EXPECT_NE(text.find(words), std::string::npos) << id << ": " << words;
    }
  }
}

TEST_P(ManualContents, EveryReasonIsTold) {
  const std::string rows = Replaced(manual.at("messages.html").html, "</td><td>", " ");
  for (const int number : {5, 6, 7, 9, 11, 53, 57, 61, 62, 70, 75, 76}) {
    const std::string row = std::to_string(number) + ' ' + RunTimeError(static_cast<ErrorNumber>(number)).what();
    EXPECT_NE(rows.find("<td>" + row), std::string::npos) << row;
  }
}

}  // namespace
}  // namespace zefirondo
