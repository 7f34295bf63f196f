#include "screens/graph_form.h"

#include <QGroupBox>
#include <QPainter>

#include "screens/looks.h"
#include "screens/plot_widget.h"
#include "screens/qt_text.h"

namespace zefirondo::screens {
namespace {

constexpr QSize kSampleSize(22, 10);
constexpr int kSampleWidth = 2;
constexpr int kDark = 128;  // the lightness below which a black line would not show
constexpr int kSetButton = 22;

QLabel* MakeCentred(Binder& binder, Control& control, QWidget* parent, bool bold) {
  auto* const label = static_cast<QLabel*>(MakeWidget(binder, control, parent));
  label->setAlignment(Qt::AlignCenter);
  QFont font = label->font();
  font.setBold(bold);
  label->setFont(font);
  return label;
}

}  // namespace

LineSample::LineSample(int colour, QWidget* parent) : QWidget(parent), colour_(LiteralColour(colour)) {
  setFixedSize(kSampleSize);
}

void LineSample::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  if (palette().color(QPalette::Window).lightness() < kDark) painter.fillRect(rect(), Qt::white);  // as the plot is
  painter.setPen(QPen(colour_, kSampleWidth));
  painter.drawLine(0, height() / 2, width(), height() / 2);
}

PlotPanel* AddGraph(Binder& binder, QWidget* content, QVBoxLayout& column, const GraphControls& graph) {
  auto* const top = new QHBoxLayout;
  if (graph.unit != nullptr) top->addWidget(MakeWidget(binder, *graph.unit, content));
  top->addWidget(MakeCentred(binder, graph.title, content, true), 1);
  column.addLayout(top);

  auto* const panel = new PlotPanel(*graph.plot.surface, graph.marks, graph.shift, content);
  panel->plot()->setObjectName(QString::fromStdString(graph.plot.FullName()));
  binder.Bind(graph.plot, panel->plot());
  const Control* const readout = graph.plot.readout;
  const Control* const title = &graph.title;
  binder.Follow([panel, readout, title] {
    panel->ShowSurface(*readout);
    panel->plot()->setAccessibleName(Spoken(*title->text));
  });
  column.addWidget(panel, 1);
  column.addWidget(MakeCentred(binder, graph.frequency, content, false));
  return panel;
}

void AddSlot(Binder& binder, QWidget* parent, QGridLayout& grid, int row, const SlotControls& slot) {
  grid.addWidget(MakeWidget(binder, slot.name, parent), row, 0);
  grid.addWidget(new LineSample(slot.colour, parent), row, 1);
  QWidget* const button = MakeWidget(binder, slot.set, parent);
  button->setFixedSize(kSetButton, kSetButton);
  auto* const set_words = static_cast<QLabel*>(MakeWidget(binder, slot.set_words, parent));
  QWidget* const box = MakeWidget(binder, slot.on_off, parent);
  KeepPlace(box);
  auto* const on_off_words = static_cast<QLabel*>(MakeWidget(binder, slot.on_off_words, parent));
  set_words->setBuddy(button);
  on_off_words->setBuddy(box);
  grid.addWidget(button, row, 2);
  grid.addWidget(set_words, row, 3);
  grid.addWidget(box, row, 4);
  grid.addWidget(on_off_words, row, 5);
}

QWidget* MakeLegend(Binder& binder, Control& frame, const std::vector<LegendRow>& rows, QWidget* parent) {
  QGroupBox* const group = MakeGroup(binder, frame, parent);
  auto* const grid = new QGridLayout(group);
  for (const LegendRow& row : rows) {
    const int place = grid->rowCount();
    grid->addWidget(new LineSample(row.colour, group), place, 0);
    grid->addWidget(MakeWidget(binder, row.label, group), place, 1);
  }
  return group;
}

QLayout* MakePower(Binder& binder, QWidget* parent, Control& words, Control& field, Control& unit, Control& button) {
  auto* const grid = new QGridLayout;
  Form form(binder, parent, grid);
  form.Row(words, field, unit);
  grid->addWidget(MakeWidget(binder, button, parent), 0, 3);
  return grid;
}

QLayout* MakeLineMark(Binder& binder, QWidget* parent, Control& words, Control& line) {
  auto* const row = new QHBoxLayout;
  auto* const sample = new LineSample(line.back, parent);
  binder.Bind(line, sample);
  row->addWidget(sample);
  row->addWidget(MakeWidget(binder, words, parent));
  row->addStretch(1);
  return row;
}

}  // namespace zefirondo::screens
