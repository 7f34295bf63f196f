// The inner dimensions: prism, trapezoid, tilt and rear side.
#include "box/geometry.h"

#include <gtest/gtest.h>

#include "box/designs.h"
#include "core/acts.h"

namespace zefirondo {
namespace {

constexpr const char* kHigh = "1.62  1  0.62";
constexpr const char* kLow = "1.25  1  0.8";

/// A closed box whose gross volume is set to these litres, as a prism of this ratio.
void MakePrism(BoxDesk& desk, const char* litres, const char* ratio) {
  desk.DesignClosedBox();
  desk.state.txtboxvolume = litres;
  desk.Pick("cmbrappo", ratio);
  desk.Leave();
  desk.TakeOut();
}

struct PrismRow {
  const char* litres;
  const char* ratio;
  double l, h, p;  // cm, by python: s = V^(1/3) dm, L = 10 s, H and P by the factors of the ratio
  const char* txtl;
  const char* txth;
  const char* txtp;
};

constexpr PrismRow kPrisms[] = {
    {"50", kHigh, 36.840314986403861, 59.681310277974262, 22.840995291570394, "36.8", "59.7", "22.8"},
    {"50", kLow, 36.840314986403861, 46.050393733004825, 29.472251989123095, "36.8", "46.1", "29.5"},
    {"12.5", kHigh, 23.207944168063893, 37.596869552263506, 14.388925384199613, "23.2", "37.6", "14.4"},
    {"12.5", kLow, 23.207944168063893, 29.009930210079865, 18.566355334451114, "23.2", "29", "18.6"},
    {"250", kHigh, 62.996052494743651, 102.05360504148473, 39.057552546741064, "63", "102.1", "39.1"},
    {"250", kLow, 62.996052494743651, 78.745065618429564, 50.396841995794929, "63", "78.7", "50.4"},
    {"0.8", kHigh, 9.2831776672255586, 15.038747820905405, 5.7555701536798463, "9.3", "15", "5.8"},
};

TEST(Prism, FollowsTheRatio) {
  for (const PrismRow& row : kPrisms) {
    BoxDesk desk;
    MakePrism(desk, row.litres, row.ratio);
    ExpectNumbers(desk, {{"WidthPrism", row.l}, {"HeightPrism", row.h}, {"DepthPrism", row.p}});
    ExpectTexts(desk, {{"txtl", row.txtl}, {"txth", row.txth}, {"txtp", row.txtp}, {"cmbrappo", row.ratio}});
  }
}

TEST(Prism, HighRatioIsALittleLargerThanTheVolume) {
  BoxDesk desk;
  MakePrism(desk, "50", kHigh);
  const ProjectState& s = desk.state;
  EXPECT_NEAR(s.WidthPrism * s.HeightPrism * s.DepthPrism / 50000, 1.0044, 1e-12);
}

TEST(Prism, LowRatioKeepsTheVolume) {
  BoxDesk desk;
  MakePrism(desk, "50", kLow);
  const ProjectState& s = desk.state;
  EXPECT_NEAR(s.WidthPrism * s.HeightPrism * s.DepthPrism / 50000, 1.0, 1e-12);
}

TEST(Prism, NonStandardRatioGoesBackToTheHighOne) {
  BoxDesk desk;
  MakePrism(desk, "50", kLow);
  desk.state.cmbrappo = "Non standard";
  DimensioniBox(desk.program);
  ExpectTexts(desk, {{"cmbrappo", kHigh}, {"txtl", "36.8"}, {"txth", "59.7"}, {"txtp", "22.8"}});
}

TEST(Prism, VolumeOfZeroKeepsTheDimensionsAndOnlyShowsThePrism) {
  BoxDesk desk;
  MakePrism(desk, "50", kHigh);
  desk.Pick("cmbforma", "Trapezoidal");
  desk.Leave();
  desk.state.txtboxvolume = "0";
  desk.state.cmbrappo = "Non standard";
  DimensioniBox(desk.program);
  ExpectTexts(desk, {{"cmbforma", "Prismatic"}, {"txtld", ""}, {"txtl", "36.8"}, {"cmbrappo", "Non standard"}});
  ExpectNumbers(desk, {{"WidthPrism", 36.840314986403861}});
}

TEST(Rounding, GoesHalfToEven) {
  BoxDesk desk;
  desk.DesignClosedBox();
  Control& field = desk.sheet.txtl;
  ShowDimension(desk.program, field, 20.25);
  EXPECT_EQ(*field.text, "20.2");
  ShowDimension(desk.program, field, 20.75);
  EXPECT_EQ(*field.text, "20.8");
  ShowDimension(desk.program, field, 20.75000001);
  EXPECT_EQ(*field.text, "20.8");
  ShowDimension(desk.program, field, 20.2500001);
  EXPECT_EQ(*field.text, "20.3");
}

void ExpectPrismShown(BoxDesk& desk) {
  EXPECT_TRUE(desk.sheet.imgbox[0].visible);
  EXPECT_FALSE(desk.sheet.imgbox[1].visible);
  EXPECT_EQ(desk.Text("txtld"), "");
  for (const char* const name : {"lblLD", "txtld", "lblgradi", "cmbgradi"}) EXPECT_FALSE(desk[name].enabled) << name;
}

TEST(Shape, TrapezoidOpensItsControls) {
  BoxDesk desk;
  MakePrism(desk, "50", kHigh);
  ExpectPrismShown(desk);
  desk.Pick("cmbforma", "Trapezoidal");
  EXPECT_FALSE(desk.sheet.imgbox[0].visible);
  EXPECT_TRUE(desk.sheet.imgbox[1].visible);
  for (const char* const name : {"lblLD", "txtld", "lblgradi", "cmbgradi"}) EXPECT_TRUE(desk[name].enabled) << name;
  EXPECT_EQ(desk.program.focus, &desk["cmbgradi"]);
}

TEST(Shape, TrapezoidReadsTheHeightFromItsField) {
  // By python: S = 50000 / 59.7, t = tan 15°, P = (L − √(L² − 4 t S)) / 2t, LD = 2 S / P − L
  BoxDesk desk;
  MakePrism(desk, "50", kHigh);
  desk.Pick("cmbforma", "Trapezoidal");
  ExpectNumbers(desk, {{"DepthPrismTrapez", 28.742472052332314}, {"WidthRearPrism", 21.437270636610755}});
  ExpectTexts(desk, {{"txtp", "28.7"}, {"txtld", "21.4"}, {"txtl", "36.8"}, {"txth", "59.7"}});
  EXPECT_EQ(desk.sheet.LastTilt, 15);
  EXPECT_FALSE(desk.state.DimEditing);
  EXPECT_TRUE(desk.state.ProjectModified);
  // The volume is kept: P (L + LD) / 2 · H
  EXPECT_NEAR(28.742472052332314 * (36.840314986403861 + 21.437270636610755) / 2 * 59.7, 50000, 1e-6);
}

TEST(Shape, BackToThePrism) {
  BoxDesk desk;
  MakePrism(desk, "50", kHigh);
  desk.Pick("cmbforma", "Trapezoidal");
  desk.Pick("cmbforma", "Prismatic");
  ExpectPrismShown(desk);
  EXPECT_EQ(desk.Text("txtp"), "22.8");
  EXPECT_FALSE(desk.state.DimEditing);
}

TEST(Shape, UnknownTextGoesBackToThePrismOnLeaving) {
  BoxDesk desk;
  MakePrism(desk, "50", kHigh);
  desk.Pick("cmbforma", "Trapezoidal");
  desk.Enter("cmbforma", "Egg");
  EXPECT_EQ(desk.Text("cmbforma"), "Prismatic");
  ExpectPrismShown(desk);
  EXPECT_EQ(desk.Text("txtp"), "22.8");
  EXPECT_FALSE(desk.state.DimEditing);
}

TEST(Shape, TextOfTheListStaysOnLeaving) {
  BoxDesk desk;
  MakePrism(desk, "50", kHigh);
  desk.Enter("cmbforma", "Trapezoidal");
  EXPECT_EQ(desk.Text("cmbforma"), "Trapezoidal");
  ExpectPrismShown(desk);  // no click, no change of the shape
}

TEST(Shape, SpeaksItalian) {
  BoxDesk desk(Language::Italian);
  desk.DesignClosedBox();
  desk.Pick("cmbforma", "Trapezoidale");
  EXPECT_TRUE(desk.sheet.imgbox[1].visible);
  desk.Pick("cmbforma", "Prismatico");
  EXPECT_TRUE(desk.sheet.imgbox[0].visible);
}

TEST(Shape, TooLargeATiltLeavesTheDimensionsAndTheEditingFlag) {
  for (const bool editing : {false, true}) {
    BoxDesk desk;
    MakePrism(desk, "50", kHigh);
    desk.state.cmbgradi = "30.0";  // comes back as "30", which is a change of its own
    desk.state.DimEditing = editing;
    desk.Pick("cmbforma", "Trapezoidal");
    EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"The value of the angle is too high.\" [OK] -> OK\n");
    EXPECT_EQ(desk.state.DimEditing, editing);
    ExpectTexts(desk, {{"txtp", "22.8"}, {"txtld", ""}, {"cmbgradi", "30"}});  // 30 was there on getting the focus
    EXPECT_EQ(desk.state.DepthPrismTrapez, 0);
  }
}

TEST(Shape, NewVolumeReturnsToThePrism) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.Pick("cmbforma", "Trapezoidal");
  EXPECT_NE(desk.Text("txtld"), "");
  desk.Enter("txtvolnetto", "30");
  EXPECT_EQ(desk.Text("cmbforma"), "Prismatic");
  ExpectPrismShown(desk);
}

