#include "screens/binder.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTabBar>
#include <algorithm>

#include "core/acts.h"
#include "core/fields.h"
#include "screens/plot_widget.h"
#include "screens/qt_text.h"

namespace zefirondo::screens {
namespace {

/// Whether each key has to go through the program's filter before it reaches the field.
bool FiltersKeys(const Control& control) {
  const bool filter = control.rules != nullptr && control.rules->filter != KeyFilter::AnyKey;
  return filter || control.on.key != nullptr;
}

bool IsEnter(const QKeyEvent& event) { return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter; }

bool WithCommand(const QKeyEvent& event) {
  return (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != Qt::NoModifier;
}

bool IsPlainBackspace(const QKeyEvent& event) { return event.key() == Qt::Key_Backspace && !WithCommand(event); }

bool HasCharacter(const QKeyEvent& event) {
  const QList<uint> characters = event.text().toUcs4();
  return !characters.isEmpty() && QChar::isPrint(characters.front());
}

/// Whether a key enters a character.
bool Types(const QKeyEvent& event) { return HasCharacter(event) && !WithCommand(event); }

/// A mnemonic that leads nowhere at the moment: a field would take it for its letter.
bool IsIdleMnemonic(const QKeyEvent& event) {
  return HasCharacter(event) && (event.modifiers() & Qt::AltModifier) != 0;
}

bool OpensList(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_F4: return true;
    default: return false;
  }
}

bool IsBackTab(const QKeyEvent& event) {
  return event.key() == Qt::Key_Backtab || (event.modifiers() & Qt::ShiftModifier) != 0;
}

bool IsTab(const QKeyEvent& event) {
  return (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab) && !WithCommand(event);
}

bool IsArrow(const QKeyEvent& event) {
  return event.key() == Qt::Key_Left || event.key() == Qt::Key_Right || event.key() == Qt::Key_Up ||
         event.key() == Qt::Key_Down;
}

}  // namespace

Pair& Binder::Bind(Control& control, QWidget* widget) {
  Pair& pair = *pairs_.emplace_back(std::make_unique<Pair>());
  pair.control = &control;
  pair.widget = widget;
  if (!control.IsField()) pair.back = control.back;
  if (!by_control_.contains(&control)) by_control_.insert(&control, &pair);
  if (control.TakesFocus()) widget->setFocusPolicy(Qt::TabFocus);
  if (control.kind == ControlKind::Label) {
    widget->installEventFilter(this);
  } else if (control.kind != ControlKind::Frame) {
    Watch(widget, pair);
    ConnectSignals(pair);
  }
  return pair;
}

void Binder::BindWords(Pair& field, QLabel* words, QLabel* unit) {
  field.words = words;
  field.unit = unit;
  if (words == nullptr) return;
  words->setBuddy(field.widget);
  words->installEventFilter(this);
}

void Binder::WatchGround(QWidget* ground, Window& window) {
  grounds_.insert(ground, &window);
  ground->installEventFilter(this);
}

void Binder::Watch(QObject* object, Pair& pair) {
  watched_.insert(object, &pair);
  object->installEventFilter(this);
}

void Binder::ConnectSignals(Pair& pair) {
  Control& control = *pair.control;
  if (auto* const combo = qobject_cast<QComboBox*>(pair.widget)) {
    Watch(combo->lineEdit(), pair);
    connect(combo, &QComboBox::activated, this, [this, &control, combo](int index) {
      const std::string item = FromQt(combo->itemText(index));
      stage_.Act([&] { Pick(stage_.program, control, item); });
    });
  }
  if (QLineEdit* const line = pair.Line()) {
    connect(line, &QLineEdit::textEdited, this, [this, &pair] { Edited(pair); });
  } else if (auto* const edit = qobject_cast<QPlainTextEdit*>(pair.widget)) {
    Watch(edit->viewport(), pair);
    connect(edit, &QPlainTextEdit::textChanged, this, [this, &pair] { Edited(pair); });
  } else if (auto* const button = qobject_cast<QAbstractButton*>(pair.widget)) {
    connect(button, &QAbstractButton::clicked, this,
            [this, &control] { stage_.Act([&] { Click(stage_.program, control); }); });
  }
}

void Binder::Show() {
  // A page that comes into view is laid out at once, by what its widgets show then.
  for (const std::unique_ptr<Pair>& pair : pairs_) ShowContent(*pair, stage_.program);
  for (const std::unique_ptr<Pair>& pair : pairs_) ShowState(*pair);
  for (const std::function<void()>& follower : followers_) follower();
}

bool Binder::eventFilter(QObject* object, QEvent* event) {
  if (!stage_.Listening()) return false;
  if (event->type() == QEvent::Shortcut) return Shortcut(object, *static_cast<QShortcutEvent*>(event));
  if (Pair* const pair = watched_.value(object)) return pair->widget->isEnabled() && WidgetEvent(*pair, object, *event);
  Window* const window = grounds_.value(object);
  return window != nullptr && event->type() == QEvent::KeyPress && GroundKey(*window, *static_cast<QKeyEvent*>(event));
}

/// The mnemonic of a label leads to its field, as a person's act. One that a button shares with the menu bar is
/// the button's; one that two buttons share leads to each in turn.
bool Binder::Shortcut(const QObject* object, const QShortcutEvent& event) {
  if (const auto* const label = qobject_cast<const QLabel*>(object)) {
    Pair* const field = watched_.value(label->buddy());
    if (field != nullptr) Arrive(*field);
    return field != nullptr;
  }
  Pair* const button = watched_.value(object);
  if (button == nullptr || button->control->kind != ControlKind::Button || !event.isAmbiguous()) return false;
  Control& control = *button->control;
  stage_.Act([&] { HasTwin(*button) ? Focus(stage_.program, control) : Click(stage_.program, control); });
  return true;
}

/// Whether another button that can be pressed has the same mnemonic.
bool Binder::HasTwin(const Pair& pair) const {
  const QKeySequence key = static_cast<QAbstractButton*>(pair.widget)->shortcut();
  return std::any_of(pairs_.begin(), pairs_.end(), [&](const std::unique_ptr<Pair>& other) {
    const auto* const button = qobject_cast<const QAbstractButton*>(other->widget);
    return button != nullptr && button != pair.widget && button->isVisible() && button->isEnabled() &&
           button->shortcut() == key;
  });
}

bool Binder::WidgetEvent(Pair& pair, QObject* object, QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress: return MousePressed(pair, object, static_cast<QMouseEvent&>(event));
    case QEvent::MouseButtonDblClick: return DoubleClicked(pair, object, static_cast<QMouseEvent&>(event));
    case QEvent::MouseMove: return swallowed_ == object;
    case QEvent::MouseButtonRelease: {
      const bool swallow = swallowed_ == object;
      swallowed_ = nullptr;
      return MouseReleased(pair, static_cast<QMouseEvent&>(event)) || swallow;
    }
    case QEvent::ContextMenu: return ContextMenu(pair, static_cast<QContextMenuEvent&>(event));
    case QEvent::KeyPress: return KeyPressed(pair, static_cast<QKeyEvent&>(event));
    case QEvent::InputMethod:
      if (!FiltersKeys(*pair.control)) return false;
      TypeText(static_cast<QInputMethodEvent&>(event).commitString());
      return true;
    case QEvent::Wheel: {
      const bool own = pair.control->kind == ControlKind::ComboBox && pair.widget->hasFocus() && !pair.control->locked;
      const bool keep = pair.control->kind == ControlKind::ComboBox || pair.control->kind == ControlKind::TabStrip;
      if (own || !keep) return false;
      event.ignore();
      return true;
    }
    default: return false;
  }
}

