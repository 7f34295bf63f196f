// Curves, grids, labels and the read-out, as they stand on a plot surface.
#include "response/graph_surface.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/run_time_error.h"

namespace zefirondo {
namespace {

struct Segment {
  double x1, y1, x2, y2;
  int colour;
};

std::vector<Segment> Segments(const Surface& surface) {
  std::vector<Segment> segments;
  for (const Stroke& stroke : surface.strokes) {
    for (std::size_t i = stroke.first; i + 1 < stroke.first + stroke.count; ++i) {
      const Point& a = surface.points[i];
      const Point& b = surface.points[i + 1];
      segments.push_back({a.x, a.y, b.x, b.y, stroke.colour});
    }
  }
  return segments;
}

Surface BoxSurface(double height) {
  Surface surface;
  surface.scale = {20, 53.96, height};
  surface.twips_width = 8850;
  surface.twips_height = 6015;
  return surface;
}

// ---- curves ----

TEST(DisegnaCurva, JoinsThePointsUpToTheOneBeforeTheLast) {
  // Upper bound 5: the segments i = 0, 1, 2 are drawn, so the last real point (index 4) is never reached.
  const Curve x{1, 2, 3, 4, 5, 0};
  const Curve y{10, 20, 30, 40, 50, 0};
  Surface surface = BoxSurface(65);
  DisegnaCurva(x, y, 65, surface, colour::kRed);
  const std::vector<Segment> segments = Segments(surface);
  ASSERT_EQ(segments.size(), 3U);
  EXPECT_EQ(segments[0].x1, 1);
  EXPECT_EQ(segments[0].y1, 55);  // top less value
  EXPECT_EQ(segments[0].x2, 2);
  EXPECT_EQ(segments[0].y2, 45);
  EXPECT_EQ(segments[2].x2, 4);
  EXPECT_EQ(segments[2].y2, 25);
  for (const Segment& segment : segments) EXPECT_EQ(segment.colour, 255);
}

TEST(DisegnaCurva, DrawsOneSegmentForAnUpperBoundOfThree) {
  Surface surface = BoxSurface(65);
  DisegnaCurva({1, 2, 3, 0}, {1, 2, 3, 0}, 65, surface, colour::kBlack);
  EXPECT_EQ(Segments(surface).size(), 1U);
}

TEST(DisegnaCurva, DrawsNothingForAShorterCurve) {
  Surface surface = BoxSurface(65);
  for (const Curve& curve : {Curve{}, Curve{0}, Curve{1, 0}, Curve{1, 2, 0}}) {
    DisegnaCurva(curve, curve, 65, surface, colour::kBlack);
  }
  EXPECT_TRUE(Segments(surface).empty());
}

TEST(DisegnaCurva, GoesByTheAbscissaWhenTheOrdinateIsLonger) {
  Surface surface = BoxSurface(65);
  DisegnaCurva({1, 2, 3, 0}, {1, 2, 3, 4, 5, 6}, 65, surface, colour::kBlack);
  EXPECT_EQ(Segments(surface).size(), 1U);
}

TEST(DisegnaCurva, FailsForAnOrdinateThatIsTooShort) {
  Surface surface = BoxSurface(65);
  try {
    DisegnaCurva({1, 2, 3, 4, 0}, {1, 2}, 65, surface, colour::kBlack);
    FAIL() << "nothing was thrown";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), 9);
  }
}

TEST(DisegnaCurva, LeavesWhatWasDrawnBefore) {
  Surface surface = BoxSurface(65);
  surface.Line(0, 0, 1, 1, colour::kGreen);
  DisegnaCurva({1, 2, 3, 0}, {1, 2, 3, 0}, 65, surface, colour::kBlue);
  const std::vector<Segment> segments = Segments(surface);
  ASSERT_EQ(segments.size(), 2U);
  EXPECT_EQ(segments[0].colour, 65280);
  EXPECT_EQ(segments[1].colour, 16711680);
}

