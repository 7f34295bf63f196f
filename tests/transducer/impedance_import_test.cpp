// From a measured curve to its points: the search against a second, plainly written one, and the import itself.
#include "transducer/impedance_import.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <cstdio>
#include <optional>
#include <random>

#include "core/numbers.h"
#include "core/run_time_error.h"
#include "support/desk.h"

namespace zefirondo {
namespace {

/// The points as the passes are told, row by row; nothing where a division by zero ends them.
std::optional<ImpedancePoints> PlainPoints(const Curve& f, const Curve& z, double rvc) {
  ImpedancePoints p;
  const int n = static_cast<int>(f.size()) - 1;
  const auto F = [&](int i) { return f[static_cast<std::size_t>(i)]; };
  const auto Z = [&](int i) { return z[static_cast<std::size_t>(i)]; };
  for (int i = 0; i < n; ++i) {
    if (F(i) <= 10.0 || F(i) >= 300.0 || Z(i) <= p.Zmax) continue;
    p.Fs = F(i);
    p.Zmax = Z(i);
  }
  p.Zmin = 500;
  for (int i = 0; i <= n; ++i) {
    if (F(i) > p.Fs && F(i) <= 20000.0) p.Zmin = std::min(p.Zmin, Z(i));
  }
  if (rvc == 0) return std::nullopt;
  p.Zc = std::sqrt(p.Zmax / rvc) * rvc;
  int prev = n;
  for (int cur = 0; cur <= n; prev = cur++) {
    if (F(prev) > 20000.0 || F(prev) <= p.Fs || Z(cur) > p.Zc || Z(prev) < p.Zc) continue;
    p.Fh = (F(prev) + F(cur)) / 2;
    break;
  }
  if (p.Fh == 0) return std::nullopt;
  const double fe = p.Fs * p.Fs / p.Fh;
  for (int cur = 0; cur <= n; prev = cur++) {
    if (F(prev) <= fe - 10 || F(prev) >= fe + 10 || F(prev) >= p.Fs || Z(prev) > p.Zc || Z(cur) < p.Zc) continue;
    p.Fl = (F(prev) + F(cur)) / 2;
    break;
  }
  p.Bw = p.Fh - p.Fl;
  if (p.Bw == 0) return std::nullopt;
  p.Qms = std::sqrt(p.Zmax / rvc) * p.Fs / p.Bw;
  return p;
}

constexpr auto kPoints = std::to_array<std::pair<const char*, double ImpedancePoints::*>>({
    {"Fs", &ImpedancePoints::Fs},
    {"Zmax", &ImpedancePoints::Zmax},
    {"Zmin", &ImpedancePoints::Zmin},
    {"Zc", &ImpedancePoints::Zc},
    {"Fh", &ImpedancePoints::Fh},
    {"Fl", &ImpedancePoints::Fl},
    {"Bw", &ImpedancePoints::Bw},
    {"Qms", &ImpedancePoints::Qms},
});

std::optional<ImpedancePoints> Found(const Curve& f, const Curve& z, double rvc) {
  try {
    return FindImpedancePoints(f, z, rvc, [](std::size_t) {});
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), 11);
    return std::nullopt;
  }
}

/// The modulus of a moving coil: Re + jωLe + Res / (1 + jQms (f/Fs − Fs/f)).
double Modulus(double f, double fs, double qms, double res, double re) {
  const std::complex<double> coil{re, 6.28318530717958 * f * 0.0009};
  return std::abs(coil + res / std::complex<double>{1, qms * (f / fs - fs / f)});
}

