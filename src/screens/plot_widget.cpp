#include "screens/plot_widget.h"

#include <QFrame>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "screens/curve_raster.h"
#include "screens/looks.h"
#include "screens/qt_text.h"

namespace zefirondo::screens {
namespace {

constexpr double kTolerance = 0.08;  // pixels that a thinned curve may stray from the full one
constexpr double kFarAway = 1e6;     // pixels that an integer holds easily
constexpr double kOutside = 1.0;     // plot heights beyond its edges where a curve is cut

struct Mapping {
  double x0, x_factor, y0, y_factor;

  Mapping(const Scale& scale, const QRectF& area)
      : x0(area.left() - scale.left * area.width() / scale.width),
        x_factor(area.width() / scale.width),
        y0(area.top()),
        y_factor(area.height() / scale.height) {}

  [[nodiscard]] QPointF operator()(const Point& point) const {
    return {x0 + point.x * x_factor, y0 + point.y * y_factor};
  }
};

/// The band of heights that a curve is drawn in. What lies above or below runs along the band's edge.
struct Band {
  double top, bottom;

  explicit Band(const QRectF& area)
      : top(area.top() - kOutside * area.height()), bottom(area.bottom() + kOutside * area.height()) {}

  [[nodiscard]] bool Holds(const QPointF& point) const { return point.y() >= top && point.y() <= bottom; }
  [[nodiscard]] QPointF Edge(const QPointF& point) const { return {point.x(), std::clamp(point.y(), top, bottom)}; }

  /// Where a line leaves the band, or enters it, at the edge that is nearer to its end `outside`.
  [[nodiscard]] QPointF Crossing(const QPointF& outside, const QPointF& other) const {
    const double y = outside.y() < top ? top : bottom;
    const double part = (y - outside.y()) / (other.y() - outside.y());
    return {outside.x() + (other.x() - outside.x()) * part, y};
  }
};

/// Collects a curve, keeping of each pixel column what can be seen there: its first and last point and its
/// extremes. Points on a straight stretch are dropped.
class ThinnedCurve {
 public:
  void Add(const QPointF& point) {
    if (point.x() >= column_ && point.x() < column_ + 1) {
      if (std::isnan(point.y())) return;
      if (point.y() < low_.y()) low_ = point;
      if (point.y() > high_.y()) high_ = point;
      last_ = point;
      return;
    }
    if (!std::isfinite(point.x()) || !std::isfinite(point.y())) return;
    FlushColumn();
    column_ = std::floor(point.x());
    first_ = low_ = high_ = last_ = point;
  }

  [[nodiscard]] const std::vector<QPointF>& Finish() {
    FlushColumn();
    if (has_pending_) kept_.push_back(pending_);
    return kept_;
  }

 private:
  void FlushColumn() {
    if (std::isnan(column_)) return;
    Keep(first_);
    if (low_ != first_ && low_ != last_ && high_ != first_ && high_ != last_) {
      const bool falls = low_.x() < high_.x();
      Keep(falls ? low_ : high_);
      Keep(falls ? high_ : low_);
    } else if (low_ != first_ && low_ != last_) {
      Keep(low_);
    } else if (high_ != first_ && high_ != last_) {
      Keep(high_);
    }
    if (last_ != first_) Keep(last_);
  }

  /// Holds a point back as long as the line from the last kept point to the next one passes close by all that
  /// were left out: the slopes that do so form a wedge that each point narrows.
  void Keep(const QPointF& point) {
    if (kept_.empty()) {
      kept_.push_back(point);
      return;
    }
    const double run = point.x() - kept_.back().x();
    const double rise = point.y() - kept_.back().y();
    if (has_pending_ && (run <= kTolerance || rise / run < wedge_low_ || rise / run > wedge_high_)) {
      kept_.push_back(pending_);
      has_pending_ = false;
      Keep(point);
      return;
    }
    if (!has_pending_) {
      wedge_low_ = -HUGE_VAL;
      wedge_high_ = HUGE_VAL;
    }
    pending_ = point;
    has_pending_ = true;
    if (run > kTolerance) {
      wedge_low_ = std::max(wedge_low_, (rise - kTolerance) / run);
      wedge_high_ = std::min(wedge_high_, (rise + kTolerance) / run);
    } else {
      wedge_low_ = HUGE_VAL;  // a steep piece: the next point starts anew
    }
  }

