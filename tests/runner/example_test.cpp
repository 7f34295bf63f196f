// The road of one design, from typed parameters to the saved project, as a builder walks it.
#include <gtest/gtest.h>

#include <cmath>

#include "core/numbers.h"
#include "support/desk.h"

namespace zefirondo {
namespace {

TEST(RoadOfOneDesign, ReachesAVentedBox) {
  Desk desk;
  desk.DesignVented();
  EXPECT_EQ(desk.sheet.selected_tab, "ref");
  // Qes' = (5.6 + 0.1) / 5.6 · 0.45 = 0.4580357; Qts = 4.2 · Qes' / (4.2 + Qes')
  const double qes = 5.7 / 5.6 * 0.45;
  EXPECT_NEAR(desk.state.Qts, 4.2 * qes / (4.2 + qes), 1e-15);
  EXPECT_DOUBLE_EQ(desk.state.EBP, 35 / 0.45);
  EXPECT_EQ(desk.TakeOut(),
            "message information \"EBP= 77.7777\" \"For this transducer is recommended a Vented Box\\nDo you want to "
            "create a Vented Box?\" [Yes No] -> Yes\n");
}

}  // namespace
}  // namespace zefirondo
