// The level graphs against a second reference, and the manners of their windows.
#include "response/spl.h"

#include "core/numbers.h"
#include "core/surface.h"
#include "response/plain_curves.h"

namespace zefirondo {
namespace {

using plain::ChainColours;
using plain::FarthestPoint;

class SplTest : public ::testing::Test {
 protected:
  Desk desk;
  ProjectState& s = desk.state;
  SplGraph& spl = desk.program.windows.frmspl;
  SplMaxGraph& max = desk.program.windows.frmsplMax;

  SplTest() {
    desk.DesignVented();
    s.txtfb = "31.4";  // the level curves read this text, whatever the design's own tuning is
    s.Qtc = 0.84;
    s.Fc = 61.5;
    desk.TakeOut();
  }

  [[nodiscard]] long double OneWatt() const {
    return plain::Level(plain::DriverOf(s)) + plain::Gain(s.WooferWiring, s.DriversNum);
  }
  /// The compliance is that of one driver, whatever their number.
  [[nodiscard]] long double Vented(long double f) const {
    return plain::VentedDb({s.Vb, 35, s.Qts, 31.4L, s.Vas, s.Ql}, f) - 40;
  }
  [[nodiscard]] long double Closed(long double f) const { return plain::ClosedDb(s.Qtc, s.Fc, f) - 40; }

