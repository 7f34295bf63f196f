#include "core/shell.h"

#include <array>
#include <string>

#include "core/air.h"
#include "core/events.h"
#include "core/focus.h"
#include "core/numbers.h"
#include "core/run_time_error.h"
#include "core/text.h"
#include "core/window_life.h"

#ifndef ZEFIRONDO_INSTALLED_PROGRAM
#define ZEFIRONDO_INSTALLED_PROGRAM "/usr/bin/zefirondo"
#endif

namespace zefirondo {
namespace {

constexpr double kNarrowestScreen = 15360;  // twips: 1024 pixels
constexpr double kDefaultPortArea = 0.003525652;
constexpr std::size_t kLongestCaption = 1000;  // characters
constexpr double kFreeAirFactor = 1.400823478;

void SetOptionDefaults(ProjectState& state) {
  state.WooferWiring = "biamp";
  state.RsAmplifier = 0.1;
  state.WoodThickness = 18;
}

void RecreateStoredBoxTraces(ProjectState& state) {
  for (Curve* const curve : {&state.Set1BoxFreq, &state.Set1BoxDb, &state.Set2BoxFreq, &state.Set2BoxDb}) {
    curve->assign(1, 0.0);
  }
}

void Empty(Program& program, std::initializer_list<Control*> fields) {
  for (Control* const field : fields) AssignText(program, *field, "");
}

void Disable(std::initializer_list<Control*> controls) {
  for (Control* const control : controls) control->enabled = false;
}

void OpenForTyping(Control& field, int back) {
  field.locked = false;
  field.back = back;
}

void frmthsm_Load(Program& program) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  s.Kinternal = kFreeAirFactor;
  s.DimEditing = s.DataImported = false;
  SetStartAir(s);
  Disable({&sheet.mnuannulla, &sheet.mnuannullasequenza, &sheet.mnusalvadir, &sheet.mnustampa, &sheet.mnugrafico,
           &sheet.cmdcalcola, &sheet.cmdnext, &sheet.cmdnext1});
  s.DriversNum = ToInteger(ReadNumber(s.cmbnumdriver));
  s.VentNum = ToInteger(ReadNumber(s.cmbnumcond));
  s.Ql = ReadNumber(s.cmbql);
  s.SectArea1Vent = kDefaultPortArea;
  s.Set1BoxStored = s.Set2BoxStored = s.Set1BoxShown = s.Set2BoxShown = false;
  s.Set1SplStored = s.Set2SplStored = s.Set1SplShown = s.Set2SplShown = false;
  RecreateStoredBoxTraces(s);
  sheet.window.left = sheet.window.top = 0;
  AssignText(program, sheet.txtdatacreaz, DateText(program.platform.Today()));
  if (s.txtingombro.empty()) AssignText(program, sheet.txtingombro, "0");
  s.DesignChanged = s.ProjectModified = s.FilterComputed = false;

