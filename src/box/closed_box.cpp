#include "box/closed_box.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "box/volumes.h"
#include "core/numbers.h"
#include "core/window_life.h"
#include "response/box_response.h"
#include "response/sweep.h"

namespace zefirondo {
namespace {

constexpr double kAirLoad = 1.15;
constexpr std::array<std::string_view, 5> kListedQtc{"0.5", "0.707", "1.0", "1.4", "2.0"};

void ResonanceFromVolume(ProjectState& s) {
  s.Fc = Finite(TransducerFs(s) * ClosedRatio(TotalVas(s), s.VbaClosed));
  s.F3c = ClosedF3(s.Qtc, s.Fc);
}

/// Holds the volume: Qtc and resonance follow it.
void QtcFromVolume(Program& program) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  const double ratio = ClosedRatio(TotalVas(s), s.VbaClosed);
  s.Qtc = Finite(s.Qts * ratio);
  AssignNumber(program, sheet.cmballi, s.Qtc);
  s.Fc = Finite(TransducerFs(s) * ratio);
  s.F3c = ClosedF3(s.Qtc, s.Fc);
  RispostaChiusa(s, s.Qtc, s.Fc);
  AssignNumber(program, sheet.txtfb, s.Fc);
  SumBoxVolume(program);
}

/// Holds Qtc: volume and resonance follow it.
void VolumeFromQtc(Program& program) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  s.Vc = ClosedVolume(TotalVas(s), s.Qts, s.Qtc);
  s.VbaClosed = ApparentVolume(s, s.Vc);
  AssignNumber(program, sheet.txtvolnetto, s.Vc * 1000);
  AssignNumber(program, sheet.txtvolappa, s.VbaClosed * 1000);
  ResonanceFromVolume(s);
  RispostaChiusa(s, s.Qtc, s.Fc);
  AssignNumber(program, sheet.txtfb, s.Fc);
}

void ShowPoleFrequency(Program& program) {
  const ProjectState& s = program.state;
  AssignNumber(program, program.windows.frmthsm.txtfreriso, SquareRoot(s.Fc * TransducerFs(s)));
}

void cmballi_Click(Program& program) {
  ProjectState& s = program.state;
  if (s.cmballi == s.FieldBefore) return;
  s.Qtc = ReadNumber(s.cmballi);
  if (TotalVas(s) != 0.0 && s.Qts != 0.0) {
    VolumeFromQtc(program);
    SumVolumes(program);
    RidisegnaCassa(program);
  }
  ChiudiGrafici(program);
  MarkModified(program);
}

void cmballi_LostFocus(Program& program) {
  ProjectState& s = program.state;
  s.DesignChanged = s.cmballi != s.FieldBefore;
  if (std::find(kListedQtc.begin(), kListedQtc.end(), s.cmballi) == kListedQtc.end()) {
    AssignNumber(program, program.windows.frmthsm.cmballi, s.Qtc);
  }
}

}  // namespace

double ClosedVolume(double vas, double qts, double qtc) {
  const double ratio = Divide(qtc, qts);
  return Divide(vas, ratio * ratio * kAirLoad - 1);
}

double ClosedRatio(double vas, double vba) { return SquareRoot((Divide(vas, vba) + 1) / kAirLoad); }

double ClosedF3(double qtc, double fc) {
  const double a = Divide(1, qtc * qtc) - 2;
  const double b = SquareRoot(a * a + 4);
  return Finite(fc * SquareRoot((b + a) / 2));
}

void CalcolaChiusa(Program& program) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  s.Qtc = ReadNumber(s.cmballi);
  s.Vc = ClosedVolume(TotalVas(s), s.Qts, s.Qtc);
  s.VbaClosed = ApparentVolume(s, s.Vc);
  ResonanceFromVolume(s);
  ShowPoleFrequency(program);
  RispostaChiusa(s, s.Qtc, s.Fc);
  RidisegnaCassa(program);
  AssignNumber(program, sheet.txtfb, s.Fc);
  AssignNumber(program, sheet.txtvolnetto, s.Vc * 1000);
  AssignNumber(program, sheet.txtvolappa, s.VbaClosed * 1000);
  SumVolumes(program);
}

void ChiusaVolumeFisso(Program& program, double volume) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  s.Qtc = ReadNumber(s.cmballi);  // stays as selected while the resonance moves
  s.Vc = volume;
  s.VbaClosed = ApparentVolume(s, volume);
  ResonanceFromVolume(s);
  ShowPoleFrequency(program);
  RispostaChiusa(s, s.Qtc, s.Fc);
  RidisegnaCassa(program);
  AssignNumber(program, sheet.txtfb, s.Fc);
  AssignNumber(program, sheet.txtvolnetto, s.Vc * 1000);
  s.VbaClosed = ApparentVolume(s, ReadNumber(s.txtvolnetto) / 1000);
  AssignNumber(program, sheet.txtvolappa, s.VbaClosed * 1000);
  SumVolumes(program);
}

void RiapriChiusa(Program& program) {
  ProjectState& s = program.state;
  s.Qtc = ReadNumber(s.cmballi);
  s.VbaClosed = ApparentVolume(s, s.Vc);
  s.Fc = Finite(TransducerFs(s) * ClosedRatio(TotalVas(s), s.VbaClosed));
  RispostaChiusa(s, s.Qtc, s.Fc);
  RidisegnaCassa(program);
}

void AggiornaChiusa(Program& program) {
  const ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  RiapriChiusa(program);
  AssignNumber(program, sheet.txtvolnetto, s.Vc * 1000);
  AssignNumber(program, sheet.txtvolappa, s.VbaClosed * 1000);
  AssignNumber(program, sheet.txtfb, s.Fc);
  ShowPoleFrequency(program);
}

void ChiusaVolnetto(Program& program) {
  ProjectState& s = program.state;
  s.VbaClosed = s.Vba;
  s.Vc = ReadNumber(s.txtvolnetto) / 1000;
  s.VbaClosed = ApparentVolume(s, s.Vc);
  if (TotalVas(s) != 0.0 && s.Qts != 0.0 && s.VbaClosed != 0.0) QtcFromVolume(program);
  RidisegnaCassa(program);
}

void ChiusaNumDriver(Program& program, std::int16_t drivers) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  s.DesignChanged = true;
  s.DriversNum = drivers;
  AssignNumber(program, sheet.txtvoloccu, ReadNumber(s.txtvolume) * drivers);
  const MessageBox question{MessageIcon::Question, program.Text(169), program.Text(167) + "\n\n" + program.Text(168),
                            MessageButtons::YesNo};
  if (program.platform.ShowMessage(question) == Answer::Yes) {
    s.Qtc = ReadNumber(s.cmballi);
    if (TotalVas(s) != 0.0 && s.Qts != 0.0) {
      VolumeFromQtc(program);
      SumBoxVolume(program);
    }
  } else if (TotalVas(s) != 0.0 && s.Qts != 0.0 && s.VbaClosed != 0.0) {
    s.VbaClosed = ApparentVolume(s, s.Vc);
    AssignNumber(program, sheet.txtvolappa, s.VbaClosed * 1000);
    QtcFromVolume(program);
  }
  RidisegnaCassa(program);
  CloseDesignChange(program);
}

void ConnectClosedBox(Program& program) {
  Control& cmballi = program.windows.frmthsm.cmballi;
  cmballi.on.change = MarkModified;
  cmballi.on.click = cmballi_Click;
  cmballi.on.lost_focus = cmballi_LostFocus;
}

}  // namespace zefirondo
