#include "transducer/thiele_small.h"

#include <cmath>

#include "box/box_type.h"
#include "core/events.h"
#include "core/fields.h"
#include "core/numbers.h"
#include "core/shell.h"
#include "core/window_life.h"

namespace zefirondo {
namespace {

constexpr double kClosedBelow = 50;  // Hz of EBP
constexpr double kVentedAbove = 90;

/// What the chain hands on from one step to the next.
struct Chain {
  double fs = 0.0;
  double omega = 0.0;
  double re = 0.0;
  double qes = 0.0;
  double lces = 0.0;  // H
  double sd = 0.0;
};

bool DataIsComplete(Program& program) {
  const ProjectState& s = program.state;
  if (s.txtpotenza.empty() || s.txtimpedenza.empty() || s.txtsensibilita.empty() || s.txtxmax.empty()) {
    program.ErrorMessage(program.Text(171) + "\n\n" + program.Text(172));
    SelectTab(program, "gen");
    return false;
  }
  if (s.txtvolume.empty()) {
    program.Message(MessageIcon::Stop, program.Text(173), program.Text(174));
    SelectTab(program, "dim");
    return false;
  }
  return true;
}

/// The cone's area in m²: as typed, or else from its diameter; 0 when neither is known.
double ConeArea(Program& program) {
  const ProjectState& s = program.state;
  if (!s.txtsd.empty()) return ReadNumber(s.txtsd);
  if (s.txtd.empty()) return 0.0;
  const double radius = ReadNumber(s.txtd) / 2000;
  const double area = kPi * (radius * radius);
  AssignNumber(program, program.windows.frmthsm.txtsd, area);
  return area;
}

void ShowAcoustic(Program& program, const Acoustic& acoustic) {
  Sheet& sheet = program.windows.frmthsm;
  AssignNumber(program, sheet.txtcas, acoustic.cas);
  AssignNumber(program, sheet.txtmas, acoustic.mas);
  AssignNumber(program, sheet.txtras, acoustic.ras);
}

void ShowEfficiency(Program& program, double fs, double qes) {
  const ProjectState& s = program.state;
  AssignNumber(program, program.windows.frmthsm.txtrendimento, Efficiency(fs, s.Vas, qes, s.Velocity));
}

/// The electrical values of an impedance project.
Chain ComputeElectrical(Program& program) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  Chain chain;
  chain.re = ReadNumber(s.txtrvc);
  chain.fs = TransducerFs(s);
  chain.omega = chain.fs * kTwoPi;
  const double zmax = s.Fs != 0.0 ? s.Zmax : ReadNumber(s.txtzmax);
  const double measured = s.Fs != 0.0 ? QmsFromBandwidth(s.Fs, zmax, chain.re, s.Bw) : ReadNumber(s.txtqmesin);
  const ImpedanceQ q = QFromImpedance(zmax, chain.re, measured);
  s.Rzero = q.rzero;
  chain.qes = q.qes;
  s.EBP = Divide(chain.fs, q.qes);
  AssignNumber(program, sheet.txtqts, q.qts);
  s.Qts = QtsWithAmplifier(q.qms, q.qes, chain.re, s.RsAmplifier);
  chain.sd = ConeArea(program);
  AssignNumber(program, sheet.txtqes, q.qes);
  AssignText(program, sheet.txtqmes, s.txtqmesin);
  AssignNumber(program, sheet.txtrmes, q.res);
  chain.lces = LcesFromRes(q.res, q.qms, chain.omega);
  AssignNumber(program, sheet.txtlces, chain.lces * 1000);
  AssignNumber(program, sheet.txtcmes, CmesFromRes(q.res, q.qms, chain.omega) * 1000000);
  return chain;
}

/// Mechanical and acoustic values of an impedance project; two of them from what the fields show, as wanted.
void ComputeFromElectrical(Program& program, const Chain& chain) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  const double bl = ReadNumber(s.txtbl);
  const double mms = bl * bl * (ReadNumber(s.txtcmes) / 1000000);
  AssignNumber(program, sheet.txtmms, mms);
  const double cms = Divide(chain.lces, bl * bl);
  AssignNumber(program, sheet.txtcms, cms);
  const double rms = Divide(bl * bl, ReadNumber(s.txtrmes));
  AssignNumber(program, sheet.txtrms, rms);
  if (s.txtd.empty() && s.txtsd.empty()) return;
  const Acoustic acoustic = TsAcustici(chain.sd, cms, mms, rms, s.roo, s.Velocity);
  s.Vas = acoustic.vas;
  ShowAcoustic(program, acoustic);
  AssignNumber(program, sheet.txtvas, s.Vas);
  ShowEfficiency(program, chain.fs, chain.qes);
}