TEST(Shape, QtcOfTheListReturnsToThePrism) {
  BoxDesk desk;
  desk.DesignClosedBox();
  desk.Pick("cmbforma", "Trapezoidal");
  desk.Pick("cmballi", "1.0");
  EXPECT_EQ(desk.Text("cmbforma"), "Prismatic");
  ExpectPrismShown(desk);
}

TEST(Shape, ChangeMarksTheProject) {
  BoxDesk desk;
  MakePrism(desk, "50", kHigh);
  desk.state.ProjectModified = false;
  desk.Set("cmbforma", "T");
  EXPECT_TRUE(desk.state.ProjectModified);
}

TEST(Ratio, ClickUnlocksTheRearSide) {
  BoxDesk desk;
  MakePrism(desk, "50", kHigh);
  desk.sheet.txtld.locked = true;
  desk.sheet.txtld.back = colour::kGrey;
  desk.state.DimEditing = true;
  desk.Pick("cmbrappo", kLow);
  EXPECT_FALSE(desk.sheet.txtld.locked);
  EXPECT_EQ(desk.sheet.txtld.back, colour::kWindow);
  EXPECT_FALSE(desk.state.DimEditing);
}

TEST(Ratio, UnknownTextBecomesTheHighOneOnClick) {
  BoxDesk desk;
  MakePrism(desk, "50", kLow);
  desk.sheet.txtld.locked = true;
  desk.state.DimEditing = true;
  desk.Pick("cmbrappo", "Non standard");
  ExpectTexts(desk, {{"cmbrappo", kHigh}, {"txth", "59.7"}});
  EXPECT_TRUE(desk.sheet.txtld.locked);
  EXPECT_FALSE(desk.state.DimEditing);
}