TEST(DisegnaImpedenza, PlacesHertzOnTheLogarithmicAxis) {
  // 20·log10 of 10, 100, 1000: 20, 40, 60.
  Surface surface = BoxSurface(65);
  DisegnaImpedenza({10, 100, 1000, 10000, 0}, {5, 25, 30, 7, 0}, 40, surface, colour::kBlack);
  const std::vector<Segment> segments = Segments(surface);
  ASSERT_EQ(segments.size(), 2U);
  EXPECT_NEAR(segments[0].x1, 20, 1e-12);
  EXPECT_NEAR(segments[0].x2, 40, 1e-12);
  EXPECT_NEAR(segments[1].x2, 60, 1e-12);
  EXPECT_EQ(segments[0].y1, 35);
  EXPECT_EQ(segments[1].y2, 10);
}

// ---- the grid ----

TEST(GridStep, GoesByTheTopOfTheScale) {
  struct Row {
    int top, step;
  };
  constexpr Row kRows[]{{25, 10},  {65, 10},  {159, 10}, {160, 40}, {161, 20}, {319, 20}, {320, 40},
                        {321, 30}, {479, 30}, {480, 40}, {481, 40}, {900, 40}, {0, 10}};
  for (const Row& row : kRows) EXPECT_EQ(GridStep(row.top), row.step) << row.top;
}

std::vector<std::string> LabelTexts(const Surface& surface) {
  std::vector<std::string> texts;
  for (const StripLabel& label : surface.labels) texts.push_back(label.text);
  return texts;
}

TEST(GrigliaCassa, LabelsAScaleOf65FromMinus30To20) {
  Surface surface = BoxSurface(65);
  GrigliaCassa(65, surface);
  EXPECT_EQ(LabelTexts(surface), (std::vector<std::string>{"-30", "-20", "-10", " 0", " 10", " 20"}));
  for (std::size_t i = 0; i < surface.labels.size(); ++i) {
    EXPECT_EQ(surface.labels[i].at, 65.0 - 10.0 * static_cast<double>(i + 1));
  }
}

TEST(GrigliaCassa, LabelsTheTopItselfWhenItIsAStep) {
  Surface surface = BoxSurface(70);
  GrigliaCassa(70, surface);
  ASSERT_EQ(surface.labels.size(), 7U);
  EXPECT_EQ(surface.labels.back().text, " 30");
  EXPECT_EQ(surface.labels.back().at, 0);
}

TEST(GrigliaCassa, LabelsTheOddScalesByTheirSteps) {
  Surface surface = BoxSurface(160);
  GrigliaCassa(160, surface);
  EXPECT_EQ(LabelTexts(surface), (std::vector<std::string>{" 0", " 40", " 80", " 120"}));
  GrigliaCassa(161, surface);
  EXPECT_EQ(LabelTexts(surface), (std::vector<std::string>{"-20", " 0", " 20", " 40", " 60", " 80", " 100", " 120"}));
}

TEST(GrigliaCassa, DrawsLevelsAcrossThePlotAndFrequenciesDownIt) {
  Surface surface = BoxSurface(65);
  GrigliaCassa(65, surface);
  const std::vector<Segment> segments = Segments(surface);
  ASSERT_EQ(segments.size(), 6U + 10U + 10U + 5U);
  for (std::size_t i = 0; i < 6; ++i) {  // to the plot's width and its left edge: 53.96 + 20
    const double y = 55.0 - 10.0 * static_cast<double>(i);
    EXPECT_EQ(segments[i].x1, 0);
    EXPECT_NEAR(segments[i].x2, 73.96, 1e-12);
    EXPECT_EQ(segments[i].y1, y);
    EXPECT_EQ(segments[i].y2, y);
  }
  std::vector<double> hertz;
  for (int f = 10; f <= 100; f += 10) hertz.push_back(f);
  for (int f = 100; f <= 1000; f += 100) hertz.push_back(f);  // 100 and 1000 stand twice
  for (int f = 1000; f <= 5000; f += 1000) hertz.push_back(f);
  for (std::size_t i = 0; i < hertz.size(); ++i) {
    const Segment& line = segments[6 + i];
    EXPECT_NEAR(line.x1, 20 * std::log10(hertz[i]), 1e-12) << hertz[i];
    EXPECT_EQ(line.x2, line.x1);
    EXPECT_EQ(line.y1, 0);
    EXPECT_EQ(line.y2, 65);
  }
  for (const Segment& segment : segments) EXPECT_EQ(segment.colour, 0);
}