/// The chain of an impedance project; false when it ends before the acoustic values, with no box to propose.
bool ComputeImpedanceProject(Program& program) {
  const ProjectState& s = program.state;
  const Chain chain = ComputeElectrical(program);
  if (s.txtbl.empty()) return false;
  ComputeFromElectrical(program, chain);
  return !(s.txtd.empty() && s.txtsd.empty());
}

void ShowMechanical(Program& program, const Mechanical& mechanical) {
  Sheet& sheet = program.windows.frmthsm;
  AssignText(program, sheet.txtqmes, program.state.txtqmesin);
  AssignNumber(program, sheet.txtcms, mechanical.cms);
  AssignNumber(program, sheet.txtlces, mechanical.lces * 1000);
  AssignNumber(program, sheet.txtcmes, mechanical.cmes * 1000000);
  AssignNumber(program, sheet.txtrmes, mechanical.res);
  AssignNumber(program, sheet.txtrms, mechanical.rms);
}

/// The chain of a project with entered parameters. The Qts that was typed plays no part, as wanted.
void ComputeParametersProject(Program& program) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  const double fs = ReadNumber(s.txtfs);
  const double qes = ReadNumber(s.txtqes);
  const double qms = ReadNumber(s.txtqmesin);
  const double mms = ReadNumber(s.txtmms);
  s.Qts = QtsWithAmplifier(qms, qes, ReadNumber(s.txtrvc), s.RsAmplifier);
  const Mechanical mechanical = TsDaMeccanici(fs, qms, ReadNumber(s.txtbl), mms);
  const double sd = ConeArea(program);
  const Acoustic acoustic = TsAcustici(sd, mechanical.cms, mms, mechanical.rms, s.roo, s.Velocity);
  if (s.txtvas.empty()) {
    s.Vas = acoustic.vas;
    AssignNumber(program, sheet.txtvas, s.Vas);
  } else {
    s.Vas = ReadNumber(s.txtvas);  // and Cas stays as computed: the two may disagree
  }
  ShowMechanical(program, mechanical);
  ShowAcoustic(program, acoustic);
  ShowEfficiency(program, fs, qes);
  s.EBP = Divide(fs, qes);
}

void ProposeBox(Program& program) {
  const double ebp = program.state.EBP;
  if (ebp == 0.0) return;
  const bool vented = !(ebp < kClosedBelow);
  int advice = 175;
  // Exactly 50 needs a vented box, as 90 and more do, which is wanted.
  if (vented) advice = ebp > kClosedBelow && ebp < kVentedAbove ? 177 : 179;
  const MessageBox proposal{MessageIcon::Information, "EBP= " + FormatNumber(ebp),
                            program.Text(advice) + "\n" + program.Text(vented ? 178 : 176), MessageButtons::YesNo};
  if (program.platform.ShowMessage(proposal) == Answer::Yes) {
    DesignBox(program, vented);
  } else {
    OpenWindow(program, "frmbox");
  }
}

void cmdcalcola_Click(Program& program) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  if (!DataIsComplete(program)) return;
  bool propose = true;
  if (s.ImpedanceMode) {
    propose = ComputeImpedanceProject(program);
  } else {
    ComputeParametersProject(program);
  }
  if (propose) ProposeBox(program);
  LockTransducerFields(program);
  sheet.mnusalvadir.enabled = sheet.mnustampa.enabled = true;
  MarkModified(program);
  sheet.cmdcalcola.enabled = false;
  if (s.txtfstrasdu.empty()) AssignText(program, sheet.txtfstrasdu, s.txtfs);
  s.GrafCassaOpen = true;
}

bool SizeIsFilled(const ProjectState& s) {
  return !s.txtprof.empty() && !s.txtforo.empty() && !s.txtlagmagne.empty() && !s.txtprofmag.empty() &&
         !s.txtdiambob.empty();
}

