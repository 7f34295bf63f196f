#include "core/windows/frmgrafico.h"

#include "core/windows/describe.h"

namespace zefirondo {
namespace {

using Form = ImpedanceGraph;
using enum ControlKind;

// clang-format off
const std::vector<ControlRow<Form>> kRows{
    {Label, CONTROL(lblnomegraf), {.caption = 281}},
    {Label, CONTROL(Text1), {.caption = "O\nh\nm"}},
    {Plot, CONTROL(pctgrafimp), {}},
    {Picture, CONTROL(pctvalori), {}},
    {Label, CONTROL(txtpos), {.visible = false}},
    {Label, CONTROL(lblfrequenza), {.caption = 282}},
    {Menu, CONTROL(mnufilegrafico), {.caption = "&File"}},
    {MenuEntry, CONTROL(mnugrafstampa), {.caption = 443, .parent = "mnufilegrafico"}},
    {MenuEntry, CONTROL(mnuchiudigraf), {.caption = 444, .parent = "mnufilegrafico"}},
    {Menu, CONTROL(mnuinfo3), {.caption = "&?"}},
    {MenuEntry, CONTROL(mnuguida), {.caption = 415, .parent = "mnuinfo3"}},
    {MenuEntry, CONTROL(mnuinformazioni), {.caption = 416, .parent = "mnuinfo3"}},
};
// clang-format on

}  // namespace

ImpedanceGraph::ImpedanceGraph(ProjectState& state) {
  window.name = "frmgrafico";
  window.caption_design = 280;
  window.design_left = 300;
  window.design_top = 1500;
  pctgrafimp.surface = &surface;
  pctgrafimp.readout = &txtpos;
  surface.twips_width = 12690;
  surface.twips_height = 6975;
  DescribeWindow(*this, state, kRows);
  frequencies.Describe(window, state,
                       {"Label10", "Label20", "Label30", "Label40", "Label50", "Label100", "Label200", "Label300",
                        "Label400", "Label1k", "Label2k", "Label3k", "Label4k", "Label5k", "Label10k", "Label20k"});
}

}  // namespace zefirondo
