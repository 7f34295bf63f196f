#include "core/windows/frmFase.h"

#include "core/windows/describe.h"

namespace zefirondo {
namespace {

using Form = PhaseGraph;
using enum ControlKind;

// clang-format off
const std::vector<ControlRow<Form>> kRows{
    {Label, CONTROL(lbltitolo), {.caption = 237}},
    {Plot, CONTROL(pctgrafFase), {}},
    {Label, CONTROL(txtposFase), {.visible = false}},
    {Label, CONTROL(lblfrequenza), {.caption = 242}},
    {Label, CONTROL(lbl180), {.caption = "180"}},
    {Label, CONTROL(lbl135), {.caption = "135"}},
    {Label, CONTROL(lbl90), {.caption = "90"}},
    {Label, CONTROL(lbl45), {.caption = "45"}},
    {Label, CONTROL(lbl0), {.caption = "0"}},
    {Label, CONTROL(lbl_45), {.caption = "-45"}},
    {Label, CONTROL(lbl_90), {.caption = "-90"}},
    {Label, CONTROL(lbl_135), {.caption = "-135"}},
    {Label, CONTROL(lbl_180), {.caption = "-180"}},
    {Frame, CONTROL(fraleggenda), {.caption = 238}},
    {Label, CONTROL(Label1), {.caption = 239, .parent = "fraleggenda"}},
    {Label, CONTROL(Label2), {.caption = 240, .parent = "fraleggenda"}},
    {Label, CONTROL(Label3), {.caption = 241, .parent = "fraleggenda"}},
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
    {Menu, CONTROL(mnufilefase), {.caption = "&File"}},
    {MenuEntry, CONTROL(mnuimportafase), {.caption = 456, .parent = "mnufilefase"}},
    {MenuEntry, CONTROL(mnusalvarosso), {.caption = 435, .parent = "mnufilefase", .enabled = false}},
    {MenuEntry, CONTROL(mnusalvablu), {.caption = 436, .parent = "mnufilefase", .enabled = false}},
    {MenuEntry, CONTROL(mnuchiudifase), {.caption = 457, .parent = "mnufilefase"}},
    {Menu, CONTROL(mnuvisualizzafase), {.caption = 428}},
    {MenuEntry, CONTROL(mnuspl), {.caption = 430, .parent = "mnuvisualizzafase"}},
    {MenuEntry, CONTROL(mnusplmax), {.caption = 433, .parent = "mnuvisualizzafase"}},
    {MenuEntry, CONTROL(mnuescursione), {.caption = 431, .parent = "mnuvisualizzafase"}},
    {MenuEntry, CONTROL(mnuairspeed), {.caption = 432, .parent = "mnuvisualizzafase"}},
    {MenuEntry, CONTROL(mnucalcolatrice), {.caption = 414}},
    {Menu, CONTROL(mnuinfoFase), {.caption = "&?"}},
    {MenuEntry, CONTROL(mnuguida), {.caption = 415, .parent = "mnuinfoFase"}},
    {MenuEntry, CONTROL(mnuinformazioni), {.caption = 416, .parent = "mnuinfoFase"}},
};
// clang-format on

}  // namespace

PhaseGraph::PhaseGraph(ProjectState& state) {
  window.name = "frmFase";
  window.caption_design = 237;
  window.design_left = 5000;
  window.design_top = 0;
  pctgrafFase.surface = &surface;
  pctgrafFase.readout = &txtposFase;
  surface.twips_width = 8850;
  surface.twips_height = 6015;
  DescribeWindow(*this, state, kRows);
  frequencies.Describe(window, state,
                       {"Label10", "Label20", "Label30", "Label40", "Label50", "Label100", "Label200", "Label300",
                        "Label400", "Label1k", "lbl2k", "lbl3k", "lbl4k", "lbl5k"});
}

}  // namespace zefirondo
