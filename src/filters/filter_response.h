// The response of one ideal filter over the sweep of the box curve.
//
// The Bessel form is the program's own, and no textbook Bessel response, as wanted. Shelving and peaking follow the
// usual second order equaliser with A = 10^(G/40).
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/project_state.h"

namespace zefirondo {

struct FilterSettings {
  std::string alignment;   // "Butterworth", "Bessel", "Shelving", "Peaking"
  std::string type;        // "Low Pass", "Hi Pass", "Band Pass"
  std::int16_t order = 2;  // of the slope, 1 to 4
  float gain = 0.0F;       // dB
  double q = 0.707;
  float ft = 0.0F;  // Hz, the upper cutoff or the resonance
  float fi = 0.0F;  // Hz, the lower cutoff
};

struct FilterCurves {
  Curve x;        // 20·log10(f), with the zero slot behind
  Curve db;       // level + 40
  Curve degrees;  // 0 where no formula applies
};

/// Nothing for a combination of alignment and type that is not offered. Throws `RunTimeError` for a zero frequency
/// or Q, `LogarithmError` for a level that has no logarithm.
[[nodiscard]] std::optional<FilterCurves> FilterResponse(const FilterSettings& settings);

}  // namespace zefirondo