/// Moves the program's focus to a control and its window to the front, unless both are there.
bool Binder::Arrive(Pair& pair) {
  Program& program = stage_.program;
  Control& control = *pair.control;
  const bool there = program.focus == &control && !program.order.empty() && program.order.front() == control.window;
  if (!there) stage_.Act([&] { Focus(program, control); });
  return program.focus == &control;
}

bool Binder::MousePressed(Pair& pair, const QObject* object, const QMouseEvent& event) {
  Control& control = *pair.control;
  Program& program = stage_.program;
  if (event.button() == Qt::RightButton && control.on.right_click != nullptr) {
    stage_.Act([&] { RightClick(program, control); });
    return true;
  }
  switch (control.kind) {
    case ControlKind::Plot: {
      const QPointF at = static_cast<PlotWidget*>(pair.widget)->ToUser(event.position());
      stage_.Act([&] { PressMouse(program, control, at.x(), at.y()); });
      return true;
    }
    case ControlKind::Picture: return true;
    case ControlKind::TabStrip:
      if (event.button() == Qt::LeftButton) SelectTabAt(static_cast<QTabBar*>(pair.widget)->tabAt(event.pos()));
      return true;
    case ControlKind::TextBox:
    case ControlKind::ComboBox: return PressedField(pair, object);
    default: return false;
  }
}

