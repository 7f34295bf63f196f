// The life of the program and of a project.
#include "core/shell.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "core/events.h"
#include "core/window_life.h"
#include "support/desk.h"

namespace zefirondo {
namespace {

const std::string kQuestion =
    "message question \"Exit\" \"The project has been modified\\n\\nDo you want to save the project?\" [Yes No Cancel] "
    "-> ";
const std::string kNotClosed =
    "message information \"Active Project\" \"This Project has not yet been closed.\\n\\nClose the Project\" [OK] -> "
    "OK\n";

bool IsOpen(Desk& desk, std::string_view window) { return desk.program.FindWindow(window)->open; }

// ---- menus ----

struct EntryRow {
  const char* name;
  const char* menu;  // empty for a menu of the bar itself
  const char* english;
  const char* italian;
};

void ExpectMenus(const char* window, const std::vector<EntryRow>& rows) {
  for (const Language language : {Language::English, Language::Italian}) {
    Desk desk(language);
    desk.BeginParameters();
    std::vector<const Control*> entries;
    for (const Control* const control : desk.program.FindWindow(window)->controls) {
      if (control->IsMenu()) entries.push_back(control);
    }
    ASSERT_EQ(entries.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
      EXPECT_EQ(entries[i]->name, rows[i].name);
      EXPECT_EQ(entries[i]->parent == nullptr ? "" : entries[i]->parent->name, rows[i].menu) << rows[i].name;
      EXPECT_EQ(*entries[i]->text, language == Language::English ? rows[i].english : rows[i].italian) << rows[i].name;
    }
  }
}

TEST(Menus, OfTheFrame) {
  ExpectMenus("mdithsm",
              {{"mdimnufile", "", "&File", "&File"},
               {"mnuuscita", "mdimnufile", "&Exit", "&Uscita"},
               {"mnuparametri", "", "&Project", "&Progetto"},
               {"mnuapriprogetto", "mnuparametri", "&Open", "&Apri"},
               {"mnuthisma", "mnuparametri", "New Project with Imported &Impedance",
                "Nuovo Progetto con &Importazione Impedenza"},
               {"mnuinsmanuale", "mnuparametri", "New Project with Entered &Parameters",
                "Nuovo Progetto con Inserimento &Parametri TS"},
               {"mnuimpostazioni", "", "&Settings", "&Impostazioni"},
               {"mnuopzioni", "mnuimpostazioni", "&Option Project", "Opzioni &Progetto"},
               {"mnucalcola", "", "&Utility", "&Utility"},
               {"mnudelay", "mnucalcola", "&Phase Offset", "Calcola &Phase Offset"},
               {"munindu", "mnucalcola", "&Inductance and Resistance Calculator", "Calcola &Induttanza e Resistenza"},
               {"mnucapa", "mnucalcola", "&Capacitance Calculator", "Calcola &Capacità"},
               {"mnucalcolatrice", "mnucalcola", "&Calculator", "&Calcolatrice"},
               {"mnuinfo", "", "&?", "&?"},
               {"mnuguida", "mnuinfo", "&Help", "&Guida"},
               {"mnuinformazioni", "mnuinfo", "&About Zefirondo", "&Informazioni su Zefirondo"}});
}

TEST(Menus, OfTheSheet) {
  ExpectMenus("frmthsm",
              {{"mnufile", "", "&File", "&File"},
               {"mnuimportadati", "mnufile", "Import &Data Transducer", "Importa &Dati Trasduttore"},
               {"mnuimporta", "mnufile", "Import &Impedance Transducer", "&Importa Impedenza Trasduttore"},
               {"mnusalvadir", "mnufile", "&Save Project", "Sa&lva Progetto"},
               {"mnusalva", "mnufile", "Save &Project as", "Salva &Progetto con Nome"},
               {"mnustampa", "mnufile", "P&rint Project", "&Stampa Progetto"},
               {"mnugrafico", "mnufile", "S&how Impedance ", "&Visualizza Grafico Impedenza"},
               {"mnuesci", "mnufile", "Project &Exit", "&Esci dal Progetto Corrente"},
               {"mnumodifica", "", "&Edit", "&Modifica"},
               {"mnuannullasequenza", "mnumodifica", "Undo Importing &Impedance", "Annulla Importazione &Impedenza"},
               {"mnuannulla", "mnumodifica", "Undo Importing &Data", "Annulla Importazione &Dati"},
               {"mnucalcolatrice", "mnumodifica", "&Calculator", "&Calcolatrice"},
               {"mnuinfo", "", "&?", "&?"},
               {"mnuguida", "mnuinfo", "&Help", "&Guida"},
               {"mnuinformazioni", "mnuinfo", "&About Zefirondo", "&Informazioni su Zefirondo"}});
}

TEST(Menus, OfTheFrameAreGoneWhileTheSheetIsOpen) {
  Desk desk;
  desk.BeginParameters();
  for (const char* const entry : {"mdithsm.mnuapriprogetto", "mdithsm.mnuthisma", "mdithsm.mnuinsmanuale",
                                  "mdithsm.mnuuscita", "mdithsm.mnuopzioni"}) {
    EXPECT_EQ(desk.Choose(entry).refusal, Refusal::Hidden) << entry;
  }
  EXPECT_EQ(&MenuBarWindow(desk.program), &desk.sheet.window);
  desk.Choose("mnuesci");
  EXPECT_EQ(&MenuBarWindow(desk.program), &desk.program.windows.mdithsm.window);
  EXPECT_TRUE(desk.Choose("mdithsm.mnuinsmanuale").Done());
}

TEST(Menus, HelpOpensTheFileInTheFolderOfTheProgram) {
  Desk desk;
  desk.Begin();
  desk.Choose("mdithsm.mnuguida");
  EXPECT_EQ(desk.TakeOut(), "help \"" + (desk.folder.path() / "guida.hlp").string() + "\"\n");
}

TEST(Folders, AreNamedByTheLanguageAndMadeWhenNeeded) {
  Desk english;
  Desk italian(Language::Italian);
  EXPECT_FALSE(std::filesystem::exists(english.folder.path() / "Project"));
  EXPECT_EQ(english.program.Folder(467), english.folder.path() / "Project");
  EXPECT_TRUE(std::filesystem::is_directory(english.folder.path() / "Project"));
  EXPECT_EQ(italian.program.Folder(467), italian.folder.path() / "Progetti");
  EXPECT_EQ(english.program.Folder(469), english.folder.path() / "Response");
  EXPECT_EQ(italian.program.Folder(469), italian.folder.path() / "Tracciati");
  EXPECT_EQ(english.program.Folder(471), english.folder.path() / "Impedances");
  EXPECT_EQ(italian.program.Folder(471), italian.folder.path() / "Impedenze");
  EXPECT_EQ(english.program.Folder(505), english.folder.path() / "Overlay");
}

// ---- start ----

TEST(StartUp, OpensTheFrameAlone) {
  Desk desk;
  desk.Begin();
  EXPECT_TRUE(IsOpen(desk, "mdithsm"));
  EXPECT_EQ(desk.program.windows.mdithsm.window.caption, "Zefirondo");
  EXPECT_FALSE(IsOpen(desk, "frmthsm"));
  EXPECT_EQ(desk.program.run, RunState::Running);
  EXPECT_EQ(desk.TakeOut(), "");
}

TEST(StartUp, SetsTheDefaultsOfTheProgram) {
  Desk desk;
  ProjectState& s = desk.state;
  s.ProjectLoaded = s.AirChanged = s.GrafCassaOpen = s.GrafAirspeedOpen = true;
  s.WooferWiring = "series";
  s.RsAmplifier = 1;
  s.WoodThickness = 25;
  desk.Begin();
  EXPECT_FALSE(s.ProjectLoaded || s.AirChanged || s.GrafCassaOpen || s.GrafAirspeedOpen);
  EXPECT_EQ(s.WooferWiring, "biamp");
  EXPECT_EQ(s.RsAmplifier, 0.1);
  EXPECT_EQ(s.WoodThickness, 18);
}

TEST(StartUp, TiesProjectFilesToTheProgram) {
  Desk desk;
  desk.Begin();
  const auto& store = desk.platform.store;
  ASSERT_EQ(store.size(), 3U);
  EXPECT_EQ(store[0], std::make_pair(std::string("Zefirondo"), std::string("Zefirondo")));
  EXPECT_EQ(store[1], std::make_pair(std::string(".pro"), std::string("Zefirondo")));
  EXPECT_EQ(store[2].first, "Zefirondo\\shell\\open\\command");
  EXPECT_TRUE(store[2].second.ends_with("zefirondo %1")) << store[2].second;
  EXPECT_TRUE(store[2].second.starts_with("/")) << store[2].second;
}

TEST(StartUp, RunsOnAScreenOf1024Pixels) {
  Desk desk(Language::English, 1024);
  desk.Begin();
  EXPECT_EQ(desk.program.run, RunState::Running);
  EXPECT_EQ(desk.TakeOut(), "");
}

TEST(StartUp, EndsOnANarrowerScreenInItalianWhateverTheLanguage) {
  for (const Language language : {Language::English, Language::Italian}) {
    Desk desk(language, 1023);
    desk.Begin();
    EXPECT_EQ(desk.TakeOut(),
              "message stop \"Impostazione Schermo\" \"La risoluzione dello schermo deve essere impostata ad almeno "
              "1024 x 768 Pixel\" [OK] -> OK\nended error\n");
    EXPECT_TRUE(desk.platform.store.empty());
  }
}

TEST(StartUp, OpensTheProjectBeforeItLooksAtTheScreen) {
  Desk desk(Language::English, 1023);
  desk.Begin("missing.pro");
  const std::string out = desk.TakeOut();
  EXPECT_TRUE(out.starts_with("message stop \"Error\" \"The file could not be opened. ")) << out;
  EXPECT_NE(out.find("Impostazione Schermo"), std::string::npos);
}

TEST(StartUp, TakesTheCommandLineAsItStands) {
  Desk desk;
  const std::string quoted = "\"" + desk.folder.Write("design.pro", "").string() + "\"";
  desk.Begin(quoted);
  EXPECT_EQ(desk.state.FilePath, quoted);
  EXPECT_TRUE(desk.TakeOut().starts_with("message stop \"Error\" \"The file could not be opened. "));
}

// ---- new projects ----

TEST(NewProject, ShowsTheFirstPageWithTheMaker) {
  for (const char* const entry : {"mdithsm.mnuthisma", "mdithsm.mnuinsmanuale"}) {
    Desk desk;
    desk.Begin();
    desk.state.HasProjectPath = true;
    EXPECT_TRUE(desk.Choose(entry).Done());
    EXPECT_EQ(desk.program.order.front(), &desk.sheet.window);
    EXPECT_EQ(desk.sheet.selected_tab, "gen");
    EXPECT_EQ(desk.program.focus, &desk["txtproduttore"]);
    EXPECT_FALSE(desk.state.HasProjectPath);
  }
}

TEST(NewProject, WithAnImpedanceLeavesTheDataImportAlone) {
  Desk desk;
  desk.BeginImpedance();
  EXPECT_TRUE(desk.state.ImpedanceMode);
  EXPECT_FALSE(desk.sheet.mnuimporta.enabled);
  EXPECT_TRUE(desk.sheet.mnuimportadati.enabled);
}

TEST(NewProject, WithEnteredParametersHasNoImport) {
  Desk desk;
  desk.Begin();
  desk.state.ImpedanceMode = true;
  desk.Choose("mdithsm.mnuinsmanuale");
  EXPECT_FALSE(desk.state.ImpedanceMode);
  EXPECT_FALSE(desk.sheet.mnuimporta.enabled);
  EXPECT_FALSE(desk.sheet.mnuimportadati.enabled);
}

/// What is read-only by the form itself.
const std::vector<std::string_view> kReadOnlyByDesign{"txtvelocita", "txtvolappa",  "txtvoloccu",   "txtfb",
                                                      "txtfreriso",  "txtfstrasdu", "txtminsv",     "txtseztot",
                                                      "txtlungappa", "txtareasez",  "txtboxvolume", "txtbw"};

template <class Names>
bool Among(const Names& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

TEST(NewProject, WithAnImpedanceLocksWhatTheMeasurementGives) {
  const std::vector<std::string_view> locked{"txtlces", "txtcmes", "txtrmes", "txtqmes", "txtzmin",     "txtqes",
                                             "txtqts",  "txtcms",  "txtmms",  "txtrms",  "txtlungappa", "txtareasez",
                                             "txtcas",  "txtmas",  "txtras",  "txtvas",  "txtfl",       "txtfh"};
  Desk desk;
  desk.BeginImpedance();
  for (const Control* const control : desk.sheet.window.controls) {
    if (!control->IsField()) continue;
    const bool design = Among(kReadOnlyByDesign, control->name);
    EXPECT_EQ(control->locked, design || Among(locked, control->name)) << control->name;
    EXPECT_EQ(control->back == colour::kGrey, design) << control->name;
  }
}

TEST(NewProject, WithEnteredParametersOpensQAndMass) {
  const std::vector<std::string_view> grey{"txtzmax", "txtbw"};
  const std::vector<std::string_view> locked{"txtlces", "txtcmes", "txtrmes",     "txtqmes",    "txtzmin",
                                             "txtcms",  "txtrms",  "txtlungappa", "txtareasez", "txtcas",
                                             "txtmas",  "txtras",  "txtfl",       "txtfh"};
  Desk desk;
  desk.BeginParameters();
  for (const Control* const control : desk.sheet.window.controls) {
    if (!control->IsField()) continue;
    const bool design = Among(kReadOnlyByDesign, control->name);
    const bool is_grey = Among(grey, control->name);
    EXPECT_EQ(control->locked, design || is_grey || Among(locked, control->name)) << control->name;
    EXPECT_EQ(control->back == colour::kGrey, design || is_grey) << control->name;
  }
}

TEST(NewProject, WithEnteredParametersOpensFieldsThatWereClosed) {
  Desk desk;
  desk.BeginParameters();
  for (const char* const name : {"txtqes", "txtqts", "txtmms", "txtvas"}) {
    desk[name].locked = true;
    desk[name].back = colour::kGrey;
  }
  Set_Caselle_inserimento(desk.program);
  for (const char* const name : {"txtqes", "txtqts", "txtmms", "txtvas"}) {
    EXPECT_FALSE(desk[name].locked) << name;
    EXPECT_EQ(desk[name].back, colour::kWindow) << name;
  }
}

TEST(SheetCreation, DisablesWhatNeedsAProject) {
  Desk desk;
  desk.BeginParameters();
  for (const char* const name : {"mnuannulla", "mnuannullasequenza", "mnusalvadir", "mnustampa", "mnugrafico",
                                 "cmdcalcola", "cmdnext", "cmdnext1"}) {
    EXPECT_FALSE(desk[name].enabled) << name;
  }
  for (const char* const name : {"mnusalva", "mnuesci", "mnucalcolatrice", "cmdreset"}) {
    EXPECT_TRUE(desk[name].enabled) << name;
  }
  EXPECT_FALSE(desk["prgbar"].visible);
}

TEST(SheetCreation, StandsAtTheTopLeftWithTheDateOfToday) {
  Desk desk;
  desk.BeginParameters();
  EXPECT_EQ(desk.sheet.window.left, 0.0);
  EXPECT_EQ(desk.sheet.window.top, 0.0);
  EXPECT_EQ(desk.Text("txtdatacreaz"), "20/11/2026");
}

TEST(DateText, HasTwoDigitsForDayAndMonth) { EXPECT_EQ(DateText({3, 4, 2026}), "03/04/2026"); }

TEST(SheetCreation, ResetsTheFlagsOfTheSheet) {
  Desk desk;
  ProjectState& s = desk.state;
  s.DimEditing = s.DataImported = s.DesignChanged = s.FilterComputed = true;
  s.Set1BoxStored = s.Set2BoxStored = s.Set1BoxShown = s.Set2BoxShown = true;
  s.Set1SplStored = s.Set2SplStored = s.Set1SplShown = s.Set2SplShown = true;
  s.Set1PhaseStored = true;  // not among them
  s.SectArea1Vent = 1;
  s.Kinternal = 1;
  desk.BeginParameters();
  EXPECT_FALSE(s.DimEditing || s.DataImported || s.DesignChanged || s.FilterComputed || s.ProjectModified);
  EXPECT_FALSE(s.Set1BoxStored || s.Set2BoxStored || s.Set1BoxShown || s.Set2BoxShown);
  EXPECT_FALSE(s.Set1SplStored || s.Set2SplStored || s.Set1SplShown || s.Set2SplShown);
  EXPECT_TRUE(s.Set1PhaseStored);
  EXPECT_EQ(s.SectArea1Vent, 0.003525652);
  EXPECT_EQ(s.Kinternal, 1.400823478);
}

TEST(SheetCreation, ComesAnewForTheNextProject) {
  Desk desk;
  desk.DesignVented();
  desk.Set("cmbnumcond", "3");
  desk.Tab("imp");
  desk.Set("txttemperatura", "30");
  desk.Leave();
  desk.platform.answers.push_back(Answer::No);
  desk.Choose("mnuesci");
  EXPECT_FALSE(IsOpen(desk, "frmthsm"));
  desk.Choose("mdithsm.mnuinsmanuale");
  EXPECT_EQ(desk.sheet.tabs.size(), 4U);
  EXPECT_EQ(desk.Text("cmbnumcond"), "1");
  EXPECT_EQ(desk.Text("txttemperatura"), "");
  EXPECT_EQ(desk.Text("txtl"), "");
  EXPECT_EQ(desk.state.Temperature, 25.0);
  EXPECT_NEAR(desk.state.Velocity, 346.0310925914028, 1e-10);
  EXPECT_FALSE(desk["txtfs"].locked);
}

// ---- locking the transducer ----

const std::vector<std::string_view> kTransducerFields{
    "txtzmax",    "txtfs",         "txtrvc",     "txtqmesin",    "txtbw",          "txtbl",
    "txtd",       "txtsd",         "txtforo",    "txtprof",      "txtlagmagne",    "txtprofmag",
    "txtesterno", "txtdiambob",    "txtpotenza", "txtimpedenza", "txtsensibilita", "txthg",
    "txtxmax",    "txtrendimento", "txtle",      "cmbnumvc",     "txtspesbordo"};

TEST(LockTransducerFields, ClosesTheFieldsOfTheTransducerOnly) {
  Desk desk;
  desk.BeginImpedance();
  std::map<std::string_view, bool> before;
  for (const Control* const control : desk.sheet.window.controls) before[control->name] = control->locked;
  desk["mnuannulla"].enabled = desk["mnuannullasequenza"].enabled = true;
  LockTransducerFields(desk.program);
  for (const Control* const control : desk.sheet.window.controls) {
    if (control->IsField()) {
      EXPECT_EQ(control->locked, before[control->name] || Among(kTransducerFields, control->name)) << control->name;
    }
  }
  EXPECT_FALSE(desk["mnuannulla"].enabled);
  EXPECT_FALSE(desk["mnuannullasequenza"].enabled);
}

TEST(UnlockTransducerFields, IsTheReverse) {
  Desk desk;
  desk.BeginImpedance();
  LockTransducerFields(desk.program);
  UnlockTransducerFields(desk.program);
  for (const std::string_view field : kTransducerFields) EXPECT_FALSE(desk[field].locked) << field;
  EXPECT_TRUE(desk["txtqes"].locked);
  EXPECT_TRUE(desk["mnuannulla"].enabled);
  EXPECT_TRUE(desk["mnuannullasequenza"].enabled);
}

// ---- reset ----

/// Fills every field of the sheet with "7" without any event, runs an act, and tells what each field holds then.
template <class Act>
std::map<std::string, std::string> FieldsAfter(Desk& desk, Act act) {
  for (Control* const control : desk.sheet.window.controls) {
    if (control->design.field != nullptr) *control->text = "7";
  }
  act();
  std::map<std::string, std::string> texts;
  for (Control* const control : desk.sheet.window.controls) {
    if (control->design.field != nullptr) texts[std::string(control->name)] = *control->text;
  }
  return texts;
}

const std::vector<std::string_view> kEmptiedByReset{
    "txtzmax", "txtfs",  "txtqmesin", "txtbw", "txtlces",  "txtcmes", "txtrmes",    "txtqmes",
    "txtqes",  "txtqts", "txtzmin",   "txtfh", "txtfl",    "txtcms",  "txtmms",     "txtrms",
    "txtcas",  "txtmas", "txtras",    "txtsd", "txtminsv", "txtvas",  "txtvolnetto"};
const std::vector<std::string_view> kKeptOfImportedData{"txtrvc", "txtd", "txtbl"};

TEST(ResetSheet, EmptiesTheParametersAndNothingElse) {
  for (const bool data_imported : {false, true}) {
    Desk desk;
    desk.BeginParameters();
    desk.state.DataImported = data_imported;
    for (const auto& [name, text] : FieldsAfter(desk, [&] { ResetSheet(desk.program); })) {
      std::string expected = "7";
      if (Among(kEmptiedByReset, name)) expected.clear();
      if (Among(kKeptOfImportedData, name) && !data_imported) expected.clear();
      if (name == "txtingombro") expected = "0";
      if (name == "cmballi") expected = "0.707";
      EXPECT_EQ(text, expected) << name << (data_imported ? " with imported data" : "");
    }
  }
}

TEST(ResetSheet, OpensQmsDiameterAndArea) {
  Desk desk;
  desk.BeginParameters();
  for (const char* const name : {"txtqmesin", "txtd", "txtsd"}) {
    desk[name].locked = true;
    desk[name].back = colour::kGrey;
  }
  ResetSheet(desk.program);
  for (const char* const name : {"txtqmesin", "txtd", "txtsd"}) {
    EXPECT_FALSE(desk[name].locked) << name;
    EXPECT_EQ(desk[name].back, colour::kWhite) << name;
  }
}

TEST(ResetSheet, LeavesTheKindOfFieldsButNotTheMode) {
  Desk desk;
  desk.BeginImpedance();
  ResetSheet(desk.program);
  EXPECT_FALSE(desk.state.ImpedanceMode);
  EXPECT_TRUE(desk["txtqes"].locked);
  EXPECT_TRUE(desk["mnuimporta"].enabled);
}

TEST(ResetSheet, BringsTheNumbersBack) {
  Desk desk;
  desk.BeginParameters();
  ProjectState& s = desk.state;
  for (double* const number :
       {&s.Fs,  &s.Zmax,        &s.EBP,       &s.Fc,  &s.Qtc,           &s.Fb,        &s.F3v,       &s.Vb,
        &s.Vc,  &s.VbaClosed,   &s.VbaVented, &s.Vba, &s.SectArea1Vent, &s.Ql,        &s.Kinternal, &s.RsAmplifier,
        &s.F3c, &s.Temperature, &s.Pressure,  &s.roo, &s.Velocity,      &s.WidthPrism}) {
    *number = 3;
  }
  s.DriversNum = s.VentNum = 3;
  s.WoodThickness = 30;
  s.WooferWiring = "series";
  s.ProjectTitle = "title";
  s.DesignChanged = s.ProjectModified = s.ProjectLoaded = s.AirChanged = s.FilterComputed = s.ImpedanceMode = true;
  s.LastSaveError = 32755;
  s.HasProjectPath = true;
  ResetSheet(desk.program);
  for (const double number :
       {s.Fs, s.Zmax, s.EBP, s.Fc, s.Qtc, s.Fb, s.F3v, s.Vb, s.Vc, s.VbaClosed, s.VbaVented, s.Vba}) {
    EXPECT_EQ(number, 0.0);
  }
  EXPECT_EQ(s.DriversNum, 1);
  EXPECT_EQ(s.VentNum, 1);
  EXPECT_EQ(s.SectArea1Vent, 0.003525652);
  EXPECT_EQ(s.Ql, 7.0);
  EXPECT_EQ(s.Kinternal, 1.400823478);
  EXPECT_EQ(s.WooferWiring, "biamp");
  EXPECT_EQ(s.RsAmplifier, 0.1);
  EXPECT_EQ(s.WoodThickness, 18);
  EXPECT_EQ(s.ProjectTitle, "");
  EXPECT_FALSE(s.DesignChanged || s.ProjectModified || s.ProjectLoaded || s.AirChanged || s.FilterComputed ||
               s.ImpedanceMode);
  EXPECT_EQ(s.LastSaveError, 0);
  // The air, the -3 dB frequency of a closed box, the prism and the path of the project stay.
  for (const double number : {s.F3c, s.Temperature, s.Pressure, s.roo, s.Velocity, s.WidthPrism}) {
    EXPECT_EQ(number, 3.0);
  }
  EXPECT_TRUE(s.HasProjectPath);
}

TEST(ResetSheet, ErasesTheCurvesOfTheProject) {
  Desk desk;
  desk.BeginParameters();
  ProjectState& s = desk.state;
  const std::vector<Curve*> erased{&s.ImpFreq,  &s.ImpZ,        &s.BoxFreq,         &s.BoxDb,         &s.SumDb,
                                   &s.SumFreq,  &s.SplFreq,     &s.SplDb,           &s.SplMaxDb,      &s.PhaseFreq,
                                   &s.PhaseDeg, &s.SumPhaseDeg, &s.FilterPhaseFreq, &s.FilterPhaseDeg};
  const std::vector<Curve*> kept{&s.Set1SplFreq,   &s.Set1SplDb,    &s.Set2SplFreq,   &s.Set2SplDb,
                                 &s.Set1PhaseFreq, &s.Set1PhaseDeg, &s.Set2PhaseFreq, &s.Set2PhaseDeg};
  const std::vector<Curve*> recreated{&s.Set1BoxFreq, &s.Set1BoxDb, &s.Set2BoxFreq, &s.Set2BoxDb};
  for (const auto& curves : {erased, kept, recreated}) {
    for (Curve* const curve : curves) *curve = {1, 2, 3};
  }
  ResetSheet(desk.program);
  for (const Curve* const curve : erased) EXPECT_TRUE(curve->empty());
  for (const Curve* const curve : kept) EXPECT_EQ(curve->size(), 3U);
  for (const Curve* const curve : recreated) EXPECT_EQ(*curve, Curve{0.0});
}

TEST(ResetSheet, ClearsAllTwelveTraceFlags) {
  Desk desk;
  desk.BeginParameters();
  ProjectState& s = desk.state;
  const std::vector<bool*> flags{&s.Set1BoxStored,   &s.Set2BoxStored,   &s.Set1BoxShown,   &s.Set2BoxShown,
                                 &s.Set1SplStored,   &s.Set2SplStored,   &s.Set1SplShown,   &s.Set2SplShown,
                                 &s.Set1PhaseStored, &s.Set2PhaseStored, &s.Set1PhaseShown, &s.Set2PhaseShown};
  for (bool* const flag : flags) *flag = true;
  ResetSheet(desk.program);
  for (const bool* const flag : flags) EXPECT_FALSE(*flag);
}

TEST(ResetSheet, ClosesTheWindowsOfTheDesign) {
  Desk desk;
  desk.DesignVented();
  OpenWindow(desk.program, "frmdimensioni");
  EXPECT_TRUE(IsOpen(desk, "frmgrafcassa"));
  ResetSheet(desk.program);
  EXPECT_FALSE(IsOpen(desk, "frmgrafcassa"));
  EXPECT_FALSE(IsOpen(desk, "frmdimensioni"));
  EXPECT_TRUE(IsOpen(desk, "frmthsm"));
}

std::vector<std::string> Keys(const Sheet& sheet) {
  std::vector<std::string> keys;
  for (const TabStripItem& tab : sheet.tabs) keys.push_back(tab.key);
  return keys;
}

const std::vector<std::string> kFixed{"gen", "par", "dim", "imp"};

TEST(ResetSheet, RemovesOneOrTwoBoxTabsAndShowsTheParameters) {
  for (const bool both : {false, true}) {
    Desk desk;
    desk.DesignVented();
    if (both) desk.sheet.InsertBoxTab("chi", "Closed Box");
    EXPECT_EQ(desk.sheet.tabs.size(), both ? 6U : 5U);
    ResetSheet(desk.program);
    EXPECT_EQ(Keys(desk.sheet), kFixed);
    EXPECT_EQ(desk.sheet.selected_tab, "par");
    EXPECT_TRUE(desk["frathsm"].visible);
    EXPECT_FALSE(desk["frabox"].visible);
  }
}

TEST(ResetSheet, WithoutABoxTabStaysOnItsPage) {
  Desk desk;
  desk.BeginParameters();
  desk.Tab("dim");
  ResetSheet(desk.program);
  EXPECT_EQ(desk.sheet.selected_tab, "dim");
  EXPECT_TRUE(desk["frathsm"].visible);  // the page's frame is shown all the same, as wanted
}

TEST(ResetButton, StartsOverAfterAComputation) {
  Desk desk;
  desk.DesignVented();
  desk.Tab("par");
  EXPECT_TRUE(desk.Click("cmdreset").Done());
  EXPECT_EQ(Keys(desk.sheet), kFixed);
  EXPECT_FALSE(desk["txtfs"].locked);
  EXPECT_FALSE(desk.state.ProjectModified);
  EXPECT_EQ(desk.Text("txtpotenza"), "100");
  EXPECT_EQ(desk.Text("txtforo"), "230");
}

// ---- undo ----

const std::vector<std::string_view> kEmptiedByDataUndo{
    "txtrvc",      "txtbl",          "txtd",         "txtmarca",     "txtproduttore", "txtmodello",
    "txtcommento", "txtdatifor",     "txtpotenza",   "txtimpedenza", "txthg",         "txtrendimento",
    "txtxmax",     "txtsensibilita", "txtle",        "txtforo",      "txtprof",       "txtlagmagne",
    "txtprofmag",  "txtesterno",     "txtspesbordo", "txtdiambob",   "txtvolume"};

TEST(UndoDataImport, EmptiesTheDataAndNothingElse) {
  Desk desk;
  desk.BeginImpedance();
  for (const auto& [name, text] : FieldsAfter(desk, [&] { UndoDataImport(desk.program); })) {
    std::string expected = "7";
    if (Among(kEmptiedByDataUndo, name)) expected.clear();
    if (name == "cmbnumvc") expected = "1";
    EXPECT_EQ(text, expected) << name;
  }
}

TEST(UndoDataImport, FreesTheDataImportAndShowsTheFirstPage) {
  Desk desk;
  desk.DesignVented();
  desk.sheet.InsertBoxTab("chi", "Closed Box");
  desk.state.DataImported = true;
  desk["mnuannulla"].enabled = true;
  desk.Choose("mnuannulla");
  EXPECT_FALSE(desk.state.DataImported);
  EXPECT_FALSE(desk["mnuannulla"].enabled);
  EXPECT_TRUE(desk["mnuimportadati"].enabled);
  EXPECT_EQ(Keys(desk.sheet), kFixed);
  EXPECT_EQ(desk.sheet.selected_tab, "gen");
  EXPECT_FALSE(IsOpen(desk, "frmgrafcassa"));
}

TEST(UndoImpedanceImport, IsAResetThatShowsTheFirstPage) {
  Desk desk;
  desk.BeginImpedance();
  desk.Tab("dim");
  desk.state.Fs = 35;
  desk["mnuannullasequenza"].enabled = true;
  *desk["txtbl"].text = "9.5";
  desk.Choose("mnuannullasequenza");
  EXPECT_EQ(desk.state.Fs, 0.0);
  EXPECT_EQ(desk.Text("txtbl"), "");
  EXPECT_EQ(desk.sheet.selected_tab, "gen");
  EXPECT_TRUE(desk["fragenerale"].visible);
  EXPECT_FALSE(desk["frathsm"].visible);
  EXPECT_FALSE(desk["mnuannullasequenza"].enabled);
  EXPECT_TRUE(desk["mnuannulla"].enabled);
}

// ---- leaving a project ----

class LeavingAProject : public testing::TestWithParam<bool> {
 protected:
  void SetUp() override {
    desk.DesignVented();
    desk.TakeOut();
  }
  /// By the menu entry or by the close box.
  void LeaveProject() {
    if (GetParam()) {
      desk.Choose("mnuesci");
    } else {
      CloseBox(desk.program, desk.sheet.window);
    }
  }
  Desk desk;
};

INSTANTIATE_TEST_SUITE_P(Road, LeavingAProject, testing::Bool(),
                         [](const auto& road) { return road.param ? "MenuEntry" : "CloseBox"; });

TEST_P(LeavingAProject, WithoutChangesAsksNothing) {
  desk.state.ProjectModified = false;
  LeaveProject();
  EXPECT_EQ(desk.TakeOut(), "");
  EXPECT_FALSE(IsOpen(desk, "frmthsm"));
  EXPECT_FALSE(IsOpen(desk, "frmgrafcassa"));
}

TEST_P(LeavingAProject, NoLeavesItUnsaved) {
  desk.platform.answers.push_back(Answer::No);
  LeaveProject();
  EXPECT_EQ(desk.TakeOut(), kQuestion + "No\n");
  EXPECT_FALSE(IsOpen(desk, "frmthsm"));
  EXPECT_FALSE(desk.state.ProjectModified);
}

TEST_P(LeavingAProject, CancelStays) {
  desk.platform.answers.push_back(Answer::Cancel);
  LeaveProject();
  EXPECT_EQ(desk.TakeOut(), kQuestion + "Cancel\n");
  EXPECT_TRUE(IsOpen(desk, "frmthsm"));
  EXPECT_TRUE(desk.state.ProjectModified);
}

TEST_P(LeavingAProject, YesSavesByTheDialogEvenWhenThePathIsKnown) {
  const std::filesystem::path file = desk.folder.path() / "kept.pro";
  desk.state.HasProjectPath = true;
  desk.state.ProjectPath = (desk.folder.path() / "other.pro").string();
  desk.platform.answers.push_back(Answer::Yes);
  desk.platform.files.emplace_back(file);
  LeaveProject();
  const std::string out = desk.TakeOut();
  EXPECT_TRUE(out.starts_with(kQuestion + "Yes\ndialog save ")) << out;
  EXPECT_TRUE(std::filesystem::exists(file));
  EXPECT_FALSE(std::filesystem::exists(desk.state.ProjectPath));
  EXPECT_FALSE(IsOpen(desk, "frmthsm"));
}

TEST_P(LeavingAProject, YesWithACancelledDialogStays) {
  desk.platform.answers.push_back(Answer::Yes);
  desk.platform.files.emplace_back(std::nullopt);
  LeaveProject();
  EXPECT_TRUE(IsOpen(desk, "frmthsm"));
  EXPECT_TRUE(desk.state.ProjectModified);
  EXPECT_EQ(desk.state.LastSaveError, 32755);
}

TEST_P(LeavingAProject, YesAfterAnEarlierCancelSavesAndStaysOnce) {
  desk.platform.answers = {Answer::Yes, Answer::Yes};
  desk.platform.files = {std::nullopt, desk.folder.path() / "kept.pro"};
  LeaveProject();
  LeaveProject();
  EXPECT_TRUE(std::filesystem::exists(desk.folder.path() / "kept.pro"));
  EXPECT_TRUE(IsOpen(desk, "frmthsm"));
  EXPECT_FALSE(desk.state.ProjectModified);
  desk.TakeOut();
  LeaveProject();
  EXPECT_EQ(desk.TakeOut(), "");
  EXPECT_FALSE(IsOpen(desk, "frmthsm"));
}

TEST_P(LeavingAProject, ResetsTheRecord) {
  desk.state.ProjectLoaded = desk.state.AirChanged = true;
  desk.platform.answers.push_back(Answer::No);
  LeaveProject();
  EXPECT_FALSE(desk.state.ProjectLoaded || desk.state.AirChanged || desk.state.GrafCassaOpen);
  EXPECT_EQ(desk.state.Vb, 0.0);
  EXPECT_TRUE(desk.state.BoxDb.empty());
  EXPECT_EQ(desk.state.txtpotenza, "");
  EXPECT_EQ(desk.program.focus, nullptr);
}

TEST_P(LeavingAProject, FromATypedTemperatureLeavesNoMarkBehind) {
  desk.state.ProjectModified = false;
  desk.Tab("imp");
  desk.Set("txttemperatura", "30");  // the field keeps the focus, and is not left
  LeaveProject();
  EXPECT_FALSE(IsOpen(desk, "frmthsm"));
  EXPECT_FALSE(desk.state.ProjectModified);
  CloseBox(desk.program, desk.program.windows.mdithsm.window);
  EXPECT_EQ(desk.TakeOut(), "ended\n");
}

TEST(LeavingAnEmptyProject, FromATypedTemperatureLeavesNoMarkBehind) {
  Desk desk;
  desk.BeginParameters();
  desk.Tab("imp");
  desk.Set("txttemperatura", "30");
  desk.Choose("mnuesci");
  EXPECT_FALSE(desk.state.ProjectModified);
  desk.Choose("mdithsm.mnuuscita");
  EXPECT_EQ(desk.TakeOut(), "ended\n");
}

// ---- the frame ----

TEST(ClosingTheFrame, IsRefusedWhileTheProjectIsModified) {
  Desk desk;
  desk.DesignVented();
  desk.TakeOut();
  CloseBox(desk.program, desk.program.windows.mdithsm.window);
  EXPECT_EQ(desk.TakeOut(), kNotClosed);
  EXPECT_EQ(desk.program.run, RunState::Running);
  EXPECT_TRUE(IsOpen(desk, "frmthsm"));
}

TEST(ClosingTheFrame, WithAnOpenProjectWithoutChangesAsksNothing) {
  Desk desk;
  desk.BeginParameters();
  CloseBox(desk.program, desk.program.windows.mdithsm.window);
  EXPECT_EQ(desk.TakeOut(), "ended\n");
  EXPECT_EQ(desk.program.run, RunState::Ended);
}

TEST(ClosingTheFrame, ByItsMenu) {
  Desk desk;
  desk.Begin();
  desk.Choose("mdithsm.mnuuscita");
  EXPECT_EQ(desk.TakeOut(), "ended\n");
}

TEST(ClosingTheFrame, IsTheLastThing) {
  Desk desk;
  desk.Begin();
  desk.Choose("mdithsm.mnuuscita");
  desk.TakeOut();
  desk.Choose("mdithsm.mnuinsmanuale");
  EXPECT_FALSE(IsOpen(desk, "frmthsm"));
  EXPECT_EQ(desk.TakeOut(), "");
}

// ---- what is enabled when ----

const std::vector<const char*> kEntries{"mnuimportadati", "mnuimporta", "mnusalvadir",       "mnustampa",
                                        "mnugrafico",     "mnuannulla", "mnuannullasequenza"};

/// Expects "+" on, "-" off, "." as it was, in the order of `kEntries`, whatever stood before.
template <class Event>
void ExpectEntries(Desk& desk, const std::string& expected, Event event) {
  for (const bool before : {false, true}) {
    for (const char* const entry : kEntries) desk[entry].enabled = before;
    event();
    for (std::size_t i = 0; i < kEntries.size(); ++i) {
      const bool enabled = expected[i] == '.' ? before : expected[i] == '+';
      EXPECT_EQ(desk[kEntries[i]].enabled, enabled) << kEntries[i] << (before ? ", on before" : ", off before");
    }
  }
}

TEST(Entries, AtTheCreationOfTheSheet) {
  Desk desk;
  desk.Begin();
  OpenWindow(desk.program, desk.sheet.window);
  const std::string expected = "++-----";
  for (std::size_t i = 0; i < kEntries.size(); ++i) {
    EXPECT_EQ(desk[kEntries[i]].enabled, expected[i] == '+') << kEntries[i];
  }
}

TEST(Entries, InANewProject) {
  Desk desk;
  desk.Begin();
  OpenWindow(desk.program, desk.sheet.window);
  // Both entries select the tab "gen", which disables the save.
  ExpectEntries(desk, ".--....", [&] { RaiseClick(desk.program, desk["mdithsm.mnuthisma"]); });
  ExpectEntries(desk, "---....", [&] { RaiseClick(desk.program, desk["mdithsm.mnuinsmanuale"]); });
}

TEST(Entries, AfterTheComputation) {
  Desk desk;
  desk.BeginParameters();
  desk.FillWoofer();
  ExpectEntries(desk, "..++.--", [&] {
    desk.platform.answers.push_back(Answer::No);
    RaiseClick(desk.program, desk["cmdcalcola"]);
  });
}

TEST(Entries, AfterOpeningAProject) {
  Desk desk;
  desk.DesignVented();
  const std::filesystem::path file = desk.folder.path() / "design.pro";
  desk.platform.files.emplace_back(file);
  desk.Choose("mnusalva");
  ExpectEntries(desk, "---+...", [&] {
    desk.platform.files.emplace_back(file);
    RaiseClick(desk.program, desk["mdithsm.mnuapriprogetto"]);
  });
}

TEST(Entries, AfterTheModifiedMark) {
  Desk desk;
  desk.BeginParameters();
  ExpectEntries(desk, "..+....", [&] { MarkModified(desk.program); });
}

TEST(Entries, AfterASave) {
  Desk desk;
  desk.DesignVented();
  ExpectEntries(desk, "..-....", [&] {
    desk.platform.files.emplace_back(desk.folder.path() / "design.pro");
    RaiseClick(desk.program, desk["mnusalva"]);
  });
}

TEST(Entries, AfterAFailedSave) {
  Desk desk;
  desk.DesignVented();
  ExpectEntries(desk, ".....+.", [&] {
    desk.platform.files.emplace_back(desk.folder.path() / "missing" / "design.pro");
    RaiseClick(desk.program, desk["mnusalva"]);
  });
}

TEST(Entries, AfterAReset) {
  Desk desk;
  desk.BeginParameters();
  ExpectEntries(desk, ".+---++", [&] { ResetSheet(desk.program); });
}

TEST(Entries, AfterAResetOfAnotherQtc) {
  Desk desk;
  desk.DesignClosed();
  AssignText(desk.program, desk["cmballi"], "1.0");
  ResetSheet(desk.program);
  EXPECT_FALSE(desk["mnusalvadir"].enabled);
  EXPECT_FALSE(desk.state.ProjectModified);
}

TEST(Entries, AfterTheUndoOfTheDataImport) {
  Desk desk;
  desk.BeginImpedance();
  // It selects the tab "gen", which disables the save.
  ExpectEntries(desk, "+.-..-.", [&] { UndoDataImport(desk.program); });
}

TEST(Entries, AfterTheUndoOfTheImpedanceImport) {
  Desk desk;
  desk.BeginImpedance();
  ExpectEntries(desk, ".+---+-", [&] { UndoImpedanceImport(desk.program); });
}

TEST(Entries, OnTheTabs) {
  Desk desk;
  desk.DesignVented();
  for (const char* const key : {"gen", "par", "dim", "imp"}) {
    ExpectEntries(desk, "..-....", [&] { SelectTab(desk.program, key); });
  }
  ExpectEntries(desk, "..+....", [&] { SelectTab(desk.program, "ref"); });
  Desk closed;
  closed.DesignClosed();
  ExpectEntries(closed, "..+....", [&] { SelectTab(closed.program, "chi"); });
}

TEST(Entries, SaveAsIsNeverDisabled) {
  Desk desk;
  desk.DesignVented();
  desk.Tab("gen");
  EXPECT_TRUE(desk.state.ProjectModified);
  EXPECT_FALSE(desk["mnusalvadir"].enabled);
  EXPECT_TRUE(desk["mnusalva"].enabled);
}

}  // namespace
}  // namespace zefirondo
