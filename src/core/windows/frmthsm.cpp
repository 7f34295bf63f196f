#include "core/windows/frmthsm.h"

#include <algorithm>
#include <utility>

#include "core/windows/describe.h"

namespace zefirondo {
namespace {

using Form = Sheet;
using R = ProjectState;
using enum ControlKind;
using colour::kGrey;
using colour::kYellow;

constexpr std::size_t kFixedTabs = 4;
constexpr std::ptrdiff_t kBoxTabPlace = 3;

constexpr Caption kTipRightButton = "Funzione associata al tasto destro del mouse";
constexpr Caption kTipDoubleClick = "Doppio click per modificare";

// clang-format off
const std::vector<ControlRow<Form>> kRows{
    {TabStrip, CONTROL(TabStrip1), {}},

    {Frame, CONTROL(fragenerale), {.caption = 198}},
    {TextBox, CONTROL(txtproduttore), {.caption = 344, .field = &R::txtproduttore, .parent = "fragenerale"}},
    {TextBox, CONTROL(txtmarca), {.caption = 345, .field = &R::txtmarca, .parent = "fragenerale"}},
    {TextBox, CONTROL(txtmodello), {.caption = 346, .field = &R::txtmodello, .parent = "fragenerale"}},
    {TextBox, CONTROL(txtdatifor), {.caption = 347, .field = &R::txtdatifor, .parent = "fragenerale"}},
    {TextBox, CONTROL(txtdatacreaz), {.caption = 348, .unit = "dd/mm/yyyy", .field = &R::txtdatacreaz, .parent = "fragenerale"}},
    {TextBox, CONTROL(txtcommento), {.caption = 349, .field = &R::txtcommento, .parent = "fragenerale", .multiline = true}},
    {Frame, CONTROL(fraspecifiche), {.caption = 350, .parent = "fragenerale"}},
    {TextBox, CONTROL(txtpotenza), {.caption = 351, .unit = "W", .field = &R::txtpotenza, .parent = "fraspecifiche"}},
    {TextBox, CONTROL(txtimpedenza), {.caption = 352, .unit = "Ohm", .field = &R::txtimpedenza, .parent = "fraspecifiche"}},
    {TextBox, CONTROL(txtsensibilita), {.caption = 353, .unit = "dB", .field = &R::txtsensibilita, .parent = "fraspecifiche"}},
    {TextBox, CONTROL(txthg), {.caption = 354, .unit = "mm", .field = &R::txthg, .parent = "fraspecifiche"}},
    {TextBox, CONTROL(txtxmax), {.caption = 355, .unit = "mm", .field = &R::txtxmax, .parent = "fraspecifiche"}},
    {TextBox, CONTROL(txtrendimento), {.caption = 356, .unit = "%", .field = &R::txtrendimento, .parent = "fraspecifiche"}},
    {TextBox, CONTROL(txtle), {.caption = 357, .unit = "mH", .field = &R::txtle, .parent = "fraspecifiche"}},
    {ComboBox, CONTROL(cmbnumvc), {.caption = 358, .field = &R::cmbnumvc, .parent = "fraspecifiche", .text = "1", .list = {"1", "2"}}},
    {Button, CONTROL(cmdnext), {.caption = 359, .parent = "fragenerale", .enabled = false}},

    {Frame, CONTROL(frathsm), {.caption = 342, .visible = false}},
    {TextBox, CONTROL(txtzmax), {.caption = "Zmax", .unit = "Ohm", .field = &R::txtzmax, .parent = "frathsm"}},
    {TextBox, CONTROL(txtfs), {.caption = "Fs", .unit = "Hz", .field = &R::txtfs, .parent = "frathsm"}},
    {TextBox, CONTROL(txtrvc), {.caption = "Re", .unit = "Ohm", .field = &R::txtrvc, .parent = "frathsm"}},
    {TextBox, CONTROL(txtqmesin), {.caption = "Qms", .field = &R::txtqmesin, .parent = "frathsm"}},
    {TextBox, CONTROL(txtbw), {.caption = "Bw", .unit = "Hz", .field = &R::txtbw, .parent = "frathsm", .locked = true, .back = kGrey}},
    {TextBox, CONTROL(txtbl), {.caption = "B l ", .unit = "Wb/m - T x m", .field = &R::txtbl, .parent = "frathsm"}},
    {Label, CONTROL(lbld), {.caption = "D", .parent = "frathsm"}},
    {TextBox, CONTROL(txtd), {.unit = "mm", .field = &R::txtd, .parent = "frathsm"}},
    {TextBox, CONTROL(txtsd), {.caption = "Sd", .unit = "m²", .field = &R::txtsd, .parent = "frathsm"}},
    {TextBox, CONTROL(txtfl), {.caption = "Fl", .unit = "Hz", .field = &R::txtfl, .parent = "frathsm"}},
    {TextBox, CONTROL(txtfh), {.caption = "Fh", .unit = "Hz", .field = &R::txtfh, .parent = "frathsm"}},
    {TextBox, CONTROL(txtzmin), {.caption = "Zmin", .unit = "Ohm", .field = &R::txtzmin, .parent = "frathsm"}},
    {TextBox, CONTROL(txtqmes), {.caption = "Qms", .field = &R::txtqmes, .parent = "frathsm"}},
    {TextBox, CONTROL(txtqes), {.caption = "Qes", .field = &R::txtqes, .parent = "frathsm"}},
    {TextBox, CONTROL(txtqts), {.caption = "Qts", .field = &R::txtqts, .parent = "frathsm"}},
    {TextBox, CONTROL(txtmms), {.caption = "Mms", .unit = "Kg", .field = &R::txtmms, .parent = "frathsm"}},
    {TextBox, CONTROL(txtvas), {.caption = "Vas", .unit = "m³", .field = &R::txtvas, .parent = "frathsm"}},
    {TextBox, CONTROL(txtlces), {.caption = "Lces", .unit = "mH", .field = &R::txtlces, .parent = "frathsm"}},
    {TextBox, CONTROL(txtcmes), {.caption = "Cmes", .unit = "µF", .field = &R::txtcmes, .parent = "frathsm"}},
    {TextBox, CONTROL(txtrmes), {.caption = "Res", .unit = "Ohm", .field = &R::txtrmes, .parent = "frathsm"}},
    {TextBox, CONTROL(txtcms), {.caption = "Cms", .unit = "m/N", .field = &R::txtcms, .parent = "frathsm"}},
    {TextBox, CONTROL(txtrms), {.caption = "Rms", .unit = "N/m x s", .field = &R::txtrms, .parent = "frathsm"}},
    {TextBox, CONTROL(txtcas), {.caption = "Cas", .unit = "m^5/N", .field = &R::txtcas, .parent = "frathsm"}},
    {TextBox, CONTROL(txtmas), {.caption = "Mas", .unit = "Kg/m^4", .field = &R::txtmas, .parent = "frathsm"}},
    {TextBox, CONTROL(txtras), {.caption = "Ras", .unit = "N/m^5 x s", .field = &R::txtras, .parent = "frathsm"}},
    {Button, CONTROL(cmdcalcola), {.caption = 343, .parent = "frathsm", .enabled = false}},
    {Button, CONTROL(cmdreset), {.caption = "&Reset", .parent = "frathsm"}},
    {ProgressBar, CONTROL(prgbar), {.parent = "frathsm", .visible = false}},

    {Frame, CONTROL(fradim), {.caption = 198, .visible = false}},
    {TextBox, CONTROL(txtforo), {.caption = 392, .unit = "mm", .field = &R::txtforo, .parent = "fradim"}},
    {TextBox, CONTROL(txtprof), {.caption = 393, .unit = "mm", .field = &R::txtprof, .parent = "fradim"}},
    {TextBox, CONTROL(txtlagmagne), {.caption = 394, .unit = "mm", .field = &R::txtlagmagne, .parent = "fradim"}},
    {TextBox, CONTROL(txtprofmag), {.caption = 395, .unit = "mm", .field = &R::txtprofmag, .parent = "fradim"}},
    {TextBox, CONTROL(txtesterno), {.caption = 396, .unit = "mm", .field = &R::txtesterno, .parent = "fradim"}},
    {TextBox, CONTROL(txtspesbordo), {.caption = 397, .unit = "mm", .field = &R::txtspesbordo, .parent = "fradim"}},
    {TextBox, CONTROL(txtdiambob), {.caption = 398, .unit = "mm", .field = &R::txtdiambob, .parent = "fradim"}},
    {TextBox, CONTROL(txtvolume), {.caption = 399, .unit = "l", .field = &R::txtvolume, .parent = "fradim"}},
    {Button, CONTROL(cmdnext1), {.caption = 359, .parent = "fradim", .enabled = false}},

    {Frame, CONTROL(frabox), {.caption = 198, .visible = false}},
    {Frame, CONTROL(fradatiprog), {.caption = 383, .parent = "frabox"}},
    {ComboBox, CONTROL(cmbnumdriver), {.caption = 384, .field = &R::cmbnumdriver, .parent = "fradatiprog", .text = "1", .list = {"1", "2", "3", "4"}}},
    {TextBox, CONTROL(txtvolnetto), {.caption = 385, .unit = "l", .field = &R::txtvolnetto, .parent = "fradatiprog", .back = kYellow, .tip = kTipRightButton}},
    {TextBox, CONTROL(txtingombro), {.caption = 386, .unit = "l", .field = &R::txtingombro, .parent = "fradatiprog"}},
    {TextBox, CONTROL(txtvoloccu), {.caption = 387, .unit = "l", .field = &R::txtvoloccu, .parent = "fradatiprog", .locked = true, .back = kGrey}},
    {TextBox, CONTROL(txtvolappa), {.caption = 388, .unit = "l", .field = &R::txtvolappa, .parent = "fradatiprog", .locked = true, .back = kGrey}},
    {TextBox, CONTROL(txtfb), {.caption = 389, .unit = "Hz", .field = &R::txtfb, .parent = "fradatiprog", .locked = true, .back = kGrey}},
    {TextBox, CONTROL(txtfstrasdu), {.caption = 390, .unit = "Hz", .field = &R::txtfstrasdu, .parent = "fradatiprog", .locked = true, .back = kGrey}},
    {TextBox, CONTROL(txtfreriso), {.caption = 391, .unit = "Hz", .field = &R::txtfreriso, .parent = "fradatiprog", .locked = true, .back = kGrey}},
    {ComboBox, CONTROL(cmbk), {.caption = "Gamma=Cp/Cv", .field = &R::cmbk, .parent = "fradatiprog", .text = "1.40",
                               .list = {"1.40(0%)", "1.27(10%)", "1.17(20%)", "1.12(25%)", "1.05(33%)"}}},
    {Frame, CONTROL(fratiporispo), {.caption = 258, .parent = "frabox"}},
    {Label, CONTROL(lblqtc), {.caption = "Qtc", .parent = "fratiporispo"}},
    {ComboBox, CONTROL(cmballi), {.field = &R::cmballi, .parent = "fratiporispo", .text = "0.707", .list = {"0.5", "0.707", "1.0", "1.4", "2.0"}}},
    {Frame, CONTROL(fraql), {.caption = 360, .parent = "frabox"}},
    {Label, CONTROL(lblperdita), {.caption = 361, .parent = "fraql"}},
    {ComboBox, CONTROL(cmbql), {.field = &R::cmbql, .parent = "fraql", .text = "7", .list = {"5", "7", "10", "15", "20"}}},
    {Frame, CONTROL(framisubox), {.caption = 362, .parent = "frabox"}},
    {ComboBox, CONTROL(cmbforma), {.caption = 363, .field = &R::cmbforma, .parent = "framisubox", .text = 504, .list = {504, 503}}},
    {ComboBox, CONTROL(cmbrappo), {.caption = 364, .field = &R::cmbrappo, .parent = "framisubox", .text = "1.62  1  0.62", .list = {"1.62  1  0.62", "1.25  1  0.8"}}},
    {TextBox, CONTROL(txtl), {.caption = 365, .unit = "Cm", .field = &R::txtl, .parent = "framisubox", .back = kYellow, .tip = kTipDoubleClick}},
    {TextBox, CONTROL(txth), {.caption = 366, .unit = "Cm", .field = &R::txth, .parent = "framisubox", .back = kYellow, .tip = kTipDoubleClick}},
    {TextBox, CONTROL(txtp), {.caption = 367, .unit = "Cm", .field = &R::txtp, .parent = "framisubox", .back = kYellow, .tip = kTipDoubleClick}},
    {Label, CONTROL(lblLD), {.caption = 368, .parent = "framisubox", .enabled = false}},
    {TextBox, CONTROL(txtld), {.unit = "Cm", .field = &R::txtld, .parent = "framisubox", .enabled = false}},
    {Label, CONTROL(lblgradi), {.caption = 369, .parent = "framisubox", .enabled = false}},
    {ComboBox, CONTROL(cmbgradi), {.unit = 370, .field = &R::cmbgradi, .parent = "framisubox", .text = "15", .list = {"7.5", "10", "15", "20"}, .enabled = false}},
    {TextBox, CONTROL(txtboxvolume), {.caption = 371, .unit = "l", .field = &R::txtboxvolume, .parent = "framisubox", .locked = true, .back = kGrey}},
    {Picture, ELEMENT(imgbox, 0), {.parent = "framisubox"}},
    {Picture, ELEMENT(imgbox, 1), {.parent = "framisubox", .visible = false}},
    {Frame, CONTROL(fravented), {.caption = 372, .parent = "frabox"}},
    {ComboBox, CONTROL(cmbnumcond), {.caption = 373, .field = &R::cmbnumcond, .parent = "fravented", .text = "1", .list = {"1", "2", "3", "4", "5", "6"}}},
    {Label, CONTROL(lblsezione), {.caption = 374, .parent = "fravented"}},
    {Picture, ELEMENT(imgforma, 0), {.parent = "fravented"}},
    {Picture, ELEMENT(imgforma, 1), {.parent = "fravented", .visible = false}},
    {TextBox, CONTROL(txtlungmis), {.caption = 375, .unit = "Cm", .field = &R::txtlungmis, .parent = "fravented"}},
    {TextBox, CONTROL(txtlungappa), {.caption = 376, .unit = "Cm", .field = &R::txtlungappa, .parent = "fravented", .locked = true, .back = kGrey}},
    {Label, CONTROL(lblDoL), {.caption = 377, .parent = "fravented"}},
    {ComboBox, CONTROL(cmbDoa), {.field = &R::cmbDoa, .parent = "fravented",
                                 .list = {"3.5", "4.5", "5.7", "6.6", "7.5", "9.5", "10.4", "12.1", "13.4", "15.56", "19.2"}}},
    {Label, CONTROL(lblUoX), {.caption = "Cm", .parent = "fravented"}},
    {TextBox, CONTROL(txtb), {.field = &R::txtb, .parent = "fravented", .visible = false}},
    {Label, CONTROL(lblunib), {.caption = "Cm", .parent = "fravented", .visible = false}},
    {TextBox, CONTROL(txtareasez), {.caption = 380, .unit = "Cm²", .field = &R::txtareasez, .parent = "fravented", .locked = true, .back = kGrey}},
    {TextBox, CONTROL(txtseztot), {.caption = 381, .unit = "Cm²", .field = &R::txtseztot, .parent = "fravented", .locked = true, .back = kGrey}},
    {TextBox, CONTROL(txtminsv), {.caption = 382, .unit = "Cm²", .field = &R::txtminsv, .parent = "fravented", .locked = true, .back = kGrey}},

    {Frame, CONTROL(fraimpo), {.caption = 338, .visible = false}},
    {TextBox, CONTROL(txttemperatura), {.caption = 339, .unit = "°C", .field = &R::txttemperatura, .parent = "fraimpo"}},
    {TextBox, CONTROL(txtpressione), {.caption = 340, .unit = "Pa", .field = &R::txtpressione, .parent = "fraimpo"}},
    {TextBox, CONTROL(txtvelocita), {.caption = 341, .unit = "m/s", .field = &R::txtvelocita, .parent = "fraimpo", .locked = true, .back = kGrey}},
    {Button, CONTROL(cmddefault), {.caption = "&Default", .parent = "fraimpo"}},

    {Menu, CONTROL(mnufile), {.caption = "&File"}},
    {MenuEntry, CONTROL(mnuimportadati), {.caption = 417, .parent = "mnufile"}},
    {MenuEntry, CONTROL(mnuimporta), {.caption = 418, .parent = "mnufile"}},
    {MenuEntry, CONTROL(mnusalvadir), {.caption = 419, .parent = "mnufile"}},
    {MenuEntry, CONTROL(mnusalva), {.caption = 420, .parent = "mnufile"}},
    {MenuEntry, CONTROL(mnustampa), {.caption = 421, .parent = "mnufile"}},
    {MenuEntry, CONTROL(mnugrafico), {.caption = 422, .parent = "mnufile"}},
    {MenuEntry, CONTROL(mnuesci), {.caption = 423, .parent = "mnufile"}},
    {Menu, CONTROL(mnumodifica), {.caption = 424}},
    {MenuEntry, CONTROL(mnuannullasequenza), {.caption = 425, .parent = "mnumodifica"}},
    {MenuEntry, CONTROL(mnuannulla), {.caption = 426, .parent = "mnumodifica"}},
    {MenuEntry, CONTROL(mnucalcolatrice), {.caption = 414, .parent = "mnumodifica"}},
    {Menu, CONTROL(mnuinfo), {.caption = "&?"}},
    {MenuEntry, CONTROL(mnuguida), {.caption = 415, .parent = "mnuinfo"}},
    {MenuEntry, CONTROL(mnuinformazioni), {.caption = 416, .parent = "mnuinfo"}},
};
// clang-format on

}  // namespace

Sheet::Sheet(ProjectState& state) {
  window.name = "frmthsm";
  window.caption_design = 337;
  window.values = {{"LastTilt", &LastTilt}, {"TempBefore", &TempBefore}, {"PressBefore", &PressBefore}};
  DescribeWindow(*this, state, kRows);
}

bool Sheet::HasTab(std::string_view key) const {
  return std::any_of(tabs.begin(), tabs.end(), [&](const TabStripItem& tab) { return tab.key == key; });
}

void Sheet::InsertBoxTab(std::string_view key, std::string caption) {
  if (!HasTab(key)) tabs.insert(tabs.begin() + kBoxTabPlace, {std::string(key), std::move(caption)});
}

void Sheet::RemoveBoxTabs() {
  while (tabs.size() > kFixedTabs) tabs.erase(tabs.begin() + kBoxTabPlace);
}

}  // namespace zefirondo
