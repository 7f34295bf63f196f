// The pages of the two graphs, place by place.
#include "print/graph_page.h"

#include "core/run_time_error.h"
#include "core/window_life.h"
#include "print/paper.h"
#include "print/title.h"

namespace zefirondo {
namespace {

using Strings = std::vector<std::string>;

struct Graph {
  const char* what;
  Page (*page)(Program&);
  std::string ProjectState::*title;
  std::int16_t ProjectState::*top;
  int less;  // taken off a level for its label
  const char* heading;
  const char* source;
  const char* unit;
};

const Graph kBox{"box",
                 BoxGraphPage,
                 &ProjectState::ProjectTitle,
                 &ProjectState::BoxScaleTop,
                 40,
                 "Funzione di trasferimento. Diffusore: ",
                 "frmgrafcassa.pctgraf",
                 "dB"};
const Graph kImpedance{"impedance",
                       ImpedancePage,
                       &ProjectState::ImpFileTitle,
                       &ProjectState::ImpScaleTop,
                       0,
                       "Grafico impedenza. Trasduttore: ",
                       "frmgrafico.pctgrafimp",
                       "Ohm"};

class GraphPageOf : public testing::TestWithParam<Graph> {
 protected:
  Page Print(Desk& desk, std::int16_t top, const std::string& title) {
    desk.state.*GetParam().top = top;
    desk.state.*GetParam().title = title;
    return GetParam().page(desk.program);
  }
};

TEST_P(GraphPageOf, HasItsHeadingAndTheDate) {
  for (const Language language : {Language::English, Language::Italian}) {  // the words are Italian in both
    Desk desk(language);
    desk.Begin();
    const std::string heading = GetParam().heading;
    EXPECT_EQ(TextsAt(Print(desk, 65, "Maestrale 22.pro"), 2000, 580), Strings{heading + "Maestrale 22  20/11/2026"});
    EXPECT_EQ(TextsAt(Print(desk, 65, ""), 2000, 580), Strings{heading + "  20/11/2026"});
    EXPECT_EQ(TextsAt(Print(desk, 65, "cassa più grande.pro"), 2000, 580),
              Strings{heading + "cassa più grande  20/11/2026"});
  }
}

TEST_P(GraphPageOf, HasItsPlotInABox) {
  Desk desk;
  desk.Begin();
  const Page page = Print(desk, 65, "a.pro");
  const std::vector<PagePicture> pictures = ItemsOf<PagePicture>(page);
  ASSERT_EQ(pictures.size(), 1U);
  EXPECT_EQ(pictures[0].source, GetParam().source);
  EXPECT_EQ((std::vector<double>{pictures[0].x, pictures[0].y, pictures[0].width, pictures[0].height}),
            (std::vector<double>{900, 800, 7372, 4536}));
  const std::vector<PageBox> boxes = ItemsOf<PageBox>(page);
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ((std::vector<double>{boxes[0].x1, boxes[0].y1, boxes[0].x2, boxes[0].y2}),
            (std::vector<double>{900, 800, 8272, 5336}));
  EXPECT_TRUE(ItemsOf<PageLine>(page).empty());
}

TEST_P(GraphPageOf, HasItsAxes) {
  for (const Language language : {Language::English, Language::Italian}) {
    Desk desk(language);
    desk.Begin();
    const Page page = Print(desk, 65, "a.pro");
    EXPECT_EQ(TextsAt(page, 4247, 5600), Strings{"Frequenza Hz"});
    EXPECT_EQ(TextsAt(page, 100, 2550), Strings{GetParam().unit});
  }
}

struct Levels {
  std::int16_t top;
  int step;  // a tenth of that of the grid
  double pitch;
};

TEST_P(GraphPageOf, HasItsLevelsAStepOfTheGridApart) {
  // The pitch is 45000 / (top / step), rounded half to even: 692.3, 283.0, 1125 (exactly 160 has the step of the
  // largest scales), 559.006, 282.1, 562.5 (a tie, and exactly 320), 420.6, 281.8, 375
  for (const Levels& levels :
       {Levels{65, 1, 692}, Levels{159, 1, 283}, Levels{160, 4, 1125}, Levels{161, 2, 559}, Levels{319, 2, 282},
        Levels{320, 4, 562}, Levels{321, 3, 421}, Levels{479, 3, 282}, Levels{480, 4, 375}}) {
    Desk desk;
    desk.Begin();
    const Page page = Print(desk, levels.top, "a.pro");
    int level = 10 * levels.step;
    double y = 5290 - levels.pitch;
    for (const PageText& text : ItemsOf<PageText>(page)) {
      if (text.x != 500) continue;
      EXPECT_EQ(text.text, std::to_string(level - GetParam().less)) << levels.top;
      EXPECT_EQ(text.y, y) << levels.top;
      level += 10 * levels.step;
      y -= levels.pitch;
    }
    EXPECT_GT(level, levels.top);  // none is missing
    EXPECT_LE(level - 10 * levels.step, levels.top);
  }
}

TEST_P(GraphPageOf, WithoutAScaleFails) {
  Desk desk;
  desk.Begin();
  EXPECT_THROW(static_cast<void>(Print(desk, 0, "a.pro")), RunTimeError);
}

std::string NameOfGraph(const testing::TestParamInfo<Graph>& graph) { return graph.param.what; }
INSTANTIATE_TEST_SUITE_P(Both, GraphPageOf, testing::Values(kBox, kImpedance), NameOfGraph);

struct Mark {
  const char* text;
  double box;  // 0: not on this graph
  double impedance;
};

class GraphFrequency : public testing::TestWithParam<Mark> {};

TEST_P(GraphFrequency, StandsUnderItsPlace) {
  Desk desk;
  desk.Begin();
  desk.state.BoxScaleTop = desk.state.ImpScaleTop = 5;  // no value labels
  const auto expect = [](const Page& page, double x) {
    const PageText mark = Find(page, GetParam().text);
    EXPECT_EQ(mark.x, x == 0 ? -1 : x);
    EXPECT_EQ(mark.y, x == 0 ? 0 : 5380);
  };
  expect(BoxGraphPage(desk.program), GetParam().box);
  expect(ImpedancePage(desk.program), GetParam().impedance);
}

INSTANTIATE_TEST_SUITE_P(Table, GraphFrequency,
                         testing::Values(Mark{"10", 2140, 1800}, Mark{"20", 2940, 2377}, Mark{"30", 3385, 0},
                                         Mark{"40", 3720, 0}, Mark{"50", 3970, 0}, Mark{"100", 4730, 3680},
                                         Mark{"200", 5510, 4247}, Mark{"300", 6030, 0}, Mark{"1k", 7390, 5700},
                                         Mark{"2k", 8170, 6267}, Mark{"10k", 0, 7620}, Mark{"20k", 0, 8230}));

TEST(BoxGraphOnPaper, OfATopOf65ReadsFromMinus30To20) {
  Desk desk;
  desk.Begin();
  desk.state.BoxScaleTop = 65;
  const Page page = BoxGraphPage(desk.program);
  // 45000 / 65 is 692
  EXPECT_EQ(TextsAt(page, 500, 4598), Strings{"-30"});
  EXPECT_EQ(TextsAt(page, 500, 3906), Strings{"-20"});
  EXPECT_EQ(TextsAt(page, 500, 3214), Strings{"-10"});
  EXPECT_EQ(TextsAt(page, 500, 2522), Strings{"0"});
  EXPECT_EQ(TextsAt(page, 500, 1830), Strings{"10"});
  EXPECT_EQ(TextsAt(page, 500, 1138), Strings{"20"});
}

TEST(BoxGraphOnPaper, ShowsAllThatWasDrawnOnIt) {
  Desk desk;
  desk.DesignVented();
  desk.Click("frmgrafcassa.cmdset2");
  const std::vector<PagePicture> pictures = ItemsOf<PagePicture>(BoxGraphPage(desk.program));
  ASSERT_EQ(pictures.size(), 1U);
  EXPECT_EQ(pictures[0].plot.points.size(), desk.program.windows.frmgrafcassa.surface.points.size());
  EXPECT_EQ(pictures[0].plot.strokes.back().colour, 16711680);
}

TEST(ImpedanceOnPaper, ShowsTheCurve) {
  Desk desk;
  desk.Begin();
  desk.state.ImpFreq = {10, 20, 40, 80, 160, 0};
  desk.state.ImpZ = {6, 9, 38, 9, 7, 0};
  desk.state.ImpScaleTop = 48;
  OpenWindow(desk.program, "frmgrafico");
  const std::vector<PagePicture> pictures = ItemsOf<PagePicture>(ImpedancePage(desk.program));
  ASSERT_EQ(pictures.size(), 1U);
  ASSERT_FALSE(pictures[0].plot.strokes.empty());
  const Stroke& curve = pictures[0].plot.strokes.back();
  EXPECT_EQ(curve.count, 4U);
  EXPECT_EQ(pictures[0].plot.points[curve.first + 2].y, 10);  // 48 less 38 ohm
}

struct Title {
  const char* file;
  const char* printed;
};

class TitleOnPaper : public testing::TestWithParam<Title> {};

TEST_P(TitleOnPaper, LosesItsLastFourCharacters) { EXPECT_EQ(WithoutExtension(GetParam().file), GetParam().printed); }

INSTANTIATE_TEST_SUITE_P(All, TitleOnPaper,
                         testing::Values(Title{"a.pro", "a"}, Title{"box.old.PRO", "box.old"}, Title{"", ""},
                                         Title{".pro", ""}, Title{"abc", ""}, Title{"più.pro", "più"},
                                         Title{"senza metà", "senza "}, Title{"àèìòù", "à"}));

}  // namespace
}  // namespace zefirondo
