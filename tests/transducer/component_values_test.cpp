// A capacitor, or an inductor and its resistor, from two points of a curve. The two searches differ at the ends of
// the file, and are compared with a second, plainly written one each.
#include "transducer/component_values.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cmath>
#include <random>

#include "core/numbers.h"
#include "core/run_time_error.h"
#include "support/desk.h"

namespace zefirondo {
namespace {

using Rows = std::vector<CurvePoint>;

std::string TextOf(const Rows& rows) {
  std::string text = ";Freq(Hz) Ohm\r\n";
  for (const CurvePoint& row : rows) text += PlainNumber(row.f) + "  " + PlainNumber(row.z) + "\r\n";
  return text;
}

/// The rows from the first one of 1 Hz or more on.
Rows Data(Rows rows) {
  while (!rows.empty() && rows.front().f < 1) rows.erase(rows.begin());
  return rows;
}

/// Every pair of neighbours (0, 0)–row 1, row 1–row 2 … but for the last; none is left out between the frequencies.
CurvePoints PlainCapacitive(const Rows& data, double f1, double f2) {
  Rows chain{data.front(), {0, 0}};  // the first row is lost to (0, 0)
  chain.insert(chain.end(), data.begin() + 1, data.end());
  CurvePoints points;
  std::size_t i = 0;
  for (const auto& [f, point] : {std::pair{f1, &points.a}, {f2, &points.b}}) {
    // The pair i, i + 1 is tested while a row stands behind it in the file.
    while (i + 2 < chain.size() && !(chain[i].f <= f && f <= chain[i + 1].f)) ++i;
    if (i + 2 < chain.size()) *point = chain[i];
  }
  return points;
}

CurvePoints PlainInductive(Rows data, double f1, double f2) {
  data.front().z = 0;
  CurvePoints points;
  CurvePoint current = data.front();
  std::size_t next = 1;
  for (const auto& [f, point] : {std::pair{f1, &points.a}, {f2, &points.b}}) {
    for (; next < data.size(); current = data[next++]) {
      if (!(current.f <= f && f <= data[next].f)) continue;
      *point = current;
      ++next;  // the second search begins behind it
      break;
    }
  }
  return points;
}

void ExpectPoints(const CurvePoints& found, const CurvePoints& expected, const std::string& text) {
  EXPECT_EQ(found.a.f, expected.a.f) << text;
  EXPECT_EQ(found.a.z, expected.a.z) << text;
  EXPECT_EQ(found.b.f, expected.b.f) << text;
  EXPECT_EQ(found.b.z, expected.b.z) << text;
}

TEST(ComponentSearch, FindsWhatThePlainOnesFind) {
  std::mt19937 random(13);
  const TemporaryFolder folder;
  int both = 0;
  for (int i = 0; i < 500; ++i) {
    Rows rows;
    double f = static_cast<double>(random() % 3) * 0.5;
    const int count = 1 + static_cast<int>(random() % 12);
    for (int k = 0; k < count; ++k) {
      rows.push_back({f, static_cast<double>(1 + random() % 50)});
      f = random() % 10 == 0 ? 1 + static_cast<double>(random() % 12) : f + static_cast<double>(random() % 4);
    }
    const Rows data = Data(rows);
    if (data.empty()) continue;
    const double f1 = static_cast<double>(random() % 60) / 4;
    const double f2 = f1 + static_cast<double>(1 + random() % 20) / 4;
    const std::string text = TextOf(rows);
    const auto file = folder.Write("m.ovl", text);
    const CurvePoints capacitive = PlainCapacitive(data, f1, f2);
    ExpectPoints(FindCapacitivePoints(file, f1, f2), capacitive, "capacitive " + text);
    ExpectPoints(FindInductivePoints(file, f1, f2), PlainInductive(data, f1, f2), "inductive " + text);
    if (capacitive.a.f > 0 && capacitive.b.f > 0) ++both;
    ASSERT_FALSE(HasFailure()) << "curve " << i << ": " << f1 << ", " << f2;
  }
  EXPECT_GT(both, 60);
}

TEST(ComponentSearch, DiffersAtTheEnds) {
  const TemporaryFolder folder;
  const auto file = folder.Write("m.ovl", TextOf({{10, 50}, {20, 40}, {30, 30}, {40, 20}, {50, 10}}));
  ExpectPoints(FindCapacitivePoints(file, 15, 35), {{0, 0}, {30, 30}}, "the first row is lost");
  ExpectPoints(FindCapacitivePoints(file, 25, 45), {{20, 40}, {0, 0}}, "the last bracket is never tested");
  ExpectPoints(FindCapacitivePoints(file, 22, 28), {{20, 40}, {20, 40}}, "two frequencies in one bracket");
  ExpectPoints(FindInductivePoints(file, 15, 45), {{10, 0}, {40, 20}}, "the first row keeps its frequency");
  // The row at 30 Hz is passed over by the second search, which so takes the bracket 20–40.
  ExpectPoints(FindInductivePoints(file, 25, 35), {{20, 40}, {20, 40}}, "the row behind the first bracket");
}

TEST(ComponentFormulas, GiveTheValuesOfASeriesCircuit) {
  // 10 µF and 4 ohm: |Z|² = 16 + 1 / (2πfC)². 1.5 mH and 6 ohm: |Z|² = 36 + (2πfL)².
  const auto capacitive = [](double f) { return CurvePoint{f, std::hypot(4.0, 1 / (2 * M_PI * f * 10e-6))}; };
  EXPECT_NEAR(CapacitorOf({capacitive(200), capacitive(900)}), 10, 1e-9);
  const auto inductive = [](double f) { return CurvePoint{f, std::hypot(6.0, 2 * M_PI * f * 1.5e-3)}; };
  const CurvePoints points{inductive(500), inductive(4000)};
  EXPECT_NEAR(InductorOf(points), 1.5e-3, 1e-12);
  EXPECT_NEAR(ResistorOf(points, InductorOf(points)), 6, 1e-7);
  EXPECT_THROW((void)CapacitorOf({{20, 9}, {20, 9}}), RunTimeError);
  EXPECT_THROW((void)InductorOf({{20, 9}, {20, 9}}), RunTimeError);
}

class Tools : public testing::Test {
 protected:
  Tools() { desk.Begin(); }
  /// Opens a tool over a curve and gives what was printed behind the dialog's line.
  std::string Open(const char* entry, const std::filesystem::path& file) {
    desk.platform.files.emplace_back(file);
    desk.Choose(entry);
    const std::string out = desk.TakeOut();
    return out.substr(out.find('\n') + 1);
  }
  std::string Next(const std::string& tool, const char* f1, const char* f2) {
    *desk[tool + ".txtf1"].text = f1;
    *desk[tool + ".txtf2"].text = f2;
    desk.program.focus = nullptr;  // a field that has it would test its text first
    desk.Click(tool + ".cmdavanti");
    return desk.TakeOut();
  }
  std::string Capacitor(const Rows& rows, const char* f1, const char* f2) {
    EXPECT_EQ(Open("mdithsm.mnucapa", desk.folder.Write("m.ovl", TextOf(rows))), "");
    return Next("frmvalc", f1, f2);
  }
  std::string Inductor(const Rows& rows, const char* f1, const char* f2) {
    EXPECT_EQ(Open("mdithsm.munindu", desk.folder.Write("m.ovl", TextOf(rows))), "");
    return Next("frmvalf", f1, f2);
  }
  Desk desk;
};

// Falls from 500 ohm; two points at 100 Hz, 50 ohm and 200 Hz, 30 ohm:
// C = √((200² − 100²) / (π² (50² − 30²) · 4 · 200² · 100²)) · 10⁶ in µF; all three by python3.
const Rows kFalling{{20, 500}, {50, 80}, {100, 50}, {150, 40}, {200, 30}, {250, 25}, {300, 20}, {350, 18}};
// Rises; 100 Hz, 10 ohm and 200 Hz, 16 ohm: L = √(156 / 30000) / 2π, R = √(256 − (200 · 2π L)²).
const Rows kRising{{20, 8}, {50, 9}, {100, 10}, {150, 13}, {200, 16}, {250, 19}, {300, 22}, {350, 25}};

TEST_F(Tools, TellTheCapacitor) {
  EXPECT_EQ(Capacitor(kFalling, "120", "220"),
            "message information \"Capacitance\" \"The capacitor value is: 34.458055 µF\" [OK] -> OK\n");
  EXPECT_FALSE(desk.program.FindWindow("frmvalc")->open);
  EXPECT_EQ(desk.state.ValRangeLow, 120);
  EXPECT_EQ(desk.state.ValRangeHigh, 220);
}

TEST_F(Tools, TellTheInductorAndItsResistor) {
  EXPECT_EQ(
      Inductor(kRising, "120", "220"),
      "message information \"Inductance-Resistance\" \"The inductor value is: 11.476826 mH\\nThe resistor value is: "
      "6.9282032 Ohm\" [OK] -> OK\n");
  EXPECT_FALSE(desk.program.FindWindow("frmvalf")->open);
}

constexpr const char* kCapacitorFailed =
    "message information \"Capacitance\" \"The capacitor value is: -1 µF\" [OK] -> OK\n";

TEST_F(Tools, RefuseTheWrongSlopeAndTellMinusOne) {
  EXPECT_EQ(Capacitor(kRising, "120", "220"),
            "message stop \"Error\" \"You have chosen two values of frequency for which Z2 is greater than Z1\" [OK] "
            "-> OK\n" +
                std::string(kCapacitorFailed));
  EXPECT_EQ(
      Inductor(kFalling, "120", "220"),
      "message stop \"Error\" \"You have chosen two values of frequency for which Z2 is less than Z1\" [OK] -> OK\n"
      "message information \"Inductance-Resistance\" \"The inductor value is: -1 mH\\nThe resistor value is: 0 "
      "Ohm\" [OK] -> OK\n");
}

TEST_F(Tools, FailAtTwoFrequenciesOfOneBracketAndBehindTheCurve) {
  const std::string failed =
      "message stop \"Error\" \"It was not possible to calculate the value. Division by zero\" [OK] -> OK\n" +
      std::string(kCapacitorFailed);
  EXPECT_EQ(Capacitor(kFalling, "110", "140"), failed);
  EXPECT_EQ(Capacitor(kFalling, "5000", "6000"), failed);
  // The resistor had no value yet and takes the -1; the inductor keeps what it had, which is nothing.
  EXPECT_EQ(Inductor(kRising, "5000", "6000"),
            "message stop \"Error\" \"It was not possible to calculate a value. Division by zero\" [OK] -> OK\n"
            "message information \"Inductance-Resistance\" \"The inductor value is: 0 mH\\nThe resistor value is: -1 "
            "Ohm\" [OK] -> OK\n");
  desk.state.ValResult = 3;
  EXPECT_EQ(InductorFromCurve(desk.program), -1.0);  // with an earlier resistor the inductor takes it
  EXPECT_EQ(desk.state.ValResult, 3);
}

// A resistor that has no value leaves the inductor that was found: 10 ohm at 100 Hz, 100 ohm at 200 Hz give
// (200 · 2π L)² = 9900 · 4/3, more than 100².
TEST_F(Tools, KeepTheInductorWithoutAResistor) {
  const std::string out = Inductor({{50, 9}, {100, 10}, {150, 50}, {200, 100}, {250, 150}, {300, 200}}, "120", "220");
  EXPECT_EQ(
      out,
      "message stop \"Error\" \"It was not possible to calculate a value. Invalid procedure call or argument\" [OK] -> "
      "OK\nmessage information \"Inductance-Resistance\" \"The inductor value is: 91.427554 mH\\nThe resistor value "
      "is: "
      "-1 Ohm\" [OK] -> OK\n");
}

TEST_F(Tools, RefuseFrequenciesOutOfOrder) {
  EXPECT_EQ(Open("mdithsm.mnucapa", desk.folder.Write("m.ovl", TextOf(kFalling))), "");
  const std::string order =
      "message stop \"Data entry error\" \"The value Frequency1 must be less than the value Frequency2\" [OK] -> OK\n";
  const std::string missing =
      "message stop \"Data entry error\" \"You must specify values for Frequency1 and Frequency2\" [OK] -> OK\n";
  EXPECT_EQ(Next("frmvalc", "", ""), order);
  EXPECT_EQ(Next("frmvalc", "100", "100"), order);
  EXPECT_EQ(Next("frmvalc", "200", ""), order);
  EXPECT_EQ(Next("frmvalc", "", "100"), missing);
  EXPECT_EQ(Next("frmvalc", "-5", ""), missing);
  EXPECT_TRUE(desk.program.FindWindow("frmvalc")->open);
  EXPECT_EQ(desk.state.ValRangeHigh, 0);
}

TEST_F(Tools, HoldAZeroInTheirFields) {
  Open("mdithsm.munindu", desk.folder.Write("m.ovl", TextOf(kRising)));
  desk.Set("frmvalf.txtf1", "0");
  EXPECT_EQ(desk.Focus("frmvalf.txtf2").held, &desk["frmvalf.txtf1"]);
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Please enter a non zero value\" [OK] -> OK\n");
}

TEST_F(Tools, ShowTheCurveTheyAskFor) {
  desk.platform.files.emplace_back(
      desk.folder.Write("m.ovl", "0 9\r\n0.5 9\r\n20 8\r\n100 42.5\r\n18999 7\r\n19000 90\r\n5 1"));
  desk.Choose("mdithsm.munindu");
  EXPECT_EQ(desk.TakeOut(),
            "dialog open \"Impedance Measurement (*.ovl)|*.ovl|File di testo (*.txt)|*.txt\" default=\"\" folder=\"" +
                (desk.folder.path() / "Impedances").string() + "\" -> " + (desk.folder.path() / "m.ovl").string() +
                "\n");
  EXPECT_EQ(desk.state.ImpFreq, (Curve{20, 100, 18999, 19000, 0}));
  EXPECT_EQ(desk.state.ImpZ, (Curve{8, 42.5, 7, 90, 0}));
  EXPECT_EQ(desk.state.ImpScaleTop, 52);  // 42.5 rounds to 42; the row at 19 kHz does not count
  EXPECT_TRUE(desk.program.FindWindow("frmgrafico")->open);
  EXPECT_TRUE(desk.program.FindWindow("frmvalf")->open);
  desk.state.ValResult = 5;
  desk.Choose("frmvalf.mnuchiudi");
  Open("mdithsm.munindu", desk.folder.Write("m.ovl", TextOf(kRising)));
  EXPECT_EQ(desk.state.ValResult, 0);  // as the tool loads
}

TEST_F(Tools, FailAtWhatIsNoCurve) {
  const auto told = [](const std::string& why) {
    return "message stop \"Error\" \"There was an error while processing data. " + why + "\" [OK] -> OK\n";
  };
  std::filesystem::create_directory(desk.folder.path() / "folder.ovl");
  ASSERT_EQ(::mkfifo((desk.folder.path() / "pipe.ovl").c_str(), 0600), 0);
  for (const char* const entry : {"mdithsm.mnucapa", "mdithsm.munindu"}) {
    EXPECT_EQ(Open(entry, desk.folder.path() / "none.ovl"), told("File not found"));
    EXPECT_EQ(Open(entry, desk.folder.path() / "folder.ovl"), told("Path/File access error"));
    EXPECT_EQ(Open(entry, desk.folder.path() / "pipe.ovl"), told("Path/File access error"));
    EXPECT_EQ(Open(entry, desk.folder.Write("m.ovl", "")), told("Input past end of file"));
    EXPECT_EQ(Open(entry, desk.folder.Write("m.ovl", "10 5\r\n20")), told("Input past end of file"));
    EXPECT_EQ(Open(entry, desk.folder.Write("m.ovl", "10 1e9\r\n20 5\r\n")), told("Overflow"));
    EXPECT_FALSE(desk.program.FindWindow("frmvalc")->open || desk.program.FindWindow("frmvalf")->open);
  }
  desk.platform.files.emplace_back(std::nullopt);
  desk.Choose("mdithsm.mnucapa");
  EXPECT_EQ(desk.TakeOut().find("message"), std::string::npos);
}

}  // namespace
}  // namespace zefirondo
