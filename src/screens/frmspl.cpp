#include "screens/frmspl.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "screens/graph_form.h"

namespace zefirondo::screens {
namespace {

constexpr double kHighestFrequency = 2000;  // Hz

}  // namespace

void BuildSplGraph(Binder& binder, Window& /*window*/, QWidget* content) {
  SplGraph& form = binder.stage().program.windows.frmspl;
  auto* const column = new QVBoxLayout(content);
  AddGraph(
      binder, content, *column,
      {form.lblnomegrafspl, form.pctgrafspl, form.lblfrequenzaspl, FrequencyMarks(kHighestFrequency), &form.lbldb});
  auto* const row = new QHBoxLayout;
  auto* const traces = new QGridLayout;
  AddSlots(binder, content, *traces, 0, form);
  row->addLayout(traces);
  row->addStretch(1);
  auto* const buttons = new QVBoxLayout;
  buttons->addWidget(MakeWidget(binder, form.cmdsommaspl, content));
  buttons->addWidget(MakeWidget(binder, form.cmdcancellaspl, content));
  row->addLayout(buttons);
  column->addLayout(row);
}

}  // namespace zefirondo::screens
