#include "core/windows/frmsommadelay.h"

#include "core/windows/describe.h"

namespace zefirondo {
namespace {

using Form = DelayEntry;
using enum ControlKind;

// clang-format off
const std::vector<ControlRow<Form>> kRows{
    {Option, CONTROL(opt1), {.caption = 309}},
    {TextBox, CONTROL(txtfase1), {}},
    {Label, CONTROL(lblms1), {.caption = "ms"}},
    {Option, CONTROL(opt2), {.caption = "Magenta"}},
    {TextBox, CONTROL(txtfase2), {}},
    {Label, CONTROL(lblms2), {.caption = "ms"}},
    {Button, CONTROL(cmdsfasadelay), {.caption = 310}},
    {Button, CONTROL(cmdannulla), {.caption = 311, .enabled = false}},
    {Button, CONTROL(cmdchiudi), {.caption = 312}},
    {MenuEntry, CONTROL(mnuchiudi), {.caption = 441}},
};
// clang-format on

}  // namespace

DelayEntry::DelayEntry(ProjectState& state) {
  window.name = "frmsommadelay";
  window.caption_design = 308;
  window.centred = true;
  window.takes_focus = true;
  window.width = 5100;
  window.height = 3000;
  DescribeWindow(*this, state, kRows);
}

}  // namespace zefirondo
