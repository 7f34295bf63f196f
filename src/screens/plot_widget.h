// A plot on the screen: the picture of a surface, kept until the surface changes, and the read-out on it.
#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>
#include <cstdint>

#include "core/controls.h"

class QLabel;
class QPainter;

namespace zefirondo::screens {

/// How wide lines are, in units of the painter.
struct PlotPens {
  double grid = 1.0;
  double curve = 2.0;
};

/// Paints all that stands on a surface into a rectangle of the painter's device, as lines.
void PaintSurface(QPainter& painter, const Surface& surface, const QRectF& area, const PlotPens& pens = {});

/// The picture of a surface, `size` pixels large, with hairlines of `weight` pixels.
[[nodiscard]] QImage SurfaceImage(const Surface& surface, const QSize& size, double weight = 1.0);

class PlotWidget : public QWidget {
 public:
  explicit PlotWidget(const Surface& surface, QWidget* parent = nullptr);

  /// A place on the widget in the surface's user coordinates.
  [[nodiscard]] QPointF ToUser(const QPointF& place) const;

  /// Repaints if the surface changed, and shows or hides the read-out.
  void ShowSurface(const Control& readout);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void ShowReadout(const Control& readout);

  const Surface& surface_;
  QLabel* readout_;
  QPixmap picture_;
  std::uint64_t painted_ = 0;  // the surface's revision in the picture
  std::uint64_t shown_ = 0;    // the revision that a repaint was last asked for
};

}  // namespace zefirondo::screens
