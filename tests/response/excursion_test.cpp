// The excursion graph and the rules of its power, against a second reference.
#include "response/excursion.h"

#include "core/numbers.h"
#include "response/applied_power.h"
#include "response/plain_curves.h"

namespace zefirondo {
namespace {

using plain::FarthestPoint;

/// What becomes of 120 W, by wiring, for three drivers. Worked out by hand.
struct PowerRow {
  PowerRule rule;
  double series, parallel, biamp;
};
constexpr PowerRow kPowers[] = {
    {PowerRule::Shown, 120, 360, 120},       {PowerRule::Opened, 40, 120, 120},
    {PowerRule::Redrawn, 40, 40, 120},       {PowerRule::RedrawnClosed, 360, 40, 120},
    {PowerRule::InsideClosed, 40, 360, 120},
};

TEST(AppliedPower, FollowsTheWiring) {
  ProjectState s;
  s.DriversNum = 3;
  for (const PowerRow& row : kPowers) {
    for (const auto& [wiring, watt] :
         {std::pair{"series", row.series}, {"parallel", row.parallel}, {"biamp", row.biamp}, {"Series", row.biamp}}) {
      s.WooferWiring = wiring;
      EXPECT_DOUBLE_EQ(ApplyPowerRule(s, row.rule, 120), watt) << static_cast<int>(row.rule) << " " << wiring;
    }
  }
}

class ExcursionTest : public ::testing::Test {
 protected:
  Desk desk;
  ProjectState& s = desk.state;
  ExcursionGraph& form = desk.program.windows.frmescursione;

  ExcursionTest() {
    desk.DesignVented();
    s.txtfb = "31.4";
    s.VbaVented = 0.092;
    s.Qtc = 0.84;
    s.Fc = 61.5;
    desk.TakeOut();
  }

