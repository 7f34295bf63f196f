// Drawing on the plot surfaces: curves, grids, value labels, the read-out at the mouse.
#pragma once

#include <string>

#include "core/controls.h"
#include "core/program.h"
#include "core/surface.h"

namespace zefirondo {

/// Draws a curve as a chain: point (X, V) stands at horizontal X and height top − V. The last real point is
/// computed but never drawn: the chain ends one before it, as every graph here does.
/// Throws `RunTimeError` (index) when the ordinate is shorter than the abscissa.
void DisegnaCurva(const Curve& x, const Curve& y, double top, Surface& surface, int colour);

/// The same for a curve in Hz and ohm.
void DisegnaImpedenza(const Curve& hertz, const Curve& ohm, double top, Surface& surface, int colour);

/// The step between the horizontal lines of the box and impedance grids, by the top of the scale.
[[nodiscard]] int GridStep(int top);

/// The grid and the value labels of the box response. Clears the labels, not the surface.
void GrigliaCassa(int top, Surface& surface);

/// The grid and the value labels of a measured impedance.
void GrigliaImpedenza(int top, Surface& surface);

/// The grid of the excursion graph, with a red line at the largest excursion in mm.
void GrigliaEscursione(int top, Surface& surface, double xmax);

/// The grid of the level graphs: it sets the height of the plot first, so that they rescale at each redraw.
void GrigliaSpl(int top, Surface& surface);

/// The grid of the air speed graph, which rescales too, with lines at 7.5 (red) and 5 percent (blue) of the speed
/// of sound in m/s.
void GrigliaAria(int top, Surface& surface, double velocity);

/// The grid of the phase graph; its labels are fixed.
void GrigliaFase(Surface& surface);

/// The grid of the phase offset tool, whose places are 20·log10(f) − 10.
void DrawPhaseGrid(Surface& surface);

/// The units of a read-out, and where it stands under the mouse.
struct ReadoutStyle {
  const char* unit = "";
  double below_twips = 60;
  double frequency_shift = 0;        // what the places of the plot are less than 20·log10(f)
  double middle = 7;                 // how far right of half the width the read-out changes its side
  const double* width_of = nullptr;  // the value whose text gives the width, when it is not the one shown
};

/// Shows the read-out at the mouse, with the frequency of X and a value; hides it again.
void ShowReadout(const Surface& surface, Control& readout, double x, double y, double value, const ReadoutStyle& style);
void HideReadout(Control& readout);

}  // namespace zefirondo
