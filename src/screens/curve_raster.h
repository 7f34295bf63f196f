// Smooth curves painted straight into an image.
//
// A general rasteriser takes as long for three curves of a few hundred segments as for all of their points in
// plain lines. A curve of constant width needs less: how much of a pixel it covers follows from the distance of
// the pixel's centre to the nearest segment.
#pragma once

#include <QImage>
#include <QPointF>
#include <cstdint>
#include <vector>

namespace zefirondo::screens {

class CurveRaster {
 public:
  /// Paints into an image of the format RGB32, in its pixels.
  explicit CurveRaster(QImage& image);

  /// Draws a chain of segments, `width` pixels wide, with round ends and joins. What lies outside is left out.
  void Draw(const std::vector<QPointF>& points, double width, QRgb colour);

 private:
  /// The rows of a column that a curve has touched.
  struct Rows {
    int first = 0;
    int last = -1;
  };

  void CoverSegment(const QPointF& from, const QPointF& to, double reach);
  void CoverColumn(int column, int first_row, int last_row, const QPointF& from, const QPointF& along, double reach);
  void Blend(QRgb colour);

  QImage& image_;
  std::vector<std::uint8_t> coverage_;  // column by column
  std::vector<Rows> touched_;
};

}  // namespace zefirondo::screens
