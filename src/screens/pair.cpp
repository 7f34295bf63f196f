#include "screens/pair.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTabBar>
#include <algorithm>

#include "screens/looks.h"
#include "screens/qt_text.h"

namespace zefirondo::screens {
namespace {

/// The stretch in which two texts differ: what stands there in the old one gives way to what stands there in
/// the new one.
struct Change {
  qsizetype start = 0;
  qsizetype length = 0;
  QString text;
};

Change Difference(const QString& before, const QString& after) {
  const qsizetype shorter = std::min(before.size(), after.size());
  qsizetype head = 0;
  while (head < shorter && before[head] == after[head]) ++head;
  qsizetype tail = 0;
  while (tail < shorter - head && before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) ++tail;
  return {head, before.size() - head - tail, after.mid(head, after.size() - head - tail)};
}

/// Changes only what differs where the person is typing, so that what was typed can be undone.
void ShowLine(QLineEdit& line, const QString& text, bool editing) {
  if (line.text() == text) return;
  if (!editing) {
    line.setText(text);
    line.setCursorPosition(0);
    return;
  }
  const Change change = Difference(line.text(), text);
  line.setSelection(static_cast<int>(change.start), static_cast<int>(change.length));
  if (change.length == 0) line.setCursorPosition(static_cast<int>(change.start));
  line.insert(change.text);
}

void ShowPlainText(QPlainTextEdit& edit, const QString& text) {
  const QString before = edit.toPlainText();
  if (before == text) return;
  const Change change = Difference(before, text);
  QTextCursor cursor(edit.document());
  cursor.setPosition(static_cast<int>(change.start));
  cursor.setPosition(static_cast<int>(change.start + change.length), QTextCursor::KeepAnchor);
  cursor.insertText(change.text);
}

void ShowList(Pair& pair, QComboBox& combo) {
  if (pair.list == pair.control->list) return;
  pair.list = pair.control->list;
  combo.clear();
  for (const std::string& item : pair.list) combo.addItem(ToQt(item));
}

void ShowCombo(Pair& pair, QComboBox& combo, bool editing) {
  const QSignalBlocker quiet(combo);
  ShowList(pair, combo);
  const QString text = ToField(*pair.control->text);
  const int index = combo.findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
  if (!editing && combo.currentIndex() != index) combo.setCurrentIndex(index);
  ShowLine(*combo.lineEdit(), text, editing);
}

void ShowTabs(QTabBar& bar, const Sheet& sheet) {
  const int count = static_cast<int>(sheet.tabs.size());
  while (bar.count() > count) bar.removeTab(bar.count() - 1);
  while (bar.count() < count) bar.addTab(QString());
  for (int i = 0; i < count; ++i) {
    const TabStripItem& tab = sheet.tabs[static_cast<std::size_t>(i)];
    const QString caption = ToQt(tab.caption);
    if (bar.tabText(i) != caption) bar.setTabText(i, caption);
    if (tab.key == sheet.selected_tab && bar.currentIndex() != i) bar.setCurrentIndex(i);
  }
}

void ShowWords(QLabel* label, const std::string& words, const Control& control) {
  if (label == nullptr) return;
  const QString text = ToQt(words);
  if (label->text() != text) label->setText(text);
  if (label->isHidden() == control.visible) label->setVisible(control.visible);
  if (label->isEnabledTo(label->parentWidget()) != control.enabled) label->setEnabled(control.enabled);
}

template <class Widget>
void ShowCaption(Widget& widget, const std::string& caption) {
  const QString text = ToQt(caption);
  if (widget.text() != text) widget.setText(text);
}

void ShowFrame(Pair& pair) {
  if (auto* const box = qobject_cast<QGroupBox*>(pair.widget)) {
    const QString title = ToQt(*pair.control->text);
    if (box->title() != title) box->setTitle(title);
  } else if (pair.words != nullptr) {
    ShowCaption(*pair.words, *pair.control->text);
  }
}

void ShowText(Pair& pair, const Program& program) {
  Control& control = *pair.control;
  const bool editing = program.focus == &control;
  switch (control.kind) {
    case ControlKind::TextBox:
      if (QLineEdit* const line = pair.Line()) {
        ShowLine(*line, ToField(*control.text), editing);
      } else {
        ShowPlainText(*static_cast<QPlainTextEdit*>(pair.widget), ToField(*control.text));
      }
      break;
    case ControlKind::ComboBox: ShowCombo(pair, *static_cast<QComboBox*>(pair.widget), editing); break;
    case ControlKind::Label: ShowCaption(*static_cast<QLabel*>(pair.widget), *control.text); break;
    case ControlKind::Button:
    case ControlKind::CheckBox:
    case ControlKind::Option: ShowCaption(*static_cast<QAbstractButton*>(pair.widget), *control.text); break;
    case ControlKind::Frame: ShowFrame(pair); break;
    case ControlKind::TabStrip: ShowTabs(*static_cast<QTabBar*>(pair.widget), program.windows.frmthsm); break;
    case ControlKind::ProgressBar: static_cast<QProgressBar*>(pair.widget)->setValue(control.progress); break;
    default: break;
  }
}

void ShowLooks(Pair& pair) {
  const Control& control = *pair.control;
  if (pair.tip != control.tip) {
    pair.tip = control.tip;
    pair.widget->setToolTip(ToQt(control.tip));
  }
  if (pair.back == control.back && pair.fore == control.fore) return;
  pair.back = control.back;
  pair.fore = control.fore;
  ShowColours(*pair.widget, pair.back, pair.fore);
}

/// A field is called by the words beside it, be they its own or those of a label.
void ShowSpokenName(Pair& pair) {
  const Control& control = *pair.control;
  const auto* const label = qobject_cast<const QLabel*>(pair.widget);
  const std::string& name = control.IsField() ? control.label : *control.text;
  QWidget* const named = label == nullptr ? pair.widget : label->buddy();
  if ((!control.IsField() && label == nullptr) || named == nullptr || name.empty() || pair.spoken == name) return;
  pair.spoken = name;
  named->setAccessibleName(Spoken(name));
}

}  // namespace

QLineEdit* Pair::Line() const {
  if (auto* const combo = qobject_cast<QComboBox*>(widget)) return combo->lineEdit();
  return qobject_cast<QLineEdit*>(widget);
}

void ShowState(Pair& pair) {
  const Control& control = *pair.control;
  QWidget& widget = *pair.widget;
  if (auto* const pages = qobject_cast<QStackedWidget*>(widget.parentWidget())) {
    if (control.visible && pages->currentWidget() != &widget) pages->setCurrentWidget(&widget);
  } else if (widget.isHidden() == control.visible) {
    widget.setVisible(control.visible);
  }
  if (widget.isEnabledTo(widget.parentWidget()) != control.enabled) widget.setEnabled(control.enabled);
  if (QLineEdit* const line = pair.Line()) {
    if (line->isReadOnly() != control.locked) line->setReadOnly(control.locked);
  } else if (auto* const edit = qobject_cast<QPlainTextEdit*>(&widget)) {
    if (edit->isReadOnly() != control.locked) edit->setReadOnly(control.locked);
  } else if (auto* const button = qobject_cast<QAbstractButton*>(&widget); button != nullptr && button->isCheckable()) {
    if (button->isChecked() != control.checked) button->setChecked(control.checked);
  }
}

void ShowContent(Pair& pair, const Program& program) {
  ShowText(pair, program);
  if (pair.control->IsField()) {
    ShowWords(pair.words, pair.control->label, *pair.control);
    ShowWords(pair.unit, pair.control->unit, *pair.control);
  }
  ShowLooks(pair);
  ShowSpokenName(pair);
}

std::string FieldText(const Pair& pair) {
  if (const QLineEdit* const line = pair.Line()) return FromField(line->text());
  if (const auto* const edit = qobject_cast<QPlainTextEdit*>(pair.widget)) return FromField(edit->toPlainText());
  return {};
}

void ReadCaret(const Pair& pair) {
  Control& control = *pair.control;
  int start = 0;
  int end = 0;
  QString text;
  if (const QLineEdit* const line = pair.Line()) {
    text = line->text();
    start = line->hasSelectedText() ? line->selectionStart() : line->cursorPosition();
    end = line->hasSelectedText() ? line->selectionEnd() : start;
  } else if (const auto* const edit = qobject_cast<QPlainTextEdit*>(pair.widget)) {
    text = edit->toPlainText();
    start = edit->textCursor().selectionStart();
    end = edit->textCursor().selectionEnd();
  } else {
    return;
  }
  control.selection_start = FromFieldPlace(text, start);
  control.selection_length = FromFieldPlace(text, end) - control.selection_start;
}

void ShowCaret(const Pair& pair) {
  const Control& control = *pair.control;
  const int start = ToFieldPlace(*control.text, control.selection_start);
  const int end = ToFieldPlace(*control.text, control.selection_start + control.selection_length);
  if (QLineEdit* const line = pair.Line()) {
    const bool stands = end > start ? line->selectionStart() == start && line->selectionEnd() == end
                                    : !line->hasSelectedText() && line->cursorPosition() == start;
    if (stands) return;
    line->setCursorPosition(start);
    if (end > start) line->setSelection(start, end - start);
  } else if (auto* const edit = qobject_cast<QPlainTextEdit*>(pair.widget)) {
    QTextCursor cursor = edit->textCursor();
    if (cursor.selectionStart() == start && cursor.selectionEnd() == end) return;
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    edit->setTextCursor(cursor);
  }
}

}  // namespace zefirondo::screens