  std::vector<QPointF> kept_;
  QPointF first_, low_, high_, last_, pending_;
  double column_ = std::numeric_limits<double>::quiet_NaN();  // the left edge of the column that is being looked at
  double wedge_low_ = 0.0, wedge_high_ = 0.0;
  bool has_pending_ = false;
};

/// Hands a chain of points to a curve, cut at the edges of the band. A point that is no number is left out.
class CutCurve {
 public:
  CutCurve(ThinnedCurve& curve, const Band& band) : curve_(curve), band_(band) {}

  void Add(const QPointF& point) {
    if (!std::isfinite(point.x()) || !std::isfinite(point.y())) return;
    const bool inside = band_.Holds(point);
    if (started_ && !(inside && inside_)) AddCrossings(point, inside);
    curve_.Add(inside ? point : band_.Edge(point));
    last_ = point;
    inside_ = inside;
    started_ = true;
  }

 private:
  void AddCrossings(const QPointF& point, bool inside) {
    const bool same_side = !inside && !inside_ && (last_.y() < band_.top) == (point.y() < band_.top);
    if (same_side) return;
    if (!inside_) curve_.Add(band_.Crossing(last_, point));
    if (!inside) curve_.Add(band_.Crossing(point, last_));
  }

  ThinnedCurve& curve_;
  const Band& band_;
  QPointF last_;
  bool inside_ = true;
  bool started_ = false;
};

/// A line of the grid: upright or level, and thin.
bool IsGridLine(const Surface& surface, const Stroke& stroke) {
  if (stroke.count != 2 || stroke.colour != colour::kBlack) return false;
  const Point* const ends = surface.points.data() + stroke.first;
  return ends[0].x == ends[1].x || ends[0].y == ends[1].y;
}

/// Where a line of the grid stands: whole pixels, so that it is sharp.
QRect GridLine(const Surface& surface, const Stroke& stroke, const QRectF& area, double weight) {
  const Mapping map(stroke.scale, area);
  const Point* const ends = surface.points.data() + stroke.first;
  const auto pixel = [](double place) { return static_cast<int>(std::floor(std::clamp(place, -kFarAway, kFarAway))); };
  const int width = std::max(1, static_cast<int>(std::lround(weight)));
  const auto [left, right] = std::minmax({pixel(map(ends[0]).x()), pixel(map(ends[1]).x())});
  const auto [top, bottom] = std::minmax({pixel(map(ends[0]).y()), pixel(map(ends[1]).y())});
  return {left, top, std::max(width, right - left), std::max(width, bottom - top)};
}

void Fill(QImage& image, const QRect& wanted, QRgb colour) {
  const QRect place = wanted & image.rect();
  for (int y = place.top(); y <= place.bottom(); ++y) {
    auto* const row = reinterpret_cast<QRgb*>(image.scanLine(y));
    std::fill(row + place.left(), row + place.left() + place.width(), colour);
  }
}

/// The points of a curve that matter at this size.
const std::vector<QPointF>& ThinnedPoints(ThinnedCurve& curve, const Surface& surface, const Stroke& stroke,
                                          const QRectF& area) {
  const Mapping map(stroke.scale, area);
  const Band band(area);
  CutCurve cut(curve, band);
  const Point* const points = surface.points.data() + stroke.first;
  for (std::size_t i = 0; i < stroke.count; ++i) cut.Add(map(points[i]));
  return curve.Finish();
}

}  // namespace

void PaintSurface(QPainter& painter, const Surface& surface, const QRectF& area, const PlotPens& pens) {
  painter.save();
  painter.setClipRect(area);
  painter.fillRect(area, Qt::white);
  painter.setRenderHint(QPainter::Antialiasing);
  for (const Stroke& stroke : surface.strokes) {
    if (IsGridLine(surface, stroke)) {
      painter.fillRect(GridLine(surface, stroke, area, pens.grid), Qt::black);
    } else if (stroke.count >= 2) {
      ThinnedCurve curve;
      const std::vector<QPointF>& points = ThinnedPoints(curve, surface, stroke, area);
      painter.setPen(QPen(LiteralColour(stroke.colour), pens.curve, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
      painter.drawPolyline(points.data(), static_cast<int>(points.size()));
    }
  }
  painter.restore();
}

QImage SurfaceImage(const Surface& surface, const QSize& size, double weight) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::white);
  const QRectF area(QPointF(), size);
  const PlotPens pens;
  CurveRaster raster(image);
  for (const Stroke& stroke : surface.strokes) {
    if (IsGridLine(surface, stroke)) {
      Fill(image, GridLine(surface, stroke, area, pens.grid * weight), QColor(Qt::black).rgb());
    } else if (stroke.count >= 2) {
      ThinnedCurve curve;
      raster.Draw(ThinnedPoints(curve, surface, stroke, area), pens.curve * weight, LiteralColour(stroke.colour).rgb());
    }
  }
  return image;
}

PlotWidget::PlotWidget(const Surface& surface, QWidget* parent)
    : QWidget(parent), surface_(surface), readout_(new QLabel(this)) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setCursor(Qt::CrossCursor);
  readout_->hide();
  readout_->setTextFormat(Qt::PlainText);
  readout_->setFrameShape(QFrame::Box);
  readout_->setAutoFillBackground(true);
  readout_->setAttribute(Qt::WA_TransparentForMouseEvents);
  QPalette dark_on_light = palette();
  dark_on_light.setColor(QPalette::Window, Qt::white);
  dark_on_light.setColor(QPalette::WindowText, Qt::black);
  readout_->setPalette(dark_on_light);
}

