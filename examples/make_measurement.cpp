// Makes an impedance measurement of a made-up woofer, as an analyser would store it: a heading, then rows of
// frequency in Hz and modulus in ohm.
//
// usage: make_measurement [FS QMS QES RE LE_MH TOP_HZ] > woofer.ovl
//
// The model is the motional impedance of a moving coil: Z = Re + jωLe + Res / (1 + jQms (f/Fs − Fs/f)), with
// Res = Re · Qms / Qes, and a little noise that is the same at every run.

#include <complex>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr double kTwoPi = 6.28318530717958;
constexpr double kStep = 0.7324;   // Hz
constexpr double kNoise = 0.0004;  // of the modulus

struct Woofer {
  double fs = 32.0;
  double qms = 3.8;
  double qes = 0.42;
  double re = 5.8;
  double le = 0.9e-3;
};

double Modulus(const Woofer& woofer, double f) {
  const std::complex<double> motional =
      (woofer.re * woofer.qms / woofer.qes) / std::complex<double>(1.0, woofer.qms * (f / woofer.fs - woofer.fs / f));
  return std::abs(std::complex<double>(woofer.re, kTwoPi * f * woofer.le) + motional);
}

/// A small generator of its own, so that every machine makes the same file.
double Noise() {
  static std::uint32_t state = 12345;
  state = state * 1664525U + 1013904223U;
  return static_cast<double>(state >> 8U) / 8388608.0 - 1.0;
}

}  // namespace

int main(int count, char** words) {
  Woofer woofer;
  double top = 8000.0;
  if (count == 7) {
    woofer = {std::atof(words[1]), std::atof(words[2]), std::atof(words[3]), std::atof(words[4]),
              std::atof(words[5]) / 1000.0};
    top = std::atof(words[6]);
  }
  std::printf(";Freq(Hz)  Impedance(Ohm)\r\n");
  for (double f = kStep; f < top; f += kStep) {
    std::printf("%.4f  %.6f\r\n", f, Modulus(woofer, f) * (1.0 + kNoise * Noise()));
  }
  return 0;
}
