#include "core/windows/frmopzioni.h"

#include "core/windows/describe.h"

namespace zefirondo {
namespace {

using Form = ProjectOptions;
using enum ControlKind;

// clang-format off
const std::vector<ControlRow<Form>> kRows{
    {Frame, CONTROL(fracollegamento), {.caption = 300}},
    {Label, CONTROL(lblcollegamento), {.caption = 301, .parent = "fracollegamento"}},
    {Option, CONTROL(optbiamp), {.caption = 302, .parent = "fracollegamento"}},
    {Option, CONTROL(optparallelo), {.caption = 303, .parent = "fracollegamento"}},
    {Option, CONTROL(optserie), {.caption = 304, .parent = "fracollegamento"}},
    {Frame, CONTROL(fraRsorgente), {.caption = 305}},
    {TextBox, CONTROL(txtrs), {.caption = "Rs", .unit = "Ohm", .parent = "fraRsorgente"}},
    {Frame, CONTROL(fraspessore), {.caption = 306}},
    {Label, CONTROL(lblspessore), {.caption = 307, .parent = "fraspessore"}},
    {TextBox, CONTROL(txtspessore), {.unit = "mm", .parent = "fraspessore"}},
    {Button, CONTROL(cmdok), {.caption = "&OK"}},
    {MenuEntry, CONTROL(mnuchiudi), {.caption = 442}},
};
// clang-format on

}  // namespace

ProjectOptions::ProjectOptions(ProjectState& state) {
  window.name = "frmopzioni";
  window.caption_design = 299;
  window.centred = true;
  window.takes_focus = true;
  window.width = 6600;
  window.height = 5400;
  DescribeWindow(*this, state, kRows);
}

}  // namespace zefirondo
