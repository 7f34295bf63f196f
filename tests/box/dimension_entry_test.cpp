// Dimensions typed by hand: what is locked, what is solved, and what the box becomes.
#include <gtest/gtest.h>

#include "box/designs.h"
#include "core/acts.h"

namespace zefirondo {
namespace {

constexpr const char* kHigh = "1.62  1  0.62";
constexpr const char* kLow = "1.25  1  0.8";
constexpr const char* kL = "frmdimensioni.txtLmanual";
constexpr const char* kH = "frmdimensioni.txtHmanual";
constexpr const char* kP = "frmdimensioni.txtPmanual";
constexpr const char* kModify = "frmdimensioni.cmdinserisci";

class EntryDesk : public BoxDesk {
 public:
  /// A closed box of 50 litres gross, as a prism of this ratio or a trapezoid of 15 degrees.
  explicit EntryDesk(const char* ratio, bool trapezoid = false) {
    DesignClosedBox();
    state.txtboxvolume = "50";
    Pick("cmbrappo", ratio);
    if (trapezoid) Pick("cmbforma", "Trapezoidal");
    Leave();
    DoubleClick(program, sheet.txtl);
    TakeOut();
  }

  [[nodiscard]] DimensionEntry& Form() { return program.windows.frmdimensioni; }
};

TEST(DimensionEntry, OpensByADoubleClickOnAnyDimension) {
  for (const char* const field : {"txtl", "txth", "txtp"}) {
    BoxDesk desk;
    desk.DesignClosedBox();
    DoubleClick(desk.program, desk[field]);
    EXPECT_TRUE(desk.program.windows.frmdimensioni.window.open) << field;
    ExpectTexts(desk, {{kL, "47.2"}, {kH, "76.5"}, {kP, "29.3"}});
  }
}

TEST(DimensionEntry, StartsEmptyWhenADimensionIsMissing) {
  for (std::string ProjectState::*missing : {&ProjectState::txtl, &ProjectState::txth, &ProjectState::txtp}) {
    BoxDesk desk;
    desk.DesignClosedBox();
    (desk.state.*missing).clear();
    DoubleClick(desk.program, desk.sheet.txtl);
    ExpectTexts(desk, {{kL, ""}, {kH, ""}, {kP, ""}});
  }
}

TEST(DimensionEntry, FirstTextsAreNoChange) {
  EntryDesk desk(kHigh);
  EXPECT_FALSE(desk.Form().ChangedL || desk.Form().ChangedH || desk.Form().ChangedP);
  EXPECT_FALSE(desk.state.DimEditing);
}

TEST(DimensionEntry, HasItsWords) {
  EntryDesk desk(kHigh);
  EXPECT_EQ(desk[kL].label, "Width L");
  EXPECT_EQ(desk[kH].label, "Height H");
  EXPECT_EQ(desk[kP].label, "Depth P");
  ExpectTexts(desk, {{kModify, "&Modify"}, {"frmdimensioni.cmdannulla", "&Cancel"}});
}

TEST(DimensionEntry, ChangeSetsItsFlagAndMarksTheProject) {
  struct Row {
    const char* field;
    bool DimensionEntry::*flag;
  };
  constexpr Row kRows[] = {
      {kL, &DimensionEntry::ChangedL}, {kH, &DimensionEntry::ChangedH}, {kP, &DimensionEntry::ChangedP}};
  for (const Row& row : kRows) {
    EntryDesk desk(kHigh);
    desk.state.ProjectModified = false;
    desk.Set(row.field, "33");
    for (const Row& other : kRows) EXPECT_EQ(desk.Form().*other.flag, other.field == row.field);
    EXPECT_TRUE(desk.state.DimEditing);
    EXPECT_TRUE(desk.state.ProjectModified);
  }
}

struct LockRow {
  bool trapezoid;
  const char* first;   // the field that is changed and left
  const char* second;  // the one after it, or ""
  const char* locked;  // the one that is locked by then, or ""
};

TEST(DimensionEntry, LocksTheDerivedDimension) {
  constexpr LockRow kRows[] = {
      {false, kL, "", ""}, {false, kH, "", ""}, {false, kP, "", ""}, {false, kL, kH, kP}, {false, kH, kL, kP},
      {false, kL, kP, kH}, {false, kP, kL, kH}, {false, kH, kP, kL}, {false, kP, kH, kL}, {true, kL, "", kP},
      {true, kP, "", kL},  {true, kH, "", ""},  {true, kL, kH, kP},  {true, kP, kH, kL},
  };
  for (const LockRow& row : kRows) {
    EntryDesk desk(kHigh, row.trapezoid);
    desk.Enter(row.first, "33");
    if (*row.second != '\0') desk.Enter(row.second, "34");
    for (const char* const name : {kL, kH, kP}) {
      const bool expected = std::string_view(name) == row.locked;
      EXPECT_EQ(desk[name].locked, expected) << row.first << " " << row.second << ": " << name;
      EXPECT_EQ(desk[name].back, expected ? colour::kFace : colour::kWindow);
    }
  }
}

TEST(DimensionEntry, LockIsForgottenWhenItOpensAgain) {
  EntryDesk desk(kHigh);
  desk.Enter(kL, "33");
  desk.Enter(kH, "34");
  desk.Click("frmdimensioni.cmdannulla");
  DoubleClick(desk.program, desk.sheet.txth);
  EXPECT_FALSE(desk[kP].locked);
  EXPECT_EQ(desk.Text(kL), "36.8");
}

TEST(DimensionEntry, ZeroHoldsTheFocus) {
  for (const char* const name : {kL, kH, kP}) {
    for (const char* const text : {"0", "", "0.0"}) {
      EntryDesk desk(kHigh);
      desk.Set(name, text);
      EXPECT_EQ(desk.Click(kModify).held, &desk[name]);
      EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Please enter a non zero value\" [OK] -> OK\n");
      EXPECT_TRUE(desk.Form().window.open);
    }
  }
}

TEST(DimensionEntry, CancelAndCloseApplyNothing) {
  for (const bool menu : {false, true}) {
    EntryDesk desk(kHigh);
    desk.Set(kL, "40");
    if (menu) {
      desk.Choose("frmdimensioni.mnuchiudi");
    } else {
      desk.Click("frmdimensioni.cmdannulla");
    }
    EXPECT_FALSE(desk.Form().window.open);
    ExpectTexts(desk, {{"txtl", "36.8"}, {"txth", "59.7"}, {"txtp", "22.8"}, {"cmbrappo", kHigh}});
    ExpectNumbers(desk, {{"WidthPrism", 36.840314986403861}});
  }
}

TEST(DimensionEntry, ClosedByItsCloseBoxForgetsWhatWasTyped) {
  EntryDesk desk(kHigh);
  desk.Set(kL, "40");
  CloseBox(desk.program, desk.Form().window);
  DoubleClick(desk.program, desk.sheet.txtl);
  EXPECT_FALSE(desk.Form().ChangedL);
  desk.Click(kModify);
  ExpectTexts(desk, {{"txtl", "36.8"}, {"cmbrappo", kHigh}});
}

/// What is typed, and the box after it. An empty text is not typed. Numbers by python, in cm, V = 50000 cm³.
struct EntryRow {
  const char* name;
  const char* l;
  const char* h;
  const char* p;
  Numbers numbers;
  Texts texts;
};

void TypeAndModify(EntryDesk& desk, const EntryRow& row) {
  const std::pair<const char*, const char*> typed[] = {{kL, row.l}, {kH, row.h}, {kP, row.p}};
  for (const auto& [field, text] : typed) {
    if (*text != '\0') desk.Set(field, text);
  }
  desk.Click(kModify);
  ASSERT_TRUE(desk.Runs());
  EXPECT_FALSE(desk.Form().window.open);
  EXPECT_FALSE(desk.Form().ChangedL || desk.Form().ChangedH || desk.Form().ChangedP);
}

class PrismEntry : public testing::TestWithParam<EntryRow> {};
class LowPrismEntry : public testing::TestWithParam<EntryRow> {};
class TrapezoidEntry : public testing::TestWithParam<EntryRow> {};

std::string NameOf(const testing::TestParamInfo<EntryRow>& info) { return info.param.name; }

TEST_P(PrismEntry, SolvesTheOtherDimensions) {
  EntryDesk desk(kHigh);
  TypeAndModify(desk, GetParam());
  ExpectNumbers(desk, GetParam().numbers);
  ExpectTexts(desk, GetParam().texts);
  EXPECT_EQ(desk.Text("cmbrappo"), "Non standard");
}

// u = 0.62, w = 1.62; old L = 36.84, old H = 59.68, the old depth is that of a trapezoid, 0
const EntryRow kPrismRows[] = {
    {"WidthAndHeight",
     "40",
     "50",
     "",
     {{"WidthPrism", 40}, {"HeightPrism", 50}, {"DepthPrism", 25}},
     {{"txtl", "40"}, {"txth", "50"}, {"txtp", "25"}}},
    {"WidthAndDepth",
     "40",
     "",
     "30",
     {{"WidthPrism", 40}, {"HeightPrism", 41.666666666666664}, {"DepthPrism", 30}},
     {{"txtl", "40"}, {"txth", "41.7"}, {"txtp", "30"}}},
    {"HeightAndDepth",
     "",
     "50",
     "30",
     {{"WidthPrism", 33.333333333333336}, {"HeightPrism", 50}, {"DepthPrism", 30}},
     {{"txtl", "33.3"}, {"txth", "50"}, {"txtp", "30"}}},
    {"WiderAlone",
     "40",
     "",
     "",
     {{"WidthPrism", 40}, {"HeightPrism", 57.024740418269964}, {"DepthPrism", 21.920310216782973}},
     {{"txtl", "40"}, {"txth", "57"}, {"txtp", "21.9"}}},
    {"NarrowerAlone",
     "30",
     "",
     "",
     {{"WidthPrism", 30}, {"HeightPrism", 66.13622305514582}, {"DepthPrism", 25.200511757028583}},
     {{"txtl", "30"}, {"txth", "66.1"}, {"txtp", "25.2"}}},
    {"HigherAlone",
     "",
     "70",
     "",
     {{"WidthPrism", 43.106651921358775}, {"HeightPrism", 70}, {"DepthPrism", 16.570196998570314}},
     {{"txtl", "43.1"}, {"txth", "70"}, {"txtp", "16.6"}}},
    {"LowerAlone",
     "",
     "40",
     "",
     {{"WidthPrism", 57.275649276110357}, {"HeightPrism", 40}, {"DepthPrism", 21.824283369955168}},
     {{"txtl", "57.3"}, {"txth", "40"}, {"txtp", "21.8"}}},
    {"DeeperAlone",
     "",
     "",
     "35",
     {{"WidthPrism", 23.433797326572087}, {"HeightPrism", 60.962011775681809}, {"DepthPrism", 35}},
     {{"txtl", "23.4"}, {"txth", "61"}, {"txtp", "35"}}},
    {"ShallowerAloneCountsAsDeeper",
     "",
     "",
     "20",
     {{"WidthPrism", 31}, {"HeightPrism", 80.645161290322577}, {"DepthPrism", 20}},
     {{"txtl", "31"}, {"txth", "80.6"}, {"txtp", "20"}}},
};

INSTANTIATE_TEST_SUITE_P(Box, PrismEntry, testing::ValuesIn(kPrismRows), NameOf);

TEST_P(LowPrismEntry, SolvesTheOtherDimensions) {
  EntryDesk desk(kLow);
  TypeAndModify(desk, GetParam());
  ExpectNumbers(desk, GetParam().numbers);
  ExpectTexts(desk, GetParam().texts);
  EXPECT_EQ(desk.Text("cmbrappo"), "Non standard");
}

// u = 0.8, w = 1.25; old L = 36.84, old H = 46.05
const EntryRow kLowPrismRows[] = {
    {"WiderAlone",
     "40",
     "",
     "",
     {{"WidthPrism", 40}, {"HeightPrism", 44.194173824159222}, {"DepthPrism", 28.284271247461902}},
     {{"txth", "44.2"}, {"txtp", "28.3"}}},
    {"NarrowerAlone",
     "30",
     "",
     "",
     {{"WidthPrism", 30}, {"HeightPrism", 51.03103630798288}, {"DepthPrism", 32.659863237109043}},
     {{"txth", "51"}, {"txtp", "32.7"}}},
    {"HigherAlone",
     "",
     "70",
     "",
     {{"WidthPrism", 33.407655239053049}, {"HeightPrism", 70}, {"DepthPrism", 21.380899352993953}},
     {{"txtl", "33.4"}, {"txtp", "21.4"}}},
    {"LowerAlone",
     "",
     "40",
     "",
     {{"WidthPrism", 44.194173824159222}, {"HeightPrism", 40}, {"DepthPrism", 28.284271247461902}},
     {{"txtl", "44.2"}, {"txtp", "28.3"}}},
    {"DeeperAlone",
     "",
     "",
     "35",
     {{"WidthPrism", 30.237157840738178}, {"HeightPrism", 47.245559126153402}, {"DepthPrism", 35}},
     {{"txtl", "30.2"}, {"txth", "47.2"}}},
};

INSTANTIATE_TEST_SUITE_P(Box, LowPrismEntry, testing::ValuesIn(kLowPrismRows), NameOf);

TEST(DimensionEntry, DepthOfAPrismIsComparedWithThatOfTheTrapezoid) {
  // Old trapezoid depth 33.3: 20 is smaller, so L = m / w and H = m w with m = √(50000 / 20) = 50.
  EntryDesk desk(kHigh);
  desk.state.DepthPrismTrapez = 33.3;
  desk.Set(kP, "20");
  desk.Click(kModify);
  ExpectNumbers(desk, {{"WidthPrism", 50 / 1.62}, {"HeightPrism", 81}, {"DepthPrism", 20}, {"DepthPrismTrapez", 33.3}});
  ExpectTexts(desk, {{"txtl", "30.9"}, {"txth", "81"}, {"txtp", "20"}});
}

TEST(DimensionEntry, UnchangedValueChangesNoFieldAndLeavesZerosInTheState) {
  struct Row {
    const char* field;
    double ProjectState::*old;
    Numbers numbers;
  };
  const Row kRows[] = {
      {kL, &ProjectState::WidthPrism, {{"WidthPrism", 40}, {"HeightPrism", 0}, {"DepthPrism", 0}}},
      {kH, &ProjectState::HeightPrism, {{"WidthPrism", 0}, {"HeightPrism", 40}, {"DepthPrism", 0}}},
      {kP, &ProjectState::DepthPrismTrapez, {{"WidthPrism", 0}, {"HeightPrism", 0}, {"DepthPrism", 40}}},
  };
  for (const Row& row : kRows) {
    EntryDesk desk(kHigh);
    desk.state.*row.old = 40;
    desk.Set(row.field, "40");
    desk.Click(kModify);
    ExpectNumbers(desk, row.numbers);
    ExpectTexts(desk, {{"txtl", "36.8"}, {"txth", "59.7"}, {"txtp", "22.8"}, {"cmbrappo", kHigh}});
  }
}

TEST(DimensionEntry, SingleDimensionOfANonStandardBoxDoesNothing) {
  for (const char* const field : {kL, kH, kP}) {
    EntryDesk desk(kHigh);
    desk.state.cmbrappo = "Non standard";
    desk.Set(field, "41");
    desk.Click(kModify);
    EXPECT_FALSE(desk.Form().window.open);
    ExpectTexts(desk, {{"txtl", "36.8"}, {"txth", "59.7"}, {"txtp", "22.8"}, {"cmbrappo", "Non standard"}});
    ExpectNumbers(desk, {{"WidthPrism", 36.840314986403861}});
  }
}

TEST(DimensionEntry, TwoDimensionsOfANonStandardBoxAreSolved) {
  EntryDesk desk(kHigh);
  desk.state.cmbrappo = "Non standard";
  desk.Set(kL, "40");
  desk.Set(kH, "50");
  desk.Click(kModify);
  EXPECT_EQ(desk.Text("txtp"), "25");
}

TEST(DimensionEntry, NothingTypedChangesNothing) {
  for (const bool trapezoid : {false, true}) {
    EntryDesk desk(kHigh, trapezoid);
    desk.Click(kModify);
    EXPECT_FALSE(desk.Form().window.open);
    ExpectTexts(desk, {{"txtl", "36.8"}, {"txth", "59.7"}, {"txtp", trapezoid ? "28.7" : "22.8"}, {"cmbrappo", kHigh}});
  }
}

TEST_P(TrapezoidEntry, SolvesTheOtherDimensions) {
  EntryDesk desk(kHigh, true);
  TypeAndModify(desk, GetParam());
  ExpectNumbers(desk, GetParam().numbers);
  ExpectNumbers(desk, {{"DepthPrism", 22.840995291570394}});  // that of the prism stays
  ExpectTexts(desk, GetParam().texts);
  EXPECT_EQ(desk.Text("cmbrappo"), "Non standard");
  EXPECT_EQ(desk.program.focus, &desk["cmbgradi"]);
}

// Before: L = 36.8403, H = 59.6813, P = 28.7425, LD = 21.4373, 15 degrees
const EntryRow kTrapezoidRows[] = {
    {"WidthAndHeight",
     "45",
     "50",
     "",
     {{"WidthPrism", 45},
      {"HeightPrism", 50},
      {"DepthPrismTrapez", 26.35949436766521},
      {"WidthRearPrism", 30.873989542582791}},
     {{"txtl", "45"}, {"txth", "50"}, {"txtp", "26.4"}, {"txtld", "30.9"}}},
    {"HeightAndGreaterDepth",
     "",
     "50",
     "40",
     {{"WidthPrism", 35.717967697244902},
      {"HeightPrism", 50},
      {"DepthPrismTrapez", 40},
      {"WidthRearPrism", 14.282032302755098}},
     {{"txtl", "35.7"}, {"txth", "50"}, {"txtp", "40"}, {"txtld", "14.3"}}},
    {"HeightAndSmallerDepth",
     "",
     "70",
     "25",
     {{"WidthPrism", 35.270158382206631},
      {"HeightPrism", 70},
      {"DepthPrismTrapez", 25},
      {"WidthRearPrism", 21.872698760650508}},
     {{"txtl", "35.3"}, {"txth", "70"}, {"txtp", "25"}, {"txtld", "21.9"}}},
    {"WidthAlone",
     "45",
     "",
     "",
     {{"WidthPrism", 45},
      {"HeightPrism", 59.681310277974262},
      {"DepthPrismTrapez", 21.325286473911238},
      {"WidthRearPrism", 33.571813421906299}},
     {{"txtl", "45"}, {"txth", "59.7"}, {"txtp", "21.3"}, {"txtld", "33.6"}}},
    {"HeightAlone",
     "",
     "70",
     "",
     {{"WidthPrism", 36.840314986403861},
      {"HeightPrism", 70},
      {"DepthPrismTrapez", 23.356424895003414},
      {"WidthRearPrism", 24.323644609015197}},
     {{"txtl", "36.8"}, {"txth", "70"}, {"txtp", "23.4"}, {"txtld", "24.3"}}},
    {"GreaterDepthAlone",
     "",
     "",
     "40",
     {{"WidthPrism", 36.840314986403861},
      {"HeightPrism", 47.851748779052592},
      {"DepthPrismTrapez", 40},
      {"WidthRearPrism", 15.404379591914061}},
     {{"txtl", "36.8"}, {"txth", "47.9"}, {"txtp", "40"}, {"txtld", "15.4"}}},
    {"SmallerDepthAlone",
     "",
     "",
     "25",
     {{"WidthPrism", 36.840314986403861},
      {"HeightPrism", 66.35351088360521},
      {"DepthPrismTrapez", 25},
      {"WidthRearPrism", 23.442855364847734}},
     {{"txtl", "36.8"}, {"txth", "66.4"}, {"txtp", "25"}, {"txtld", "23.4"}}},
};

INSTANTIATE_TEST_SUITE_P(Box, TrapezoidEntry, testing::ValuesIn(kTrapezoidRows), NameOf);

TEST(DimensionEntry, UnchangedDepthOfATrapezoidLosesItsRearSide) {
  // LD' = 0: H = 2 V / (L P) = 100000 / (36.8403 · 40)
  EntryDesk alone(kHigh, true);
  alone.state.DepthPrismTrapez = 40;
  alone.Set(kP, "40");
  alone.Click(kModify);
  ExpectNumbers(alone, {{"HeightPrism", 67.86044041487267}, {"WidthRearPrism", 0}});
  ExpectTexts(alone, {{"txth", "67.9"}, {"txtld", "0"}});

  // With H = 50: L' = 50, d = 13.1597, LD = 6.5798, L = 43.4202
  EntryDesk both(kHigh, true);
  both.state.DepthPrismTrapez = 40;
  both.Set(kH, "50");
  both.Set(kP, "40");
  both.Click(kModify);
  ExpectNumbers(both, {{"WidthPrism", 43.42015749320193}, {"WidthRearPrism", 6.5798425067980695}});
  ExpectTexts(both, {{"txtl", "43.4"}, {"txtld", "6.6"}});
}

TEST(DimensionEntry, TooSteepATrapezoidClosesWithNothingChanged) {
  // A front of 20 cm: 400 < 4 tan 15° · 837.8
  struct Row {
    const char* l;
    const char* h;
  };
  for (const Row& row : {Row{"20", ""}, Row{"20", "50"}, Row{"", "20"}}) {
    EntryDesk desk(kHigh, true);
    if (*row.l != '\0') desk.Set(kL, row.l);
    if (*row.h != '\0') desk.Set(kH, row.h);
    desk.Click(kModify);
    EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"The value of the angle is too high.\" [OK] -> OK\n");
    EXPECT_FALSE(desk.Form().window.open);
    EXPECT_FALSE(desk.Form().ChangedL || desk.Form().ChangedH);
    ExpectTexts(desk, {{"txtl", "36.8"}, {"txth", "59.7"}, {"txtp", "28.7"}, {"txtld", "21.4"}, {"cmbrappo", kHigh}});
    ExpectNumbers(desk, {{"WidthPrism", 36.840314986403861}, {"DepthPrismTrapez", 28.742472052332314}});
  }
}

TEST(DimensionEntry, KeepsTheSheetUsable) {
  EntryDesk desk(kHigh);
  desk.Enter("txtingombro", "1");
  EXPECT_TRUE(desk.Form().window.open);
  EXPECT_EQ(desk.state.DesignChanged, true);
}

}  // namespace
}  // namespace zefirondo