TEST(Ratio, AnyOtherTextBecomesTheHighOneOnClick) {
  BoxDesk desk;
  MakePrism(desk, "50", kLow);
  desk.Pick("cmbrappo", "2  1  1");
  ExpectTexts(desk, {{"cmbrappo", kHigh}, {"txth", "59.7"}});
}

TEST(Ratio, PassingThroughNonStandardDiscardsHandMadeDimensions) {
  BoxDesk desk;
  MakePrism(desk, "50", kLow);
  desk.state.cmbrappo = "Non standard";
  desk.state.txtl = desk.state.txth = desk.state.txtp = "36.84";
  desk.Focus("cmbrappo");
  desk.Leave();
  ExpectTexts(desk, {{"cmbrappo", kHigh}, {"txtl", "36.8"}, {"txth", "59.7"}, {"txtp", "22.8"}});
}

TEST(Ratio, TypedTextBecomesTheHighOneOnLeaving) {
  BoxDesk desk;
  MakePrism(desk, "50", kLow);
  desk.Enter("cmbrappo", "2  1  1");
  ExpectTexts(desk, {{"cmbrappo", kHigh}, {"txth", "59.7"}});
}

TEST(Ratio, LeavingWithARatioKeepsTheDimensions) {
  BoxDesk desk;
  MakePrism(desk, "50", kLow);
  desk.state.txtl = "marker";
  desk.Focus("cmbrappo");
  desk.Leave();
  ExpectTexts(desk, {{"cmbrappo", kLow}, {"txtl", "marker"}});
}

