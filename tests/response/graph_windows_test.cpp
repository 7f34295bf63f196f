// The graph windows as they open: places, plots, menus, fixed labels.
#include "core/acts.h"
#include "core/window_life.h"
#include "response/plain_curves.h"

namespace zefirondo {
namespace {

constexpr const char* kEntries[]{"mnuspl", "mnusplmax", "mnuescursione", "mnuairspeed", "mnufase"};

void OpenAll(Desk& desk) {
  desk.DesignVented();
  for (const char* const entry : kEntries) desk.Choose(std::string("frmgrafcassa.") + entry);
  desk.Choose("frmgrafcassa.mnufiltri");
  desk.TakeOut();
}

class GraphWindows : public testing::Test {
 protected:
  GraphWindows() { OpenAll(desk); }
  Desk desk;
};

TEST_F(GraphWindows, HaveTheirPlacesAndPlots) {
  struct Row {
    const char *window, *plot;
    double left, top, scale_left, scale_width;
    const char* strip;
  };
  for (const Row& row : {Row{"frmgrafcassa", "pctgraf", 5000, 2900, 20, 53.96, "pctvalori"},
                         {"frmspl", "pctgrafspl", 5000, 2315, 10, 56.02, "pctvalori"},
                         {"frmsplMax", "pctgrafspl", 5000, 1515, 10, 56.02, "pctvalori"},
                         {"frmescursione", "pctgrafex", 5000, 715, 10, 50, "pctvalori"},
                         {"frmairspeed", "pctgrafair", 5000, 715, 10, 50, "pctvalori"},
                         {"frmFase", "pctgrafFase", 5000, 0, 20, 53.96, nullptr}}) {
    SCOPED_TRACE(row.window);
    const Window& window = *desk.program.FindWindow(row.window);
    EXPECT_EQ(window.left, row.left);
    EXPECT_EQ(window.top, row.top);
    const Control& plot = desk[std::string(row.window) + "." + row.plot];
    ASSERT_NE(plot.surface, nullptr);
    EXPECT_EQ(plot.surface->scale.left, row.scale_left);
    EXPECT_EQ(plot.surface->scale.width, row.scale_width);
    EXPECT_EQ(plot.surface->twips_width, 8850);
    EXPECT_EQ(plot.surface->twips_height, 6015);
    EXPECT_EQ(plot.back, colour::kWhite);
    EXPECT_EQ(window.Find("pctvalori") != nullptr, row.strip != nullptr);
  }
  EXPECT_EQ(desk["frmescursione.pctgrafex"].surface->scale.height, 20);
  EXPECT_EQ(desk["frmFase.pctgrafFase"].surface->scale.height, 360);
}

TEST_F(GraphWindows, NameTheFrequenciesUnderTheirPlots) {
  const std::vector<std::pair<const char*, const char*>> common{
      {"Label10", "10"},   {"Label20", "20"},   {"Label30", "30"},   {"Label40", "40"},   {"Label50", "50"},
      {"Label100", "100"}, {"Label200", "200"}, {"Label300", "300"}, {"Label400", "400"}, {"Label1k", "1k"}};
  for (const std::string window : {"frmgrafcassa", "frmspl", "frmsplMax", "frmescursione", "frmairspeed", "frmFase"}) {
    for (const auto& [name, text] : common) EXPECT_EQ(desk.Text(window + "." + name), text) << window;
  }
  for (const std::string window : {"frmgrafcassa", "frmFase"}) {
    for (const std::string f : {"2k", "3k", "4k", "5k"}) EXPECT_EQ(desk.Text(window + ".lbl" + f), f) << window;
  }
  for (const std::string window : {"frmspl", "frmsplMax"}) EXPECT_EQ(desk.Text(window + ".lbl2k"), "2k");
  // These two end at 1 kHz and have an empty label behind it.
  for (const std::string window : {"frmescursione", "frmairspeed"}) EXPECT_EQ(desk.Text(window + ".lbl2k"), "");
}

TEST_F(GraphWindows, LegendsHaveTheColoursOfTheirLines) {
  EXPECT_EQ(desk["frmescursione.Line1"].back, colour::kRed);
  EXPECT_EQ(desk["frmairspeed.Line1"].back, colour::kRed);
  EXPECT_EQ(desk["frmairspeed.Line2"].back, colour::kBlue);
}

TEST_F(GraphWindows, HaveTheirEntriesInTheirMenus) {
  using Names = std::vector<std::string>;
  struct Row {
    const char *window, *menu;
    Names entries;
  };
  for (const Row& row : {
           Row{"frmgrafcassa",
               "mnufilegrafico",
               {"mnuimportatracciato", "mnusalvatracciatorosso", "mnusalvatracciatoblu", "mnuimportaOverlay",
                "mnugrafstampa", "mnuchiudigraf"}},
           {"frmgrafcassa", "mnuvisualizza", {"mnufase", "mnuspl", "mnusplmax", "mnuescursione", "mnuairspeed"}},
           {"frmgrafcassa", "mnuinfo2", {"mnuguida", "mnuinformazioni"}},
           {"frmspl",
            "mnufile",
            {"mnuimportatracciato", "mnusalvasplRosso", "mnusalvaSplBlu", "mnuimportaOverlay", "mnuchiudi"}},
           {"frmspl", "mnuvisualizza", {"mnugraffase", "mnusplmax", "mnuescursione", "mnuairspeed"}},
           {"frmspl", "mnuinfo4", {"mnuguida", "mnuinformazioni"}},
           {"frmsplMax", "mnufile", {"mnuchiudi"}},
           {"frmsplMax", "mnuvisualizza", {"mnugraffase", "mnuspl", "mnuescursione", "mnuairspeed"}},
           {"frmsplMax", "mnuinfo4", {"mnuguida", "mnuinformazioni"}},
           {"frmescursione", "mnufileex", {"mnuchiudi"}},
           {"frmescursione", "mnuvisualizza", {"mnugraffase", "mnuspl", "mnusplmax", "mnuairspeed"}},
           {"frmescursione", "mnuinfo3", {"mnuguida", "mnuinformazioni"}},
           {"frmairspeed", "mnufileex", {"mnuchiudi"}},
           {"frmairspeed", "mnuvisualizza", {"mnugraffase", "mnuspl", "mnusplmax", "mnuescursione"}},
           {"frmairspeed", "mnuinfo3", {"mnuguida", "mnuinformazioni"}},
           {"frmFase", "mnufilefase", {"mnuimportafase", "mnusalvarosso", "mnusalvablu", "mnuchiudifase"}},
           {"frmFase", "mnuvisualizzafase", {"mnuspl", "mnusplmax", "mnuescursione", "mnuairspeed"}},
           {"frmFase", "mnuinfoFase", {"mnuguida", "mnuinformazioni"}},
           {"frmfiltri", "mnusintesi", {"mnupassivo", "mnuattivo"}},
           {"frmfiltri", "mnupassivo", {"mnulowpass", "mnuhipass"}},
       }) {
    const Window& window = *desk.program.FindWindow(row.window);
    const Control* const menu = window.Find(row.menu);
    Names names;
    for (const Control* const control : window.controls) {
      if (control->parent == menu && control->IsMenu()) names.emplace_back(control->name);
    }
    EXPECT_EQ(names, row.entries) << row.window << "." << row.menu;
    EXPECT_NE(window.Find("mnucalcolatrice"), nullptr) << row.window;
  }
}

TEST_F(GraphWindows, OpenEachOtherFromEveryShowMenu) {
  struct Target {
    const char *entry, *window;
  };
  constexpr Target kTargets[]{
      {"mnufase", "frmFase"},     {"mnugraffase", "frmFase"},         {"mnuspl", "frmspl"},
      {"mnusplmax", "frmsplMax"}, {"mnuescursione", "frmescursione"}, {"mnuairspeed", "frmairspeed"}};
  for (const char* const from : {"frmgrafcassa", "frmspl", "frmsplMax", "frmescursione", "frmairspeed", "frmFase"}) {
    for (const Target& target : kTargets) {
      if (desk.program.FindWindow(from)->Find(target.entry) == nullptr) continue;
      CloseWindow(desk.program, target.window);
      desk.Choose(std::string(from) + "." + target.entry);
      EXPECT_TRUE(desk.program.FindWindow(target.window)->open) << from << " " << target.entry;
      EXPECT_EQ(desk.program.order.front()->name, target.window) << from;
    }
  }
}

TEST_F(GraphWindows, SendTheSheetBehindThemselvesWhenTheyOpen) {
  for (const char* const entry : kEntries) {
    for (const char* const name : {"frmspl", "frmsplMax", "frmescursione", "frmairspeed", "frmFase"}) {
      CloseWindow(desk.program, name);
    }
    BringToFront(desk.program, desk.sheet.window);
    desk.Choose(std::string("frmgrafcassa.") + entry);
    const std::vector<Window*>& order = desk.program.order;
    EXPECT_EQ(order[order.size() - 2], &desk.sheet.window) << entry;  // only the frame lies deeper
  }
}

TEST_F(GraphWindows, OpenTheCalculatorTheHelpAndTheInformation) {
  for (const std::string window :
       {"frmgrafcassa", "frmspl", "frmsplMax", "frmescursione", "frmairspeed", "frmFase", "frmfiltri"}) {
    desk.Choose(window + ".mnucalcolatrice");
    EXPECT_TRUE(CloseWindow(desk.program, "frmcalcolatrice")) << window;
    desk.Choose(window + ".mnuinformazioni");
    EXPECT_TRUE(CloseWindow(desk.program, "frmAbout")) << window;
    desk.Choose(window + ".mnuguida");
    EXPECT_EQ(desk.TakeOut(), "help \"" + (desk.folder.path() / "guida.hlp").string() + "\"\n") << window;
  }
}

TEST_F(GraphWindows, TheFilterWindowIsCentredInTheFrame) {
  const Window& frame = desk.program.windows.mdithsm.window;
  const Window& form = desk.program.windows.frmfiltri.window;
  ASSERT_GT(form.width, 0);
  ASSERT_GT(form.height, 0);
  EXPECT_DOUBLE_EQ(form.left + form.width / 2, frame.width / 2);
  EXPECT_DOUBLE_EQ(form.top + form.height / 2, frame.height / 2);
}

TEST_F(GraphWindows, AnOpenWindowKeepsItsPowerAndTitleWhenItIsChosenAgain) {
  for (const std::string window : {"frmsplMax", "frmescursione", "frmairspeed"}) {
    desk.Set(window + ".txtpot", "7");
    desk.Click(window + ".cmdcalc");
  }
  for (const char* const entry : {"mnusplmax", "mnuescursione", "mnuairspeed"}) {
    desk.Choose(std::string("frmgrafcassa.") + entry);
  }
  for (const std::string window : {"frmsplMax", "frmescursione", "frmairspeed"}) {
    EXPECT_EQ(desk.Text(window + ".txtpot"), "7");
    const auto chains = plain::Chains(*desk[window + (window == "frmsplMax"       ? ".pctgrafspl"
                                                      : window == "frmescursione" ? ".pctgrafex"
                                                                                  : ".pctgrafair")]
                                           .surface);
    EXPECT_EQ(chains.size(), 2U) << window;  // over the old picture
  }
}

}  // namespace
}  // namespace zefirondo