TEST(FindImpedancePoints, FindsWhatThePlainSearchFinds) {
  std::mt19937 random(3);
  const auto unit = [&] { return static_cast<double>(random()) / 4294967296.0; };
  int found = 0;
  int failed = 0;
  int without_lower = 0;
  for (int i = 0; i < 3000; ++i) {
    Curve f;
    Curve z;
    const int rows = 1 + static_cast<int>(random() % 120);
    const double fs = 12 + 250 * unit();
    const double step = 0.2 + 6 * unit();
    for (int k = 0; k < rows; ++k) {
      // Smooth curves with noise, and rows of small whole numbers in any order, where equal values are common.
      const double hertz = i % 2 == 0 ? fs - 40 + step * k : static_cast<double>(random() % 40) * 10;
      if (hertz <= 0 && i % 2 == 0) continue;
      f.push_back(random() % 50 == 0 ? hertz + 20000 : hertz);
      z.push_back(i % 2 == 0 ? Modulus(hertz, fs, 4, 50, 5.6) * (1 + 0.05 * unit())
                             : 4.0 * static_cast<double>(random() % 9));
    }
    f.push_back(0);
    z.push_back(0);
    const double rvc = i % 2 == 0 ? 5.6 : 4.0 * static_cast<double>(random() % 4);
    const auto expected = PlainPoints(f, z, rvc);
    const auto points = Found(f, z, rvc);
    ASSERT_EQ(points.has_value(), expected.has_value()) << "curve " << i;
    if (!expected) {
      ++failed;
      continue;
    }
    ++found;
    if (expected->Fl == 0) ++without_lower;
    for (const auto& [name, point] : kPoints) ASSERT_EQ(*points.*point, *expected.*point) << name << " of curve " << i;
  }
  EXPECT_GT(found, 500);
  EXPECT_GT(failed, 100);
  EXPECT_GT(without_lower, 50);
}

TEST(FindImpedancePoints, CountsEveryRowOfEveryPass) {
  std::vector<std::size_t> counts;
  // The level is √(40/10) · 10 = 20. 5 rows and the zero slot: 5, 6, then 3 pairs up to the crossing 30–40, which
  // lands on the level itself, and all 6 for no rising one.
  const auto points = FindImpedancePoints({20, 30, 40, 80, 90, 0}, {40, 40, 20, 5, 5, 0}, 10,
                                          [&](std::size_t steps) { counts.push_back(steps); });
  ASSERT_EQ(counts.size(), 5U + 6 + 3 + 6);
  for (std::size_t i = 0; i < counts.size(); ++i) EXPECT_EQ(counts[i], i + 1);
  EXPECT_EQ(points.Fs, 20);  // of two equal peaks the first in file order
  EXPECT_EQ(points.Fh, 35);
  EXPECT_EQ(points.Fl, 0);
}

// The curve that the tests below import, and its points by hand: the peak 45 ohm at 40 Hz, since 10.0 and 300.0 Hz
// lie outside; the level √(45/5) · 5 = 15; the row at 50 Hz stands exactly on it and begins the pair 50–60; around
// 40²/55 = 29.09 Hz the pair 20–30 rises through it; Qms = 3 · 40 / (55 − 25) = 4. The last row is never kept.
constexpr const char* kRows =
    "10.0 50\r\n20 6\r\n30 20\r\n40 45\r\n50 15\r\n60 8\r\n250 45\r\n300.0 60\r\n400 7\r\n20001 3\r\n150 99\r\n";

/// A heading long enough that the file is taken.
std::string Long(const std::string& rows, std::size_t length = 168661) {
  return std::string(length - rows.size() - 2, ';') + "\r\n" + rows;
}

constexpr const char* kFailed = "message stop \"Error\" \"The file could not be opened. ";

class ImpedanceImport : public testing::Test {
 protected:
  ImpedanceImport() {
    desk.BeginImpedance();
    desk.sheet.mnuimporta.enabled = true;  // as after the data of the transducer
    desk.Tab("par");
    desk.state.txtrvc = "5";
    desk.TakeOut();
  }
  std::string Import(const std::filesystem::path& file) {
    desk.platform.files.emplace_back(file);
    desk.Choose("mnuimporta");
    const std::string out = desk.TakeOut();
    return out.substr(out.find('\n') + 1);
  }
  std::string ImportRows(const std::string& bytes) { return Import(desk.folder.Write("m.ovl", bytes)); }
  void ExpectFailure(const std::string& out, const std::string& why) {
    EXPECT_EQ(out, kFailed + why + "\" [OK] -> OK\n");
    EXPECT_FALSE(desk["prgbar"].visible);
    EXPECT_TRUE(desk["mnuimporta"].enabled);
    EXPECT_FALSE(desk["mnugrafico"].enabled);
    EXPECT_FALSE(desk["mnuannullasequenza"].enabled);
    EXPECT_FALSE(desk.program.FindWindow("frmgrafico")->open);
  }
  void ExpectFields(std::initializer_list<std::pair<const char*, const char*>> fields) {
    for (const auto& [name, text] : fields) EXPECT_EQ(desk.Text(name), text) << name;
  }
  Desk desk;
};

