// The one record of the project.
//
// A value that the user types lives as text in its sheet field, and calculations read that text with
// `ReadNumber` whenever they need it. Only what a calculation or an import produced also lives as a number.
// The state holds m³, m², m and Hz; the fields show litres, cm, cm², mm.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zefirondo {

/// One array of a curve. The abscissa holds 20·log10(f), the ordinate the value as plotted, unless told
/// otherwise; a zero slot stands behind the last point.
using Curve = std::vector<double>;

struct ProjectState {
  // Page "gen": who made the transducer, and its data sheet.
  std::string txtproduttore, txtmarca, txtmodello, txtdatifor, txtdatacreaz, txtcommento;
  std::string txtpotenza;      // W
  std::string txtimpedenza;    // ohm
  std::string txtsensibilita;  // dB, 1 W / 1 m
  std::string txthg;           // mm
  std::string txtxmax;         // mm
  std::string txtrendimento;   // %
  std::string txtle;           // mH
  std::string cmbnumvc;

  // Page "par": the Thiele-Small parameters.
  std::string txtzmax, txtzmin;         // ohm
  std::string txtfs, txtfl, txtfh;      // Hz
  std::string txtrvc;                   // ohm
  std::string txtqmesin;                // the Qms that is typed or imported
  std::string txtbw;                    // Hz
  std::string txtbl;                    // T·m
  std::string txtd;                     // mm
  std::string txtsd;                    // m²
  std::string txtlces;                  // mH
  std::string txtcmes;                  // µF
  std::string txtrmes;                  // ohm
  std::string txtqmes, txtqes, txtqts;  // Q factors
  std::string txtcms;                   // m/N
  std::string txtmms;                   // kg
  std::string txtrms;                   // N·s/m
  std::string txtcas, txtmas, txtras;   // m⁵/N, kg/m⁴, N·s/m⁵
  std::string txtvas;                   // m³

  // Page "dim": mm, the volume in litres.
  std::string txtforo, txtprof, txtlagmagne, txtprofmag, txtesterno, txtspesbordo, txtdiambob, txtvolume;

  // The box page.
  std::string cmballi;                                           // Qtc of the closed box
  std::string cmbql;                                             // QL of the vented box
  std::string cmbforma, cmbrappo, cmbgradi;                      // shape, ratio, tilt in degrees
  std::string txtl, txth, txtp, txtld;                           // cm
  std::string txtboxvolume;                                      // litres
  std::string cmbnumcond;                                        // number of ports
  std::string txtlungmis, txtlungappa;                           // cm
  std::string cmbDoa, txtb;                                      // cm
  std::string txtareasez, txtseztot, txtminsv;                   // cm²
  std::string cmbnumdriver;                                      // number of transducers
  std::string txtvolnetto, txtingombro, txtvoloccu, txtvolappa;  // litres
  std::string txtfb, txtfstrasdu, txtfreriso;                    // Hz
  std::string cmbk;                                              // Cp/Cv by the filling of the box

  // Page "imp": empty until the page is first opened or a file fills it.
  std::string txttemperatura;  // °C
  std::string txtpressione;    // Pa
  std::string txtvelocita;     // m/s

  // The air.
  double Temperature = 25.0;   // °C
  double Pressure = 101325.0;  // Pa
  double roo = 0.0;            // kg/m³
  double Velocity = 0.0;       // m/s
  double Kinternal = 1.400823478;

  // The transducer.
  double Fs = 0.0;     // Hz, from an imported impedance; 0: `txtfs` rules
  double Zmax = 0.0;   // ohm, the same; 0: `txtzmax` rules
  double Bw = 0.0;     // Hz
  double Qts = 0.0;    // with the amplifier's output resistance
  double Vas = 0.0;    // m³, one transducer
  double EBP = 0.0;    // Hz
  double Rzero = 0.0;  // Zmax / Re

