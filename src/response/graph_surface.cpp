#include "response/graph_surface.h"

#include <algorithm>
#include <cmath>

#include "core/numbers.h"
#include "core/run_time_error.h"

namespace zefirondo {
namespace {

constexpr int kZeroDecibel = 40;           // a box level of 0 dB is stored as 40
constexpr double kBoxGridLeft = 20;        // the x at the left edge of the box plot
constexpr double kLowGridLeft = 10;        // of the plots that begin at 3.16 Hz
constexpr int kExcursionGridLimit = 1000;  // Hz
constexpr int kLevelGridLimit = 2000;
constexpr int kLevelStep = 10;              // dB or m/s
constexpr int kPhaseHeight = 360;           // degrees
constexpr int kImpedanceGridLimit = 10000;  // Hz
constexpr int kBoxGridLimit = 5000;         // Hz

/// How many points of a curve with this many slots are drawn.
std::size_t DrawnPoints(std::size_t slots) { return slots >= 4 ? slots - 2 : 0; }

/// A number as the value labels show it: a blank stands for the plus sign.
std::string LabelText(int value) { return (value >= 0 ? " " : "") + std::to_string(value); }

/// Horizontal lines with their labels, a step apart, from the first level above 0 up to the top.
void DrawLevels(Surface& surface, int top, int step, int shown_less, double grid_left) {
  surface.ClearLabels();
  for (int level = step; level <= top; level += step) {
    const double y = top - level;
    surface.AddLabel(LabelText(level - shown_less), y);
    surface.Line(0, y, surface.scale.width + grid_left, y, colour::kBlack);
  }
}

/// Vertical lines by decades; the line between two decades is drawn twice.
void DrawFrequencies(Surface& surface, int limit) {
  for (int decade = 10; decade < limit; decade *= 10) {
    const int last = std::min(decade * 10, limit);
    for (int f = decade; f <= last; f += decade) {
      const double x = 20 * Log10(f);
      surface.Line(x, 0, x, surface.scale.height, colour::kBlack);
    }
  }
}

}  // namespace

void DisegnaCurva(const Curve& x, const Curve& y, double top, Surface& surface, int colour) {
  const std::size_t count = DrawnPoints(x.size());
  if (count == 0) return;
  if (y.size() < count) throw RunTimeError(ErrorNumber::IndexOutOfRange);
  Point* const points = surface.Chain(count, colour);
  for (std::size_t i = 0; i < count; ++i) points[i] = {x[i], top - y[i]};
}

void DisegnaImpedenza(const Curve& hertz, const Curve& ohm, double top, Surface& surface, int colour) {
  const std::size_t count = DrawnPoints(hertz.size());
  if (count == 0) return;
  if (ohm.size() < count) throw RunTimeError(ErrorNumber::IndexOutOfRange);
  Point* const points = surface.Chain(count, colour);
  for (std::size_t i = 0; i < count; ++i) points[i] = {20 * Log10(hertz[i]), top - ohm[i]};
}

int GridStep(int top) {
  if (top < 160) return 10;
  // Exactly 160 and exactly 320 have the step of the largest scales, as wanted.
  if (top > 160 && top < 320) return 20;
  if (top > 320 && top < 480) return 30;
  return 40;
}

void GrigliaCassa(int top, Surface& surface) {
  DrawLevels(surface, top, GridStep(top), kZeroDecibel, kBoxGridLeft);
  DrawFrequencies(surface, kBoxGridLimit);
}

void GrigliaImpedenza(int top, Surface& surface) {
  DrawLevels(surface, top, GridStep(top), 0, kLowGridLeft);
  DrawFrequencies(surface, kImpedanceGridLimit);
}

void GrigliaEscursione(int top, Surface& surface, double xmax) {
  DrawLevels(surface, top, 1, 0, kLowGridLeft);
  DrawFrequencies(surface, kExcursionGridLimit);
  const double y = top - xmax;
  surface.Line(0, y, 20 * Log10(kExcursionGridLimit), y, colour::kRed);
}

void GrigliaSpl(int top, Surface& surface) {
  surface.scale.height = top;
  DrawLevels(surface, top, kLevelStep, 0, kLowGridLeft);
  DrawFrequencies(surface, kLevelGridLimit);
}

void GrigliaAria(int top, Surface& surface, double velocity) {
  GrigliaSpl(top, surface);
  const double right = 20 * Log10(kLevelGridLimit);
  const double fast = top - velocity * 7.5 / 100;
  const double slow = top - velocity * 5 / 100;
  surface.Line(0, fast, right, fast, colour::kRed);
  surface.Line(0, slow, right, slow, colour::kBlue);
}

void GrigliaFase(Surface& surface) {
  for (int level = 0; level <= kPhaseHeight; level += 45) {
    const double y = kPhaseHeight - level;
    surface.Line(0, y, surface.scale.width + kBoxGridLeft, y, colour::kBlack);
  }
  DrawFrequencies(surface, kBoxGridLimit);
}

void DrawPhaseGrid(Surface& surface) {
  for (int y = kPhaseHeight - 45; y >= 0; y -= 45) {
    surface.Line(0, y, surface.scale.width + kLowGridLeft, y, colour::kBlack);
  }
  const auto vertical = [&](int f) {
    const double x = 20 * Log10(f) - 10;
    surface.Line(x, 0, x, kPhaseHeight, colour::kBlack);
  };
  for (int decade = 10; decade < 10000; decade *= 10) {
    for (int f = decade; f <= decade * 10; f += decade) vertical(f);
  }
  vertical(10000);  // and none at 20000, as wanted
}

void ShowReadout(const Surface& surface, Control& readout, double x, double y, double value,
                 const ReadoutStyle& style) {
  const Scale& scale = surface.scale;
  const std::string hertz = FormatTwoDecimals(std::pow(10.0, (x + style.frequency_shift) / 20));
  const std::string shown = FormatTwoDecimals(value);
  // The width leaves out the words in between, as wanted.
  const std::string measured = style.width_of != nullptr ? FormatTwoDecimals(*style.width_of) : shown;
  readout.width = static_cast<double>((hertz + " " + measured).size());
  *readout.text = hertz + " Hz ; " + shown + style.unit;
  readout.left = x > scale.width / 2 + style.middle ? x - readout.width + 7 : x + 1;
  const double twips_per_unit = Divide(surface.twips_height, scale.height);
  readout.top = y > scale.height / 2 ? y - 320 / twips_per_unit : y + style.below_twips / twips_per_unit;
  readout.visible = true;
}

void HideReadout(Control& readout) { readout.visible = false; }

}  // namespace zefirondo
