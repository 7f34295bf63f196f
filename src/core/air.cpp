#include "core/air.h"

#include <cmath>

#include "core/numbers.h"

namespace zefirondo {
namespace {

constexpr double kFreeAirGamma = 1.400823478;
constexpr double kMolarMass = 28.9644;     // kg/kmol
constexpr double kGasConstant = 8314.472;  // J/(kmol·K)
constexpr double kKelvin = 273.15;
constexpr double kLowestTemperature = -273;  // °C; the bound itself is accepted
constexpr double kDefaultTemperature = 25.0;
constexpr double kDefaultPressure = 101325.0;

void UpdateAir(Program& program) {
  ProjectState& state = program.state;
  Sheet& sheet = program.windows.frmthsm;
  const Air air = AriaDaTP(state.Temperature, state.Pressure);
  state.roo = air.roo;
  state.Velocity = air.velocity;
  AssignNumber(program, sheet.txtvelocita, state.Velocity);
  // Only the field follows the air: the box formulas go on with the `Vas` of the computation, as wanted.
  if (!state.txtcas.empty()) {
    const double vas = state.Velocity * state.Velocity * (ReadNumber(state.txtcas) * state.roo);
    AssignNumber(program, sheet.txtvas, vas);
  }
}

void txttemperatura_Change(Program& program) {
  const double temperature = ReadNumber(program.state.txttemperatura);
  if (temperature < kLowestTemperature) return;
  program.state.Temperature = temperature;
  UpdateAir(program);
}

void txtpressione_Change(Program& program) {
  const double pressure = ReadNumber(program.state.txtpressione);
  if (pressure == 0.0) return;
  program.state.Pressure = pressure;
  UpdateAir(program);
}

void NoteAirChange(Program& program, const std::string& text, const std::string& before) {
  if (text == before) return;
  program.state.AirChanged = true;
  MarkModified(program);
}

void txttemperatura_LostFocus(Program& program) {
  NoteAirChange(program, program.state.txttemperatura, program.windows.frmthsm.TempBefore);
}

void txtpressione_LostFocus(Program& program) {
  NoteAirChange(program, program.state.txtpressione, program.windows.frmthsm.PressBefore);
}

void cmddefault_Click(Program& program) {
  ProjectState& state = program.state;
  Sheet& sheet = program.windows.frmthsm;
  sheet.TempBefore = state.txttemperatura;
  sheet.PressBefore = state.txtpressione;
  state.Temperature = kDefaultTemperature;
  state.Pressure = kDefaultPressure;
  state.roo = 1.18389083932371;
  state.Velocity = std::sqrt(141938.43890834998 / 1.18389083932371);
  AssignText(program, sheet.txttemperatura, "25");
  AssignText(program, sheet.txtpressione, "101325");
  AssignNumber(program, sheet.txtvelocita, state.Velocity);
  state.AirChanged = state.txttemperatura != sheet.TempBefore || state.txtpressione != sheet.PressBefore;
}

}  // namespace

Air AriaDaTP(double temperature, double pressure) {
  Air air;
  air.roo = Divide(pressure * kMolarMass, (temperature + kKelvin) * kGasConstant);
  air.velocity = SquareRoot(Divide(pressure * kFreeAirGamma, air.roo));
  return air;
}

void SetStartAir(ProjectState& state) {
  state.Temperature = kDefaultTemperature;
  state.Pressure = kDefaultPressure;
  state.Velocity = 20.04 * std::sqrt(298.15);
  state.roo = (state.Pressure * 29.0) / ((state.Temperature + kKelvin) * 8314.0);
}

void ConnectAir(Program& program) {
  Sheet& sheet = program.windows.frmthsm;
  sheet.txttemperatura.on.change = txttemperatura_Change;
  sheet.txttemperatura.on.lost_focus = txttemperatura_LostFocus;
  sheet.txtpressione.on.change = txtpressione_Change;
  sheet.txtpressione.on.lost_focus = txtpressione_LostFocus;
  sheet.cmddefault.on.click = cmddefault_Click;
}

}  // namespace zefirondo
