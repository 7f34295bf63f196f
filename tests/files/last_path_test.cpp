// The path that was chosen last, in whatever file dialog: the next dialog for a measurement opens there.
#include <gtest/gtest.h>

#include "core/acts.h"
#include "support/desk.h"

namespace zefirondo {
namespace {

struct DialogRow {
  const char* name;
  const char* opener;  // of the window that has the entry; empty for none
  const char* entry;
};

std::ostream& operator<<(std::ostream& out, const DialogRow& row) { return out << row.name; }

/// A vented design with the window open and both traces set, so that its entries can be chosen.
void OpenGraph(Desk& desk, const DialogRow& row) {
  desk.DesignVented();
  if (*row.opener != '\0') desk.Choose(row.opener);
  const std::string window = std::string(row.entry).substr(0, std::string(row.entry).find('.'));
  if (desk.program.FindWindow(window) != nullptr) {
    desk.Click(window + ".cmdset1");
    desk.Click(window + ".cmdset2");
  }
  desk.state.FilePath = "/before/it";
}

class LastPath : public testing::TestWithParam<DialogRow> {};

INSTANTIATE_TEST_SUITE_P(Dialogs, LastPath,
                         testing::Values(DialogRow{"SavedProject", "", "mnusalva"},
                                         DialogRow{"RedBoxTrace", "", "frmgrafcassa.mnusalvatracciatorosso"},
                                         DialogRow{"BlueBoxTrace", "", "frmgrafcassa.mnusalvatracciatoblu"},
                                         DialogRow{"BoxTrace", "", "frmgrafcassa.mnuimportatracciato"},
                                         DialogRow{"BoxOverlay", "", "frmgrafcassa.mnuimportaOverlay"},
                                         DialogRow{"RedLevelTrace", "frmgrafcassa.mnuspl", "frmspl.mnusalvasplRosso"},
                                         DialogRow{"LevelTrace", "frmgrafcassa.mnuspl", "frmspl.mnuimportatracciato"},
                                         DialogRow{"LevelOverlay", "frmgrafcassa.mnuspl", "frmspl.mnuimportaOverlay"},
                                         DialogRow{"BluePhaseTrace", "frmgrafcassa.mnufase", "frmFase.mnusalvablu"},
                                         DialogRow{"PhaseTrace", "frmgrafcassa.mnufase", "frmFase.mnuimportafase"}),
                         [](const auto& row) { return row.param.name; });

TEST_P(LastPath, IsTheOneChosen) {
  Desk desk;
  OpenGraph(desk, GetParam());
  const std::filesystem::path path = desk.folder.path() / "chosen.xyz";
  desk.platform.files.emplace_back(path);
  ASSERT_TRUE(desk.Choose(GetParam().entry).Done());
  EXPECT_EQ(desk.state.FilePath, path.string());  // even of a file that cannot be read
}

TEST_P(LastPath, StaysWhenTheDialogIsGivenUp) {
  Desk desk;
  OpenGraph(desk, GetParam());
  desk.platform.files.emplace_back(std::nullopt);
  ASSERT_TRUE(desk.Choose(GetParam().entry).Done());
  EXPECT_EQ(desk.state.FilePath, "/before/it");
}

TEST(LastPathOfTheOffsetTool, IsThatOfItsTrace) {
  Desk desk;
  desk.Begin();
  desk.Choose("mdithsm.mnudelay");
  const std::filesystem::path path = desk.folder.Write("phase.trc", " 0 \r\n20 10\r\n21 11\r\n");
  desk.platform.files.emplace_back(path);
  ASSERT_TRUE(desk.Choose("frmFaseSh.mnuimportafase").Done());
  EXPECT_EQ(desk.state.FilePath, path.string());
}

TEST(LastPathOfAMeasurement, IsWhereTheNextDialogOpens) {
  Desk desk;
  desk.Begin();
  desk.platform.files.emplace_back(desk.folder.path() / "missing.ovl");
  desk.Choose("mdithsm.mnucapa");
  desk.Choose("mdithsm.mnuthisma");
  desk.sheet.mnuimporta.enabled = true;  // as after the data of the transducer
  desk.TakeOut();
  desk.platform.files.emplace_back(std::nullopt);
  desk.Choose("mnuimporta");
  EXPECT_NE(desk.TakeOut().find("folder=\"" + (desk.folder.path() / "missing.ovl").string() + "\" -> cancel"),
            std::string::npos);
}

TEST(LastPathOfTheFirstQuickSave, IsThatOfTheProjectAlone) {
  Desk desk;
  desk.DesignVented();
  desk.state.FilePath = "/before/it";
  desk.platform.files.emplace_back(desk.folder.path() / "quick.pro");
  desk.Choose("mnusalvadir");
  EXPECT_EQ(desk.state.ProjectPath, (desk.folder.path() / "quick.pro").string());
  EXPECT_EQ(desk.state.FilePath, "/before/it");
}

}  // namespace
}  // namespace zefirondo