  template <class Curve>
  void ExpectSpl(Curve curve) {
    ASSERT_EQ(s.SplDb.size(), 2733U);
    ASSERT_EQ(s.SplFreq.size(), 2733U);
    long double farthest = 0;
    long double largest = 0;
    for (std::size_t i = 0; i < 2732; ++i) {
      const long double f = 0.7324L * static_cast<long double>(i + 1);
      const long double level = OneWatt() + curve(f);
      largest = std::max(largest, level);
      farthest = std::max(farthest, std::fabs(s.SplDb[i] - level));
      farthest = std::max(farthest, std::fabs(s.SplFreq[i] - 20 * std::log10(f)));
    }
    EXPECT_LT(farthest, 1e-8L);
    EXPECT_NEAR(s.USPL, static_cast<double>(OneWatt()), 1e-9);
    EXPECT_EQ(s.SplDb[2732], 0.0);
    EXPECT_EQ(s.SplFreq[2732], 0.0);
    EXPECT_EQ(s.SplScaleTop, std::nearbyint(static_cast<double>(largest)) + 10);
  }
};

TEST_F(SplTest, VentedLevelEqualsTheReferenceInEveryDesign) {
  plain::ForEveryDesign(s, [&] {
    SplReflex(desk.program);
    ExpectSpl([&](long double f) { return Vented(f); });
  });
}

TEST_F(SplTest, ClosedLevelEqualsTheReferenceInEveryDesign) {
  plain::ForEveryDesign(s, [&] {
    SplChiusa(desk.program);
    ExpectSpl([&](long double f) { return Closed(f); });
  });
}

TEST_F(SplTest, MaximumLevelEqualsTheReferenceInEveryDesignAndIsNotKept) {
  plain::ForEveryDesign(s, [&] {
    const long double level = OneWatt() + 10 * std::log10(250.0L);
    max.surface.Clear();
    SplMaxReflex(desk.program, 250);
    const auto vented = [&](long double f) { return level + Vented(f); };
    EXPECT_LT(FarthestPoint(max.surface, s.SplScaleTop, 2731, 0, vented), 1e-8);
    EXPECT_NEAR(s.SPLmax, static_cast<double>(level), 1e-9);
    SplMaxChiusa(desk.program, 250);
    const auto closed = [&](long double f) { return level + Closed(f); };
    EXPECT_LT(FarthestPoint(max.surface, s.SplScaleTop, 2731, 0, closed), 1e-8);
    EXPECT_TRUE(s.SplMaxFreq.empty());
    EXPECT_TRUE(s.SplMaxDb.empty());
  });
}

TEST_F(SplTest, AnEfficiencyOfOnePercentGives92Decibel) {
  // By hand: −20 − 7.98 + 120 − 10 log10(4e-10 / (roo·c·1e-12)); roo·c of about 410 makes the last term −0.1.
  s.txtqes = "0.5";
  s.Vas = 0.01 * 0.5 * std::pow(s.Velocity, 3) / (4 * kPi * kPi * std::pow(35.0, 3));
  s.Qtc = 0.5;  // stays below its flat part
  SplChiusa(desk.program);
  EXPECT_NEAR(s.USPL, 92.0, 0.2);
  EXPECT_EQ(s.SplScaleTop, 102);
}

TEST_F(SplTest, TwoDriversGiveSixDecibelButInSeries) {
  s.DriversNum = 1;
  SplReflex(desk.program);
  const double one = s.USPL;
  s.DriversNum = 2;
  for (const auto& [wiring, gain] : {std::pair{"series", 0.0}, {"parallel", 6.0206}, {"biamp", 6.0206}}) {
    s.WooferWiring = wiring;
    SplReflex(desk.program);
    EXPECT_NEAR(s.USPL - one, gain, 1e-5) << wiring;
  }
}

TEST_F(SplTest, AHundredWattLiftTwentyDecibel) {
  SplReflex(desk.program);
  SplMaxReflex(desk.program, 100);
  EXPECT_NEAR(s.SPLmax - s.USPL, 20, 1e-12);
}

TEST_F(SplTest, TheTypedSensitivityHasNoEffect) {
  SplReflex(desk.program);
  const Curve before = s.SplDb;
  s.txtsensibilita = "60";
  SplReflex(desk.program);
  EXPECT_EQ(s.SplDb, before);
}

TEST_F(SplTest, TheTuningIsTheNumberOnTheSheet) {
  SplReflex(desk.program);
  const Curve before = s.SplDb;
  s.Fb = 50;
  SplReflex(desk.program);
  EXPECT_EQ(s.SplDb, before);
  s.txtfb = "50";
  SplReflex(desk.program);
  EXPECT_NE(s.SplDb, before);
}

TEST_F(SplTest, TheOpenerFollowsTheTabInFront) {
  desk.Choose("frmgrafcassa.mnuspl");
  ExpectSpl([&](long double f) { return Vented(f); });
  desk.sheet.selected_tab = "gen";  // anything but the vented page is closed
  desk.Choose("frmgrafcassa.mnuspl");
  ExpectSpl([&](long double f) { return Closed(f); });
}

TEST_F(SplTest, OpeningTwiceDrawsOverTheOldPicture) {
  desk.Choose("frmgrafcassa.mnuspl");
  desk.Choose("frmgrafcassa.mnuspl");
  EXPECT_EQ(ChainColours(spl.surface), (std::vector{colour::kBlack, colour::kBlack}));
  RidisegnaSpl(desk.program);
  EXPECT_EQ(ChainColours(spl.surface), std::vector{colour::kBlack});
}

TEST_F(SplTest, OpensWithEverythingOfASumAndOfTracesShut) {
  desk.Choose("frmgrafcassa.mnuspl");
  EXPECT_TRUE(s.GrafSplOpen);
  EXPECT_EQ(spl.window.caption, "Spl @ 1W/1m");
  EXPECT_EQ(spl.window.left, 5000);
  EXPECT_EQ(spl.window.top, 2315);
  EXPECT_EQ(desk.program.order.front(), &spl.window);
  for (const Control* const control :
       {&spl.cmdsommaspl, &spl.cmdcancellaspl, &spl.mnusalvasplRosso, &spl.mnusalvaSplBlu}) {
    EXPECT_FALSE(control->enabled) << control->name;
  }
  EXPECT_FALSE(spl.chkonoff1.visible);
  EXPECT_FALSE(spl.chkonoff2.visible);
}

TEST_F(SplTest, TracesAreStoredShownAndHidden) {
  desk.Choose("frmgrafcassa.mnuspl");
  desk.Click("frmspl.cmdset1");
  EXPECT_TRUE(spl.chkonoff1.visible && spl.chkonoff1.checked && spl.mnusalvasplRosso.enabled);
  EXPECT_EQ(s.Set1SplDb, s.SplDb);
  desk.Click("frmspl.cmdset2");
  EXPECT_EQ(ChainColours(spl.surface), (std::vector{colour::kBlack, colour::kRed, colour::kBlue}));
  desk.Click("frmspl.chkonoff1");
  EXPECT_EQ(ChainColours(spl.surface), (std::vector{colour::kBlack, colour::kBlue}));
  EXPECT_FALSE(spl.mnusalvasplRosso.enabled);
  desk.Click("frmspl.chkonoff1");
  EXPECT_EQ(ChainColours(spl.surface), (std::vector{colour::kBlack, colour::kBlue, colour::kRed}));
  desk.Click("frmspl.cmdset2");  // shown already: a complete redraw
  EXPECT_EQ(ChainColours(spl.surface), (std::vector{colour::kBlack, colour::kRed, colour::kBlue}));
}

TEST_F(SplTest, StoringAShownTraceDropsASum) {
  desk.Choose("frmgrafcassa.mnuspl");
  desk.Click("frmspl.cmdset1");
  spl.cmdsommaspl.enabled = spl.cmdcancellaspl.enabled = true;
  spl.mnuimportaOverlay.enabled = false;
  s.SumFreq = s.SumDb = {1, 2};
  desk.Click("frmspl.cmdset1");
  EXPECT_FALSE(spl.cmdsommaspl.enabled || spl.cmdcancellaspl.enabled);
  EXPECT_TRUE(spl.mnuimportaOverlay.enabled);
  EXPECT_TRUE(s.SumFreq.empty() && s.SumDb.empty());
}

TEST_F(SplTest, ClosingTheWindowForgetsCurvesAndTraces) {
  desk.Choose("frmgrafcassa.mnuspl");
  desk.Click("frmspl.cmdset1");
  desk.Click("frmspl.cmdset2");
  desk.Choose("frmspl.mnuchiudi");
  for (const Curve* const curve : {&s.SplFreq, &s.SplDb, &s.Set1SplFreq, &s.Set1SplDb, &s.Set2SplFreq, &s.Set2SplDb}) {
    EXPECT_TRUE(curve->empty());
  }
  EXPECT_FALSE(s.Set1SplStored || s.Set1SplShown || s.Set2SplStored || s.Set2SplShown || s.GrafSplOpen);
}

TEST_F(SplTest, TheMaximumWindowStartsFromTheSheetsPower) {
  desk.Choose("frmgrafcassa.mnusplmax");
  EXPECT_TRUE(s.GrafSplMaxOpen);
  EXPECT_EQ(max.window.caption, "SplMax");
  EXPECT_EQ(max.window.top, 1515);
  EXPECT_EQ(desk.Text("frmsplMax.lblnomegrafspl"), "Frequency - dB SplMax @ 100 W Rms");
  EXPECT_EQ(desk.Text("frmsplMax.txtpot"), "100");
  EXPECT_NEAR(s.SPLmax, static_cast<double>(OneWatt() + 20), 1e-9);
  desk.Choose("frmsplMax.mnuchiudi");
  EXPECT_FALSE(s.GrafSplMaxOpen);
}

TEST_F(SplTest, RedrawTakesTheTypedPowerAndClearsFirst) {
  desk.Choose("frmgrafcassa.mnusplmax");
  desk.Set("frmsplMax.txtpot", "40");
  desk.Click("frmsplMax.cmdcalc");
  EXPECT_EQ(desk.Text("frmsplMax.lblnomegrafspl"), "Frequency - dB SplMax40 W Rms");
  const long double level = OneWatt() + 10 * std::log10(40.0L);
  const auto curve = [&](long double f) { return level + Vented(f); };
  EXPECT_LT(FarthestPoint(max.surface, s.SplScaleTop, 2731, 0, curve), 1e-8);
  const std::size_t strokes = max.surface.strokes.size();
  const std::size_t points = max.surface.points.size();
  desk.Click("frmsplMax.cmdcalc");
  EXPECT_LT(FarthestPoint(max.surface, s.SplScaleTop, 2731, 0, curve), 1e-8);
  EXPECT_EQ(max.surface.strokes.size(), strokes);
  EXPECT_EQ(max.surface.points.size(), points);
}

TEST_F(SplTest, ANegativePowerIsRefusedAndPutBack) {
  desk.Choose("frmgrafcassa.mnusplmax");
  desk.Set("frmsplMax.txtpot", "-5");
  const double before = s.SPLmax;
  desk.Click("frmsplMax.cmdcalc");
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Enter a value greater than zero\" [OK] -> OK\n");
  EXPECT_EQ(desk.Text("frmsplMax.txtpot"), "100");
  EXPECT_EQ(s.SPLmax, before);
}

TEST_F(SplTest, AZeroHoldsTheFocusInEveryPowerField) {
  desk.Choose("frmgrafcassa.mnusplmax");
  desk.Choose("frmgrafcassa.mnuescursione");
  desk.Choose("frmgrafcassa.mnuairspeed");
  for (const std::string window : {"frmsplMax", "frmescursione", "frmairspeed"}) {
    for (const std::string zero : {"0", "", "0.0"}) {
      desk.Set(window + ".txtpot", zero);
      EXPECT_EQ(desk.Leave().held, &desk[window + ".txtpot"]) << window << " " << zero;
      EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Please enter a non zero value\" [OK] -> OK\n");
    }
    desk.Set(window + ".txtpot", "5");
    EXPECT_EQ(desk.Leave().held, nullptr);
  }
}

