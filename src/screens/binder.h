// The controls of one window, each tied to its widget. The binder does the same for all windows: it brings the
// widgets in line with the data, and turns what a person does to them into acts.
//
// No widget takes the focus by itself: a press asks the program first, whose tests may hold the focus where it
// is. Qt's focus is put where the program's is, after each act.
#pragma once

#include <QHash>
#include <QObject>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "screens/pair.h"
#include "screens/stage.h"

class QContextMenuEvent;
class QKeyEvent;
class QLabel;
class QMouseEvent;
class QShortcutEvent;

namespace zefirondo::screens {

class Binder : public QObject {
 public:
  explicit Binder(Stage& stage) : stage_(stage) {}

  [[nodiscard]] Stage& stage() const { return stage_; }

  /// Ties a control to the widget of its kind. A label that stands in two places may be tied twice.
  Pair& Bind(Control& control, QWidget* widget);

  /// Ties the words beside a field, and behind it.
  void BindWords(Pair& field, QLabel* words, QLabel* unit);

  /// Answers the keys that reach a window while none of its controls has the focus: Tab leads into it.
  void WatchGround(QWidget* ground, Window& window);

  /// Has a routine run each time after the widgets were brought in line, for what is no widget of a control.
  void Follow(std::function<void()> routine) { followers_.push_back(std::move(routine)); }

  /// Brings all widgets in line with their controls.
  void Show();

  [[nodiscard]] Pair* Find(const Control& control) const { return by_control_.value(&control); }

  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Watch(QObject* object, Pair& pair);
  void ConnectSignals(Pair& pair);
  bool Shortcut(const QObject* object, const QShortcutEvent& event);
  [[nodiscard]] bool HasTwin(const Pair& pair) const;
  bool WidgetEvent(Pair& pair, QObject* object, QEvent& event);
  bool MousePressed(Pair& pair, const QObject* object, const QMouseEvent& event);
  bool PressedField(Pair& pair, const QObject* object);
  bool MouseReleased(Pair& pair, const QMouseEvent& event);
  bool DoubleClicked(Pair& pair, const QObject* object, const QMouseEvent& event);
  bool ContextMenu(Pair& pair, const QContextMenuEvent& event);
  bool KeyPressed(Pair& pair, const QKeyEvent& event);
  bool CommonKey(Pair& pair, const QKeyEvent& event);
  bool FieldKey(Pair& pair, const QKeyEvent& event);
  bool ButtonKey(Pair& pair, const QKeyEvent& event);
  void SelectNeighbourOption(const Control& option, int step);
  bool GroundKey(Window& window, const QKeyEvent& event);
  bool SheetKey(const Window& window, const QKeyEvent& event);
  void EnterWindow(Window& window, bool backwards);
  void SelectNeighbourTab(int step);
  void SelectTabAt(int place);
  bool Arrive(Pair& pair);
  void Edited(Pair& pair);
  void Press(int key);
  void TypeText(const QString& text);

  Stage& stage_;
  std::vector<std::unique_ptr<Pair>> pairs_;
  QHash<const QObject*, Pair*> watched_;
  QHash<const QObject*, Window*> grounds_;
  QHash<const Control*, Pair*> by_control_;
  std::vector<std::function<void()>> followers_;
  const QObject* swallowed_ = nullptr;  // the widget whose last press was kept from it
};

}  // namespace zefirondo::screens
