#include "core/windows/frmfiltri.h"

#include "core/windows/describe.h"

namespace zefirondo {
namespace {

using Form = FilterDesigner;
using enum ControlKind;

// clang-format off
const std::vector<ControlRow<Form>> kRows{
    {Label, CONTROL(lblallineamento), {.caption = 258}},
    {ComboBox, CONTROL(cmballineamento), {.text = "Butterworth", .list = {"Butterworth", "Bessel", "Shelving", "Peaking"}}},
    {Label, CONTROL(lbltipo), {.caption = 259}},
    {ComboBox, CONTROL(cmbtipo), {.text = "Low Pass", .list = {"Low Pass", "Hi Pass", "Band Pass"}}},
    {Label, CONTROL(lblpendenza), {.caption = 261}},
    {ComboBox, CONTROL(cmbpendenza), {.text = "12 dB/Oct", .list = {"6 dB/Oct", "12 dB/Oct", "18 dB/Oct", "24 dB/Oct"}}},
    {Label, CONTROL(lblQ), {.caption = 260}},
    {ComboBox, CONTROL(cmbQ), {.text = "0.707", .list = {"0.5", "0.707", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}}},
    {Label, CONTROL(lblboost), {.caption = 264}},
    {ComboBox, CONTROL(cmbgain), {.unit = "dB", .text = "0.0",
                                  .list = {"-10", "-9", "-8", "-7", "-6", "-5", "-4", "-3", "-2", "-1", "0.0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}}},
    {Label, CONTROL(lblft), {.caption = 262}},
    {TextBox, CONTROL(txtft), {.text = "50"}},
    {Label, CONTROL(lblfl), {.caption = "Hz"}},
    {Label, CONTROL(lblFh), {.caption = 263}},
    {TextBox, CONTROL(txtFinf), {.text = "20"}},
    {Label, CONTROL(lblfhi), {.caption = "Hz"}},
    {Button, CONTROL(cmdvisualizza), {.caption = 265}},
    {Button, CONTROL(cmdcanc), {.caption = 266, .enabled = false}},
    {Button, CONTROL(cmdannulla), {.caption = 267}},
    {Menu, CONTROL(mnusintesi), {.caption = 449}},
    {Menu, CONTROL(mnupassivo), {.caption = 450, .parent = "mnusintesi"}},
    {MenuEntry, CONTROL(mnulowpass), {.caption = "&Low Pass", .parent = "mnupassivo"}},
    {MenuEntry, CONTROL(mnuhipass), {.caption = "&Hi Pass", .parent = "mnupassivo"}},
    {MenuEntry, CONTROL(mnuattivo), {.caption = 451, .parent = "mnusintesi"}},
    {MenuEntry, CONTROL(mnucalcolatrice), {.caption = 414}},
    {MenuEntry, CONTROL(mnuchiudi), {.caption = 452}},
    {Menu, CONTROL(mnuinfo), {.caption = "&?"}},
    {MenuEntry, CONTROL(mnuguida), {.caption = 415, .parent = "mnuinfo"}},
    {MenuEntry, CONTROL(mnuinformazioni), {.caption = 416, .parent = "mnuinfo"}},
};
// clang-format on

}  // namespace

FilterDesigner::FilterDesigner(ProjectState& state) {
  window.name = "frmfiltri";
  window.caption_design = 257;
  window.centred = true;
  window.takes_focus = true;
  window.width = 5700;
  window.height = 4800;
  window.values = {{"Alignment", &Alignment},
                   {"FilterType", &FilterType},
                   {"SlopeOrder", &SlopeOrder},
                   {"Gain", &Gain},
                   {"Ft", &Ft},
                   {"Fi", &Fi}};
  DescribeWindow(*this, state, kRows);
}

}  // namespace zefirondo