TEST(Ratio, ChangeMarksTheProject) {
  BoxDesk desk;
  MakePrism(desk, "50", kHigh);
  desk.state.ProjectModified = false;
  desk.Set("cmbrappo", "1");
  EXPECT_TRUE(desk.state.ProjectModified);
}

struct DepthRow {
  double degrees;
  double depth;  // cm, by python
  double rear;
};

// 50 litres at the height 59.6813 cm: the plan area is 837.783 cm², the front 36.8403 cm.
constexpr DepthRow kDepths[] = {
    {3, 23.52845062391885, 34.374167292063184},   {7.5, 24.968876634693626, 30.265885044585865},
    {10, 25.9686403635361, 27.682371089591278},   {14.25, 28.237835614984803, 22.497321681035807},
    {15, 28.754708549223821, 21.430713117690232}, {20, 34.500675355599896, 11.725877203364107}};
constexpr double kFront = 36.840314986403861;
constexpr double kPlan = 50000 / 59.681310277974262;

TEST(TrapezoidFormula, DepthAndRearSide) {
  for (const DepthRow& row : kDepths) {
    const std::optional<double> depth = TrapezoidDepth(kPlan, kFront, row.degrees);
    ASSERT_TRUE(depth) << row.degrees;
    EXPECT_NEAR(*depth, row.depth, 1e-10) << row.degrees;
    // Both walls lean inward by the tilt.
    EXPECT_NEAR(kFront - 2 * *depth * std::tan(row.degrees * kPi / 180), row.rear, 1e-9) << row.degrees;
  }
}

TEST(TrapezoidFormula, SmallTiltComesNearToAPrism) {
  EXPECT_NEAR(*TrapezoidDepth(kPlan, kFront, 0.01), kPlan / kFront, 0.01);  // the smaller root
}

TEST(TrapezoidFormula, SteepestTilt) {
  // tan⁻¹(L² / 4 S) = 22.0479°: there both roots are one
  EXPECT_TRUE(TrapezoidDepth(kPlan, kFront, 22.0479));
  EXPECT_FALSE(TrapezoidDepth(kPlan, kFront, 22.0480));
}

TEST(TrapezoidFormula, BothRootsInOneAreStillADepth) {
  // L² is exactly 4 t S: the depth is L / 2t.
  const double t = std::tan(15 * kPi / 180);
  bool found = false;
  for (double width = 20; width < 40 && !found; width += 0.1) {
    const double area = width * width / (4 * t);
    found = width * width - 4 * t * area == 0;
    if (!found) continue;
    const std::optional<double> depth = TrapezoidDepth(area, width, 15);
    ASSERT_TRUE(depth);
    EXPECT_NEAR(*depth, width / (2 * t), 1e-12);
  }
  EXPECT_TRUE(found);
}

TEST(TrapezoidFormula, MessageAndMinusOneWhenTooSteep) {
  BoxDesk desk;
  desk.DesignClosedBox();
  EXPECT_EQ(ProfonditaTrapezio(desk.program, kPlan, kFront, 23), -1);
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"The value of the angle is too high.\" [OK] -> OK\n");
}

/// A trapezoid of 50 litres with a tilt of 15 degrees, and the focus nowhere.
void MakeTrapezoid(BoxDesk& desk) {
  MakePrism(desk, "50", kHigh);
  desk.Pick("cmbforma", "Trapezoidal");
  desk.Leave();
}

struct TiltRow {
  const char* tilt;
  double depth, rear;
  const char* txtp;
  const char* txtld;
};

constexpr TiltRow kTilts[] = {{"7.5", 24.968876634693626, 30.265885044585865, "25", "30.3"},
                              {"10", 25.9686403635361, 27.682371089591278, "26", "27.7"},
                              {"20", 34.500675355599896, 11.725877203364107, "34.5", "11.7"}};

