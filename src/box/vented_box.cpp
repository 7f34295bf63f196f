#include "box/vented_box.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "box/geometry.h"
#include "box/ports.h"
#include "box/volumes.h"
#include "core/numbers.h"
#include "core/window_life.h"
#include "response/box_response.h"
#include "response/sweep.h"

namespace zefirondo {
namespace {

constexpr double kDefaultPortArea = 0.003525652;  // m²
constexpr std::array<std::string_view, 5> kListedQl{"5", "7", "10", "15", "20"};

/// Curve, plot and pole after the tuning or the volume moved.
void RedrawVented(Program& program) {
  ShowVentedPole(program);
  SweepVented(program);
  RidisegnaCassa(program);
}

void ShowTuning(Program& program) { AssignNumber(program, program.windows.frmthsm.txtfb, program.state.Fb); }

void TuningFromVolume(ProjectState& s) {
  s.Fb = VentedTuning(TransducerFs(s), TotalVas(s), s.Vb);
  s.F3v = VentedF3(TransducerFs(s), TotalVas(s), s.Vb);
}

void ShowTransducerVolume(Program& program) {
  const ProjectState& s = program.state;
  AssignNumber(program, program.windows.frmthsm.txtvoloccu, s.DriversNum * ReadNumber(s.txtvolume));
}

void cmbql_Click(Program& program) {
  ProjectState& s = program.state;
  if (s.cmbql == s.FieldBefore) return;
  s.Ql = ReadNumber(s.cmbql);
  s.Vb = ReadNumber(s.txtvolnetto) / 1000;
  RedrawVented(program);
  ShowTuning(program);
  ForgetF3(program);
  SumVolumes(program);
  DimensionaCondottoQuadrato(program);
  CloseDesignChange(program);
}

void cmbql_LostFocus(Program& program) {
  ProjectState& s = program.state;
  s.DesignChanged = s.cmbql != s.FieldBefore;
  if (std::find(kListedQl.begin(), kListedQl.end(), s.cmbql) == kListedQl.end()) {
    AssignNumber(program, program.windows.frmthsm.cmbql, s.Ql);
  }
}

/// Retunes from the port as it stands.
void RetuneFromPort(Program& program) {
  FbDaCondotto(program);
  SweepVented(program);
  RidisegnaCassa(program);
  ShowTuning(program);
  ShowVentedPole(program);
}

}  // namespace

double VentedVolume(double vas, double qts) { return Finite(vas * 20 * Power(qts, 3.3)); }
double VentedTuning(double fs, double vas, double volume) { return Finite(fs * Power(Divide(vas, volume), 0.31)); }
double VentedF3(double fs, double vas, double volume) { return Finite(fs * Power(Divide(vas, volume), 0.44)); }

void SweepVented(Program& program) {
  ProjectState& s = program.state;
  RispostaReflex(s, s.Vb, TransducerFs(s), s.Qts, s.Fb, TotalVas(s));
}

void ShowVentedPole(Program& program) {
  const ProjectState& s = program.state;
  AssignNumber(program, program.windows.frmthsm.txtfreriso, SquareRoot(s.Fb * TransducerFs(s)));
}

void SetDefaultPortArea(Program& program) {
  ProjectState& s = program.state;
  const bool known = !s.txtsd.empty() && !s.txtxmax.empty();
  s.SectArea1Vent = known ? SezioneMinima(s, s.txtxmax, s.txtsd) : kDefaultPortArea;
  AssignNumber(program, program.windows.frmthsm.txtminsv, s.SectArea1Vent * 10000);
}

void ForgetF3(Program& program) {
  program.state.F3v = 0.0;
  AssignText(program, program.windows.frmgrafcassa.txtF3dB, "****");
}

void CalcolaReflex(Program& program) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  s.Vb = VentedVolume(TotalVas(s), s.Qts);
  TuningFromVolume(s);
  SetDefaultPortArea(program);
  RedrawVented(program);
  ShowTuning(program);
  AssignNumber(program, program.windows.frmgrafcassa.txtF3dB, s.F3v);
  AssignNumber(program, sheet.txtvolnetto, s.Vb * 1000);
  s.VbaVented = ApparentVolume(s, s.Vb);
  AssignNumber(program, sheet.txtvolappa, s.VbaVented * 1000);
  SumVolumes(program);
  DimensionaCondotto(program);
}

