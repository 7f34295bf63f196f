// From the data of a transducer to its complete Thiele-Small set, and to the box that suits it.
//
// Sources: A. N. Thiele, "Loudspeakers in Vented Boxes" (1961); R. H. Small, "Direct-Radiator Loudspeaker System
// Analysis" (1972).
#pragma once

#include "core/program.h"

namespace zefirondo {

/// The Q factors and the motional resistance that an impedance curve gives.
struct ImpedanceQ {
  double rzero = 0.0;  // Zmax / Re
  double qms = 0.0;
  double qes = 0.0;
  double qts = 0.0;  // without the amplifier
  double res = 0.0;  // ohm
};

/// Frequencies in Hz, impedances in ohm. The second form measures Qms by the bandwidth Fh − Fl.
/// Both throw `RunTimeError` for a zero among the divisors.
[[nodiscard]] ImpedanceQ QFromImpedance(double zmax, double re, double qms);
[[nodiscard]] double QmsFromBandwidth(double fs, double zmax, double re, double bw);

/// Qts with the amplifier's output resistance in ohm, which raises Qes.
[[nodiscard]] double QtsWithAmplifier(double qms, double qes, double re, double rs);

/// The electrical image of the resonance by a measurement: Lces in H, Cmes in F.
[[nodiscard]] double LcesFromRes(double res, double qms, double omega);
[[nodiscard]] double CmesFromRes(double res, double qms, double omega);

/// The mechanical side by typed parameters, and its electrical image.
struct Mechanical {
  double cms = 0.0;   // m/N
  double rms = 0.0;   // N·s/m
  double lces = 0.0;  // H
  double cmes = 0.0;  // F
  double res = 0.0;   // ohm
};
[[nodiscard]] Mechanical TsDaMeccanici(double fs, double qms, double bl, double mms);

/// The acoustic side, and the equivalent volume.
struct Acoustic {
  double cas = 0.0;  // m⁵/N
  double mas = 0.0;  // kg/m⁴
  double ras = 0.0;  // N·s/m⁵
  double vas = 0.0;  // m³
};
[[nodiscard]] Acoustic TsAcustici(double sd, double cms, double mms, double rms, double roo, double velocity);

/// The reference efficiency in percent.
[[nodiscard]] double Efficiency(double fs, double vas, double qes, double velocity);

/// The volume in litres that a transducer takes; all inputs in mm. The short form leaves out magnet and rim.
struct TransducerSize {
  double foro, prof, lagmagne, profmag, diambob, spesbordo;
};
[[nodiscard]] double VolumeTrasduttore(const TransducerSize& size);
[[nodiscard]] double VolumeTrasduttoreBreve(const TransducerSize& size);

void ConnectThieleSmall(Program& program);

}  // namespace zefirondo
