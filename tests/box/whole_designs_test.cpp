// Whole designs: from the typed parameters, and from one change of a design, to every field of the box page.
//
// The expected texts and numbers come from a python script of its own, which evaluates the formulas of the design
// one after the other. Where a step reads a field back, the script reads the text cut to seven characters.
#include <gtest/gtest.h>

#include "box/designs.h"

namespace zefirondo {
namespace {

struct WholeDesign {
  const char* name;
  Woofer woofer;
  double qts;
  double vas;  // m³
  Texts texts;
  Numbers numbers;
};

double Find(const Numbers& numbers, std::string_view name) {
  for (const auto& [key, value] : numbers) {
    if (key == name) return value;
  }
  ADD_FAILURE() << name;
  return 0;
}

template <class Row>
std::string NameOf(const testing::TestParamInfo<Row>& info) {
  return info.param.name;
}

const WholeDesign kVentedDesigns[] = {
    {"TenInch",
     {"35", "5.6", "4.2", "9.5", "210", "0.45", "0.038", "5"},
     0.4129959746981024,
     0.092624437933961315,
     {{"txtvolnetto", "100.086"},
      {"txtvoloccu", "1.62848"},
      {"txtvolappa", "100.086"},
      {"txtboxvolume", "101.714"},
      {"txtfb", "34.1693"},
      {"txtfreriso", "34.5821"},
      {"cmbDoa", "9.46964"},
      {"txtlungmis", "10.2420"},
      {"txtlungappa", "18.2801"},
      {"txtareasez", "70.4299"},
      {"txtseztot", "70.4299"},
      {"txtminsv", "70.4299"},
      {"txtl", "46.7"},
      {"txth", "75.6"},
      {"txtp", "28.9"},
      {"frmgrafcassa.txtF3dB", "33.8268"}},
     {{"Vb", 0.10008679519712955},
      {"Fb", 34.169307178554135},
      {"F3v", 33.826846866642143},
      {"VbaVented", 0.10008679519712957},
      {"SectArea1Vent", 0.0070429940374231543},
      {"WidthPrism", 46.679576926933564},
      {"HeightPrism", 75.62091462163238},
      {"DepthPrism", 28.941337694698809}}},
    {"EightInch",
     {"28", "3.4", "6.5", "7.1", "164", "0.38", "0.021", "4.5"},
     0.36897140418267182,
     0.097407580960273243,
     {{"txtvolnetto", "72.5602"},
      {"txtvoloccu", "1.62848"},
      {"txtvolappa", "72.5602"},
      {"txtboxvolume", "74.1886"},
      {"txtfb", "30.6764"},
      {"txtfreriso", "29.3076"},
      {"cmbDoa", "7.01144"},
      {"txtlungmis", "11.1985"},
      {"txtlungappa", "17.1500"},
      {"txtareasez", "38.6104"},
      {"txtseztot", "38.6104"},
      {"txtminsv", "38.6104"},
      {"txtl", "42"},
      {"txth", "68.1"},
      {"txtp", "26.1"},
      {"frmgrafcassa.txtF3dB", "31.8736"}},
     {{"Vb", 0.072560237160262692},
      {"Fb", 30.676456459918477},
      {"F3v", 31.873622137506992},
      {"VbaVented", 0.072560237160262692},
      {"SectArea1Vent", 0.0038610418314314332},
      {"WidthPrism", 42.019001228506681},
      {"HeightPrism", 68.070781990180834},
      {"DepthPrism", 26.051780761674145}}},
    {"TwelveInch",
     {"48.5", "6.2", "8", "14.3", "262", "0.33", "0.055", "3"},
     0.32183285280287932,
     0.080766782965781478,
     {{"txtvolnetto", "38.3215"},
      {"txtvoloccu", "1.62848"},
      {"txtvolappa", "38.3215"},
      {"txtboxvolume", "39.9499"},
      {"txtfb", "61.1106"},
      {"txtfreriso", "54.4413"},
      {"cmbDoa", "12.0254"},
      {"txtlungmis", "13.8629"},
      {"txtlungappa", "24.0704"},
      {"txtareasez", "113.576"},
      {"txtseztot", "113.576"},
      {"txtminsv", "113.576"},
      {"txtl", "34.2"},
      {"txth", "55.4"},
      {"txtp", "21.2"},
      {"frmgrafcassa.txtF3dB", "67.3300"}},
     {{"Vb", 0.038321545676789193},
      {"Fb", 61.110602619404958},
      {"F3v", 67.330096371200554},
      {"VbaVented", 0.038321545676789193},
      {"SectArea1Vent", 0.011357689270035845},
      {"WidthPrism", 34.185234669037825},
      {"HeightPrism", 55.380080163841285},
      {"DepthPrism", 21.194845494803452}}},
    {"SixInch",
     {"55", "7", "2.5", "6.2", "135", "0.6", "0.0138", "2.5"},
     0.48943014705882348,
     0.017636609127942002,
     {{"txtvolnetto", "33.3752"},
      {"txtvoloccu", "1.62848"},
      {"txtvolappa", "33.3752"},
      {"txtboxvolume", "35.0036"},
      {"txtfb", "45.1325"},
      {"txtfreriso", "49.8225"},
      {"cmbDoa", "5.48760"},
      {"txtlungmis", "5.89368"},
      {"txtlungappa", "10.5517"},
      {"txtareasez", "23.6513"},
      {"txtseztot", "23.6513"},
      {"txtminsv", "23.6513"},
      {"txtl", "32.7"},
      {"txth", "53"},
      {"txtp", "20.3"},
      {"frmgrafcassa.txtF3dB", "41.5411"}},
     {{"Vb", 0.033375244111670914},
      {"Fb", 45.132541233996434},
      {"F3v", 41.541155315631357},
      {"VbaVented", 0.033375244111670914},
      {"SectArea1Vent", 0.0023651368374711375},
      {"WidthPrism", 32.71178457188558},
      {"HeightPrism", 52.993091006454648},
      {"DepthPrism", 20.281306434569061}}},
};

class VentedDesign : public testing::TestWithParam<WholeDesign> {};

TEST_P(VentedDesign, FillsEveryFieldFromTheParameters) {
  const WholeDesign& design = GetParam();
  BoxDesk desk;
  desk.Design(design.woofer);
  ASSERT_TRUE(desk.Runs());
  EXPECT_EQ(desk.sheet.selected_tab, "ref");
  ExpectTexts(desk, design.texts);
  ExpectNumbers(desk, design.numbers);
  ExpectNumbers(desk, {{"Qts", design.qts}, {"Vas", design.vas}});
  ExpectVentedCurve(desk, Find(design.numbers, "Vb"), std::stod(design.woofer.fs), design.qts,
                    Find(design.numbers, "Fb"), design.vas, 7);
  EXPECT_EQ(desk.TakeOut(), "");
}

INSTANTIATE_TEST_SUITE_P(Box, VentedDesign, testing::ValuesIn(kVentedDesigns), NameOf<WholeDesign>);

const WholeDesign kClosedDesigns[] = {
    {"EightInch",
     {"22", "5.8", "3.2", "8.2", "212", "0.5", "0.045", "6"},
     0.43886564388656435,
     0.20558230406878467,
     {{"txtvolnetto", "103.593"},
      {"txtvoloccu", "1.62848"},
      {"txtvolappa", "103.593"},
      {"txtboxvolume", "105.221"},
      {"txtfb", "35.4413"},
      {"txtfreriso", "27.9232"},
      {"cmballi", "0.707"},
      {"txtl", "47.2"},
      {"txth", "76.5"},
      {"txtp", "29.3"}},
     {{"Vc", 0.10359331792676159},
      {"VbaClosed", 0.1035933179267616},
      {"Qtc", 0.70699999999999996},
      {"Fc", 35.44137076271187},
      {"F3c", 35.446724430615099}}},
    {"SixInch",
     {"30", "3.3", "5", "9", "166", "0.62", "0.024", "5"},
     0.56642304385210662,
     0.077947295187039051,
     {{"txtvolnetto", "98.4609"},
      {"txtvoloccu", "1.62848"},
      {"txtvolappa", "98.4609"},
      {"txtboxvolume", "100.089"},
      {"txtfb", "37.4455"},
      {"txtfreriso", "33.5166"},
      {"cmballi", "0.707"},
      {"txtl", "46.4"},
      {"txth", "75.2"},
      {"txtp", "28.8"}},
     {{"Vc", 0.09846095880228313},
      {"VbaClosed", 0.09846095880228313},
      {"Qtc", 0.70699999999999996},
      {"Fc", 37.445510436432635},
      {"F3c", 37.451166843705529}}},
    {"FifteenInch",
     {"18", "5.5", "2.6", "12.5", "320", "0.41", "0.15", "9"},
     0.35970113280308502,
     0.47844514955084771,
     {{"txtvolnetto", "138.971"},
      {"txtvoloccu", "1.62848"},
      {"txtvolappa", "138.971"},
      {"txtboxvolume", "140.599"},
      {"txtfb", "35.3793"},
      {"txtfreriso", "25.2354"},
      {"cmballi", "0.707"},
      {"txtl", "52"},
      {"txth", "84.2"},
      {"txtp", "32.2"}},
     {{"Vc", 0.13897130785662012},
      {"VbaClosed", 0.13897130785662015},
      {"Qtc", 0.70699999999999996},
      {"Fc", 35.37937148217636},
      {"F3c", 35.38471578465294}}},
};

class ClosedDesign : public testing::TestWithParam<WholeDesign> {};

TEST_P(ClosedDesign, FillsEveryFieldFromTheParameters) {
  const WholeDesign& design = GetParam();
  BoxDesk desk;
  desk.Design(design.woofer);
  ASSERT_TRUE(desk.Runs());
  EXPECT_EQ(desk.sheet.selected_tab, "chi");
  ExpectTexts(desk, design.texts);
  ExpectNumbers(desk, design.numbers);
  ExpectNumbers(desk, {{"Qts", design.qts}, {"Vas", design.vas}});
  ExpectClosedCurve(desk, Find(design.numbers, "Qtc"), Find(design.numbers, "Fc"));
}

INSTANTIATE_TEST_SUITE_P(Box, ClosedDesign, testing::ValuesIn(kClosedDesigns), NameOf<WholeDesign>);

/// What a builder does to the vented box of `kVentedWoofer`, and the design after it.
struct VentedStep {
  const char* name;
  void (*acts)(BoxDesk& d);
  int drivers;
  double ql;
  bool too_narrow;  // the port is below the smallest section, and shows it in red
  Texts texts;
  Numbers numbers;
};

const VentedStep kVentedSteps[] = {
{"TypedVolume", [](BoxDesk& d) {d.Enter("txtvolnetto", "60");}, 1, 7, true, {{"txtvolnetto", "60"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "60"}, {"txtboxvolume", "61.6284"}, {"txtfb", "44.1315"}, {"txtfreriso", "39.3014"}, {"cmbDoa", "9.46964"}, {"txtlungmis", "10.242"}, {"txtlungappa", "18.2800"}, {"txtareasez", "70.4299"}, {"txtseztot", "70.4299"}, {"txtminsv", "80.0412"}, {"txtl", "39.5"}, {"txth", "64"}, {"txtp", "24.5"}, {"frmgrafcassa.txtF3dB", "33.8268"}, {"txtb", ""}}, {{"Vb", 0.059999999999999998}, {"Fb", 44.131556368315799}, {"F3v", 0}, {"VbaVented", 0.059999999999999998}, {"SectArea1Vent", 0.0070429940374231543}, {"WidthPrism", 39.499684877045915}, {"HeightPrism", 63.989489500814386}, {"DepthPrism", 24.489804623768467}}},
{"Leakage10", [](BoxDesk& d) {d.Pick("cmbql", "10");}, 1, 10, false, {{"txtvolnetto", "100.086"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "100.086"}, {"txtboxvolume", "101.714"}, {"txtfb", "34.1693"}, {"txtfreriso", "34.5821"}, {"cmbDoa", "9.46964"}, {"txtlungmis", "10.2420"}, {"txtlungappa", "18.2801"}, {"txtareasez", "70.4299"}, {"txtseztot", "70.4299"}, {"txtminsv", "70.4299"}, {"txtl", "46.7"}, {"txth", "75.6"}, {"txtp", "28.9"}, {"frmgrafcassa.txtF3dB", "****"}, {"txtb", ""}}, {{"Vb", 0.10008599999999999}, {"Fb", 34.169307178554135}, {"F3v", 0}, {"VbaVented", 0.10008679519712957}, {"SectArea1Vent", 0.0070429940374231543}, {"WidthPrism", 46.679576926933564}, {"HeightPrism", 75.62091462163238}, {"DepthPrism", 28.941337694698809}}},
{"Leakage20", [](BoxDesk& d) {d.Pick("cmbql", "20");}, 1, 20, false, {{"txtvolnetto", "100.086"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "100.086"}, {"txtboxvolume", "101.714"}, {"txtfb", "34.1693"}, {"txtfreriso", "34.5821"}, {"cmbDoa", "9.46964"}, {"txtlungmis", "10.2420"}, {"txtlungappa", "18.2801"}, {"txtareasez", "70.4299"}, {"txtseztot", "70.4299"}, {"txtminsv", "70.4299"}, {"txtl", "46.7"}, {"txth", "75.6"}, {"txtp", "28.9"}, {"frmgrafcassa.txtF3dB", "****"}, {"txtb", ""}}, {{"Vb", 0.10008599999999999}, {"Fb", 34.169307178554135}, {"F3v", 0}, {"VbaVented", 0.10008679519712957}, {"SectArea1Vent", 0.0070429940374231543}, {"WidthPrism", 46.679576926933564}, {"HeightPrism", 75.62091462163238}, {"DepthPrism", 28.941337694698809}}},
{"Filling127", [](BoxDesk& d) {d.Pick("cmbk", "1.27(10%)");}, 1, 7, false, {{"txtvolnetto", "100.086"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "110.159"}, {"txtboxvolume", "101.714"}, {"txtfb", "34.1693"}, {"txtfreriso", "34.5821"}, {"cmbDoa", "9.46964"}, {"txtlungmis", "8.57056"}, {"txtlungappa", "16.6086"}, {"txtareasez", "70.4299"}, {"txtseztot", "70.4299"}, {"txtminsv", "70.4299"}, {"txtl", "46.7"}, {"txth", "75.6"}, {"txtp", "28.9"}, {"frmgrafcassa.txtF3dB", "33.8268"}, {"txtb", ""}}, {{"Vb", 0.10008679519712955}, {"Fb", 34.169307178554135}, {"F3v", 33.826846866642143}, {"VbaVented", 0.11015935772249774}, {"SectArea1Vent", 0.0070429940374231543}, {"WidthPrism", 46.679576926933564}, {"HeightPrism", 75.62091462163238}, {"DepthPrism", 28.941337694698809}}},
{"Filling117", [](BoxDesk& d) {d.Pick("cmbk", "1.17(20%)");}, 1, 7, false, {{"txtvolnetto", "100.086"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "120.173"}, {"txtboxvolume", "101.714"}, {"txtfb", "34.1693"}, {"txtfreriso", "34.5821"}, {"cmbDoa", "9.46964"}, {"txtlungmis", "7.18650"}, {"txtlungappa", "15.2245"}, {"txtareasez", "70.4299"}, {"txtseztot", "70.4299"}, {"txtminsv", "70.4299"}, {"txtl", "46.7"}, {"txth", "75.6"}, {"txtp", "28.9"}, {"frmgrafcassa.txtF3dB", "33.8268"}, {"txtb", ""}}, {{"Vb", 0.10008679519712955}, {"Fb", 34.169307178554135}, {"F3v", 33.826846866642143}, {"VbaVented", 0.12017384459933478}, {"SectArea1Vent", 0.0070429940374231543}, {"WidthPrism", 46.679576926933564}, {"HeightPrism", 75.62091462163238}, {"DepthPrism", 28.941337694698809}}},
{"Filling112", [](BoxDesk& d) {d.Pick("cmbk", "1.12(25%)");}, 1, 7, false, {{"txtvolnetto", "100.086"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "125.107"}, {"txtboxvolume", "101.714"}, {"txtfb", "34.1693"}, {"txtfreriso", "34.5821"}, {"cmbDoa", "9.46964"}, {"txtlungmis", "6.58612"}, {"txtlungappa", "14.6242"}, {"txtareasez", "70.4299"}, {"txtseztot", "70.4299"}, {"txtminsv", "70.4299"}, {"txtl", "46.7"}, {"txth", "75.6"}, {"txtp", "28.9"}, {"frmgrafcassa.txtF3dB", "33.8268"}, {"txtb", ""}}, {{"Vb", 0.10008679519712955}, {"Fb", 34.169307178554135}, {"F3v", 33.826846866642143}, {"VbaVented", 0.12510750004465496}, {"SectArea1Vent", 0.0070429940374231543}, {"WidthPrism", 46.679576926933564}, {"HeightPrism", 75.62091462163238}, {"DepthPrism", 28.941337694698809}}},
{"Filling105", [](BoxDesk& d) {d.Pick("cmbk", "1.05(33%)");}, 1, 7, false, {{"txtvolnetto", "100.086"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "133.447"}, {"txtboxvolume", "101.714"}, {"txtfb", "34.1693"}, {"txtfreriso", "34.5821"}, {"cmbDoa", "9.46964"}, {"txtlungmis", "5.67210"}, {"txtlungappa", "13.7101"}, {"txtareasez", "70.4299"}, {"txtseztot", "70.4299"}, {"txtminsv", "70.4299"}, {"txtl", "46.7"}, {"txth", "75.6"}, {"txtp", "28.9"}, {"frmgrafcassa.txtF3dB", "33.8268"}, {"txtb", ""}}, {{"Vb", 0.10008679519712955}, {"Fb", 34.169307178554135}, {"F3v", 33.826846866642143}, {"VbaVented", 0.1334479999364907}, {"SectArea1Vent", 0.0070429940374231543}, {"WidthPrism", 46.679576926933564}, {"HeightPrism", 75.62091462163238}, {"DepthPrism", 28.941337694698809}}},
{"Ports2", [](BoxDesk& d) {d.Pick("cmbnumcond", "2");}, 1, 7, false, {{"txtvolnetto", "100.086"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "100.086"}, {"txtboxvolume", "101.714"}, {"txtfb", "34.1693"}, {"txtfreriso", "34.5821"}, {"cmbDoa", "6.69605"}, {"txtlungmis", "12.5963"}, {"txtlungappa", "18.2801"}, {"txtareasez", "35.2149"}, {"txtseztot", "70.4298"}, {"txtminsv", "35.2149"}, {"txtl", "46.7"}, {"txth", "75.6"}, {"txtp", "28.9"}, {"frmgrafcassa.txtF3dB", "33.8268"}, {"txtb", ""}}, {{"Vb", 0.10008679519712955}, {"Fb", 34.169307178554135}, {"F3v", 33.826846866642143}, {"VbaVented", 0.10008679519712957}, {"SectArea1Vent", 0.0035214970187115772}, {"WidthPrism", 46.679576926933564}, {"HeightPrism", 75.62091462163238}, {"DepthPrism", 28.941337694698809}}},
{"Ports6", [](BoxDesk& d) {d.Pick("cmbnumcond", "6");}, 1, 7, false, {{"txtvolnetto", "100.086"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "100.086"}, {"txtboxvolume", "101.714"}, {"txtfb", "34.1693"}, {"txtfreriso", "34.5821"}, {"cmbDoa", "3.86596"}, {"txtlungmis", "14.9985"}, {"txtlungappa", "18.2801"}, {"txtareasez", "11.7383"}, {"txtseztot", "70.4298"}, {"txtminsv", "11.7383"}, {"txtl", "46.7"}, {"txth", "75.6"}, {"txtp", "28.9"}, {"frmgrafcassa.txtF3dB", "33.8268"}, {"txtb", ""}}, {{"Vb", 0.10008679519712955}, {"Fb", 34.169307178554135}, {"F3v", 33.826846866642143}, {"VbaVented", 0.10008679519712957}, {"SectArea1Vent", 0.0011738323395705256}, {"WidthPrism", 46.679576926933564}, {"HeightPrism", 75.62091462163238}, {"DepthPrism", 28.941337694698809}}},
{"PickedDiameter", [](BoxDesk& d) {d.Pick("cmbDoa", "10.4");}, 1, 7, false, {{"txtvolnetto", "100.086"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "100.086"}, {"txtboxvolume", "101.714"}, {"txtfb", "34.1693"}, {"txtfreriso", "34.5821"}, {"cmbDoa", "10.4"}, {"txtlungmis", "13.2206"}, {"txtlungappa", "22.0484"}, {"txtareasez", "84.9486"}, {"txtseztot", "84.9486"}, {"txtminsv", "70.4299"}, {"txtl", "46.7"}, {"txth", "75.6"}, {"txtp", "28.9"}, {"frmgrafcassa.txtF3dB", "33.8268"}, {"txtb", ""}}, {{"Vb", 0.10008679519712955}, {"Fb", 34.169307178554135}, {"F3v", 33.826846866642143}, {"VbaVented", 0.10008679519712957}, {"SectArea1Vent", 0.0084948665353067939}, {"WidthPrism", 46.679576926933564}, {"HeightPrism", 75.62091462163238}, {"DepthPrism", 28.941337694698809}}},
{"TypedDiameter", [](BoxDesk& d) {d.Enter("cmbDoa", "8");}, 1, 7, true, {{"txtvolnetto", "100.086"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "100.086"}, {"txtboxvolume", "101.714"}, {"txtfb", "34.1693"}, {"txtfreriso", "34.5821"}, {"cmbDoa", "8"}, {"txtlungmis", "6.25580"}, {"txtlungappa", "13.0464"}, {"txtareasez", "50.2654"}, {"txtseztot", "50.2654"}, {"txtminsv", "70.4299"}, {"txtl", "46.7"}, {"txth", "75.6"}, {"txtp", "28.9"}, {"frmgrafcassa.txtF3dB", "33.8268"}, {"txtb", ""}}, {{"Vb", 0.10008679519712955}, {"Fb", 34.169307178554135}, {"F3v", 33.826846866642143}, {"VbaVented", 0.10008679519712957}, {"SectArea1Vent", 0.0050265482457436646}, {"WidthPrism", 46.679576926933564}, {"HeightPrism", 75.62091462163238}, {"DepthPrism", 28.941337694698809}}},
{"TypedLength", [](BoxDesk& d) {d.Enter("txtlungmis", "12");}, 1, 7, false, {{"txtvolnetto", "100.086"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "100.086"}, {"txtboxvolume", "101.714"}, {"txtfb", "32.6360"}, {"txtfreriso", "33.7973"}, {"cmbDoa", "9.46964"}, {"txtlungmis", "12"}, {"txtlungappa", "20.0380"}, {"txtareasez", "70.4299"}, {"txtseztot", "70.4299"}, {"txtminsv", "68.8316"}, {"txtl", "46.7"}, {"txth", "75.6"}, {"txtp", "28.9"}, {"frmgrafcassa.txtF3dB", "****"}, {"txtb", ""}}, {{"Vb", 0.10008679519712955}, {"Fb", 32.636041024246076}, {"F3v", 0}, {"VbaVented", 0.10008679519712957}, {"SectArea1Vent", 0.0070429940374231543}, {"WidthPrism", 46.679576926933564}, {"HeightPrism", 75.62091462163238}, {"DepthPrism", 28.941337694698809}}},
{"SquarePort", [](BoxDesk& d) {d.Click("imgforma(0)");}, 1, 7, false, {{"txtvolnetto", "100.086"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "100.086"}, {"txtboxvolume", "101.714"}, {"txtfb", "34.1693"}, {"txtfreriso", "34.5821"}, {"cmbDoa", "8.39225"}, {"txtlungmis", "11.1565"}, {"txtlungappa", "18.2800"}, {"txtareasez", "70.4299"}, {"txtseztot", "70.4299"}, {"txtminsv", "70.4299"}, {"txtl", "46.7"}, {"txth", "75.6"}, {"txtp", "28.9"}, {"frmgrafcassa.txtF3dB", "33.8268"}, {"txtb", "8.39225"}}, {{"Vb", 0.10008679519712955}, {"Fb", 34.169307178554135}, {"F3v", 33.826846866642143}, {"VbaVented", 0.10008679519712957}, {"SectArea1Vent", 0.0070429940374231543}, {"WidthPrism", 46.679576926933564}, {"HeightPrism", 75.62091462163238}, {"DepthPrism", 28.941337694698809}}},
{"RoundPortAgain", [](BoxDesk& d) {d.Click("imgforma(0)"); d.Click("imgforma(1)");}, 1, 7, false, {{"txtvolnetto", "100.086"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "100.086"}, {"txtboxvolume", "101.714"}, {"txtfb", "34.1693"}, {"txtfreriso", "34.5821"}, {"cmbDoa", "9.46964"}, {"txtlungmis", "10.2420"}, {"txtlungappa", "18.2801"}, {"txtareasez", "70.4299"}, {"txtseztot", "70.4299"}, {"txtminsv", "70.4299"}, {"txtl", "46.7"}, {"txth", "75.6"}, {"txtp", "28.9"}, {"frmgrafcassa.txtF3dB", "33.8268"}, {"txtb", "8.39225"}}, {{"Vb", 0.10008679519712955}, {"Fb", 34.169307178554135}, {"F3v", 33.826846866642143}, {"VbaVented", 0.10008679519712957}, {"SectArea1Vent", 0.0070429940374231543}, {"WidthPrism", 46.679576926933564}, {"HeightPrism", 75.62091462163238}, {"DepthPrism", 28.941337694698809}}},
{"RectangularPort", [](BoxDesk& d) {d.Click("imgforma(0)"); d.Enter("cmbDoa", "10"); d.Enter("txtb", "5");}, 1, 7, true, {{"txtvolnetto", "100.086"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "100.086"}, {"txtboxvolume", "101.714"}, {"txtfb", "34.1693"}, {"txtfreriso", "34.5821"}, {"cmbDoa", "10"}, {"txtlungmis", "6.37552"}, {"txtlungappa", "12.9775"}, {"txtareasez", "50"}, {"txtseztot", "50"}, {"txtminsv", "70.4299"}, {"txtl", "46.7"}, {"txth", "75.6"}, {"txtp", "28.9"}, {"frmgrafcassa.txtF3dB", "33.8268"}, {"txtb", "5"}}, {{"Vb", 0.10008679519712955}, {"Fb", 34.169307178554135}, {"F3v", 33.826846866642143}, {"VbaVented", 0.10008679519712957}, {"SectArea1Vent", 0.0050000000000000001}, {"WidthPrism", 46.679576926933564}, {"HeightPrism", 75.62091462163238}, {"DepthPrism", 28.941337694698809}}},
{"RectangularPortPickedSide", [](BoxDesk& d) {d.Click("imgforma(0)"); d.Enter("cmbDoa", "10"); d.Enter("txtb", "5");d.Pick("cmbDoa", "7.5");}, 1, 7, true, {{"txtvolnetto", "100.086"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "100.086"}, {"txtboxvolume", "101.714"}, {"txtfb", "34.1693"}, {"txtfreriso", "34.5821"}, {"cmbDoa", "7.5"}, {"txtlungmis", "4.35723"}, {"txtlungappa", "9.73313"}, {"txtareasez", "37.5"}, {"txtseztot", "37.5"}, {"txtminsv", "70.4299"}, {"txtl", "46.7"}, {"txth", "75.6"}, {"txtp", "28.9"}, {"frmgrafcassa.txtF3dB", "33.8268"}, {"txtb", "5"}}, {{"Vb", 0.10008679519712955}, {"Fb", 34.169307178554135}, {"F3v", 33.826846866642143}, {"VbaVented", 0.10008679519712957}, {"SectArea1Vent", 0.0037499999999999999}, {"WidthPrism", 46.679576926933564}, {"HeightPrism", 75.62091462163238}, {"DepthPrism", 28.941337694698809}}},
{"RectangularPortTypedLength", [](BoxDesk& d) {d.Click("imgforma(0)"); d.Enter("cmbDoa", "10"); d.Enter("txtb", "5");d.Enter("txtlungmis", "8");}, 1, 7, true, {{"txtvolnetto", "100.086"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "100.086"}, {"txtboxvolume", "101.714"}, {"txtfb", "32.2126"}, {"txtfreriso", "33.5773"}, {"cmbDoa", "10"}, {"txtlungmis", "8"}, {"txtlungappa", "14.6019"}, {"txtareasez", "50"}, {"txtseztot", "50"}, {"txtminsv", "68.3836"}, {"txtl", "46.7"}, {"txth", "75.6"}, {"txtp", "28.9"}, {"frmgrafcassa.txtF3dB", "****"}, {"txtb", "5"}}, {{"Vb", 0.10008679519712955}, {"Fb", 32.212612589531432}, {"F3v", 0}, {"VbaVented", 0.10008679519712957}, {"SectArea1Vent", 0.005000000000000001}, {"WidthPrism", 46.679576926933564}, {"HeightPrism", 75.62091462163238}, {"DepthPrism", 28.941337694698809}}},
{"RectangularPortTypedVolume", [](BoxDesk& d) {d.Click("imgforma(0)"); d.Enter("cmbDoa", "10"); d.Enter("txtb", "5");d.Enter("txtvolnetto", "60");}, 1, 7, true, {{"txtvolnetto", "60"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "60"}, {"txtboxvolume", "61.6284"}, {"txtfb", "44.1315"}, {"txtfreriso", "39.3014"}, {"cmbDoa", "7.07106"}, {"txtlungmis", "6.97537"}, {"txtlungappa", "12.9774"}, {"txtareasez", "50"}, {"txtseztot", "50"}, {"txtminsv", "80.0412"}, {"txtl", "39.5"}, {"txth", "64"}, {"txtp", "24.5"}, {"frmgrafcassa.txtF3dB", "33.8268"}, {"txtb", "7.07106"}}, {{"Vb", 0.059999999999999998}, {"Fb", 44.131538357045983}, {"F3v", 0}, {"VbaVented", 0.059999999999999998}, {"SectArea1Vent", 0.005000000000000001}, {"WidthPrism", 39.499684877045915}, {"HeightPrism", 63.989489500814386}, {"DepthPrism", 24.489804623768467}}},
{"RectangularPortLeakage5", [](BoxDesk& d) {d.Click("imgforma(0)"); d.Enter("cmbDoa", "10"); d.Enter("txtb", "5");d.Pick("cmbql", "5");}, 1, 5, true, {{"txtvolnetto", "100.086"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "100.086"}, {"txtboxvolume", "101.714"}, {"txtfb", "34.1693"}, {"txtfreriso", "34.5821"}, {"cmbDoa", "7.07106"}, {"txtlungmis", "6.97537"}, {"txtlungappa", "12.9774"}, {"txtareasez", "50"}, {"txtseztot", "50"}, {"txtminsv", "70.4299"}, {"txtl", "46.7"}, {"txth", "75.6"}, {"txtp", "28.9"}, {"frmgrafcassa.txtF3dB", "****"}, {"txtb", "7.07106"}}, {{"Vb", 0.10008599999999999}, {"Fb", 34.169307178554135}, {"F3v", 0}, {"VbaVented", 0.10008679519712957}, {"SectArea1Vent", 0.0050000000000000001}, {"WidthPrism", 46.679576926933564}, {"HeightPrism", 75.62091462163238}, {"DepthPrism", 28.941337694698809}}},
{"RectangularPortFilling", [](BoxDesk& d) {d.Click("imgforma(0)"); d.Enter("cmbDoa", "10"); d.Enter("txtb", "5");d.Pick("cmbk", "1.17(20%)");}, 1, 7, true, {{"txtvolnetto", "100.086"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "120.173"}, {"txtboxvolume", "101.714"}, {"txtfb", "34.1693"}, {"txtfreriso", "34.5821"}, {"cmbDoa", "7.07106"}, {"txtlungmis", "4.80619"}, {"txtlungappa", "10.8082"}, {"txtareasez", "50"}, {"txtseztot", "50"}, {"txtminsv", "70.4299"}, {"txtl", "46.7"}, {"txth", "75.6"}, {"txtp", "28.9"}, {"frmgrafcassa.txtF3dB", "33.8268"}, {"txtb", "7.07106"}}, {{"Vb", 0.10008679519712955}, {"Fb", 34.169307178554135}, {"F3v", 33.826846866642143}, {"VbaVented", 0.12017384459933478}, {"SectArea1Vent", 0.0050000000000000001}, {"WidthPrism", 46.679576926933564}, {"HeightPrism", 75.62091462163238}, {"DepthPrism", 28.941337694698809}}},
{"RectangularPortThreeOfThem", [](BoxDesk& d) {d.Click("imgforma(0)"); d.Enter("cmbDoa", "10"); d.Enter("txtb", "5");d.Pick("cmbnumcond", "3");}, 1, 7, false, {{"txtvolnetto", "100.086"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "100.086"}, {"txtboxvolume", "101.714"}, {"txtfb", "34.1693"}, {"txtfreriso", "34.5821"}, {"cmbDoa", "4.84527"}, {"txtlungmis", "14.1673"}, {"txtlungappa", "18.2801"}, {"txtareasez", "23.4766"}, {"txtseztot", "70.4298"}, {"txtminsv", "23.4766"}, {"txtl", "46.7"}, {"txth", "75.6"}, {"txtp", "28.9"}, {"frmgrafcassa.txtF3dB", "33.8268"}, {"txtb", "4.84527"}}, {{"Vb", 0.10008679519712955}, {"Fb", 34.169307178554135}, {"F3v", 33.826846866642143}, {"VbaVented", 0.10008679519712957}, {"SectArea1Vent", 0.0023476646791410513}, {"WidthPrism", 46.679576926933564}, {"HeightPrism", 75.62091462163238}, {"DepthPrism", 28.941337694698809}}},
{"RectangularPortTwoDrivers", [](BoxDesk& d) {d.Click("imgforma(0)"); d.Enter("cmbDoa", "10"); d.Enter("txtb", "5");d.ChooseDrivers("2", Answer::Yes);}, 2, 7, false, {{"txtvolnetto", "200.173"}, {"txtvoloccu", "3.25696"}, {"txtvolappa", "200.173"}, {"txtboxvolume", "203.430"}, {"txtfb", "34.1693"}, {"txtfreriso", "34.5821"}, {"cmbDoa", "11.8684"}, {"txtlungmis", "8.20577"}, {"txtlungappa", "18.2799"}, {"txtareasez", "140.859"}, {"txtseztot", "140.859"}, {"txtminsv", "140.859"}, {"txtl", "58.8"}, {"txth", "95.3"}, {"txtp", "36.5"}, {"frmgrafcassa.txtF3dB", "33.8268"}, {"txtb", "11.8684"}}, {{"Vb", 0.20017359039425911}, {"Fb", 34.169307178554135}, {"F3v", 33.826846866642143}, {"VbaVented", 0.20017359039425914}, {"SectArea1Vent", 0.014085988074846309}, {"WidthPrism", 58.812774308201348}, {"HeightPrism", 95.276694379286198}, {"DepthPrism", 36.463920071084836}}},
{"RectangularPortAlignment", [](BoxDesk& d) {d.Click("imgforma(0)"); d.Enter("cmbDoa", "10"); d.Enter("txtb", "5");d.TakeAlignment(0.04, 40, 45);}, 1, 7, true, {{"txtvolnetto", "40"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "40"}, {"txtboxvolume", "41.6284"}, {"txtfb", "40"}, {"txtfreriso", "37.4165"}, {"cmbDoa", "10"}, {"txtlungmis", "17.0932"}, {"txtlungappa", "23.6952"}, {"txtareasez", "50"}, {"txtseztot", "50"}, {"txtminsv", "76.2025"}, {"txtl", "34.7"}, {"txth", "56.1"}, {"txtp", "21.5"}, {"frmgrafcassa.txtF3dB", "45"}, {"txtb", "5"}}, {{"Vb", 0.040000000000000001}, {"Fb", 40}, {"F3v", 45}, {"VbaVented", 0.040000000000000001}, {"SectArea1Vent", 0.0050000000000000001}, {"WidthPrism", 34.657447416958597}, {"HeightPrism", 56.145064815472935}, {"DepthPrism", 21.487617398514331}}},
{"RectangularPortMadeRound", [](BoxDesk& d) {d.Click("imgforma(0)"); d.Enter("cmbDoa", "10"); d.Enter("txtb", "5"); d.Click("imgforma(1)");}, 1, 7, true, {{"txtvolnetto", "100.086"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "100.086"}, {"txtboxvolume", "101.714"}, {"txtfb", "34.1693"}, {"txtfreriso", "34.5821"}, {"cmbDoa", "7.97884"}, {"txtlungmis", "6.20486"}, {"txtlungappa", "12.9775"}, {"txtareasez", "50"}, {"txtseztot", "50"}, {"txtminsv", "70.4299"}, {"txtl", "46.7"}, {"txth", "75.6"}, {"txtp", "28.9"}, {"frmgrafcassa.txtF3dB", "33.8268"}, {"txtb", "5"}}, {{"Vb", 0.10008679519712955}, {"Fb", 34.169307178554135}, {"F3v", 33.826846866642143}, {"VbaVented", 0.10008679519712957}, {"SectArea1Vent", 0.0050000000000000001}, {"WidthPrism", 46.679576926933564}, {"HeightPrism", 75.62091462163238}, {"DepthPrism", 28.941337694698809}}},
{"TwoDriversYes", [](BoxDesk& d) {d.ChooseDrivers("2", Answer::Yes);}, 2, 7, false, {{"txtvolnetto", "200.173"}, {"txtvoloccu", "3.25696"}, {"txtvolappa", "200.173"}, {"txtboxvolume", "203.430"}, {"txtfb", "34.1693"}, {"txtfreriso", "34.5821"}, {"cmbDoa", "13.3921"}, {"txtlungmis", "6.91253"}, {"txtlungappa", "18.2801"}, {"txtareasez", "140.859"}, {"txtseztot", "140.859"}, {"txtminsv", "140.859"}, {"txtl", "58.8"}, {"txth", "95.3"}, {"txtp", "36.5"}, {"frmgrafcassa.txtF3dB", "33.8268"}, {"txtb", ""}}, {{"Vb", 0.20017359039425911}, {"Fb", 34.169307178554135}, {"F3v", 33.826846866642143}, {"VbaVented", 0.20017359039425914}, {"SectArea1Vent", 0.014085988074846309}, {"WidthPrism", 58.812774308201348}, {"HeightPrism", 95.276694379286198}, {"DepthPrism", 36.463920071084836}}},
{"TwoDriversNo", [](BoxDesk& d) {d.ChooseDrivers("2", Answer::No);}, 2, 7, false, {{"txtvolnetto", "100.086"}, {"txtvoloccu", "3.25696"}, {"txtvolappa", "100.086"}, {"txtboxvolume", "103.342"}, {"txtfb", "42.3600"}, {"txtfreriso", "38.5045"}, {"cmbDoa", "14.1311"}, {"txtlungmis", "14.4920"}, {"txtlungappa", "26.4869"}, {"txtareasez", "156.836"}, {"txtseztot", "156.836"}, {"txtminsv", "156.836"}, {"txtl", "46.9"}, {"txth", "76"}, {"txtp", "29.1"}, {"frmgrafcassa.txtF3dB", "45.8898"}, {"txtb", ""}}, {{"Vb", 0.10008599999999999}, {"Fb", 42.360057542813244}, {"F3v", 45.889807266663048}, {"VbaVented", 0.10008600000000001}, {"SectArea1Vent", 0.015683662950932202}, {"WidthPrism", 46.927305760729979}, {"HeightPrism", 76.022235332382579}, {"DepthPrism", 29.094929571652589}}},
{"FourDriversNoWithFilling", [](BoxDesk& d) {d.Pick("cmbk", "1.12(25%)");d.ChooseDrivers("4", Answer::No);}, 4, 7, false, {{"txtvolnetto", "100.086"}, {"txtvoloccu", "6.51392"}, {"txtvolappa", "125.107"}, {"txtboxvolume", "106.599"}, {"txtfb", "52.5140"}, {"txtfreriso", "42.8718"}, {"cmbDoa", "21.0874"}, {"txtlungmis", "12.8028"}, {"txtlungappa", "30.7024"}, {"txtareasez", "349.250"}, {"txtseztot", "349.25"}, {"txtminsv", "349.250"}, {"txtl", "47.4"}, {"txth", "76.8"}, {"txtp", "29.4"}, {"frmgrafcassa.txtF3dB", "62.2543"}, {"txtb", ""}}, {{"Vb", 0.10008599999999999}, {"Fb", 52.514089505684119}, {"F3v", 62.254311123694706}, {"VbaVented", 0.12510750004465496}, {"SectArea1Vent", 0.034925058765160451}, {"WidthPrism", 47.415213475450912}, {"HeightPrism", 76.81264583023048}, {"DepthPrism", 29.397432354779561}}},
{"Alignment", [](BoxDesk& d) {d.TakeAlignment(0.05, 42, 50);}, 1, 7, true, {{"txtvolnetto", "50"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "50"}, {"txtboxvolume", "51.6284"}, {"txtfb", "42"}, {"txtfreriso", "38.3405"}, {"cmbDoa", "9.46964"}, {"txtlungmis", "16.1810"}, {"txtlungappa", "24.2191"}, {"txtareasez", "70.4299"}, {"txtseztot", "70.4299"}, {"txtminsv", "78.0843"}, {"txtl", "37.2"}, {"txth", "60.3"}, {"txtp", "23.1"}, {"frmgrafcassa.txtF3dB", "50"}, {"txtb", ""}}, {{"Vb", 0.050000000000000003}, {"Fb", 42}, {"F3v", 50}, {"VbaVented", 0.05000000000000001}, {"SectArea1Vent", 0.0070429940374231543}, {"WidthPrism", 37.235988604496406}, {"HeightPrism", 60.322301539284183}, {"DepthPrism", 23.086312934787774}}},
{"PortTooShort", [](BoxDesk& d) {d.TakeAlignment(0.05, 80, 90);}, 1, 7, true, {{"txtvolnetto", "50"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "50"}, {"txtboxvolume", "51.6284"}, {"txtfb", "80"}, {"txtfreriso", "52.9150"}, {"cmbDoa", "9.46964"}, {"txtlungmis", "Troppo corto"}, {"txtlungappa", "Troppo corto"}, {"txtareasez", "70.4299"}, {"txtseztot", "70.4299"}, {"txtminsv", "107.766"}, {"txtl", "37.2"}, {"txth", "60.3"}, {"txtp", "23.1"}, {"frmgrafcassa.txtF3dB", "90"}, {"txtb", ""}}, {{"Vb", 0.050000000000000003}, {"Fb", 80}, {"F3v", 90}, {"VbaVented", 0.05000000000000001}, {"SectArea1Vent", 0.0070429940374231543}, {"WidthPrism", 37.235988604496406}, {"HeightPrism", 60.322301539284183}, {"DepthPrism", 23.086312934787774}}},
{"PortTooShortThenVolume", [](BoxDesk& d) {d.TakeAlignment(0.05, 80, 90);d.Enter("txtvolnetto", "60");}, 1, 7, true, {{"txtvolnetto", "60"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "60"}, {"txtboxvolume", "61.6284"}, {"txtfb", "66.5521"}, {"txtfreriso", "48.2630"}, {"cmbDoa", "9.46964"}, {"txtlungmis", "Troppo corto"}, {"txtlungappa", "Troppo corto"}, {"txtareasez", "70.4299"}, {"txtseztot", "70.4299"}, {"txtminsv", "98.2924"}, {"txtl", "39.5"}, {"txth", "64"}, {"txtp", "24.5"}, {"frmgrafcassa.txtF3dB", "90"}, {"txtb", ""}}, {{"Vb", 0.059999999999999998}, {"Fb", 66.552155564269015}, {"F3v", 0}, {"VbaVented", 0.059999999999999998}, {"SectArea1Vent", 0.0070429940374231543}, {"WidthPrism", 39.499684877045915}, {"HeightPrism", 63.989489500814386}, {"DepthPrism", 24.489804623768467}}},
{"OccupiedVolumeThenTypedVolume", [](BoxDesk& d) {d.Enter("txtingombro", "2.5");d.Enter("txtvolnetto", "80");}, 1, 7, true, {{"txtvolnetto", "80"}, {"txtvoloccu", "1.62848"}, {"txtvolappa", "80"}, {"txtboxvolume", "84.1284"}, {"txtfb", "38.2190"}, {"txtfreriso", "36.5741"}, {"cmbDoa", "9.46964"}, {"txtlungmis", "10.242"}, {"txtlungappa", "18.2800"}, {"txtareasez", "70.4299"}, {"txtseztot", "70.4299"}, {"txtminsv", "74.4867"}, {"txtl", "43.8"}, {"txth", "71"}, {"txtp", "27.2"}, {"frmgrafcassa.txtF3dB", "33.8268"}, {"txtb", ""}}, {{"Vb", 0.080000000000000002}, {"Fb", 38.219048923506399}, {"F3v", 0}, {"VbaVented", 0.080000000000000002}, {"SectArea1Vent", 0.0070429940374231543}, {"WidthPrism", 43.81749473141754}, {"HeightPrism", 70.984341464896431}, {"DepthPrism", 27.166846733478877}}},
};

class ChangedVentedBox : public testing::TestWithParam<VentedStep> {};

TEST_P(ChangedVentedBox, FollowsTheChange) {
  const VentedStep& step = GetParam();
  BoxDesk desk;
  desk.DesignVentedBox();
  step.acts(desk);
  ASSERT_TRUE(desk.Runs());
  ExpectTexts(desk, step.texts);
  ExpectNumbers(desk, step.numbers);
  EXPECT_EQ(desk.state.DriversNum, step.drivers);
  EXPECT_EQ(desk.state.Ql, step.ql);
  EXPECT_EQ(desk.sheet.txtareasez.fore, step.too_narrow ? 255 : colour::kText);
  EXPECT_FALSE(desk.state.SquarePortSection);
  EXPECT_TRUE(desk.state.ProjectModified);
  ExpectVentedCurve(desk, Find(step.numbers, "Vb"), 35, kVentedQts, Find(step.numbers, "Fb"), step.drivers * kVentedVas,
                    step.ql);
}

INSTANTIATE_TEST_SUITE_P(Box, ChangedVentedBox, testing::ValuesIn(kVentedSteps), NameOf<VentedStep>);

/// The same for the closed box of `kClosedWoofer`.
struct ClosedStep {
  const char* name;
  void (*acts)(BoxDesk& d);
  int drivers;
  Texts texts;
  Numbers numbers;
};

const ClosedStep kClosedSteps[] = {
    {"Qtc05",
     [](BoxDesk& d) { d.Pick("cmballi", "0.5"); },
     1,
     {{"txtvolnetto", "417.250"},
      {"txtvoloccu", "1.62848"},
      {"txtvolappa", "417.250"},
      {"txtboxvolume", "418.878"},
      {"txtfb", "25.0646"},
      {"txtfreriso", "27.9232"},
      {"cmballi", "0.5"},
      {"txtl", "74.8"},
      {"txth", "121.2"},
      {"txtp", "46.4"}},
     {{"Vc", 0.41725030042927003},
      {"VbaClosed", 0.41725030042927003},
      {"Qtc", 0.5},
      {"Fc", 25.064618644067799},
      {"F3c", 38.944752118140592}}},
    {"Qtc10",
     [](BoxDesk& d) { d.Pick("cmballi", "1.0"); },
     1,
     {{"txtvolnetto", "41.3577"},
      {"txtvoloccu", "1.62848"},
      {"txtvolappa", "41.3577"},
      {"txtboxvolume", "42.9861"},
      {"txtfb", "50.1292"},
      {"txtfreriso", "27.9232"},
      {"cmballi", "1.0"},
      {"txtl", "35"},
      {"txth", "56.7"},
      {"txtp", "21.7"}},
     {{"Vc", 0.041357745734737043},
      {"VbaClosed", 0.041357745734737043},
      {"Qtc", 1},
      {"Fc", 50.129237288135599},
      {"F3c", 39.409168959996599}}},
    {"Qtc14",
     [](BoxDesk& d) { d.Pick("cmballi", "1.4"); },
     1,
     {{"txtvolnetto", "19.2082"},
      {"txtvoloccu", "1.62848"},
      {"txtvolappa", "19.2082"},
      {"txtboxvolume", "20.8366"},
      {"txtfb", "70.1809"},
      {"txtfreriso", "27.9232"},
      {"cmballi", "1.4"},
      {"txtl", "27.5"},
      {"txth", "44.6"},
      {"txtp", "17.1"}},
     {{"Vc", 0.019208226513752952},
      {"VbaClosed", 0.019208226513752952},
      {"Qtc", 1.3999999999999999},
      {"Fc", 70.18093220338983},
      {"F3c", 49.726917125050711}}},
    {"Qtc20",
     [](BoxDesk& d) { d.Pick("cmballi", "2.0"); },
     1,
     {{"txtvolnetto", "8.98393"},
      {"txtvoloccu", "1.62848"},
      {"txtvolappa", "8.98393"},
      {"txtboxvolume", "10.6124"},
      {"txtfb", "100.258"},
      {"txtfreriso", "27.9232"},
      {"cmballi", "2.0"},
      {"txtl", "22"},
      {"txth", "35.6"},
      {"txtp", "13.6"}},
     {{"Vc", 0.0089839376768096179},
      {"VbaClosed", 0.0089839376768096179},
      {"Qtc", 2},
      {"Fc", 100.2584745762712},
      {"F3c", 67.536435290788461}}},
    {"TypedVolume",
     [](BoxDesk& d) { d.Enter("txtvolnetto", "30"); },
     1,
     {{"txtvolnetto", "30"},
      {"txtvoloccu", "1.62848"},
      {"txtvolappa", "30"},
      {"txtboxvolume", "31.6284"},
      {"txtfb", "57.4889"},
      {"txtfreriso", "27.9232"},
      {"cmballi", "1.14681"},
      {"txtl", "31.6"},
      {"txth", "51.2"},
      {"txtp", "19.6"}},
     {{"Vc", 0.029999999999999999},
      {"VbaClosed", 0.029999999999999999},
      {"Qtc", 1.1468150108822623},
      {"Fc", 57.488961806112741},
      {"F3c", 42.893390947629946}}},
    {"TypedVolumeThenQtc0707",
     [](BoxDesk& d) {
       d.Enter("txtvolnetto", "30");
       d.Pick("cmballi", "0.707");
     },
     1,
     {{"txtvolnetto", "103.593"},
      {"txtvoloccu", "1.62848"},
      {"txtvolappa", "103.593"},
      {"txtboxvolume", "105.221"},
      {"txtfb", "35.4413"},
      {"txtfreriso", "27.9232"},
      {"cmballi", "0.707"},
      {"txtl", "47.2"},
      {"txth", "76.5"},
      {"txtp", "29.3"}},
     {{"Vc", 0.10359331792676159},
      {"VbaClosed", 0.1035933179267616},
      {"Qtc", 0.70699999999999996},
      {"Fc", 35.44137076271187},
      {"F3c", 35.446724430615099}}},
    {"Filling127",
     [](BoxDesk& d) { d.Pick("cmbk", "1.27(10%)"); },
     1,
     {{"txtvolnetto", "103.593"},
      {"txtvoloccu", "1.62848"},
      {"txtvolappa", "114.019"},
      {"txtboxvolume", "105.221"},
      {"txtfb", "34.3469"},
      {"txtfreriso", "27.4887"},
      {"cmballi", "0.707"},
      {"txtl", "47.2"},
      {"txth", "76.5"},
      {"txtp", "29.3"}},
     {{"Vc", 0.10359331792676159},
      {"VbaClosed", 0.11401932682439812},
      {"Qtc", 0.70699999999999996},
      {"Fc", 34.34698252138098},
      {"F3c", 34.352170874256174}}},
    {"Filling117",
     [](BoxDesk& d) { d.Pick("cmbk", "1.17(20%)"); },
     1,
     {{"txtvolnetto", "103.593"},
      {"txtvoloccu", "1.62848"},
      {"txtvolappa", "124.384"},
      {"txtboxvolume", "105.221"},
      {"txtfb", "33.4137"},
      {"txtfreriso", "27.1127"},
      {"cmballi", "0.707"},
      {"txtl", "47.2"},
      {"txth", "76.5"},
      {"txtp", "29.3"}},
     {{"Vc", 0.10359331792676159},
      {"VbaClosed", 0.12438471997660898},
      {"Qtc", 0.70699999999999996},
      {"Fc", 33.413740773693611},
      {"F3c", 33.418788153850116}}},
    {"Filling112",
     [](BoxDesk& d) { d.Pick("cmbk", "1.12(25%)"); },
     1,
     {{"txtvolnetto", "103.593"},
      {"txtvoloccu", "1.62848"},
      {"txtvolappa", "129.491"},
      {"txtboxvolume", "105.221"},
      {"txtfb", "33.0007"},
      {"txtfreriso", "26.9446"},
      {"cmballi", "0.707"},
      {"txtl", "47.2"},
      {"txth", "76.5"},
      {"txtp", "29.3"}},
     {{"Vc", 0.10359331792676159},
      {"VbaClosed", 0.12949125004621967},
      {"Qtc", 0.70699999999999996},
      {"Fc", 33.000704871820389},
      {"F3c", 33.005689860003805}}},
    {"Filling105",
     [](BoxDesk& d) { d.Pick("cmbk", "1.05(33%)"); },
     1,
     {{"txtvolnetto", "103.593"},
      {"txtvoloccu", "1.62848"},
      {"txtvolappa", "138.123"},
      {"txtboxvolume", "105.221"},
      {"txtfb", "32.3617"},
      {"txtfreriso", "26.6825"},
      {"cmballi", "0.707"},
      {"txtl", "47.2"},
      {"txth", "76.5"},
      {"txtp", "29.3"}},
     {{"Vc", 0.10359331792676159},
      {"VbaClosed", 0.13812399993426536},
      {"Qtc", 0.70699999999999996},
      {"Fc", 32.361790166143031},
      {"F3c", 32.366678641774051}}},
    {"FilledAndTypedVolume",
     [](BoxDesk& d) {
       d.Pick("cmbk", "1.12(25%)");
       d.Enter("txtvolnetto", "40");
     },
     1,
     {{"txtvolnetto", "40"},
      {"txtvoloccu", "1.62848"},
      {"txtvolappa", "50.0000"},
      {"txtboxvolume", "41.6284"},
      {"txtfb", "46.3824"},
      {"txtfreriso", "26.9446"},
      {"cmballi", "0.92525"},
      {"txtl", "34.7"},
      {"txth", "56.1"},
      {"txtp", "21.5"}},
     {{"Vc", 0.040000000000000001},
      {"VbaClosed", 0.050000000017846637},
      {"Qtc", 0.92525843290378196},
      {"Fc", 46.382499535882175},
      {"F3c", 37.883538436738526}}},
    {"TwoDriversYes",
     [](BoxDesk& d) { d.ChooseDrivers("2", Answer::Yes); },
     2,
     {{"txtvolnetto", "207.186"},
      {"txtvoloccu", "3.25696"},
      {"txtvolappa", "207.186"},
      {"txtboxvolume", "210.442"},
      {"txtfb", "35.4413"},
      {"txtfreriso", "27.9232"},
      {"cmballi", "0.707"},
      {"txtl", "59.5"},
      {"txth", "96.4"},
      {"txtp", "36.9"}},
     {{"Vc", 0.20718663585352318},
      {"VbaClosed", 0.2071866358535232},
      {"Qtc", 0.70699999999999996},
      {"Fc", 35.44137076271187},
      {"F3c", 35.446724430615099}}},
    {"TwoDriversNo",
     [](BoxDesk& d) { d.ChooseDrivers("2", Answer::No); },
     2,
     {{"txtvolnetto", "103.593"},
      {"txtvoloccu", "3.25696"},
      {"txtvolappa", "103.593"},
      {"txtboxvolume", "106.849"},
      {"txtfb", "45.7308"},
      {"txtfreriso", "27.9232"},
      {"cmballi", "0.91225"},
      {"txtl", "47.5"},
      {"txth", "76.9"},
      {"txtp", "29.4"}},
     {{"Vc", 0.10359331792676159},
      {"VbaClosed", 0.1035933179267616},
      {"Qtc", 0.91225932936525234},
      {"Fc", 45.730864390066181},
      {"F3c", 37.642338469780988}}},
    {"FilledAndThreeDriversYes",
     [](BoxDesk& d) {
       d.Pick("cmbk", "1.12(25%)");
       d.ChooseDrivers("3", Answer::Yes);
     },
     3,
     {{"txtvolnetto", "310.779"},
      {"txtvoloccu", "4.88544"},
      {"txtvolappa", "388.474"},
      {"txtboxvolume", "315.664"},
      {"txtfb", "33.0007"},
      {"txtfreriso", "26.9446"},
      {"cmballi", "0.707"},
      {"txtl", "68.1"},
      {"txth", "110.3"},
      {"txtp", "42.2"}},
     {{"Vc", 0.31077995378028478},
      {"VbaClosed", 0.38847494236401542},
      {"Qtc", 0.70699999999999996},
      {"Fc", 33.000704871820389},
      {"F3c", 33.005689860003805}}},
    {"FilledAndFourDriversNo",
     [](BoxDesk& d) {
       d.Pick("cmbk", "1.27(10%)");
       d.ChooseDrivers("4", Answer::No);
     },
     4,
     {{"txtvolnetto", "103.593"},
      {"txtvoloccu", "6.51392"},
      {"txtvolappa", "114.019"},
      {"txtboxvolume", "110.106"},
      {"txtfb", "58.7898"},
      {"txtfreriso", "27.4887"},
      {"cmballi", "1.17276"},
      {"txtl", "47.9"},
      {"txth", "77.6"},
      {"txtp", "29.7"}},
     {{"Vc", 0.10359331792676159},
      {"VbaClosed", 0.11401967674954108},
      {"Qtc", 1.1727666615787455},
      {"Fc", 58.789898261895551},
      {"F3c", 43.556100732645966}}},
    {"OccupiedVolume",
     [](BoxDesk& d) { d.Enter("txtingombro", "3.5"); },
     1,
     {{"txtvolnetto", "103.593"},
      {"txtvoloccu", "1.62848"},
      {"txtvolappa", "103.593"},
      {"txtboxvolume", "108.721"},
      {"txtfb", "35.4413"},
      {"txtfreriso", "27.9232"},
      {"cmballi", "0.707"},
      {"txtl", "47.7"},
      {"txth", "77.3"},
      {"txtp", "29.6"}},
     {{"Vc", 0.10359331792676159},
      {"VbaClosed", 0.1035933179267616},
      {"Qtc", 0.70699999999999996},
      {"Fc", 35.44137076271187},
      {"F3c", 35.446724430615099}}},
};

class ChangedClosedBox : public testing::TestWithParam<ClosedStep> {};

TEST_P(ChangedClosedBox, FollowsTheChange) {
  const ClosedStep& step = GetParam();
  BoxDesk desk;
  desk.DesignClosedBox();
  step.acts(desk);
  ASSERT_TRUE(desk.Runs());
  ExpectTexts(desk, step.texts);
  ExpectNumbers(desk, step.numbers);
  EXPECT_EQ(desk.state.DriversNum, step.drivers);
  EXPECT_TRUE(desk.state.ProjectModified);
  ExpectClosedCurve(desk, Find(step.numbers, "Qtc"), Find(step.numbers, "Fc"));
}

INSTANTIATE_TEST_SUITE_P(Box, ChangedClosedBox, testing::ValuesIn(kClosedSteps), NameOf<ClosedStep>);

}  // namespace
}  // namespace zefirondo
