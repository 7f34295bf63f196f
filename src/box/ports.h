// Ports: from a tuning to their section and length, and back.
//
// Sources: the Helmholtz resonator, with end corrections of 8r/3π for each flanged round end; A. N. Thiele,
// "Loudspeakers in Vented Boxes" (1961).
#pragma once

#include <string>

#include "core/program.h"

namespace zefirondo {

/// The acoustic compliance of the vented box, in m⁵/N.
[[nodiscard]] double BoxCompliance(const ProjectState& state);

/// The length in m, end corrections included, that tunes the box to `Fb` with ports of this section in m².
[[nodiscard]] double ApparentLength(const ProjectState& state, double section);

/// The correction of one end in m: of a round port by its diameter in cm, of a rectangular one by its sides in m.
[[nodiscard]] double EndRound(double diameter_cm);
[[nodiscard]] double EndRect(double a, double b);

/// The tuning in Hz of ports with this apparent length in m and section in m².
[[nodiscard]] double PortTuning(const ProjectState& state, double apparent_length, double section);

/// The section of one port, in m², that keeps the air below 7.5 percent of the speed of sound, from the texts of
/// the excursion in mm and of the cone's area in m².
[[nodiscard]] double SezioneMinima(const ProjectState& state, const std::string& xmax, const std::string& sd);

/// Sizes the ports from `Fb`, `VbaVented` and `SectArea1Vent`, and writes their fields.
void DimensionaCondotto(Program& program);

/// The same, with a rectangular section made square anew: the sides typed before are lost, as wanted.
void DimensionaCondottoQuadrato(Program& program);

/// Retunes the box from the length that is typed: curve, plot and fields follow.
void LunghezzaDigitata(Program& program);

/// Retunes the box from the port as it stands, without a sweep.
void FbDaCondotto(Program& program);

/// Shows the picture and the captions of a section, without touching any number.
void ShowRoundPort(Program& program);
void ShowRectangularPort(Program& program);

void ConnectPorts(Program& program);

}  // namespace zefirondo
