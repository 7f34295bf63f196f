#include "core/windows/frmbox.h"

#include "core/windows/describe.h"

namespace zefirondo {
namespace {

using Form = BoxTypeChoice;
using enum ControlKind;

// clang-format off
const std::vector<ControlRow<Form>> kRows{
    {Label, CONTROL(lbltesto), {.caption = 455}},
    {Label, CONTROL(lblebp), {.caption = "EBP"}},
    {TextBox, CONTROL(txtebp), {.unit = "Hz", .locked = true, .back = colour::kGrey}},
    {Label, CONTROL(lbltipobox), {.caption = 454}},
    {ComboBox, CONTROL(cmbtipobox), {.list = {"Reflex", "Closed"}}},
    {Button, CONTROL(cmdok), {.caption = "&OK"}},
    {MenuEntry, CONTROL(mnuchiudi), {.caption = 452}},
};
// clang-format on

}  // namespace

BoxTypeChoice::BoxTypeChoice(ProjectState& state) {
  window.name = "frmbox";
  window.caption_design = 454;
  window.centred = true;
  window.takes_focus = true;
  window.width = 5400;
  window.height = 2700;
  DescribeWindow(*this, state, kRows);
}

}  // namespace zefirondo