TEST_F(ImpedanceImport, WritesThePointsOfTheCurve) {
  EXPECT_EQ(ImportRows(Long(kRows)), "");
  ExpectFields({{"txtzmin", "7"},
                {"txtzmax", "45"},
                {"txtfs", "40"},
                {"txtfstrasdu", "40"},
                {"txtfl", "25"},
                {"txtfh", "55"},
                {"txtbw", "30"},
                {"txtqmesin", "4"},
                {"txtrvc", "5"}});
  EXPECT_EQ(desk.state.ImpFreq, (Curve{10, 20, 30, 40, 50, 60, 250, 300, 400, 20001, 0}));
  EXPECT_EQ(desk.state.ImpZ, (Curve{50, 6, 20, 45, 15, 8, 45, 60, 7, 3, 0}));
  EXPECT_EQ(desk.state.Fs, 40);
  EXPECT_EQ(desk.state.Zmax, 45);
  EXPECT_EQ(desk.state.Bw, 30);
  EXPECT_EQ(desk.state.ImpScaleTop, 55);
  EXPECT_EQ(desk.state.FilePath, (desk.folder.path() / "m.ovl").string());
  EXPECT_EQ(desk.state.ImpFileTitle, "m.ovl");
}

TEST_F(ImpedanceImport, LeavesTheFocusTheEntriesAndTheGraph) {
  desk.Tab("gen");
  ImportRows(Long(kRows));
  EXPECT_EQ(desk.sheet.selected_tab, "par");
  EXPECT_EQ(desk.program.focus, &desk["txtrvc"]);
  EXPECT_TRUE(desk["mnugrafico"].enabled);
  EXPECT_TRUE(desk["mnuannullasequenza"].enabled);
  EXPECT_FALSE(desk["mnuimporta"].enabled);
  EXPECT_FALSE(desk["prgbar"].visible);
  EXPECT_TRUE(desk.program.FindWindow("frmgrafico")->open);
}

TEST_F(ImpedanceImport, AsksWhereTheLastFileWasFound) {
  desk.state.FilePath = "/measured/last.ovl";
  desk.platform.files.emplace_back(std::nullopt);
  desk.Choose("mnuimporta");
  EXPECT_EQ(desk.TakeOut(),
            "dialog open \"Impedance Measurement (*.ovl)|*.ovl|File di testo (*.txt)|*.txt\" default=\".ovl\" "
            "folder=\"/measured/last.ovl\" -> cancel\n");
  EXPECT_EQ(desk.state.FilePath, "/measured/last.ovl");
  EXPECT_TRUE(desk["mnuimporta"].enabled);
}

TEST_F(ImpedanceImport, RemindsOfTheDataThatWereImported) {
  desk.state.DataImported = true;
  desk.platform.files.emplace_back(std::nullopt);
  desk.Choose("mnuimporta");
  const std::string out = desk.TakeOut();
  EXPECT_EQ(out.substr(0, out.find("dialog")),
            "message warning \"Warning!\" \"You must import the impedance of the transducer for which you have already "
            "imported the Data\" [OK] -> OK\n");
}

TEST_F(ImpedanceImport, RefusesAFileOneByteTooShort) {
  ExpectFailure(ImportRows(Long(kRows, 168660)), "Division by zero");
  EXPECT_EQ(desk.state.ImpFreq, (Curve{10, 0}));  // the row of the first step stays
  EXPECT_EQ(desk.state.ImpZ, (Curve{50, 0}));
  ExpectFields({{"txtzmin", ""}, {"txtfs", ""}});
  EXPECT_EQ(ImportRows(Long(kRows)), "");  // another try begins anew
  EXPECT_EQ(desk.state.ImpFreq.size(), 11U);
}