  sheet.tabs = {
      {"gen", program.Text(400)}, {"par", program.Text(401)}, {"dim", program.Text(402)}, {"imp", program.Text(403)}};
  sheet.selected_tab = "gen";
  sheet.LastTilt = 0.0;
  sheet.TempBefore.clear();
  sheet.PressBefore.clear();
}

/// Asks whether to save a modified project. True when the project may be left.
bool AskOnLeaving(Program& program) {
  const MessageBox question{MessageIcon::Question, program.Text(182), program.Text(180) + "\n\n" + program.Text(181),
                            MessageButtons::YesNoCancel};
  switch (program.platform.ShowMessage(question)) {
    case Answer::Yes:
      RaiseClick(program, program.windows.frmthsm.mnusalva);
      // A cancel of an earlier save still stands here after a save that went well, which is wanted.
      if (program.state.LastSaveError == static_cast<int>(ErrorNumber::DialogCancelled)) return false;
      break;
    case Answer::No: break;
    default: return false;
  }
  program.state.ProjectModified = false;
  return true;
}

bool frmthsm_QueryUnload(Program& program) { return !program.state.ProjectModified || AskOnLeaving(program); }

void frmthsm_Unload(Program& program) {
  // A field that goes with its window is not left: its leaving would mark a project that is gone.
  if (program.focus != nullptr && program.focus->window == &program.windows.frmthsm.window) program.focus = nullptr;
  ResetSheet(program);
  UndoDataImport(program);
  program.state.ProjectLoaded = program.state.AirChanged = false;
  ClearGraphFlags(program.state);
}

bool mdithsm_QueryUnload(Program& program) {
  if (!program.state.ProjectModified) return true;
  program.Message(MessageIcon::Information, program.Text(163) + "\n\n" + program.Text(164), program.Text(165));
  return false;
}

void mdithsm_Unload(Program& program) {
  CloseWindow(program, "frmcalcolatrice");
  CloseWindow(program, "frmopzioni");
  EndNow(program, false);
}

void mnuuscita_Click(Program& program) { CloseWindow(program, program.windows.mdithsm.window); }

void BeginProject(Program& program, bool impedance) {
  Sheet& sheet = program.windows.frmthsm;
  OpenWindow(program, sheet.window);
  impedance ? Set_Caselle_importazione(program) : Set_Caselle_inserimento(program);
  SelectTab(program, "gen");
  GiveFocus(program, sheet.txtproduttore);
  sheet.mnuimporta.enabled = false;
  if (!impedance) sheet.mnuimportadati.enabled = false;
  program.state.HasProjectPath = false;
  program.state.ImpedanceMode = impedance;
}

void mnuthisma_Click(Program& program) { BeginProject(program, true); }
void mnuinsmanuale_Click(Program& program) { BeginProject(program, false); }

void mnuesci_Click(Program& program) {
  if (program.state.ProjectModified && !AskOnLeaving(program)) return;
  CloseWindow(program, program.windows.frmthsm.window);
}

void mnugrafico_Click(Program& program) {
  CloseWindow(program, "frmgrafico");
  OpenWindow(program, "frmgrafico");
}

void mnuopzioni_Click(Program& program) { OpenWindow(program, "frmopzioni"); }
void mnudelay_Click(Program& program) { OpenWindow(program, "frmFaseSh"); }
void mnucalcolatrice_Click(Program& program) { OpenWindow(program, "frmcalcolatrice"); }
void mnuinformazioni_Click(Program& program) { OpenWindow(program, "frmAbout"); }
void mnuguida_Click(Program& program) { program.platform.ShowHelp(program.folder / "guida.hlp"); }

}  // namespace

void StartProgram(Program& program, const std::string& command_line) {
  ProjectState& state = program.state;
  MainFrame& frame = program.windows.mdithsm;
  LoadWindow(program, frame.window);
  program.active = &frame.window;
  state.ProjectLoaded = state.AirChanged = false;
  SetOptionDefaults(state);
  program.command_line = command_line;
  if (!command_line.empty()) RaiseClick(program, frame.mnuapriprogetto);
  ClearGraphFlags(state);
  if (program.platform.ScreenWidth() < kNarrowestScreen) {
    // In Italian whatever the language, as wanted.
    program.Message(MessageIcon::Stop, "La risoluzione dello schermo deve essere impostata ad almeno 1024 x 768 Pixel",
                    "Impostazione Schermo");
    EndNow(program, true);
  }
  AssociaFile(program);
}

void AssociaFile(Program& program) {
  const std::string name = "Zefirondo";
  program.platform.WriteStore(name, name);
  program.platform.WriteStore(".pro", name);
  program.platform.WriteStore(name + "\\shell\\open\\command", ZEFIRONDO_INSTALLED_PROGRAM " %1");
}

void Set_Caselle_importazione(Program& program) {
  Sheet& sheet = program.windows.frmthsm;
  for (Control* const field :
       {&sheet.txtlces, &sheet.txtcmes, &sheet.txtrmes, &sheet.txtqmes, &sheet.txtzmin, &sheet.txtqes, &sheet.txtqts,
        &sheet.txtcms, &sheet.txtmms, &sheet.txtrms, &sheet.txtlungappa, &sheet.txtareasez, &sheet.txtcas,
        &sheet.txtmas, &sheet.txtras, &sheet.txtvas, &sheet.txtfl, &sheet.txtfh}) {
    field->locked = true;
  }
}

void Set_Caselle_inserimento(Program& program) {
  Sheet& sheet = program.windows.frmthsm;
  for (Control* const field : {&sheet.txtzmax, &sheet.txtbw}) {
    field->locked = true;
    field->back = colour::kGrey;
  }
  for (Control* const field : {&sheet.txtlces, &sheet.txtcmes, &sheet.txtrmes, &sheet.txtqmes, &sheet.txtzmin,
                               &sheet.txtcms, &sheet.txtrms, &sheet.txtlungappa, &sheet.txtareasez, &sheet.txtcas,
                               &sheet.txtmas, &sheet.txtras, &sheet.txtfl, &sheet.txtfh}) {
    field->locked = true;
  }
  for (Control* const field : {&sheet.txtqes, &sheet.txtqts, &sheet.txtmms, &sheet.txtvas}) {
    OpenForTyping(*field, colour::kWindow);
  }
}

