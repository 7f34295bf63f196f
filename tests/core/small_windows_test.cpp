// The words of the small windows around a measurement and a design, in both languages.
#include <gtest/gtest.h>

#include "core/window_life.h"
#include "support/desk.h"

namespace zefirondo {
namespace {

struct WordsRow {
  const char* control;  // without a point: a window
  const char* english;
  const char* italian;
};

const WordsRow kWords[] = {
    {"frmvalc", "Frequencies on capacitive curve", "Frequenze sulla parte capacitiva"},
    {"frmvalc.lbldescriz",
     "Insert two frequency values F1 F2, selected on the curve where the impedance is predominantly capacitive, that "
     "is where Z1 > Z2.",
     "Inserire due valori di frequenza tali che F1<F2, scelti sulla curva in corrispondenza della parte dove "
     "l'impedenza è prevalentemente capacitiva, dove cioè Z1>Z2."},
    {"frmvalc.lblf1", "Frequency 1", "Frequenza 1"},
    {"frmvalc.lblf2", "Frequency 2", "Frequenza 2"},
    {"frmvalc.cmdavanti", "&Next", "&Avanti"},
    {"frmvalc.mnuchiudi", "&Close", "&Chiudi Valori frequenza"},
    {"frmvalf", "Frequencies on inductive curve", "Frequenze sulla parte induttiva"},
    {"frmvalf.lbldescriz",
     "Insert two frequency values F1 F2, selected on the curve where the impedance is predominantly inductive, that "
     "is where Z1 < Z2.",
     "Inserire due valori di frequenza tali che F1<F2, scelti sulla curva in corrispondenza della parte dove "
     "l'impedenza è prevalentemente induttiva, dove cioè Z1<Z2."},
    {"frmvalf.lblf1", "Frequency 1", "Frequenza 1"},
    {"frmvalf.lblf2", "Frequency 2", "Frequenza 2"},
    {"frmvalf.cmdavanti", "&Next", "&Avanti"},
    {"frmvalf.mnuchiudi", "&Close", "&Chiudi Valori frequenza"},

    {"frmgrafico", " Impedance Transducer", "Grafico impedenza"},
    {"frmgrafico.lblnomegraf", "Frequency - Impedance", "Grafico Frequenza - Impedenza"},
    {"frmgrafico.lblfrequenza", "Frequency Hz", "Frequenza Hz"},
    {"frmgrafico.Text1", "O\nh\nm", "O\nh\nm"},
    {"frmgrafico.mnugrafstampa", "&Print Inpedance", "&Stampa grafico impedenza"},
    {"frmgrafico.mnuchiudigraf", "&Close", "&Chiudi grafico impedenza"},
    {"frmgrafico.mnuguida", "&Help", "&Guida"},
    {"frmgrafico.mnuinformazioni", "&About Zefirondo", "&Informazioni su Zefirondo"},

    {"frmwooferconn", "Wooofers Wiring", "Connessione Wooofer"},
    {"frmwooferconn.fracollegamento", "Project with more than one woofer", "Progetto con più woofer"},
    {"frmwooferconn.lblcollegamento", "Connecting the amplifier to the woofers",
     "Collegamento dei Woofer all'amplificatore"},
    {"frmwooferconn.optbiamp", "One woofer for each channel of the amplifier",
     "Un woofer per ogni Canale dell'amplificatore"},
    {"frmwooferconn.lblwarn1", "WARNING! To each woofer will be applied the same power rating",
     "ATTENZIONE! Ad ogni woofer verrà applicata una potenza uguale"},
    {"frmwooferconn.optparallelo", "Woofers connected in parallel to  one amplifier channel",
     "Woofer in Parallelo su un Canale"},
    {"frmwooferconn.lblwarn2",
     "WARNING! The same power will be applied to each woofer as in the case of the single woofer but the amplifier "
     "will deliver a proportionally greater power",
     "ATTENZIONE! Ad ogni woofer verrà applicata una potenza uguale alla configurazione con sigolo woofer ma "
     "l'amplificatore erogherà una potenza proporzionalmente maggiore"},
    {"frmwooferconn.optserie", "Woofers connected in series to  one amplifier channel", "Woofer in Serie su un Canale"},
    {"frmwooferconn.lblwarn3",
     "WARNING! For each woofer will be applied a lower power, proportional to the number of woofers in series",
     "ATTENZIONE! Ad ogni woofer verrà applicata una potenza minore, proporzionale al numero di woofer messi in "
     "Serie"},
    {"frmwooferconn.mnuchiudi", "&Close Wooofers Wiring", "&Chiudi Connessione woofer"},

    {"frmopzioni", "Project Options", "Opzioni Progetto"},
    {"frmopzioni.fracollegamento", "Project with more woofer in the same volume",
     "Progetto con più woofer nello stesso volume"},
    {"frmopzioni.lblcollegamento", "Connecting the amplifier to the woofers",
     "Collegamento dei Woofer all'amplificatore"},
    {"frmopzioni.optbiamp", "One woofer for each channel of the amplifier", "Un woofer per ogni canale"},
    {"frmopzioni.optparallelo", "Woofers connected in parallel to  one amplifier channel",
     "Woofer in parallelo su un canale"},
    {"frmopzioni.optserie", "Woofers connected in series to  one amplifier channel", "Woofer in serie su un canale"},
    {"frmopzioni.fraRsorgente", "Amplifier output Resistance", "Resistenza d'uscita Aplificatore"},
    {"frmopzioni.fraspessore", "Thickness of the wooden Box", "Spesssore legno Box"},
    {"frmopzioni.lblspessore", "Thickness", "Spessore"},
    {"frmopzioni.mnuchiudi", "&Close Project Options", "&Chiudi Opzioni Progetto"},

    {"frmbox", "Box Type", "Tipo Box"},
    {"frmbox.lbltesto", "Choose the Loudspeaker Enclosure Type", "Scegliere la tipologia di Box desiderato"},
    {"frmbox.lblebp", "EBP", "EBP"},
    {"frmbox.lbltipobox", "Box Type", "Tipo Box"},
    {"frmbox.cmdok", "&OK", "&OK"},
    {"frmbox.mnuchiudi", "&Close", "&Chiudi"},

    {"frmalfa", "Vas/Vb", "Vas/Vb"},
    {"frmalfa.VbSUVas707", "Vb/Vas= 0.7071", "Vb/Vas= 0.7071"},
    {"frmalfa.lblVbSuVas", "Current Value Vb/Vas", "Vb/Vas corrente"},
    {"frmalfa.lblFbsuFs", "Current Value Fb/Fs", "Fb/Fs corrente"},
    {"frmalfa.cmdok", "&OK", "&OK"},
    {"frmalfa.mnuchiudi", "&Close", "&Close"},
};

class SmallWindow : public testing::TestWithParam<WordsRow> {};

TEST_P(SmallWindow, SpeaksBothLanguages) {
  const WordsRow& row = GetParam();
  const std::string name = row.control;
  for (const auto& [language, words] :
       {std::pair{Language::English, row.english}, std::pair{Language::Italian, row.italian}}) {
    Desk desk(language);
    desk.Begin();
    const std::string window = name.substr(0, name.find('.'));
    desk.state.txtfs = "30";  // the chart divides by it
    OpenWindow(desk.program, window);
    EXPECT_EQ(window == name ? desk.program.FindWindow(window)->caption : desk.Text(name), words);
  }
}

INSTANTIATE_TEST_SUITE_P(All, SmallWindow, testing::ValuesIn(kWords), [](const auto& row) {
  std::string name = row.param.control;
  for (char& c : name) {
    if (c == '.') c = '_';
  }
  return name;
});

TEST(SmallWindows, HaveTheUnitsOfTheirFields) {
  Desk desk;
  desk.Begin();
  for (const auto& [field, unit] : {std::pair{"frmvalc.txtf1", "Hz"},
                                    {"frmvalc.txtf2", "Hz"},
                                    {"frmvalf.txtf1", "Hz"},
                                    {"frmvalf.txtf2", "Hz"},
                                    {"frmopzioni.txtrs", "Ohm"},
                                    {"frmopzioni.txtspessore", "mm"}}) {
    EXPECT_EQ(std::string(desk[field].unit), unit) << field;
  }
}

}  // namespace
}  // namespace zefirondo
