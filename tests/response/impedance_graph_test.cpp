// The graph of a measured impedance: its place, its labels, its read-out, and when it opens.
#include <gtest/gtest.h>

#include <cmath>

#include "core/window_life.h"
#include "support/desk.h"

namespace zefirondo {
namespace {

class ImpedanceGraphTest : public testing::Test {
 protected:
  ImpedanceGraphTest() {
    desk.BeginImpedance();
    desk.state.ImpFreq = {2, 100, 200, 400, 800, 0};
    desk.state.ImpZ = {6, 60, 30, 8, 7, 0};
    desk.state.ImpScaleTop = 70;
    desk.sheet.mnugrafico.enabled = true;
    desk.Choose("mnugrafico");
  }
  void Press(double x, double y) { PressMouse(desk.program, form.pctgrafimp, x, y); }
  Desk desk;
  ImpedanceGraph& form = desk.program.windows.frmgrafico;
};

TEST_F(ImpedanceGraphTest, StandsInItsPlace) {
  EXPECT_TRUE(form.window.open);
  EXPECT_EQ(form.window.left, 300);
  EXPECT_EQ(form.window.top, 1500);
  EXPECT_EQ(form.surface.scale.left, 10);  // 3.16 Hz
  EXPECT_EQ(form.surface.scale.width, 76);
  EXPECT_EQ(form.surface.scale.height, 70);
}

TEST_F(ImpedanceGraphTest, HasLabelsUpToTwentyKilohertz) {
  for (const char* const f :
       {"10", "20", "30", "40", "50", "100", "200", "300", "400", "1k", "2k", "3k", "4k", "5k", "10k", "20k"}) {
    EXPECT_EQ(desk.Text(std::string("frmgrafico.Label") + f), f);
  }
}

// The plot is 6975 twips high: 99.642857 twips an ohm with a top of 70.
TEST_F(ImpedanceGraphTest, ReadsOutHertzAndOhmAtTheRightOfTheMouse) {
  EXPECT_FALSE(form.txtpos.visible);
  Press(40, 20);
  EXPECT_TRUE(form.txtpos.visible);
  EXPECT_EQ(desk.Text("frmgrafico.txtpos"), "100.00 Hz ; 50.00 ohm");
  EXPECT_EQ(form.txtpos.width, 12);  // "100.00 50.00"
  EXPECT_EQ(form.txtpos.left, 41);
  EXPECT_NEAR(form.txtpos.top, 20 + 60 / 99.642857142857, 1e-9);
  ReleaseMouse(desk.program, form.pctgrafimp);
  EXPECT_FALSE(form.txtpos.visible);
}

TEST_F(ImpedanceGraphTest, ReadsOutAtTheLeftAndAboveInTheFarCorner) {
  Press(70, 60.25);  // 10^3.5 Hz
  EXPECT_EQ(desk.Text("frmgrafico.txtpos"), "3162.28 Hz ; 9.75 ohm");
  EXPECT_EQ(form.txtpos.width, 12);
  EXPECT_EQ(form.txtpos.left, 70 - 12 + 7);
  EXPECT_NEAR(form.txtpos.top, 60.25 - 320 / 99.642857142857, 1e-9);
}

TEST_F(ImpedanceGraphTest, ReadOutChangesItsSideBehindTheMiddle) {
  Press(45, 35);  // 76 / 2 + 7, and half the height
  EXPECT_EQ(form.txtpos.left, 46);
  EXPECT_GT(form.txtpos.top, 35);
  ReleaseMouse(desk.program, form.pctgrafimp);
  Press(45.01, 35.01);
  EXPECT_LT(form.txtpos.left, 45);
  EXPECT_LT(form.txtpos.top, 35);
}

TEST_F(ImpedanceGraphTest, IsDrawnAfreshEachTimeItIsShown) {
  desk.state.ImpScaleTop = 210;
  EXPECT_EQ(form.surface.scale.height, 70);
  desk.Choose("mnugrafico");
  EXPECT_TRUE(form.window.open);
  EXPECT_EQ(form.surface.scale.height, 210);
  EXPECT_EQ(form.surface.labels.size(), 10U);  // 20 to 200, a step of 20
}

TEST_F(ImpedanceGraphTest, DrawsItsCurveInBlackUpToTheLastPointButOne) {
  const Stroke& curve = form.surface.strokes.back();
  EXPECT_EQ(curve.colour, 0);
  ASSERT_EQ(curve.count, 4U);
  EXPECT_NEAR(form.surface.points[curve.first].x, 20 * std::log10(2.0), 1e-12);  // left of the plot, which begins at 10
  EXPECT_LT(form.surface.points[curve.first].x, form.surface.scale.left);
  EXPECT_NEAR(form.surface.points[curve.first + 1].x, 40, 1e-12);
  EXPECT_EQ(form.surface.points[curve.first + 1].y, 10);
  EXPECT_EQ(form.surface.points[curve.first + 3].y, 62);
}

TEST_F(ImpedanceGraphTest, ClosesByItsEntryAndItsCloseBox) {
  desk.Choose("frmgrafico.mnuchiudigraf");
  EXPECT_FALSE(form.window.open);
  desk.Choose("mnugrafico");
  CloseBox(desk.program, form.window);
  EXPECT_FALSE(form.window.open);
  EXPECT_EQ(desk.state.ImpFreq.size(), 6U);  // the measurement stays
}

TEST(ImpedanceGraphEntry, IsDisabledWithoutAMeasurement) {
  Desk desk;
  desk.BeginImpedance();
  EXPECT_EQ(desk.Choose("mnugrafico").refusal, Refusal::Disabled);
}

}  // namespace
}  // namespace zefirondo
