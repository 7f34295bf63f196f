#include "screens/frmFaseSh.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "screens/graph_form.h"

namespace zefirondo::screens {
namespace {

constexpr double kShift = 10;      // this plot has its curves at 20·log10(f) - 10
constexpr int kStepOfLevels = 45;  // degrees
constexpr int kHighestLevel = 180;

std::vector<FrequencyMark> Marks() {
  return {{10, "10"},   {20, "20"},   {30, "30"},   {40, "40"},   {50, "50"},     {60, "60"},    {70, "70"},
          {80, "80"},   {90, "90"},   {100, "100"}, {200, "200"}, {300, "300"},   {400, "400"},  {1000, "1k"},
          {2000, "2k"}, {3000, "3k"}, {5000, "5k"}, {7000, "7k"}, {10000, "10k"}, {20000, "20k"}};
}

std::vector<StripLabel> Levels() {
  std::vector<StripLabel> levels;
  for (int level = kHighestLevel; level >= -kHighestLevel; level -= kStepOfLevels) {
    levels.push_back({std::to_string(level), static_cast<double>(kHighestLevel - level)});
  }
  return levels;
}

}  // namespace

void BuildPhaseOffsetTool(Binder& binder, Window& /*window*/, QWidget* content) {
  PhaseOffsetTool& form = binder.stage().program.windows.frmFaseSh;
  auto* const column = new QVBoxLayout(content);
  PlotPanel* const panel = AddGraph(binder, content, *column,
                                    {form.lbltitolo, form.pctgrafFase, form.lblfrequenza, Marks(), nullptr, kShift});
  panel->SetFixedValues(Levels());
  auto* const row = new QHBoxLayout;
  auto* const traces = new QGridLayout;
  AddSlots(binder, content, *traces, 0, form);
  row->addLayout(traces);
  row->addStretch(1);
  auto* const buttons = new QGridLayout;
  buttons->addWidget(MakeWidget(binder, form.cmdimporta, content), 0, 0);
  buttons->addWidget(MakeWidget(binder, form.cmdcalcola, content), 0, 1);
  buttons->addWidget(MakeWidget(binder, form.cmdsomma, content), 0, 2);
  buttons->addWidget(MakeWidget(binder, form.cmdcancella, content), 1, 1);
  buttons->addWidget(MakeWidget(binder, form.cmdchiudi, content), 1, 2);
  row->addLayout(buttons);
  column->addLayout(row);
}

}  // namespace zefirondo::screens