QPointF PlotWidget::ToUser(const QPointF& place) const {
  const Scale& scale = surface_.scale;
  return {scale.left + place.x() / width() * scale.width, place.y() / height() * scale.height};
}

void PlotWidget::ShowSurface(const Control& readout) {
  if (shown_ != surface_.revision) update();
  shown_ = surface_.revision;
  ShowReadout(readout);
}

void PlotWidget::ShowReadout(const Control& readout) {
  if (readout.visible) {
    const Mapping map(surface_.scale, QRectF(rect()));
    readout_->setText(ToQt(*readout.text));
    const QSize needed = readout_->sizeHint() + QSize(readout_->fontMetrics().averageCharWidth(), 0);
    const int wanted = static_cast<int>(readout.width * map.x_factor);
    const QPointF corner = map({readout.left, readout.top});
    const int box_width = std::max(needed.width(), wanted);
    readout_->setGeometry(std::clamp(static_cast<int>(corner.x()), 0, std::max(0, width() - box_width)),
                          std::clamp(static_cast<int>(corner.y()), 0, std::max(0, height() - needed.height())),
                          box_width, needed.height());
  }
  if (readout_->isHidden() == readout.visible) readout_->setVisible(readout.visible);
}

void PlotWidget::paintEvent(QPaintEvent* /*event*/) {
  const double ratio = devicePixelRatioF();
  const QSize pixels = (QSizeF(size()) * ratio).toSize();
  if (picture_.size() != pixels || painted_ != surface_.revision) {
    picture_ = QPixmap::fromImage(SurfaceImage(surface_, pixels, ratio));
    picture_.setDevicePixelRatio(ratio);
    painted_ = surface_.revision;
  }
  QPainter(this).drawPixmap(0, 0, picture_);
}

}  // namespace zefirondo::screens
