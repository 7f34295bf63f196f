// What the program says about itself, in both languages.
#include <gtest/gtest.h>

#include "support/desk.h"

namespace zefirondo {
namespace {

struct Words {
  Language language;
  const char* caption;
  const char* version;
};

class AboutWindow : public testing::TestWithParam<Words> {};

TEST_P(AboutWindow, NamesTheProgramAndItsVersion) {
  Desk desk(GetParam().language);
  desk.Begin();
  desk.Choose("mdithsm.mnuinformazioni");
  EXPECT_EQ(desk.program.windows.frmAbout.window.caption, GetParam().caption);
  EXPECT_EQ(desk.Text("frmAbout.lblVersion").rfind(GetParam().version, 0), 0U);
  EXPECT_NE(desk.Text("frmAbout.lblVersion").find_first_of("0123456789"), std::string::npos);
  desk.Click("frmAbout.cmdok");
  EXPECT_FALSE(desk.program.windows.frmAbout.window.open);
}

INSTANTIATE_TEST_SUITE_P(BothLanguages, AboutWindow,
                         testing::Values(Words{Language::English, "Information About Zefirondo", "Version "},
                                         Words{Language::Italian, "Informazioni su Zefirondo", "Versione "}));

TEST(AboutButton, SaysThatNoInformationToolIsThere) {
  Desk desk;
  desk.Begin();
  desk.Choose("mdithsm.mnuinformazioni");
  desk.Click("frmAbout.cmdSysInfo");
  EXPECT_EQ(desk.TakeOut(),
            "message none \"Zefirondo\" \"Information on the system are not currently available\" [OK] -> OK\n");
}

}  // namespace
}  // namespace zefirondo
