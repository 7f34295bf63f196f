// Designed boxes for tests: two woofers made up for them, the acts of a builder on the box page, and comparisons.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "box/box_page.h"
#include "box/vented_box.h"
#include "core/numbers.h"
#include "core/record.h"
#include "support/desk.h"

namespace zefirondo {

/// The typed parameters of a woofer; its size is always that of `Desk::FillWoofer`, with 1.62848 litres.
struct Woofer {
  const char* fs = "35";
  const char* re = "5.6";
  const char* qms = "4.2";
  const char* bl = "9.5";
  const char* d = "210";
  const char* qes = "0.45";
  const char* mms = "0.038";
  const char* xmax = "5";
};

inline constexpr Woofer kVentedWoofer{};                                                       // EBP 77.7
inline constexpr Woofer kClosedWoofer{"22", "5.8", "3.2", "8.2", "212", "0.5", "0.045", "6"};  // EBP 44

// Qts with 0.1 ohm of the amplifier, and Vas in m³ in the air of a new sheet, of the two woofers. Worked out by a
// python script from Qes' = (Re + 0.1) / Re · Qes, Qts = Qms Qes' / (Qms + Qes'), Sd = π (D / 2000)² cut to seven
// characters, Cms = 1 / (ω² Mms), Vas = roo Sd² Cms c².
inline constexpr double kVentedQts = 0.4129959746981024;
inline constexpr double kVentedVas = 0.09262443793396131;
inline constexpr double kClosedQts = 0.43886564388656435;
inline constexpr double kClosedVas = 0.20558230406878467;

using Texts = std::vector<std::pair<const char*, const char*>>;
using Numbers = std::vector<std::pair<const char*, double>>;

class BoxDesk : public Desk {
 public:
  using Desk::Desk;

  /// A new project with this woofer, whose proposal is accepted; what was printed on the way is dropped.
  void Design(const Woofer& woofer) {
    BeginParameters();
    for (const auto& [field, text] : Texts{{"txtpotenza", "100"}, {"txtimpedenza", "8"}, {"txtsensibilita", "90"}}) {
      Set(field, text);
    }
    Set("txtxmax", woofer.xmax);
    Tab("dim");
    for (const auto& [field, text] : Texts{{"txtforo", "230"},
                                           {"txtprof", "110"},
                                           {"txtlagmagne", "140"},
                                           {"txtprofmag", "50"},
                                           {"txtesterno", "260"},
                                           {"txtspesbordo", "8"},
                                           {"txtdiambob", "38"}}) {
      Set(field, text);
    }
    Focus("txtvolume");
    Tab("par");
    for (const auto& [field, text] : Texts{{"txtfs", woofer.fs},
                                           {"txtrvc", woofer.re},
                                           {"txtqmesin", woofer.qms},
                                           {"txtbl", woofer.bl},
                                           {"txtd", woofer.d},
                                           {"txtqes", woofer.qes},
                                           {"txtqts", "0.4"},
                                           {"txtmms", woofer.mms}}) {
      Set(field, text);
    }
    platform.answers.push_back(Answer::Yes);
    Click("cmdcalcola");
    TakeOut();
  }

  void DesignVentedBox() { Design(kVentedWoofer); }
  void DesignClosedBox() { Design(kClosedWoofer); }

  /// Pastes a text into a field and leaves it.
  void Enter(std::string_view field, const std::string& text) {
    Set(field, text);
    Leave();
  }

  /// Chooses a number of transducers without the wiring being asked for, and answers what has to give way.
  void ChooseDrivers(const std::string& count, Answer answer) {
    platform.answers.push_back(answer);
    state.cmbnumdriver = count;
    SelNumDriver(program);
  }

  /// Takes over a volume in m³, a tuning and a -3 dB frequency in Hz, as the alignment chart hands them on.
  void TakeAlignment(double vb, double fb, double f3) {
    Focus("txtvolnetto");
    state.Vb = vb;
    state.Fb = fb;
    state.F3v = f3;
    AssignNumber(program, sheet.txtfb, fb);
    AssignNumber(program, program.windows.frmgrafcassa.txtF3dB, f3);
    AssignNumber(program, sheet.txtvolnetto, vb * 1000);
    CalcFbVbAlfa(program);
  }

  /// Whether the program still runs: nothing failed on the way.
  [[nodiscard]] bool Runs() const { return program.run == RunState::Running; }

  [[nodiscard]] double Number(const char* name) const {
    const ValueRef value = FindInRecord(state, name);
    const auto* const number = std::get_if<const double*>(&value);
    return number == nullptr ? std::nan("") : **number;
  }
};

inline void ExpectTexts(BoxDesk& desk, const Texts& texts) {
  for (const auto& [name, text] : texts) EXPECT_EQ(desk.Text(name), text) << name;
}

/// Compares numbers of the record to 12 digits: a sum in another order may move the last ones.
inline void ExpectNumbers(const BoxDesk& desk, const Numbers& numbers) {
  for (const auto& [name, value] : numbers) {
    EXPECT_NEAR(desk.Number(name), value, std::fabs(value) * 1e-12) << name;
  }
}

/// Point 68 of a sweep with 0.7324 Hz a point.
inline constexpr std::size_t kProbe = 68;
inline constexpr double kProbeHertz = 69 * 0.7324;

/// The box graph shows the curve as it stands: its longest chain runs through the probed point.
inline void ExpectCurveIsDrawn(const BoxDesk& desk) {
  const Surface& surface = desk.program.windows.frmgrafcassa.surface;
  const auto longest = std::max_element(surface.strokes.begin(), surface.strokes.end(),
                                        [](const Stroke& one, const Stroke& other) { return one.count < other.count; });
  ASSERT_NE(longest, surface.strokes.end());
  ASSERT_GT(longest->count, kProbe);
  EXPECT_NEAR(surface.points[longest->first + kProbe].y, desk.state.BoxScaleTop - desk.state.BoxDb[kProbe], 1e-12);
}

/// The curve of a closed box: 10 log10(x² / ((x − 1)² + x / Qtc²)) + 40 with x = (f / Fc)².
inline void ExpectClosedCurve(const BoxDesk& desk, double qtc, double fc) {
  const double x = std::pow(kProbeHertz / fc, 2);
  const double level = 10 * std::log10(x * x / (std::pow(x - 1, 2) + x / (qtc * qtc))) + 40;
  ASSERT_GT(desk.state.BoxDb.size(), kProbe);
  EXPECT_NEAR(desk.state.BoxDb[kProbe], level, 1e-9) << "curve of the closed box";
  ExpectCurveIsDrawn(desk);
}

/// The curve of a vented box as the quotient of two polynomials in jf / Fs, written out from
/// G² = x⁴ / ((x² − B x + h²)² + x (C x − A)²).
inline void ExpectVentedCurve(const BoxDesk& desk, double vb, double fs, double qts, double fb, double vas, double ql) {
  const double h = fb / fs;
  const double x = std::pow(kProbeHertz / fs, 2);
  const double a = h / ql + h * h / qts;
  const double b = h / (qts * ql) + vas / vb + h * h + 1;
  const double c = h / ql + 1 / qts;
  const double g = std::pow(x, 4) / (std::pow(x * x - b * x + h * h, 2) + x * std::pow(c * x - a, 2));
  ASSERT_GT(desk.state.BoxDb.size(), kProbe);
  EXPECT_NEAR(desk.state.BoxDb[kProbe], 10 * std::log10(g) + 40, 1e-9) << "curve of the vented box";
  ExpectCurveIsDrawn(desk);
}

}  // namespace zefirondo
