// A plot with what stands around it: the strip of values at its left, and the frequencies below.
#pragma once

#include <QWidget>
#include <utility>
#include <vector>

#include "core/controls.h"

namespace zefirondo::screens {

class Binder;
class PlotWidget;

/// A frequency that is written below a plot.
struct FrequencyMark {
  double hertz;
  const char* text;
};

/// The frequencies that are written below a plot that ends at `highest` hertz.
[[nodiscard]] std::vector<FrequencyMark> FrequencyMarks(double highest);

class PlotPanel : public QWidget {
 public:
  /// A frequency f stands at 20·log10(f) - shift of the surface's user coordinates.
  PlotPanel(const Surface& surface, std::vector<FrequencyMark> marks, double shift, QWidget* parent);

  [[nodiscard]] PlotWidget* plot() const { return plot_; }
  [[nodiscard]] QSize sizeHint() const override;

  /// Levels that stay the same, in place of the surface's own labels.
  void SetFixedValues(std::vector<StripLabel> values) { fixed_values_ = std::move(values); }

  /// Brings plot, values and read-out in line with the data.
  void ShowSurface(const Control& readout);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void PaintValues(QPainter& painter) const;
  void PaintFrequencies(QPainter& painter) const;

  const Surface& surface_;
  std::vector<FrequencyMark> marks_;
  std::vector<StripLabel> fixed_values_;
  double shift_;
  PlotWidget* plot_;
  std::uint64_t shown_ = 0;
};

}  // namespace zefirondo::screens
