#include "screens/menu_bar.h"

#include <QAction>
#include <QMenu>

#include "core/acts.h"
#include "core/window_life.h"
#include "screens/qt_text.h"

namespace zefirondo::screens {

QMenu* MenuBar::MakeMenu(const Control& control) {
  auto* const menu = new QMenu(this);
  menu->setObjectName(QString::fromStdString(control.FullName()));
  return menu;
}

QAction* MenuBar::MakeEntry(Control& control) {
  auto* const action = new QAction(this);
  action->setObjectName(QString::fromStdString(control.FullName()));
  connect(action, &QAction::triggered, this,
          [this, &control] { stage_.Act([&] { Choose(stage_.program, control); }); });
  return action;
}

/// Puts an action into the menu that it belongs to, or on the bar.
void MenuBar::AddAction(Control& control, QAction* action, const std::map<const Control*, QMenu*>& menus, Menus& made) {
  const auto menu = menus.find(control.parent);
  if (menu == menus.end()) {
    made.bar.push_back(action);
  } else {
    menu->second->addAction(action);
  }
  made.entries.push_back({&control, action});
}

const MenuBar::Menus& MenuBar::MenusOf(Window& window) {
  const auto [place, is_new] = made_.try_emplace(&window);
  Menus& made = place->second;
  if (!is_new) return made;
  std::map<const Control*, QMenu*> menus;
  for (Control* const control : window.controls) {
    if (control->kind == ControlKind::Menu) {
      QMenu* const menu = MakeMenu(*control);
      menus.emplace(control, menu);
      AddAction(*control, menu->menuAction(), menus, made);
    } else if (control->kind == ControlKind::MenuEntry) {
      AddAction(*control, MakeEntry(*control), menus, made);
    }
  }
  return made;
}

void MenuBar::ShowMenus() {
  Window& window = MenuBarWindow(stage_.program);
  const Menus& menus = MenusOf(window);
  for (const auto& [control, action] : menus.entries) {
    action->setText(ToQt(*control->text));
    action->setEnabled(control->enabled);
    action->setVisible(control->visible);
    if (control->checked) action->setCheckable(true);
    action->setChecked(control->checked);
  }
  if (shown_ == &window) return;
  shown_ = &window;
  clear();
  for (QAction* const action : menus.bar) addAction(action);
}

}  // namespace zefirondo::screens
