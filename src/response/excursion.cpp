#include "response/excursion.h"

#include <cmath>

#include "core/numbers.h"
#include "core/window_life.h"
#include "response/applied_power.h"
#include "response/graph_surface.h"
#include "response/reference_level.h"
#include "response/sweep.h"

namespace zefirondo {
namespace {

constexpr double kLeft = 10;   // 3.16 Hz
constexpr double kWidth = 50;  // to 1 kHz
constexpr int kTop = 20;       // mm
constexpr double kClampFrom = 30;
constexpr double kClampTo = 20;
constexpr double kVentedFrom = 10;  // Hz, where the vented sweep starts to count

/// A huge peak is drawn at the top edge.
double Clamp(double excursion) { return excursion < kClampFrom ? excursion : kClampTo; }

struct Grid {
  std::vector<double> hertz;
  std::vector<double> x;
};

Grid MakeVentedGrid() {
  Grid grid;
  double f = kVentedFrom;
  for (std::size_t i = 0; i < kPointsTo1k; ++i) {
    f += kSweepStep;
    grid.hertz.push_back(f);
    grid.x.push_back(20 * Log10(f));
  }
  return grid;
}

const Grid& VentedGrid() {
  static const Grid grid = MakeVentedGrid();
  return grid;
}

/// The vented model, with what does not depend on the frequency.
class VentedExcursion {
 public:
  VentedExcursion(const ProjectState& s, double power)
      : driver_(GatherDriver(s)),
        response_(s.VbaVented, driver_.fs, s.Qts, ReadNumber(s.txtfb), driver_.vas, ReadNumber(s.cmbql)),
        sd_(ReadNumber(s.txtsd)),
        lref_(ReferenceLevel(s, driver_.fs, driver_.vas, driver_.qes)),
        lp_(10 * Log10(power) + lref_),
        fs4_(Power(driver_.fs, 4)),
        air_((kPi * kPi * kPi * 4) * Divide(s.roo, s.Velocity)) {
    // A box loss of 7 is built in here, whatever `cmbql` says, as wanted: 97/49 = 2 − 1/7².
    e_ = (97.0 / 49.0) * response_.h2;
  }

  [[nodiscard]] double operator()(double f) const {
    const double ratio = f / driver_.fs;
    const double u = ratio * ratio;
    const double v = u * u;
    const double first = v - response_.b * u + response_.h2;
    const double second = response_.c * u - response_.a;
    const double den = first * first + second * second * u;
    const double r = 10 * Log10(v * v / den);
    const double m = v * v * fs4_ * air_;
    const double q = response_.h2 * response_.h2 + (v - e_ * u);
    const double z = ((lp_ + r - 112) - 10 * Log10(m / q)) / 20;
    return Clamp(std::pow(10.0, z) * 1000 / sd_);
  }

