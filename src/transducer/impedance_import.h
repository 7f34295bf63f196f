// From a measured impedance curve to the resonance, its peak, and the two frequencies around it.
//
// Source: A. N. Thiele (1961), R. H. Small (1972): Qms = √r0 · Fs / (Fh − Fl) with r0 = Zmax / Re, where the
// modulus at Fl and Fh is √(Zmax · Re).
#pragma once

#include <cstddef>
#include <functional>

#include "core/program.h"

namespace zefirondo {

struct ImpedancePoints {
  double Fs = 0.0;    // Hz, frequency of the peak
  double Zmax = 0.0;  // ohm
  double Zmin = 0.0;  // ohm, the least modulus above Fs; 500 where there is none
  double Zc = 0.0;    // ohm, the level at Fl and Fh
  double Fh = 0.0;    // Hz
  double Fl = 0.0;    // Hz; 0 when no rising crossing was found
  double Bw = 0.0;    // Hz
  double Qms = 0.0;
};

/// Hears of every row of every pass, with the running count of such steps.
using ShowSteps = std::function<void(std::size_t steps)>;

/// The search over a curve whose arrays have their zero slot behind the last row; `rvc` in ohm. Throws
/// `RunTimeError` (division by zero) for `rvc` = 0, for a curve without a falling crossing above the peak, and
/// for Fl = Fh.
[[nodiscard]] ImpedancePoints FindImpedancePoints(const Curve& hertz, const Curve& ohm, double rvc,
                                                  const ShowSteps& show);

/// Imports a measurement: dialog, reading, search, fields.
void ImportImpedance(Program& program);

void ConnectImpedanceImport(Program& program);

}  // namespace zefirondo
