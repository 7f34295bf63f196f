#include "design_bench.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <utility>
#include <vector>

#include "core/acts.h"
#include "core/numbers.h"
#include "program/assembly.h"
#include "response/air_speed.h"
#include "response/excursion.h"
#include "response/phase.h"
#include "response/spl.h"
#include "response/sweep.h"
#include "runner/names.h"

namespace zefirondo {

BenchDesk::BenchDesk() { ConnectProgram(program); }

void BenchDesk::DesignVented() {
  Start(program, "");
  Choose(program, program.windows.mdithsm.mnuinsmanuale);
  const auto set = [&](const char* field, const char* text) { Paste(program, FindControl(program, field), text); };
  for (const auto& [field, text] : std::initializer_list<std::pair<const char*, const char*>>{
           {"txtpotenza", "100"}, {"txtimpedenza", "8"}, {"txtsensibilita", "90"}, {"txtxmax", "5"}}) {
    set(field, text);
  }
  ClickTab(program, "dim");
  for (const auto& [field, text] : std::initializer_list<std::pair<const char*, const char*>>{{"txtforo", "230"},
                                                                                              {"txtprof", "110"},
                                                                                              {"txtlagmagne", "140"},
                                                                                              {"txtprofmag", "50"},
                                                                                              {"txtesterno", "260"},
                                                                                              {"txtspesbordo", "8"},
                                                                                              {"txtdiambob", "38"}}) {
    set(field, text);
  }
  Focus(program, program.windows.frmthsm.txtvolume);
  ClickTab(program, "par");
  for (const auto& [field, text] : std::initializer_list<std::pair<const char*, const char*>>{{"txtfs", "35"},
                                                                                              {"txtrvc", "5.6"},
                                                                                              {"txtqmesin", "4.2"},
                                                                                              {"txtbl", "9.5"},
                                                                                              {"txtd", "210"},
                                                                                              {"txtqes", "0.45"},
                                                                                              {"txtqts", "0.41"},
                                                                                              {"txtmms", "0.038"}}) {
    set(field, text);
  }
  platform.answers.push_back(Answer::Yes);
  Click(program, program.windows.frmthsm.cmdcalcola);
}

namespace {

ProjectState SampleState() {
  ProjectState state;
  state.Ql = 7;
  return state;
}

void SweepVentedBox(benchmark::State& run) {
  ProjectState state = SampleState();
  for (auto _ : run) {
    RispostaReflex(state, 0.1, 35, 0.41, 34, 0.09);
    benchmark::DoNotOptimize(state.BoxDb.data());
    benchmark::ClobberMemory();
  }
}
BENCHMARK(SweepVentedBox);

/// The same loop, written plainly: growing vectors, two logarithms a point.
void GrowingVented(Curve& x_out, Curve& db_out, double& top) {
  const double vb = 0.1, fs = 35, qts = 0.41, fb = 34, vas = 0.09, ql = 7;
  const double h = fb / fs;
  const double h2 = h * h;
  const double a = fb / (ql * fs) + h2 / qts;
  const double b = fb / (fs * qts * ql) + vas / vb + h2 + 1;
  const double c = fb / (ql * fs) + 1 / qts;
  double f = 0.0;
  top = 0.0;
  for (int i = 0; i <= 6826; ++i) {
    f += 0.7324;
    const double ratio = f / fs;
    const double x = ratio * ratio;
    const double v = x * x;
    const double first = v - b * x + h2;
    const double second = c * x - a;
    const double g = (v * v) / (first * first + second * second * x);
    x_out.push_back(20 * (std::log(f) / kLn10));
    db_out.push_back(10 * (std::log(g) / kLn10) + 40);
    if (db_out.back() > top) top = db_out.back();
  }
}

void SweepVentedPlain(benchmark::State& run) {
  for (auto _ : run) {
    Curve x;
    Curve db;
    double top = 0.0;
    GrowingVented(x, db, top);
    benchmark::DoNotOptimize(db.data());
    benchmark::DoNotOptimize(top);
    benchmark::ClobberMemory();
  }
}
BENCHMARK(SweepVentedPlain);

void SweepClosedBox(benchmark::State& run) {
  ProjectState state = SampleState();
  for (auto _ : run) {
    RispostaChiusa(state, 0.707, 50);
    benchmark::DoNotOptimize(state.BoxDb.data());
    benchmark::ClobberMemory();
  }
}
BENCHMARK(SweepClosedBox);

void SweepClosedPlain(benchmark::State& run) {
  for (auto _ : run) {
    Curve x_out;
    Curve db_out;
    const double qtc = 0.707, fc = 50;
    double f = 0.0;
    double top = 0.0;
    for (int i = 0; i <= 6826; ++i) {
      f += 0.7324;
      const double ratio = f / fc;
      const double x = ratio * ratio;
      const double g = (x * x) / ((x - 1) * (x - 1) + x / (qtc * qtc));
      x_out.push_back(20 * (std::log(f) / kLn10));
      db_out.push_back(10 * (std::log(g) / kLn10) + 40);
      if (db_out.back() > top) top = db_out.back();
    }
    benchmark::DoNotOptimize(db_out.data());
    benchmark::DoNotOptimize(top);
    benchmark::ClobberMemory();
  }
}
BENCHMARK(SweepClosedPlain);

/// A typed net volume on the box page, to all fields, the curve and the plot's list.
void WholeRedesign(benchmark::State& run) {
  BenchDesk desk;
  desk.DesignVented();
  Sheet& sheet = desk.program.windows.frmthsm;
  bool larger = false;
  for (auto _ : run) {
    larger = !larger;
    Paste(desk.program, sheet.txtvolnetto, larger ? "95.5" : "94.5");
    Focus(desk.program, sheet.txtingombro);
    benchmark::ClobberMemory();
  }
}
BENCHMARK(WholeRedesign);

void AllCurves(benchmark::State& run) {
  BenchDesk desk;
  desk.DesignVented();
  ProjectState& s = desk.program.state;
  for (auto _ : run) {
    RispostaReflex(s, s.Vb, 35, s.Qts, s.Fb, s.Vas);
    FaseReflex(s, s.Vb, 35, s.Qts, s.Fb, s.Vas);
    SplReflex(desk.program);
    SplMaxReflex(desk.program, 100);
    benchmark::DoNotOptimize(EscursioneReflex(s, 100).y.data());
    VelocitaAria(s, 100);
    desk.program.windows.frmspl.surface.Clear();
    desk.program.windows.frmsplMax.surface.Clear();
    benchmark::ClobberMemory();
  }
}
BENCHMARK(AllCurves);

/// The logarithms, roots, powers and arctangents that the formulas of those curves need, over the same arguments,
/// and nothing else: each point's place on the plot is one logarithm, its value the rest.
void AllCurvesFunctions(benchmark::State& run) {
  const std::vector<double>& hertz = Sweep5k().hertz;
  std::vector<double> out(kPointsTo5k);
  const auto logarithms = [&](std::size_t points) {
    for (std::size_t i = 0; i < points; ++i) out[i] = std::log(hertz[i]);
    benchmark::DoNotOptimize(out.data());
  };
  for (auto _ : run) {
    logarithms(kPointsTo5k);  // box: place and level
    logarithms(kPointsTo5k);
    logarithms(kPointsTo5k);  // phase: place and angle
    for (std::size_t i = 0; i < kPointsTo5k; ++i) out[i] = std::atan(hertz[i]);
    benchmark::DoNotOptimize(out.data());
    for (int graph = 0; graph < 2; ++graph) {  // the two level graphs: place and level
      logarithms(kPointsTo2k);
      logarithms(kPointsTo2k);
    }
    for (int logarithm = 0; logarithm < 3; ++logarithm) logarithms(kPointsTo1k);  // excursion: place, level, mass
    for (std::size_t i = 0; i < kPointsTo1k; ++i) out[i] = std::pow(10.0, hertz[i] * 1e-4);
    benchmark::DoNotOptimize(out.data());
    logarithms(kPointsTo2k);  // air speed: place and two roots
    for (std::size_t i = 0; i < kPointsTo2k; ++i) out[i] = std::sqrt(hertz[i]) + std::sqrt(hertz[i] + 1);
    benchmark::DoNotOptimize(out.data());
    benchmark::ClobberMemory();
  }
}
BENCHMARK(AllCurvesFunctions);

}  // namespace
}  // namespace zefirondo
