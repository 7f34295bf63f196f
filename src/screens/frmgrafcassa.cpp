#include "screens/frmgrafcassa.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "screens/graph_form.h"

namespace zefirondo::screens {
namespace {

constexpr double kHighestFrequency = 5000;  // Hz
constexpr int kStepButton = 22;
constexpr int kFieldFrame = 12;

QLayout* MakeTraces(Binder& binder, BoxResponse& form, QWidget* parent) {
  auto* const grid = new QGridLayout;
  auto* const cutoff = new QHBoxLayout;
  auto* const words = static_cast<QLabel*>(MakeWidget(binder, form.lbl3dB, parent));
  QWidget* const field = MakeWidget(binder, form.txtF3dB, parent);
  words->setBuddy(field);
  cutoff->addWidget(words);
  cutoff->addWidget(field);
  cutoff->addWidget(MakeWidget(binder, form.lblhz, parent));
  cutoff->addStretch(1);
  grid->addLayout(cutoff, 0, 0, 1, 6);
  AddSlots(binder, parent, *grid, 1, form);
  grid->setRowStretch(3, 1);
  return grid;
}

QWidget* MakeCalibration(Binder& binder, BoxResponse& form, QWidget* parent) {
  QGroupBox* const group = MakeGroup(binder, form.frmdbcal, parent);
  auto* const grid = new QGridLayout(group);
  auto* const words = static_cast<QLabel*>(MakeWidget(binder, form.Label1, group));
  QWidget* const less = MakeWidget(binder, form.cmdmeno, group);
  QWidget* const field = MakeWidget(binder, form.txtdbcal, group);
  QWidget* const unit = MakeWidget(binder, form.lbldbcal, group);
  QWidget* const more = MakeWidget(binder, form.cmdpiu, group);
  for (QWidget* const button : {less, more}) button->setFixedWidth(kStepButton);
  field->setFixedWidth(field->fontMetrics().horizontalAdvance(QStringLiteral("-00.00")) + kFieldFrame);
  words->setBuddy(field);
  grid->addWidget(words, 0, 0, 1, 4);
  grid->addWidget(less, 1, 0);
  grid->addWidget(field, 1, 1);
  grid->addWidget(unit, 1, 2);
  grid->addWidget(more, 1, 3);
  grid->addWidget(MakeWidget(binder, form.cmdcalibra, group), 2, 0, 1, 4);
  return group;
}

QLayout* MakeButtons(Binder& binder, BoxResponse& form, QWidget* parent) {
  auto* const column = new QVBoxLayout;
  column->addStretch(1);
  column->addWidget(MakeWidget(binder, form.cmdsomma, parent));
  column->addWidget(MakeWidget(binder, form.cmdcancella, parent));
  return column;
}

}  // namespace

void BuildBoxResponse(Binder& binder, Window& /*window*/, QWidget* content) {
  BoxResponse& form = binder.stage().program.windows.frmgrafcassa;
  auto* const column = new QVBoxLayout(content);
  AddGraph(binder, content, *column,
           {form.lblnomegraf, form.pctgraf, form.lblfrequenza, FrequencyMarks(kHighestFrequency)});
  auto* const row = new QHBoxLayout;
  row->addLayout(MakeTraces(binder, form, content));
  row->addStretch(1);
  row->addWidget(MakeLegend(binder, form.fraleggenda,
                            {{form.lblcassa, colour::kBlack},
                             {form.lblfiltro, colour::kOrange},
                             {form.lblimport, colour::kGreen},
                             {form.lblsomma, colour::kMagenta}},
                            content));
  row->addWidget(MakeCalibration(binder, form, content));
  row->addLayout(MakeButtons(binder, form, content));
  column->addLayout(row);
}

}  // namespace zefirondo::screens
