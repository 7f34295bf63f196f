#include "core/windows/frmcalcolatrice.h"

#include "core/windows/describe.h"

namespace zefirondo {
namespace {

using Form = Calculator;
using enum ControlKind;

// clang-format off
const std::vector<ControlRow<Form>> kRows{
    {Label, CONTROL(Readout), {.back = colour::kWindow}},
    {Button, ELEMENT(Number, 0), {.caption = "0"}},
    {Button, ELEMENT(Number, 1), {.caption = "1"}},
    {Button, ELEMENT(Number, 2), {.caption = "2"}},
    {Button, ELEMENT(Number, 3), {.caption = "3"}},
    {Button, ELEMENT(Number, 4), {.caption = "4"}},
    {Button, ELEMENT(Number, 5), {.caption = "5"}},
    {Button, ELEMENT(Number, 6), {.caption = "6"}},
    {Button, ELEMENT(Number, 7), {.caption = "7"}},
    {Button, ELEMENT(Number, 8), {.caption = "8"}},
    {Button, ELEMENT(Number, 9), {.caption = "9"}},
    {Button, CONTROL(Decimal), {.caption = "."}},
    {Button, ELEMENT(Operator, 0), {.caption = "+"}},
    {Button, ELEMENT(Operator, 1), {.caption = "-"}},
    {Button, ELEMENT(Operator, 2), {.caption = "X"}},
    {Button, ELEMENT(Operator, 3), {.caption = "/"}},
    {Button, ELEMENT(Operator, 4), {.caption = "="}},
    {Button, CONTROL(Percent), {.caption = "%"}},
    {Button, CONTROL(Cancel), {.caption = "C"}},
    {Button, CONTROL(CancelEntry), {.caption = "CE"}},
    {MenuEntry, CONTROL(mnuchiudi), {.caption = 452}},
};
// clang-format on

}  // namespace

Calculator::Calculator(ProjectState& state) {
  window.name = "frmcalcolatrice";
  window.caption_design = 224;
  window.centred = true;
  window.takes_focus = true;
  window.width = 3600;
  window.height = 4500;
  window.values = {{"Op1", &Op1},
                   {"Op2", &Op2},
                   {"DecimalFlag", &DecimalFlag},
                   {"NumOps", &NumOps},
                   {"LastInput", &LastInput},
                   {"OpFlag", &OpFlag},
                   {"TempReadout", &TempReadout}};
  DescribeWindow(*this, state, kRows);
}

}  // namespace zefirondo
