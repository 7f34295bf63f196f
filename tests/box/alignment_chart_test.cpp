// The twelve alignments of the chart.
#include <gtest/gtest.h>

#include "box/designs.h"

namespace zefirondo {
namespace {

struct AlignmentRow {
  const char* option;
  const char* label;
  const char* caption;
  double vb_vas;
  double fb_fs;
  double f3_fs;
};

const AlignmentRow kRows[] = {
    {"VbSuVas0954", "Quasi 3° ordine", "Vb/Vas=0.0954", 0.0954, 2, 2.68},
    {"VbSuVas1337", "Quasi 3° ordine", "Vb/Vas=0.1337", 0.1337, 1.73, 2.28},
    {"VbSUVas224", "Quasi 3° ordine", "Vb/Vas=0.2242", 0.2242, 1.42, 1.77},
    {"VbSUVas339", "Quasi 3° ordine", "Vb/Vas=0.3390", 0.339, 1.23, 1.45},
    {"VbSUVas707", "Butterworth 4° ordine", "Vb/Vas= 0.7071", 0.7071, 1, 1},
    {"VbSuVas9479", "Chebyschev 4° ordine", "Vb/Vas=0.9479", 0.9479, 0.927, 0.867},
    {"VbSuVas1372", "Chebyschev 4° ordine", "Vb/Vas=1.372", 1.372, 0.829, 0.729},
    {"VbSUVas179", "Chebyschev 4° ordine", "Vb/Vas=1.790", 1.79, 0.757, 0.641},
    {"VbSuVas2062", "Chebyschev 4° ordine", "Vb/Vas=2.062", 2.062, 0.716, 0.6},
    {"VbSuVas260", "Chebyschev 4° ordine", "Vb/Vas=2.60", 2.6, 0.638, 0.52},
    {"VbSUVas366", "Butterworth 6° ordine", "Vb/Vas=0.366", 0.366, 1, 1},
    {"VbSUVas429", "Chebyschev 6° ordine", "Vb/Vas=0.429", 0.429, 0.98, 0.85},
};

class AlignmentChartRow : public testing::TestWithParam<AlignmentRow> {
 protected:
  AlignmentChartRow() { desk.DesignVentedBox(); }
  void Open() {
    desk.Focus("txtvolnetto");
    RightClick(desk.program, desk["txtvolnetto"]);
  }
  void Apply(const std::string& option) {
    Open();
    desk.Click("frmalfa." + option);
    desk.Click("frmalfa.cmdok");
  }
  int Selected(std::string* name = nullptr) {
    int count = 0;
    for (const AlignmentRow& row : kRows) {
      if (!desk[std::string("frmalfa.") + row.option].checked) continue;
      if (name != nullptr) *name = row.option;
      ++count;
    }
    return count;
  }
  BoxDesk desk;
};

TEST_P(AlignmentChartRow, IsAppliedAndFoundAgain) {
  const AlignmentRow& row = GetParam();
  const double litres = ReadNumber(desk.Text("txtvas")) * row.vb_vas * 1000;
  Apply(row.option);
  EXPECT_FALSE(desk.program.windows.frmalfa.window.open);
  EXPECT_NEAR(desk.state.Vb * 1000, litres, litres * 1e-5);  // through a field of seven characters
  EXPECT_NEAR(desk.state.Fb, 35 * row.fb_fs, 1e-3);
  EXPECT_EQ(desk.Text("txtvolnetto"), FormatNumber(litres));
  EXPECT_EQ(desk.Text("txtfb"), FormatNumber(35 * row.fb_fs));
  EXPECT_EQ(desk.state.AlfaValue, row.vb_vas);
  EXPECT_EQ(desk.Text("frmgrafcassa.txtF3dB"), FormatNumber(35 * row.f3_fs));
  EXPECT_EQ(desk.state.F3v, 35 * row.f3_fs);
  Open();
  std::string selected;
  EXPECT_EQ(Selected(&selected), 1);
  EXPECT_EQ(selected, row.option);
  EXPECT_EQ(desk.state.AlfaSecond, row.fb_fs);
}

INSTANTIATE_TEST_SUITE_P(All, AlignmentChartRow, testing::ValuesIn(kRows),
                         [](const auto& row) { return std::string(row.param.option); });

class TheChart : public AlignmentChartRow {};
INSTANTIATE_TEST_SUITE_P(One, TheChart, testing::Values(kRows[4]));

TEST_P(TheChart, HasItsLabelsAndCaptions) {
  Open();
  int i = 0;
  for (const AlignmentRow& row : kRows) {
    EXPECT_EQ(desk.Text(std::string("frmalfa.") + row.option), row.caption);
    EXPECT_EQ(desk.Text("frmalfa.lblallineamento(" + std::to_string(i++) + ")"), row.label) << row.option;
  }
  EXPECT_EQ(desk.Text("frmalfa.lblVbSuVas"), "Current Value Vb/Vas");
  EXPECT_EQ(desk.Text("frmalfa.lblFbsuFs"), "Current Value Fb/Fs");
  EXPECT_TRUE(desk["frmalfa.txtVbsuVas"].locked && desk["frmalfa.txtFbSuFs"].locked);
}

TEST_P(TheChart, OfAnotherDesignSelectsNoneAndChangesNothing) {
  Apply("VbSUVas707");
  desk.state.Vb = 0.1;  // m³, as of another design; Vas is 0.0926 m³
  desk.state.Fb = 38.5;
  Open();
  EXPECT_EQ(Selected(), 0);
  const double vas = ReadNumber(desk.Text("txtvas"));
  EXPECT_EQ(desk.state.AlfaValue, std::nearbyint(0.1 / vas * 1e4) / 1e4);
  EXPECT_EQ(desk.state.AlfaSecond, 1.1);
  EXPECT_EQ(desk.Text("frmalfa.txtVbsuVas"), FormatNumber(100 / (vas * 1000)));
  EXPECT_EQ(desk.Text("frmalfa.txtFbSuFs"), "1.1");
  const std::string volume = desk.Text("txtvolnetto");
  desk.Click("frmalfa.cmdok");
  EXPECT_EQ(desk.state.Vb, 0.1);
  EXPECT_EQ(desk.state.Fb, 38.5);
  EXPECT_EQ(desk.Text("txtvolnetto"), volume);
}

TEST_P(TheChart, ClosedByTheMenuChangesNothing) {
  Open();
  const double before = desk.state.Vb;
  desk.Click("frmalfa.VbSuVas260");
  desk.Choose("frmalfa.mnuchiudi");
  EXPECT_EQ(desk.state.Vb, before);
  EXPECT_FALSE(desk.program.windows.frmalfa.window.open);
}

TEST_P(TheChart, CountsEveryTransducer) {
  desk.state.DriversNum = 2;
  const double litres = 2 * ReadNumber(desk.Text("txtvas")) * 707.1;
  Apply("VbSUVas707");
  EXPECT_NEAR(ReadNumber(desk.Text("txtvolnetto")), litres, 1e-3);
  Open();
  std::string selected;
  EXPECT_EQ(Selected(&selected), 1);
  EXPECT_EQ(selected, "VbSUVas707");
}

TEST_P(TheChart, WithoutVasKeepsTheDesign) {
  const double vb = desk.state.Vb;
  const double fb = desk.state.Fb;
  desk.state.txtvas.clear();
  Apply("VbSuVas260");
  EXPECT_NEAR(desk.state.Vb, vb, vb * 1e-5);
  EXPECT_EQ(desk.state.Fb, fb);
  EXPECT_FALSE(desk.program.windows.frmalfa.window.open);
  EXPECT_TRUE(desk.Runs());
}

TEST_P(TheChart, ShowsItsRatiosInLightGrey) {
  Open();
  EXPECT_EQ(desk["frmalfa.txtVbsuVas"].back, 224 * 65793);  // red, green and blue 224
  EXPECT_EQ(desk["frmalfa.txtFbSuFs"].back, 224 * 65793);
  EXPECT_EQ(desk.program.windows.frmalfa.window.caption, "Vas/Vb");
}

TEST_P(TheChart, ShowsTheRatiosUnroundedAndKeepsThemRounded) {
  desk.state.Vb = 0.0654321;
  desk.state.Fb = 33.3333333;  // of 35 Hz: 0.952380951
  Open();
  const double a = 0.0654321 / ReadNumber(desk.Text("txtvas"));
  EXPECT_EQ(desk.Text("frmalfa.txtVbsuVas"), FormatNumber(a));
  EXPECT_EQ(desk.Text("frmalfa.txtFbSuFs"), "0.95238");
  EXPECT_NEAR(desk.state.AlfaValue, a, 5e-5);
  EXPECT_EQ(desk.state.AlfaSecond, 0.9524);
}

TEST_P(TheChart, ClosedByItsCloseBoxChangesNothing) {
  Open();
  const double before = desk.state.Vb;
  desk.Click("frmalfa.VbSuVas260");
  CloseBox(desk.program, desk.program.windows.frmalfa.window);
  EXPECT_EQ(desk.state.Vb, before);
  EXPECT_FALSE(desk.program.windows.frmalfa.window.open);
}

// Away from the page of the box the row is not applied: what stands in the record is written again.
TEST_P(TheChart, AppliesARowOnTheVentedPageAlone) {
  Open();
  const double vb = desk.state.Vb;
  const double fb = desk.state.Fb;
  desk.sheet.selected_tab = "par";
  desk.Click("frmalfa.VbSuVas260");
  desk.Click("frmalfa.cmdok");
  EXPECT_NEAR(desk.state.Vb, vb, vb * 1e-5);
  EXPECT_EQ(desk.state.Fb, fb);
  EXPECT_EQ(desk.Text("txtfb"), FormatNumber(fb));
  EXPECT_NE(desk.state.AlfaValue, 2.6);
}

// The volume of the row is the one that stands there: the recomputation stops at it, and the curve is left alone.
TEST_P(TheChart, StopsAtTheSameVolume) {
  Apply("VbSUVas707");
  desk.Leave();
  desk.state.BoxDb = {1, 2, 3, 0};
  Apply("VbSUVas707");
  EXPECT_EQ(desk.state.BoxDb, (Curve{1, 2, 3, 0}));
  Apply("VbSuVas260");
  EXPECT_EQ(desk.state.BoxDb.size(), 6828U);
}

// The resonance of an import goes before the field.
TEST_P(TheChart, TakesTheMeasuredResonanceFirst) {
  desk.state.Fs = 40;
  Apply("VbSUVas179");
  EXPECT_NEAR(desk.state.Fb, 40 * 0.757, 1e-9);
  EXPECT_NEAR(desk.state.F3v, 40 * 0.641, 1e-9);
}

TEST_P(TheChart, OpensWithoutVas) {
  desk.state.txtvas.clear();
  Open();
  EXPECT_TRUE(desk.Runs());
  EXPECT_EQ(Selected(), 0);
  EXPECT_EQ(desk.TakeOut(), "");
}

}  // namespace
}  // namespace zefirondo
