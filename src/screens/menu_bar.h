// The menu bar of the frame: that of the window whose turn it is.
#pragma once

#include <QMenuBar>
#include <map>
#include <vector>

#include "screens/stage.h"

namespace zefirondo::screens {

class MenuBar : public QMenuBar {
 public:
  explicit MenuBar(Stage& stage) : stage_(stage) {}

  /// Shows the menus of the window that the program names, as they stand in the data.
  void ShowMenus();

 private:
  struct Entry {
    Control* control;
    QAction* action;
  };
  struct Menus {
    std::vector<QAction*> bar;  // what stands on the bar itself
    std::vector<Entry> entries;
  };

  const Menus& MenusOf(Window& window);
  QMenu* MakeMenu(const Control& control);
  QAction* MakeEntry(Control& control);
  static void AddAction(Control& control, QAction* action, const std::map<const Control*, QMenu*>& menus, Menus& made);

  Stage& stage_;
  std::map<const Window*, Menus> made_;
  const Window* shown_ = nullptr;
};

}  // namespace zefirondo::screens