TEST_F(SplTest, PowerFieldsFilterTheirKeys) {
  const std::string warning = "message stop \"Error\" \"Warning: Inputs must be a number\" [OK] -> OK\n";
  desk.Choose("frmgrafcassa.mnusplmax");
  desk.Choose("frmgrafcassa.mnuescursione");
  desk.Choose("frmgrafcassa.mnuairspeed");
  for (const std::string window : {"frmsplMax", "frmescursione", "frmairspeed"}) {
    SCOPED_TRACE(window);
    const std::string field = window + ".txtpot";
    desk.Set(field, "");
    desk.Type(field, "12,5");  // a comma is a point
    EXPECT_EQ(desk.Text(field), "12.5");
    EXPECT_EQ(desk.TakeOut(), "");
    desk.Type(field, ".");  // a second point
    EXPECT_EQ(desk.TakeOut(), warning);
    desk.Set(field, "7");
    desk.Type(field, "x");
    EXPECT_EQ(desk.TakeOut(), warning);
    desk.Set(field, "0");
    desk.Type(field, "5");
    EXPECT_EQ(desk.TakeOut(), warning);
    EXPECT_EQ(desk[field].selection_length, 0U);
    desk.Set(field, "0");
    desk.Type(field, ".5");
    EXPECT_EQ(desk.Text(field), "0.5");
    EXPECT_EQ(desk.TakeOut(), "");
    desk.Type(field, "\n");
    EXPECT_EQ(desk.program.focus, &desk[window + ".cmdcalc"]);
  }
}

