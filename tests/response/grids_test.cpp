// The frames of all graphs: levels, labels, frequencies and limit lines. Levels and ends are worked out by hand;
// a plot's lines end at its width and its left edge, and 20·log10 of 1, 2, 5, 10 kHz is 60, 66.0206, 73.9794, 80.
#include <gtest/gtest.h>

#include <cmath>

#include "response/graph_surface.h"

namespace zefirondo {
namespace {

struct Segment {
  Point from, to;
  int colour;
};

std::vector<Segment> Segments(const Surface& surface) {
  std::vector<Segment> segments;
  for (const Stroke& stroke : surface.strokes) {
    EXPECT_EQ(stroke.count, 2U);
    segments.push_back({surface.points.at(stroke.first), surface.points.at(stroke.first + 1), stroke.colour});
  }
  return segments;
}

struct Frame {
  const char* name;
  Scale scale;
  int top;
  void (*draw)(int top, Surface& surface);
  // what must stand there
  std::size_t levels;
  int step;
  const char *lowest, *highest;  // captions
  double right;                  // where the level lines end
  std::size_t verticals;
  double last_vertical;
  bool rescales;
  std::size_t limits;  // lines drawn last
};

void Excursion(int top, Surface& surface) { GrigliaEscursione(top, surface, 5); }
void Air(int top, Surface& surface) { GrigliaAria(top, surface, 345); }

constexpr Scale kBox{20, 53.96, 50};
constexpr Scale kImpedance{10, 76, 50};
constexpr Scale kLevel{10, 56.02, 50};
constexpr Scale kLow{10, 50, 50};

const Frame kFrames[]{
    {"Box", kBox, 71, GrigliaCassa, 7, 10, "-30", " 30", 73.96, 25, 73.9794, false, 0},
    {"BoxAt320", kBox, 320, GrigliaCassa, 8, 40, " 0", " 280", 73.96, 25, 73.9794, false, 0},
    {"BoxAt330", kBox, 330, GrigliaCassa, 11, 30, "-10", " 290", 73.96, 25, 73.9794, false, 0},
    {"BoxAt490", kBox, 490, GrigliaCassa, 12, 40, " 0", " 440", 73.96, 25, 73.9794, false, 0},
    {"Impedance", kImpedance, 95, GrigliaImpedenza, 9, 10, " 10", " 90", 86, 30, 80, false, 0},
    {"ImpedanceAt160", kImpedance, 160, GrigliaImpedenza, 4, 40, " 40", " 160", 86, 30, 80, false, 0},
    {"ImpedanceAt200", kImpedance, 200, GrigliaImpedenza, 10, 20, " 20", " 200", 86, 30, 80, false, 0},
    {"Excursion", kLow, 20, Excursion, 20, 1, " 1", " 20", 60, 20, 60, false, 1},
    {"Spl", kLevel, 102, GrigliaSpl, 10, 10, " 10", " 100", 66.02, 22, 66.0206, true, 0},
    {"SplAt320", kLevel, 320, GrigliaSpl, 32, 10, " 10", " 320", 66.02, 22, 66.0206, true, 0},
    {"AirSpeed", kLow, 37, Air, 3, 10, " 10", " 30", 60, 22, 66.0206, true, 2},
};

class Frames : public testing::TestWithParam<Frame> {
 protected:
  Frames() {
    surface.scale = frame.scale;
    frame.draw(frame.top, surface);
    lines = Segments(surface);
  }