TEST(Tilt, PickedOneComputesDepthAndRearSide) {
  for (const TiltRow& row : kTilts) {
    BoxDesk desk;
    MakeTrapezoid(desk);
    desk.Pick("cmbgradi", row.tilt);
    ExpectNumbers(desk,
                  {{"DepthPrismTrapez", row.depth}, {"WidthRearPrism", row.rear}, {"DepthPrism", 22.840995291570394}});
    ExpectTexts(desk, {{"txtp", row.txtp}, {"txtld", row.txtld}});
    EXPECT_EQ(desk.sheet.LastTilt, std::stod(row.tilt));
    EXPECT_TRUE(desk.state.DimEditing);  // the click leaves it to the leaving
    desk.Leave();
    EXPECT_FALSE(desk.state.DimEditing);
  }
}

TEST(Tilt, TypedOneComputesOnLeaving) {
  BoxDesk desk;
  MakeTrapezoid(desk);
  desk.Set("cmbgradi", "14.25");
  EXPECT_EQ(desk.Text("txtp"), "28.7");
  desk.Leave();
  ExpectNumbers(desk, {{"DepthPrismTrapez", 28.237835614984803}, {"WidthRearPrism", 22.497321681035807}});
  ExpectTexts(desk, {{"txtp", "28.2"}, {"txtld", "22.5"}, {"cmbgradi", "14.25"}});
  EXPECT_EQ(desk.sheet.LastTilt, 14.25);
  EXPECT_FALSE(desk.state.DimEditing);
}

TEST(Tilt, ChangeMarksProjectAndDimensionsAsEdited) {
  BoxDesk desk;
  MakeTrapezoid(desk);
  desk.state.ProjectModified = false;
  EXPECT_FALSE(desk.state.DimEditing);
  desk.Set("cmbgradi", "12");
  EXPECT_TRUE(desk.state.ProjectModified);
  EXPECT_TRUE(desk.state.DimEditing);
}

TEST(Tilt, LeavingUneditedComputesNothing) {
  BoxDesk desk;
  MakeTrapezoid(desk);
  desk.state.txtp = "marker";
  desk.Focus("cmbgradi");
  desk.Leave();
  EXPECT_EQ(desk.Text("txtp"), "marker");
}

TEST(Tilt, GettingTheFocusRemembersOneAboveZero) {
  BoxDesk desk;
  MakeTrapezoid(desk);
  desk.state.cmbgradi = "11";
  desk.Focus("cmbgradi");
  EXPECT_EQ(desk.sheet.LastTilt, 11);
  desk.Leave();
  desk.state.cmbgradi = "";
  desk.Focus("cmbgradi");
  EXPECT_EQ(desk.sheet.LastTilt, 11);
}

TEST(Tilt, OfATrapezoidIsRememberedWhateverItsSign) {
  // A negative tilt can be pasted: the walls lean outward. The focus remembers what is above 0, the shape any tilt.
  BoxDesk desk;
  MakePrism(desk, "50", kHigh);
  desk.state.cmbgradi = "-5";
  desk.Pick("cmbforma", "Trapezoidal");
  EXPECT_EQ(desk.sheet.LastTilt, -5);
}

TEST(Tilt, ZeroHoldsTheFocus) {
  BoxDesk desk;
  MakeTrapezoid(desk);
  desk.Set("cmbgradi", "0");
  EXPECT_EQ(desk.Leave().held, &desk["cmbgradi"]);
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Please enter a non zero value\" [OK] -> OK\n");
}

TEST(Tilt, TooLargeAPickReturnsToTheLastOne) {
  BoxDesk desk;
  MakeTrapezoid(desk);
  desk.Pick("cmbgradi", "25");
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"The value of the angle is too high.\" [OK] -> OK\n");
  ExpectTexts(desk, {{"cmbgradi", "15"}, {"txtp", "28.7"}, {"txtld", "21.4"}});
  ExpectNumbers(desk, {{"DepthPrismTrapez", 28.742472052332314}});
}

