#include "core/windows/frmfasecompl.h"

#include "core/windows/describe.h"

namespace zefirondo {
namespace {

using Form = PhaseOffsetEntry;
using enum ControlKind;

// clang-format off
const std::vector<ControlRow<Form>> kRows{
    {Frame, CONTROL(fraandamento), {.caption = 244}},
    {Option, CONTROL(optrelativa), {.caption = 245, .parent = "fraandamento"}},
    {Option, CONTROL(optcomplessiva), {.caption = 246, .parent = "fraandamento"}},
    {Frame, CONTROL(frafrequenza), {.caption = 247}},
    {Label, CONTROL(lblfrequanza), {.caption = 248, .parent = "frafrequenza"}},
    {TextBox, CONTROL(txtfrequenza), {.parent = "frafrequenza"}},
    {Label, CONTROL(lblHz), {.caption = "Hz", .parent = "frafrequenza"}},
    {Button, CONTROL(cmdok), {.caption = "&OK"}},
    {MenuEntry, CONTROL(mnuchiudi), {.caption = 452}},
};
// clang-format on

}  // namespace

PhaseOffsetEntry::PhaseOffsetEntry(ProjectState& state) {
  window.name = "frmfasecompl";
  window.caption_design = 243;
  window.centred = true;
  window.takes_focus = true;
  window.width = 5100;
  window.height = 3600;
  DescribeWindow(*this, state, kRows);
}

}  // namespace zefirondo
