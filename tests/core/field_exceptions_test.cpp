// What the rules of the fields leave alone, how the leading 0 and a selection go together, and the Italian words.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "core/fields.h"
#include "core/focus.h"
#include "support/desk.h"

namespace zefirondo {
namespace {

using Names = std::vector<std::string_view>;

const std::string kNotANumber = "message stop \"Error\" \"Warning: Inputs must be a number\" [OK] -> OK\n";

bool Among(const Names& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

/// Every field of the sheet in turn, on a shown page, with the focus on it and this text in it.
template <class Check>
void WithEachField(const std::string& text, Check check) {
  Desk reference;
  for (const Control* const listed : reference.sheet.window.controls) {
    if (!listed->IsField()) continue;
    Desk desk;
    desk.DesignVented();
    Control& field = desk[listed->name];
    for (Control* frame = &field; frame != nullptr; frame = frame->parent) frame->visible = frame->enabled = true;
    field.locked = false;
    desk.program.focus = nullptr;
    *field.text = text;
    field.selection_start = field.selection_length = 0;
    desk.state.FieldBefore = "before";
    desk.TakeOut();
    desk.Focus(listed->name);
    ASSERT_EQ(desk.program.focus, &field) << listed->name;
    check(desk, field);
  }
}

TEST(GettingTheFocus, SelectsInTheseFieldsAlone) {
  const Names selecting{
      "txtbl",     "txtcommento",   "txtd",       "txtdatacreaz", "txtdatifor",     "txtdiambob",   "txtesterno",
      "txtforo",   "txtfs",         "txthg",      "txtimpedenza", "txtlagmagne",    "txtld",        "txtle",
      "txtmarca",  "txtmodello",    "txtpotenza", "txtpressione", "txtproduttore",  "txtprof",      "txtprofmag",
      "txtqmesin", "txtrendimento", "txtrvc",     "txtsd",        "txtsensibilita", "txtspesbordo", "txttemperatura",
      "txtxmax",   "txtzmax",       "txtb",       "txtingombro",  "txtlungmis",     "txtvolnetto",  "txtmms",
      "txtqes",    "txtqts",        "txtvas"};
  WithEachField("12", [&](Desk&, const Control& field) {
    EXPECT_EQ(field.selection_length, Among(selecting, field.name) ? 2U : 0U) << field.name;
  });
}

TEST(GettingTheFocus, RemembersInTheseFieldsAlone) {
  const Names remembering{"txtb", "txtingombro", "txtlungmis", "txtvolnetto", "txtp", "cmballi", "cmbql", "cmbDoa"};
  WithEachField("12", [&](const Desk& desk, const Control& field) {
    EXPECT_EQ(desk.state.FieldBefore, Among(remembering, field.name) ? "12" : "before") << field.name;
  });
}

TEST(Keys, AreFilteredInTheseFieldsAlone) {
  const Names free{"txtproduttore", "txtmarca", "txtmodello", "txtdatifor", "txtdatacreaz", "txtcommento", "cmbforma",
                   "cmbrappo",
                   // results that nobody types into
                   "txtbw", "txtfl", "txtfh", "txtzmin", "txtqmes", "txtlces", "txtcmes", "txtrmes", "txtcms", "txtrms",
                   "txtcas", "txtmas", "txtras", "txtvolume", "txtvoloccu", "txtvolappa", "txtfb", "txtfstrasdu",
                   "txtfreriso", "txtboxvolume", "txtseztot", "txtminsv", "txtvelocita"};
  WithEachField("", [&](Desk& desk, Control& field) {
    field.text->clear();  // the volume of the transducer computes itself on getting the focus
    desk.Type(field.name, "x");
    EXPECT_EQ(*field.text, Among(free, field.name) ? "x" : "") << field.name;
    EXPECT_EQ(desk.TakeOut(), Among(free, field.name) ? "" : kNotANumber) << field.name;
  });
}

TEST(LeavingTest, HoldsAnEmptyTextInTheseFieldsAlone) {
  const Names holding{"txtbl",       "txtdiambob",   "txtesterno", "txtforo",        "txtfs",
                      "txtlagmagne", "txtprof",      "txtprofmag", "txtqmesin",      "txtspesbordo",
                      "txtvas",      "txtimpedenza", "txtpotenza", "txtsensibilita", "txtxmax",
                      "txtmms",      "txtqes",       "txtqts",     "txtzmax",        "txtrvc"};
  WithEachField("", [&](Desk& desk, const Control& field) {
    // The area is content with the diameter that the design has.
    EXPECT_EQ(desk.Leave().held != nullptr, Among(holding, field.name)) << field.name;
  });
}

TEST(LeavingTest, GoesByTheReadingAndNotByTheText) {
  for (const auto& [text, held] : {std::pair{"0.0", true}, {"x5", true}, {"5x", false}, {" 5", false}, {"-5", false}}) {
    Desk desk;
    desk.BeginParameters();
    desk.Tab("par");
    *desk["txtfs"].text = text;
    EXPECT_EQ(desk.Leave().held != nullptr, held) << text;
  }
}

// ---- the leading 0 ----

/// A new project at its nominal power, which holds a lone 0.
class LoneZero : public testing::Test {
 protected:
  void SetUp() override {
    desk.BeginParameters();
    *desk["txtpotenza"].text = "0";
    desk.Focus("txtpotenza");
  }
  Desk desk;
};

TEST_F(LoneZero, IsKeptWhenItIsTypedOver) {
  EXPECT_EQ(desk["txtpotenza"].selection_length, 1U);
  desk.Type("txtpotenza", "5");
  EXPECT_EQ(desk.Text("txtpotenza"), "0");
  EXPECT_EQ(desk.TakeOut(), kNotANumber);
}

TEST_F(LoneZero, GivesWayToAPointTypedOverIt) {
  desk.Type("txtpotenza", ".5");
  EXPECT_EQ(desk.Text("txtpotenza"), ".5");
  EXPECT_EQ(desk.TakeOut(), "");
}

TEST_F(LoneZero, RejectsEnterToo) {
  desk["txtpotenza"].selection_length = 0;
  desk["txtpotenza"].selection_start = 1;
  PressKey(desk.program, 13);
  // No character comes of Enter, so the queued backspace takes the 0 itself.
  EXPECT_EQ(desk.Text("txtpotenza"), "");
  EXPECT_EQ(desk.TakeOut(), kNotANumber);
  EXPECT_EQ(desk.program.focus, &desk["txtpotenza"]);
}

TEST_F(LoneZero, RejectsACommaBeforeItBecomesAPoint) {
  desk["txtpotenza"].selection_length = 0;
  desk["txtpotenza"].selection_start = 1;
  PressKey(desk.program, ',');
  EXPECT_EQ(desk.Text("txtpotenza"), "0");
  EXPECT_EQ(desk.TakeOut(), kNotANumber);
}

TEST_F(LoneZero, IsTheExactTextOnly) {
  for (const char* const text : {"00", "0.", " 0"}) {
    *desk["txtpotenza"].text = text;
    desk["txtpotenza"].selection_length = 0;
    desk["txtpotenza"].selection_start = 2;
    PressKey(desk.program, '5');
    EXPECT_EQ(desk.Text("txtpotenza"), std::string(text) + "5");
  }
  EXPECT_EQ(desk.TakeOut(), "");
}

TEST(Point, IsLookedForInTheWholeTextEvenWhenItIsSelected) {
  Desk desk;
  desk.BeginParameters();
  *desk["txtpotenza"].text = "1.5";
  desk.Focus("txtpotenza");
  desk.Type("txtpotenza", ".");
  EXPECT_EQ(desk.Text("txtpotenza"), "1.5");
  EXPECT_EQ(desk.TakeOut(), kNotANumber);
}

TEST(Minus, CanBePastedThoughNotTyped) {
  Desk desk;
  desk.BeginParameters();
  desk.Set("txtpotenza", "-5");
  EXPECT_EQ(desk.Text("txtpotenza"), "-5");
  EXPECT_EQ(desk.TakeOut(), "");
}

TEST(TypingIntoZmax, WithAZeroOfItsOwnIsRefusedOnLeaving) {
  Desk desk;
  desk.BeginImpedance();
  desk.Tab("par");
  desk.Type("txtzmax", "0");
  EXPECT_EQ(desk.Leave().held, &desk["txtzmax"]);
}

// ---- the other language ----

TEST(FieldMessages, AreItalianToo) {
  Desk desk(Language::Italian);
  desk.BeginParameters();
  desk.Type("txtpotenza", "x");
  EXPECT_EQ(desk.TakeOut(), "message stop \"Errore\" \"Attenzione! Immettere un valore numerico\" [OK] -> OK\n");
  desk.Leave();
  EXPECT_EQ(desk.TakeOut(), "message stop \"Errore\" \"Immettere un valore diverso da zero\" [OK] -> OK\n");
}

TEST(FieldMessages, OfAnIntegerAreItalianToo) {
  Desk desk(Language::Italian);
  desk.Begin();
  desk.Choose("mdithsm.mnuopzioni");
  desk.Type("frmopzioni.txtspessore", "x");
  EXPECT_EQ(desk.TakeOut(), "message stop \"Errore\" \"Attenzione! Immettere un valore numerico intero\" [OK] -> OK\n");
}

TEST(ShapeOnLeaving, GoesByTheLanguageOfTheProgram) {
  for (const auto& [typed, left] : {std::pair{"Trapezoidale", "Trapezoidale"},
                                    {"Prismatico", "Prismatico"},
                                    {"Trapezoidal", "Prismatico"},
                                    {"Prismatic", "Prismatico"}}) {
    Desk desk(Language::Italian);
    desk.DesignVented();
    desk.Set("cmbforma", typed);
    desk.Leave();
    EXPECT_EQ(desk.Text("cmbforma"), left) << typed;
  }
}

TEST(TwoFormsOfTheCone, InRoundFiguresByHand) {
  // 2000 · √(0.0314159265358979 / π) = 200 mm, and π · (200/2000)² = 0.0314159... m², cut to seven characters.
  Desk desk;
  desk.BeginParameters();
  desk.Tab("par");
  *desk["txtfs"].text = "35";
  desk.Set("txtsd", "0.0314159265358979");
  desk.Leave();
  EXPECT_NEAR(std::stod(desk.Text("txtd")), 200, 1e-4);
  Desk other;
  other.BeginParameters();
  other.Tab("par");
  *other["txtfs"].text = "35";
  other.Set("txtd", "200");
  other.Leave();
  EXPECT_EQ(other.Text("txtsd"), "0.03141");
}

}  // namespace
}  // namespace zefirondo