void RiapriReflex(Program& program) {
  const ProjectState& s = program.state;
  if (!s.txtb.empty()) ShowRectangularPort(program);
  AssignText(program, program.windows.frmthsm.txtfstrasdu, s.txtfs);
  LunghezzaDigitata(program);
}

void AggiornaReflex(Program& program) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  if (!s.txtld.empty()) {
    ShowTrapezoid(program);
    AssignText(program, sheet.cmbforma, program.Text(503));
  }
  if (!s.txtb.empty() && !sheet.RoundPort()) ShowRectangularPort(program);
  s.VbaVented = ApparentVolume(s, s.Vb);
  AssignNumber(program, sheet.txtvolnetto, s.Vb * 1000);
  AssignNumber(program, sheet.txtvolappa, s.VbaVented * 1000);

  const bool round = sheet.RoundPort() && !s.cmbDoa.empty();
  const bool port_known = round || !s.txtb.empty();
  if (port_known && s.AirChanged) {  // the air moved the tuning of the port as it stands
    RetuneFromPort(program);
  } else if (s.DesignChanged && !s.AirChanged) {
    SweepVented(program);
    RidisegnaCassa(program);
    ShowTuning(program);
    ShowVentedPole(program);
  }
}

void CalcFbVbAlfa(Program& program) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  if (s.txtvolnetto == "0") {
    AssignText(program, sheet.txtvolnetto, s.FieldBefore);
    return;
  }
  s.DesignChanged = s.txtvolnetto != s.FieldBefore;
  if (!s.DesignChanged) return;
  s.Vba = ApparentVolume(s, ReadNumber(s.txtvolnetto) / 1000);
  AssignNumber(program, sheet.txtvolappa, s.Vba * 1000);
  if (sheet.selected_tab == "ref") {
    s.VbaVented = s.Vba;
    s.Vb = ReadNumber(s.txtvolnetto) / 1000;
    if (TotalVas(s) != 0.0 && s.Qts != 0.0 && s.Vb != 0.0) {
      RedrawVented(program);
      ShowTuning(program);
      AssignNumber(program, sheet.txtvolnetto, s.Vb * 1000);
      SumVolumes(program);
      s.SquarePortSection = false;
      DimensionaCondotto(program);
    }
  }
  CloseDesignChange(program);
}

void ReflexVolnetto(Program& program) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  s.VbaVented = s.Vba;
  s.Vb = ReadNumber(s.txtvolnetto) / 1000;
  if (TotalVas(s) == 0.0 || s.Qts == 0.0 || s.Vb == 0.0) return;
  FbDaCondotto(program);
  RedrawVented(program);
  ShowTuning(program);
  s.F3v = 0.0;  // its text on the box graph stays as it is here
  AssignNumber(program, sheet.txtvolnetto, s.Vb * 1000);
  SumVolumes(program);
  DimensionaCondottoQuadrato(program);
}

void ReflexNumDriver(Program& program, std::int16_t drivers) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  s.DesignChanged = true;
  s.DriversNum = drivers;
  const MessageBox question{MessageIcon::Question, program.Text(169), program.Text(167) + "\n\n" + program.Text(170),
                            MessageButtons::YesNo};
  const bool change_volume = program.platform.ShowMessage(question) == Answer::Yes;
  s.Vb = change_volume ? VentedVolume(TotalVas(s), s.Qts) : ReadNumber(s.txtvolnetto) / 1000;
  TuningFromVolume(s);
  RedrawVented(program);
  ShowTuning(program);
  AssignNumber(program, program.windows.frmgrafcassa.txtF3dB, s.F3v);
  AssignNumber(program, sheet.txtvolnetto, s.Vb * 1000);
  s.VbaVented = ApparentVolume(s, s.Vb);
  AssignNumber(program, sheet.txtvolappa, s.VbaVented * 1000);
  ShowTransducerVolume(program);
  const double litres = ReadNumber(s.txtvoloccu) + s.Vb * 1000 + ReadNumber(s.txtingombro);
  AssignNumber(program, sheet.txtboxvolume, litres);
  DimensioniBox(program);
  SetDefaultPortArea(program);
  DimensionaCondottoQuadrato(program);
  CloseDesignChange(program);
}

void ConnectVentedBox(Program& program) {
  Control& cmbql = program.windows.frmthsm.cmbql;
  cmbql.on.click = cmbql_Click;
  cmbql.on.lost_focus = cmbql_LostFocus;
}

}  // namespace zefirondo