TEST_F(ImpedanceImport, NeedsTheResistanceOfTheCoil) {
  desk.state.txtrvc = "0";
  ExpectFailure(ImportRows(Long(kRows)), "Division by zero");
  desk.state.txtrvc.clear();
  ExpectFailure(ImportRows(Long(kRows)), "Division by zero");
  ExpectFields({{"txtzmin", ""}, {"txtzmax", ""}});
  EXPECT_EQ(desk.state.ImpFreq.size(), 11U);
}

TEST_F(ImpedanceImport, FailsWithoutAFallingCrossing) {
  ExpectFailure(ImportRows(Long("20 6\r\n40 45\r\n50 44\r\n60 43\r\n30 20\r\n1 1\r\n")), "Division by zero");
  ExpectFields({{"txtzmin", "43"}, {"txtzmax", ""}, {"txtfh", ""}});
  EXPECT_EQ(desk.state.Fs, 0);
}

TEST_F(ImpedanceImport, FailsAtNoBandwidthBehindItsFields) {
  // The falling pair 90–22 gives Fh = 56; around 64²/56 = 73.1 Hz, and below 64 Hz, the pair 63.5–48.5 rises: Fl = 56.
  ExpectFailure(ImportRows(Long("64 45\r\n90 30\r\n22 6\r\n63.5 6\r\n48.5 45\r\n1 1\r\n")), "Division by zero");
  ExpectFields(
      {{"txtzmax", "45"}, {"txtfs", "64"}, {"txtfl", "56"}, {"txtfh", "56"}, {"txtbw", "0"}, {"txtqmesin", ""}});
  EXPECT_EQ(desk.state.ImpScaleTop, 55);
}

TEST_F(ImpedanceImport, GoesWellWithoutARisingCrossing) {
  EXPECT_EQ(ImportRows(Long("38 20\r\n40 45\r\n50 16\r\n60 8\r\n1 1\r\n")), "");
  ExpectFields({{"txtfl", "0"}, {"txtfh", "55"}, {"txtbw", "55"}, {"txtqmesin", "2.18181"}});  // 3 · 40 / 55
}

TEST_F(ImpedanceImport, KeepsFiveHundredOhmWhereNoRowIsBelow) {
  desk.state.txtrvc = "400";
  // Zmax 900, level √(900 · 400) = 600: the pair 50 → 60 falls onto it, and all rows above 40 Hz have 500 or more.
  EXPECT_EQ(ImportRows(Long("30 100\r\n40 900\r\n50 700\r\n60 500\r\n70 500\r\n1 1\r\n")), "");
  ExpectFields({{"txtzmin", "500"}, {"txtfh", "55"}});
}

TEST_F(ImpedanceImport, FailsPastTheEndOfTheFile) {
  const std::string past = "Input past end of file";
  ExpectFailure(ImportRows(""), past);
  ExpectFailure(ImportRows(std::string(200000, 'x')), past);               // one line, and nothing behind it
  ExpectFailure(ImportRows(Long("0 5\r\n0.9 5\r\nword word\r\n")), past);  // nothing but skipped rows
  ExpectFailure(ImportRows(std::string(200000, '\0')), past);
  ExpectFailure(ImportRows(Long("40 45\r\n50 6\r\n60")), past);
  EXPECT_EQ(desk.state.ImpFreq, (Curve{40, 50, 0}));  // what was stored so far
  std::string wide;
  for (const char c : Long(kRows, 100000)) wide += {c, '\0'};
  ExpectFailure(ImportRows("\xFF\xFE" + wide), past);
}

TEST_F(ImpedanceImport, FailsAtWhatIsNoFile) {
  ExpectFailure(Import(desk.folder.path() / "none.ovl"), "File not found");
  std::filesystem::create_directory(desk.folder.path() / "folder.ovl");
  ExpectFailure(Import(desk.folder.path() / "folder.ovl"), "Path/File access error");
  ASSERT_EQ(::mkfifo((desk.folder.path() / "pipe.ovl").c_str(), 0600), 0);
  ExpectFailure(Import(desk.folder.path() / "pipe.ovl"), "Path/File access error");
}

