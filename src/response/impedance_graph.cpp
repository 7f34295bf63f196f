#include "response/impedance_graph.h"

#include "core/window_life.h"
#include "response/graph_surface.h"

namespace zefirondo {
namespace {

constexpr double kLeft = 10;   // 3.16 Hz
constexpr double kWidth = 76;  // to 20 kHz

void frmgrafico_Load(Program& program) {
  const ProjectState& s = program.state;
  Surface& surface = program.windows.frmgrafico.surface;
  surface.scale = {kLeft, kWidth, static_cast<double>(s.ImpScaleTop)};
  surface.Clear();
  GrigliaImpedenza(s.ImpScaleTop, surface);
  DisegnaImpedenza(s.ImpFreq, s.ImpZ, s.ImpScaleTop, surface, colour::kBlack);
}

void pctgrafimp_MouseDown(Program& program, double x, double y) {
  ImpedanceGraph& form = program.windows.frmgrafico;
  ShowReadout(form.surface, form.txtpos, x, y, program.state.ImpScaleTop - y, {" ohm"});
}

void pctgrafimp_MouseUp(Program& program) { HideReadout(program.windows.frmgrafico.txtpos); }

void mnuchiudigraf_Click(Program& program) { CloseWindow(program, program.windows.frmgrafico.window); }

}  // namespace

void ConnectImpedanceGraph(Program& program) {
  ImpedanceGraph& form = program.windows.frmgrafico;
  form.window.on.load = frmgrafico_Load;
  form.pctgrafimp.on.mouse_down = pctgrafimp_MouseDown;
  form.pctgrafimp.on.mouse_up = pctgrafimp_MouseUp;
  form.mnuchiudigraf.on.click = mnuchiudigraf_Click;
}

}  // namespace zefirondo
