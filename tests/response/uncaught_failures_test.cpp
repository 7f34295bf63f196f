// What no routine catches: the text is shown once, the program ends as failed, and nothing happens any more.
#include <algorithm>
#include <cmath>

#include "core/acts.h"
#include "core/record.h"
#include "response/plain_curves.h"

namespace zefirondo {
namespace {

constexpr const char* kDivision = "Division by zero";
constexpr const char* kIndex = "Subscript out of range";
constexpr const char* kOverflow = "Overflow";
constexpr const char* kArgument = "Invalid procedure call or argument";
constexpr const char* kLogarithm = "Error, logarithm of a number less than or equal to zero";

struct Failure {
  const char* name;
  const char* entry;  // of the box response window
  bool vented;
  void (*spoil)(ProjectState&);
  const char* text;
};

const Failure kFailures[]{
    {"SplWithoutVas", "mnuspl", true, [](ProjectState& s) { s.Vas = 0; }, kLogarithm},
    {"SplClosedWithoutVas", "mnuspl", false, [](ProjectState& s) { s.Vas = 0; }, kLogarithm},
    {"SplClosedWithoutFs", "mnuspl", false, [](ProjectState& s) { s.txtfs = "0"; }, kLogarithm},
    {"SplVentedWithoutFs", "mnuspl", true, [](ProjectState& s) { s.txtfs = "0"; }, kDivision},
    {"SplWithoutQes", "mnuspl", true, [](ProjectState& s) { s.txtqes = ""; }, kDivision},
    {"SplWithoutVb", "mnuspl", true, [](ProjectState& s) { s.Vb = 0; }, kDivision},
    {"SplWithoutQts", "mnuspl", true, [](ProjectState& s) { s.Qts = 0; }, kDivision},
    {"SplWithoutQl", "mnuspl", true, [](ProjectState& s) { s.cmbql = "0.4"; }, kDivision},  // rounded to 0
    {"SplWithAHugeQl", "mnuspl", true, [](ProjectState& s) { s.cmbql = "32768"; }, kOverflow},
    {"SplWithoutQtc", "mnuspl", false, [](ProjectState& s) { s.Qtc = 0; }, kDivision},
    {"SplWithoutFc", "mnuspl", false, [](ProjectState& s) { s.Fc = 0; }, kDivision},
    {"SplMaxWithoutPower", "mnusplmax", true, [](ProjectState& s) { s.txtpotenza = ""; }, kLogarithm},
    {"SplMaxWithANegativePower", "mnusplmax", false, [](ProjectState& s) { s.txtpotenza = "-4"; }, kLogarithm},
    // The level of 1 W comes before the power.
    {"SplMaxWithoutPowerAndQes", "mnusplmax", true, [](ProjectState& s) { s.txtpotenza = s.txtqes = ""; }, kDivision},
    {"ExcursionWithoutPower", "mnuescursione", true, [](ProjectState& s) { s.txtpotenza = ""; }, kLogarithm},
    {"ExcursionWithoutPowerAndQes", "mnuescursione", true, [](ProjectState& s) { s.txtpotenza = s.txtqes = ""; },
     kDivision},
    {"ExcursionWithoutVba", "mnuescursione", true, [](ProjectState& s) { s.VbaVented = 0; }, kDivision},
    {"ExcursionWithoutSd", "mnuescursione", true, [](ProjectState& s) { s.txtsd = ""; }, kDivision},
    {"ExcursionWithoutQl", "mnuescursione", true, [](ProjectState& s) { s.cmbql = ""; }, kDivision},
    {"ExcursionClosedWithoutSd", "mnuescursione", false, [](ProjectState& s) { s.txtsd = ""; }, kDivision},
    {"ExcursionClosedWithoutFc", "mnuescursione", false, [](ProjectState& s) { s.Fc = 0; }, kDivision},
    {"ExcursionClosedWithoutQtc", "mnuescursione", false, [](ProjectState& s) { s.Qtc = 0; }, kDivision},
    {"ExcursionClosedWithoutQes", "mnuescursione", false, [](ProjectState& s) { s.txtqes = ""; }, kDivision},
    {"ExcursionClosedWithANegativePower", "mnuescursione", false, [](ProjectState& s) { s.txtpotenza = "-4"; },
     kArgument},
    {"AirWithoutPorts", "mnuairspeed", true, [](ProjectState& s) { s.VentNum = 0; }, kDivision},
    {"AirWithoutAPortArea", "mnuairspeed", true, [](ProjectState& s) { s.SectArea1Vent = 0; }, kDivision},
    {"AirWithoutVb", "mnuairspeed", true, [](ProjectState& s) { s.Vb = 0; }, kDivision},
    {"AirWithoutFb", "mnuairspeed", true, [](ProjectState& s) { s.Fb = 0; }, kDivision},
    {"AirWithoutQts", "mnuairspeed", true, [](ProjectState& s) { s.Qts = 0; }, kDivision},
    {"AirWithoutQl", "mnuairspeed", true, [](ProjectState& s) { s.cmbql = "0"; }, kDivision},
    {"AirWithoutResistance", "mnuairspeed", true,
     [](ProjectState& s) {
       s.txtrvc = "0";
       s.RsAmplifier = 0;
     },
     kDivision},
    {"AirWithANegativePower", "mnuairspeed", true, [](ProjectState& s) { s.txtpotenza = "-4"; }, kArgument},
    {"AirBeyondItsScale", "mnuairspeed", true, [](ProjectState& s) { s.txtpotenza = "1e12"; }, kOverflow},
    {"PhaseWithoutVb", "mnufase", true, [](ProjectState& s) { s.Vb = 0; }, kDivision},
    {"PhaseWithoutFb", "mnufase", true, [](ProjectState& s) { s.Fb = 0; }, kDivision},
    {"PhaseWithoutFs", "mnufase", true, [](ProjectState& s) { s.txtfs = "0"; }, kDivision},
    {"PhaseWithoutQts", "mnufase", true, [](ProjectState& s) { s.Qts = 0; }, kDivision},
    {"PhaseWithoutQl", "mnufase", true, [](ProjectState& s) { s.Ql = 0; }, kDivision},
    {"PhaseClosedWithoutQtc", "mnufase", false, [](ProjectState& s) { s.Qtc = 0; }, kDivision},
    {"PhaseClosedWithoutFc", "mnufase", false, [](ProjectState& s) { s.Fc = 0; }, kDivision},
    {"PhaseWithAFilterThatHasNone", "mnufase", true,
     [](ProjectState& s) {
       s.FilterComputed = true;
       s.FilterPhaseDeg.assign(6826, 0);
     },
     kIndex},
};

/// A curve that failed on its way is not kept, and least of all with what no double can hold.
void ExpectFiniteCurves(const ProjectState& state) {
  for (const char* const name : {"SplFreq", "SplDb", "SplMaxFreq", "SplMaxDb", "AirFreq", "AirSpeed", "PhaseFreq",
                                 "PhaseDeg", "BoxFreq", "BoxDb", "SumPhaseDeg"}) {
    const Curve& curve = *std::get<const Curve*>(FindInRecord(state, name));
    EXPECT_TRUE(std::all_of(curve.begin(), curve.end(), [](double value) { return std::isfinite(value); })) << name;
  }
}

class Uncaught : public testing::TestWithParam<Failure> {};

TEST_P(Uncaught, IsToldAndEndsTheProgram) {
  const Failure& failure = GetParam();
  Desk desk;
  failure.vented ? desk.DesignVented() : desk.DesignClosed();
  ASSERT_EQ(desk.program.run, RunState::Running);
  failure.spoil(desk.state);
  desk.TakeOut();
  desk.Choose(std::string("frmgrafcassa.") + failure.entry);
  EXPECT_EQ(desk.TakeOut(), std::string("message stop \"Error\" \"") + failure.text + "\" [OK] -> OK\nended error\n");
  EXPECT_EQ(desk.program.run, RunState::EndedByFailure);
  ExpectFiniteCurves(desk.state);
  EXPECT_TRUE(desk.program.keys.empty());
  const std::vector<Window*> order = desk.program.order;
  desk.Choose("frmgrafcassa.mnuchiudigraf");  // nothing is done any more
  EXPECT_EQ(desk.program.order, order);
  EXPECT_EQ(desk.TakeOut(), "");
}

INSTANTIATE_TEST_SUITE_P(All, Uncaught, testing::ValuesIn(kFailures),
                         [](const testing::TestParamInfo<Failure>& instance) { return instance.param.name; });

TEST(UncaughtInItalian, HasItsTitleAndTheLogarithmsText) {
  Desk logarithm(Language::Italian);
  logarithm.DesignVented();
  logarithm.state.Vas = 0;
  logarithm.TakeOut();
  logarithm.Choose("frmgrafcassa.mnuspl");
  EXPECT_EQ(logarithm.TakeOut(),
            "message stop \"Errore\" \"Errore, Logaritmo di un numero minore o uguale a zero\" [OK] -> OK\n"
            "ended error\n");
  Desk division(Language::Italian);
  division.DesignVented();
  division.state.Vb = 0;
  division.TakeOut();
  division.Choose("frmgrafcassa.mnuspl");
  EXPECT_EQ(division.TakeOut(), "message stop \"Errore\" \"Division by zero\" [OK] -> OK\nended error\n");
}

// A vented level is a fourth power of the frequency: 10 W and 1e300 W differ by 2990 dB, which still has a scale.
TEST(UncaughtNot, ByAPowerThatIsOnlyHuge) {
  Desk desk;
  desk.DesignVented();
  desk.state.txtpotenza = "1e300";
  desk.Choose("frmgrafcassa.mnusplmax");
  EXPECT_EQ(desk.program.run, RunState::Running);
  EXPECT_GT(desk.state.SplScaleTop, 3000);
}

}  // namespace
}  // namespace zefirondo
