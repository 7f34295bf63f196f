#include "screens/frmFase.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <array>

#include "screens/graph_form.h"

namespace zefirondo::screens {
namespace {

constexpr double kHighestFrequency = 5000;  // Hz
constexpr double kStepOfLevels = 45;        // degrees

/// The levels stand beside their lines, from the top down.
std::vector<StripLabel> Levels(const PhaseGraph& form) {
  const std::array labels{&form.lbl180, &form.lbl135, &form.lbl90,   &form.lbl45,  &form.lbl0,
                          &form.lbl_45, &form.lbl_90, &form.lbl_135, &form.lbl_180};
  std::vector<StripLabel> levels;
  levels.reserve(labels.size());
  for (const Control* const label : labels) {
    levels.push_back({*label->text, kStepOfLevels * static_cast<double>(levels.size())});
  }
  return levels;
}

}  // namespace

void BuildPhaseGraph(Binder& binder, Window& /*window*/, QWidget* content) {
  PhaseGraph& form = binder.stage().program.windows.frmFase;
  auto* const column = new QVBoxLayout(content);
  PlotPanel* const panel =
      AddGraph(binder, content, *column,
               {form.lbltitolo, form.pctgrafFase, form.lblfrequenza, FrequencyMarks(kHighestFrequency)});
  panel->SetFixedValues(Levels(form));
  auto* const row = new QHBoxLayout;
  auto* const traces = new QGridLayout;
  AddSlots(binder, content, *traces, 0, form);
  traces->setRowStretch(2, 1);
  row->addLayout(traces);
  row->addStretch(1);
  row->addWidget(MakeLegend(
      binder, form.fraleggenda,
      {{form.Label1, colour::kBlack}, {form.Label2, colour::kOrange}, {form.Label3, colour::kMagenta}}, content));
  column->addLayout(row);
}

}  // namespace zefirondo::screens
