// Vented box design: one empirical alignment from Qts and Vas, and what follows from later changes.
#pragma once

#include "core/program.h"

namespace zefirondo {

/// The empirical alignment. Net volume in m³: 20 · Vas · Qts^3.3.
[[nodiscard]] double VentedVolume(double vas, double qts);
/// Tuning in Hz: Fs · (Vas/V)^0.31.
[[nodiscard]] double VentedTuning(double fs, double vas, double volume);
/// -3 dB frequency in Hz: Fs · (Vas/V)^0.44.
[[nodiscard]] double VentedF3(double fs, double vas, double volume);

/// Designs box and port from the transducer.
void CalcolaReflex(Program& program);

/// Rebuilds the curve of an opened project; updates a design after changes made elsewhere.
void RiapriReflex(Program& program);
void AggiornaReflex(Program& program);

/// Takes over volume and tuning from the alignment chart: both stay, and the port follows.
void CalcFbVbAlfa(Program& program);

/// The vented part of a changed net volume: the port stays, and the tuning moves.
void ReflexVolnetto(Program& program);

/// The vented part of a changed number of transducers.
void ReflexNumDriver(Program& program, std::int16_t drivers);

/// Computes the box curve from the state.
void SweepVented(Program& program);

/// `txtfreriso`, the geometric mean of tuning and resonance.
void ShowVentedPole(Program& program);

/// Sets the port area from which a design starts, and shows it as the smallest one: by the air speed, or a fixed
/// one while the cone's area or excursion is unknown.
void SetDefaultPortArea(Program& program);

/// The -3 dB point no longer holds: the empirical formula does not know the box as it stands now.
void ForgetF3(Program& program);

void ConnectVentedBox(Program& program);

}  // namespace zefirondo
