// Where the curves take their numbers from: a measured resonance before a typed one, the leakage as text or as number,
// the tuning of the sheet or of the design. Two sets of inputs that must mean the same are drawn and compared.
#include "core/acts.h"
#include "core/window_life.h"
#include "response/plain_curves.h"

namespace zefirondo {
namespace {

struct Graph {
  const char *name, *entry, *plot;
  bool vented;
};

constexpr Graph kSpl{"Spl", "mnuspl", "frmspl.pctgrafspl", true};
constexpr Graph kSplMax{"SplMax", "mnusplmax", "frmsplMax.pctgrafspl", true};
constexpr Graph kExcursion{"Excursion", "mnuescursione", "frmescursione.pctgrafex", true};
constexpr Graph kAir{"AirSpeed", "mnuairspeed", "frmairspeed.pctgrafair", true};
constexpr Graph kPhase{"Phase", "mnufase", "frmFase.pctgrafFase", true};
constexpr Graph kSplClosed{"SplClosed", "mnuspl", "frmspl.pctgrafspl", false};
constexpr Graph kSplMaxClosed{"SplMaxClosed", "mnusplmax", "frmsplMax.pctgrafspl", false};
constexpr Graph kExcursionClosed{"ExcursionClosed", "mnuescursione", "frmescursione.pctgrafex", false};
constexpr Graph kPhaseClosed{"PhaseClosed", "mnufase", "frmFase.pctgrafFase", false};

using Change = void (*)(ProjectState&);

void Nothing(ProjectState&) {}

/// The heights of the curve that a graph draws for a design that was changed so.
Curve Drawn(const Graph& graph, Change change) {
  Desk desk;
  desk.DesignVented();
  desk.sheet.selected_tab = graph.vented ? "ref" : "chi";
  desk.state.Qtc = 0.8;
  desk.state.Fc = 55;
  desk.state.txtpotenza = "10";
  change(desk.state);
  desk.Choose(std::string("frmgrafcassa.") + graph.entry);
  const Surface& surface = *desk[graph.plot].surface;
  const std::vector<Stroke> chains = plain::Chains(surface);
  Curve heights;
  if (chains.empty()) return heights;
  for (std::size_t i = 0; i < chains.back().count; ++i) {
    heights.push_back(desk.state.SplScaleTop - surface.points[chains.back().first + i].y);
  }
  return heights;
}

struct Pair {
  const char* name;
  Graph graph;
  Change one, other;
  bool same;
};

void MeasuredFs(ProjectState& s) {
  s.Fs = 40;
  s.txtfs = "35";
}
void TypedFs(ProjectState& s) {
  s.Fs = 0;
  s.txtfs = "40";
}
template <int kTenths>
void Leakage(ProjectState& s) {
  s.cmbql = std::to_string(kTenths / 10) + "." + std::to_string(kTenths % 10);
}
void SheetTuning(ProjectState& s) { s.txtfb = "44"; }
void OwnTuning(ProjectState& s) { s.Fb = 44; }
void OwnLeakage(ProjectState& s) { s.Ql = 12; }
void Sensitivity(ProjectState& s) { s.txtsensibilita = "60"; }
void TwoDrivers(ProjectState& s) {
  s.DriversNum = 2;
  s.WooferWiring = "series";
}

const Pair kPairs[]{
    {"MeasuredFs", kSpl, MeasuredFs, TypedFs, true},
    {"MeasuredFs", kSplMax, MeasuredFs, TypedFs, true},
    {"MeasuredFs", kExcursion, MeasuredFs, TypedFs, true},
    {"MeasuredFs", kAir, MeasuredFs, TypedFs, true},
    {"MeasuredFs", kPhase, MeasuredFs, TypedFs, true},
    {"MeasuredFs", kSplClosed, MeasuredFs, TypedFs, true},
    {"MeasuredFs", kExcursionClosed, MeasuredFs, TypedFs, true},
    {"AnotherFs", kSpl, MeasuredFs, Nothing, false},
    {"AnotherFs", kAir, MeasuredFs, Nothing, false},

    // The levels and the air speed round the leakage, ties to even; the excursion takes it as it is.
    {"RoundedLeakage", kSpl, Leakage<76>, Leakage<80>, true},
    {"RoundedLeakage", kSplMax, Leakage<65>, Leakage<60>, true},
    {"RoundedLeakage", kAir, Leakage<75>, Leakage<80>, true},
    {"WholeLeakage", kExcursion, Leakage<76>, Leakage<80>, false},
    {"LeakageOfTheSheet", kPhase, Leakage<200>, Nothing, true},
    {"LeakageOfTheDesign", kPhase, OwnLeakage, Nothing, false},
    {"LeakageOfTheDesign", kSpl, OwnLeakage, Nothing, true},
    {"LeakageOfTheDesign", kAir, OwnLeakage, Nothing, true},

    // The tuning that the sheet shows serves the levels and the excursion, that of the design the others.
    {"SheetTuning", kSpl, SheetTuning, Nothing, false},
    {"SheetTuning", kSplMax, SheetTuning, Nothing, false},
    {"SheetTuning", kExcursion, SheetTuning, Nothing, false},
    {"SheetTuning", kAir, SheetTuning, Nothing, true},
    {"SheetTuning", kPhase, SheetTuning, Nothing, true},
    {"OwnTuning", kSpl, OwnTuning, Nothing, true},
    {"OwnTuning", kExcursion, OwnTuning, Nothing, true},
    {"OwnTuning", kAir, OwnTuning, Nothing, false},
    {"OwnTuning", kPhase, OwnTuning, Nothing, false},

    {"Sensitivity", kSpl, Sensitivity, Nothing, true},
    {"Sensitivity", kSplMax, Sensitivity, Nothing, true},
    {"Sensitivity", kExcursion, Sensitivity, Nothing, true},
    {"Sensitivity", kAir, Sensitivity, Nothing, true},
    {"Sensitivity", kSplClosed, Sensitivity, Nothing, true},
    {"Sensitivity", kSplMaxClosed, Sensitivity, Nothing, true},
    {"Sensitivity", kExcursionClosed, Sensitivity, Nothing, true},
    {"Sensitivity", kPhaseClosed, Sensitivity, Nothing, true},

    // In series two drivers change no level: the compliance here is that of one.
    {"TwoDriversInSeries", kSpl, TwoDrivers, Nothing, true},
    {"TwoDriversInSeries", kSplMax, TwoDrivers, Nothing, true},
    {"TwoDriversInSeries", kPhase, TwoDrivers, Nothing, false},
    {"TwoDriversInSeries", kAir, TwoDrivers, Nothing, false},
};

class CurveInputs : public testing::TestWithParam<Pair> {};

TEST_P(CurveInputs, MeanTheSameOrDoNot) {
  const Pair& pair = GetParam();
  const Curve one = Drawn(pair.graph, pair.one);
  const Curve other = Drawn(pair.graph, pair.other);
  ASSERT_GT(one.size(), 1000U);
  EXPECT_EQ(one == other, pair.same);
}

INSTANTIATE_TEST_SUITE_P(All, CurveInputs, testing::ValuesIn(kPairs), [](const testing::TestParamInfo<Pair>& instance) {
  return std::string(instance.param.name) + instance.param.graph.name;
});

}  // namespace
}  // namespace zefirondo
