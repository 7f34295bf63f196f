#include "screens/frmairspeed.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "screens/graph_form.h"

namespace zefirondo::screens {
namespace {

constexpr double kHighestFrequency = 1000;  // Hz

}  // namespace

void BuildAirSpeedGraph(Binder& binder, Window& /*window*/, QWidget* content) {
  AirSpeedGraph& form = binder.stage().program.windows.frmairspeed;
  auto* const column = new QVBoxLayout(content);
  AddGraph(binder, content, *column,
           {form.lbltitolo, form.pctgrafair, form.lblfrequenza, FrequencyMarks(kHighestFrequency), &form.lbldb});
  auto* const row = new QHBoxLayout;
  auto* const limits = new QVBoxLayout;
  limits->addLayout(MakeLineMark(binder, content, form.lblairspeed2, form.Line2));
  limits->addLayout(MakeLineMark(binder, content, form.lblairspeed1, form.Line1));
  row->addLayout(limits);
  row->addStretch(1);
  row->addLayout(MakePower(binder, content, form.lblpot, form.txtpot, form.lblrms, form.cmdcalc));
  column->addLayout(row);
}

}  // namespace zefirondo::screens