  const Frame& frame = GetParam();
  Surface surface;
  std::vector<Segment> lines;
};

TEST_P(Frames, HaveTheirLinesInOrder) {
  ASSERT_EQ(lines.size(), frame.levels + frame.verticals + frame.limits);
  for (std::size_t i = 0; i < frame.levels; ++i) {
    const double y = frame.top - frame.step * static_cast<double>(i + 1);
    EXPECT_EQ(lines[i].from.x, 0) << i;
    EXPECT_NEAR(lines[i].to.x, frame.right, 1e-9) << i;
    EXPECT_EQ(lines[i].from.y, y) << i;
    EXPECT_EQ(lines[i].to.y, y) << i;
    EXPECT_EQ(lines[i].colour, 0) << i;
  }
  for (std::size_t i = frame.levels; i < frame.levels + frame.verticals; ++i) {
    EXPECT_EQ(lines[i].from.x, lines[i].to.x) << i;
    EXPECT_EQ(lines[i].from.y, 0) << i;
    EXPECT_EQ(lines[i].to.y, frame.rescales ? frame.top : 50) << i;
    EXPECT_EQ(lines[i].colour, 0) << i;
  }
}

TEST_P(Frames, CountFrequenciesByDecades) {
  std::vector<double> hertz;
  for (const int decade : {10, 100, 1000}) {
    for (int i = 1; i <= 10; ++i) hertz.push_back(i * decade);
  }
  for (std::size_t i = 0; i < frame.verticals; ++i) {
    EXPECT_NEAR(lines.at(frame.levels + i).from.x, 20 * std::log10(hertz[i]), 1e-9) << i;
  }
  EXPECT_NEAR(lines.at(frame.levels + frame.verticals - 1).from.x, frame.last_vertical, 1e-4);
}

TEST_P(Frames, LabelEachLevel) {
  ASSERT_EQ(surface.labels.size(), frame.levels);
  EXPECT_EQ(surface.labels.front().text, frame.lowest);
  EXPECT_EQ(surface.labels.back().text, frame.highest);
  for (std::size_t i = 0; i < frame.levels; ++i) EXPECT_EQ(surface.labels[i].at, lines.at(i).from.y) << i;
}

TEST_P(Frames, RescaleThePlotOnlyWhereTheyOwnIt) {
  EXPECT_EQ(surface.scale.left, frame.scale.left);
  EXPECT_EQ(surface.scale.width, frame.scale.width);
  EXPECT_EQ(surface.scale.height, frame.rescales ? frame.top : 50);
}

TEST_P(Frames, ReplaceTheLabelsAndKeepTheDrawing) {
  const std::size_t before = surface.strokes.size();
  frame.draw(frame.top, surface);
  EXPECT_EQ(surface.labels.size(), frame.levels);
  EXPECT_EQ(surface.strokes.size(), 2 * before);
}

INSTANTIATE_TEST_SUITE_P(All, Frames, testing::ValuesIn(kFrames),
                         [](const testing::TestParamInfo<Frame>& instance) { return instance.param.name; });

TEST(LimitLines, EndAtTheLastFrequencyOfTheGrid) {
  struct Row {
    Scale scale;
    void (*draw)(int, Surface&);
    int colour;
    double above_bottom, right;
    std::size_t from_end;
  };
  // 5 mm; 7.5 and 5 percent of 345 m/s.
  const Row rows[]{{kLow, Excursion, colour::kRed, 5, 60, 1},
                   {kLow, Air, colour::kRed, 25.875, 66.0206, 2},
                   {kLow, Air, colour::kBlue, 17.25, 66.0206, 1}};
  for (const Row& row : rows) {
    Surface surface;
    surface.scale = row.scale;
    row.draw(40, surface);
    const std::vector<Segment> lines = Segments(surface);
    const Segment& line = lines.at(lines.size() - row.from_end);
    EXPECT_EQ(line.colour, row.colour);
    EXPECT_EQ(line.from.x, 0);
    EXPECT_NEAR(line.to.x, row.right, 1e-4);
    EXPECT_NEAR(line.from.y, 40 - row.above_bottom, 1e-12);
    EXPECT_EQ(line.to.y, line.from.y);
  }
}

TEST(LimitLines, StandOutsideAPlotThatIsTooLow) {
  Surface surface;
  surface.scale = kLow;
  Air(12, surface);
  EXPECT_LT(surface.points.back().y, 0);  // 17.25 m/s on a scale to 12
}

TEST(Frame, WithoutALevelHasNoLabel) {
  Surface surface;
  surface.scale = kLevel;
  GrigliaSpl(9, surface);
  EXPECT_TRUE(surface.labels.empty());
  EXPECT_EQ(surface.strokes.size(), 22U);
}

TEST(PhaseFrame, HasNineLevelsAndNoLabels) {
  Surface surface;
  surface.scale = {20, 53.96, 360};
  surface.AddLabel("kept", 1);
  GrigliaFase(surface);
  const std::vector<Segment> lines = Segments(surface);
  ASSERT_EQ(lines.size(), 9U + 25U);
  for (std::size_t i = 0; i < 9; ++i) {
    EXPECT_EQ(lines[i].from.y, 360 - 45.0 * static_cast<double>(i));
    EXPECT_EQ(lines[i].to.y, lines[i].from.y);
    EXPECT_EQ(lines[i].from.x, 0);
    EXPECT_NEAR(lines[i].to.x, 73.96, 1e-9);
  }
  for (std::size_t i = 9; i < lines.size(); ++i) {
    EXPECT_EQ(lines[i].from.y, 0);
    EXPECT_EQ(lines[i].to.y, 360);
  }
  EXPECT_NEAR(lines[9].from.x, 20, 1e-12);
  EXPECT_NEAR(lines.back().from.x, 73.9794, 1e-4);
  for (const Segment& line : lines) EXPECT_EQ(line.colour, 0);
  EXPECT_EQ(surface.labels.size(), 1U);  // it has no strip to clear
}

TEST(Surface, KeepsWhatIsOutsideForTheFaceToClip) {
  Surface surface;
  surface.scale = kBox;
  DisegnaCurva({-2.7, 25, 80, 90, 0}, {-500, 10, 900, 0, 0}, 50, surface, colour::kBlack);
  ASSERT_EQ(surface.points.size(), 3U);
  EXPECT_EQ(surface.points[0].x, -2.7);
  EXPECT_EQ(surface.points[0].y, 550);
  EXPECT_EQ(surface.points[2].x, 80);
  EXPECT_EQ(surface.points[2].y, -850);
}

TEST(Surface, ForgetsEverythingButItsLabelsWhenItIsCleared) {
  Surface surface;
  surface.scale = kBox;
  GrigliaCassa(71, surface);
  surface.Clear();
  EXPECT_TRUE(surface.strokes.empty() && surface.points.empty());
  EXPECT_EQ(surface.labels.size(), 7U);
}

}  // namespace
}  // namespace zefirondo
