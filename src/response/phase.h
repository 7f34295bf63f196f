// `frmFase`: the phase of the box response, with stored traces and the phase of a filter in front of it.
#pragma once

#include "core/program.h"
#include "response/stored_traces.h"

namespace zefirondo {

/// Fills `PhaseFreq` and `PhaseDeg`, in degrees up to 5 kHz. Frequencies in Hz, volumes in m³. Both throw
/// `RunTimeError` (division by zero).
void FaseChiusa(ProjectState& state, double qtc, double fc);
void FaseReflex(ProjectState& state, double vb, double fs, double qts, double fb, double vas_total);

/// Brings a sum of two phases back by one turn.
[[nodiscard]] double FoldPhaseSum(double degrees);

/// Redraws the phase graph over its old picture: what it clears is the plot of the SPL window, and the red trace
/// stands 180 degrees lower than when it is ticked. Both are wanted.
void RidisegnaFase(Program& program);

void ApriFase(Program& program);

void ConnectPhase(Program& program);

}  // namespace zefirondo
