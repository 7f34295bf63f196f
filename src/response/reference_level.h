// The level that the absolute graphs start from: one transducer at 1 W and 1 m, from its parameters alone.
//
// Source: R. H. Small, "Direct-Radiator Loudspeaker System Analysis" (1972), the reference efficiency.
#pragma once

#include "core/project_state.h"

namespace zefirondo {

/// What the level and excursion curves take from the sheet: Fs in Hz, Vas of one transducer in m³, Qes.
struct DriverInputs {
  double fs = 0.0;
  double vas = 0.0;
  double qes = 0.0;
};

[[nodiscard]] DriverInputs GatherDriver(const ProjectState& state);

/// The level in dB SPL of one transducer on the flat part of its response. `fs` is in Hz, `vas` in m³ and of one
/// transducer. The sensitivity that the builder typed has no part in it, as wanted.
/// Throws `RunTimeError` for a zero Q, `LogarithmError` for a zero efficiency.
[[nodiscard]] double ReferenceLevel(const ProjectState& state, double fs, double vas, double qes);

/// What the number of transducers adds to a level, in dB: nothing in series, and as much in two amplified ways
/// as in parallel.
[[nodiscard]] double WiringGain(const ProjectState& state);

}  // namespace zefirondo
