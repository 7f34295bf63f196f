// Designs whose numbers no double can hold end in "Overflow": nothing goes on with what is infinite.
//
// Every case multiplies values near 1e308, the end of the doubles, by something above 2 in the formula named.
#include <gtest/gtest.h>

#include "box/alignment_chart.h"
#include "box/closed_box.h"
#include "box/ports.h"
#include "box/vented_box.h"
#include "box/volumes.h"
#include "core/run_time_error.h"
#include "filters/phase_offset.h"
#include "support/desk.h"
#include "transducer/thiele_small.h"

namespace zefirondo {
namespace {

constexpr double kHuge = 1e308;
constexpr int kOverflow = 6;

template <class Formula>
int FailureOf(Formula formula) {
  try {
    static_cast<void>(formula());
  } catch (const RunTimeError& error) {
    return error.number();
  }
  return 0;
}

TEST(Overflow, OfTheVentedBox) {
  EXPECT_EQ(FailureOf([] { return VentedVolume(kHuge, 1); }), kOverflow);        // · 20
  EXPECT_EQ(FailureOf([] { return VentedTuning(kHuge, 1000, 1); }), kOverflow);  // · 1000^0.31 = 8.5
  EXPECT_EQ(FailureOf([] { return VentedF3(kHuge, 1000, 1); }), kOverflow);      // · 1000^0.44 = 20.9
  EXPECT_EQ(FailureOf([] { return VentedF3(kHuge / 100, 1000, 1); }), 0);
}

TEST(Overflow, OfTheClosedBox) {
  // Qtc = 0.1: a = 98, b = √(98² + 4), and so √((b + a) / 2) = 9.9.
  EXPECT_EQ(FailureOf([] { return ClosedF3(0.1, kHuge); }), kOverflow);
  EXPECT_EQ(FailureOf([] { return ClosedF3(0.1, kHuge / 100); }), 0);
}

TEST(Overflow, OfTheAcousticValues) {
  // Cas = 1, times 343² = 117649.
  EXPECT_EQ(FailureOf([] { return TsAcustici(1, kHuge, 1, 1, 1, 343).vas; }), kOverflow);
}

TEST(Overflow, OfTheVolumesOfAllTransducers) {
  ProjectState s;
  s.Vas = kHuge;
  s.DriversNum = 4;
  EXPECT_EQ(FailureOf([&] { return TotalVas(s); }), kOverflow);
  s.Pressure = 100000;
  s.Kinternal = 1e-5;  // V / (P · K) · 1.4 · P = 1e308 / 1 · 1.4 · 100000
  EXPECT_EQ(FailureOf([&] { return ApparentVolume(s, kHuge); }), kOverflow);
}

TEST(Overflow, OfADelay) {
  EXPECT_EQ(FailureOf([] { return ApplyDelay({10, 0}, {20, 0}, kHuge); }), kOverflow);  // ms · 0.36 · 20 Hz
}

TEST(Overflow, OfAClosedBoxIsToldAtOnce) {
  Desk desk;
  desk.DesignClosed();
  desk.state.txtfs = "1.7e308";
  desk.state.Vc = 0.001;  // far below Vas: the resonance is several times Fs
  desk.state.DesignChanged = true;
  desk.TakeOut();
  desk.Tab("chi");
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Overflow\" [OK] -> OK\nended error\n");
  EXPECT_LT(desk.state.Fc, 1000);  // what was there
}

TEST(Overflow, OfAPortSectionIsToldAtOnce) {
  for (const bool round : {true, false}) {
    Desk desk;
    desk.DesignVented();
    if (!round) desk.Click("imgforma(0)");
    desk.Focus("cmbDoa");
    desk.state.cmbDoa = "1e300";
    desk.state.txtb = "1e300";
    desk.TakeOut();
    desk.Focus("txtingombro");
    EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Overflow\" [OK] -> OK\nended error\n") << round;
    EXPECT_LT(desk.state.SectArea1Vent, 1) << round;
  }
}

}  // namespace
}  // namespace zefirondo
