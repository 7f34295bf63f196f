#include "core/windows/frmAbout.h"

#include "core/windows/describe.h"

namespace zefirondo {
namespace {

using Form = About;
using enum ControlKind;

// clang-format off
const std::vector<ControlRow<Form>> kRows{
    {Picture, CONTROL(picIcon), {}},
    {Label, CONTROL(lblTitle), {.caption = "Zefirondo"}},
    {Label, CONTROL(lblVersion), {}},
    {Label, CONTROL(lblDescription), {.caption = 212}},
    {Label, CONTROL(lblDisclaimer), {.caption = 213}},
    {Label, CONTROL(lblcontact), {.caption = 214}},
    {Button, CONTROL(cmdok), {.caption = "&OK"}},
    {Button, CONTROL(cmdSysInfo), {.caption = "&System Info..."}},
    {MenuEntry, CONTROL(mnuchiudi), {.caption = 452}},
};
// clang-format on

}  // namespace

About::About(ProjectState& state) {
  window.name = "frmAbout";
  window.caption_design = 203;
  window.centred = true;
  window.takes_focus = true;
  window.width = 6600;
  window.height = 4800;
  DescribeWindow(*this, state, kRows);
}

}  // namespace zefirondo
