#include "core/surface.h"

#include <utility>

namespace zefirondo {

void Surface::Clear() {
  strokes.clear();
  points.clear();
  ++revision;
}

void Surface::Line(double x1, double y1, double x2, double y2, int colour) {
  Point* const ends = Chain(2, colour);
  ends[0] = {x1, y1};
  ends[1] = {x2, y2};
}

Point* Surface::Chain(std::size_t count, int colour) {
  const std::size_t first = points.size();
  points.resize(first + count);
  strokes.push_back({scale, colour, first, count});
  ++revision;
  return points.data() + first;
}

void Surface::ClearLabels() {
  labels.clear();
  ++revision;
}

void Surface::AddLabel(std::string text, double at) {
  labels.push_back({std::move(text), at});
  ++revision;
}

}  // namespace zefirondo
