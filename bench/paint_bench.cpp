// A repaint of the box graph with three curves, against one plain one-pixel polyline of all their points.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPolygonF>
#include <chrono>
#include <cstdio>

#include "design_bench.h"
#include "response/box_response.h"
#include "screens/plot_widget.h"

namespace {

constexpr int kRuns = 40;
constexpr QSize kPlot(1180, 802);  // the plot at twice its usual size

/// The least time of some runs, in microseconds.
template <class Work>
double Least(Work work) {
  double least = 1e18;
  for (int run = 0; run < kRuns; ++run) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::micro> taken = std::chrono::steady_clock::now() - begin;
    least = std::min(least, taken.count());
  }
  return least;
}

QPolygonF AllPoints(const zefirondo::Surface& surface) {
  QPolygonF points;
  for (const zefirondo::Stroke& stroke : surface.strokes) {
    if (stroke.count <= 2) continue;
    for (std::size_t i = stroke.first; i < stroke.first + stroke.count; ++i) {
      const zefirondo::Point& point = surface.points[i];
      points << QPointF((point.x - stroke.scale.left) / stroke.scale.width * kPlot.width(),
                        point.y / stroke.scale.height * kPlot.height());
    }
  }
  return points;
}

}  // namespace

int main(int count, char** words) {
  const QGuiApplication application(count, words);
  zefirondo::BenchDesk desk;
  desk.DesignVented();
  zefirondo::Program& program = desk.program;
  program.windows.frmgrafcassa.cmdset1.on.click(program);
  program.windows.frmgrafcassa.cmdset2.on.click(program);
  zefirondo::RidisegnaCassa(program);
  const zefirondo::Surface& surface = program.windows.frmgrafcassa.surface;

  QImage image(kPlot, QImage::Format_RGB32);
  const double painted = Least([&] { image = zefirondo::screens::SurfaceImage(surface, kPlot); });
  const QPolygonF points = AllPoints(surface);
  const double plain = Least([&] {
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setPen(Qt::black);
    painter.drawPolyline(points);
  });
  std::printf(
      "repaint of the box graph with three curves: %.0f us, a plain polyline of its %d points: %.0f us, ratio %.2f "
      "(at most 1.00)\n",
      painted, static_cast<int>(points.size()), plain, painted / plain);
  return 0;
}
