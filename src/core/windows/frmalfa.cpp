#include "core/windows/frmalfa.h"

#include "core/windows/describe.h"

namespace zefirondo {
namespace {

using Form = AlignmentChart;
using enum ControlKind;

// clang-format off
const std::vector<ControlRow<Form>> kRows{
    {Label, ELEMENT(lblallineamento, 0), {.caption = "Quasi 3° ordine"}},
    {Option, CONTROL(VbSuVas0954), {.caption = "Vb/Vas=0.0954"}},
    {Label, ELEMENT(lblallineamento, 1), {.caption = "Quasi 3° ordine"}},
    {Option, CONTROL(VbSuVas1337), {.caption = "Vb/Vas=0.1337"}},
    {Label, ELEMENT(lblallineamento, 2), {.caption = "Quasi 3° ordine"}},
    {Option, CONTROL(VbSUVas224), {.caption = "Vb/Vas=0.2242"}},
    {Label, ELEMENT(lblallineamento, 3), {.caption = "Quasi 3° ordine"}},
    {Option, CONTROL(VbSUVas339), {.caption = "Vb/Vas=0.3390"}},
    {Label, ELEMENT(lblallineamento, 4), {.caption = "Butterworth 4° ordine"}},
    {Option, CONTROL(VbSUVas707), {.caption = "Vb/Vas= 0.7071"}},
    {Label, ELEMENT(lblallineamento, 5), {.caption = "Chebyschev 4° ordine"}},
    {Option, CONTROL(VbSuVas9479), {.caption = "Vb/Vas=0.9479"}},
    {Label, ELEMENT(lblallineamento, 6), {.caption = "Chebyschev 4° ordine"}},
    {Option, CONTROL(VbSuVas1372), {.caption = "Vb/Vas=1.372"}},
    {Label, ELEMENT(lblallineamento, 7), {.caption = "Chebyschev 4° ordine"}},
    {Option, CONTROL(VbSUVas179), {.caption = "Vb/Vas=1.790"}},
    {Label, ELEMENT(lblallineamento, 8), {.caption = "Chebyschev 4° ordine"}},
    {Option, CONTROL(VbSuVas2062), {.caption = "Vb/Vas=2.062"}},
    {Label, ELEMENT(lblallineamento, 9), {.caption = "Chebyschev 4° ordine"}},
    {Option, CONTROL(VbSuVas260), {.caption = "Vb/Vas=2.60"}},
    {Label, ELEMENT(lblallineamento, 10), {.caption = "Butterworth 6° ordine"}},
    {Option, CONTROL(VbSUVas366), {.caption = "Vb/Vas=0.366"}},
    {Label, ELEMENT(lblallineamento, 11), {.caption = "Chebyschev 6° ordine"}},
    {Option, CONTROL(VbSUVas429), {.caption = "Vb/Vas=0.429"}},
    {Label, CONTROL(lblVbSuVas), {.caption = 222}},
    {TextBox, CONTROL(txtVbsuVas), {.locked = true, .back = colour::kGrey}},
    {Label, CONTROL(lblFbsuFs), {.caption = 223}},
    {TextBox, CONTROL(txtFbSuFs), {.locked = true, .back = colour::kGrey}},
    {Button, CONTROL(cmdok), {.caption = "&OK"}},
    {MenuEntry, CONTROL(mnuchiudi), {.caption = "&Close"}},
};
// clang-format on

}  // namespace

AlignmentChart::AlignmentChart(ProjectState& state) {
  window.name = "frmalfa";
  window.caption_design = "Vas/Vb";
  window.centred = true;
  window.takes_focus = true;
  window.width = 5700;
  window.height = 6900;
  DescribeWindow(*this, state, kRows);
}

}  // namespace zefirondo
