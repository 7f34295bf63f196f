// The words on the three windows of the phase offset, in both languages.
#include "filters/phase_desk.h"

namespace zefirondo {
namespace {

struct Words {
  const char* name;
  const char* english;
  const char* italian;
};

class PhaseOffsetWords : public testing::TestWithParam<Words> {
 protected:
  static std::string On(Language language) {
    PhaseDesk desk(language);
    desk.OpenDelay();
    desk.Click("frmFaseSh.cmdcalcola");
    const std::string name = GetParam().name;
    if (const Window* const window = desk.program.FindWindow(name)) return window->caption;
    return desk.Text(name);
  }
};

TEST_P(PhaseOffsetWords, AreThoseOfTheLanguage) {
  EXPECT_EQ(On(Language::English), GetParam().english);
  EXPECT_EQ(On(Language::Italian), GetParam().italian);
}

INSTANTIATE_TEST_SUITE_P(
    Tool, PhaseOffsetWords,
    testing::Values(Words{"frmFaseSh", "Phase Offset", "Phase Offset"},
                    Words{"frmFaseSh.cmdimporta", "&Paste", "&Incolla"},
                    Words{"frmFaseSh.cmdcalcola", "&Find Offset", "Calcola &Sfasamento"},
                    Words{"frmFaseSh.cmdsomma", "&Add Delay", "Somma &Delay"},
                    Words{"frmFaseSh.cmdcancella", "&Cancel", "&Cancella"},
                    Words{"frmFaseSh.cmdchiudi", "&Close", "C&hiudi"}, Words{"frmFaseSh.cmdset1", "", ""},
                    Words{"frmFaseSh.cmdset2", "", ""}, Words{"frmFaseSh.lblset1", "Set", "Set"},
                    Words{"frmFaseSh.lblset2", "Set", "Set"}, Words{"frmFaseSh.chkonoff1", "", ""},
                    Words{"frmFaseSh.chkonoff2", "", ""}, Words{"frmFaseSh.lblonoff1", "On/Off", "On/Off"},
                    Words{"frmFaseSh.lblonoff2", "On/Off", "On/Off"}, Words{"frmFaseSh.lblovl1", "Ovl1", "Ovl1"},
                    Words{"frmFaseSh.lblovl2", "Ovl2", "Ovl2"},
                    Words{"frmFaseSh.lbltitolo", "Frequency - Phase", "Grafico Frequenza - Fase"},
                    Words{"frmFaseSh.lblfrequenza", "Frequency Hz", "Frequenza Hz"},
                    Words{"frmFaseSh.mnuimportafase", "Import Pahse &Overlay", "&Importa tracciato Fase"},
                    Words{"frmFaseSh.mnusalvarosso", "Save &Red Overlay", "Salva tracciato &Rosso"},
                    Words{"frmFaseSh.mnusalvablu", "Save &Blue Overlay", "Salva tracciato &Blu"},
                    Words{"frmFaseSh.mnuchiudifase", "&Close", "&Chiudi"},
                    Words{"frmFaseSh.mnucalcolatrice", "&Calculator", "&Calcolatrice"},
                    Words{"frmFaseSh.mnuguida", "&Help", "&Guida"},
                    Words{"frmFaseSh.mnuinformazioni", "&About Zefirondo", "&Informazioni su Zefirondo"}));

INSTANTIATE_TEST_SUITE_P(
    OffsetEntry, PhaseOffsetWords,
    testing::Values(Words{"frmfasecompl", "Relative or Absolute Phase", "Fase relativa o assoluta"},
                    Words{"frmfasecompl.fraandamento", "Phase Slop", "Andamento di fase"},
                    Words{"frmfasecompl.optrelativa", "Not Take into Account", "Non tener conto"},
                    Words{"frmfasecompl.optcomplessiva", "Take into Account", "Tieni conto"},
                    Words{"frmfasecompl.frafrequenza", "Frequency Offset", "Frequenza di sfasamento"},
                    Words{"frmfasecompl.lblfrequanza", "Frequancy", "Frequanza"},
                    Words{"frmfasecompl.lblHz", "Hz", "Hz"}, Words{"frmfasecompl.cmdok", "&OK", "&OK"},
                    Words{"frmfasecompl.mnuchiudi", "&Close", "&Chiudi"}));

INSTANTIATE_TEST_SUITE_P(
    DelayEntry, PhaseOffsetWords,
    testing::Values(Words{"frmsommadelay", "Add Delay", "Somma Delay"}, Words{"frmsommadelay.opt1", "Black", "Nero"},
                    Words{"frmsommadelay.opt2", "Magenta", "Magenta"}, Words{"frmsommadelay.lblms1", "ms", "ms"},
                    Words{"frmsommadelay.lblms2", "ms", "ms"}, Words{"frmsommadelay.cmdsfasadelay", "&Add", "&Somma"},
                    Words{"frmsommadelay.cmdannulla", "&Cancel", "&Annulla"},
                    Words{"frmsommadelay.cmdchiudi", "Cl&ose", "&Chiudi"},
                    Words{"frmsommadelay.mnuchiudi", "&Close Delay Add", "&Chiudi Somma delay"}));

}  // namespace
}  // namespace zefirondo