namespace {

void SetTransducerFieldsLocked(Program& program, bool locked) {
  Sheet& sheet = program.windows.frmthsm;
  for (Control* const field :
       {&sheet.txtzmax,      &sheet.txtfs,          &sheet.txtrvc,      &sheet.txtqmesin,  &sheet.txtbw,
        &sheet.txtbl,        &sheet.txtd,           &sheet.txtsd,       &sheet.txtforo,    &sheet.txtprof,
        &sheet.txtlagmagne,  &sheet.txtprofmag,     &sheet.txtesterno,  &sheet.txtdiambob, &sheet.txtpotenza,
        &sheet.txtimpedenza, &sheet.txtsensibilita, &sheet.txthg,       &sheet.txtxmax,    &sheet.txtrendimento,
        &sheet.txtle,        &sheet.cmbnumvc,       &sheet.txtspesbordo}) {
    field->locked = locked;
  }
  sheet.mnuannullasequenza.enabled = sheet.mnuannulla.enabled = !locked;
}

void EmptyParameterFields(Program& program) {
  const bool keep = program.state.DataImported;  // what came from a data file stays
  Sheet& sheet = program.windows.frmthsm;
  Empty(program, {&sheet.txtzmax, &sheet.txtfs});
  if (!keep) Empty(program, {&sheet.txtrvc});
  Empty(program, {&sheet.txtqmesin});
  OpenForTyping(sheet.txtqmesin, colour::kWhite);
  Empty(program, {&sheet.txtbw, &sheet.txtlces, &sheet.txtcmes, &sheet.txtrmes, &sheet.txtqmes, &sheet.txtqes,
                  &sheet.txtqts, &sheet.txtzmin, &sheet.txtfh, &sheet.txtfl});
  if (!keep) Empty(program, {&sheet.txtd});
  OpenForTyping(sheet.txtd, colour::kWhite);
  Empty(program, {&sheet.txtcms, &sheet.txtmms, &sheet.txtrms});
  if (!keep) Empty(program, {&sheet.txtbl});
  Empty(program, {&sheet.txtcas, &sheet.txtmas, &sheet.txtras, &sheet.txtsd});
  OpenForTyping(sheet.txtsd, colour::kWhite);
  Empty(program, {&sheet.txtminsv});
  AssignText(program, sheet.txtingombro, "0");
  Empty(program, {&sheet.txtvas});
}

void EraseCurves(ProjectState& s) {
  for (Curve* const curve :
       {&s.ImpFreq, &s.ImpZ, &s.BoxFreq, &s.BoxDb, &s.SumDb, &s.SumFreq, &s.SplFreq, &s.SplDb, &s.SplMaxDb,
        &s.PhaseFreq, &s.PhaseDeg, &s.FilterPhaseFreq, &s.FilterPhaseDeg, &s.SumPhaseDeg}) {
    curve->clear();
  }
}

void ClearTraceFlags(ProjectState& s) {
  s.Set1BoxStored = s.Set2BoxStored = s.Set1BoxShown = s.Set2BoxShown = false;
  s.Set1SplStored = s.Set2SplStored = s.Set1SplShown = s.Set2SplShown = false;
  s.Set1PhaseStored = s.Set2PhaseStored = s.Set1PhaseShown = s.Set2PhaseShown = false;
}

}  // namespace

void LockTransducerFields(Program& program) { SetTransducerFieldsLocked(program, true); }
void UnlockTransducerFields(Program& program) { SetTransducerFieldsLocked(program, false); }

