#include "screens/frmsplMax.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "screens/graph_form.h"

namespace zefirondo::screens {
namespace {

constexpr double kHighestFrequency = 2000;  // Hz

}  // namespace

void BuildSplMaxGraph(Binder& binder, Window& /*window*/, QWidget* content) {
  SplMaxGraph& form = binder.stage().program.windows.frmsplMax;
  auto* const column = new QVBoxLayout(content);
  AddGraph(
      binder, content, *column,
      {form.lblnomegrafspl, form.pctgrafspl, form.lblfrequenzaspl, FrequencyMarks(kHighestFrequency), &form.lbldb});
  auto* const row = new QHBoxLayout;
  row->addStretch(1);
  row->addLayout(MakePower(binder, content, form.lblpot, form.txtpot, form.lblrms, form.cmdcalc));
  column->addLayout(row);
}

}  // namespace zefirondo::screens
