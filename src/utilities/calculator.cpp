#include "utilities/calculator.h"

#include <string>
#include <string_view>

#include "core/numbers.h"
#include "core/window_life.h"

namespace zefirondo {
namespace {

// The decimal mark is the point that the rest of the program uses; it ends the text of a whole number.
constexpr std::string_view kZero = "0.";
constexpr std::string_view kMark = ".";

Calculator& Form(Program& program) { return program.windows.frmcalcolatrice; }

void ShowReadout(Program& program, const std::string& text) { AssignText(program, Form(program).Readout, text); }

void Restart(Program& program) {
  Calculator& form = Form(program);
  form.DecimalFlag = false;
  form.NumOps = 0;
  form.LastInput = "NESSUNO";
  form.OpFlag = " ";
  ShowReadout(program, std::string(kZero));
}

void Cancel_Click(Program& program) {
  Form(program).Op1 = Form(program).Op2 = 0.0;
  Restart(program);
}

void CancelEntry_Click(Program& program) {
  ShowReadout(program, std::string(kZero));
  Form(program).DecimalFlag = false;
  Form(program).LastInput = "CE";
}

void Decimal_Click(Program& program) {
  Calculator& form = Form(program);
  if (form.LastInput == "NEG") {
    ShowReadout(program, "-" + std::string(kMark));
  } else if (form.LastInput != "NUM") {
    ShowReadout(program, std::string(kMark));
  }
  form.DecimalFlag = true;
  form.LastInput = "NUM";
}

void KeyDigit(Program& program, char digit) {
  Calculator& form = Form(program);
  if (form.LastInput != "NUM") {
    ShowReadout(program, std::string(kMark));
    form.DecimalFlag = false;
  }
  std::string text = *form.Readout.text;
  if (form.DecimalFlag) {
    text += digit;
  } else {
    text = text.substr(0, text.find(kMark)) + digit + std::string(kMark);
  }
  if (form.LastInput == "NEG") text.insert(0, "-");
  ShowReadout(program, text);
  form.LastInput = "NUM";
}

double Apply(Program& program, const Calculator& form) {
  if (form.OpFlag == "+") return Finite(form.Op1 + form.Op2);
  if (form.OpFlag == "-") return Finite(form.Op1 - form.Op2);
  if (form.OpFlag == "X" || form.OpFlag == "%") return Finite(form.Op1 * form.Op2);
  if (form.OpFlag == "=") return form.Op2;
  if (form.OpFlag != "/") return form.Op1;
  if (form.Op2 != 0.0) return Divide(form.Op1, form.Op2);
  program.Message(MessageIcon::Warning, program.Text(148), program.Text(149));
  return form.Op1;
}

void KeyOperator(Program& program, const std::string& caption) {
  Calculator& form = Form(program);
  form.TempReadout = *form.Readout.text;
  if (form.LastInput == "NUM") ++form.NumOps;
  switch (form.NumOps) {
    case 0:
      if (caption == "-" && form.LastInput != "NEG") {
        ShowReadout(program, "-" + *form.Readout.text);
        form.LastInput = "NEG";
      }
      break;
    case 1:
      form.Op1 = ReadNumber(*form.Readout.text);
      if (caption == "-" && form.LastInput != "NUM" && form.OpFlag != "=") {
        ShowReadout(program, "-");
        form.LastInput = "NEG";
      }
      break;
    case 2:
      form.Op2 = ReadNumber(form.TempReadout);
      form.Op1 = Apply(program, form);
      ShowReadout(program, PlainNumber(form.Op1));
      form.NumOps = 1;
      break;
    default: break;
  }
  if (form.LastInput == "NEG") return;
  form.LastInput = "OP";
  form.OpFlag = caption;
}

void Percent_Click(Program& program) {
  Calculator& form = Form(program);
  ShowReadout(program, PlainNumber(ReadNumber(*form.Readout.text) / 100));
  form.LastInput = "OP";
  form.OpFlag = "%";
  ++form.NumOps;
  form.DecimalFlag = true;
}

template <char Digit>
void Number_Click(Program& program) {
  KeyDigit(program, Digit);
}

template <std::size_t Place>
void Operator_Click(Program& program) {
  KeyOperator(program, *Form(program).Operator.at(Place).text);
}

void mnuchiudi_Click(Program& program) { CloseWindow(program, Form(program).window); }

}  // namespace

void ConnectCalculator(Program& program) {
  Calculator& form = Form(program);
  form.window.on.load = Restart;
  constexpr ControlEvents::Routine kDigits[] = {
      Number_Click<'0'>, Number_Click<'1'>, Number_Click<'2'>, Number_Click<'3'>, Number_Click<'4'>,
      Number_Click<'5'>, Number_Click<'6'>, Number_Click<'7'>, Number_Click<'8'>, Number_Click<'9'>};
  for (std::size_t i = 0; i < form.Number.size(); ++i) form.Number.at(i).on.click = kDigits[i];
  constexpr ControlEvents::Routine kOperators[] = {Operator_Click<0>, Operator_Click<1>, Operator_Click<2>,
                                                   Operator_Click<3>, Operator_Click<4>};
  for (std::size_t i = 0; i < form.Operator.size(); ++i) form.Operator.at(i).on.click = kOperators[i];
  form.Decimal.on.click = Decimal_Click;
  form.Percent.on.click = Percent_Click;
  form.Cancel.on.click = Cancel_Click;
  form.CancelEntry.on.click = CancelEntry_Click;
  form.mnuchiudi.on.click = mnuchiudi_Click;
}

}  // namespace zefirondo