TEST_F(SplTest, NoPowerOnTheSheetEndsTheProgram) {
  s.txtpotenza.clear();
  desk.Choose("frmgrafcassa.mnusplmax");
  EXPECT_EQ(desk.TakeOut(),
            "message stop \"Error\" \"Error, logarithm of a number less than or equal to zero\" [OK] -> OK\n"
            "ended error\n");
}

TEST_F(SplTest, AZeroQesEndsTheProgram) {
  s.txtqes = "0";
  desk.Choose("frmgrafcassa.mnuspl");
  EXPECT_EQ(desk.program.run, RunState::EndedByFailure);
}

TEST_F(SplTest, LevelsOfTheThreeGraphsShareOneScale) {
  desk.Choose("frmgrafcassa.mnuspl");
  const std::int16_t top = s.SplScaleTop;
  desk.Choose("frmgrafcassa.mnusplmax");
  EXPECT_EQ(s.SplScaleTop, top + 20);
  EXPECT_EQ(spl.surface.scale.height, top);
  RidisegnaSpl(desk.program);
  EXPECT_EQ(spl.surface.scale.height, top + 20);
}

TEST_F(SplTest, ADesignChangeClosesTheGraphsThatNoLongerMatch) {
  for (const char* const entry : {"mnuspl", "mnusplmax", "mnuescursione", "mnufase"}) {
    desk.Choose(std::string("frmgrafcassa.") + entry);
  }
  desk.Set("txtvolnetto", "80");
  desk.Leave();
  for (const char* const name : {"frmspl", "frmsplMax", "frmescursione", "frmFase"}) {
    EXPECT_FALSE(desk.program.FindWindow(name)->open) << name;
  }
  EXPECT_FALSE(s.GrafSplOpen || s.GrafSplMaxOpen || s.GrafEscursioneOpen || s.GrafFaseOpen);
}

}  // namespace
}  // namespace zefirondo