  [[nodiscard]] long double Sd() const { return std::stold(s.txtsd); }
  [[nodiscard]] long double Vented(long double watt, long double f) const {
    const plain::Vented box{s.VbaVented, 35, s.Qts, 31.4L, s.Vas, std::stold(s.cmbql)};
    return plain::VentedExcursion(plain::DriverOf(s), box, Sd(), watt, f);
  }
  [[nodiscard]] long double Closed(long double watt, long double f) const {
    return plain::ClosedExcursion(plain::DriverOf(s), Sd(), s.Qtc, s.Fc, watt, f);
  }
  void ExpectVented(long double watt) {
    EXPECT_LT(FarthestPoint(form.surface, 20, 1365, 10, [&](long double f) { return Vented(watt, f); }), 1e-9);
  }
  void ExpectClosed(long double watt) {
    EXPECT_LT(FarthestPoint(form.surface, 20, 1365, 0, [&](long double f) { return Closed(watt, f); }), 1e-9);
  }
};

TEST_F(ExcursionTest, CurvesEqualTheReferenceInEveryDesign) {
  plain::ForEveryDesign(s, [&] {
    const DrawnCurve vented = EscursioneReflex(s, 20);
    const DrawnCurve closed = EscursioneChiusa(s, 20);
    const long double inside = ApplyPowerRule(s, PowerRule::InsideClosed, 20);
    ASSERT_EQ(vented.y.size(), 1367U);
    ASSERT_EQ(closed.y.size(), 1367U);
    long double farthest = 0;
    for (std::size_t i = 0; i < 1366; ++i) {
      const long double f = 0.7324L * static_cast<long double>(i + 1);
      farthest =
          std::max({farthest, std::fabs(vented.y[i] - Vented(20, 10 + f)), std::fabs(closed.y[i] - Closed(inside, f)),
                    std::fabs(vented.x[i] - 20 * std::log10(10 + f)), std::fabs(closed.x[i] - 20 * std::log10(f))});
    }
    EXPECT_LT(farthest, 1e-9L);
  });
}

TEST_F(ExcursionTest, FirstPointsStandAtTheBeginningOfTheirSweeps) {
  EXPECT_NEAR(EscursioneReflex(s, 1).x.front(), 20 * std::log10(10.7324), 1e-12);
  EXPECT_NEAR(EscursioneChiusa(s, 1).x.front(), 20 * std::log10(0.7324), 1e-12);
}

TEST_F(ExcursionTest, EveryWiringPassesItsPowerOnOpeningAndOnRedraw) {
  // 100 W on the sheet, 60 W typed, three drivers; worked out by hand. Of the closed box: what the curve uses.
  struct Row {
    const char *wiring, *shown;
    double vented_open, vented_typed, closed_open, closed_typed;
  };
  s.DriversNum = 3;
  for (const Row& row : {Row{"series", "100", 100.0 / 3, 20, 100.0 / 3, 60}, Row{"parallel", "300", 100, 20, 300, 60},
                         Row{"biamp", "100", 100, 60, 100, 60}}) {
    SCOPED_TRACE(row.wiring);
    s.WooferWiring = row.wiring;
    for (const bool vented : {true, false}) {
      desk.sheet.selected_tab = vented ? "ref" : "chi";
      desk.Choose("frmgrafcassa.mnuescursione");
      EXPECT_EQ(desk.Text("frmescursione.txtpot"), row.shown);
      EXPECT_EQ(desk.Text("frmescursione.lbltitolo"),
                std::string("Frequency - Cone Excursion @ ") + row.shown + " W Rms");
      vented ? ExpectVented(row.vented_open) : ExpectClosed(row.closed_open);
      desk.Set("frmescursione.txtpot", "60");
      desk.Click("frmescursione.cmdcalc");
      vented ? ExpectVented(row.vented_typed) : ExpectClosed(row.closed_typed);
      EXPECT_EQ(desk.Text("frmescursione.lbltitolo"), "Frequency - Cone Excursion @ 60 W Rms");
      EXPECT_EQ(plain::Chains(form.surface).size(), 1U);  // cleared first
      desk.Choose("frmescursione.mnuchiudi");
      EXPECT_FALSE(s.GrafEscursioneOpen);
    }
  }
}

TEST_F(ExcursionTest, ALongPowerIsShownInSevenCharacters) {
  s.txtpotenza = "33.33333333";
  desk.Choose("frmgrafcassa.mnuescursione");
  EXPECT_EQ(desk.Text("frmescursione.txtpot"), "33.3333");
}

TEST_F(ExcursionTest, ALossOfSevenIsBuiltIn) {
  // With u = h² the bracket h⁴ + v − E·u of the reference holds 97/49 for each QL.
  for (const char* const ql : {"5", "20"}) {
    s.cmbql = ql;
    EXPECT_NEAR(EscursioneReflex(s, 10).y[30], static_cast<double>(Vented(10, 10 + 31 * 0.7324L)), 1e-9);
  }
}

TEST_F(ExcursionTest, ThirtyIsDrawnAtTheTopAndLessAsItIs) {
  // Far below Fc the cone moves K·sqrt(P), so the power for a wanted excursion follows from that of 1 W.
  s.WooferWiring = "biamp";
  const double one = EscursioneChiusa(s, 1).y[0];
  const double below = EscursioneChiusa(s, std::pow(29.99 / one, 2)).y[0];
  const double above = EscursioneChiusa(s, std::pow(30 / one, 2) * (1 + 1e-12)).y[0];
  EXPECT_NEAR(below, 29.99, 1e-9);
  EXPECT_EQ(above, 20.0);
}

TEST_F(ExcursionTest, TheLimitIsARedLineAtXmax) {
  desk.Choose("frmgrafcassa.mnuescursione");
  std::vector<Stroke> red;
  for (const Stroke& stroke : form.surface.strokes) {
    if (stroke.colour == colour::kRed) red.push_back(stroke);
  }
  ASSERT_EQ(red.size(), 1U);
  const Point* const line = &form.surface.points[red[0].first];
  EXPECT_EQ(line[0].x, 0.0);
  EXPECT_NEAR(line[1].x, 60, 1e-9);
  EXPECT_EQ(line[0].y, 15.0);  // 20 − 5 mm
  EXPECT_EQ(line[1].y, 15.0);
}

TEST_F(ExcursionTest, AnUnusablePowerIsRefusedAndPutBack) {
  desk.Choose("frmgrafcassa.mnuescursione");
  desk.Set("frmescursione.txtpot", "-1");
  desk.Click("frmescursione.cmdcalc");
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Enter a value greater than zero\" [OK] -> OK\n");
  EXPECT_EQ(desk.Text("frmescursione.txtpot"), "100");
}

TEST_F(ExcursionTest, NoPowerEndsTheProgramWithAVentedBox) {
  s.txtpotenza.clear();
  desk.Choose("frmgrafcassa.mnuescursione");
  EXPECT_EQ(desk.TakeOut(),
            "message stop \"Error\" \"Error, logarithm of a number less than or equal to zero\" [OK] -> OK\n"
            "ended error\n");
}

TEST_F(ExcursionTest, NoPowerIsAFlatLineWithAClosedBoxAndIsRefusedByRedraw) {
  s.txtpotenza.clear();
  desk.sheet.selected_tab = "chi";
  desk.Choose("frmgrafcassa.mnuescursione");
  EXPECT_LT(FarthestPoint(form.surface, 20, 1365, 0, [](long double) { return 0.0L; }), 1e-9);
  desk.Click("frmescursione.cmdcalc");
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Enter a value greater than zero\" [OK] -> OK\n");
}

TEST_F(ExcursionTest, AClosedBoxWithoutAResonanceEndsTheProgram) {
  s.Fc = 0;
  desk.sheet.selected_tab = "chi";
  desk.Choose("frmgrafcassa.mnuescursione");
  EXPECT_EQ(desk.program.run, RunState::EndedByFailure);
  EXPECT_NE(desk.TakeOut().find("ended error"), std::string::npos);
}

}  // namespace
}  // namespace zefirondo
