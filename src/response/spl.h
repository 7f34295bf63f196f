// The level graphs: `frmspl` at 1 W and 1 m, `frmsplMax` at an applied power.
#pragma once

#include "core/program.h"
#include "response/stored_traces.h"

namespace zefirondo {

/// The curves by the box tab that is active. They are computed and drawn over what their plot shows.
void SplReflex(Program& program);
void SplChiusa(Program& program);
void SplMaxReflex(Program& program, double power);
void SplMaxChiusa(Program& program, double power);

/// The SPL graph with its slots.
[[nodiscard]] TraceGraph SplTraces(Program& program);

/// Clears the SPL plot, and draws the grid and the computed curve.
void DrawPlainSpl(Program& program);

/// Draws the SPL graph anew: grid, computed curve, the stored traces that are shown.
void RidisegnaSpl(Program& program);

/// Openers.
void ApriSpl(Program& program);
void ApriSplMax(Program& program);

void ConnectSpl(Program& program);

}  // namespace zefirondo