  // The box.
  std::int16_t DriversNum = 1;
  std::int16_t VentNum = 1;
  double SectArea1Vent = 0.003525652;  // m², one port
  double Ql = 7.0;
  double Qtc = 0.0;
  double Fc = 0.0;         // Hz, closed box
  double F3c = 0.0;        // Hz, -3 dB of the closed box
  double Fb = 0.0;         // Hz, vented box
  double F3v = 0.0;        // Hz, -3 dB of the vented box; 0 when it no longer applies
  double Vb = 0.0;         // m³, net, vented
  double Vc = 0.0;         // m³, net, closed
  double VbaClosed = 0.0;  // m³, apparent
  double VbaVented = 0.0;
  double Vba = 0.0;         // the last one computed
  double WidthPrism = 0.0;  // cm
  double HeightPrism = 0.0;
  double DepthPrism = 0.0;
  double DepthPrismTrapez = 0.0;
  double WidthRearPrism = 0.0;
  std::string WooferWiring = "biamp";  // "biamp", "parallel" or "series"
  double RsAmplifier = 0.1;            // ohm
  std::int16_t WoodThickness = 18;     // mm
  double SPLmax = 0.0;                 // dB at the applied power
  double USPL = 0.0;                   // dB at 1 W
  double AlfaValue = 0.0;              // Vb/Vas of the alignment chart
  double AlfaSecond = 0.0;             // Fb/Fs of the alignment chart
  double ValRangeLow = 0.0;            // Hz, the two frequencies of the component value tools
  double ValRangeHigh = 0.0;
  double ValResult = 0.0;  // ohm

  // The tops of the vertical scales.
  std::int16_t BoxScaleTop = 0;
  std::int16_t SplScaleTop = 0;
  std::int16_t ImpScaleTop = 0;

  // The curves.
  Curve ImpFreq, ImpZ;   // Hz and ohm
  Curve BoxFreq, BoxDb;  // level + 40
  Curve SplFreq, SplDb;
  Curve SplMaxFreq, SplMaxDb;
  Curve AirFreq, AirSpeed;  // m/s
  Curve OverlaySplFreq, OverlaySplDb;
  Curve PhaseFreq, PhaseDeg;
  Curve FilterFreq, FilterDb;
  Curve FilterPhaseFreq, FilterPhaseDeg;
  Curve SumFreq, SumDb, SumPhaseDeg;
  Curve Set1BoxFreq, Set1BoxDb, Set2BoxFreq, Set2BoxDb;
  Curve Set1SplFreq, Set1SplDb, Set2SplFreq, Set2SplDb;
  Curve Set1PhaseFreq, Set1PhaseDeg, Set2PhaseFreq, Set2PhaseDeg;
  Curve PhaseX1, PhaseHz1, PhaseDeg1, PhaseX2, PhaseHz2, PhaseDeg2;

  bool Set1BoxStored = false, Set2BoxStored = false, Set1BoxShown = false, Set2BoxShown = false;
  bool Set1SplStored = false, Set2SplStored = false, Set1SplShown = false, Set2SplShown = false;
  bool Set1PhaseStored = false, Set2PhaseStored = false, Set1PhaseShown = false, Set2PhaseShown = false;

  // The phase offset tool.
  std::int16_t PhaseCurveCount = 0;
  double PhaseShiftDeg = 0.0;
  double DelayMs = 0.0;
  std::string DelayedCurve;

  // The running program.
  bool ProjectModified = false;
  bool ProjectLoaded = false;
  bool HasProjectPath = false;
  bool ProjectSaved = false;
  bool ImpedanceMode = false;
  bool DataImported = false;
  bool FilterComputed = false;
  bool AirChanged = false;
  bool DesignChanged = false;
  bool DimEditing = false;
  bool SquarePortSection = false;
  std::string BoxSection;
  std::string FieldBefore;
  std::string FilePath;
  std::string ProjectPath;
  std::string ProjectTitle;
  std::string ImpFileTitle;
  std::int32_t LastSaveError = 0;
  bool GrafCassaOpen = false, GrafFaseOpen = false, GrafSplOpen = false, GrafSplMaxOpen = false,
       GrafEscursioneOpen = false, GrafAirspeedOpen = false;
};

/// The resonance of the transducer in Hz: of an imported impedance, or else as typed.
[[nodiscard]] double TransducerFs(const ProjectState& state);

/// The impedance at resonance in ohm: of an imported impedance, or else as typed.
[[nodiscard]] double TransducerZmax(const ProjectState& state);

/// The compliance volume of all transducers in the box, in m³: they count as one of that volume.
[[nodiscard]] double TotalVas(const ProjectState& state);

}  // namespace zefirondo
