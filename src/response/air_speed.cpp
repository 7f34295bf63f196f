#include "response/air_speed.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/numbers.h"
#include "core/window_life.h"
#include "response/applied_power.h"
#include "response/graph_surface.h"
#include "response/sweep.h"

namespace zefirondo {
namespace {

constexpr double kLeft = 10;   // 3.16 Hz
constexpr double kWidth = 50;  // to 1 kHz: what the curve has above it is clipped
constexpr int kHeadroom = 10;
constexpr double kQa = 20;  // absorption of the box
constexpr double kQp = 80;  // friction in the port

/// The speed per hertz, with what does not depend on the frequency.
struct PortFlow {
  double fs, h2, ta;
  double c0, c1, c2, c3;
  double ratio, d0, v0;

  PortFlow(const ProjectState& s, double power);

  [[nodiscard]] double operator()(double f) const {
    const double w = f / fs;
    // The real part takes w, not its square, as wanted.
    const double re = c0 - c2 * w;
    const double im = c1 * w - c3 * (w * w * w);
    const double den = std::sqrt(im * im + re * re);
    const double loss = (h2 / ta) * w;
    const double num = std::sqrt(h2 * h2 + loss * loss);
    return ((((f * kTwoPi) * ratio) * (d0 / den)) * num) * v0 * std::sqrt(2.0);
  }
};

PortFlow::PortFlow(const ProjectState& s, double power)
    : fs(TransducerFs(s)), h2(0), ta(0), c0(0), c1(0), c2(0), c3(0), ratio(0), d0(0), v0(0) {
  const double ql = ToInteger(ReadNumber(s.cmbql));
  const double vc = (0.9 / Power(kQa, 0.9) + 1) * s.Vb;
  const double alpha = Divide(TotalVas(s), vc);
  const double h = Divide(s.Fb, fs);
  h2 = h * h;
  ta = Divide(kQa, h);
  const double tl = Divide(ql, h);
  const double tp = Divide(kQp, h);
  const double e1 = Divide(1, tl * ta) + 1;
  const double e2 = Divide(1, (tl * ta) * tp) + (Divide(1, tp) + Divide(1, ta));
  const double e3 = Divide(1, tp * tl) + 1;
  c3 = Divide(h2, e2) + ((Divide(alpha, ta) + Divide(1, tl)) + Divide(e1, s.Qts));
  c2 = h2 * ((Divide(alpha, tp * ta) + e3) + Divide(e2, s.Qts)) + (Divide(1, tl * s.Qts) + (alpha + e1));
  c1 = h2 * ((Divide(alpha, tp) + Divide(e3, s.Qts)) + e2) + Divide(1, tl);
  c0 = h2 * e3;
  const double rvc = ReadNumber(s.txtrvc);
  ratio = Divide(s.DriversNum * ReadNumber(s.txtsd), s.VentNum * s.SectArea1Vent);
  d0 = Divide(ReadNumber(s.txtcms) * ReadNumber(s.txtbl), rvc + s.RsAmplifier);
  v0 = SquareRoot((rvc + s.RsAmplifier) * power);
}

void ComputeAndDraw(Program& program, double power) {
  ProjectState& s = program.state;
  Surface& surface = program.windows.frmairspeed.surface;
  VelocitaAria(s, power);
  GrigliaAria(s.SplScaleTop, surface, s.Velocity);
  DisegnaCurva(s.AirFreq, s.AirSpeed, s.SplScaleTop, surface, colour::kBlack);
  s.AirFreq.clear();  // drawn and thrown away
  s.AirSpeed.clear();
}

void frmairspeed_Load(Program& program) {
  ProjectState& s = program.state;
  AirSpeedGraph& form = program.windows.frmairspeed;
  SendToBack(program, program.windows.frmthsm.window);
  form.surface.scale = {kLeft, kWidth, static_cast<double>(s.SplScaleTop)};
  form.surface.Clear();
  const std::string power = FormatNumber(ApplyPowerRule(s, PowerRule::Shown, ReadNumber(s.txtpotenza)));
  AssignText(program, form.lbltitolo, program.Text(208) + power + " W Rms");
  AssignText(program, form.txtpot, power);
  s.GrafAirspeedOpen = true;
}

void frmairspeed_Unload(Program& program) { program.state.GrafAirspeedOpen = false; }

void cmdcalc_Click(Program& program) {
  AirSpeedGraph& form = program.windows.frmairspeed;
  const double power = TakeTypedPower(program, form.txtpot);
  if (power == 0.0) return;
  form.surface.Clear();
  ComputeAndDraw(program, ApplyPowerRule(program.state, PowerRule::Redrawn, power));
  AssignText(program, form.lbltitolo, program.Text(208) + *form.txtpot.text + " W Rms");
}

void mnuchiudi_Click(Program& program) { CloseWindow(program, program.windows.frmairspeed.window); }

void pctgrafair_MouseDown(Program& program, double x, double y) {
  AirSpeedGraph& form = program.windows.frmairspeed;
  ShowReadout(form.surface, form.txtpos, x, y, form.surface.scale.height - y, {" m/s", 50});
}

void pctgrafair_MouseUp(Program& program) { HideReadout(program.windows.frmairspeed.txtpos); }

}  // namespace

void VelocitaAria(ProjectState& s, double power) {
  const PortFlow flow(s, power);
  const std::vector<double>& hertz = Sweep5k().hertz;
  FillAbscissa(s.AirFreq, kPointsTo2k);
  Curve speed(kPointsTo2k + 1, 0.0);
  double maximum = 0.0;
  BeginArithmetic();
  for (std::size_t i = 0; i < kPointsTo2k; ++i) {
    speed[i] = flow(hertz[i]);
    maximum = std::max(maximum, speed[i]);
  }
  CheckArithmetic();
  s.AirSpeed = std::move(speed);
  s.SplScaleTop = ScaleTop(maximum, kHeadroom);
}

void ApriAirspeed(Program& program) {
  if (program.windows.frmthsm.selected_tab != "ref") {
    program.Message(MessageIcon::Information, program.Text(132), program.Text(133));
    return;
  }
  const double power = ReadNumber(program.state.txtpotenza);
  OpenWindow(program, program.windows.frmairspeed.window);
  ComputeAndDraw(program, ApplyPowerRule(program.state, PowerRule::Opened, power));
}

void ConnectAirSpeed(Program& program) {
  AirSpeedGraph& form = program.windows.frmairspeed;
  form.window.on.load = frmairspeed_Load;
  form.window.on.unload = frmairspeed_Unload;
  form.cmdcalc.on.click = cmdcalc_Click;
  form.mnuchiudi.on.click = mnuchiudi_Click;
  form.pctgrafair.on.mouse_down = pctgrafair_MouseDown;
  form.pctgrafair.on.mouse_up = pctgrafair_MouseUp;
}

}  // namespace zefirondo