 private:
  DriverInputs driver_;
  VentedResponse response_;
  double sd_;
  double lref_;
  double lp_;
  double fs4_;
  double air_;
  double e_ = 0.0;
};

bool OnVentedTab(const Program& program) { return program.windows.frmthsm.selected_tab == "ref"; }

void Draw(Program& program, const DrawnCurve& curve) {
  Surface& surface = program.windows.frmescursione.surface;
  GrigliaEscursione(kTop, surface, ReadNumber(program.state.txtxmax));
  DisegnaCurva(curve.x, curve.y, kTop, surface, colour::kBlack);
}

void frmescursione_Load(Program& program) {
  ProjectState& s = program.state;
  ExcursionGraph& form = program.windows.frmescursione;
  SendToBack(program, program.windows.frmthsm.window);
  form.surface.scale = {kLeft, kWidth, static_cast<double>(kTop)};
  form.surface.Clear();
  const std::string power = FormatNumber(ApplyPowerRule(s, PowerRule::Shown, ReadNumber(s.txtpotenza)));
  AssignText(program, form.lbltitolo, program.Text(204) + power + " W Rms");
  AssignText(program, form.txtpot, power);
  s.GrafEscursioneOpen = true;
}

void frmescursione_Unload(Program& program) { program.state.GrafEscursioneOpen = false; }

void cmdcalc_Click(Program& program) {
  const ProjectState& s = program.state;
  ExcursionGraph& form = program.windows.frmescursione;
  const double power = TakeTypedPower(program, form.txtpot);
  if (power == 0.0) return;
  form.surface.Clear();
  if (OnVentedTab(program)) {
    Draw(program, EscursioneReflex(s, ApplyPowerRule(s, PowerRule::Redrawn, power)));
  } else {
    Draw(program, EscursioneChiusa(s, ApplyPowerRule(s, PowerRule::RedrawnClosed, power)));
  }
  AssignText(program, form.lbltitolo, program.Text(204) + *form.txtpot.text + " W Rms");
}

void mnuchiudi_Click(Program& program) { CloseWindow(program, program.windows.frmescursione.window); }

void pctgrafex_MouseDown(Program& program, double x, double y) {
  ExcursionGraph& form = program.windows.frmescursione;
  ShowReadout(form.surface, form.txtpos, x, y, kTop - y, {" mm", 50});
}

void pctgrafex_MouseUp(Program& program) { HideReadout(program.windows.frmescursione.txtpos); }

}  // namespace

DrawnCurve EscursioneChiusa(const ProjectState& s, double power) {
  const DriverInputs driver = GatherDriver(s);
  const double used = ApplyPowerRule(s, PowerRule::InsideClosed, power);
  const double k1 = Divide(SquareRoot(used / kTwoPi), ReadNumber(s.txtsd));
  const double k2 = SquareRoot(Divide(driver.vas, s.Velocity * s.Velocity * ((driver.qes * driver.fs) * s.roo)));
  const double scale = (k1 * 100) * k2;
  const double qtc_squared = s.Qtc * s.Qtc;
  const std::vector<double>& hertz = Sweep5k().hertz;
  DrawnCurve curve;
  FillAbscissa(curve.x, kPointsTo1k);
  curve.y.assign(kPointsTo1k + 1, 0.0);
  BeginArithmetic();
  for (std::size_t i = 0; i < kPointsTo1k; ++i) {
    const double ratio = hertz[i] / s.Fc;
    const double x = ratio * ratio;
    const double d = std::sqrt(x / qtc_squared + (1 - x) * (1 - x));
    curve.y[i] = Clamp(scale * (1 / d));
  }
  CheckArithmetic();
  return curve;
}

DrawnCurve EscursioneReflex(const ProjectState& s, double power) {
  const VentedExcursion excursion(s, power);
  const Grid& grid = VentedGrid();
  DrawnCurve curve;
  curve.x = grid.x;
  curve.x.push_back(0.0);
  curve.y.assign(kPointsTo1k + 1, 0.0);
  BeginArithmetic();
  for (std::size_t i = 0; i < kPointsTo1k; ++i) curve.y[i] = excursion(grid.hertz[i]);
  CheckArithmetic();
  return curve;
}

void ApriEscursione(Program& program) {
  const ProjectState& s = program.state;
  const double power = ReadNumber(s.txtpotenza);
  OpenWindow(program, program.windows.frmescursione.window);
  if (OnVentedTab(program)) {
    Draw(program, EscursioneReflex(s, ApplyPowerRule(s, PowerRule::Opened, power)));
  } else {
    Draw(program, EscursioneChiusa(s, power));
  }
}

void ConnectExcursion(Program& program) {
  ExcursionGraph& form = program.windows.frmescursione;
  form.window.on.load = frmescursione_Load;
  form.window.on.unload = frmescursione_Unload;
  form.cmdcalc.on.click = cmdcalc_Click;
  form.mnuchiudi.on.click = mnuchiudi_Click;
  form.pctgrafex.on.mouse_down = pctgrafex_MouseDown;
  form.pctgrafex.on.mouse_up = pctgrafex_MouseUp;
}

}  // namespace zefirondo
