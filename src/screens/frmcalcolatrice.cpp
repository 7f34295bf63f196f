#include "screens/frmcalcolatrice.h"

#include <QShortcut>
#include <vector>

#include "core/acts.h"
#include "screens/form.h"

namespace zefirondo::screens {
namespace {

constexpr QSize kKeySize(44, 32);
constexpr int kColumns = 5;

/// A key of the calculator: its place on the screen, and the keys of the keyboard that stand for it.
struct KeyRow {
  Control* control = nullptr;
  int row = 0;
  int column = 0;
  std::vector<Qt::Key> keys;
};

// clang-format off
std::vector<KeyRow> Keys(Calculator& c) {
  return {
      {&c.Number[7], 1, 0, {Qt::Key_7}},
      {&c.Number[8], 1, 1, {Qt::Key_8}},
      {&c.Number[9], 1, 2, {Qt::Key_9}},
      {&c.Operator[3], 1, 3, {Qt::Key_Slash}},
      {&c.Cancel, 1, 4, {Qt::Key_Escape}},
      {&c.Number[4], 2, 0, {Qt::Key_4}},
      {&c.Number[5], 2, 1, {Qt::Key_5}},
      {&c.Number[6], 2, 2, {Qt::Key_6}},
      {&c.Operator[2], 2, 3, {Qt::Key_Asterisk, Qt::Key_X}},
      {&c.CancelEntry, 2, 4, {Qt::Key_Delete}},
      {&c.Number[1], 3, 0, {Qt::Key_1}},
      {&c.Number[2], 3, 1, {Qt::Key_2}},
      {&c.Number[3], 3, 2, {Qt::Key_3}},
      {&c.Operator[1], 3, 3, {Qt::Key_Minus}},
      {&c.Percent, 3, 4, {Qt::Key_Percent}},
      {&c.Number[0], 4, 0, {Qt::Key_0}},
      {&c.Decimal, 4, 1, {Qt::Key_Period, Qt::Key_Comma}},
      {&c.Operator[4], 4, 2, {Qt::Key_Equal, Qt::Key_Return, Qt::Key_Enter}},
      {&c.Operator[0], 4, 3, {Qt::Key_Plus}},
  };
}
// clang-format on

/// A key of the keyboard, with or without the modifiers that its place on a keyboard needs.
void TieKey(Binder& binder, Control& control, QWidget* content, Qt::Key key) {
  for (const Qt::KeyboardModifiers modifiers : {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::KeypadModifier)}) {
    auto* const shortcut = new QShortcut(QKeyCombination(modifiers, key), content);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(shortcut, &QShortcut::activated, content,
                     [&binder, &control] { binder.stage().Act([&] { Click(binder.stage().program, control); }); });
  }
}

QWidget* MakeDisplay(Binder& binder, Control& control, QWidget* content) {
  auto* const display = static_cast<QLabel*>(MakeWidget(binder, control, content));
  display->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  display->setFrameStyle(static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Sunken));
  display->setAutoFillBackground(true);
  display->setBackgroundRole(QPalette::Base);
  display->setForegroundRole(QPalette::Text);
  display->setMinimumHeight(kKeySize.height());
  return display;
}

}  // namespace

void BuildCalculator(Binder& binder, Window& /*window*/, QWidget* content) {
  Calculator& calculator = binder.stage().program.windows.frmcalcolatrice;
  auto* const grid = new QGridLayout(content);
  grid->addWidget(MakeDisplay(binder, calculator.Readout, content), 0, 0, 1, kColumns);
  for (const KeyRow& row : Keys(calculator)) {
    QWidget* const key = MakeWidget(binder, *row.control, content);
    key->setFixedSize(kKeySize);
    grid->addWidget(key, row.row, row.column);
    for (const Qt::Key each : row.keys) TieKey(binder, *row.control, content, each);
  }
}

}  // namespace zefirondo::screens
