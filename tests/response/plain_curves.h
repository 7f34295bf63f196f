// Level, excursion, air speed and phase written a second time from their formulas, in the linear domain and with
// complex numbers in long double: the drawn curves are compared with these over all their points. And what the
// tests need to look at a plot.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <string>
#include <vector>

#include "core/surface.h"
#include "response/plain_box.h"
#include "support/desk.h"

namespace zefirondo::plain {

inline const long double kPi = std::acos(-1.0L);

struct Driver {
  long double fs, vas, qes, roo, c;
};

/// Reference efficiency, then dB SPL over 2π sr at 1 m.
inline long double Level(const Driver& d) {
  const long double eta = 4 * kPi * kPi * std::pow(d.fs / d.c, 3.0L) * d.vas / d.qes;
  return 10 * std::log10(eta / (2 * kPi) * 1e12L * (d.roo * d.c * 1e-12L) / 4e-10L);
}

inline long double Gain(const std::string& wiring, int count) {
  return wiring == "series" ? 0.0L : 20 * std::log10(static_cast<long double>(count));
}

/// The clamp of the excursion plot.
inline long double Clamped(long double mm) { return mm < 30 ? mm : 20; }

inline long double ClosedExcursion(const Driver& d, long double sd, long double qtc, long double fc, long double watt,
                                   long double f) {
  const Complex s(0.0L, f / fc);
  const long double at_zero = std::sqrt(watt * d.vas / (2 * kPi * d.qes * d.fs * d.roo * d.c * d.c)) / sd * 100;
  return Clamped(at_zero / std::abs(s * s + s / qtc + 1.0L));
}

/// `box.vb` is the apparent volume.
inline long double VentedExcursion(const Driver& d, const Vented& box, long double sd, long double watt,
                                   long double f) {
  const long double square = std::pow(10.0L, (VentedDb(box, f) - 40 + Level(d)) / 10) * watt;
  const long double h = box.fb / box.fs;
  const long double u = (f / box.fs) * (f / box.fs);
  const long double port = h * h * h * h + u * u - 97.0L / 49.0L * h * h * u;
  const long double air = 4 * kPi * kPi * kPi * std::pow(f, 8.0L) / std::pow(box.fs, 4.0L) * d.roo / d.c;
  return Clamped(std::sqrt(square * std::pow(10.0L, -11.2L) * port / air) * 1000 / sd);
}

struct Port {
  long double fs, fb, vas_total, vb, qts, ql, driver_area, port_area, cms, bl, ohm, watt;
};

inline long double AirSpeed(const Port& p, long double f) {
  const long double h = p.fb / p.fs;
  const long double ta = 20 / h, tl = p.ql / h, tp = 80 / h;
  const long double alpha = p.vas_total / ((0.9L / std::pow(20.0L, 0.9L) + 1) * p.vb);
  const long double e1 = 1 + 1 / (tl * ta), e2 = 1 / (tl * ta * tp) + 1 / tp + 1 / ta, e3 = 1 + 1 / (tp * tl);
  const long double c3 = h * h / e2 + alpha / ta + 1 / tl + e1 / p.qts;
  const long double c2 = h * h * (alpha / (tp * ta) + e3 + e2 / p.qts) + 1 / (tl * p.qts) + alpha + e1;
  const long double c1 = h * h * (alpha / tp + e3 / p.qts + e2) + 1 / tl;
  const long double w = f / p.fs;
  const Complex den(h * h * e3 - c2 * w, c1 * w - c3 * w * w * w);
  return 2 * kPi * f * p.driver_area / p.port_area * p.cms * p.bl / p.ohm * std::abs(Complex(h * h, h * h * w / ta)) /
         std::abs(den) * std::sqrt(2 * p.ohm * p.watt);
}

/// The angle of (1 − r²) + j·r/Qtc, r = Fc/f.
inline long double ClosedPhase(long double qtc, long double fc, long double f) {
  const long double r = fc / f;
  return std::arg(Complex(1 - r * r, r / qtc)) * 180 / kPi;
}

/// The vented phase before its unwrapping step, from −180 to 0.
inline long double VentedPhase(const Vented& box, long double f) {
  const long double p1 = 1 / (box.ql * box.fb) + 1 / (box.fs * box.qts);
  const long double p2 = 1 / (box.qts * box.fb) + 1 / (box.ql + box.fs);
  const long double p3 =
      1 / (box.fs * box.fs) + box.vas / box.vb / (box.fb * box.fb) + 1 / (box.fs * box.fb * box.qts * box.ql);
  const long double g = box.fs * box.fb / f;
  const long double re = g * g / (f * f) - g * g * p3 + 1;
  const long double im = p1 * g * g / f - p2 * g;
  return (std::atan(re / im) - kPi / 2) * 180 / kPi;
}

// ---- plots ----

/// The chains on a plot, without the grid, in the order drawn.
inline std::vector<Stroke> Chains(const Surface& surface) {
  std::vector<Stroke> chains;
  for (const Stroke& stroke : surface.strokes) {
    if (stroke.count > 2) chains.push_back(stroke);
  }
  return chains;
}

inline std::vector<int> ChainColours(const Surface& surface) {
  std::vector<int> colours;
  for (const Stroke& chain : Chains(surface)) colours.push_back(chain.colour);
  return colours;
}

/// The largest distance of the chain drawn last from a curve of the frequency. `from` is where its sweep starts.
template <class Curve>
double FarthestPoint(const Surface& surface, double top, std::size_t points, double from, Curve curve) {
  const std::vector<Stroke> chains = Chains(surface);
  if (chains.empty() || chains.back().count != points) return HUGE_VAL;
  long double farthest = 0;
  for (std::size_t i = 0; i < points; ++i) {
    const Point& point = surface.points[chains.back().first + i];
    const long double f = from + 0.7324L * static_cast<long double>(i + 1);
    farthest = std::max(farthest, std::fabs(top - point.y - curve(f)));
    farthest = std::max(farthest, std::fabs(point.x - 20 * std::log10(f)));
  }
  return static_cast<double>(farthest);
}

/// Every wiring, count of drivers and QL.
template <class Check>
void ForEveryDesign(ProjectState& s, Check check) {
  for (const char* const wiring : {"series", "parallel", "biamp"}) {
    for (std::int16_t count = 1; count <= 4; ++count) {
      for (const char* const ql : {"5", "7", "10", "15", "20"}) {
        SCOPED_TRACE(std::string(wiring) + " x" + std::to_string(count) + " QL " + ql);
        s.WooferWiring = wiring;
        s.DriversNum = count;
        s.cmbql = ql;
        s.Ql = std::stod(ql);
        check();
      }
    }
  }
}

inline Driver DriverOf(const ProjectState& s) { return {35, s.Vas, std::stold(s.txtqes), s.roo, s.Velocity}; }

}  // namespace zefirondo::plain
