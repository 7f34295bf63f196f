// What the closed and the vented design share: the volumes of the box.
#pragma once

#include "core/program.h"

namespace zefirondo {

/// The apparent volume of a net volume in m³: a filling makes a box seem larger by the air's adiabatic factor.
[[nodiscard]] double ApparentVolume(const ProjectState& state, double volume);

/// `txtboxvolume` = transducers + net + occupied volume, read back from the fields in litres; then the inner
/// dimensions follow.
void SumBoxVolume(Program& program);

/// The same, after `txtvoloccu` was written anew from the volume of one transducer.
void SumVolumes(Program& program);

/// What every change of a design ends with: a sum on the box graph and the graphs that no longer match go, and
/// the project is marked as changed.
void CloseDesignChange(Program& program);

}  // namespace zefirondo