/// A press that gives a field the focus leaves it selected as the program did; the next one places the caret.
bool Binder::PressedField(Pair& pair, const QObject* object) {
  const bool had_focus = stage_.program.focus == pair.control;
  const bool arrived = Arrive(pair);
  const bool in_text = object != pair.widget || pair.control->kind == ControlKind::TextBox;
  bool swallow = !arrived;
  if (in_text) swallow = swallow || (!had_focus && pair.control->selection_length > 0);
  if (!in_text) swallow = swallow || pair.control->locked;
  if (swallow) swallowed_ = object;
  return swallow;
}

bool Binder::MouseReleased(Pair& pair, const QMouseEvent& event) {
  Control& control = *pair.control;
  if (control.kind == ControlKind::Plot) {
    stage_.Act([&] { ReleaseMouse(stage_.program, control); });
    return true;
  }
  if (control.kind != ControlKind::Picture || event.button() != Qt::LeftButton) return false;
  if (pair.widget->rect().contains(event.pos())) stage_.Act([&] { Click(stage_.program, control); });
  return true;
}

bool Binder::DoubleClicked(Pair& pair, const QObject* object, const QMouseEvent& event) {
  Control& control = *pair.control;
  if (control.on.double_click != nullptr && event.button() == Qt::LeftButton) {
    swallowed_ = object;
    stage_.Act([&] { DoubleClick(stage_.program, control); });
    return true;
  }
  return !control.IsField() && MousePressed(pair, object, event);
}

/// The right button was answered when it went down; the key that stands for it is answered here.
bool Binder::ContextMenu(Pair& pair, const QContextMenuEvent& event) {
  Control& control = *pair.control;
  if (control.on.right_click == nullptr) return false;
  if (event.reason() == QContextMenuEvent::Keyboard) stage_.Act([&] { RightClick(stage_.program, control); });
  return true;
}

bool Binder::KeyPressed(Pair& pair, const QKeyEvent& event) {
  if (CommonKey(pair, event)) return true;
  switch (pair.control->kind) {
    case ControlKind::TextBox:
    case ControlKind::ComboBox: return FieldKey(pair, event);
    case ControlKind::Button:
    case ControlKind::CheckBox:
    case ControlKind::Option: return ButtonKey(pair, event);
    case ControlKind::TabStrip:
      if (event.key() == Qt::Key_Left) SelectNeighbourTab(-1);
      if (event.key() == Qt::Key_Right) SelectNeighbourTab(+1);
      return IsArrow(event);
    default: return false;
  }
}

/// Keys that mean the same on every control.
bool Binder::CommonKey(Pair& pair, const QKeyEvent& event) {
  Program& program = stage_.program;
  Control& control = *pair.control;
  if (IsTab(event)) {
    stage_.Act([&] { IsBackTab(event) ? PressBackTab(program) : PressKey(program, key::kTab); });
    return true;
  }
  if (SheetKey(*control.window, event)) return true;
  if (event.key() == Qt::Key_F2 && control.on.double_click != nullptr) {
    stage_.Act([&] { DoubleClick(program, control); });
    return true;
  }
  return false;
}

