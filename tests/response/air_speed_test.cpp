// The air speed graph against a second reference.
#include "response/air_speed.h"

#include "core/numbers.h"
#include "response/plain_curves.h"

namespace zefirondo {
namespace {

using plain::FarthestPoint;

class AirSpeedTest : public ::testing::Test {
 protected:
  Desk desk;
  ProjectState& s = desk.state;
  AirSpeedGraph& form = desk.program.windows.frmairspeed;

  AirSpeedTest() {
    desk.DesignVented();
    s.txtfb = "50";  // of no meaning here: the design's own tuning counts
    s.Fb = 33.25;
    s.VentNum = 2;
    desk.TakeOut();
  }

  [[nodiscard]] long double Speed(long double watt, long double f) const {
    const long double count = s.DriversNum;
    return plain::AirSpeed({35, s.Fb, count * s.Vas, s.Vb, s.Qts, std::stold(s.cmbql), count * std::stold(s.txtsd),
                            2 * s.SectArea1Vent, 544.152e-6L, std::stold(s.txtbl), std::stold(s.txtrvc) + 0.1L, watt},
                           f);
  }
  void ExpectDrawn(long double watt) {
    const auto curve = [&](long double f) { return Speed(watt, f); };
    EXPECT_LT(FarthestPoint(form.surface, s.SplScaleTop, 2731, 0, curve), 1e-9);
    long double largest = 0;
    for (int i = 1; i <= 2732; ++i) largest = std::max(largest, Speed(watt, 0.7324L * i));
    EXPECT_EQ(s.SplScaleTop, std::nearbyint(static_cast<double>(largest)) + 10);
    EXPECT_TRUE(s.AirFreq.empty() && s.AirSpeed.empty());
  }
};

TEST_F(AirSpeedTest, CurveEqualsTheReferenceInEveryDesign) {
  ASSERT_EQ(s.txtcms, "544.152E-06");
  plain::ForEveryDesign(s, [&] {
    VelocitaAria(s, 25);
    ASSERT_EQ(s.AirSpeed.size(), 2733U);
    long double farthest = 0;
    for (std::size_t i = 0; i < 2732; ++i) {
      farthest = std::max(farthest, std::fabs(s.AirSpeed[i] - Speed(25, 0.7324L * static_cast<long double>(i + 1))));
    }
    EXPECT_LT(farthest, 1e-9L);
  });
}

TEST_F(AirSpeedTest, EveryWiringPassesItsPowerOnOpeningAndOnRedraw) {
  // 100 W on the sheet, 60 W typed, three drivers; worked out by hand.
  struct Row {
    const char *wiring, *shown;
    double opened, typed;
  };
  s.DriversNum = 3;
  for (const Row& row :
       {Row{"series", "100", 100.0 / 3, 20}, Row{"parallel", "300", 100, 20}, Row{"biamp", "100", 100, 60}}) {
    SCOPED_TRACE(row.wiring);
    s.WooferWiring = row.wiring;
    desk.Choose("frmgrafcassa.mnuairspeed");
    EXPECT_TRUE(s.GrafAirspeedOpen);
    EXPECT_EQ(desk.Text("frmairspeed.txtpot"), row.shown);
    EXPECT_EQ(desk.Text("frmairspeed.lbltitolo"),
              std::string("Frequency - Port Air Velocity @ ") + row.shown + " W Rms");
    ExpectDrawn(row.opened);
    desk.Set("frmairspeed.txtpot", "60");
    desk.Click("frmairspeed.cmdcalc");
    ExpectDrawn(row.typed);
    EXPECT_EQ(desk.Text("frmairspeed.lbltitolo"), "Frequency - Port Air Velocity @ 60 W Rms");
    EXPECT_EQ(plain::Chains(form.surface).size(), 1U);
    desk.Choose("frmairspeed.mnuchiudi");
    EXPECT_FALSE(s.GrafAirspeedOpen);
  }
}

TEST_F(AirSpeedTest, LimitsStandAtFiveAndSevenAndAHalfPercentOfTheSpeedOfSound) {
  s.Velocity = 345;
  desk.Choose("frmgrafcassa.mnuairspeed");
  for (const auto& [colour, speed] : {std::pair{colour::kRed, 25.875}, {colour::kBlue, 17.25}}) {
    std::size_t found = 0;
    for (const Stroke& stroke : form.surface.strokes) {
      if (stroke.colour != colour) continue;
      ++found;
      EXPECT_DOUBLE_EQ(s.SplScaleTop - form.surface.points[stroke.first].y, speed);
      EXPECT_NEAR(form.surface.points[stroke.first + 1].x, 20 * std::log10(2000), 1e-9);
    }
    EXPECT_EQ(found, 1U);
  }
}

TEST_F(AirSpeedTest, OnAnyOtherTabThereIsAMessageInItsPlace) {
  for (const char* const tab : {"chi", "gen"}) {
    desk.sheet.selected_tab = tab;
    desk.Choose("frmgrafcassa.mnuairspeed");
    EXPECT_FALSE(form.window.open);
    EXPECT_EQ(
        desk.TakeOut(),
        "message information \"Closed Box\" \"The graphic can be displayed only for the Vented Box\" [OK] -> OK\n");
  }
}

TEST_F(AirSpeedTest, RedrawDoesNotLookAtTheTab) {
  desk.Choose("frmgrafcassa.mnuairspeed");
  desk.sheet.selected_tab = "chi";
  desk.Click("frmairspeed.cmdcalc");
  EXPECT_EQ(desk.TakeOut(), "");
  ExpectDrawn(100);
}

TEST_F(AirSpeedTest, WithoutPowerTheAirStandsStillAndRedrawRefuses) {
  s.txtpotenza.clear();
  desk.Choose("frmgrafcassa.mnuairspeed");
  ExpectDrawn(0);
  EXPECT_EQ(s.SplScaleTop, 10);
  desk.Click("frmairspeed.cmdcalc");
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Enter a value greater than zero\" [OK] -> OK\n");
}

TEST_F(AirSpeedTest, AZeroPortEndsTheProgram) {
  s.SectArea1Vent = 0;
  desk.Choose("frmgrafcassa.mnuairspeed");
  EXPECT_EQ(desk.program.run, RunState::EndedByFailure);
}

}  // namespace
}  // namespace zefirondo
