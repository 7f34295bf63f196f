// The project's page around its tables: title, graph, frames, pictures, and the order of it all.
#include "core/run_time_error.h"
#include "print/paper.h"
#include "print/project_report.h"

namespace zefirondo {
namespace {

// ---- the title ----

TEST(ReportTitle, NamesKindProjectAndDate) {
  Desk desk;
  desk.DesignVented();
  const Page page = ReportPage(desk.program, "Maestrale");
  EXPECT_EQ(
      TextsAt(page, 3400, 350),
      std::vector<std::string>{"Loudspeaker Project Type: Vented Box.- Name: Maestrale.- Date Added: 20/11/2026"});
  EXPECT_EQ(TextsAt(page, 3670, 780), std::vector<std::string>{"Transfer Function"});
}

TEST(ReportTitle, NamesThemInItalian) {
  Desk desk(Language::Italian);
  desk.DesignClosed();
  const Page page = ReportPage(desk.program, "Ponente");
  EXPECT_EQ(TextsAt(page, 3400, 350), std::vector<std::string>{"Progetto Diffusore in " + desk.program.Text(210) +
                                                               ".- Nome: Ponente.- Data Creazione: 20/11/2026"});
  EXPECT_EQ(TextsAt(page, 3670, 780), std::vector<std::string>{"Funzione di trasferimento"});
}

// ---- the graph ----

struct LevelScale {
  std::int16_t top;
  int step;     // tens of dB
  double line;  // 45000 / (top / step), rounded half to even
};

class ReportLevels : public testing::TestWithParam<LevelScale> {};

TEST_P(ReportLevels, GoUpFromTheFirstLine) {
  Desk desk;
  desk.Begin();
  const auto [top, step, line] = GetParam();
  desk.state.BoxScaleTop = top;
  const Page page = ReportPage(desk.program, "");
  std::vector<std::string> found;
  for (const PageText& text : ItemsOf<PageText>(page)) {
    if (text.x != 500) continue;
    // each label stands 200 under its line, and each line `line` over the one before
    EXPECT_EQ(text.y, 5290 - line * static_cast<double>(found.size() + 1) + 200);
    found.push_back(text.text);
  }
  std::vector<std::string> expected;
  for (int level = 10 * step; level <= top; level += 10 * step) expected.push_back(std::to_string(level - 40));
  EXPECT_EQ(found, expected);
}

// 45000/65 = 692.3; 45000/80 = 562.5, a tie; 45000/80.5 = 559.006; 45000/159.5 = 282.1; 45000/106.67 = 421.9;
// 45000/159.67 = 281.8; 45000/120 = 375; 45000/159 = 283.0; 45000/5 = 9000
INSTANTIATE_TEST_SUITE_P(Tops, ReportLevels,
                         testing::Values(LevelScale{65, 1, 692}, LevelScale{159, 1, 283}, LevelScale{160, 2, 562},
                                         LevelScale{161, 2, 559}, LevelScale{319, 2, 282}, LevelScale{320, 3, 422},
                                         LevelScale{479, 3, 282}, LevelScale{480, 4, 375}, LevelScale{5, 1, 9000}));

TEST(ReportLevels, OfATopOf65ReadFromMinus30To20) {
  Desk desk;
  desk.Begin();
  desk.state.BoxScaleTop = 65;
  const Page page = ReportPage(desk.program, "");
  EXPECT_EQ(TextsAt(page, 500, 4798), std::vector<std::string>{"-30"});
  EXPECT_EQ(TextsAt(page, 500, 4106), std::vector<std::string>{"-20"});
  EXPECT_EQ(TextsAt(page, 500, 3414), std::vector<std::string>{"-10"});
  EXPECT_EQ(TextsAt(page, 500, 2722), std::vector<std::string>{"0"});
  EXPECT_EQ(TextsAt(page, 500, 2030), std::vector<std::string>{"10"});
  EXPECT_EQ(TextsAt(page, 500, 1338), std::vector<std::string>{"20"});
}

TEST(ReportGraph, WithoutAScaleFails) {
  Desk desk;
  desk.Begin();
  EXPECT_EQ(desk.state.BoxScaleTop, 0);
  EXPECT_THROW(static_cast<void>(ReportPage(desk.program, "")), RunTimeError);
}

TEST(ReportGraph, IsThePlotAsItStandsInABox) {
  Desk desk;
  desk.DesignVented();
  desk.Click("frmgrafcassa.cmdset1");
  const Page page = ReportPage(desk.program, "");
  const std::vector<PagePicture> pictures = ItemsOf<PagePicture>(page);
  ASSERT_FALSE(pictures.empty());
  const PagePicture& graph = pictures[0];
  EXPECT_EQ(graph.source, "frmgrafcassa.pctgraf");
  EXPECT_EQ(graph.x, 900);
  EXPECT_EQ(graph.y, 1000);
  EXPECT_EQ(graph.x + graph.width, 8272);
  EXPECT_EQ(graph.y + graph.height, 5536);
  const Surface& shown = desk.program.windows.frmgrafcassa.surface;
  EXPECT_EQ(graph.plot.strokes.size(), shown.strokes.size());
  EXPECT_EQ(graph.plot.strokes.back().colour, 255);  // the stored trace is on it
  const std::vector<PageBox> boxes = ItemsOf<PageBox>(page);
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ((std::vector<double>{boxes[0].x1, boxes[0].y1, boxes[0].x2, boxes[0].y2}),
            (std::vector<double>{900, 1000, 8272, 5536}));
}

struct Label {
  const char* text;
  double x;
};

TEST(ReportGraph, HasItsFrequenciesAndUnits) {
  for (const Language language : {Language::English, Language::Italian}) {
    Desk desk(language);
    desk.Begin();
    desk.state.BoxScaleTop = 65;
    const Page page = ReportPage(desk.program, "");
    for (const auto& [text, x] : {Label{"20", 1625},
                                  {"30", 2120},
                                  {"40", 2460},
                                  {"50", 2730},
                                  {"100", 3510},
                                  {"200", 4330},
                                  {"300", 4810},
                                  {"1k", 6280},
                                  {"2k", 7110},
                                  {"3k", 7600},
                                  {"4k", 7940},
                                  {"5k", 8180}}) {
      EXPECT_EQ(TextsAt(page, x, 5580), std::vector<std::string>{text});
    }
    const std::vector<PageText> texts = ItemsOf<PageText>(page);
    const auto in_row = [](const PageText& text) { return text.y == 5580; };
    EXPECT_EQ(std::count_if(texts.begin(), texts.end(), in_row), 13);
    const auto ten = std::find_if(texts.begin(), texts.end(), in_row);
    ASSERT_NE(ten, texts.end());
    EXPECT_EQ(ten->text, "10");  // the first of them; its place is left open, at the left edge of the plot
    EXPECT_NEAR(ten->x, 900, 100);
    EXPECT_EQ(TextsAt(page, 4047, 5800),
              std::vector<std::string>{language == Language::English ? "Frequency Hz" : "Frequenza Hz"});
    EXPECT_EQ(TextsAt(page, 100, 2750), std::vector<std::string>{"dB"});
  }
}

// ---- the frames ----

struct FrameRow {
  const char* english;
  const char* italian;
  double x, y;
  double right;  // 0: of the page's own choice
  double bottom;
};

class ReportFrames : public testing::TestWithParam<FrameRow> {};

TEST_P(ReportFrames, StandWhereTheyShould) {
  for (const Language language : {Language::English, Language::Italian}) {
    for (const bool vented : {false, true}) {
      Desk desk(language);
      desk.Begin();
      desk.state.BoxScaleTop = 65;
      desk.state.BoxSection = desk.program.Text(vented ? 211 : 210);
      const Page page = ReportPage(desk.program, "");
      const FrameRow& frame = GetParam();
      EXPECT_EQ(TextsAt(page, frame.x, frame.y),
                std::vector<std::string>{language == Language::English ? frame.english : frame.italian});
      // The bottom is one stroke from the left edge to the right one; both edges go down to it.
      const std::vector<PageLine> lines = ItemsOf<PageLine>(page);
      const auto bottom = std::find_if(lines.begin(), lines.end(), [&](const PageLine& line) {
        return line.y1 == frame.bottom && line.y2 == frame.bottom && line.x1 < frame.x && line.x2 > frame.x &&
               frame.x - line.x1 < 400;
      });
      ASSERT_NE(bottom, lines.end());
      EXPECT_TRUE(frame.right == 0 || bottom->x2 == frame.right) << bottom->x2;
      EXPECT_LT(bottom->x2, 11906);  // A4
      EXPECT_GE(bottom->x1, 0);
      for (const double edge : {bottom->x1, bottom->x2}) {
        EXPECT_TRUE(std::any_of(lines.begin(), lines.end(), [&](const PageLine& line) {
          return line.x1 == edge && line.x2 == edge && std::fabs(line.y1 - frame.y) < 250 && line.y2 == frame.bottom;
        }));
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    All, ReportFrames,
    testing::Values(FrameRow{"INNER BOX DIMENSIONS", "DIMENSIONI INTERNE BOX", 262, 6300, 5536, 8643},
                    FrameRow{"PORT VENT DIMENSIONS", "DIMENSIONI CONDOTTO/I", 5862, 6300, 0, 7735},
                    FrameRow{"SPECIFICATIONS", "DATI PROGETTO", 5862, 8062, 0, 9324},
                    FrameRow{"THIELE-SMALL PARAMETERS", "PARAMETRI THIELE-SMALL", 262, 10080, 5700, 13104},
                    FrameRow{"TRANSDUCER DIMENSIONS", "DIMENSIONI TRASDUTTORE", 5812, 10260, 0, 11515},
                    FrameRow{"TRANSDUCER SPECIFICATIONS", "GENERALE TRASDUTTORE", 5812, 12022, 0, 13104}));

// ---- the pictures of the sheet ----

TEST(ReportPictures, AreThoseOfTheShapesInUse) {
  for (const bool trapezoid : {false, true}) {
    for (const bool rectangular : {false, true}) {
      Desk desk;
      desk.DesignVented();
      if (trapezoid) desk.Pick("cmbforma", "Trapezoidal");
      if (rectangular) desk.Click("imgforma(0)");
      const Page page = ReportPage(desk.program, "");
      const std::vector<PagePicture> pictures = ItemsOf<PagePicture>(page);
      ASSERT_EQ(pictures.size(), 3U);
      EXPECT_EQ(pictures[1].source, trapezoid ? "imgbox(1)" : "imgbox(0)");
      EXPECT_EQ(pictures[1].x, 200);
      EXPECT_EQ(pictures[1].y, 6600);
      EXPECT_LE(pictures[1].x + pictures[1].width, 2697);  // the table begins there
      EXPECT_EQ(pictures[2].source, rectangular ? "imgforma(1)" : "imgforma(0)");
      EXPECT_EQ(pictures[2].x, 5840);
      EXPECT_EQ(pictures[2].y, 6600);
      EXPECT_LE(pictures[2].y + pictures[2].height, 7164);  // its caption stands there
      EXPECT_EQ(TextsAt(page, 5862, 7164), std::vector<std::string>{"Port Section Shape"});
    }
  }
}

TEST(ReportPictures, OfAClosedBoxAreTwo) {
  Desk desk(Language::Italian);
  desk.DesignClosed();
  EXPECT_EQ(ItemsOf<PagePicture>(ReportPage(desk.program, "")).size(), 2U);
}

// ---- the order, and a real design ----

TEST(ReportPage, IsPrintedFromTopToBottomOfItsPlan) {
  Desk desk;
  desk.DesignVented();
  const Page page = ReportPage(desk.program, "n");
  std::vector<std::string> words;
  for (const PageText& text : ItemsOf<PageText>(page)) words.push_back(text.text);
  auto from = words.begin();
  for (const char* const next : {"Transfer Function",
                                 "-30",
                                 "10",
                                 "5k",
                                 "Frequency Hz",
                                 "dB",
                                 "INNER BOX DIMENSIONS",
                                 "PORT VENT DIMENSIONS",
                                 "SPECIFICATIONS",
                                 "Shape",
                                 "Box Volume",
                                 "Port Section Shape",
                                 "Ports Num.",
                                 "Internal diameter",
                                 "Transducers Num.",
                                 "Occupied volume",
                                 "Box frequency",
                                 "Resonance freq.",
                                 "THIELE-SMALL PARAMETERS",
                                 "TRANSDUCER DIMENSIONS",
                                 "TRANSDUCER SPECIFICATIONS",
                                 "Zmax",
                                 "Qms",
                                 "Baffle Cutout Diam.",
                                 "Overall Diameter",
                                 "Zmin",
                                 "Le",
                                 "Ras",
                                 "Number Voice Coils"}) {
    from = std::find(from, words.end(), next);
    ASSERT_NE(from, words.end()) << next;
  }
}

TEST(ReportPage, HoldsTheTextsOfTheFieldsAsTheyStand) {
  Desk desk;
  desk.DesignVented();
  const Page page = ReportPage(desk.program, "n");
  EXPECT_EQ(TextsAt(page, 300, 10864, 13), std::vector<std::string>{"35"});
  EXPECT_EQ(TextsAt(page, 5878, 10410, 105), std::vector<std::string>{"230"});
  EXPECT_EQ(TextsAt(page, 2697, 6860, 55), std::vector<std::string>{"Prismatic"});
  EXPECT_EQ(TextsAt(page, 2697, 7312, 55), std::vector<std::string>{desk.Text("txtl")});
  EXPECT_EQ(TextsAt(page, 8600, 6860, 139), std::vector<std::string>{desk.Text("txtlungmis")});
  *desk["txtl"].text = "typed, and not left yet";
  EXPECT_EQ(TextsAt(ReportPage(desk.program, "n"), 2697, 7312, 55),
            std::vector<std::string>{"typed, and not left yet"});
}

TEST(ReportPage, IsUprightAndStaysOnItsPaper) {
  for (const Language language : {Language::English, Language::Italian}) {
    Desk desk(language);
    desk.DesignVented();
    const Page page = ReportPage(desk.program, "n");
    EXPECT_FALSE(page.landscape);
    for (const PageText& text : ItemsOf<PageText>(page)) {
      EXPECT_GE(text.x, 0);
      EXPECT_LT(text.x, 11906);
      EXPECT_GE(text.y, 0);
      EXPECT_LT(text.y, 16838);
    }
  }
}

}  // namespace
}  // namespace zefirondo
