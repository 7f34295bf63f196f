#include "core/windows/frmairspeed.h"

#include "core/windows/describe.h"

namespace zefirondo {
namespace {

using Form = AirSpeedGraph;
using enum ControlKind;

// clang-format off
const std::vector<ControlRow<Form>> kRows{
    {Label, CONTROL(lbltitolo), {.caption = 208}},
    {Plot, CONTROL(pctgrafair), {}},
    {Picture, CONTROL(pctvalori), {}},
    {Label, CONTROL(txtpos), {.visible = false}},
    {Label, CONTROL(lbldb), {.caption = "m/s"}},
    {Label, CONTROL(lblfrequenza), {.caption = 242}},
    {Label, CONTROL(lblairspeed2), {.caption = 217}},
    {Picture, CONTROL(Line2), {.back = colour::kBlue}},
    {Label, CONTROL(lblairspeed1), {.caption = 218}},
    {Picture, CONTROL(Line1), {.back = colour::kRed}},
    {Label, CONTROL(lblpot), {.caption = 219}},
    {TextBox, CONTROL(txtpot), {}},
    {Label, CONTROL(lblrms), {.caption = "W rms"}},
    {Button, CONTROL(cmdcalc), {.caption = 220}},
    {Menu, CONTROL(mnufileex), {.caption = "&File"}},
    {MenuEntry, CONTROL(mnuchiudi), {.caption = 459, .parent = "mnufileex"}},
    {Menu, CONTROL(mnuvisualizza), {.caption = 428}},
    {MenuEntry, CONTROL(mnugraffase), {.caption = 429, .parent = "mnuvisualizza"}},
    {MenuEntry, CONTROL(mnuspl), {.caption = 430, .parent = "mnuvisualizza"}},
    {MenuEntry, CONTROL(mnusplmax), {.caption = 433, .parent = "mnuvisualizza"}},
    {MenuEntry, CONTROL(mnuescursione), {.caption = 431, .parent = "mnuvisualizza"}},
    {MenuEntry, CONTROL(mnucalcolatrice), {.caption = 414}},
    {Menu, CONTROL(mnuinfo3), {.caption = "&?"}},
    {MenuEntry, CONTROL(mnuguida), {.caption = 415, .parent = "mnuinfo3"}},
    {MenuEntry, CONTROL(mnuinformazioni), {.caption = 416, .parent = "mnuinfo3"}},
};
// clang-format on

}  // namespace

AirSpeedGraph::AirSpeedGraph(ProjectState& state) {
  window.name = "frmairspeed";
  window.caption_design = 221;
  window.design_left = 5000;
  window.design_top = 715;
  pctgrafair.surface = &surface;
  pctgrafair.readout = &txtpos;
  surface.twips_width = 8850;
  surface.twips_height = 6015;
  DescribeWindow(*this, state, kRows);
  frequencies.Describe(window, state,
                       {"Label10", "Label20", "Label30", "Label40", "Label50", "Label100", "Label200", "Label300",
                        "Label400", "Label1k"});
  DescribeControl(window, frequencies.labels[10], ControlKind::Label, "lbl2k", -1, {}, state);  // empty, as wanted
}

}  // namespace zefirondo
