// A second reckoning of the phase offset tool, by other means than the program's: turns are taken one at a time, the
// row is searched for, and the curves are made from a delay, so that the result is known beforehand.
#pragma once

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace zefirondo::plain {

/// A phase curve as the tool holds it, with the zero slot behind its rows.
struct PhaseRows {
  std::vector<double> hertz;
  std::vector<double> degrees;

  [[nodiscard]] std::size_t Count() const { return hertz.size() - 1; }
};

inline double Wrapped(double degrees) { return degrees - 360.0 * std::round(degrees / 360.0); }

/// A driver that is late by so many milliseconds: the phase falls evenly with the frequency, and wraps at −180.
inline PhaseRows LateDriver(double milliseconds, double from, double to, double step) {
  PhaseRows rows;
  for (int i = 0; from + i * step <= to; ++i) {
    const double f = from + i * step;
    rows.hertz.push_back(f);
    rows.degrees.push_back(Wrapped(-0.36 * f * milliseconds));
  }
  rows.hertz.push_back(0);
  rows.degrees.push_back(0);
  return rows;
}

/// A curve that jumps about, with wraps in both directions.
inline PhaseRows Restless(unsigned seed, std::size_t count) {
  std::mt19937 engine(seed);
  const auto between = [&engine](double low, double high) {
    return low + (high - low) * (static_cast<double>(engine()) / 4294967296.0);
  };
  PhaseRows rows;
  double f = between(5, 30);
  double phase = between(-180, 180);
  for (std::size_t i = 0; i < count; ++i) {
    rows.hertz.push_back(f);
    rows.degrees.push_back(Wrapped(phase));
    f += between(0.5, 40);
    phase += between(-60, 25);
  }
  rows.hertz.push_back(0);
  rows.degrees.push_back(0);
  return rows;
}

/// The place of the first row above a frequency; never the first row of all. The number of rows when there is none.
inline std::size_t RowAbove(const PhaseRows& rows, double fo) {
  const auto end = rows.hertz.begin() + static_cast<std::ptrdiff_t>(rows.Count());
  return static_cast<std::size_t>(std::find_if(rows.hertz.begin() + 1, end, [&](double f) { return f > fo; }) -
                                  rows.hertz.begin());
}

/// Whether the curve jumps at this row from below 0 into the ten degrees under the upper edge.
inline bool WrapsAt(const PhaseRows& rows, std::size_t row) {
  return rows.degrees[row - 1] < 0 && rows.degrees[row] > 170;
}

inline double PhaseNear(const PhaseRows& rows, double fo, bool with_slope) {
  const std::size_t above = RowAbove(rows, fo);
  if (above == rows.Count()) return 0;
  double phase = rows.degrees[above - 1];
  for (std::size_t row = 1; with_slope && row <= above; ++row) {
    if (WrapsAt(rows, row)) phase -= 360;
  }
  return phase;
}

/// The distance of two phases. Those on the same side of 0 are as far apart as they differ.
inline double Apart(double first, double second) {
  const bool both_above = first > 0 && second > 0;
  const bool both_below = first < 0 && second < 0;
  const double larger = std::max(std::fabs(first), std::fabs(second));
  const double smaller = std::min(std::fabs(first), std::fabs(second));
  return both_above || both_below ? larger - smaller : larger + smaller;
}

/// A phase with whole turns put back one by one, and the two places where that gives up.
inline double Folded(double degrees) {
  if (degrees < -1620) return 0;
  if (degrees >= 180) return degrees - 360;
  while (degrees < -180) degrees += 360;
  return degrees;
}

inline bool StandsAtAnEdge(double degrees) {
  const double turns = (degrees + 180) / 360;
  return std::fabs(turns - std::round(turns)) < 1e-9;
}

}  // namespace zefirondo::plain