bool Binder::FieldKey(Pair& pair, const QKeyEvent& event) {
  const Control& control = *pair.control;
  if (control.kind == ControlKind::ComboBox && control.locked && OpensList(event)) return true;
  if (IsIdleMnemonic(event)) return true;
  if (IsEnter(event)) {
    if (Arrive(pair)) Press(key::kEnter);
    return true;
  }
  if (!FiltersKeys(control) || !(Types(event) || IsPlainBackspace(event))) return false;
  if (!Arrive(pair)) return true;
  IsPlainBackspace(event) ? Press(key::kBackspace) : TypeText(event.text());
  return true;
}

bool Binder::ButtonKey(Pair& pair, const QKeyEvent& event) {
  const bool pushes = (IsEnter(event) || event.key() == Qt::Key_Space) && !WithCommand(event);
  if (pushes && !event.isAutoRepeat()) stage_.Act([&] { Click(stage_.program, *pair.control); });
  if (IsArrow(event) && pair.control->kind == ControlKind::Option) {
    const bool back = event.key() == Qt::Key_Left || event.key() == Qt::Key_Up;
    SelectNeighbourOption(*pair.control, back ? -1 : +1);
  }
  return pushes || IsArrow(event);
}

/// The arrow keys go from one option of a frame to the next.
void Binder::SelectNeighbourOption(const Control& option, int step) {
  std::vector<Control*> options = option.window->controls;
  std::erase_if(options, [&](const Control* other) {
    return other->kind != ControlKind::Option || other->parent != option.parent ||
           WhyNot(stage_.program, *other) != Refusal::None;
  });
  const auto here = std::find(options.begin(), options.end(), &option);
  const std::ptrdiff_t place = here - options.begin() + step;
  if (here == options.end() || place < 0 || place >= std::ssize(options)) return;
  stage_.Act([&] { Click(stage_.program, *options[static_cast<std::size_t>(place)]); });
}

/// The page keys with Ctrl turn the pages of the sheet.
bool Binder::SheetKey(const Window& window, const QKeyEvent& event) {
  const bool page_key = event.key() == Qt::Key_PageUp || event.key() == Qt::Key_PageDown;
  const bool sheet = &window == &stage_.program.windows.frmthsm.window;
  if (!sheet || !page_key || (event.modifiers() & Qt::ControlModifier) == 0) return false;
  SelectNeighbourTab(event.key() == Qt::Key_PageUp ? -1 : +1);
  return true;
}

bool Binder::GroundKey(Window& window, const QKeyEvent& event) {
  if (IsTab(event)) EnterWindow(window, IsBackTab(event));
  return IsTab(event) || SheetKey(window, event);
}

/// Leads to the first control of the window that a person can reach, or to the last.
void Binder::EnterWindow(Window& window, bool backwards) {
  Program& program = stage_.program;
  std::vector<Control*> controls = window.controls;
  if (backwards) std::reverse(controls.begin(), controls.end());
  const auto first = std::find_if(controls.begin(), controls.end(), [&](const Control* control) {
    return control->TakesFocus() && WhyNot(program, *control) == Refusal::None;
  });
  if (first != controls.end()) stage_.Act([&] { Focus(program, **first); });
}

void Binder::SelectTabAt(int place) {
  const std::vector<TabStripItem>& tabs = stage_.program.windows.frmthsm.tabs;
  if (place < 0 || place >= static_cast<int>(tabs.size())) return;
  const std::string key = tabs[static_cast<std::size_t>(place)].key;
  stage_.Act([&] { ClickTab(stage_.program, key); });
}

void Binder::SelectNeighbourTab(int step) {
  const Sheet& sheet = stage_.program.windows.frmthsm;
  int place = 0;
  for (const TabStripItem& tab : sheet.tabs) {
    if (tab.key == sheet.selected_tab) break;
    ++place;
  }
  SelectTabAt(place + step);
}

/// An edit of Qt's own, such as a paste or a cut, reaches the program as one change.
void Binder::Edited(Pair& pair) {
  const std::string text = FieldText(pair);
  stage_.Act([&] {
    Paste(stage_.program, *pair.control, text);
    if (*pair.control->text == text) ReadCaret(pair);
  });
}

void Binder::Press(int key) {
  stage_.Act([&] { PressKey(stage_.program, key); });
}

void Binder::TypeText(const QString& text) {
  for (const uint character : text.toUcs4()) Press(static_cast<int>(character));
}

}  // namespace zefirondo::screens
