#include "screens/frmcalcolatrice.h"

#include <QShortcut>
#include <array>

#include "core/acts.h"
#include "screens/form.h"

namespace zefirondo::screens {
namespace {

constexpr QSize kKeySize(44, 32);
constexpr int kColumns = 5;

/// A key of the calculator: its place on the screen, and the keys of the keyboard that stand for it.
struct KeyRow {
  Control& (*control)(Calculator&);
  int row;
  int column;
  std::initializer_list<Qt::Key> keys;
};

#define KEY(member) [](Calculator& form) -> Control& { return form.member; }

// clang-format off
const std::array<KeyRow, 19> kKeys{{
    {KEY(Number[7]), 1, 0, {Qt::Key_7}},
    {KEY(Number[8]), 1, 1, {Qt::Key_8}},
    {KEY(Number[9]), 1, 2, {Qt::Key_9}},
    {KEY(Operator[3]), 1, 3, {Qt::Key_Slash}},
    {KEY(Cancel), 1, 4, {Qt::Key_Escape}},
    {KEY(Number[4]), 2, 0, {Qt::Key_4}},
    {KEY(Number[5]), 2, 1, {Qt::Key_5}},
    {KEY(Number[6]), 2, 2, {Qt::Key_6}},
    {KEY(Operator[2]), 2, 3, {Qt::Key_Asterisk, Qt::Key_X}},
    {KEY(CancelEntry), 2, 4, {Qt::Key_Delete}},
    {KEY(Number[1]), 3, 0, {Qt::Key_1}},
    {KEY(Number[2]), 3, 1, {Qt::Key_2}},
    {KEY(Number[3]), 3, 2, {Qt::Key_3}},
    {KEY(Operator[1]), 3, 3, {Qt::Key_Minus}},
    {KEY(Percent), 3, 4, {Qt::Key_Percent}},
    {KEY(Number[0]), 4, 0, {Qt::Key_0}},
    {KEY(Decimal), 4, 1, {Qt::Key_Period, Qt::Key_Comma}},
    {KEY(Operator[4]), 4, 2, {Qt::Key_Equal, Qt::Key_Return, Qt::Key_Enter}},
    {KEY(Operator[0]), 4, 3, {Qt::Key_Plus}},
}};
// clang-format on

#undef KEY

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
  for (const KeyRow& row : kKeys) {
    Control& control = row.control(calculator);
    QWidget* const key = MakeWidget(binder, control, content);
    key->setFixedSize(kKeySize);
    grid->addWidget(key, row.row, row.column);
    for (const Qt::Key each : row.keys) TieKey(binder, control, content, each);
  }
}

}  // namespace zefirondo::screens