TEST_F(ImpedanceImport, FailsAtAPeakBeyondTheScale) {
  ExpectFailure(ImportRows(Long("20 6\r\n40 40000\r\n45 500\r\n50 6\r\n1 1\r\n")), "Overflow");
  ExpectFields({{"txtzmax", "40000"}, {"txtfs", ""}});  // the scale stands between them
}

TEST_F(ImpedanceImport, IsUndoneAndBeginsFromNothing) {
  ImportRows(Long(kRows));
  desk.state.DataImported = true;
  desk.Choose("mnuannullasequenza");
  EXPECT_TRUE(desk.state.ImpFreq.empty());
  EXPECT_TRUE(desk.state.ImpZ.empty());
  EXPECT_EQ(desk.sheet.selected_tab, "gen");
  ExpectFields({{"txtrvc", "5"}, {"txtfs", ""}, {"txtzmin", ""}, {"txtqmesin", ""}});
  EXPECT_FALSE(desk["mnuannullasequenza"].enabled);
  EXPECT_FALSE(desk["mnugrafico"].enabled);
  EXPECT_FALSE(desk.state.ImpedanceMode);
  EXPECT_FALSE(desk.program.FindWindow("frmgrafico")->open);
  EXPECT_TRUE(desk["mnuimporta"].enabled);
  desk.state.DataImported = false;
  EXPECT_EQ(ImportRows(Long(kRows)), "");
  EXPECT_EQ(desk.state.ImpFreq.size(), 11U);
}

TEST_F(ImpedanceImport, GraphHasItsScaleItsLevelsAndItsCurve) {
  struct TopRow {
    const char* peak;
    int top;
    std::vector<double> levels;
  };
  for (const TopRow& row :
       {TopRow{"60", 70, {10, 20, 30, 40, 50, 60, 70}}, {"200", 210, {20, 40, 60, 80, 100, 120, 140, 160, 180, 200}}}) {
    desk.sheet.mnuimporta.enabled = true;
    EXPECT_EQ(ImportRows(Long("2 6\r\n40 " + std::string(row.peak) + "\r\n45 50\r\n1000 6\r\n1 1\r\n")), "");
    const ImpedanceGraph& form = desk.program.windows.frmgrafico;
    EXPECT_EQ(form.surface.scale.height, row.top);
    std::vector<double> levels;
    for (const StripLabel& label : form.surface.labels) levels.push_back(ReadNumber(label.text));
    std::sort(levels.begin(), levels.end());
    EXPECT_EQ(levels, row.levels);
    const Stroke& curve = form.surface.strokes.back();
    EXPECT_EQ(curve.colour, 0);
    const Point* const points = &form.surface.points.at(curve.first);
    EXPECT_LT(points[0].x, form.surface.scale.left);  // 2 Hz lies left of the plot
    EXPECT_NEAR(points[1].x, 20 * std::log10(40), 1e-12);
    EXPECT_EQ(points[1].y, 10);  // the peak, 10 ohm below the top
  }
  desk.Choose("frmgrafico.mnuchiudigraf");
  EXPECT_FALSE(desk.program.FindWindow("frmgrafico")->open);
}

TEST(ImpedanceProgress, FollowsTheEstimateOfTheSteps) {
  Desk desk;
  desk.BeginImpedance();
  desk.sheet.mnuimporta.enabled = true;
  desk.state.txtrvc = "5";
  std::string rows = "20 6\r\n40 45\r\n50 20\r\n60 6\r\n";
  for (int i = 0; i < 996; ++i) rows += "400 7\r\n";
  desk.platform.files.emplace_back(desk.folder.Write("m.ovl", Long(rows, 170000)));
  desk.Choose("mnuimporta");
  // 999 rows, then 1000 with the zero slot for the least modulus, 4 pairs to Fh and 2 to Fl: 2005 steps of
  // 170000 / 10.0, 11.8 percent.
  EXPECT_EQ(desk.sheet.prgbar.progress, 12);
  EXPECT_EQ(desk.Text("txtfs"), "40");
}