TEST(Tilt, TypedTooLargeWithinThirtyDegreesReturnsToTheLastOneAndIsDone) {
  BoxDesk desk;
  MakeTrapezoid(desk);
  desk.Enter("cmbgradi", "25");
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"The value of the angle is too high.\" [OK] -> OK\n");
  ExpectTexts(desk, {{"cmbgradi", "15"}, {"txtp", "28.7"}, {"txtld", "21.4"}});
  EXPECT_EQ(desk.sheet.LastTilt, 15);
  EXPECT_FALSE(desk.state.DimEditing);
}

TEST(Tilt, TooLargeIsToldInItalian) {
  BoxDesk desk(Language::Italian);
  desk.DesignClosedBox();
  EXPECT_EQ(ProfonditaTrapezio(desk.program, kPlan, kFront, 23), -1);
  EXPECT_EQ(desk.TakeOut(), "message stop \"Errore\" \"Il valore dell'angolo è troppo elevato\" [OK] -> OK\n");
}

/// A shallow box: 60 x 55 cm and 15.2 cm deep, wide enough for tilts up to 44 degrees.
void MakeShallowTrapezoid(BoxDesk& desk) {
  MakePrism(desk, "50", kHigh);
  desk.state.WidthPrism = 60;
  desk.state.HeightPrism = 55;
  desk.state.txtl = "60";
  desk.state.txth = "55";
  desk.state.txtp = "15.2";
  desk.Pick("cmbforma", "Trapezoidal");
  desk.Leave();
}

// S = 50000 / 55 = 909.0909, L = 60, by python.
TEST(Tilt, ThirtyDegreesAreAccepted) {
  BoxDesk desk;
  MakeShallowTrapezoid(desk);
  desk.Enter("cmbgradi", "30");
  EXPECT_EQ(desk.Text("cmbgradi"), "30");
  EXPECT_EQ(desk.sheet.LastTilt, 30);
  ExpectNumbers(desk, {{"DepthPrismTrapez", 18.414417693781417}, {"WidthRearPrism", 38.736861975050218}});
}

TEST(Tilt, MoreThanThirtyDegreesShowFifteenAndComputeAsTyped) {
  BoxDesk desk;
  MakeShallowTrapezoid(desk);
  desk.Enter("cmbgradi", "30.5");
  EXPECT_EQ(desk.Text("cmbgradi"), "15");
  EXPECT_EQ(desk.sheet.LastTilt, 15);
  EXPECT_FALSE(desk.state.DimEditing);
  ExpectNumbers(desk, {{"DepthPrismTrapez", 18.518106347824514}, {"WidthRearPrism", 38.184003484536433}});
  ExpectTexts(desk, {{"txtp", "18.5"}, {"txtld", "38.2"}});
  EXPECT_EQ(desk.TakeOut(), "");
}

TEST(Tilt, FarTooManyDegreesReturnToTheLastOne) {
  BoxDesk desk;
  MakeTrapezoid(desk);
  desk.Pick("cmbgradi", "10");
  desk.Enter("cmbgradi", "40");
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"The value of the angle is too high.\" [OK] -> OK\n");
  EXPECT_EQ(desk.Text("cmbgradi"), "10");
  EXPECT_TRUE(desk.state.DimEditing);
  ExpectNumbers(desk, {{"DepthPrismTrapez", 25.9686403635361}});
}

TEST(Tilt, EmptyOneEndsTheProgramInGoodOrder) {
  // It reads as 0, which is outside: the depth is computed with it, and a prism has no such root.
  BoxDesk desk;
  MakeTrapezoid(desk);
  desk.Enter("cmbgradi", "");
  EXPECT_EQ(desk.program.run, RunState::EndedByFailure);
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Division by zero\" [OK] -> OK\nended error\n");
}

struct RearRow {
  const char* rear;
  double depth;    // cm: 2 S / (L + LD)
  double degrees;  // tan⁻¹((L − LD) / 2 P)
  const char* txtp;
  const char* tilt;
};

constexpr RearRow kRears[] = {{"10", 35.771886471797117, 20.564048997953577, "35.8", "20.56"},
                              {"20", 29.478486007645269, 15.941321972311384, "29.5", "15.94"},
                              {"30", 25.068200686033375, 7.7691297582068346, "25.1", "7.77"},
                              {"36.8", 22.753384885795423, 0.050758996504650301, "22.8", "0.05"}};

