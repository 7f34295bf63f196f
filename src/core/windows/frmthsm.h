// `frmthsm`, the one central window of a project: the transducer, the air, and the box once it is designed.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/controls.h"

namespace zefirondo {

struct Sheet {
  Window window;

  // The tabs, always "gen", "par", "dim", then the box tabs "chi" and "ref", and "imp" at the end.
  Control TabStrip1;
  std::vector<TabStripItem> tabs;
  std::string selected_tab;

  Control fragenerale, txtproduttore, txtmarca, txtmodello, txtdatifor, txtdatacreaz, txtcommento;
  Control fraspecifiche, txtpotenza, txtimpedenza, txtsensibilita, txthg, txtxmax, txtrendimento, txtle, cmbnumvc;
  Control cmdnext;

  Control frathsm, txtzmax, txtzmin, txtfs, txtfl, txtfh, txtrvc, txtqmesin, txtbw, txtbl, lbld, txtd, txtsd;
  Control txtlces, txtcmes, txtrmes, txtqmes, txtqes, txtqts, txtcms, txtmms, txtrms, txtcas, txtmas, txtras, txtvas;
  Control cmdcalcola, cmdreset, prgbar;

  Control fradim, txtforo, txtprof, txtlagmagne, txtprofmag, txtesterno, txtspesbordo, txtdiambob, txtvolume;
  Control cmdnext1;

  Control frabox;
  Control fradatiprog, cmbnumdriver, txtvolnetto, txtingombro, txtvoloccu, txtvolappa, txtfb, txtfstrasdu, txtfreriso;
  Control cmbk;
  Control fratiporispo, lblqtc, cmballi;
  Control fraql, lblperdita, cmbql;
  Control framisubox, cmbforma, cmbrappo, txtl, txth, txtp, lblLD, txtld, lblgradi, cmbgradi, txtboxvolume;
  std::array<Control, 2> imgbox;  // 0 the prism, 1 the trapezoid
  Control fravented, cmbnumcond, lblsezione, txtlungmis, txtlungappa, lblDoL, cmbDoa, lblUoX, txtb, lblunib;
  std::array<Control, 2> imgforma;  // 0 a round section, 1 a rectangular one
  Control txtareasez, txtseztot, txtminsv;

  Control fraimpo, txttemperatura, txtpressione, txtvelocita, cmddefault;

  Control mnufile, mnuimportadati, mnuimporta, mnusalvadir, mnusalva, mnustampa, mnugrafico, mnuesci;
  Control mnumodifica, mnuannullasequenza, mnuannulla, mnucalcolatrice;
  Control mnuinfo, mnuguida, mnuinformazioni;

  double LastTilt = 0.0;   // degrees, the tilt that was last accepted
  std::string TempBefore;  // the texts of the air when its page was entered
  std::string PressBefore;

  explicit Sheet(ProjectState& state);

  [[nodiscard]] bool HasTab(std::string_view key) const;
  /// Inserts a tab before the last one; a tab that is there already stays the only one of its key.
  void InsertBoxTab(std::string_view key, std::string caption);
  /// Removes box tabs until the four fixed ones are left.
  void RemoveBoxTabs();
  /// Whether the ports have a round section.
  [[nodiscard]] bool RoundPort() const { return imgforma[0].visible; }
};

}  // namespace zefirondo
