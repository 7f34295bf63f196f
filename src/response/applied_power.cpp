#include "response/applied_power.h"

#include <array>

#include "core/numbers.h"

namespace zefirondo {
namespace {

enum class By { One, Times, Over };

struct RuleRow {
  By series;
  By parallel;
};

constexpr std::array<RuleRow, 5> kRules{{
    {By::One, By::Times},   // Shown
    {By::Over, By::One},    // Opened
    {By::Over, By::Over},   // Redrawn
    {By::Times, By::Over},  // RedrawnClosed
    {By::Over, By::Times},  // InsideClosed
}};

}  // namespace

double ApplyPowerRule(const ProjectState& state, PowerRule rule, double power) {
  const RuleRow& row = kRules.at(static_cast<std::size_t>(rule));
  By by = By::One;
  if (state.WooferWiring == "series") by = row.series;
  if (state.WooferWiring == "parallel") by = row.parallel;
  switch (by) {
    case By::Times: return power * state.DriversNum;
    case By::Over: return Divide(power, state.DriversNum);
    case By::One: break;
  }
  return power;
}

double TakeTypedPower(Program& program, Control& txtpot) {
  const double power = ReadNumber(*txtpot.text);
  if (power > 0) return power;
  program.ErrorMessage(program.Text(136));
  AssignText(program, txtpot, program.state.txtpotenza);
  return 0.0;
}

}  // namespace zefirondo
