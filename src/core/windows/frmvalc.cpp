#include "core/windows/frmvalc.h"

#include "core/windows/describe.h"

namespace zefirondo {
namespace {

using Form = CapacitorTool;
using enum ControlKind;

// clang-format off
const std::vector<ControlRow<Form>> kRows{
    {Label, CONTROL(lbldescriz), {.caption = 322}},
    {Label, CONTROL(lblf1), {.caption = 323}},
    {TextBox, CONTROL(txtf1), {.unit = "Hz"}},
    {Label, CONTROL(lblf2), {.caption = 324}},
    {TextBox, CONTROL(txtf2), {.unit = "Hz"}},
    {Button, CONTROL(cmdavanti), {.caption = 325}},
    {MenuEntry, CONTROL(mnuchiudi), {.caption = 440}},
};
// clang-format on

}  // namespace

CapacitorTool::CapacitorTool(ProjectState& state) {
  window.name = "frmvalc";
  window.caption_design = 321;
  window.centred = true;
  window.takes_focus = true;
  window.width = 5400;
  window.height = 3300;
  DescribeWindow(*this, state, kRows);
}

}  // namespace zefirondo
