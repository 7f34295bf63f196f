// The numeric fields: which keys they take, and what getting and losing the focus does.
#include "core/fields.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/focus.h"
#include "core/numbers.h"
#include "support/desk.h"

namespace zefirondo {
namespace {

const std::string kNotANumber = "message stop \"Error\" \"Warning: Inputs must be a number\" [OK] -> OK\n";
const std::string kZero = "message stop \"Error\" \"Please enter a non zero value\" [OK] -> OK\n";

/// Where a field stands, so that a test can get to it.
struct Place {
  const char* field;
  const char* page;
};

std::ostream& operator<<(std::ostream& out, const Place& place) { return out << place.field; }

/// A program with the page of a field shown and the field open for typing, whatever the project left it as.
struct OpenField {
  Desk desk;

  explicit OpenField(const Place& place) {
    const std::string page = place.page;
    if (page == "ref") {
      desk.DesignVented();
    } else if (page == "chi") {
      desk.DesignClosed();
    } else {
      desk.BeginParameters();
      if (page != "gen") desk.Tab(page);
    }
    Control& field = desk[place.field];
    field.locked = false;
    field.enabled = field.visible = true;
    desk.program.focus = nullptr;
    desk.TakeOut();
  }

  /// Fills the field without any event.
  void Hold(const char* field, const std::string& text) { *desk[field].text = text; }
};

// ---- keys ----

class StrictField : public testing::TestWithParam<Place> {};

INSTANTIATE_TEST_SUITE_P(
    Sheet, StrictField,
    testing::Values(Place{"txtpotenza", "gen"}, Place{"txtimpedenza", "gen"}, Place{"txtsensibilita", "gen"},
                    Place{"txthg", "gen"}, Place{"txtxmax", "gen"}, Place{"txtrendimento", "gen"},
                    Place{"txtle", "gen"}, Place{"cmbnumvc", "gen"}, Place{"txtfs", "par"}, Place{"txtrvc", "par"},
                    Place{"txtqmesin", "par"}, Place{"txtbl", "par"}, Place{"txtd", "par"}, Place{"txtsd", "par"},
                    Place{"txtqes", "par"}, Place{"txtqts", "par"}, Place{"txtmms", "par"}, Place{"txtvas", "par"},
                    Place{"txtforo", "dim"}, Place{"txtprof", "dim"}, Place{"txtlagmagne", "dim"},
                    Place{"txtprofmag", "dim"}, Place{"txtesterno", "dim"}, Place{"txtspesbordo", "dim"},
                    Place{"txtdiambob", "dim"}, Place{"cmbnumdriver", "ref"}, Place{"txtvolnetto", "ref"},
                    Place{"cmbk", "ref"}, Place{"cmballi", "chi"}, Place{"cmbql", "ref"}, Place{"txtl", "ref"},
                    Place{"txth", "ref"}, Place{"txtp", "ref"}, Place{"txtld", "ref"}, Place{"cmbgradi", "ref"},
                    Place{"cmbnumcond", "ref"}, Place{"txtlungmis", "ref"}, Place{"txtlungappa", "ref"},
                    Place{"cmbDoa", "ref"}, Place{"txtb", "ref"}, Place{"txtareasez", "ref"},
                    Place{"txttemperatura", "imp"}, Place{"txtpressione", "imp"}));

TEST_P(StrictField, TakesDigitsAndOnePoint) {
  OpenField open(GetParam());
  open.Hold(GetParam().field, "");
  open.desk.Type(GetParam().field, "12.5");
  EXPECT_EQ(open.desk.Text(GetParam().field), "12.5");
  EXPECT_EQ(open.desk.TakeOut(), "");
}

TEST_P(StrictField, TakesALetterBackWithAWarning) {
  OpenField open(GetParam());
  open.Hold(GetParam().field, "");
  open.desk.Type(GetParam().field, "12x");
  EXPECT_EQ(open.desk.Text(GetParam().field), "12");
  EXPECT_EQ(open.desk.TakeOut(), kNotANumber);
}

TEST_P(StrictField, TakesNoMinus) {
  OpenField open(GetParam());
  open.Hold(GetParam().field, "");
  open.desk.Type(GetParam().field, "-5");
  EXPECT_EQ(open.desk.Text(GetParam().field), "5");
  EXPECT_EQ(open.desk.TakeOut(), kNotANumber);
}

TEST_P(StrictField, TurnsACommaIntoAPoint) {
  OpenField open(GetParam());
  open.Hold(GetParam().field, "");
  open.desk.Type(GetParam().field, "1,5");
  EXPECT_EQ(open.desk.Text(GetParam().field), "1.5");
  EXPECT_EQ(open.desk.TakeOut(), "");
}

TEST_P(StrictField, RefusesASecondPoint) {
  OpenField open(GetParam());
  open.Hold(GetParam().field, "");
  open.desk.Type(GetParam().field, "1.5.");
  EXPECT_EQ(open.desk.Text(GetParam().field), "1.5");
  EXPECT_EQ(open.desk.TakeOut(), kNotANumber);
}

TEST_P(StrictField, RefusesACommaBehindAPoint) {
  OpenField open(GetParam());
  open.Hold(GetParam().field, "");
  open.desk.Type(GetParam().field, "1.5,");
  EXPECT_EQ(open.desk.Text(GetParam().field), "1.5");
  EXPECT_EQ(open.desk.TakeOut(), kNotANumber);
}

TEST_P(StrictField, LetsOnlyAPointFollowALeadingZero) {
  OpenField open(GetParam());
  open.Hold(GetParam().field, "");
  open.desk.Type(GetParam().field, "05");
  EXPECT_EQ(open.desk.Text(GetParam().field), "0");
  EXPECT_EQ(open.desk.TakeOut(), kNotANumber);
  open.desk.Type(GetParam().field, ".5");
  EXPECT_EQ(open.desk.Text(GetParam().field), "0.5");
  EXPECT_EQ(open.desk.TakeOut(), "");
}

TEST_P(StrictField, TakesBackspaceOnALoneZero) {
  OpenField open(GetParam());
  open.Hold(GetParam().field, "");
  open.desk.Type(GetParam().field, "0\b7");
  EXPECT_EQ(open.desk.Text(GetParam().field), "7");
  EXPECT_EQ(open.desk.TakeOut(), "");
}

TEST(LooseField, OccupiedVolumeMayGoOnBehindALeadingZero) {
  OpenField open({"txtingombro", "ref"});
  open.Hold("txtingombro", "");
  open.desk.Type("txtingombro", "05,x");
  EXPECT_EQ(open.desk.Text("txtingombro"), "05.");
  EXPECT_EQ(open.desk.TakeOut(), kNotANumber);
}

TEST(AnyKeyField, TakesWhateverIsTyped) {
  for (const char* const field :
       {"txtproduttore", "txtmarca", "txtmodello", "txtdatifor", "txtdatacreaz", "txtcommento"}) {
    OpenField open({field, "gen"});
    open.Hold(field, "");
    open.desk.Type(field, "0x,.-");
    EXPECT_EQ(open.desk.Text(field), "0x,.-") << field;
    EXPECT_EQ(open.desk.TakeOut(), "") << field;
  }
}

TEST(RejectedKey, CollapsesTheSelectionSoThatTheTextSurvives) {
  OpenField open({"txtfs", "par"});
  open.Hold("txtfs", "35");
  open.desk.Focus("txtfs");  // selects all
  open.desk.Type("txtfs", "x");
  EXPECT_EQ(open.desk.Text("txtfs"), "35");
  EXPECT_EQ(open.desk["txtfs"].selection_length, 0U);
}

TEST(AcceptedKey, ReplacesTheSelection) {
  OpenField open({"txtfs", "par"});
  open.Hold("txtfs", "35");
  open.desk.Type("txtfs", "4");
  EXPECT_EQ(open.desk.Text("txtfs"), "4");
}

class ZmaxField : public testing::Test {
 protected:
  void SetUp() override {
    desk.BeginImpedance();
    desk.Tab("par");
  }
  Desk desk;
};

TEST_F(ZmaxField, LooksAtXmaxForTheLeadingZero) {
  *desk["txtxmax"].text = "0";
  desk.Type("txtzmax", "45");
  EXPECT_EQ(desk.Text("txtzmax"), "");
  EXPECT_EQ(desk.TakeOut(), kNotANumber + kNotANumber);
}

TEST_F(ZmaxField, TakesDigitsBehindItsOwnZero) {
  *desk["txtxmax"].text = "5";
  desk.Type("txtzmax", "05");
  EXPECT_EQ(desk.Text("txtzmax"), "05");
  EXPECT_EQ(desk.TakeOut(), "");
}

TEST_F(ZmaxField, CollapsesTheSelectionOfXmax) {
  *desk["txtxmax"].text = "0";
  desk["txtxmax"].selection_length = 1;
  desk.Type("txtzmax", "4");
  EXPECT_EQ(desk["txtxmax"].selection_length, 0U);
}

// ---- Enter ----

struct Step {
  const char* field;
  const char* page;
  const char* next;
};

std::ostream& operator<<(std::ostream& out, const Step& step) { return out << step.field; }

class EnterFrom : public testing::TestWithParam<Step> {};

INSTANTIATE_TEST_SUITE_P(
    Sheet, EnterFrom,
    testing::Values(Step{"txtzmax", "par", "txtfs"}, Step{"txtvas", "par", "txtfs"}, Step{"txtfs", "par", "txtrvc"},
                    Step{"txtqes", "par", "txtqts"}, Step{"txtqts", "par", "txtmms"}, Step{"txtmms", "par", "txtvas"},
                    // the others send a Tab, which goes down the form
                    Step{"txtproduttore", "gen", "txtmarca"}, Step{"txtmarca", "gen", "txtmodello"},
                    Step{"txtmodello", "gen", "txtdatifor"}, Step{"txtdatifor", "gen", "txtdatacreaz"},
                    Step{"txtdatacreaz", "gen", "txtcommento"}, Step{"txtpotenza", "gen", "txtimpedenza"},
                    Step{"txthg", "gen", "txtxmax"}, Step{"txtforo", "dim", "txtprof"},
                    Step{"txttemperatura", "imp", "txtpressione"}));

TEST_P(EnterFrom, PassesTheFocusOn) {
  const Step& step = GetParam();
  OpenField open({step.field, step.page});
  open.Hold(step.field, "12");
  open.desk.Type(step.field, "\n");
  ASSERT_NE(open.desk.program.focus, nullptr);
  EXPECT_EQ(open.desk.program.focus->name, step.next);
  EXPECT_EQ(open.desk.Text(step.field), "12");
}

TEST(EnterFromRe, GoesToQms) {
  OpenField open({"txtrvc", "par"});
  open.Hold("txtrvc", "5.6");
  open.desk.Type("txtrvc", "\n");
  EXPECT_EQ(open.desk.program.focus, &open.desk["txtqmesin"]);
}

TEST(EnterFromRe, GoesToTheBandwidthWhenQmsIsReadOnly) {
  OpenField open({"txtrvc", "par"});
  open.Hold("txtrvc", "5.6");
  open.desk["txtqmesin"].locked = true;
  open.desk.Type("txtrvc", "\n");
  EXPECT_EQ(open.desk.program.focus, &open.desk["txtbw"]);
}

TEST(EnterInTheComment, BeginsANewLine) {
  OpenField open({"txtcommento", "gen"});
  open.desk.Type("txtcommento", "a\nb");
  EXPECT_EQ(open.desk.Text("txtcommento"), "a\r\nb");
  EXPECT_EQ(open.desk.program.focus, &open.desk["txtcommento"]);
}

TEST(EnterOnAFieldThatATestHolds, StaysThere) {
  OpenField open({"txtfs", "par"});
  open.desk.Type("txtfs", "\n");
  EXPECT_EQ(open.desk.program.focus, &open.desk["txtfs"]);
  EXPECT_EQ(open.desk.TakeOut(), kZero);
}

// ---- getting the focus ----

class SelectingField : public testing::TestWithParam<Place> {};

INSTANTIATE_TEST_SUITE_P(
    Sheet, SelectingField,
    testing::Values(Place{"txtproduttore", "gen"}, Place{"txtmarca", "gen"}, Place{"txtmodello", "gen"},
                    Place{"txtdatifor", "gen"}, Place{"txtdatacreaz", "gen"}, Place{"txtcommento", "gen"},
                    Place{"txtpotenza", "gen"}, Place{"txtimpedenza", "gen"}, Place{"txtsensibilita", "gen"},
                    Place{"txthg", "gen"}, Place{"txtxmax", "gen"}, Place{"txtrendimento", "gen"},
                    Place{"txtle", "gen"}, Place{"txtzmax", "par"}, Place{"txtfs", "par"}, Place{"txtrvc", "par"},
                    Place{"txtqmesin", "par"}, Place{"txtbl", "par"}, Place{"txtd", "par"}, Place{"txtsd", "par"},
                    Place{"txtmms", "par"}, Place{"txtqes", "par"}, Place{"txtqts", "par"}, Place{"txtvas", "par"},
                    Place{"txtforo", "dim"}, Place{"txtprof", "dim"}, Place{"txtlagmagne", "dim"},
                    Place{"txtprofmag", "dim"}, Place{"txtesterno", "dim"}, Place{"txtspesbordo", "dim"},
                    Place{"txtdiambob", "dim"}, Place{"txtld", "ref"}, Place{"txtb", "ref"},
                    Place{"txtingombro", "ref"}, Place{"txtlungmis", "ref"}, Place{"txtvolnetto", "ref"},
                    Place{"txttemperatura", "imp"}, Place{"txtpressione", "imp"}));

TEST_P(SelectingField, SelectsAsManyCharactersAsItsTrimmedTextHas) {
  OpenField open(GetParam());
  open.Hold(GetParam().field, "12.5  ");
  open.desk.Focus(GetParam().field);
  EXPECT_EQ(open.desk[GetParam().field].selection_start, 0U);
  EXPECT_EQ(open.desk[GetParam().field].selection_length, 4U);
}

class RememberingField : public testing::TestWithParam<Place> {};

INSTANTIATE_TEST_SUITE_P(Sheet, RememberingField,
                         testing::Values(Place{"txtb", "ref"}, Place{"txtingombro", "ref"}, Place{"txtlungmis", "ref"},
                                         Place{"txtvolnetto", "ref"}, Place{"txtp", "ref"}, Place{"cmballi", "chi"},
                                         Place{"cmbql", "ref"}, Place{"cmbDoa", "ref"}));

TEST_P(RememberingField, KeepsItsTextForTheComparisonOnLeaving) {
  OpenField open(GetParam());
  open.Hold(GetParam().field, "12.5");
  open.desk.state.FieldBefore = "before";
  open.desk.Focus(GetParam().field);
  EXPECT_EQ(open.desk.state.FieldBefore, "12.5");
}

TEST(GettingTheFocus, OfAnEmptyPortDiameterRemembersNothing) {
  OpenField open({"cmbDoa", "ref"});
  open.Hold("cmbDoa", "");
  open.desk.state.FieldBefore = "before";
  open.desk.Focus("cmbDoa");
  EXPECT_EQ(open.desk.state.FieldBefore, "before");
}

TEST(GettingTheFocus, OfTheDepthSelectsNothing) {
  OpenField open({"txtp", "ref"});
  open.desk.Focus("txtp");
  EXPECT_EQ(open.desk["txtp"].selection_length, 0U);
}

TEST(GettingTheFocus, OfOtherFieldsRemembersNothing) {
  OpenField open({"txtfs", "par"});
  open.Hold("txtfs", "35");
  open.desk.state.FieldBefore = "before";
  open.desk.Focus("txtfs");
  EXPECT_EQ(open.desk.state.FieldBefore, "before");
}

TEST(GettingTheFocus, OfAReadOnlyResultSelectsNothing) {
  for (const char* const field : {"txtmms", "txtqes", "txtqts", "txtvas"}) {
    OpenField open({field, "par"});
    open.Hold(field, "12.5");
    open.desk[field].locked = true;
    open.desk.Focus(field);
    EXPECT_EQ(open.desk[field].selection_length, 0U) << field;
  }
}

TEST(GettingTheFocus, OfTheTiltRemembersItsNumberWhenAboveZero) {
  OpenField open({"cmbgradi", "ref"});
  open.desk.sheet.LastTilt = 7;
  open.Hold("cmbgradi", "12.5");
  open.desk.Focus("cmbgradi");
  EXPECT_EQ(open.desk.sheet.LastTilt, 12.5);
  open.desk.program.focus = nullptr;
  open.Hold("cmbgradi", "");
  open.desk.Focus("cmbgradi");
  EXPECT_EQ(open.desk.sheet.LastTilt, 12.5);
}

// ---- leaving ----

class NonZeroField : public testing::TestWithParam<Place> {};

INSTANTIATE_TEST_SUITE_P(Sheet, NonZeroField,
                         testing::Values(Place{"txtbl", "par"}, Place{"txtdiambob", "dim"}, Place{"txtesterno", "dim"},
                                         Place{"txtforo", "dim"}, Place{"txtfs", "par"}, Place{"txtlagmagne", "dim"},
                                         Place{"txtprof", "dim"}, Place{"txtprofmag", "dim"}, Place{"txtqmesin", "par"},
                                         Place{"txtspesbordo", "dim"}, Place{"txtvas", "par"},
                                         Place{"txtimpedenza", "gen"}, Place{"txtpotenza", "gen"},
                                         Place{"txtsensibilita", "gen"}, Place{"txtxmax", "gen"},
                                         Place{"txtmms", "par"}, Place{"txtqes", "par"}, Place{"txtqts", "par"},
                                         Place{"txtzmax", "par"}, Place{"txtsd", "par"}, Place{"txtrvc", "par"}));

TEST_P(NonZeroField, HoldsTheFocusWhileItReadsAsZero) {
  for (const char* const text : {"", "0", "0.0", "abc", ".", "0e5"}) {
    OpenField open(GetParam());
    open.desk.Focus(GetParam().field);
    open.Hold(GetParam().field, text);
    const Outcome outcome = open.desk.Leave();
    EXPECT_EQ(outcome.held, &open.desk[GetParam().field]) << text;
    EXPECT_EQ(open.desk.program.focus, &open.desk[GetParam().field]) << text;
    EXPECT_EQ(open.desk.TakeOut(), kZero) << text;
  }
}

TEST_P(NonZeroField, LetsTheFocusGoWithAValue) {
  OpenField open(GetParam());
  open.desk.Focus(GetParam().field);
  open.Hold(GetParam().field, "0.01");
  EXPECT_EQ(open.desk.Leave().held, nullptr);
  EXPECT_EQ(open.desk.program.focus, nullptr);
  EXPECT_EQ(open.desk.TakeOut(), "");
}

TEST(LeavingTest, OfAReadOnlyResultLetsTheFocusGo) {
  for (const char* const field : {"txtmms", "txtqes", "txtqts", "txtzmax"}) {
    OpenField open({field, "par"});
    open.desk.Focus(field);
    open.desk[field].locked = true;
    EXPECT_EQ(open.desk.Leave().held, nullptr) << field;
    EXPECT_EQ(open.desk.TakeOut(), "") << field;
  }
}

TEST(LeavingTest, OfAReadOnlyInputHoldsTheFocusAllTheSame) {
  for (const Place place :
       {Place{"txtvas", "par"}, Place{"txtfs", "par"}, Place{"txtrvc", "par"}, Place{"txtqmesin", "par"},
        Place{"txtbl", "par"}, Place{"txtsd", "par"}, Place{"txtforo", "dim"}, Place{"txtpotenza", "gen"}}) {
    OpenField open(place);
    open.desk.Focus(place.field);
    open.desk[place.field].locked = true;
    EXPECT_EQ(open.desk.Leave().held, &open.desk[place.field]) << place.field;
  }
}

TEST(LeavingTest, OfTheAreaIsContentWithADiameter) {
  OpenField open({"txtsd", "par"});
  open.desk.Focus("txtsd");
  open.Hold("txtd", "210");
  EXPECT_EQ(open.desk.Leave().held, nullptr);
}

TEST(LeavingTest, DoesNotStandBeforeTheReset) {
  OpenField open({"txtfs", "par"});
  open.desk.Focus("txtfs");
  EXPECT_TRUE(open.desk.Click("cmdreset").Done());
  EXPECT_EQ(open.desk.TakeOut(), "");
}

TEST(LeavingTest, StandsBeforeAnotherTab) {
  OpenField open({"txtfs", "par"});
  open.desk.Focus("txtfs");
  EXPECT_EQ(open.desk.Tab("gen").held, &open.desk["txtfs"]);
  EXPECT_EQ(open.desk.sheet.selected_tab, "par");
}

TEST(LeavingTest, DoesNotRunForAMenuEntry) {
  OpenField open({"txtfs", "par"});
  open.desk.Focus("txtfs");
  open.desk.Choose("mnuguida");
  EXPECT_EQ(open.desk.program.focus, &open.desk["txtfs"]);
  EXPECT_EQ(open.desk.TakeOut().substr(0, 4), "help");
}

TEST(LeavingRe, SendsTheFocusToTheForceFactorOnceQmsIsThere) {
  OpenField open({"txtrvc", "par"});
  open.desk.Focus("txtrvc");
  open.Hold("txtrvc", "5.6");
  open.Hold("txtqmesin", "4.2");
  open.desk.Focus("txtqes");
  EXPECT_EQ(open.desk.program.focus, &open.desk["txtbl"]);
}

TEST(LeavingRe, GoesWhereThePersonWantsWithoutQms) {
  OpenField open({"txtrvc", "par"});
  open.desk.Focus("txtrvc");
  open.Hold("txtrvc", "5.6");
  open.desk.Focus("txtqes");
  EXPECT_EQ(open.desk.program.focus, &open.desk["txtqes"]);
}

class ZeroTextField : public testing::TestWithParam<Place> {};

INSTANTIATE_TEST_SUITE_P(Sheet, ZeroTextField,
                         testing::Values(Place{"txthg", "gen"}, Place{"txtle", "gen"}, Place{"txtrendimento", "gen"},
                                         Place{"txtld", "ref"}, Place{"txttemperatura", "imp"},
                                         Place{"txtpressione", "imp"}));

TEST_P(ZeroTextField, GivesTheFocusBackForALoneZero) {
  OpenField open(GetParam());
  open.desk.Focus(GetParam().field);
  open.Hold(GetParam().field, "0");
  open.desk.Leave();
  EXPECT_EQ(open.desk.program.focus, &open.desk[GetParam().field]);
  EXPECT_EQ(open.desk.TakeOut(), kZero);
}

TEST_P(ZeroTextField, LetsAnyOtherTextGo) {
  OpenField open(GetParam());
  open.desk.Focus(GetParam().field);
  open.desk.state.DimEditing = false;
  open.Hold(GetParam().field, "0.0");
  open.desk.Leave();
  EXPECT_EQ(open.desk.program.focus, nullptr);
  EXPECT_EQ(open.desk.TakeOut(), "");
}

TEST(ZeroText, IsTestedAfterTheFocusHasLeftInTheSizesToo) {
  // The test before leaving holds these fields first; when the program itself moves the focus, that test does not
  // run, and the one after it gives the focus back.
  for (const char* const field :
       {"txtdiambob", "txtesterno", "txtforo", "txtlagmagne", "txtprof", "txtprofmag", "txtspesbordo"}) {
    OpenField open({field, "dim"});
    open.desk.Focus(field);
    open.Hold(field, "0");
    GiveFocus(open.desk.program, open.desk["cmdnext1"]);  // disabled: nothing happens
    EXPECT_EQ(open.desk.TakeOut(), "") << field;
    GiveFocus(open.desk.program, open.desk["txtvolume"]);
    EXPECT_EQ(open.desk.program.focus, &open.desk[field]) << field;
    EXPECT_EQ(open.desk.TakeOut(), kZero) << field;
  }
}

// ---- combos on leaving ----

struct ComboRow {
  const char* field;
  const char* page;
  const char* typed;
  const char* left;
};

std::ostream& operator<<(std::ostream& out, const ComboRow& row) { return out << row.field << " " << row.typed; }

class ComboOnLeaving : public testing::TestWithParam<ComboRow> {};

// The design has one transducer, QL 7 and Qtc 0.707.
INSTANTIATE_TEST_SUITE_P(
    Sheet, ComboOnLeaving,
    testing::Values(ComboRow{"cmbnumvc", "gen", "3", "1"}, ComboRow{"cmbnumvc", "gen", "2", "2"},
                    ComboRow{"cmbnumvc", "gen", "", "1"}, ComboRow{"cmbnumvc", "gen", "2.0", "1"},
                    ComboRow{"cmbnumdriver", "ref", "0", "1"}, ComboRow{"cmbnumdriver", "ref", "5", "1"},
                    ComboRow{"cmbnumdriver", "ref", "", "1"}, ComboRow{"cmbnumdriver", "ref", "4", "4"},
                    ComboRow{"cmbforma", "ref", "Round", "Prismatic"},
                    ComboRow{"cmbforma", "ref", "Trapezoidal", "Trapezoidal"},
                    ComboRow{"cmbrappo", "ref", "1  1  1", "1.62  1  0.62"},
                    ComboRow{"cmbrappo", "ref", "1.25  1  0.8", "1.25  1  0.8"},
                    ComboRow{"cmballi", "chi", "0.9", "0.707"}, ComboRow{"cmballi", "chi", "1", "0.707"},
                    ComboRow{"cmballi", "chi", "1.0", "1.0"}, ComboRow{"cmballi", "chi", "0.5", "0.5"},
                    ComboRow{"cmballi", "chi", "1.4", "1.4"}, ComboRow{"cmballi", "chi", "2.0", "2.0"},
                    ComboRow{"cmbql", "ref", "8", "7"}, ComboRow{"cmbql", "ref", "", "7"},
                    ComboRow{"cmbql", "ref", "5", "5"}, ComboRow{"cmbql", "ref", "10", "10"},
                    ComboRow{"cmbql", "ref", "15", "15"}, ComboRow{"cmbql", "ref", "20", "20"}));

TEST_P(ComboOnLeaving, KeepsWhatItKnows) {
  const ComboRow& row = GetParam();
  OpenField open({row.field, row.page});
  open.desk.Focus(row.field);
  open.Hold(row.field, row.typed);
  open.desk.Leave();
  EXPECT_EQ(open.desk.Text(row.field), row.left);
  EXPECT_EQ(open.desk.TakeOut(), "");
}

TEST(ComboOnLeaving, OfQtcAndQlTellsWhetherTheDesignChanged) {
  for (const Place place : {Place{"cmballi", "chi"}, Place{"cmbql", "ref"}}) {
    OpenField open(place);
    open.desk.state.DesignChanged = true;
    open.desk.Focus(place.field);
    open.desk.Leave();
    EXPECT_FALSE(open.desk.state.DesignChanged) << place.field;
    open.desk.Focus(place.field);
    open.Hold(place.field, "5");
    open.desk.Leave();
    EXPECT_TRUE(open.desk.state.DesignChanged) << place.field;
  }
}

TEST(ComboOnLeaving, OfTheShapeAppliesThePrism) {
  OpenField open({"cmbforma", "ref"});
  open.desk.Focus("cmbforma");
  open.desk.sheet.imgbox[0].visible = false;
  open.desk.sheet.imgbox[1].visible = true;
  open.Hold("cmbforma", "Round");
  open.desk.Leave();
  EXPECT_TRUE(open.desk.sheet.imgbox[0].visible);
  EXPECT_FALSE(open.desk.sheet.imgbox[1].visible);
}

TEST(ComboOnLeaving, OfTheRatioProportionsTheBoxAnew) {
  OpenField open({"cmbrappo", "ref"});
  open.desk.Focus("cmbrappo");
  open.Hold("cmbrappo", "Non standard");
  open.Hold("txth", "1");
  open.Hold("txtboxvolume", "27");
  open.desk.Leave();
  // 27 l is a cube of 30 cm: 1.62 of it is 48.6 cm high.
  EXPECT_EQ(open.desk.Text("txth"), "48.6");
}

// ---- what enables `cmdcalcola`, `cmdnext` and `cmdnext1` ----

const std::vector<const char*> kImpedanceFields{"txtzmax", "txtfs", "txtrvc", "txtqmesin", "txtbl"};
const std::vector<const char*> kParameterFields{"txtfs", "txtrvc", "txtqmesin", "txtbl", "txtqes", "txtqts", "txtmms"};

/// Fills the fields one after the other with their change events, `last` at the end; true when the button came on
/// with the last one and not before.
bool ComesOnWith(bool impedance, std::vector<const char*> fields, const char* last, const char* area) {
  Desk desk;
  impedance ? desk.BeginImpedance() : desk.BeginParameters();
  std::erase_if(fields, [&](const char* field) { return std::string_view(field) == last; });
  if (std::string_view(area) != last) fields.push_back(area);
  for (const char* const field : fields) AssignText(desk.program, desk[field], "2");
  if (desk.sheet.cmdcalcola.enabled) return false;
  AssignText(desk.program, desk[last], "2");
  return desk.sheet.cmdcalcola.enabled;
}

TEST(Compute, ComesOnWithTheLastFieldOfAnImpedanceProject) {
  for (const char* const area : {"txtd", "txtsd"}) {
    for (const char* const last : kImpedanceFields)
      EXPECT_TRUE(ComesOnWith(true, kImpedanceFields, last, area)) << last;
    EXPECT_TRUE(ComesOnWith(true, kImpedanceFields, area, area)) << area;
  }
}

TEST(Compute, ComesOnWithTheLastFieldOfEnteredParameters) {
  for (const char* const area : {"txtd", "txtsd"}) {
    for (const char* const last : kParameterFields) {
      EXPECT_TRUE(ComesOnWith(false, kParameterFields, last, area)) << last;
    }
    EXPECT_TRUE(ComesOnWith(false, kParameterFields, area, area)) << area;
  }
}

TEST(Compute, NeedsTheFieldsOfItsOwnKind) {
  Desk impedance;
  impedance.BeginImpedance();
  for (const char* const field : kParameterFields) AssignText(impedance.program, impedance[field], "2");
  AssignText(impedance.program, impedance["txtd"], "2");
  EXPECT_FALSE(impedance.sheet.cmdcalcola.enabled);  // Zmax is missing

  Desk parameters;
  parameters.BeginParameters();
  for (const char* const field : kImpedanceFields) AssignText(parameters.program, parameters[field], "2");
  AssignText(parameters.program, parameters["txtsd"], "2");
  EXPECT_FALSE(parameters.sheet.cmdcalcola.enabled);
}

TEST(Compute, IsTestedByZmaxForAnImpedanceOnly) {
  Desk desk;
  desk.BeginParameters();
  for (const char* const field : kParameterFields) *desk[field].text = "2";
  *desk["txtd"].text = "2";
  AssignText(desk.program, desk["txtzmax"], "2");
  EXPECT_FALSE(desk.sheet.cmdcalcola.enabled);
  AssignText(desk.program, desk["txtqes"], "3");
  EXPECT_TRUE(desk.sheet.cmdcalcola.enabled);
}

TEST(Compute, IsNotTestedByTheResultsOfAnImpedanceProject) {
  Desk desk;
  desk.BeginImpedance();
  for (const char* const field : kImpedanceFields) *desk[field].text = "2";
  *desk["txtd"].text = "2";
  for (const char* const field : {"txtqes", "txtqts", "txtmms", "txtvas"}) AssignText(desk.program, desk[field], "2");
  EXPECT_FALSE(desk.sheet.cmdcalcola.enabled);
}

TEST(Compute, StaysOnWhenAFieldIsEmptiedAgain) {
  Desk desk;
  desk.BeginParameters();
  desk.FillWoofer();
  EXPECT_TRUE(desk.sheet.cmdcalcola.enabled);
  desk.Set("txtmms", "");
  EXPECT_TRUE(desk.sheet.cmdcalcola.enabled);
}

TEST(Next, ComesOnWithTheLastOfTheFourRatings) {
  const std::vector<const char*> ratings{"txtpotenza", "txtimpedenza", "txtsensibilita", "txtxmax"};
  for (const char* const last : ratings) {
    Desk desk;
    desk.BeginParameters();
    for (const char* const field : ratings) {
      if (field != last) desk.Set(field, "8");
    }
    EXPECT_FALSE(desk.sheet.cmdnext.enabled) << last;
    desk.Set(last, "8");
    EXPECT_TRUE(desk.sheet.cmdnext.enabled) << last;
    desk.Set(last, "");
    EXPECT_TRUE(desk.sheet.cmdnext.enabled) << last;
  }
}

TEST(Next, OfThePageOfSizesComesOnWithAnyVolume) {
  Desk desk;
  desk.BeginParameters();
  EXPECT_FALSE(desk.sheet.cmdnext1.enabled);
  AssignText(desk.program, desk["txtvolume"], "1.6");
  EXPECT_TRUE(desk.sheet.cmdnext1.enabled);
}

// ---- diameter and area ----

TEST(DiameterAndArea, TheFirstOneFilledClosesTheOther) {
  OpenField diameter({"txtd", "par"});
  diameter.desk.Set("txtd", "210");
  EXPECT_TRUE(diameter.desk["txtsd"].locked);
  EXPECT_EQ(diameter.desk["txtsd"].back, colour::kGrey);
  EXPECT_FALSE(diameter.desk["txtd"].locked);

  OpenField area({"txtsd", "par"});
  area.desk.Set("txtsd", "0.035");
  EXPECT_TRUE(area.desk["txtd"].locked);
  EXPECT_EQ(area.desk["txtd"].back, colour::kGrey);
  EXPECT_FALSE(area.desk["txtsd"].locked);
}

TEST(DiameterAndArea, EmptyingOneClosesNothing) {
  OpenField open({"txtd", "par"});
  open.Hold("txtd", "210");
  open.desk.Set("txtd", "");
  EXPECT_FALSE(open.desk["txtsd"].locked);
}

TEST(DiameterAndArea, LeavingTheDiameterGivesTheArea) {
  OpenField open({"txtd", "par"});
  open.desk.Set("txtd", "210");
  EXPECT_EQ(open.desk.Text("txtsd"), "");
  open.desk.Leave();
  // π · (210 / 2000)² = 0.0346360... m², cut at seven characters
  EXPECT_EQ(open.desk.Text("txtsd"), "0.03463");
}

TEST(DiameterAndArea, LeavingTheAreaGivesTheDiameter) {
  OpenField open({"txtsd", "par"});
  open.desk.Set("txtsd", "0.035");
  open.desk.Leave();
  // 2000 · sqrt(0.035 / π) = 211.1004... mm
  EXPECT_EQ(open.desk.Text("txtd"), "211.100");
}

TEST(DiameterAndArea, NeitherIsComputedAgainOnceBothAreFilled) {
  OpenField open({"txtd", "par"});
  open.desk.Set("txtd", "210");
  open.desk.Leave();
  open.desk.Set("txtd", "300");
  open.desk.Leave();
  EXPECT_EQ(open.desk.Text("txtsd"), "0.03463");
}

}  // namespace
}  // namespace zefirondo
