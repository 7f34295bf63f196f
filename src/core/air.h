// The air: its density and the speed of sound from temperature and pressure.
#pragma once

#include "core/program.h"

namespace zefirondo {

struct Air {
  double roo = 0.0;       // kg/m³
  double velocity = 0.0;  // m/s
};

/// The air at T °C and P Pa, dry air as an ideal gas: ρ = P·M / (R·T), c = √(γ·P / ρ). The adiabatic factor
/// is that of free air, whatever fills the box. Throws `RunTimeError` for T = -273.15.
[[nodiscard]] Air AriaDaTP(double temperature, double pressure);

/// The air of a new sheet, 25 °C and 101325 Pa, by the simple constants. They differ a little from those of
/// `AriaDaTP`; both sets are wanted.
void SetStartAir(ProjectState& state);

void ConnectAir(Program& program);

}  // namespace zefirondo
