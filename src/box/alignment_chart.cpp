#include "box/alignment_chart.h"

#include <algorithm>
#include <array>

#include "box/vented_box.h"
#include "core/events.h"
#include "core/numbers.h"
#include "core/window_life.h"

namespace zefirondo {
namespace {

struct Alignment {
  Control AlignmentChart::*option;
  double vb_vas;
  double fb_fs;
  double f3_fs;
};

// In the order in which they are tested.
constexpr auto kAlignments = std::to_array<Alignment>({
    {&AlignmentChart::VbSuVas0954, 0.0954, 2, 2.68},
    {&AlignmentChart::VbSuVas1337, 0.1337, 1.73, 2.28},
    {&AlignmentChart::VbSUVas224, 0.2242, 1.42, 1.77},
    {&AlignmentChart::VbSUVas339, 0.339, 1.23, 1.45},
    {&AlignmentChart::VbSUVas707, 0.7071, 1, 1},
    {&AlignmentChart::VbSuVas9479, 0.9479, 0.927, 0.867},
    {&AlignmentChart::VbSuVas1372, 1.372, 0.829, 0.729},
    {&AlignmentChart::VbSUVas179, 1.79, 0.757, 0.641},
    {&AlignmentChart::VbSuVas2062, 2.062, 0.716, 0.6},
    {&AlignmentChart::VbSuVas260, 2.6, 0.638, 0.52},
    {&AlignmentChart::VbSUVas366, 0.366, 1, 1},
    {&AlignmentChart::VbSUVas429, 0.429, 0.98, 0.85},
});

/// Vb/Vas as it stands; 0 while the equivalent volume is unknown.
double CurrentVolumeRatio(const ProjectState& s) {
  const double vas = s.DriversNum * ReadNumber(s.txtvas);
  return vas == 0.0 ? 0.0 : Divide(s.Vb * 1000, vas * 1000);
}

void frmalfa_Load(Program& program) {
  ProjectState& s = program.state;
  AlignmentChart& form = program.windows.frmalfa;
  const double a = CurrentVolumeRatio(s);
  const double b = Divide(s.Fb, TransducerFs(s));
  s.AlfaValue = RoundHalfEven(a, 4);
  s.AlfaSecond = RoundHalfEven(b, 4);
  AssignNumber(program, form.txtVbsuVas, a);
  AssignNumber(program, form.txtFbSuFs, b);
  const auto row = std::find_if(kAlignments.begin(), kAlignments.end(), [&](const Alignment& alignment) {
    return alignment.vb_vas == s.AlfaValue && alignment.fb_fs == s.AlfaSecond;
  });
  if (row != kAlignments.end()) SetOption(form.*row->option);
}

void TakeAlignment(Program& program, const Alignment& row) {
  ProjectState& s = program.state;
  const double fs = TransducerFs(s);
  s.Vb = Finite(ReadNumber(s.txtvas) * s.DriversNum * row.vb_vas);
  s.Fb = Finite(fs * row.fb_fs);
  s.F3v = Finite(fs * row.f3_fs);
  s.AlfaValue = row.vb_vas;
}

void CloseChart(Program& program) { CloseWindow(program, program.windows.frmalfa.window); }

void cmdok_Click(Program& program) {
  ProjectState& s = program.state;
  AlignmentChart& form = program.windows.frmalfa;
  Sheet& sheet = program.windows.frmthsm;
  const auto row = std::find_if(kAlignments.begin(), kAlignments.end(),
                                [&](const Alignment& alignment) { return (form.*alignment.option).checked; });
  if (row != kAlignments.end()) {
    if (sheet.selected_tab == "ref" && !s.txtvas.empty()) TakeAlignment(program, *row);
    AssignNumber(program, sheet.txtfb, s.Fb);
    AssignNumber(program, program.windows.frmgrafcassa.txtF3dB, s.F3v);
    AssignNumber(program, sheet.txtvolnetto, s.Vb * 1000);
    CalcFbVbAlfa(program);
  }
  CloseChart(program);
}

}  // namespace

void ConnectAlignmentChart(Program& program) {
  AlignmentChart& form = program.windows.frmalfa;
  form.window.on.load = frmalfa_Load;
  form.cmdok.on.click = cmdok_Click;
  form.mnuchiudi.on.click = CloseChart;
}

}  // namespace zefirondo
