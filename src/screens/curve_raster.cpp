#include "screens/curve_raster.h"

#include <algorithm>
#include <cmath>

namespace zefirondo::screens {
namespace {

constexpr double kHalfPixel = 0.5;
constexpr int kFull = 255;

std::size_t Index(int place) { return static_cast<std::size_t>(place); }

QRgb Mix(QRgb below, QRgb above, int coverage) {
  const auto channel = [coverage](int b, int a) { return b + (a - b) * coverage / kFull; };
  return qRgb(channel(qRed(below), qRed(above)), channel(qGreen(below), qGreen(above)),
              channel(qBlue(below), qBlue(above)));
}

}  // namespace

CurveRaster::CurveRaster(QImage& image)
    : image_(image),
      coverage_(Index(image.width()) * Index(image.height())),
      touched_(Index(image.width()), Rows{image.height(), -1}) {}

void CurveRaster::Draw(const std::vector<QPointF>& points, double width, QRgb colour) {
  const double reach = width / 2 + kHalfPixel;  // beyond it a pixel is not covered at all
  for (std::size_t i = 1; i < points.size(); ++i) CoverSegment(points[i - 1], points[i], reach);
  Blend(colour);
}

void CurveRaster::CoverSegment(const QPointF& from, const QPointF& to, double reach) {
  const QPointF along = to - from;
  const auto [left, right] = std::minmax({from.x(), to.x()});
  const int first = static_cast<int>(std::clamp(left - reach, 0.0, static_cast<double>(image_.width())));
  const int last = static_cast<int>(std::clamp(right + reach, -1.0, static_cast<double>(image_.width() - 1)));
  const double slope = along.x() == 0.0 ? 0.0 : along.y() / along.x();
  const double slant = reach * std::sqrt(1 + slope * slope);  // how far above and below itself the line reaches
  const auto [top, bottom] = std::minmax({from.y(), to.y()});
  for (int column = first; column <= last; ++column) {
    const double middle = from.y() + (column + kHalfPixel - from.x()) * slope;
    const bool upright = along.x() == 0.0;
    const double above = upright ? top - reach : std::max(top - reach, middle - slant);
    const double below = upright ? bottom + reach : std::min(bottom + reach, middle + slant);
    const double height = image_.height();
    CoverColumn(column, static_cast<int>(std::clamp(above, 0.0, height)),
                static_cast<int>(std::clamp(below, -1.0, height - 1)), from, along, reach);
  }
}

void CurveRaster::CoverColumn(int column, int first_row, int last_row, const QPointF& from, const QPointF& along,
                              double reach) {
  const double square = QPointF::dotProduct(along, along);
  std::uint8_t* const cells = coverage_.data() + Index(column) * Index(image_.height());
  for (int row = first_row; row <= last_row; ++row) {
    const QPointF centre(column + kHalfPixel - from.x(), row + kHalfPixel - from.y());
    const double part = square == 0.0 ? 0.0 : std::clamp(QPointF::dotProduct(centre, along) / square, 0.0, 1.0);
    const QPointF away = centre - along * part;
    const double covered = std::min(1.0, reach - std::sqrt(QPointF::dotProduct(away, away)));
    if (covered > 0.0) cells[row] = std::max(cells[row], static_cast<std::uint8_t>(covered * kFull));
  }
  Rows& rows = touched_[Index(column)];
  rows.first = std::min(rows.first, first_row);
  rows.last = std::max(rows.last, last_row);
}

/// Lays the colour over the image where it is covered, and forgets the coverage.
void CurveRaster::Blend(QRgb colour) {
  const qsizetype stride = image_.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb));
  auto* const pixels = reinterpret_cast<QRgb*>(image_.bits());
  for (int column = 0; column < image_.width(); ++column) {
    Rows& rows = touched_[Index(column)];
    std::uint8_t* const cells = coverage_.data() + Index(column) * Index(image_.height());
    for (int row = rows.first; row <= rows.last; ++row) {
      if (cells[row] == 0) continue;
      QRgb& pixel = pixels[row * stride + column];
      pixel = Mix(pixel, colour, cells[row]);
      cells[row] = 0;
    }
    rows = {image_.height(), -1};
  }
}

}  // namespace zefirondo::screens
