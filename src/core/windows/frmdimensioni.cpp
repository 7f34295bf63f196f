#include "core/windows/frmdimensioni.h"

#include "core/windows/describe.h"

namespace zefirondo {
namespace {

using Form = DimensionEntry;
using enum ControlKind;

const std::vector<ControlRow<Form>> kRows{
    {TextBox, CONTROL(txtLmanual), {.caption = 226, .unit = "Cm"}},
    {TextBox, CONTROL(txtHmanual), {.caption = 227, .unit = "Cm"}},
    {TextBox, CONTROL(txtPmanual), {.caption = 228, .unit = "Cm"}},
    {Button, CONTROL(cmdinserisci), {.caption = 229}},
    {Button, CONTROL(cmdannulla), {.caption = 230}},
    {MenuEntry, CONTROL(mnuchiudi), {.caption = 452}},
};

}  // namespace

DimensionEntry::DimensionEntry(ProjectState& state) {
  window.name = "frmdimensioni";
  window.caption_design = 225;
  window.centred = true;
  window.takes_focus = true;
  window.width = 4200;
  window.height = 2700;
  window.values = {{"ChangedL", &ChangedL}, {"ChangedH", &ChangedH}, {"ChangedP", &ChangedP}};
  DescribeWindow(*this, state, kRows);
}

}  // namespace zefirondo
