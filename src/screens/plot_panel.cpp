#include "screens/plot_panel.h"

#include <QPainter>
#include <QResizeEvent>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "screens/plot_widget.h"
#include "screens/qt_text.h"

namespace zefirondo::screens {
namespace {

constexpr int kStripWidth = 41;  // 615 twips
constexpr int kBorder = 1;
constexpr int kLabelGap = 4;
constexpr int kRightRoom = 14;  // half of the last frequency's words
constexpr double kTwipsPerPixel = 15.0;

constexpr std::array kMarks = std::to_array<FrequencyMark>({
    {10, "10"},
    {20, "20"},
    {30, "30"},
    {40, "40"},
    {50, "50"},
    {100, "100"},
    {200, "200"},
    {300, "300"},
    {400, "400"},
    {1000, "1k"},
    {2000, "2k"},
    {3000, "3k"},
    {4000, "4k"},
    {5000, "5k"},
    {10000, "10k"},
    {20000, "20k"},
});

}  // namespace

std::vector<FrequencyMark> FrequencyMarks(double highest) {
  std::vector<FrequencyMark> marks;
  for (const FrequencyMark& mark : kMarks) {
    if (mark.hertz <= highest) marks.push_back(mark);
  }
  return marks;
}

PlotPanel::PlotPanel(const Surface& surface, std::vector<FrequencyMark> marks, double shift, QWidget* parent)
    : QWidget(parent),
      surface_(surface),
      marks_(std::move(marks)),
      shift_(shift),
      plot_(new PlotWidget(surface, this)) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize PlotPanel::sizeHint() const {
  return {static_cast<int>(surface_.twips_width / kTwipsPerPixel) + kStripWidth + kRightRoom,
          static_cast<int>(surface_.twips_height / kTwipsPerPixel) + 2 * fontMetrics().height()};
}

void PlotPanel::ShowSurface(const Control& readout) {
  if (shown_ != surface_.revision) update();
  shown_ = surface_.revision;
  plot_->ShowSurface(readout);
}

void PlotPanel::resizeEvent(QResizeEvent* /*event*/) {
  const int above = fontMetrics().height() / 2;
  const int below = fontMetrics().height() + kLabelGap;
  plot_->setGeometry(kStripWidth, above, width() - kStripWidth - kRightRoom, height() - above - below - kBorder);
}

void PlotPanel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(plot_->geometry().adjusted(-kBorder, -kBorder, 0, 0));
  painter.setPen(palette().color(QPalette::WindowText));
  PaintValues(painter);
  PaintFrequencies(painter);
}

void PlotPanel::PaintValues(QPainter& painter) const {
  const int line = fontMetrics().height();
  for (const StripLabel& label : fixed_values_.empty() ? surface_.labels : fixed_values_) {
    const double y = plot_->y() + label.at / surface_.scale.height * plot_->height();
    const QRectF place(0, y - line / 2.0, kStripWidth - kLabelGap - kBorder, line);
    painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, ToQt(label.text));
  }
}

/// The decades are written first; another frequency is left out where it would run into its neighbour.
void PlotPanel::PaintFrequencies(QPainter& painter) const {
  const Scale& scale = surface_.scale;
  std::vector<QRectF> taken;
  for (const bool decades : {true, false}) {
    for (const FrequencyMark& mark : marks_) {
      if ((mark.text[0] == '1') != decades) continue;
      const QString text = QString::fromLatin1(mark.text);
      const double half = fontMetrics().horizontalAdvance(text) / 2.0 + kLabelGap / 2.0;
      const double x = plot_->x() + (20 * std::log10(mark.hertz) - shift_ - scale.left) / scale.width * plot_->width();
      const QRectF place(x - half, plot_->geometry().bottom() + kLabelGap, 2 * half, fontMetrics().height());
      const bool free = std::none_of(taken.begin(), taken.end(), [&](const QRectF& r) { return r.intersects(place); });
      if (!free || x < plot_->x() - 1) continue;
      taken.push_back(place);
      painter.drawText(place, Qt::AlignCenter, text);
    }
  }
}

}  // namespace zefirondo::screens
