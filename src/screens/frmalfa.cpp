#include "screens/frmalfa.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "screens/form.h"

namespace zefirondo::screens {

/// Each row of the chart is an option with its label at the left; a field stands in the column of the options.
void BuildAlignmentChart(Binder& binder, Window& window, QWidget* content) {
  AlignmentChart& chart = binder.stage().program.windows.frmalfa;
  auto* const column = new QVBoxLayout(content);
  auto* const grid = new QGridLayout;
  Form form(binder, content, grid);
  Control* label = nullptr;
  for (Control* const control : window.controls) {
    if (control->kind == ControlKind::Label) label = control;
    if (control->kind != ControlKind::Option || label == nullptr) continue;
    form.Row(MakeWidget(binder, *label, content), MakeWidget(binder, *control, content));
  }
  form.Row(chart.lblVbSuVas, chart.txtVbsuVas);
  form.Row(chart.lblFbsuFs, chart.txtFbSuFs);
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(MakeWidget(binder, chart.cmdok, content));
  column->addLayout(grid);
  column->addStretch(1);
  column->addLayout(buttons);
}

}  // namespace zefirondo::screens
