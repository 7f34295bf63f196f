#include "screens/frmescursione.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "screens/graph_form.h"

namespace zefirondo::screens {
namespace {

constexpr double kHighestFrequency = 1000;  // Hz

}  // namespace

void BuildExcursionGraph(Binder& binder, Window& /*window*/, QWidget* content) {
  ExcursionGraph& form = binder.stage().program.windows.frmescursione;
  auto* const column = new QVBoxLayout(content);
  AddGraph(binder, content, *column,
           {form.lbltitolo, form.pctgrafex, form.lblfrequenza, FrequencyMarks(kHighestFrequency), &form.lbldb});
  auto* const row = new QHBoxLayout;
  row->addLayout(MakeLineMark(binder, content, form.lblescursione, form.Line1));
  row->addStretch(1);
  row->addLayout(MakePower(binder, content, form.lblpot, form.txtpot, form.lblrms, form.cmdcalc));
  column->addLayout(row);
}

}  // namespace zefirondo::screens
