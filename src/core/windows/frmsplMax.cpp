#include "core/windows/frmsplMax.h"

#include "core/windows/describe.h"

namespace zefirondo {
namespace {

using Form = SplMaxGraph;
using enum ControlKind;

// clang-format off
const std::vector<ControlRow<Form>> kRows{
    {Label, CONTROL(lblnomegrafspl), {.caption = 317}},
    {Plot, CONTROL(pctgrafspl), {}},
    {Picture, CONTROL(pctvalori), {}},
    {Label, CONTROL(txtpos), {.visible = false}},
    {Label, CONTROL(lbldb), {.caption = "dB"}},
    {Label, CONTROL(lblfrequenzaspl), {.caption = 320}},
    {Label, CONTROL(lblpot), {.caption = 318}},
    {TextBox, CONTROL(txtpot), {}},
    {Label, CONTROL(lblrms), {.caption = "W rms"}},
    {Button, CONTROL(cmdcalc), {.caption = 319}},
    {Menu, CONTROL(mnufile), {.caption = "&File"}},
    {MenuEntry, CONTROL(mnuchiudi), {.caption = 427, .parent = "mnufile"}},
    {Menu, CONTROL(mnuvisualizza), {.caption = 428}},
    {MenuEntry, CONTROL(mnugraffase), {.caption = 429, .parent = "mnuvisualizza"}},
    {MenuEntry, CONTROL(mnuspl), {.caption = 430, .parent = "mnuvisualizza"}},
    {MenuEntry, CONTROL(mnuescursione), {.caption = 431, .parent = "mnuvisualizza"}},
    {MenuEntry, CONTROL(mnuairspeed), {.caption = 432, .parent = "mnuvisualizza"}},
    {MenuEntry, CONTROL(mnucalcolatrice), {.caption = 414}},
    {Menu, CONTROL(mnuinfo4), {.caption = "&?"}},
    {MenuEntry, CONTROL(mnuguida), {.caption = 415, .parent = "mnuinfo4"}},
    {MenuEntry, CONTROL(mnuinformazioni), {.caption = 416, .parent = "mnuinfo4"}},
};
// clang-format on

}  // namespace

SplMaxGraph::SplMaxGraph(ProjectState& state) {
  window.name = "frmsplMax";
  window.caption_design = "SplMax";
  window.design_left = 5000;
  window.design_top = 1515;
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
