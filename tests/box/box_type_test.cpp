// The choice of a box type after the proposal was refused.
#include <gtest/gtest.h>

#include "box/designs.h"
#include "core/window_life.h"

namespace zefirondo {
namespace {

class BoxType : public testing::Test {
 protected:
  BoxType() {
    desk.BeginParameters();
    desk.FillWoofer();
    desk.platform.answers.push_back(Answer::No);
    desk.Click("cmdcalcola");
  }
  [[nodiscard]] bool IsOpen() const { return desk.program.windows.frmbox.window.open; }
  BoxDesk desk;
};

TEST_F(BoxType, ProposesTheTypeByEbp) {
  ASSERT_TRUE(IsOpen());
  EXPECT_EQ(desk.Text("frmbox.cmbtipobox"), "Reflex");
  EXPECT_EQ(desk.Text("frmbox.txtebp"), "77.7777");  // 35 / 0.45
  EXPECT_EQ(desk["frmbox.cmbtipobox"].list, (std::vector<std::string>{"Reflex", "Closed"}));
  EXPECT_EQ(desk.sheet.tabs.size(), 4U);  // the box tab waits for the choice
}

TEST(BoxTypeProposal, ChangesAtFifty) {
  for (const auto& [ebp, type] : {std::pair{50.0, "Reflex"}, {49.99, "Closed"}, {0.0, "Closed"}, {120.0, "Reflex"}}) {
    Desk desk;
    desk.Begin();
    desk.state.EBP = ebp;
    OpenWindow(desk.program, "frmbox");
    EXPECT_EQ(desk.Text("frmbox.cmbtipobox"), type) << ebp;
  }
}

struct TypeRow {
  const char* type;
  const char* tab;
  const char* caption;
};

void ExpectTab(const BoxDesk& desk, const TypeRow& row) {
  ASSERT_EQ(desk.sheet.tabs.size(), 5U);
  EXPECT_EQ(desk.sheet.tabs[3].key, row.tab);  // the fourth
  EXPECT_EQ(desk.sheet.tabs[3].caption, row.caption);
  EXPECT_EQ(desk.sheet.selected_tab, row.tab);
}

TEST_F(BoxType, AppliesAReflexOnEveryWayOut) {
  desk.Click("frmbox.cmdok");
  EXPECT_FALSE(IsOpen());
  ExpectTab(desk, {"Reflex", "ref", "Vented Box"});
  EXPECT_GT(desk.state.Vb, 0);
  EXPECT_GT(desk.state.Fb, 0);
}

TEST_F(BoxType, AppliesAClosedBoxByTheMenu) {
  desk.Pick("frmbox.cmbtipobox", "Closed");
  desk.Choose("frmbox.mnuchiudi");
  EXPECT_FALSE(IsOpen());
  ExpectTab(desk, {"Closed", "chi", "Closed Box"});
  EXPECT_GT(desk.state.Vc, 0);
}

TEST_F(BoxType, AppliesTheChoiceByTheCloseBox) {
  CloseBox(desk.program, desk.program.windows.frmbox.window);
  EXPECT_FALSE(IsOpen());
  ExpectTab(desk, {"Reflex", "ref", "Vented Box"});
}

TEST_F(BoxType, OfAnyOtherTextLeavesTheProjectWithoutABox) {
  desk.Set("frmbox.cmbtipobox", "closed");
  desk.Click("frmbox.cmdok");
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(desk.sheet.tabs.size(), 4U);
  EXPECT_EQ(desk.state.Vc, 0);
}

TEST(BoxTypeWords, AreTheSameInItalianButForTheTab) {
  BoxDesk desk(Language::Italian);
  desk.BeginParameters();
  desk.FillWoofer();
  desk.platform.answers.push_back(Answer::No);
  desk.Click("cmdcalcola");
  EXPECT_EQ(desk["frmbox.cmbtipobox"].list, (std::vector<std::string>{"Reflex", "Closed"}));
  desk.Pick("frmbox.cmbtipobox", "Closed");
  desk.Click("frmbox.cmdok");
  EXPECT_EQ(desk.sheet.selected_tab, "chi");
  EXPECT_EQ(desk.sheet.tabs[3].caption, "Box Chiuso");
}

TEST(BoxTypeWords, OfAVentedBoxAreOnItsTab) {
  BoxDesk desk(Language::Italian);
  desk.BeginParameters();
  desk.FillWoofer();
  desk.platform.answers.push_back(Answer::No);
  desk.Click("cmdcalcola");
  desk.Click("frmbox.cmdok");
  EXPECT_EQ(desk.sheet.selected_tab, "ref");
  EXPECT_EQ(desk.sheet.tabs[3].caption, "Box Reflex");
}

// The window does not block: the steps that close the computation have run when it comes up.
TEST_F(BoxType, ComesUpOverAFinishedComputation) {
  EXPECT_TRUE(desk["txtfs"].locked);
  EXPECT_EQ(desk.sheet.selected_tab, "par");
  EXPECT_TRUE(desk.Tab("dim").Done());
  EXPECT_TRUE(IsOpen());
}

TEST_F(BoxType, ShowsItsEbpInAFieldThatCannotBeTypedInto) {
  EXPECT_TRUE(desk["frmbox.txtebp"].locked);
  desk.Type("frmbox.txtebp", "1");
  EXPECT_EQ(desk.Text("frmbox.txtebp"), "77.7777");
}

}  // namespace
}  // namespace zefirondo
