// Windows that a fixed page of the sheet hides: they change behind the scenes, and are not the active one.
#include <gtest/gtest.h>

#include "core/window_life.h"
#include "response/box_response.h"
#include "support/desk.h"

namespace zefirondo {
namespace {

class HiddenGraph : public testing::Test {
 protected:
  HiddenGraph() {
    desk.DesignVented();
    desk.Tab("imp");
  }
  Desk desk;
  Window& graph = desk.program.windows.frmgrafcassa.window;
};

TEST_F(HiddenGraph, IsNotActive) {
  ASSERT_TRUE(graph.open);
  EXPECT_TRUE(graph.hidden);
  EXPECT_NE(desk.program.active, &graph);
}

TEST_F(HiddenGraph, MovesToTheFrontWithoutBecomingActive) {
  BringToFront(desk.program, graph);
  EXPECT_EQ(desk.program.order.front(), &graph);
  EXPECT_TRUE(graph.hidden);
  EXPECT_NE(desk.program.active, &graph);
}

TEST_F(HiddenGraph, IsRedrawnWithoutBecomingActive) {
  const std::string before = desk.Text("frmgrafcassa.txtF3dB");
  desk.state.F3v = 12.5;  // an activation would show it
  desk.program.windows.frmthsm.selected_tab = "ref";
  RidisegnaCassa(desk.program);
  EXPECT_TRUE(graph.hidden);
  EXPECT_NE(desk.program.active, &graph);
  EXPECT_EQ(desk.Text("frmgrafcassa.txtF3dB"), before);
}

TEST_F(HiddenGraph, BecomesActiveWithItsPage) {
  desk.Tab("ref");
  EXPECT_FALSE(graph.hidden);
  EXPECT_EQ(desk.program.active, &graph);
}

}  // namespace
}  // namespace zefirondo
