// The phase graph against a second reference, and its two oddities.
#include "response/phase.h"

#include "core/numbers.h"
#include "core/run_time_error.h"
#include "response/plain_curves.h"

namespace zefirondo {
namespace {

using plain::ChainColours;

long double Hertz(std::size_t i) { return 0.7324L * static_cast<long double>(i + 1); }

TEST(PhaseCurve, ClosedEqualsTheReference) {
  ProjectState s;
  for (const double qtc : {0.5, 0.707, 1.0, 1.4, 2.0}) {
    for (const double fc : {28.0, 61.5, 140.0}) {
      FaseChiusa(s, qtc, fc);
      ASSERT_EQ(s.PhaseDeg.size(), 6828U);
      long double farthest = 0;
      for (std::size_t i = 0; i < 6827; ++i) {
        farthest = std::max({farthest, std::fabs(s.PhaseDeg[i] - plain::ClosedPhase(qtc, fc, Hertz(i))),
                             std::fabs(s.PhaseFreq[i] - 20 * std::log10(Hertz(i)))});
      }
      EXPECT_LT(farthest, 1e-8L) << qtc << " " << fc;
      EXPECT_GT(s.PhaseDeg.front(), 150);
      EXPECT_LT(s.PhaseDeg[6826], 8);
    }
  }
}

TEST(PhaseCurve, ClosedIsNinetyDegreesAtResonance) {
  ProjectState s;
  FaseChiusa(s, 0.9, 0.7324);  // the first point of the sweep
  EXPECT_NEAR(s.PhaseDeg.front(), 90, 1e-12);
}

TEST(PhaseCurve, VentedEqualsTheReferenceWithItsOneStep) {
  ProjectState s;
  for (const double ql : {5.0, 7.0, 10.0, 15.0, 20.0}) {
    for (int count = 1; count <= 4; ++count) {
      s.Ql = ql;
      const double vas = 0.0926 * count;
      FaseReflex(s, 0.1, 35, 0.413, 31.75, vas);
      long double farthest = 0;
      long double previous = 0;
      bool raised = false;
      for (std::size_t i = 0; i < 6827; ++i) {
        const long double d = plain::VentedPhase({0.1L, 35, 0.413L, 31.75L, vas, ql}, Hertz(i));
        raised = raised || previous <= d;
        previous = d;
        farthest = std::max(farthest, std::fabs(s.PhaseDeg[i] - (raised ? d + 180 : d)));
      }
      EXPECT_LT(farthest, 1e-7L) << ql << " " << count;
      EXPECT_TRUE(raised);
      EXPECT_EQ(s.PhaseDeg[6827], 0.0);
    }
  }
}

TEST(PhaseCurve, AZeroAmongTheDivisorsFails) {
  ProjectState s;
  EXPECT_THROW(FaseChiusa(s, 0, 50), RunTimeError);
  EXPECT_THROW(FaseChiusa(s, 0.7, 0), RunTimeError);
  for (const int zero : {0, 1, 2, 3}) {
    double value[] = {0.1, 35, 0.4, 31};
    value[zero] = 0;
    EXPECT_THROW(FaseReflex(s, value[0], value[1], value[2], value[3], 0.09), RunTimeError) << zero;
  }
}

TEST(PhaseSum, IsBroughtBackByOneTurn) {
  for (const auto& [sum, stored] : {std::pair{-200.0, 160.0},
                                    {-180.0, -180.0},
                                    {-180.5, 179.5},
                                    {0.0, 0.0},
                                    {179.5, 179.5},
                                    {180.0, -180.0},
                                    {270.0, -90.0}}) {
    EXPECT_DOUBLE_EQ(FoldPhaseSum(sum), stored) << sum;
  }
}

class PhaseTest : public ::testing::Test {
 protected:
  Desk desk;
  ProjectState& s = desk.state;
  PhaseGraph& form = desk.program.windows.frmFase;

