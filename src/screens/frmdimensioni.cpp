#include "screens/frmdimensioni.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "screens/form.h"

namespace zefirondo::screens {

void BuildDimensionEntry(Binder& binder, QWidget* content) {
  DimensionEntry& entry = binder.stage().program.windows.frmdimensioni;
  auto* const column = new QVBoxLayout(content);
  auto* const grid = new QGridLayout;
  Form form(binder, content, grid);
  for (Control* const field : {&entry.txtLmanual, &entry.txtHmanual, &entry.txtPmanual}) form.Row(*field);
  grid->setColumnStretch(0, 1);
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch(1);
  for (Control* const button : {&entry.cmdinserisci, &entry.cmdannulla}) {
    buttons->addWidget(MakeWidget(binder, *button, content));
  }
  column->addLayout(grid);
  column->addStretch(1);
  column->addLayout(buttons);
}

}  // namespace zefirondo::screens
