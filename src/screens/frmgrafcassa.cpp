#include "screens/frmgrafcassa.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "screens/form.h"
#include "screens/looks.h"
#include "screens/plot_panel.h"
#include "screens/plot_widget.h"

namespace zefirondo::screens {
namespace {

constexpr double kHighestFrequency = 5000;  // Hz
constexpr QSize kSampleSize(22, 10);
constexpr int kSmallButton = 22;

/// A short line in the colour of a curve.
class LineSample : public QWidget {
 public:
  LineSample(int colour, QWidget* parent) : QWidget(parent), colour_(LiteralColour(colour)) {
    setFixedSize(kSampleSize);
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setPen(QPen(colour_, 2));
    painter.drawLine(0, height() / 2, width(), height() / 2);
  }

 private:
  QColor colour_;
};

struct SlotControls {
  Control& name;
  Control& set;
  Control& set_words;
  Control& on_off;
  Control& on_off_words;
  int colour;
};

/// One stored trace in a row: its name and colour, the button that stores, the check box that shows.
void AddSlot(Binder& binder, QWidget* parent, QGridLayout& grid, int row, const SlotControls& slot) {
  QWidget* const button = MakeWidget(binder, slot.set, parent);
  button->setFixedSize(kSmallButton, kSmallButton);
  QWidget* const box = MakeWidget(binder, slot.on_off, parent);
  KeepPlace(box);
  auto* const set_words = static_cast<QLabel*>(MakeWidget(binder, slot.set_words, parent));
  auto* const on_off_words = static_cast<QLabel*>(MakeWidget(binder, slot.on_off_words, parent));
  set_words->setBuddy(button);
  on_off_words->setBuddy(box);
  grid.addWidget(MakeWidget(binder, slot.name, parent), row, 0);
  grid.addWidget(new LineSample(slot.colour, parent), row, 1);
  grid.addWidget(button, row, 2);
  grid.addWidget(set_words, row, 3);
  grid.addWidget(box, row, 4);
  grid.addWidget(on_off_words, row, 5);
}

QLayout* MakeTraces(Binder& binder, QWidget* parent) {
  BoxResponse& form = binder.stage().program.windows.frmgrafcassa;
  auto* const grid = new QGridLayout;
  AddSlot(binder, parent, *grid, 1,
          {form.lblovl1, form.cmdset1, form.lblset1, form.chkonoff1, form.lblonoff1, colour::kRed});
  AddSlot(binder, parent, *grid, 2,
          {form.lblovl2, form.cmdset2, form.lblset2, form.chkonoff2, form.lblonoff2, colour::kBlue});
  auto* const words = static_cast<QLabel*>(MakeWidget(binder, form.lbl3dB, parent));
  auto* const cutoff = new QHBoxLayout;
  QWidget* const field = MakeWidget(binder, form.txtF3dB, parent);
  words->setBuddy(field);
  cutoff->addWidget(words);
  cutoff->addWidget(field);
  cutoff->addWidget(MakeWidget(binder, form.lblhz, parent));
  cutoff->addStretch(1);
  grid->addLayout(cutoff, 0, 0, 1, 6);
  grid->setRowStretch(3, 1);
  return grid;
}

QWidget* MakeLegend(Binder& binder, QWidget* parent) {
  BoxResponse& form = binder.stage().program.windows.frmgrafcassa;
  QGroupBox* const group = MakeGroup(binder, form.fraleggenda, parent);
  auto* const grid = new QGridLayout(group);
  int row = 0;
  for (const auto& [label, colour] : {std::pair(&form.lblcassa, colour::kBlack), {&form.lblfiltro, colour::kOrange},
                                      {&form.lblimport, colour::kGreen}, {&form.lblsomma, colour::kMagenta}}) {
    grid->addWidget(new LineSample(colour, group), row, 0);
    grid->addWidget(MakeWidget(binder, *label, group), row, 1);
    ++row;
  }
  return group;
}

QWidget* MakeCalibration(Binder& binder, QWidget* parent) {
  BoxResponse& form = binder.stage().program.windows.frmgrafcassa;
  QGroupBox* const group = MakeGroup(binder, form.frmdbcal, parent);
  auto* const grid = new QGridLayout(group);
  auto* const words = static_cast<QLabel*>(MakeWidget(binder, form.Label1, group));
  QWidget* const less = MakeWidget(binder, form.cmdmeno, group);
  QWidget* const field = MakeWidget(binder, form.txtdbcal, group);
  QWidget* const unit = MakeWidget(binder, form.lbldbcal, group);
  QWidget* const more = MakeWidget(binder, form.cmdpiu, group);
  for (QWidget* const button : {less, more}) button->setFixedWidth(kSmallButton);
  field->setFixedWidth(field->fontMetrics().horizontalAdvance(QStringLiteral("-00.00")) + 12);
  words->setBuddy(field);
  grid->addWidget(words, 0, 0, 1, 4);
  grid->addWidget(less, 1, 0);
  grid->addWidget(field, 1, 1);
  grid->addWidget(unit, 1, 2);
  grid->addWidget(more, 1, 3);
  grid->addWidget(MakeWidget(binder, form.cmdcalibra, group), 2, 0, 1, 4);
  return group;
}

QLayout* MakeButtons(Binder& binder, QWidget* parent) {
  BoxResponse& form = binder.stage().program.windows.frmgrafcassa;
  auto* const column = new QVBoxLayout;
  column->addStretch(1);
  column->addWidget(MakeWidget(binder, form.cmdsomma, parent));
  column->addWidget(MakeWidget(binder, form.cmdcancella, parent));
  return column;
}

PlotPanel* MakePlot(Binder& binder, QWidget* parent) {
  BoxResponse& form = binder.stage().program.windows.frmgrafcassa;
  auto* const panel = new PlotPanel(form.surface, FrequencyMarks(kHighestFrequency), parent);
  panel->plot()->setObjectName(QStringLiteral("pctgraf"));
  binder.Bind(form.pctgraf, panel->plot());
  binder.Follow([panel, &form] { panel->ShowSurface(form.txtpos); });
  return panel;
}

}  // namespace

void BuildBoxResponse(Binder& binder, QWidget* content) {
  BoxResponse& form = binder.stage().program.windows.frmgrafcassa;
  auto* const column = new QVBoxLayout(content);
  auto* const title = static_cast<QLabel*>(MakeWidget(binder, form.lblnomegraf, content));
  title->setAlignment(Qt::AlignCenter);
  QFont bold = title->font();
  bold.setBold(true);
  title->setFont(bold);
  auto* const below = static_cast<QLabel*>(MakeWidget(binder, form.lblfrequenza, content));
  below->setAlignment(Qt::AlignCenter);
  column->addWidget(title);
  column->addWidget(MakePlot(binder, content), 1);
  column->addWidget(below);
  auto* const row = new QHBoxLayout;
  row->addLayout(MakeTraces(binder, content));
  row->addStretch(1);
  row->addWidget(MakeLegend(binder, content));
  row->addWidget(MakeCalibration(binder, content));
  row->addLayout(MakeButtons(binder, content));
  column->addLayout(row);
}

}  // namespace zefirondo::screens
