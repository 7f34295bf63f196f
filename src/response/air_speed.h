// `frmairspeed`: the air speed in the ports of a vented box at an applied power.
//
// Source: R. H. Small, "Vented-Box Loudspeaker Systems" (1973), with box losses of leakage, absorption and port.
#pragma once

#include "core/program.h"

namespace zefirondo {

/// Fills `AirFreq` and `AirSpeed`, m/s up to 2 kHz, and `SplScaleTop`. Throws `RunTimeError`.
void VelocitaAria(ProjectState& state, double power);

void ApriAirspeed(Program& program);

void ConnectAirSpeed(Program& program);

}  // namespace zefirondo
