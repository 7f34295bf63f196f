// The dialog that asks for the wiring as soon as a box has several woofers.
#include <gtest/gtest.h>

#include "box/designs.h"

namespace zefirondo {
namespace {

class WiringDialog : public testing::Test {
 protected:
  WiringDialog() { desk.DesignVentedBox(); }
  [[nodiscard]] const Window& window() const { return desk.program.windows.frmwooferconn.window; }
  BoxDesk desk;
};

TEST_F(WiringDialog, ComesUpCentredWithTheWiringOfTheProject) {
  desk.state.WooferWiring = "series";
  desk.Pick("cmbnumdriver", "2");
  ASSERT_TRUE(window().open);
  EXPECT_TRUE(desk["frmwooferconn.optserie"].checked);
  EXPECT_FALSE(desk["frmwooferconn.optbiamp"].checked);
  const Window& frame = desk.program.windows.mdithsm.window;
  EXPECT_EQ(window().left, (frame.width - window().width) / 2);
  EXPECT_EQ(window().top, (frame.height - window().height) / 2);
  EXPECT_EQ(desk.state.DriversNum, 1);  // it waits for the button
}

TEST_F(WiringDialog, ButtonTakesTheOptionOver) {
  for (const auto& [option, wiring] :
       Texts{{"optparallelo", "parallel"}, {"optserie", "series"}, {"optbiamp", "biamp"}}) {
    desk.Pick("cmbnumdriver", desk.state.DriversNum == 2 ? "3" : "2");
    desk.Click(std::string("frmwooferconn.") + option);
    desk.platform.answers.assign(1, Answer::Yes);
    desk.Click("frmwooferconn.Command1");
    EXPECT_EQ(desk.state.WooferWiring, wiring);
    EXPECT_FALSE(window().open);
  }
  EXPECT_EQ(desk.state.DriversNum, 2);
}

TEST_F(WiringDialog, RefusesItsCloseBox) {
  desk.Pick("cmbnumdriver", "2");
  CloseBox(desk.program, desk.program.windows.frmwooferconn.window);
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"You can not close this window\" [OK] -> OK\n");
  EXPECT_TRUE(window().open);
}

TEST_F(WiringDialog, ClosedByTheMenuTakesNothingOver) {
  desk.Pick("cmbnumdriver", "2");
  desk.Click("frmwooferconn.optserie");
  desk.Choose("frmwooferconn.mnuchiudi");
  EXPECT_FALSE(window().open);
  EXPECT_EQ(desk.state.WooferWiring, "biamp");
  EXPECT_EQ(desk.state.DriversNum, 1);
}

TEST_F(WiringDialog, OfOneWooferIsNotAskedFor) {
  desk.Pick("cmbnumdriver", "2");
  desk.Click("frmwooferconn.optserie");
  desk.platform.answers.assign(1, Answer::Yes);
  desk.Click("frmwooferconn.Command1");
  ASSERT_EQ(desk.state.WooferWiring, "series");
  desk.platform.answers.assign(1, Answer::Yes);
  desk.Pick("cmbnumdriver", "1");
  EXPECT_FALSE(window().open);
  EXPECT_EQ(desk.state.WooferWiring, "biamp");
  EXPECT_EQ(desk.state.DriversNum, 1);
}

TEST_F(WiringDialog, DoesNotBlock) {
  desk.Pick("cmbnumdriver", "2");
  EXPECT_TRUE(desk.Tab("gen").Done());
  EXPECT_TRUE(window().open);
  EXPECT_EQ(desk.TakeOut(), "");
}

TEST_F(WiringDialog, WithoutAnOptionKeepsTheWiringAndTakesTheNumber) {
  desk.state.WooferWiring = "star";  // as a file may bring it
  desk.Pick("cmbnumdriver", "2");
  desk.platform.answers.assign(1, Answer::Yes);
  desk.Click("frmwooferconn.Command1");
  EXPECT_EQ(desk.state.WooferWiring, "star");
  EXPECT_EQ(desk.state.DriversNum, 2);
  EXPECT_FALSE(window().open);
}

TEST_F(WiringDialog, HasOneOptionAtATime) {
  desk.Pick("cmbnumdriver", "2");
  desk.Click("frmwooferconn.optserie");
  EXPECT_FALSE(desk["frmwooferconn.optbiamp"].checked || desk["frmwooferconn.optparallelo"].checked);
  desk.Click("frmwooferconn.optparallelo");
  EXPECT_FALSE(desk["frmwooferconn.optbiamp"].checked || desk["frmwooferconn.optserie"].checked);
}

}  // namespace
}  // namespace zefirondo
