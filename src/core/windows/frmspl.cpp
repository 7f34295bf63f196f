#include "core/windows/frmspl.h"

#include "core/windows/describe.h"

namespace zefirondo {
namespace {

using Form = SplGraph;
using enum ControlKind;

// clang-format off
const std::vector<ControlRow<Form>> kRows{
    {Label, CONTROL(lblnomegrafspl), {.caption = 313}},
    {Plot, CONTROL(pctgrafspl), {}},
    {Picture, CONTROL(pctvalori), {}},
    {Label, CONTROL(txtpos), {.visible = false}},
    {Label, CONTROL(lbldb), {.caption = "dB"}},
    {Label, CONTROL(lblfrequenzaspl), {.caption = 316}},
    {Label, CONTROL(lblovl1), {.caption = "Trk1"}},
    {Button, CONTROL(cmdset1), {}},
    {Label, CONTROL(lblset1), {.caption = "Set"}},
    {CheckBox, CONTROL(chkonoff1), {.visible = false}},
    {Label, CONTROL(lblonoff1), {.caption = "On/Off"}},
    {Label, CONTROL(lblovl2), {.caption = "Trk2"}},
    {Button, CONTROL(cmdset2), {}},
    {Label, CONTROL(lblset2), {.caption = "Set"}},
    {CheckBox, CONTROL(chkonoff2), {.visible = false}},
    {Label, CONTROL(lblonoff2), {.caption = "On/Off"}},
    {Button, CONTROL(cmdsommaspl), {.caption = 314, .enabled = false}},
    {Button, CONTROL(cmdcancellaspl), {.caption = 315, .enabled = false}},
    {Menu, CONTROL(mnufile), {.caption = "&File"}},
    {MenuEntry, CONTROL(mnuimportatracciato), {.caption = 434, .parent = "mnufile"}},
    {MenuEntry, CONTROL(mnusalvasplRosso), {.caption = 435, .parent = "mnufile", .enabled = false}},
    {MenuEntry, CONTROL(mnusalvaSplBlu), {.caption = 436, .parent = "mnufile", .enabled = false}},
    {MenuEntry, CONTROL(mnuimportaOverlay), {.caption = 437, .parent = "mnufile"}},
    {MenuEntry, CONTROL(mnuchiudi), {.caption = 438, .parent = "mnufile"}},
    {Menu, CONTROL(mnuvisualizza), {.caption = 428}},
    {MenuEntry, CONTROL(mnugraffase), {.caption = 429, .parent = "mnuvisualizza"}},
    {MenuEntry, CONTROL(mnusplmax), {.caption = 433, .parent = "mnuvisualizza"}},
    {MenuEntry, CONTROL(mnuescursione), {.caption = 431, .parent = "mnuvisualizza"}},
    {MenuEntry, CONTROL(mnuairspeed), {.caption = 432, .parent = "mnuvisualizza"}},
    {MenuEntry, CONTROL(mnucalcolatrice), {.caption = 414}},
    {Menu, CONTROL(mnuinfo4), {.caption = "&?"}},
    {MenuEntry, CONTROL(mnuguida), {.caption = 415, .parent = "mnuinfo4"}},
    {MenuEntry, CONTROL(mnuinformazioni), {.caption = 416, .parent = "mnuinfo4"}},
};
// clang-format on

}  // namespace

SplGraph::SplGraph(ProjectState& state) {
  window.name = "frmspl";
  window.caption_design = "Spl @ 1W/1m";
  window.design_left = 5000;
  window.design_top = 2315;
  pctgrafspl.surface = &surface;
  pctgrafspl.readout = &txtpos;
  surface.twips_width = 8850;
  surface.twips_height = 6015;
  DescribeWindow(*this, state, kRows);
  frequencies.Describe(window, state,
                       {"Label10", "Label20", "Label30", "Label40", "Label50", "Label100", "Label200", "Label300",
                        "Label400", "Label1k", "lbl2k"});
}

}  // namespace zefirondo