void ResetSheet(Program& program) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  sheet.frathsm.visible = true;
  EmptyParameterFields(program);
  Disable({&sheet.cmdcalcola, &sheet.cmdnext, &sheet.cmdnext1});
  UnlockTransducerFields(program);
  Disable({&sheet.mnusalvadir, &sheet.mnustampa, &sheet.mnugrafico, &sheet.mnuimporta});
  s.ImpedanceMode = false;
  Empty(program, {&sheet.txtvolnetto});
  AssignText(program, sheet.cmballi, "0.707");
  s.ProjectTitle.clear();

  EraseCurves(s);
  s.DriversNum = s.VentNum = 1;
  s.Fs = s.Zmax = s.EBP = s.Fc = s.Qtc = s.Fb = s.F3v = s.Vb = 0.0;
  s.SectArea1Vent = kDefaultPortArea;
  s.Ql = 7;
  s.Kinternal = kFreeAirFactor;
  for (const std::string_view window : {"frmgrafcassa", "frmescursione", "frmspl", "frmsplMax", "frmFase", "frmfiltri",
                                        "frmdimensioni", "frmcalcolatrice", "frmairspeed", "frmalfa"}) {
    CloseWindow(program, window);
  }
  ClearTraceFlags(s);
  s.ProjectLoaded = s.AirChanged = s.FilterComputed = false;
  RecreateStoredBoxTraces(s);
  if (sheet.tabs.size() > 4) {
    sheet.RemoveBoxTabs();
    SelectTab(program, "par");
  }
  sheet.mnuimporta.enabled = true;
  s.Vb = s.Vc = s.VbaClosed = s.VbaVented = s.Vba = 0.0;
  SetOptionDefaults(s);
  s.DesignChanged = s.ProjectModified = false;
  s.LastSaveError = 0;
}

void UndoImpedanceImport(Program& program) {
  ResetSheet(program);
  SelectTab(program, "gen");
  program.windows.frmthsm.mnuannullasequenza.enabled = false;
  CloseWindow(program, "frmgrafico");
}

void UndoDataImport(Program& program) {
  Sheet& sheet = program.windows.frmthsm;
  program.state.DataImported = false;
  sheet.mnuannulla.enabled = false;
  Empty(program, {&sheet.txtrvc, &sheet.txtbl, &sheet.txtd, &sheet.txtmarca, &sheet.txtproduttore, &sheet.txtmodello,
                  &sheet.txtcommento, &sheet.txtdatifor, &sheet.txtpotenza, &sheet.txtimpedenza, &sheet.txthg,
                  &sheet.txtrendimento, &sheet.txtxmax, &sheet.txtsensibilita});
  AssignText(program, sheet.cmbnumvc, "1");
  Empty(program, {&sheet.txtle, &sheet.txtforo, &sheet.txtprof, &sheet.txtlagmagne, &sheet.txtprofmag,
                  &sheet.txtesterno, &sheet.txtspesbordo, &sheet.txtdiambob, &sheet.txtvolume});
  sheet.mnuimportadati.enabled = true;
  sheet.RemoveBoxTabs();
  SelectTab(program, "gen");
  CloseWindow(program, program.windows.frmgrafcassa.window);
}

void ShowModelName(Program& program) {
  Sheet& sheet = program.windows.frmthsm;
  // No caption is longer than this: a file may hold a line of any length.
  const std::string model = program.state.txtmodello.substr(0, ByteOffset(program.state.txtmodello, kLongestCaption));
  const std::string caption = program.Text(198) + "-" + model + "-";
  for (Control* const frame : {&sheet.fragenerale, &sheet.frathsm, &sheet.fradim, &sheet.frabox}) {
    AssignText(program, *frame, caption);
  }
}

void ConnectShell(Program& program) {
  MainFrame& frame = program.windows.mdithsm;
  frame.window.on.query_unload = mdithsm_QueryUnload;
  frame.window.on.unload = mdithsm_Unload;
  frame.mnuuscita.on.click = mnuuscita_Click;
  frame.mnuthisma.on.click = mnuthisma_Click;
  frame.mnuinsmanuale.on.click = mnuinsmanuale_Click;
  frame.mnuopzioni.on.click = mnuopzioni_Click;
  frame.mnudelay.on.click = mnudelay_Click;

  Sheet& sheet = program.windows.frmthsm;
  sheet.window.on.load = frmthsm_Load;
  sheet.window.on.query_unload = frmthsm_QueryUnload;
  sheet.window.on.unload = frmthsm_Unload;
  sheet.mnuesci.on.click = mnuesci_Click;
  sheet.mnugrafico.on.click = mnugrafico_Click;
  sheet.mnuannulla.on.click = UndoDataImport;
  sheet.mnuannullasequenza.on.click = UndoImpedanceImport;
  sheet.cmdreset.on.click = ResetSheet;

  // Every window has the same entries for the calculator, the help and the information about the program.
  for (const Window* const window : program.all) {
    if (Control* const entry = window->Find("mnucalcolatrice")) entry->on.click = mnucalcolatrice_Click;
    if (Control* const entry = window->Find("mnuguida")) entry->on.click = mnuguida_Click;
    if (Control* const entry = window->Find("mnuinformazioni")) entry->on.click = mnuinformazioni_Click;
  }
}

}  // namespace zefirondo