  PhaseTest() {
    desk.DesignVented();
    desk.TakeOut();
  }
  [[nodiscard]] double YOf(std::size_t chain, std::size_t i) const {
    return form.surface.points[plain::Chains(form.surface).at(chain).first + i].y;
  }
};

TEST_F(PhaseTest, OpensByTheTabWithItsEntriesShut) {
  desk.Choose("frmgrafcassa.mnufase");
  EXPECT_TRUE(s.GrafFaseOpen);
  EXPECT_EQ(form.window.caption, "Frequency - Phase");
  EXPECT_EQ(form.window.left, 5000);
  EXPECT_EQ(form.window.top, 0);
  EXPECT_FALSE(form.mnusalvarosso.enabled || form.mnusalvablu.enabled);
  EXPECT_NEAR(s.PhaseDeg[10], static_cast<double>(plain::VentedPhase({s.Vb, 35, s.Qts, s.Fb, s.Vas, s.Ql}, Hertz(10))),
              1e-7);
  EXPECT_NEAR(YOf(0, 10), 180 - s.PhaseDeg[10], 1e-12);
  s.Qtc = 0.8;
  s.Fc = 55;
  desk.sheet.selected_tab = "chi";
  desk.Choose("frmgrafcassa.mnufase");
  EXPECT_NEAR(s.PhaseDeg[10], static_cast<double>(plain::ClosedPhase(0.8L, 55, Hertz(10))), 1e-9);
  EXPECT_EQ(ChainColours(form.surface).size(), 2U);  // over the old picture
}

TEST_F(PhaseTest, TheVasOfAllDriversCounts) {
  s.DriversNum = 3;
  desk.Choose("frmgrafcassa.mnufase");
  const plain::Vented box{s.Vb, 35, s.Qts, s.Fb, 3 * s.Vas, s.Ql};
  EXPECT_NEAR(s.PhaseDeg[10], static_cast<double>(plain::VentedPhase(box, Hertz(10))), 1e-7);
}

TEST_F(PhaseTest, ARedrawLowersTheRedTraceAndWipesTheLevelPlot) {
  desk.Choose("frmgrafcassa.mnuspl");
  SplGraph& spl = desk.program.windows.frmspl;
  desk.Choose("frmgrafcassa.mnufase");
  desk.Click("frmFase.cmdset1");
  desk.Click("frmFase.cmdset2");
  EXPECT_EQ(ChainColours(form.surface), (std::vector{colour::kBlack, colour::kRed, colour::kBlue}));
  EXPECT_EQ(YOf(1, 100), YOf(0, 100));
  ASSERT_FALSE(spl.surface.strokes.empty());
  desk.Click("frmFase.cmdset1");  // shown already: the complete redraw
  EXPECT_TRUE(spl.surface.strokes.empty());
  EXPECT_EQ(ChainColours(form.surface),
            (std::vector{colour::kBlack, colour::kRed, colour::kBlue, colour::kBlack, colour::kBlue, colour::kRed}));
  EXPECT_DOUBLE_EQ(YOf(4, 100), YOf(3, 100));
  EXPECT_DOUBLE_EQ(YOf(5, 100), YOf(3, 100) + 180);
}

TEST_F(PhaseTest, ARedrawLoadsTheLevelWindow) {
  desk.Choose("frmgrafcassa.mnufase");
  desk.Click("frmFase.cmdset1");
  EXPECT_FALSE(desk.program.windows.frmspl.window.open);
  desk.Click("frmFase.cmdset1");
  EXPECT_TRUE(desk.program.windows.frmspl.window.open);
}

TEST_F(PhaseTest, TicksShowAndHideTraces) {
  desk.Choose("frmgrafcassa.mnufase");
  EXPECT_FALSE(form.chkonoff1.visible);
  desk.Click("frmFase.cmdset1");
  desk.Click("frmFase.cmdset2");
  EXPECT_TRUE(form.mnusalvarosso.enabled && form.mnusalvablu.enabled && form.chkonoff1.visible);
  desk.Click("frmFase.chkonoff2");
  EXPECT_FALSE(form.mnusalvablu.enabled || s.Set2PhaseShown);
  EXPECT_EQ(ChainColours(form.surface), (std::vector{colour::kBlack, colour::kRed}));
  EXPECT_EQ(YOf(1, 100), YOf(0, 100));
}

TEST_F(PhaseTest, ClosingForgetsCurvesAndTraces) {
  desk.Choose("frmgrafcassa.mnufase");
  desk.Click("frmFase.cmdset1");
  desk.Click("frmFase.cmdset2");
  s.SumPhaseDeg = {1};
  desk.Choose("frmFase.mnuchiudifase");
  for (const Curve* const curve : {&s.PhaseFreq, &s.PhaseDeg, &s.Set1PhaseFreq, &s.Set1PhaseDeg, &s.Set2PhaseFreq,
                                   &s.Set2PhaseDeg, &s.SumPhaseDeg}) {
    EXPECT_TRUE(curve->empty());
  }
  EXPECT_FALSE(s.Set1PhaseStored || s.Set1PhaseShown || s.Set2PhaseStored || s.Set2PhaseShown || s.GrafFaseOpen);
}

TEST_F(PhaseTest, AFilterAddsItsPhaseAndTheSum) {
  desk.Choose("frmgrafcassa.mnufiltri");
  desk.Click("frmfiltri.cmdvisualizza");
  desk.Choose("frmgrafcassa.mnufase");
  EXPECT_EQ(ChainColours(form.surface), (std::vector{colour::kBlack, colour::kOrange, colour::kMagenta}));
  ASSERT_EQ(s.SumPhaseDeg.size(), 6828U);
  for (std::size_t i = 0; i < 6827; ++i) {
    double sum = s.PhaseDeg[i] + s.FilterPhaseDeg[i];
    if (sum < -180) sum += 360;
    if (sum >= 180) sum -= 360;
    ASSERT_DOUBLE_EQ(s.SumPhaseDeg[i], sum) << i;
  }
  EXPECT_DOUBLE_EQ(YOf(1, 5), 180 - s.FilterPhaseDeg[5]);
  EXPECT_DOUBLE_EQ(YOf(2, 5), 180 - s.SumPhaseDeg[5]);
}

TEST_F(PhaseTest, TheReadoutOfEachPlotHasItsUnit) {
  for (const char* const entry : {"mnuspl", "mnusplmax", "mnuescursione", "mnuairspeed", "mnufase"}) {
    desk.Choose(std::string("frmgrafcassa.") + entry);
  }
  const std::string dot = std::to_string(s.SplScaleTop - 7) + ".00";  // the air speed owns the scale
  for (const auto& [plot, readout, text] :
       {std::tuple{"frmescursione.pctgrafex", "frmescursione.txtpos", std::string("100.00 Hz ; 13.00 mm")},
        {"frmairspeed.pctgrafair", "frmairspeed.txtpos", "100.00 Hz ; " + dot + " m/s"},
        {"frmFase.pctgrafFase", "frmFase.txtposFase", std::string("100.00 Hz ; 173.00 °")}}) {
    PressMouse(desk.program, desk[plot], 40, 7);
    EXPECT_EQ(desk.Text(readout), text);
    EXPECT_TRUE(desk[readout].visible);
    ReleaseMouse(desk.program, desk[plot]);
    EXPECT_FALSE(desk[readout].visible);
  }
  for (const char* const window : {"frmspl", "frmsplMax"}) {
    const std::string plot = std::string(window) + ".pctgrafspl";
    const double height = desk[plot].surface->scale.height;
    PressMouse(desk.program, desk[plot], 40, 7);
    EXPECT_EQ(desk.Text(std::string(window) + ".txtpos"),
              "100.00 Hz ; " + std::to_string(static_cast<int>(height) - 7) + ".00 dB");
  }
}

}  // namespace
}  // namespace zefirondo