/// A measurement long enough to be taken: a coil of 5.8 ohm, Fs 32 Hz, Qms 3.8, Res 5.8 · 3.8 / 0.42 ohm.
std::string Measurement() {
  std::mt19937 random(5);
  std::string text = ";Freq(Hz)  Impedance(Ohm)\r\n";
  std::array<char, 64> line{};
  for (int i = 1; text.size() < 300000; ++i) {
    const double f = 0.7324 * i;
    const double noise = 1 + 0.0004 * (static_cast<double>(random()) / 2147483648.0 - 1);
    std::snprintf(line.data(), line.size(), "%.4f  %.6f\r\n", f, Modulus(f, 32, 3.8, 5.8 * 3.8 / 0.42, 5.8) * noise);
    text += line.data();
  }
  return text;
}

std::string TransducerData() {
  std::vector<std::string> lines(55);
  const auto put = [&](std::size_t line, std::size_t column, const char* value) {
    lines[line - 1] = std::string(column - 1, '.') + value;
  };
  put(3, 7, "Maestrale");
  put(10, 6, "8");
  put(12, 4, "100");
  put(13, 5, "90");
  put(14, 4, "5.8");
  put(18, 4, "9.5");
  put(19, 6, "0.005");
  put(30, 4, "0.21");
  put(32, 7, "1");
  put(48, 7, "0.008");
  put(49, 7, "0.11");
  put(50, 10, "0.05");
  put(51, 8, "0.14");
  put(52, 8, "0.23");
  put(53, 7, "0.26");
  put(54, 5, "0.038");
  put(55, 6, "0.0015");
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

TEST(RoadOfAMeasurement, LeadsToABoxAndItsTraces) {
  Desk desk;
  desk.BeginImpedance();
  const std::filesystem::path folder = desk.folder.path();
  EXPECT_EQ(desk.Choose("mnuimporta").refusal, Refusal::Disabled);
  desk.platform.files.emplace_back(desk.folder.Write("w.wdr", TransducerData()));
  desk.Choose("mnuimportadati");
  desk.platform.files.emplace_back(desk.folder.Write("w.ovl", Measurement()));
  desk.Choose("mnuimporta");
  EXPECT_NEAR(desk.state.Fs, 32, 0.7324);
  // The peak is that of the model, within its noise; Zmax of the coil alone is 5.8 + 52.4762 = 58.2762 ohm.
  EXPECT_NEAR(desk.state.Zmax, 58.2762, 0.15);
  // √(Zmax · Re) is crossed around Fs with Fl · Fh = Fs² and Fh − Fl = √r · Fs / Qms, 26.7 Hz, but for the inductance.
  EXPECT_NEAR(desk.state.Bw, std::sqrt(58.2762 / 5.8) * 32 / 3.8, 1.5);
  EXPECT_NEAR(ReadNumber(desk.Text("txtqmesin")), 3.8, 0.25);
  EXPECT_EQ(desk.state.ImpScaleTop, std::floor(desk.state.Zmax) + 10);

  desk.TakeOut();
  desk.Leave();
  desk.platform.answers.push_back(Answer::Yes);
  desk.Click("cmdcalcola");
  EXPECT_EQ(desk.sheet.selected_tab, "ref") << desk.out;
  EXPECT_NEAR(desk.state.Qts, 1 / (1 / 3.8 + 1 / 0.4272), 0.05);  // Qes 0.42 with 0.1 ohm more: 0.4272
  desk.Click("frmgrafcassa.cmdset1");
  desk.platform.files.emplace_back(folder / "box.trc");
  desk.Choose("frmgrafcassa.mnusalvatracciatorosso");
  desk.platform.files.emplace_back(folder / "box.trc");
  desk.Choose("frmgrafcassa.mnuimportatracciato");
  const Surface& surface = desk.program.windows.frmgrafcassa.surface;
  ASSERT_GT(surface.strokes.back().count, 1000U);
  const std::size_t first = surface.strokes.back().first;
  EXPECT_NEAR(surface.points[first + 100].x, desk.state.BoxFreq[100], 1e-12);
  EXPECT_NEAR(surface.points[first + 100].y, desk.state.BoxScaleTop - desk.state.BoxDb[100], 1e-12);
  EXPECT_EQ(desk.TakeOut().find("\"Error\""), std::string::npos);
}

}  // namespace
}  // namespace zefirondo
