#include "core/windows/frmwooferconn.h"

#include "core/windows/describe.h"

namespace zefirondo {
namespace {

using Form = WooferWiringChoice;
using enum ControlKind;

// clang-format off
const std::vector<ControlRow<Form>> kRows{
    {Frame, CONTROL(fracollegamento), {.caption = 329}},
    {Label, CONTROL(lblcollegamento), {.caption = 330, .parent = "fracollegamento"}},
    {Option, CONTROL(optbiamp), {.caption = 331, .parent = "fracollegamento"}},
    {Label, CONTROL(lblwarn1), {.caption = 332, .parent = "fracollegamento"}},
    {Option, CONTROL(optparallelo), {.caption = 333, .parent = "fracollegamento"}},
    {Label, CONTROL(lblwarn2), {.caption = 334, .parent = "fracollegamento"}},
    {Option, CONTROL(optserie), {.caption = 335, .parent = "fracollegamento"}},
    {Label, CONTROL(lblwarn3), {.caption = 336, .parent = "fracollegamento"}},
    {Button, CONTROL(Command1), {.caption = "&OK"}},
    {MenuEntry, CONTROL(mnuchiudi), {.caption = 439}},
};
// clang-format on

}  // namespace

WooferWiringChoice::WooferWiringChoice(ProjectState& state) {
  window.name = "frmwooferconn";
  window.caption_design = 328;
  window.centred = true;
  window.takes_focus = true;
  window.width = 7200;
  window.height = 5400;
  DescribeWindow(*this, state, kRows);
}

}  // namespace zefirondo
