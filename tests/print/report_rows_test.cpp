// Every row of the tables of the project's page: caption, value and unit, each in its place, in both languages.
//
// The fields hold their own names here, so that a value in the wrong row shows.
#include "print/paper.h"
#include "print/project_report.h"

namespace zefirondo {
namespace {

enum class Box { Any, Prism, Trapezoid, Vented, Round, Rectangular };

constexpr double kOpen = -1;  // the left edge is of the page's own choice

struct Row {
  Box box;
  double x, y;
  const char* english;
  const char* italian;
  const char* field;
  int value_tab;
  const char* unit;
  int unit_tab;
};

void Choose(Desk& desk, Box box) {
  const bool vented = box == Box::Vented || box == Box::Round || box == Box::Rectangular;
  desk.state.BoxSection = vented ? desk.program.Text(211) : desk.program.Text(210);
  desk.sheet.imgbox[0].visible = box != Box::Trapezoid;
  desk.sheet.imgbox[1].visible = box == Box::Trapezoid;
  desk.sheet.imgforma[0].visible = box != Box::Rectangular;
  desk.sheet.imgforma[1].visible = box == Box::Rectangular;
}

/// A page on which each field prints its own name.
Page NamedPage(Desk& desk, Box box) {
  desk.Begin();
  Choose(desk, box);
  for (Control* const control : desk.sheet.window.controls) {
    if (control->IsField()) *control->text = std::string(control->name);
  }
  desk.state.BoxScaleTop = 65;
  return ReportPage(desk.program, "name");
}

class ReportRow : public testing::TestWithParam<Row> {
 protected:
  static void Look(Language language) {
    const Row& row = GetParam();
    Desk desk(language);
    const Page page = NamedPage(desk, row.box);
    const char* const caption = language == Language::English ? row.english : row.italian;
    const PageText value = Find(page, row.field);
    EXPECT_EQ(value.y, row.y);
    EXPECT_EQ(value.tab, row.value_tab);
    EXPECT_TRUE(row.x == kOpen || value.x == row.x) << value.x;
    EXPECT_EQ(TextsAt(page, value.x, row.y), std::vector<std::string>{caption});
    const std::vector<std::string> units = TextsAt(page, value.x, row.y, row.unit_tab);
    EXPECT_EQ(units, *row.unit == '\0' ? std::vector<std::string>{} : std::vector<std::string>{row.unit});
  }
};

TEST_P(ReportRow, StandsInItsPlace) { Look(Language::English); }
TEST_P(ReportRow, StandsInItsPlaceInItalian) { Look(Language::Italian); }

std::string NameOf(const testing::TestParamInfo<Row>& row) {
  static const char* const kBoxes[] = {"", "Prism", "Trapezoid", "", "Round", "Rectangular"};
  return std::string(row.param.field) + kBoxes[static_cast<int>(row.param.box)];
}

INSTANTIATE_TEST_SUITE_P(
    InnerDimensions, ReportRow,
    testing::Values(Row{Box::Prism, 2697, 6860, "Shape", "Forma", "cmbforma", 55, "", 69},
                    Row{Box::Prism, 2697, 7085, "Ratios", "Rapporti", "cmbrappo", 55, "", 69},
                    Row{Box::Prism, 2697, 7312, "Width W", "Larghezza L", "txtl", 55, "Cm", 69},
                    Row{Box::Prism, 2697, 7539, "Height H", "Altezza H", "txth", 55, "Cm", 69},
                    Row{Box::Prism, 2697, 7766, "Depth D", "Profondità P", "txtp", 55, "Cm", 69},
                    Row{Box::Prism, 2697, 7993, "Box Volume", "Volume Box", "txtboxvolume", 55, "l", 69},
                    Row{Box::Trapezoid, 2697, 6860, "Shape", "Forma", "cmbforma", 55, "", 69},
                    Row{Box::Trapezoid, 2697, 7085, "Ratios", "Rapporti", "cmbrappo", 55, "", 69},
                    Row{Box::Trapezoid, 2697, 7312, "Width W", "Larghezza L", "txtl", 55, "Cm", 69},
                    Row{Box::Trapezoid, 2697, 7539, "Height H", "Altezza H", "txth", 55, "Cm", 69},
                    Row{Box::Trapezoid, 2697, 7766, "Depth D", "Profondità P", "txtp", 55, "Cm", 69},
                    Row{Box::Trapezoid, 2697, 7993, "Rear Side RD", "Lato Dietro LD", "txtld", 55, "Cm", 69},
                    Row{Box::Trapezoid, 2697, 8220, "Tilt Degrees", "Gradi incl.", "cmbgradi", 55, "°", 69},
                    Row{Box::Trapezoid, 2697, 8447, "Box Volume", "Volume Box", "txtboxvolume", 55, "l", 69}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Ports, ReportRow,
    testing::Values(
        Row{Box::Round, 8600, 6635, "Ports Num.", "N° Condotti", "cmbnumcond", 139, "", 150},
        Row{Box::Round, 8600, 6860, "Ports length", "Lung. condotto/i", "txtlungmis", 139, "Cm", 150},
        Row{Box::Round, 8600, 7085, "Sect. area 1 port", "Area sez. 1 cond.", "txtareasez", 139, "Cm²", 150},
        Row{Box::Round, 8600, 7310, "Total area section", "Area sez. totale", "txtseztot", 139, "Cm²", 150},
        Row{Box::Round, 8600, 7535, "Internal diameter", "Diametro interno", "cmbDoa", 139, "Cm", 150},
        Row{Box::Rectangular, 8600, 6635, "Ports Num.", "N° Condotti", "cmbnumcond", 139, "", 150},
        Row{Box::Rectangular, 8600, 6860, "Ports length", "Lung. condotto/i", "txtlungmis", 139, "Cm", 150},
        Row{Box::Rectangular, 8600, 7085, "Sect. area 1 port", "Area sez. 1 cond.", "txtareasez", 139, "Cm²", 150},
        Row{Box::Rectangular, 8600, 7310, "Total area section", "Area sez. totale", "txtseztot", 139, "Cm²", 150},
        Row{Box::Rectangular, 8600, 7535, "Side A", "Lato A", "cmbDoa", 139, "Cm", 150},
        Row{Box::Rectangular, 8600, 7760, "Side B", "Lato B", "txtb", 139, "Cm", 150}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Design, ReportRow,
    testing::Values(Row{Box::Any, kOpen, 8443, "Transducers Num.", "N° Trsduttori", "cmbnumdriver", 105, "", 115},
                    Row{Box::Any, kOpen, 8668, "Net box volume", "Volume netto box", "txtvolnetto", 105, "l", 115},
                    Row{Box::Any, kOpen, 8893, "Transducers volume", "Volume trasduttore", "txtvoloccu", 105, "l", 115},
                    Row{Box::Any, kOpen, 9118, "Occupied volume", "Volume ingombro", "txtingombro", 105, "l", 115},
                    Row{Box::Any, kOpen, 8443, "Box frequency", "Frequenza box", "txtfb", 138, "Hz", 150},
                    Row{Box::Any, kOpen, 8668, "Resonance freq.", "Frequenza ris.", "txtfreriso", 138, "Hz", 150}),
    NameOf);

// The rows stand at 10410 + 227 k.
INSTANTIATE_TEST_SUITE_P(TransducerFirst, ReportRow,
                         testing::Values(Row{Box::Any, 300, 10410, "Zmax", "Zmax", "txtzmax", 13, "Ohm", 29},
                                         Row{Box::Any, 300, 10637, "Zmin", "Zmin", "txtzmin", 13, "Ohm", 29},
                                         Row{Box::Any, 300, 10864, "Fs", "Fs", "txtfs", 13, "Hz", 29},
                                         Row{Box::Any, 300, 11091, "Fl", "Fl", "txtfl", 13, "Hz", 29},
                                         Row{Box::Any, 300, 11318, "Fh", "Fh", "txtfh", 13, "Hz", 29},
                                         Row{Box::Any, 300, 11545, "Bw", "Bw", "txtbw", 13, "Hz", 29},
                                         Row{Box::Any, 300, 11772, "Rvc", "Rvc", "txtrvc", 13, "Ohm", 29},
                                         Row{Box::Any, 300, 11999, "Bl", "Bl", "txtbl", 13, "Wb/m", 29},
                                         Row{Box::Any, 300, 12226, "Vas", "Vas", "txtvas", 13, "m³", 29},
                                         Row{Box::Any, 300, 12453, "D", "D", "txtd", 13, "mm", 29},
                                         Row{Box::Any, 300, 12680, "Sd", "Sd", "txtsd", 13, "m²", 29},
                                         Row{Box::Any, 300, 12907, "Le", "Le", "txtle", 13, "mH", 29}),
                         NameOf);

INSTANTIATE_TEST_SUITE_P(TransducerSecond, ReportRow,
                         testing::Values(Row{Box::Any, 2697, 10410, "Qms", "Qms", "txtqmesin", 47, "", 63},
                                         Row{Box::Any, 2697, 10637, "Qes", "Qes", "txtqes", 47, "", 63},
                                         Row{Box::Any, 2697, 10864, "Qts", "Qts", "txtqts", 47, "", 63},
                                         Row{Box::Any, 2697, 11091, "Lces", "Lces", "txtlces", 47, "mH", 63},
                                         Row{Box::Any, 2697, 11318, "Cmes", "Cmes", "txtcmes", 47, "µF", 63},
                                         Row{Box::Any, 2697, 11545, "Res", "Res", "txtrmes", 47, "Ohm", 63},
                                         Row{Box::Any, 2697, 11772, "Cms", "Cms", "txtcms", 47, "m/N", 63},
                                         Row{Box::Any, 2697, 11999, "Mms", "Mms", "txtmms", 47, "Kg", 63},
                                         Row{Box::Any, 2697, 12226, "Rms", "Rms", "txtrms", 47, "N/m x s", 63},
                                         Row{Box::Any, 2697, 12453, "Cas", "Cas", "txtcas", 47, "m^5/N", 63},
                                         Row{Box::Any, 2697, 12680, "Mas", "Mas", "txtmas", 47, "Kg/m^4", 63},
                                         Row{Box::Any, 2697, 12907, "Ras", "Ras", "txtras", 47, "N/m^5 x s", 63}),
                         NameOf);

INSTANTIATE_TEST_SUITE_P(
    TransducerThird, ReportRow,
    testing::Values(
        Row{Box::Any, 5878, 10410, "Baffle Cutout Diam.", "Diam. foro", "txtforo", 105, "mm", 113},
        Row{Box::Any, 5878, 10637, "Depth", "Spess. trasduttore", "txtprof", 105, "mm", 113},
        Row{Box::Any, 5878, 10864, "Magnet", "Magnete", "txtlagmagne", 105, "mm", 113},
        Row{Box::Any, 5878, 11091, "Voice Coil Diameter", "Diam. Bobina", "txtdiambob", 105, "mm", 113},
        Row{Box::Any, 5878, 12226, "Nominal Impedance", "Impedenza nominale", "txtimpedenza", 107, "Ohm", 112},
        Row{Box::Any, 5878, 12453, "Sensitivity (1W/1m)", "Sensibilità (1W/1m)", "txtsensibilita", 105, "dB", 114},
        Row{Box::Any, 5878, 12680, "Xmax", "Xmax", "txtxmax", 105, "mm", 113},
        Row{Box::Any, 5878, 12907, "Number Voice Coils", "Numero bobine", "cmbnumvc", 105, "", 113}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    TransducerFourth, ReportRow,
    testing::Values(Row{Box::Any, 8580, 10410, "Overall Diameter", "Diam. esterno", "txtesterno", 142, "mm", 150},
                    Row{Box::Any, 8580, 10637, "Thickness", "Bordo", "txtspesbordo", 142, "mm", 150},
                    Row{Box::Any, 8580, 10864, "Magnet Depth", "Spess. Magnete", "txtprofmag", 142, "mm", 150},
                    Row{Box::Any, 8580, 11091, "Volume Transducer", "Volume occupato", "txtvolume", 142, "l", 153},
                    Row{Box::Any, 8580, 12226, "Nom. Pow. Handling", "Potenza RMS", "txtpotenza", 142, "W", 152},
                    Row{Box::Any, 8580, 12453, "Magnetic Gap Depth", "Altezza traferro", "txthg", 142, "mm", 150},
                    Row{Box::Any, 8580, 12680, "Efficiency", "Rendimento", "txtrendimento", 142, "%", 152}),
    NameOf);

// ---- what is left out ----

std::vector<std::string> ValuesOn(const Page& page) {
  std::vector<std::string> values;
  for (const PageText& text : ItemsOf<PageText>(page)) {
    if (text.text.rfind("txt", 0) == 0 || text.text.rfind("cmb", 0) == 0) values.push_back(text.text);
  }
  return values;
}

bool Prints(const Page& page, const char* words) { return Find(page, words).x != -1; }

struct Count {
  Box box;
  std::size_t values;
};

class ReportValues : public testing::TestWithParam<Count> {};

// 39 of the transducer and 6 of the design; 6 of a prism or 8 of a trapezoid; 5 of a round port or 6 of a rectangular
// one.
TEST_P(ReportValues, ArePrintedOnceEach) {
  Desk desk;
  std::vector<std::string> values = ValuesOn(NamedPage(desk, GetParam().box));
  EXPECT_EQ(values.size(), GetParam().values);
  std::sort(values.begin(), values.end());
  EXPECT_EQ(std::adjacent_find(values.begin(), values.end()), values.end());
}

INSTANTIATE_TEST_SUITE_P(Boxes, ReportValues,
                         testing::Values(Count{Box::Prism, 51}, Count{Box::Trapezoid, 53}, Count{Box::Round, 56},
                                         Count{Box::Rectangular, 57}));

TEST(ReportOfAPrism, HasNoRearSideAndNoTilt) {
  Desk desk;
  const Page page = NamedPage(desk, Box::Prism);
  for (const char* const words : {"Rear Side RD", "Tilt Degrees", "txtld", "cmbgradi"}) {
    EXPECT_FALSE(Prints(page, words)) << words;
  }
}

TEST(ReportOfAClosedBox, HasTheHeadingOfThePortsAndNoRowOfThem) {
  for (const Language language : {Language::English, Language::Italian}) {
    Desk desk(language);
    const Page page = NamedPage(desk, Box::Prism);
    EXPECT_TRUE(Prints(page, desk.program.Text(464).c_str()));
    for (const int caption : {485, 486, 487, 488, 489, 490, 491, 492}) {
      EXPECT_FALSE(Prints(page, desk.program.Text(caption).c_str())) << caption;
    }
    for (const PagePicture& picture : ItemsOf<PagePicture>(page))
      EXPECT_EQ(picture.source.find("imgforma"), std::string::npos);
  }
}

TEST(ReportOfARoundPort, HasNoSides) {
  Desk desk;
  const Page page = NamedPage(desk, Box::Round);
  EXPECT_FALSE(Prints(page, "Side A") || Prints(page, "Side B") || Prints(page, "txtb"));
}

TEST(ReportOfARectangularPort, HasNoDiameter) {
  Desk desk;
  EXPECT_FALSE(Prints(NamedPage(desk, Box::Rectangular), "Internal diameter"));
}

TEST(ReportOfAnEmptyField, LeavesItsPlaceEmpty) {
  Desk desk;
  static_cast<void>(NamedPage(desk, Box::Prism));
  desk.state.txtle.clear();
  const Page page = ReportPage(desk.program, "name");
  EXPECT_TRUE(TextsAt(page, 300, 12907, 13).empty());
  EXPECT_EQ(TextsAt(page, 300, 12907, 29), std::vector<std::string>{"mH"});
}

}  // namespace
}  // namespace zefirondo
