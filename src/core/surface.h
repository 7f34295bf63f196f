// A plot surface: what was drawn on it since its last clear, in user coordinates, and no pixel anywhere.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace zefirondo {

/// The user coordinate system of a surface. The vertical origin is the top edge, with y growing downwards.
struct Scale {
  double left = 0.0;    // x of the left edge
  double width = 1.0;   // x from the left to the right edge
  double height = 1.0;  // y of the bottom edge

  friend bool operator==(const Scale&, const Scale&) = default;
};

struct Point {
  double x = 0.0;
  double y = 0.0;
};

/// A chain of straight segments in one colour, drawn while `scale` was in force.
struct Stroke {
  Scale scale;
  int colour = 0;         // 24 bits, red in the low byte
  std::size_t first = 0;  // its points stand in `Surface::points` from here on
  std::size_t count = 0;
};

/// A value label of the strip at the left of a plot.
struct StripLabel {
  std::string text;
  double at = 0.0;  // its height in user coordinates
};

struct Surface {
  Scale scale;
  double twips_width = 0.0;  // the size that the read-out's placing reckons with
  double twips_height = 0.0;
  std::vector<Stroke> strokes;
  std::vector<Point> points;
  std::vector<StripLabel> labels;
  std::uint64_t revision = 0;  // grows with every change, so that a face knows when to paint

  /// Wipes what was drawn; the labels stay.
  void Clear();

  /// Draws one segment.
  void Line(double x1, double y1, double x2, double y2, int colour);

  /// Draws a chain of `count` points; the caller fills the array that is returned.
  Point* Chain(std::size_t count, int colour);

  void ClearLabels();
  void AddLabel(std::string text, double at);
};

}  // namespace zefirondo
