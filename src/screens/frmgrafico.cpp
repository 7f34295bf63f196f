#include "screens/frmgrafico.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "screens/graph_form.h"

namespace zefirondo::screens {
namespace {

constexpr double kHighestFrequency = 20000;  // Hz

}  // namespace

void BuildImpedanceGraph(Binder& binder, Window& /*window*/, QWidget* content) {
  ImpedanceGraph& form = binder.stage().program.windows.frmgrafico;
  auto* const row = new QHBoxLayout(content);
  row->addWidget(MakeWidget(binder, form.Text1, content));
  auto* const column = new QVBoxLayout;
  AddGraph(binder, content, *column,
           {form.lblnomegraf, form.pctgrafimp, form.lblfrequenza, FrequencyMarks(kHighestFrequency)});
  row->addLayout(column, 1);
}

}  // namespace zefirondo::screens
