// The sheet in Italian, the pages that its controls stand on, and what marks the project.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "support/desk.h"

namespace zefirondo {
namespace {

using Rows = std::vector<std::pair<const char*, const char*>>;

TEST(ItalianWords, StandBesideTheFieldsOfTheSheet) {
  const Rows rows{{"txtproduttore", "Produttore"},
                  {"txtmarca", "Marca"},
                  {"txtmodello", "Modello"},
                  {"txtdatifor", "Dati forniti da"},
                  {"txtdatacreaz", "Data creazione"},
                  {"txtcommento", "Commento"},
                  {"txtpotenza", "Potenza RMS"},
                  {"txtimpedenza", "Impedenza nominale"},
                  {"txtsensibilita", "Sensibilità (1W/1m)"},
                  {"txthg", "Altezza traferro"},
                  {"txtxmax", "Escursione massima Xmax"},
                  {"txtrendimento", "Rendimento"},
                  {"txtle", "Induttanza bobina Le"},
                  {"cmbnumvc", "Numero bobine"},
                  {"txtforo", "Diam. foro"},
                  {"txtprof", "Spess. trasduttore"},
                  {"txtlagmagne", "Magnete"},
                  {"txtprofmag", "Spess. Magnete"},
                  {"txtesterno", "Diam. esterno"},
                  {"txtspesbordo", "Bordo"},
                  {"txtdiambob", "Diam. Bobina"},
                  {"txtvolume", "Volume occupato"},
                  {"cmbforma", "Forma"},
                  {"cmbrappo", "Rapporti"},
                  {"txtl", "Larghezza L"},
                  {"txth", "Altezza H"},
                  {"txtp", "Profondità P"},
                  {"txtboxvolume", "Volume box"},
                  {"cmbnumcond", "N° Condotti"},
                  {"txtlungmis", "Lunghezza effettiva"},
                  {"txtlungappa", "Lunghezza appar."},
                  {"txtareasez", "Area sez. 1 cond."},
                  {"txtseztot", "Area sez. totale"},
                  {"txtminsv", "Sez. minima 1 cond"},
                  {"cmbnumdriver", "Num. trasduttori"},
                  {"txtvolnetto", "Vol. netto box"},
                  {"txtingombro", "Vol. ingombro"},
                  {"txtvoloccu", "Vol. trasduttori"},
                  {"txtvolappa", "Vol. apparente"},
                  {"txtfb", "Frequenza box"},
                  {"txtfstrasdu", "Fs trasduttore"},
                  {"txtfreriso", "Frequenza polo"},
                  {"txttemperatura", "Temperatura dell'aria"},
                  {"txtpressione", "Pressione atmosferica"},
                  {"txtvelocita", "Velocità del suono"},
                  // the letters of physics are the same
                  {"txtzmax", "Zmax"},
                  {"txtqmesin", "Qms"},
                  {"txtrvc", "Re"},
                  {"txtrmes", "Res"},
                  {"cmbk", "Gamma=Cp/Cv"}};
  Desk desk(Language::Italian);
  desk.BeginParameters();
  for (const auto& [field, label] : rows) EXPECT_EQ(desk[field].label, label) << field;
}

TEST(ItalianWords, StandOnTheOtherControlsOfTheSheet) {
  const Rows rows{{"fragenerale", "Trasduttore: "},
                  {"frathsm", "Trasduttore: "},
                  {"fradim", "Trasduttore: "},
                  {"frabox", "Trasduttore: "},
                  {"fraspecifiche", "Specifiche generali"},
                  {"fraimpo", "Imposta temperatura e pressione"},
                  {"fraql", "Fattore di perdita del sistema"},
                  {"framisubox", "Misure interne box"},
                  {"fravented", "Condotti d'accordo"},
                  {"fradatiprog", "Dati progetto"},
                  {"cmdnext", "&Avanti"},
                  {"cmdnext1", "&Avanti"},
                  {"cmdcalcola", "&Calcola"},
                  {"cmdreset", "&Reset"},
                  {"lblperdita", "Perdita"},
                  {"lblLD", "Lato dietro LD"},
                  {"lblgradi", "Gradi inclin."},
                  {"lblsezione", "Sezione condotto"},
                  {"lblDoL", "Diametro interno"}};
  Desk desk(Language::Italian);
  desk.BeginParameters();
  EXPECT_EQ(desk.sheet.window.caption, "Progetto calcolo box");
  for (const auto& [control, caption] : rows) EXPECT_EQ(desk.Text(control), caption) << control;
  EXPECT_EQ(desk["cmbgradi"].unit, "Gradi");
}

TEST(ItalianWords, OfTheBoxTabsAndTheShapes) {
  Desk vented(Language::Italian);
  vented.DesignVented();
  EXPECT_EQ(vented.sheet.tabs[3].caption, "Box Reflex");
  EXPECT_EQ(vented.state.BoxSection, "Box Reflex");
  EXPECT_EQ(vented["cmbforma"].list, (std::vector<std::string>{"Prismatico", "Trapezoidale"}));
  Desk closed(Language::Italian);
  closed.DesignClosed();
  EXPECT_EQ(closed.sheet.tabs[3].caption, "Box Chiuso");
  EXPECT_EQ(closed.state.BoxSection, "Box Chiuso");
}

TEST(ItalianWords, TipsAreTheSameInBothLanguages) {
  for (const Language language : {Language::English, Language::Italian}) {
    Desk desk(language);
    EXPECT_EQ(desk["txtvolnetto"].tip, "Funzione associata al tasto destro del mouse");
    EXPECT_EQ(desk["txtp"].tip, "Doppio click per modificare");
  }
}

// ---- pages ----

/// The page frame that a control stands on.
std::string_view PageOf(const Control* control) {
  while (control->parent != nullptr) control = control->parent;
  return control->name;
}

TEST(Pages, HoldTheirFields) {
  struct Page {
    const char* frame;
    std::vector<std::string_view> controls;
  };
  const std::vector<Page> pages{
      {"fragenerale",
       {"txtproduttore", "txtmarca", "txtmodello", "txtdatifor", "txtdatacreaz", "txtcommento", "fraspecifiche",
        "txtpotenza", "txtimpedenza", "txtsensibilita", "txthg", "txtxmax", "txtrendimento", "txtle", "cmbnumvc",
        "cmdnext"}},
      {"frathsm",
       {"txtzmax", "txtzmin", "txtfs",   "txtfl",   "txtfh",   "txtrvc",  "txtqmesin",  "txtbw",    "txtbl",
        "txtd",    "txtsd",   "txtlces", "txtcmes", "txtrmes", "txtqmes", "txtqes",     "txtqts",   "txtcms",
        "txtmms",  "txtrms",  "txtcas",  "txtmas",  "txtras",  "txtvas",  "cmdcalcola", "cmdreset", "prgbar"}},
      {"fradim",
       {"txtforo", "txtprof", "txtlagmagne", "txtprofmag", "txtesterno", "txtspesbordo", "txtdiambob", "txtvolume",
        "cmdnext1"}},
      {"frabox",
       {"cmballi",    "cmbql",      "cmbforma",     "cmbrappo",    "cmbgradi",     "txtl",        "txth",
        "txtp",       "txtld",      "txtboxvolume", "cmbnumcond",  "txtlungmis",   "txtlungappa", "cmbDoa",
        "txtb",       "txtareasez", "txtseztot",    "txtminsv",    "cmbnumdriver", "txtvolnetto", "txtingombro",
        "txtvoloccu", "txtvolappa", "txtfb",        "txtfstrasdu", "txtfreriso",   "cmbk"}},
      {"fraimpo", {"txttemperatura", "txtpressione", "txtvelocita", "cmddefault"}}};
  Desk desk;
  for (const Page& page : pages) {
    for (const std::string_view control : page.controls) EXPECT_EQ(PageOf(&desk[control]), page.frame) << control;
  }
  for (const char* const field :
       {"txtpotenza", "txtimpedenza", "txtsensibilita", "txthg", "txtxmax", "txtrendimento", "txtle", "cmbnumvc"}) {
    EXPECT_EQ(desk[field].parent, &desk["fraspecifiche"]) << field;
  }
}

TEST(Pages, OfTheSettingsShowTheAirAnewAtEachVisit) {
  Desk desk;
  desk.BeginParameters();
  desk.Tab("imp");
  desk.state.Temperature = 21.123456789;
  desk.state.Pressure = 98765.4321;
  desk.Tab("gen");
  desk.Tab("imp");
  EXPECT_EQ(desk.Text("txttemperatura"), "21.1234");
  EXPECT_EQ(desk.Text("txtpressione"), "98765.4");
  EXPECT_EQ(desk.sheet.TempBefore, "21.1234");
  EXPECT_EQ(desk.sheet.PressBefore, "98765.4");
  EXPECT_EQ(desk.state.Temperature, 21.1234);  // what is shown rules
}

TEST(Pages, OfTheParametersTakeTheFocusToFsOnceTheTransducerIsLocked) {
  Desk desk;
  desk.BeginImpedance();
  desk["txtzmax"].locked = true;
  desk.Tab("par");
  EXPECT_EQ(desk.program.focus, &desk["txtfs"]);
}

TEST(ModelName, OfAnEmptyFieldLeavesTwoDashes) {
  Desk desk;
  desk.BeginParameters();
  desk.Focus("txtmodello");
  desk.Leave();
  EXPECT_EQ(desk.Text("frathsm"), "Transducer: --");
  EXPECT_EQ(desk.state.ProjectTitle, "");
}

// ---- the mark of a changed project ----

TEST(ModifiedMark, IsSetByTheChangeOfFiveFieldsAndNoOther) {
  const std::vector<std::string_view> marking{"cmballi", "cmbforma", "cmbgradi", "cmbrappo", "txtld"};
  Desk desk;
  desk.DesignVented();
  for (Control* const field : desk.sheet.window.controls) {
    if (!field->IsField()) continue;
    desk.state.ProjectModified = desk.sheet.mnusalvadir.enabled = false;
    AssignText(desk.program, *field, "3.3");
    const bool marks = std::find(marking.begin(), marking.end(), field->name) != marking.end();
    EXPECT_EQ(desk.state.ProjectModified, marks) << field->name;
    EXPECT_EQ(desk.sheet.mnusalvadir.enabled, marks) << field->name;
  }
}

TEST(ModifiedMark, StaysWhileASelectedPageClosesTheSaveEntry) {
  Desk desk;
  desk.DesignVented();
  for (const char* const key : {"gen", "par", "dim", "imp"}) {
    desk.Tab("ref");
    EXPECT_TRUE(desk["mnusalvadir"].enabled) << key;
    desk.Tab(key);
    EXPECT_FALSE(desk["mnusalvadir"].enabled) << key;
    EXPECT_TRUE(desk["mnusalva"].enabled) << key;
    EXPECT_TRUE(desk.state.ProjectModified) << key;
  }
}

}  // namespace
}  // namespace zefirondo
