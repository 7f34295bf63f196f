// The example of the first steps shows the numbers that the program shows.
#include <gtest/gtest.h>

#include "manual/pages.h"

namespace zefirondo {
namespace {

class ManualExample : public testing::TestWithParam<Language> {
 protected:
  Desk desk{GetParam()};
  std::string text = ReadManual(GetParam()).at("start.html").Text();

  /// What the page has the reader type.
  void Type(std::string_view field, const std::string& value) {
    EXPECT_NE(text.find(' ' + value + ' '), std::string::npos) << field << ": " << value;
    desk.Set(field, value);
  }

  void ExpectShown(std::string_view field) {
    const std::string value = desk.Text(field);
    EXPECT_NE(text.find(value), std::string::npos) << field << ": " << value;
  }

  void TypeWoofer() {
    desk.BeginParameters();
    for (const auto& [field, value] :
         {std::pair{"txtpotenza", "120"}, {"txtimpedenza", "8"}, {"txtsensibilita", "91"}, {"txtxmax", "6"}}) {
      Type(field, value);
    }
    desk.Tab("par");
    for (const auto& [field, value] : {std::pair{"txtfs", "34"},
                                       {"txtrvc", "5.4"},
                                       {"txtqmesin", "4.8"},
                                       {"txtbl", "9.85"},
                                       {"txtd", "200"},
                                       {"txtqes", "0.41"},
                                       {"txtqts", "0.38"},
                                       {"txtmms", "0.0345"}}) {
      Type(field, value);
    }
    desk.Tab("dim");
    for (const auto& [field, value] : {std::pair{"txtforo", "205"},
                                       {"txtprof", "105"},
                                       {"txtlagmagne", "145"},
                                       {"txtprofmag", "48"},
                                       {"txtesterno", "222"},
                                       {"txtspesbordo", "9"},
                                       {"txtdiambob", "38"}}) {
      Type(field, value);
    }
    desk.Focus("txtvolume");
  }
};

INSTANTIATE_TEST_SUITE_P(Languages, ManualExample, testing::Values(Language::English, Language::Italian),
                         [](const auto& instance) { return FolderName(instance.param); });

TEST_P(ManualExample, ShowsTheNumbersOfTheDesign) {
  TypeWoofer();
  ExpectShown("txtsd");
  ExpectShown("txtvolume");
  desk.Tab("par");
  desk.platform.answers.push_back(Answer::Yes);
  desk.Click("cmdcalcola");
  ASSERT_EQ(desk.sheet.selected_tab, "ref");
  for (const char* const field : {"txtvolnetto", "txtfb", "frmgrafcassa.txtF3dB", "cmbDoa", "txtlungmis", "txtl",
                                  "txth", "txtp", "txtboxvolume"}) {
    ExpectShown(field);
  }
  desk.Pick("cmbDoa", "10.4");
  ExpectShown("txtlungmis");
  desk.Set("txtvolnetto", "60");
  desk.Leave();
  ExpectShown("txtfb");
}

}  // namespace
}  // namespace zefirondo
