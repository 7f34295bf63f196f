// The design of a box written a second time, as one reads it in a book: the parameters of a woofer, the closed and
// the vented box, ports and inner dimensions, with the texts that the fields of the sheet show on the way. It shares
// nothing with the program, so that whole designs can be compared number by number.
#pragma once

#include <map>
#include <string>

namespace zefirondo::plain {

class Design {
 public:
  std::map<std::string, std::string> text;  // of the fields, by their names

  /// Whether a number that stands in a field could as well be shown as `other`: the last digit of a figure is decided
  /// by an error of its rounding where the figure is a text that came back from its own formula.
  [[nodiscard]] bool IsOnTheEdgeOf(const std::string& field, const std::string& other) const;

  // air
  double temperature = 25, pressure = 101325, roo = 0, velocity = 0, kinternal = 1.400823478;
  // transducer
  double fs = 0, qes = 0, qts = 0, vas = 0, ebp = 0;
  double amplifier = 0.1;  // ohm
  // box
  bool vented = false;
  int drivers = 1;
  std::string wiring = "biamp";
  double vba = 0, vc = 0, vba_closed = 0, qtc = 0, fc = 0, f3c = 0;
  double vb = 0, vba_vented = 0, fb = 0, f3v = 0, ql = 7;
  struct Sweep {  // what the curve of the graph was computed from
    double vb = 0, fb = 0, ql = 0, qtc = 0, fc = 0, vas = 0;
  } swept;
  // ports
  bool round = true;
  int ports = 1;
  double area = 0, wall = 18;  // m², mm
  bool narrow = false;         // below the smallest section
  // dimensions
  double width = 0, height = 0, depth = 0, trapezoid_depth = 0, rear = 0, last_tilt = 0;
  bool trapezoid = false;  // as the picture shows
  int too_steep = 0;       // how often the tilt was refused
  // what changed
  bool design_changed = false, air_changed = false, dim_editing = false;

  Design();

  // The transducer: the typed texts stand in `text`.
  void Compute(bool impedance);
  [[nodiscard]] std::string Proposal(const std::string& answer) const;
  void DesignBox(bool as_vented);
  [[nodiscard]] double LevelOfAll() const;  // dB at 1 W and 1 m

  // What a builder does on the box page, each followed by leaving the field.
  void PickQtc(const std::string& qtc_text);
  void TypeVolume(const std::string& litres);
  void TypeOccupied(const std::string& litres);
  void PickFilling(const std::string& filling);
  void ChooseDrivers(int count, const std::string& connection, bool change_volume);
  void PickLeakage(const std::string& ql_text);
  void PickPorts(int count);
  void PickDiameter(const std::string& centimetres);
  void TypeDiameter(const std::string& centimetres);
  void TypeSideB(const std::string& centimetres);
  void TypeLength(const std::string& centimetres);
  void ToggleSection();
  void TakeAlignment(double vb_vas, double fb_fs, double f3_fs);
  void PickRatio(const std::string& ratio);
  void PickShape(bool as_trapezoid);
  void PickTilt(const std::string& degrees);
  void TypeTilt(const std::string& degrees);
  void TypeRear(const std::string& centimetres);
  void Modify(const std::string& l, const std::string& h, const std::string& p);  // empty: not typed
  void ChangeAir(const std::string& celsius, const std::string& pascal);

 private:
  struct Figure {
    double value = 0;
    int decimals = -1;  // none: seven characters
  };
  std::map<std::string, Figure> figures_;  // behind the texts

  [[nodiscard]] double R(const char* field) const;  // the number of a field
  void Show(const char* field, double value);
  void ShowRounded(const char* field, double value, int decimals);
  void Put(const char* field, const std::string& value);  // notes the dimensions that are edited by it

  void UpdateAir();
  void ComputeFromImpedance(double re, double qms, double sd);
  void ComputeFromMechanics(double qms, double sd);
  [[nodiscard]] double ConeArea();
  void ShowAcoustics(double sd, double cms, double mms, double rms);

  [[nodiscard]] double TotalVas() const { return drivers * vas; }
  [[nodiscard]] double Apparent(double volume) const { return volume * 1.400823478 / kinternal; }
  [[nodiscard]] double Ratio() const;
  void Resonance();
  void VolumeFromQtc();
  void QtcFromVolume();
  void SumVolumes();
  void SumBoxVolume();

  void SweepNow() { swept = {vb, fb, ql, qtc, fc, TotalVas()}; }

  void VentedTuning();
  void ShowPole();
  void DefaultArea();
  void Graph();  // what the graph shows of F3 when it comes to the front
  void ForgetF3();
  [[nodiscard]] double SmallestArea() const;
  [[nodiscard]] double Compliance() const;
  [[nodiscard]] double LengthOf(double section) const;
  double TuneFromPort();
  void ShowSmallest();
  void SizePorts(bool square);
  void TakeSection();
  void EnterVented();

  void Dimensions();
  void ShowDimensions(double l, double h, double p);
  [[nodiscard]] double PlanArea(double over) const;
  [[nodiscard]] double DepthAt(double area_cm2, double front, double degrees);
  bool Tilt(double area_cm2, double degrees);
  void LeaveTilt();
  void ModifyPrism(const std::string& l, const std::string& h, const std::string& p);
  void ModifyTrapezoid(const std::string& l, const std::string& h, const std::string& p);
};

}  // namespace zefirondo::plain