TEST(RearSide, SetsDepthAndTilt) {
  for (const RearRow& row : kRears) {
    BoxDesk desk;
    MakeTrapezoid(desk);
    desk.Enter("txtld", row.rear);
    ExpectNumbers(desk, {{"WidthRearPrism", std::stod(row.rear)}, {"DepthPrismTrapez", row.depth}});
    ExpectTexts(desk, {{"txtp", row.txtp}, {"cmbgradi", row.tilt}, {"txtld", row.rear}});
    EXPECT_NEAR(desk.sheet.LastTilt, row.degrees, 1e-10);
    EXPECT_FALSE(desk.state.DimEditing);
  }
}

TEST(RearSide, AsWideAsTheFrontGivesFifteenDegrees) {
  for (const char* const rear : {"36.9", "50"}) {
    BoxDesk desk;
    MakeTrapezoid(desk);
    desk.Pick("cmbgradi", "10");
    desk.Enter("txtld", rear);
    ExpectNumbers(desk, {{"DepthPrismTrapez", 28.754708549223821}, {"WidthRearPrism", 21.430713117690232}});
    ExpectTexts(desk, {{"cmbgradi", "15"}, {"txtp", "28.8"}, {"txtld", "21.4"}});
    EXPECT_EQ(desk.sheet.LastTilt, 15);
    EXPECT_FALSE(desk.state.DimEditing);
  }
}

TEST(RearSide, EqualToTheFrontIsNoRectangle) {
  BoxDesk desk;
  MakeTrapezoid(desk);
  desk.state.WidthPrism = 36;
  desk.Enter("txtld", "36");
  EXPECT_EQ(desk.Text("cmbgradi"), "15");
  EXPECT_LT(desk.state.WidthRearPrism, 36);
}

TEST(RearSide, IsTakenButComputesNothingWhenUnedited) {
  BoxDesk desk;
  MakeTrapezoid(desk);
  desk.state.txtp = "marker";
  desk.Focus("txtld");
  desk.Leave();
  EXPECT_EQ(desk.Text("txtp"), "marker");
  EXPECT_EQ(desk.state.WidthRearPrism, 21.4);  // as the field shows it
}

TEST(RearSide, ZeroIsGivenBackTheFocus) {
  BoxDesk desk;
  MakeTrapezoid(desk);
  desk.Set("txtld", "0");
  EXPECT_EQ(desk.Leave().held, &desk["txtld"]);
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Please enter a non zero value\" [OK] -> OK\n");
  ExpectNumbers(desk, {{"WidthRearPrism", 21.437270636610755}});
}

TEST(RearSide, ChangeMarksProjectAndDimensionsAsEdited) {
  BoxDesk desk;
  MakeTrapezoid(desk);
  desk.state.ProjectModified = false;
  desk.Set("txtld", "20");
  EXPECT_TRUE(desk.state.ProjectModified);
  EXPECT_TRUE(desk.state.DimEditing);
}

TEST(RearSide, TooWideInANarrowPlanReturnsToTheTiltOfFifteen) {
  BoxDesk desk;
  MakeTrapezoid(desk);
  desk.Pick("cmbgradi", "10");
  desk.Leave();
  desk.state.HeightPrism = 20;  // 2500 cm² behind 36.8 cm: no 15 degrees fit
  desk.Enter("txtld", "40");
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"The value of the angle is too high.\" [OK] -> OK\n");
  EXPECT_EQ(desk.Text("cmbgradi"), "15");
  ExpectNumbers(desk, {{"DepthPrismTrapez", 25.9686403635361}, {"WidthRearPrism", 40}});
}

TEST(Proportions, AreRoundedAndJoinedByTwoBlanks) {
  // 50^0.333333 = 3.68402 for litres and dm; the power is not quite a third
  EXPECT_EQ(Proporzioni(50, 3.684, 4.605, 2.947), "1  1.2  0.8");
  EXPECT_EQ(Proporzioni(50000, 36.8, 59.7, 22.8), "1  1.6  0.6");
  EXPECT_EQ(Proporzioni(8, 2, 4.5, 0.2), "1  2.3  0.1");  // 4.5 / 1.9999986 = 2.2500016, just above the half
}

}  // namespace
}  // namespace zefirondo
