// What the graph windows have in common: the plot with its title, the stored traces, the legend, the power.
#pragma once

#include <QBoxLayout>

#include "screens/form.h"
#include "screens/plot_panel.h"

namespace zefirondo::screens {

/// A short line in the colour of a curve.
class LineSample : public QWidget {
 public:
  LineSample(int colour, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor colour_;
};

struct GraphControls {
  Control& title;
  Control& plot;
  Control& frequency;                // the words below the plot
  std::vector<FrequencyMark> marks;  // the frequencies that are written there
  Control* unit = nullptr;           // of the values, above their strip
  double shift = 0.0;                // a frequency f stands at 20·log10(f) - shift
};

/// Fills a column with a graph: title, plot, and the words below it.
PlotPanel* AddGraph(Binder& binder, QWidget* content, QVBoxLayout& column, const GraphControls& graph);

struct SlotControls {
  Control& name;
  Control& set;
  Control& set_words;
  Control& on_off;
  Control& on_off_words;
  int colour = 0;
};

/// One stored trace in a row of a grid: its name and colour, the button that stores, the box that shows.
void AddSlot(Binder& binder, QWidget* parent, QGridLayout& grid, int row, const SlotControls& slot);

/// The two stored traces of a window that names their controls in the usual way.
template <class GraphWindow>
void AddSlots(Binder& binder, QWidget* parent, QGridLayout& grid, int first_row, GraphWindow& form) {
  AddSlot(binder, parent, grid, first_row,
          {form.lblovl1, form.cmdset1, form.lblset1, form.chkonoff1, form.lblonoff1, colour::kRed});
  AddSlot(binder, parent, grid, first_row + 1,
          {form.lblovl2, form.cmdset2, form.lblset2, form.chkonoff2, form.lblonoff2, colour::kBlue});
}

struct LegendRow {
  Control& label;
  int colour = 0;
};

/// The samples of the curves' colours, with their words.
QWidget* MakeLegend(Binder& binder, Control& frame, const std::vector<LegendRow>& rows, QWidget* parent);

/// The power that a curve is computed for, with the button that computes it anew.
QLayout* MakePower(Binder& binder, QWidget* parent, Control& words, Control& field, Control& unit, Control& button);

/// A line of the plot with its words: the colour is that of the picture control.
QLayout* MakeLineMark(Binder& binder, QWidget* parent, Control& words, Control& line);

}  // namespace zefirondo::screens
