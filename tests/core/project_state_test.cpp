// The record: its defaults, who rules over whom, and the mark of a changed project.
#include "core/project_state.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "core/record.h"
#include "support/desk.h"

namespace zefirondo {
namespace {

TEST(ProjectState, StandsWithoutAnyWindow) {
  ProjectState state;
  state.txtfs = "35";
  state.DriversNum = 2;
  state.Vas = 0.1;
  EXPECT_EQ(TransducerFs(state), 35.0);
  EXPECT_EQ(TotalVas(state), 0.2);
}

TEST(ProjectState, ResonanceIsThatOfTheImportOrElseTheTypedOne) {
  ProjectState state;
  state.txtfs = "35.5Hz";
  state.txtzmax = "45";
  EXPECT_EQ(TransducerFs(state), 35.5);
  EXPECT_EQ(TransducerZmax(state), 45.0);
  state.Fs = 33.3;
  state.Zmax = 44.4;
  EXPECT_EQ(TransducerFs(state), 33.3);
  EXPECT_EQ(TransducerZmax(state), 44.4);
}

TEST(ProjectState, NumbersHaveTheirDefaults) {
  Desk desk;
  desk.BeginParameters();
  const ProjectState& s = desk.state;
  EXPECT_EQ(s.Temperature, 25.0);
  EXPECT_EQ(s.Pressure, 101325.0);
  EXPECT_EQ(s.Kinternal, 1.400823478);
  for (const double zero :
       {s.Fs, s.Zmax, s.EBP, s.Qtc, s.Fc, s.Fb, s.F3v, s.Vb, s.Vc, s.VbaClosed, s.VbaVented, s.Vba}) {
    EXPECT_EQ(zero, 0.0);
  }
  EXPECT_EQ(s.DriversNum, 1);
  EXPECT_EQ(s.VentNum, 1);
  EXPECT_EQ(s.SectArea1Vent, 0.003525652);
  EXPECT_EQ(s.Ql, 7.0);
  EXPECT_EQ(s.WooferWiring, "biamp");
  EXPECT_EQ(s.RsAmplifier, 0.1);
  EXPECT_EQ(s.WoodThickness, 18);
}

TEST(ProjectState, SheetFieldsHaveTheirDefaults) {
  Desk desk;
  desk.BeginParameters();
  const std::vector<std::pair<std::string_view, std::string>> defaults{
      {"txtdatacreaz", "20/11/2026"},
      {"cmbnumvc", "1"},
      {"cmballi", "0.707"},
      {"cmbql", "7"},
      {"cmbforma", "Prismatic"},
      {"cmbrappo", "1.62  1  0.62"},
      {"cmbgradi", "15"},
      {"cmbnumcond", "1"},
      {"cmbnumdriver", "1"},
      {"txtingombro", "0"},
      {"cmbk", "1.40"},
  };
  for (const Control* const control : desk.sheet.window.controls) {
    if (control->design.field == nullptr) continue;
    std::string expected;
    for (const auto& [name, text] : defaults) {
      if (name == control->name) expected = text;
    }
    EXPECT_EQ(*control->text, expected) << control->name;
  }
}

TEST(ProjectState, ShapeSpeaksTheLanguageOfTheProgram) {
  Desk desk(Language::Italian);
  desk.BeginParameters();
  EXPECT_EQ(desk.state.cmbforma, "Prismatico");
}

TEST(ProjectState, AFieldIsTheControlsTextItself) {
  Desk desk;
  desk.BeginParameters();
  desk.Set("txtproduttore", "Mill");
  EXPECT_EQ(desk.state.txtproduttore, "Mill");
  desk.state.txtproduttore = "Barn";
  EXPECT_EQ(desk.Text("txtproduttore"), "Barn");
}

TEST(ProjectState, EverySheetFieldIsNamedAfterItsControl) {
  // 14 fields on the page "gen", 24 on "par", 8 on "dim", 26 on the box page and 3 on "imp".
  const std::vector<std::pair<std::string_view, std::string ProjectState::*>> rows{
      {"txtproduttore", &ProjectState::txtproduttore},
      {"txtmarca", &ProjectState::txtmarca},
      {"txtmodello", &ProjectState::txtmodello},
      {"txtdatifor", &ProjectState::txtdatifor},
      {"txtdatacreaz", &ProjectState::txtdatacreaz},
      {"txtcommento", &ProjectState::txtcommento},
      {"txtpotenza", &ProjectState::txtpotenza},
      {"txtimpedenza", &ProjectState::txtimpedenza},
      {"txtsensibilita", &ProjectState::txtsensibilita},
      {"txthg", &ProjectState::txthg},
      {"txtxmax", &ProjectState::txtxmax},
      {"txtrendimento", &ProjectState::txtrendimento},
      {"txtle", &ProjectState::txtle},
      {"cmbnumvc", &ProjectState::cmbnumvc},
      {"txtzmax", &ProjectState::txtzmax},
      {"txtzmin", &ProjectState::txtzmin},
      {"txtfs", &ProjectState::txtfs},
      {"txtfl", &ProjectState::txtfl},
      {"txtfh", &ProjectState::txtfh},
      {"txtrvc", &ProjectState::txtrvc},
      {"txtqmesin", &ProjectState::txtqmesin},
      {"txtbw", &ProjectState::txtbw},
      {"txtbl", &ProjectState::txtbl},
      {"txtd", &ProjectState::txtd},
      {"txtsd", &ProjectState::txtsd},
      {"txtlces", &ProjectState::txtlces},
      {"txtcmes", &ProjectState::txtcmes},
      {"txtrmes", &ProjectState::txtrmes},
      {"txtqmes", &ProjectState::txtqmes},
      {"txtqes", &ProjectState::txtqes},
      {"txtqts", &ProjectState::txtqts},
      {"txtcms", &ProjectState::txtcms},
      {"txtmms", &ProjectState::txtmms},
      {"txtrms", &ProjectState::txtrms},
      {"txtcas", &ProjectState::txtcas},
      {"txtmas", &ProjectState::txtmas},
      {"txtras", &ProjectState::txtras},
      {"txtvas", &ProjectState::txtvas},
      {"txtforo", &ProjectState::txtforo},
      {"txtprof", &ProjectState::txtprof},
      {"txtlagmagne", &ProjectState::txtlagmagne},
      {"txtprofmag", &ProjectState::txtprofmag},
      {"txtesterno", &ProjectState::txtesterno},
      {"txtspesbordo", &ProjectState::txtspesbordo},
      {"txtdiambob", &ProjectState::txtdiambob},
      {"txtvolume", &ProjectState::txtvolume},
      {"cmballi", &ProjectState::cmballi},
      {"cmbql", &ProjectState::cmbql},
      {"cmbforma", &ProjectState::cmbforma},
      {"cmbrappo", &ProjectState::cmbrappo},
      {"cmbgradi", &ProjectState::cmbgradi},
      {"txtl", &ProjectState::txtl},
      {"txth", &ProjectState::txth},
      {"txtp", &ProjectState::txtp},
      {"txtld", &ProjectState::txtld},
      {"txtboxvolume", &ProjectState::txtboxvolume},
      {"cmbnumcond", &ProjectState::cmbnumcond},
      {"txtlungmis", &ProjectState::txtlungmis},
      {"txtlungappa", &ProjectState::txtlungappa},
      {"cmbDoa", &ProjectState::cmbDoa},
      {"txtb", &ProjectState::txtb},
      {"txtareasez", &ProjectState::txtareasez},
      {"txtseztot", &ProjectState::txtseztot},
      {"txtminsv", &ProjectState::txtminsv},
      {"cmbnumdriver", &ProjectState::cmbnumdriver},
      {"txtvolnetto", &ProjectState::txtvolnetto},
      {"txtingombro", &ProjectState::txtingombro},
      {"txtvoloccu", &ProjectState::txtvoloccu},
      {"txtvolappa", &ProjectState::txtvolappa},
      {"txtfb", &ProjectState::txtfb},
      {"txtfstrasdu", &ProjectState::txtfstrasdu},
      {"txtfreriso", &ProjectState::txtfreriso},
      {"cmbk", &ProjectState::cmbk},
      {"txttemperatura", &ProjectState::txttemperatura},
      {"txtpressione", &ProjectState::txtpressione},
      {"txtvelocita", &ProjectState::txtvelocita},
  };
  Desk desk;
  for (const auto& [name, member] : rows) EXPECT_EQ(desk[name].text, &(desk.state.*member)) << name;
}

TEST(StoredBoxTraces, HaveOneElementFromTheCreationOfTheSheet) {
  Desk desk;
  desk.BeginParameters();
  const ProjectState& s = desk.state;
  for (const Curve* const curve : {&s.Set1BoxFreq, &s.Set1BoxDb, &s.Set2BoxFreq, &s.Set2BoxDb}) {
    EXPECT_EQ(*curve, Curve{0.0});
  }
}

TEST(GraphFlags, AreClearedAllSix) {
  ProjectState s;
  s.GrafCassaOpen = s.GrafFaseOpen = s.GrafSplOpen = s.GrafSplMaxOpen = s.GrafEscursioneOpen = s.GrafAirspeedOpen =
      true;
  ClearGraphFlags(s);
  for (const bool flag :
       {s.GrafCassaOpen, s.GrafFaseOpen, s.GrafSplOpen, s.GrafSplMaxOpen, s.GrafEscursioneOpen, s.GrafAirspeedOpen}) {
    EXPECT_FALSE(flag);
  }
}

TEST(Record, GivesItsMembersByName) {
  ProjectState s;
  EXPECT_EQ(std::get<const double*>(FindInRecord(s, "Fs")), &s.Fs);
  EXPECT_EQ(std::get<const std::int16_t*>(FindInRecord(s, "WoodThickness")), &s.WoodThickness);
  EXPECT_EQ(std::get<const std::int32_t*>(FindInRecord(s, "LastSaveError")), &s.LastSaveError);
  EXPECT_EQ(std::get<const bool*>(FindInRecord(s, "ImpedanceMode")), &s.ImpedanceMode);
  EXPECT_EQ(std::get<const std::string*>(FindInRecord(s, "WooferWiring")), &s.WooferWiring);
  EXPECT_EQ(std::get<const Curve*>(FindInRecord(s, "Set2PhaseDeg")), &s.Set2PhaseDeg);
  EXPECT_TRUE(std::holds_alternative<std::monostate>(FindInRecord(s, "txtfs")));
  EXPECT_TRUE(std::holds_alternative<std::monostate>(FindInRecord(s, "")));
}

// ---- the modified mark ----

TEST(MarkModified, SetsTheFlagAndFreesTheSaveEntry) {
  Desk desk;
  desk.BeginParameters();
  EXPECT_FALSE(desk.state.ProjectModified);
  EXPECT_FALSE(desk.sheet.mnusalvadir.enabled);
  MarkModified(desk.program);
  EXPECT_TRUE(desk.state.ProjectModified);
  EXPECT_TRUE(desk.sheet.mnusalvadir.enabled);
}

TEST(MarkModified, IsNotRunByTypingOnThePagesOfTheTransducer) {
  Desk desk;
  desk.BeginParameters();
  desk.Set("txtcommento", "a word");
  desk.FillWoofer();
  desk.Leave();
  EXPECT_FALSE(desk.state.ProjectModified);
}

TEST(MarkModified, IsRunByTheComputation) {
  Desk desk;
  desk.DesignVented();
  EXPECT_TRUE(desk.state.ProjectModified);
}

struct Act {
  const char* name;
  bool closed;
  std::function<void(Desk&)> act;
};

std::ostream& operator<<(std::ostream& out, const Act& act) { return out << act.name; }

class ActThatMarks : public testing::TestWithParam<Act> {};

void Change(Desk& desk, const char* field, const std::string& text) { AssignText(desk.program, desk[field], text); }

void ClickWithText(Desk& desk, const char* combo, const std::string& text) {
  *desk[combo].text = text;
  desk.state.ProjectModified = false;
  desk[combo].on.click(desk.program);
}

void LeaveWithText(Desk& desk, const char* field, const std::string& text) {
  desk.Focus(field);
  *desk[field].text = text;
  desk.state.ProjectModified = false;
  desk.Leave();
}

void LeaveOnSettings(Desk& desk, const char* field, const std::string& text) {
  desk.Tab("imp");
  LeaveWithText(desk, field, text);
}

INSTANTIATE_TEST_SUITE_P(
    BoxPage, ActThatMarks,
    testing::Values(Act{"change of cmballi", true, [](Desk& d) { Change(d, "cmballi", "1.0"); }},
                    Act{"change of cmbforma", false, [](Desk& d) { Change(d, "cmbforma", "Trapezoidal"); }},
                    Act{"change of cmbgradi", false, [](Desk& d) { Change(d, "cmbgradi", "10"); }},
                    Act{"change of cmbrappo", false, [](Desk& d) { Change(d, "cmbrappo", "1.25  1  0.8"); }},
                    Act{"change of txtld", false, [](Desk& d) { Change(d, "txtld", "20"); }},
                    Act{"click of cmballi", true, [](Desk& d) { ClickWithText(d, "cmballi", "1.0"); }},
                    Act{"click of cmbk", false, [](Desk& d) { ClickWithText(d, "cmbk", "1.27(10%)"); }},
                    Act{"click of cmbnumcond", false, [](Desk& d) { ClickWithText(d, "cmbnumcond", "2"); }},
                    Act{"click of cmbql", false, [](Desk& d) { ClickWithText(d, "cmbql", "10"); }},
                    Act{"click of cmbDoa", false, [](Desk& d) { ClickWithText(d, "cmbDoa", "10.4"); }},
                    Act{"leaving txtingombro", false, [](Desk& d) { LeaveWithText(d, "txtingombro", "2"); }},
                    Act{"leaving txtlungmis", false, [](Desk& d) { LeaveWithText(d, "txtlungmis", "12"); }},
                    Act{"leaving txtvolnetto", false, [](Desk& d) { LeaveWithText(d, "txtvolnetto", "40"); }},
                    Act{"leaving txttemperatura", false, [](Desk& d) { LeaveOnSettings(d, "txttemperatura", "20"); }},
                    Act{"leaving txtpressione", false, [](Desk& d) { LeaveOnSettings(d, "txtpressione", "100000"); }},
                    Act{"click of imgforma", false, [](Desk& d) { d.Click("imgforma(0)"); }}));

TEST_P(ActThatMarks, TheProjectAsChanged) {
  Desk desk;
  GetParam().closed ? desk.DesignClosed() : desk.DesignVented();
  desk.state.ProjectModified = false;
  GetParam().act(desk);
  EXPECT_TRUE(desk.state.ProjectModified);
  EXPECT_TRUE(desk.sheet.mnusalvadir.enabled);
}

TEST(LeavingAField, WithTheSameTextMarksNothing) {
  for (const char* const field : {"txtingombro", "txtlungmis", "txtvolnetto"}) {
    Desk desk;
    desk.DesignVented();
    desk.Focus(field);
    desk.state.ProjectModified = false;
    desk.Leave();
    EXPECT_FALSE(desk.state.ProjectModified) << field;
  }
}

TEST(Assigning, ATextThatTheFieldHoldsRunsNoChange) {
  Desk desk;
  desk.BeginParameters();
  Change(desk, "txtld", "20");
  desk.state.ProjectModified = false;
  Change(desk, "txtld", "20");
  EXPECT_FALSE(desk.state.ProjectModified);
}

}  // namespace
}  // namespace zefirondo
