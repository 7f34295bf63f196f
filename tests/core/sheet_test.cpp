// The sheet: its pages, its looks and what its fields do on their own.
#include "core/sheet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "core/events.h"
#include "core/window_life.h"
#include "support/desk.h"

namespace zefirondo {
namespace {

std::string Strip(const Sheet& sheet) {
  std::string strip;
  for (const TabStripItem& tab : sheet.tabs) strip += tab.key + "=" + tab.caption + ";";
  return strip;
}

TEST(Tabs, OfANewSheet) {
  Desk english;
  english.BeginParameters();
  EXPECT_EQ(Strip(english.sheet), "gen=General;par=Parameters;dim=Dimensions;imp=Settings;");
  EXPECT_EQ(english.sheet.selected_tab, "gen");
  Desk italian(Language::Italian);
  italian.BeginParameters();
  EXPECT_EQ(Strip(italian.sheet), "gen=Generale;par=Parametri;dim=Dimensioni;imp=Impostazioni;");
}

TEST(Tabs, OfABoxStandFourth) {
  Desk desk;
  desk.DesignVented();
  EXPECT_EQ(Strip(desk.sheet), "gen=General;par=Parameters;dim=Dimensions;ref=Vented Box;imp=Settings;");
  desk.sheet.InsertBoxTab("chi", "Closed Box");
  EXPECT_EQ(Strip(desk.sheet), "gen=General;par=Parameters;dim=Dimensions;chi=Closed Box;ref=Vented Box;imp=Settings;");
}

TEST(Tabs, ShowTheirFrameAlone) {
  const std::vector<std::pair<const char*, const char*>> pages{
      {"par", "frathsm"}, {"dim", "fradim"}, {"ref", "frabox"}, {"imp", "fraimpo"}, {"gen", "fragenerale"}};
  Desk desk;
  desk.DesignVented();
  for (const auto& [key, frame] : pages) {
    desk.Tab(key);
    EXPECT_EQ(desk.sheet.selected_tab, key);
    for (const auto& page : pages) EXPECT_EQ(desk[page.second].visible, std::string(frame) == page.second) << key;
  }
}

TEST(Tabs, TakeTheFocusToTheirFirstField) {
  Desk desk;
  desk.BeginParameters();
  EXPECT_EQ(desk.program.focus, &desk["txtproduttore"]);
  desk.Tab("dim");
  EXPECT_EQ(desk.program.focus, &desk["txtforo"]);
  desk.program.focus = nullptr;
  desk.Tab("imp");
  EXPECT_EQ(desk.program.focus, &desk["txttemperatura"]);
  desk.Tab("gen");
  EXPECT_EQ(desk.program.focus, &desk["txtproduttore"]);
}

TEST(Tabs, OfTheParametersBeginWithZmaxUnlessItIsReadOnly) {
  Desk impedance;
  impedance.BeginImpedance();
  impedance.Tab("par");
  EXPECT_EQ(impedance.program.focus, &impedance["txtzmax"]);
  Desk parameters;
  parameters.BeginParameters();
  parameters.Tab("par");
  EXPECT_EQ(parameters.program.focus, &parameters["txtfs"]);
}

TEST(Tabs, OfTheSizesCloseTheVolume) {
  Desk desk;
  desk.BeginParameters();
  EXPECT_FALSE(desk["txtvolume"].locked);
  desk.Tab("dim");
  EXPECT_TRUE(desk["txtvolume"].locked);
}

TEST(Tabs, HideTheOpenGraphsUntilTheBoxIsBack) {
  Desk desk;
  desk.DesignVented();
  Window& graph = desk.program.windows.frmgrafcassa.window;
  EXPECT_TRUE(graph.open);
  EXPECT_FALSE(graph.hidden);
  for (const char* const key : {"gen", "par", "dim", "imp"}) {
    desk.Tab(key);
    EXPECT_TRUE(graph.open) << key;
    EXPECT_TRUE(graph.hidden) << key;
    desk.Tab("ref");
    EXPECT_FALSE(graph.hidden) << key;
  }
}

TEST(Next, SelectsTheParametersFromEitherPage) {
  Desk desk;
  desk.BeginParameters();
  desk.FillWoofer();
  desk.Tab("gen");
  desk.Click("cmdnext");
  EXPECT_EQ(desk.sheet.selected_tab, "par");
  desk.Tab("dim");
  desk.Click("cmdnext1");
  EXPECT_EQ(desk.sheet.selected_tab, "par");
}

TEST(Looks, OfTheFieldsByDesign) {
  Desk desk;
  desk.Begin();
  OpenWindow(desk.program, desk.sheet.window);
  const std::vector<std::string_view> grey{"txtvelocita", "txtvolappa",  "txtvoloccu",   "txtfb",
                                           "txtfreriso",  "txtfstrasdu", "txtminsv",     "txtseztot",
                                           "txtlungappa", "txtareasez",  "txtboxvolume", "txtbw"};
  const std::vector<std::string_view> yellow{"txtvolnetto", "txtl", "txth", "txtp"};
  const auto among = [](const std::vector<std::string_view>& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
  };
  for (const Control* const control : desk.sheet.window.controls) {
    if (!control->IsField()) continue;
    EXPECT_EQ(control->locked, among(grey, control->name)) << control->name;
    int back = colour::kWindow;
    if (among(grey, control->name)) back = 224 * 65536 + 224 * 256 + 224;
    if (among(yellow, control->name)) back = 192 * 65536 + 255 * 256 + 255;  // red stands in the low byte
    EXPECT_EQ(control->back, back) << control->name;
  }
}

TEST(Looks, TipsTellWhatTheMouseDoes) {
  Desk desk;
  desk.BeginParameters();
  EXPECT_EQ(desk["txtvolnetto"].tip, "Funzione associata al tasto destro del mouse");
  for (const char* const field : {"txtl", "txth", "txtp"}) {
    EXPECT_EQ(desk[field].tip, "Doppio click per modificare") << field;
  }
}

struct ComboRow {
  const char* name;
  std::vector<std::string> items;
  const char* text;
};

TEST(Combos, HoldTheirListsAndFirstTexts) {
  const std::vector<ComboRow> rows{
      {"cmbnumvc", {"1", "2"}, "1"},
      {"cmbnumdriver", {"1", "2", "3", "4"}, "1"},
      {"cmbnumcond", {"1", "2", "3", "4", "5", "6"}, "1"},
      {"cmbql", {"5", "7", "10", "15", "20"}, "7"},
      {"cmballi", {"0.5", "0.707", "1.0", "1.4", "2.0"}, "0.707"},
      {"cmbk", {"1.40(0%)", "1.27(10%)", "1.17(20%)", "1.12(25%)", "1.05(33%)"}, "1.40"},
      {"cmbrappo", {"1.62  1  0.62", "1.25  1  0.8"}, "1.62  1  0.62"},
      {"cmbgradi", {"7.5", "10", "15", "20"}, "15"},
      {"cmbforma", {"Prismatic", "Trapezoidal"}, "Prismatic"},
      {"cmbDoa", {"3.5", "4.5", "5.7", "6.6", "7.5", "9.5", "10.4", "12.1", "13.4", "15.56", "19.2"}, ""},
  };
  Desk desk;
  desk.BeginParameters();
  for (const ComboRow& row : rows) {
    EXPECT_EQ(desk[row.name].kind, ControlKind::ComboBox) << row.name;
    EXPECT_EQ(desk[row.name].list, row.items) << row.name;
    EXPECT_EQ(desk.Text(row.name), row.text) << row.name;
  }
}

struct CaptionRow {
  const char* field;
  const char* label;
  const char* unit;
};

TEST(Captions, StandBesideTheFields) {
  const std::vector<CaptionRow> rows{
      {"txtproduttore", "Manufacturer", ""},
      {"txtmarca", "Brand", ""},
      {"txtmodello", "Model", ""},
      {"txtdatifor", "Data Provided By", ""},
      {"txtdatacreaz", "Date Added", "dd/mm/yyyy"},
      {"txtcommento", "Comment", ""},
      {"txtpotenza", "Nom. Pow. Handling", "W"},
      {"txtimpedenza", "Nominal Impedance", "Ohm"},
      {"txtsensibilita", "Sensitivity (1W/1m)", "dB"},
      {"txthg", "Magnetic Gap Depth", "mm"},
      {"txtxmax", "Cone Escursion Xmax", "mm"},
      {"txtrendimento", "Efficiency", "%"},
      {"txtle", "Induttance Voice Coil Le", "mH"},
      {"cmbnumvc", "Number Voice Coils", ""},
      {"txtzmax", "Zmax", "Ohm"},
      {"txtzmin", "Zmin", "Ohm"},
      {"txtfs", "Fs", "Hz"},
      {"txtfl", "Fl", "Hz"},
      {"txtfh", "Fh", "Hz"},
      {"txtrvc", "Re", "Ohm"},
      {"txtqmesin", "Qms", ""},
      {"txtbw", "Bw", "Hz"},
      {"txtbl", "B l ", "Wb/m - T x m"},
      {"txtd", "", "mm"},
      {"txtsd", "Sd", "m²"},
      {"txtlces", "Lces", "mH"},
      {"txtcmes", "Cmes", "µF"},
      {"txtrmes", "Res", "Ohm"},
      {"txtqmes", "Qms", ""},
      {"txtqes", "Qes", ""},
      {"txtqts", "Qts", ""},
      {"txtcms", "Cms", "m/N"},
      {"txtmms", "Mms", "Kg"},
      {"txtrms", "Rms", "N/m x s"},
      {"txtcas", "Cas", "m^5/N"},
      {"txtmas", "Mas", "Kg/m^4"},
      {"txtras", "Ras", "N/m^5 x s"},
      {"txtvas", "Vas", "m³"},
      {"txtforo", "Baffle Cutout Diam.", "mm"},
      {"txtprof", "Depth", "mm"},
      {"txtlagmagne", "Magnet", "mm"},
      {"txtprofmag", "Magnet Depth", "mm"},
      {"txtesterno", "Overall Diameter", "mm"},
      {"txtspesbordo", "Thickness", "mm"},
      {"txtdiambob", "Voice Coil Diameter", "mm"},
      {"txtvolume", "Volume Transducer", "l"},
      {"cmbforma", "Shape", ""},
      {"cmbrappo", "Ratio", ""},
      {"txtl", "Width L", "Cm"},
      {"txth", "Height H", "Cm"},
      {"txtp", "Depth P", "Cm"},
      {"txtboxvolume", "Box Volume", "l"},
      {"cmbnumcond", "Num Ports", ""},
      {"txtlungmis", "Effective Length", "Cm"},
      {"txtlungappa", "Apparent Length", "Cm"},
      {"txtareasez", "One Sectional Area", "Cm²"},
      {"txtseztot", "All Sectional Area", "Cm²"},
      {"txtminsv", "Min. One Sect. Area", "Cm²"},
      {"cmbnumdriver", "Transducers", ""},
      {"txtvolnetto", "Net Vol. Box", "l"},
      {"txtingombro", "Vol. Occupied", "l"},
      {"txtvoloccu", "Vol. Transducers", "l"},
      {"txtvolappa", "Vol. apparent", "l"},
      {"txtfb", "Box Frequency", "Hz"},
      {"txtfstrasdu", "Fs Transducer", "Hz"},
      {"txtfreriso", "Pole Frequency", "Hz"},
      {"cmbk", "Gamma=Cp/Cv", ""},
      {"txttemperatura", "Air Temperature", "°C"},
      {"txtpressione", "Atmospheric Pressure", "Pa"},
      {"txtvelocita", "Speed of Sound", "m/s"},
  };
  Desk desk;
  desk.BeginParameters();
  for (const CaptionRow& row : rows) {
    EXPECT_EQ(desk[row.field].label, row.label) << row.field;
    EXPECT_EQ(desk[row.field].unit, row.unit) << row.field;
  }
}

TEST(Captions, OfFramesLabelsAndButtons) {
  Desk desk;
  desk.BeginParameters();
  EXPECT_EQ(desk.sheet.window.caption, "Loudspeaker  design project");
  const std::vector<std::pair<const char*, const char*>> rows{{"fragenerale", "Transducer: "},
                                                              {"frathsm", "Transducer: "},
                                                              {"fradim", "Transducer: "},
                                                              {"frabox", "Transducer: "},
                                                              {"fraspecifiche", "Specifications"},
                                                              {"cmdnext", "&Next"},
                                                              {"cmdnext1", "&Next"},
                                                              {"cmdcalcola", "&Compute"},
                                                              {"cmdreset", "&Reset"},
                                                              {"cmddefault", "&Default"},
                                                              {"lblperdita", "Leakage"},
                                                              {"lblLD", "Rear LD"},
                                                              {"lblgradi", "Tilt"},
                                                              {"lblDoL", "Internal Diameter"}};
  for (const auto& [control, caption] : rows) EXPECT_EQ(desk.Text(control), caption) << control;
}

TEST(ModelName, GoesIntoTheTitleAndTheFramesOnLeaving) {
  Desk desk;
  desk.BeginParameters();
  desk.Set("txtmodello", "W 210");
  EXPECT_EQ(desk.state.ProjectTitle, "");
  EXPECT_EQ(desk.Text("fragenerale"), "Transducer: ");
  desk.Leave();
  EXPECT_EQ(desk.state.ProjectTitle, "W 210");
  for (const char* const frame : {"fragenerale", "frathsm", "fradim", "frabox"}) {
    EXPECT_EQ(desk.Text(frame), "Transducer: -W 210-") << frame;
  }
}

TEST(ModelName, InItalian) {
  Desk desk(Language::Italian);
  desk.BeginParameters();
  desk.Set("txtmodello", "W 210");
  desk.Leave();
  EXPECT_EQ(desk.Text("frabox"), "Trasduttore: -W 210-");
}

}  // namespace
}  // namespace zefirondo
