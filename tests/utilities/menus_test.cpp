// Help, the calculator and the about window from every window that offers them.
#include <gtest/gtest.h>

#include "core/events.h"
#include "support/desk.h"

namespace zefirondo {
namespace {

struct Offers {
  const char* window;
  bool calculator;  // the impedance graph alone has none
};

class WindowMenus : public testing::TestWithParam<Offers> {
 protected:
  Control& Entry(const char* name) { return *desk.program.FindWindow(GetParam().window)->Find(name); }
  Desk desk;
};

TEST_P(WindowMenus, OpenTheHelpFileOfTheProgramsFolder) {
  desk.Begin();
  RaiseClick(desk.program, Entry("mnuguida"));
  EXPECT_EQ(desk.TakeOut(), "help \"" + (desk.folder.path() / "guida.hlp").string() + "\"\n");
}

TEST_P(WindowMenus, OpenTheAboutWindow) {
  desk.Begin();
  RaiseClick(desk.program, Entry("mnuinformazioni"));
  EXPECT_TRUE(desk.program.windows.frmAbout.window.open);
}

TEST_P(WindowMenus, OpenTheCalculator) {
  desk.Begin();
  const Window& window = *desk.program.FindWindow(GetParam().window);
  ASSERT_EQ(window.Find("mnucalcolatrice") != nullptr, GetParam().calculator);
  if (!GetParam().calculator) return;
  RaiseClick(desk.program, Entry("mnucalcolatrice"));
  EXPECT_TRUE(desk.program.windows.frmcalcolatrice.window.open);
}

TEST_P(WindowMenus, NameThemInBothLanguages) {
  for (const Language language : {Language::English, Language::Italian}) {
    const bool english = language == Language::English;
    Desk other(language);
    const Window& window = *other.program.FindWindow(GetParam().window);
    const auto caption = [&](const char* entry) { return window.Find(entry)->design.caption.Text(language); };
    EXPECT_EQ(caption("mnuguida"), english ? "&Help" : "&Guida");
    EXPECT_EQ(caption("mnuinformazioni"), english ? "&About Zefirondo" : "&Informazioni su Zefirondo");
    EXPECT_TRUE(!GetParam().calculator || caption("mnucalcolatrice") == (english ? "&Calculator" : "&Calcolatrice"));
  }
}

std::string NameOf(const testing::TestParamInfo<Offers>& window) { return window.param.window; }

INSTANTIATE_TEST_SUITE_P(Each, WindowMenus,
                         testing::Values(Offers{"mdithsm", true}, Offers{"frmthsm", true}, Offers{"frmgrafcassa", true},
                                         Offers{"frmgrafico", false}, Offers{"frmspl", true}, Offers{"frmsplMax", true},
                                         Offers{"frmescursione", true}, Offers{"frmairspeed", true},
                                         Offers{"frmFase", true}, Offers{"frmFaseSh", true}, Offers{"frmfiltri", true}),
                         NameOf);

}  // namespace
}  // namespace zefirondo
