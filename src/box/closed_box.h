// Closed box design: volume, Qtc and resonance, kept consistent when one of them is changed.
//
// Source: R. H. Small, "Closed-Box Loudspeaker Systems", JAES 1972. The factor 1.15 stands for the air load that
// a baffle adds to the cone.
#pragma once

#include "core/program.h"

namespace zefirondo {

/// The net volume in m³ that gives a transducer of `vas` m³ and `qts` the total Q `qtc`. Negative where the Q
/// cannot be reached; nothing guards that. Throws `RunTimeError` for a division by zero.
[[nodiscard]] double ClosedVolume(double vas, double qts, double qtc);

/// Fc/Fs, which is also Qtc/Qts, of an apparent volume in m³.
[[nodiscard]] double ClosedRatio(double vas, double vba);

/// The -3 dB frequency in Hz of a closed box with this Q and resonance.
[[nodiscard]] double ClosedF3(double qtc, double fc);

/// Designs the box from the Qtc chosen in `cmballi`.
void CalcolaChiusa(Program& program);

/// Keeps the volume, in m³, while the resonance moves with the air or the filling.
void ChiusaVolumeFisso(Program& program, double volume);

/// Computes the curve of the design as it stands, and writes the fields; `RiapriChiusa` writes none.
void AggiornaChiusa(Program& program);
void RiapriChiusa(Program& program);

/// The closed-box part of a changed net volume.
void ChiusaVolnetto(Program& program);

/// The closed-box part of a changed number of transducers.
void ChiusaNumDriver(Program& program, std::int16_t drivers);

void ConnectClosedBox(Program& program);

}  // namespace zefirondo