TEST(GrigliaCassa, ReplacesTheLabelsAndLeavesTheDrawing) {
  Surface surface = BoxSurface(65);
  surface.Line(1, 2, 3, 4, colour::kBlue);
  GrigliaCassa(65, surface);
  GrigliaCassa(65, surface);
  EXPECT_EQ(surface.labels.size(), 6U);
  EXPECT_EQ(Segments(surface).size(), 1U + 31U + 31U);
  EXPECT_EQ(Segments(surface)[0].colour, colour::kBlue);
}

// ---- the read-out ----

struct Readout {
  std::string text;
  Control control;
  Readout() { control.text = &text; }
};

// The plot is 6015 twips high and 60 units: R = 100.25 twips a unit.
constexpr double kTwipsPerUnit = 6015.0 / 60.0;

TEST(Readout, TellsFrequencyAndValue) {
  Readout readout;
  ShowReadout(BoxSurface(60), readout.control, 40, 10, -3.014, {" dB"});
  EXPECT_EQ(readout.text, "100.00 Hz ; -3.01 dB");
  EXPECT_TRUE(readout.control.visible);
}

TEST(Readout, IsAsWideAsItsTwoNumbersAndABlank) {
  Readout readout;
  ShowReadout(BoxSurface(60), readout.control, 60, 10, 12.5, {" dB"});
  EXPECT_EQ(readout.text, "1000.00 Hz ; 12.50 dB");
  EXPECT_EQ(readout.control.width, 13);  // "1000.00 12.50"
}

TEST(Readout, StandsRightOfTheMouseInTheLeftHalf) {
  Readout readout;
  // The half: 53.96 / 2 + 7 = 33.98.
  ShowReadout(BoxSurface(60), readout.control, 33.98, 10, 1, {" dB"});
  EXPECT_NEAR(readout.control.left, 34.98, 1e-12);
}

TEST(Readout, StandsLeftOfTheMouseInTheRightHalf) {
  Readout readout;
  ShowReadout(BoxSurface(60), readout.control, 40, 10, 1, {" dB"});
  EXPECT_NEAR(readout.control.left, 40 - 11 + 7, 1e-12);  // "100.00 1.00" has 11 characters
}

TEST(Readout, StandsUnderTheMouseInTheUpperHalf) {
  Readout readout;
  ShowReadout(BoxSurface(60), readout.control, 40, 30, 1, {" dB"});
  EXPECT_NEAR(readout.control.top, 30 + 60 / kTwipsPerUnit, 1e-12);
  ShowReadout(BoxSurface(60), readout.control, 40, 30, 1, {" mm", 50});
  EXPECT_NEAR(readout.control.top, 30 + 50 / kTwipsPerUnit, 1e-12);
}

TEST(Readout, StandsAboveTheMouseInTheLowerHalf) {
  Readout readout;
  ShowReadout(BoxSurface(60), readout.control, 40, 30.5, 1, {" dB"});
  EXPECT_NEAR(readout.control.top, 30.5 - 320 / kTwipsPerUnit, 1e-12);
}

TEST(Readout, HidesWhenTheButtonGoesUp) {
  Readout readout;
  ShowReadout(BoxSurface(60), readout.control, 40, 30, 1, {" dB"});
  HideReadout(readout.control);
  EXPECT_FALSE(readout.control.visible);
}

}  // namespace
}  // namespace zefirondo