TransducerSize ReadSize(const ProjectState& s) {
  return {ReadNumber(s.txtforo),    ReadNumber(s.txtprof),    ReadNumber(s.txtlagmagne),
          ReadNumber(s.txtprofmag), ReadNumber(s.txtdiambob), ReadNumber(s.txtspesbordo)};
}

void txtvolume_GotFocus(Program& program) {
  if (!SizeIsFilled(program.state)) return;
  AssignNumber(program, program.windows.frmthsm.txtvolume, VolumeTrasduttore(ReadSize(program.state)));
}

/// Enter and Tab show a first figure of the volume instead of passing the focus on, as wanted.
bool txtdiambob_Key(Program& program, int k) {
  const ProjectState& s = program.state;
  if ((k != key::kEnter && k != key::kTab) || s.txtdiambob == "0" || !SizeIsFilled(s)) return false;
  AssignNumber(program, program.windows.frmthsm.txtvolume, VolumeTrasduttoreBreve(ReadSize(s)));
  return true;
}

/// The basket in litres as a truncated cone between voice coil and baffle cutout.
double BasketVolume(const TransducerSize& size, double height) {
  const double r1 = size.diambob / 2;
  const double r2 = size.foro / 2;
  return (height * kPi * (r1 * r1 + r2 * r2 + r1 * r2)) / 3000000;
}

}  // namespace

ImpedanceQ QFromImpedance(double zmax, double re, double qms) {
  ImpedanceQ q;
  q.res = zmax - re;
  q.rzero = Divide(zmax, re);
  q.qms = qms;
  q.qes = Divide(qms, q.rzero - 1);
  q.qts = Divide(qms, q.rzero);
  return q;
}

double QmsFromBandwidth(double fs, double zmax, double re, double bw) {
  return Divide(SquareRoot(Divide(zmax, re)) * fs, bw);
}

double QtsWithAmplifier(double qms, double qes, double re, double rs) {
  const double raised = Divide(re + rs, re) * qes;
  return Divide(qms * raised, qms + raised);
}

double LcesFromRes(double res, double qms, double omega) { return Divide(res, qms * omega); }
double CmesFromRes(double res, double qms, double omega) { return Divide(qms, res * omega); }

Mechanical TsDaMeccanici(double fs, double qms, double bl, double mms) {
  const double omega = fs * kTwoPi;
  Mechanical mechanical;
  mechanical.cms = Divide(1, omega * omega * mms);
  mechanical.rms = Divide(mms * omega, qms);
  mechanical.lces = bl * bl * mechanical.cms;
  mechanical.cmes = Divide(mms, bl * bl);
  mechanical.res = Divide(bl * bl, mechanical.rms);
  return mechanical;
}

Acoustic TsAcustici(double sd, double cms, double mms, double rms, double roo, double velocity) {
  Acoustic acoustic;
  acoustic.cas = sd * sd * cms;
  acoustic.mas = Divide(mms, sd * sd);
  acoustic.ras = Divide(rms, sd * sd);
  acoustic.vas = Finite(roo * acoustic.cas * (velocity * velocity));
  return acoustic;
}

double Efficiency(double fs, double vas, double qes, double velocity) {
  const double constant = Divide(kPi * kPi * 4, velocity * velocity * velocity) * 100;
  return (fs * fs * fs) * constant * Divide(vas, qes);
}

double VolumeTrasduttore(const TransducerSize& size) {
  const double magnet_radius = size.lagmagne / 2;
  const double magnet = (size.profmag * kPi * (magnet_radius * magnet_radius)) / 1000000;
  return BasketVolume(size, size.prof - size.profmag - size.spesbordo) + magnet;
}

double VolumeTrasduttoreBreve(const TransducerSize& size) { return BasketVolume(size, size.prof - size.profmag); }

void ConnectThieleSmall(Program& program) {
  Sheet& sheet = program.windows.frmthsm;
  sheet.cmdcalcola.on.click = cmdcalcola_Click;
  sheet.txtvolume.on.got_focus = txtvolume_GotFocus;
  sheet.txtdiambob.on.key = txtdiambob_Key;
}

}  // namespace zefirondo
