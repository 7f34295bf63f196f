#include "core/windows/frmFaseSh.h"

#include "core/windows/describe.h"

namespace zefirondo {
namespace {

using Form = PhaseOffsetTool;
using enum ControlKind;

// clang-format off
const std::vector<ControlRow<Form>> kRows{
    {Label, CONTROL(lbltitolo), {.caption = 237}},
    {Plot, CONTROL(pctgrafFase), {}},
    {Label, CONTROL(txtposFase), {.visible = false}},
    {Label, CONTROL(lblfrequenza), {.caption = 254}},
    {Label, CONTROL(lblovl1), {.caption = "Ovl1"}},
    {Button, CONTROL(cmdset1), {.enabled = false}},
    {Label, CONTROL(lblset1), {.caption = "Set"}},
    {CheckBox, CONTROL(chkonoff1), {.visible = false}},
    {Label, CONTROL(lblonoff1), {.caption = "On/Off"}},
    {Label, CONTROL(lblovl2), {.caption = "Ovl2"}},
    {Button, CONTROL(cmdset2), {.enabled = false}},
    {Label, CONTROL(lblset2), {.caption = "Set"}},
    {CheckBox, CONTROL(chkonoff2), {.visible = false}},
    {Label, CONTROL(lblonoff2), {.caption = "On/Off"}},
    {Button, CONTROL(cmdimporta), {.caption = 251}},
    {Button, CONTROL(cmdcalcola), {.caption = 252, .enabled = false}},
    {Button, CONTROL(cmdsomma), {.caption = 253, .enabled = false}},
    {Button, CONTROL(cmdcancella), {.caption = 255}},
    {Button, CONTROL(cmdchiudi), {.caption = 256}},
    {Menu, CONTROL(mnufilefase), {.caption = "&File"}},
    {MenuEntry, CONTROL(mnuimportafase), {.caption = 453, .parent = "mnufilefase"}},
    {MenuEntry, CONTROL(mnusalvarosso), {.caption = 435, .parent = "mnufilefase", .enabled = false}},
    {MenuEntry, CONTROL(mnusalvablu), {.caption = 436, .parent = "mnufilefase", .enabled = false}},
    {MenuEntry, CONTROL(mnuchiudifase), {.caption = 452, .parent = "mnufilefase"}},
    {MenuEntry, CONTROL(mnucalcolatrice), {.caption = 414}},
    {Menu, CONTROL(mnuinfoFase), {.caption = "&?"}},
    {MenuEntry, CONTROL(mnuguida), {.caption = 415, .parent = "mnuinfoFase"}},
    {MenuEntry, CONTROL(mnuinformazioni), {.caption = 416, .parent = "mnuinfoFase"}},
};
// clang-format on

}  // namespace

PhaseOffsetTool::PhaseOffsetTool(ProjectState& state) {
  window.name = "frmFaseSh";
  window.caption_design = 249;
  pctgrafFase.surface = &surface;
  pctgrafFase.readout = &txtposFase;
  surface.twips_width = 8850;
  surface.twips_height = 6015;
  DescribeWindow(*this, state, kRows);
}

}  // namespace zefirondo
