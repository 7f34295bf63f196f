// The words of the graph windows and of the filter window in both languages: captions, titles, messages.
#include <gtest/gtest.h>

#include "core/acts.h"
#include "support/desk.h"

namespace zefirondo {
namespace {

constexpr const char* kEntries[]{"mnuspl", "mnusplmax", "mnuescursione", "mnuairspeed", "mnufase"};

void OpenAll(Desk& desk) {
  desk.DesignVented();
  for (const char* const entry : kEntries) desk.Choose(std::string("frmgrafcassa.") + entry);
  desk.Choose("frmgrafcassa.mnufiltri");
  desk.TakeOut();
}

struct Words {
  const char *name, *english, *italian;
};

const Words kWords[]{
    {"frmgrafcassa", "Transfer Function", "Funzione di trasferimento"},
    {"frmgrafcassa.lblfrequenza", "Frequency Hz", "Frequenza Hz"},
    {"frmgrafcassa.mnufilegrafico", "&File", "&File"},
    {"frmgrafcassa.mnuimportatracciato", "Import &Overlay", "Importa &Tracciato"},
    {"frmgrafcassa.mnusalvatracciatorosso", "Save &Red Overlay", "Salva tracciato &Rosso"},
    {"frmgrafcassa.mnusalvatracciatoblu", "Save &Blue Overlay", "Salva tracciato &Blu"},
    {"frmgrafcassa.mnuimportaOverlay", "&Import Frequency Response", "Importa risposta in &Frequanza"},
    {"frmgrafcassa.mnugrafstampa", "&Print  Transfer Function", "&Stampa grafico risposta"},
    {"frmgrafcassa.mnuchiudigraf", "&Close Transfer Function", "&Chiudi grafico Funzione Trasferimento"},
    {"frmgrafcassa.mnuvisualizza", "&Show", "&Visualizza"},
    {"frmgrafcassa.mnufase", "&Phase Response", "Visualizza grafico &Fase"},
    {"frmgrafcassa.mnuspl", "&Spl Response @ 1W/1m", "Visualizza grafico &Spl @ 1W/1m"},
    {"frmgrafcassa.mnusplmax", "Spl &Max Response", "Visualizza grafico Spl&Max"},
    {"frmgrafcassa.mnuescursione", "Cone &Excursion", "Visualizza grafico &Escursione"},
    {"frmgrafcassa.mnuairspeed", "Port &Air Velocity", "Visualizza grafico velocità &Aria Condotti"},
    {"frmgrafcassa.mnufiltri", "Insert &Filters", "Inserisci &Filtri"},
    {"frmgrafcassa.mnucalcolatrice", "&Calculator", "&Calcolatrice"},
    {"frmgrafcassa.mnuguida", "&Help", "&Guida"},
    {"frmgrafcassa.mnuinformazioni", "&About Zefirondo", "&Informazioni su Zefirondo"},

    {"frmspl", "Spl @ 1W/1m", "Spl @ 1W/1m"},
    {"frmspl.lblnomegrafspl", "Frequency - dB Spl", "Grafico Frequenza - dB Spl"},
    {"frmspl.lblfrequenzaspl", "Frequency Hz", "Frequenza Hz"},
    {"frmspl.lbldb", "dB", "dB"},
    {"frmspl.lblovl1", "Trk1", "Trk1"},
    {"frmspl.lblovl2", "Trk2", "Trk2"},
    {"frmspl.lblset1", "Set", "Set"},
    {"frmspl.lblset2", "Set", "Set"},
    {"frmspl.lblonoff1", "On/Off", "On/Off"},
    {"frmspl.lblonoff2", "On/Off", "On/Off"},
    {"frmspl.cmdset1", "", ""},
    {"frmspl.cmdset2", "", ""},
    {"frmspl.cmdsommaspl", "&Add Graphics", "&Somma grafici"},
    {"frmspl.cmdcancellaspl", "&Delete", "&Cancella"},
    {"frmspl.mnuimportatracciato", "Import Spl &Overlay", "&Importa tracciato Spl"},
    {"frmspl.mnusalvasplRosso", "Save &Red Overlay", "Salva tracciato &Rosso"},
    {"frmspl.mnusalvaSplBlu", "Save &Blue Overlay", "Salva tracciato &Blu"},
    {"frmspl.mnuimportaOverlay", "&Import Frequency Response", "Importa risposta in &Frequanza"},
    {"frmspl.mnuchiudi", "&Close Spl", "&Chiudi grafico Spl"},
    {"frmspl.mnugraffase", "&Phase Response", "Visualizza grafico &Fase"},

    {"frmsplMax", "SplMax", "SplMax"},
    {"frmsplMax.lblfrequenzaspl", "Frequency Hz", "Frequenza Hz"},
    {"frmsplMax.lbldb", "dB", "dB"},
    {"frmsplMax.lblpot", "Power Change", "Potenza Applicata"},
    {"frmsplMax.lblrms", "W rms", "W rms"},
    {"frmsplMax.cmdcalc", "&Redraw", "&Ridisegna"},
    {"frmsplMax.mnuchiudi", "&Close SplMax", "&Chiudi grafico SplMax"},

    {"frmescursione", "Cone Excursion", "Escursione cono"},
    {"frmescursione.lblfrequenza", "Frequency Hz", "Frequenza Hz"},
    {"frmescursione.lbldb", "mm", "mm"},
    {"frmescursione.lblescursione", "Max Excursion", "Escursione Massima"},
    {"frmescursione.lblpot", "Ampli power supplied", "Potenza erogata dall'ampli"},
    {"frmescursione.lblrms", "W rms", "W rms"},
    {"frmescursione.cmdcalc", "&Redraw", "&Ridisegna"},
    {"frmescursione.mnuchiudi", "&Close Cone Excursion", "&Chiudi grafico Escursione"},

    {"frmairspeed", "Port Air Velocity", "Velocità aria condotti"},
    {"frmairspeed.lblfrequenza", "Frequency Hz", "Frequenza Hz"},
    {"frmairspeed.lbldb", "m/s", "m/s"},
    {"frmairspeed.lblairspeed2", "5% Speed of Sound", "5% Velocità del suono"},
    {"frmairspeed.lblairspeed1", "7,5% Speed of Sound", "7,5% Velocità del suono"},
    {"frmairspeed.lblpot", "Ampli power supplied", "Potenza erogata dall'ampli"},
    {"frmairspeed.lblrms", "W rms", "W rms"},
    {"frmairspeed.cmdcalc", "&Redraw", "&Ridisegna"},
    {"frmairspeed.mnuchiudi", "&Close Port Air Velocity", "&Chiudi grafico Velocità aria condotti"},

    {"frmFase", "Frequency - Phase", "Grafico Frequenza - Fase"},
    {"frmFase.lbltitolo", "Frequency - Phase", "Grafico Frequenza - Fase"},
    {"frmFase.lblfrequenza", "Frequency Hz", "Frequenza Hz"},
    {"frmFase.fraleggenda", "Caption", "Leggenda"},
    {"frmFase.Label1", "Box", "Cassa"},
    {"frmFase.Label2", "Filter", "Filtro"},
    {"frmFase.Label3", "Sum", "Somma"},
    {"frmFase.lbl180", "180", "180"},
    {"frmFase.lbl135", "135", "135"},
    {"frmFase.lbl90", "90", "90"},
    {"frmFase.lbl45", "45", "45"},
    {"frmFase.lbl0", "0", "0"},
    {"frmFase.lbl_45", "-45", "-45"},
    {"frmFase.lbl_90", "-90", "-90"},
    {"frmFase.lbl_135", "-135", "-135"},
    {"frmFase.lbl_180", "-180", "-180"},
    {"frmFase.mnuimportafase", "Import Phase &Overlay", "&Importa tracciato Fase"},
    {"frmFase.mnusalvarosso", "Save &Red Overlay", "Salva tracciato &Rosso"},
    {"frmFase.mnusalvablu", "Save &Blue Overlay", "Salva tracciato &Blu"},
    {"frmFase.mnuchiudifase", "&Close Phase", "&Chiudi grafico Fase"},
    {"frmFase.mnuvisualizzafase", "&Show", "&Visualizza"},

    {"frmfiltri", "Filter", "Filtro"},
    {"frmfiltri.lblallineamento", "Alignment", "Allineamento"},
    {"frmfiltri.lbltipo", "Filter Type", "Tipo filtro"},
    {"frmfiltri.lblQ", "Filter Q", "Q del filtro"},
    {"frmfiltri.lblpendenza", "Slope", "Pendenza"},
    {"frmfiltri.lblft", "Upper Cutoff Frequency", "Freq. Taglio Sup"},
    {"frmfiltri.lblFh", "Lower Cutoff Frequency", "Freq. Taglio Inf."},
    {"frmfiltri.lblfl", "Hz", "Hz"},
    {"frmfiltri.lblfhi", "Hz", "Hz"},
    {"frmfiltri.lblboost", "Gain", "Gain"},
    {"frmfiltri.cmdvisualizza", "&View", "&Visualizza"},
    {"frmfiltri.cmdcanc", "&Delete", "&Cancella"},
    {"frmfiltri.cmdannulla", "&Cancel", "&Annulla"},
    {"frmfiltri.mnusintesi", "Filter &Synthesis", "&Sintesi"},
    {"frmfiltri.mnupassivo", "&Passive Filter", "Filtro &Passivo"},
    {"frmfiltri.mnuattivo", "&Active Filter", "Filtro &Attivo"},
    {"frmfiltri.mnuchiudi", "&Close", "&Chiudi"},
};

class GraphWords : public testing::TestWithParam<Language> {};

TEST_P(GraphWords, AreThoseOfTheLanguage) {
  Desk desk(GetParam());
  OpenAll(desk);
  for (const Words& words : kWords) {
    const char* const wanted = GetParam() == Language::English ? words.english : words.italian;
    const Window* const window = desk.program.FindWindow(words.name);
    EXPECT_EQ(window != nullptr ? window->caption : desk.Text(words.name), wanted) << words.name;
  }
}

// The titles of the graphs with a power, on opening and after a redraw; 300 W is three times 100 W in parallel.
TEST_P(GraphWords, TitlesTellThePower) {
  const bool english = GetParam() == Language::English;
  Desk desk(GetParam());
  desk.DesignVented();
  desk.state.DriversNum = 3;
  desk.state.WooferWiring = "parallel";
  for (const char* const entry : kEntries) desk.Choose(std::string("frmgrafcassa.") + entry);
  struct Row {
    const char *window, *title, *english, *italian, *english_redrawn, *italian_redrawn;
  };
  for (const Row& row :
       {Row{"frmsplMax", "lblnomegrafspl", "Frequency - dB SplMax @ 100 W Rms",
            "Grafico Frequenza - dB SplMax @ 100 W Rms", "Frequency - dB SplMax2.50 W Rms",
            "Grafico Frequenza - dB SplMax 2.50 W Rms"},
        {"frmescursione", "lbltitolo", "Frequency - Cone Excursion @ 300 W Rms",
         "Grafico Frequenza - Escursione cono @ 300 W Rms", "Frequency - Cone Excursion @ 2.50 W Rms",
         "Grafico Frequenza - Escursione cono @ 2.50 W Rms"},
        {"frmairspeed", "lbltitolo", "Frequency - Port Air Velocity @ 300 W Rms",
         "Grafico Frequenza - Velocità aria condotti @ 300 W Rms", "Frequency - Port Air Velocity @ 2.50 W Rms",
         "Grafico Frequenza - Velocità aria condotti @ 2.50 W Rms"}}) {
    const std::string window = std::string(row.window) + ".";
    EXPECT_EQ(desk.Text(window + row.title), english ? row.english : row.italian);
    desk.Set(window + "txtpot", "2.50");
    desk.Click(window + "cmdcalc");
    EXPECT_EQ(desk.Text(window + row.title), english ? row.english_redrawn : row.italian_redrawn);
  }
}

TEST_P(GraphWords, MessagesAreThoseOfTheLanguage) {
  const bool english = GetParam() == Language::English;
  const std::string error = english ? "message stop \"Error\" " : "message stop \"Errore\" ";
  const std::string end = " [OK] -> OK\n";
  Desk desk(GetParam());
  OpenAll(desk);
  const std::string greater =
      english ? "\"Enter a value greater than zero\"" : "\"Inserire un valore maggiore di zero.\"";
  const std::string nonzero = english ? "\"Please enter a non zero value\"" : "\"Immettere un valore diverso da zero\"";
  const std::string number =
      english ? "\"Warning: Inputs must be a number\"" : "\"Attenzione! Immettere un valore numerico\"";
  for (const std::string window : {"frmsplMax", "frmescursione", "frmairspeed"}) {
    desk.Set(window + ".txtpot", "-5");
    desk.Click(window + ".cmdcalc");
    EXPECT_EQ(desk.TakeOut(), error + greater + end) << window;
    desk.Type(window + ".txtpot", "x");
    EXPECT_EQ(desk.TakeOut(), error + number + end) << window;
    desk.Set(window + ".txtpot", "");
    desk.Leave();
    EXPECT_EQ(desk.TakeOut(), error + nonzero + end) << window;
    desk.Set(window + ".txtpot", "5");
    desk.Leave();
  }
  desk.Pick("frmfiltri.cmbtipo", "Band Pass");
  desk.Set("frmfiltri.txtFinf", "50");
  desk.Click("frmfiltri.cmdvisualizza");
  EXPECT_EQ(desk.TakeOut(),
            error +
                (english ? "\"The upper cutoff frequency must be greater than the lower cutoff frequency\""
                         : "\"La frequenza di taglio superiore deve essere maggiore della frequenza di taglio "
                           "inferiore\"") +
                end);
  desk.sheet.selected_tab = "chi";
  desk.Choose("frmgrafcassa.mnuairspeed");
  EXPECT_EQ(desk.TakeOut(),
            english
                ? "message information \"Closed Box\" \"The graphic can be displayed only for the Vented Box\" [OK] -> "
                  "OK\n"
                : "message information \"Cassa chiusa\" \"Grafico visualizzabile solo in caso di box reflex\" [OK] -> "
                  "OK\n");
}

INSTANTIATE_TEST_SUITE_P(Both, GraphWords, testing::Values(Language::English, Language::Italian),
                         [](const auto& instance) {
                           return instance.param == Language::English ? "English" : "Italian";
                         });

}  // namespace
}  // namespace zefirondo
