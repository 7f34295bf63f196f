// Imported responses on the box and SPL graphs, their calibration, and the sums with box and filter.
//
// Responses are added in dB, point by point, without interpolation and without phase: an imported file must lie on
// the grid of the sweep.
#pragma once

#include "core/program.h"

namespace zefirondo {

/// The three sums on the box graph, into `SumFreq` and `SumDb`. Throw `RunTimeError` (index) where a curve is too
/// short. Their constants take off the offset of 40 of each term but one, as wanted: within 0.00002 dB.
void SommaTutto(Program& program);
void SommaFiltro(Program& program);
void SommaRisposta(Program& program);

void ConnectSummation(Program& program);

}  // namespace zefirondo
