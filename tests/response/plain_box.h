// The responses of the boxes written a second time, from their transfer functions in the complex frequency
// plane, with nothing shared with the program: the program's curves are compared with these, point by point.
//
// Sources: R. H. Small, "Closed-Box Loudspeaker Systems" (1972), "Vented-Box Loudspeaker Systems" (1973).
#pragma once

#include <complex>

namespace zefirondo::plain {

using Complex = std::complex<long double>;

/// 0 dB stands at 40.
inline long double Stored(Complex gain) { return 20.0L * std::log10(std::abs(gain)) + 40.0L; }

/// s² / (s² + s/Qtc + 1), with s = j·f/Fc.
inline long double ClosedDb(long double qtc, long double fc, long double f) {
  const Complex s(0.0L, f / fc);
  return Stored(s * s / (s * s + s / qtc + 1.0L));
}

struct Vented {
  long double vb, fs, qts, fb, vas, ql;
};

/// s⁴ / (s⁴ + a3·s³ + a2·s² + a1·s + h²), with s = j·f/Fs and h = Fb/Fs.
inline long double VentedDb(const Vented& box, long double f) {
  const long double h = box.fb / box.fs;
  const long double a3 = h / box.ql + 1.0L / box.qts;
  const long double a2 = h / (box.qts * box.ql) + box.vas / box.vb + h * h + 1.0L;
  const long double a1 = h / box.ql + h * h / box.qts;
  const Complex s(0.0L, f / box.fs);
  return Stored(s * s * s * s / (s * s * s * s + a3 * s * s * s + a2 * s * s + a1 * s + h * h));
}

}  // namespace zefirondo::plain
