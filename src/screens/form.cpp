#include "screens/form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>

namespace zefirondo::screens {
namespace {

constexpr int kNumberWidth = 11;  // digits: the longest number is "123.456E-06"
constexpr int kFieldFrame = 14;   // pixels of frame and margins around a field's text
constexpr int kComboArrow = 16;   // pixels that the arrow of a combo box needs more
constexpr int kFieldGap = 6;
constexpr int kNameWidth = 34;  // average characters of the longest name that shows whole

int TextWidth(const QWidget& widget, const QString& text) { return widget.fontMetrics().horizontalAdvance(text); }

QWidget* MakeTextBox(const Control& control, QWidget* parent) {
  if (control.design.multiline) {
    auto* const edit = new QPlainTextEdit(parent);
    edit->setTabChangesFocus(true);
    return edit;
  }
  auto* const line = new QLineEdit(parent);
  line->setFixedWidth(TextWidth(*line, QString(kNumberWidth, u'0')) + kFieldFrame);
  return line;
}

QWidget* MakeComboBox(const Control& control, QWidget* parent) {
  auto* const combo = new QComboBox(parent);
  combo->setEditable(true);
  combo->setInsertPolicy(QComboBox::NoInsert);
  combo->setCompleter(nullptr);
  const int number = TextWidth(*combo, QString(kNumberWidth, u'0')) + kFieldFrame;
  int width = number;
  for (const Caption& item : control.design.list) {
    for (const Language language : {Language::English, Language::Italian}) {
      const int text = TextWidth(*combo, QString::fromStdString(item.Text(language)));
      width = std::max(width, text + kFieldFrame + kComboArrow);
    }
  }
  combo->setFixedWidth(width);
  return combo;
}

QLabel* MakeLabel(QWidget* parent) {
  auto* const label = new QLabel(parent);
  label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  return label;
}

/// The data say which option is set, and that none is.
QWidget* MakeOption(QWidget* parent) {
  auto* const option = new QRadioButton(parent);
  option->setAutoExclusive(false);
  return option;
}

QWidget* MakePlain(const Control& control, QWidget* parent) {
  switch (control.kind) {
    case ControlKind::TextBox: return MakeTextBox(control, parent);
    case ControlKind::ComboBox: return MakeComboBox(control, parent);
    case ControlKind::CheckBox: return new QCheckBox(parent);
    case ControlKind::Option: return MakeOption(parent);
    case ControlKind::Button: return new QPushButton(parent);
    case ControlKind::ProgressBar: return new QProgressBar(parent);
    default: return MakeLabel(parent);
  }
}

}  // namespace

QWidget* MakeWidget(Binder& binder, Control& control, QWidget* parent) {
  QWidget* const widget = MakePlain(control, parent);
  widget->setObjectName(QString::fromStdString(control.FullName()));
  binder.Bind(control, widget);
  return widget;
}

QGroupBox* MakeGroup(Binder& binder, Control& frame, QWidget* parent) {
  auto* const group = new QGroupBox(parent);
  group->setObjectName(QString::fromStdString(frame.FullName()));
  binder.Bind(frame, group);
  return group;
}

void KeepPlace(QWidget* widget) {
  QSizePolicy policy = widget->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget->setSizePolicy(policy);
}

Form::Form(Binder& binder, QWidget* parent, QGridLayout* grid, int column)
    : binder_(binder), parent_(parent), grid_(grid), column_(column) {
  grid_->setHorizontalSpacing(kFieldGap);
  grid_->setVerticalSpacing(kFieldGap);
}

QLabel* Form::Words(Qt::Alignment alignment) {
  QLabel* const label = MakeLabel(parent_);
  label->setAlignment(alignment | Qt::AlignVCenter);
  return label;
}

void Form::Place(QWidget* words, QWidget* field, QWidget* unit) {
  if (words != nullptr) grid_->addWidget(words, row_, column_);
  grid_->addWidget(field, row_, column_ + 1, 1, 1, Qt::AlignLeft | Qt::AlignVCenter);
  if (unit != nullptr) grid_->addWidget(unit, row_, column_ + 2);
  ++row_;
}

QWidget* Form::Row(Control& field) {
  QLabel* const words = Words(Qt::AlignLeft);
  QWidget* const widget = MakeWidget(binder_, field, parent_);
  QLabel* const unit = Words(Qt::AlignLeft);
  binder_.BindWords(*binder_.Find(field), words, unit);
  Place(words, widget, unit);
  return widget;
}

QWidget* Form::TextRow(Control& field) {
  QLabel* const words = Words(Qt::AlignLeft);
  QWidget* const widget = MakeWidget(binder_, field, parent_);
  widget->setFixedWidth(widget->fontMetrics().averageCharWidth() * kNameWidth);
  binder_.BindWords(*binder_.Find(field), words, nullptr);
  Row(words, widget);
  return widget;
}

QWidget* Form::Row(Control& label, Control& field) {
  QWidget* const words = MakeWidget(binder_, label, parent_);
  QWidget* const widget = MakeWidget(binder_, field, parent_);
  QLabel* const unit = Words(Qt::AlignLeft);
  binder_.BindWords(*binder_.Find(field), nullptr, unit);
  static_cast<QLabel*>(words)->setBuddy(widget);
  Place(words, widget, unit);
  return widget;
}

QWidget* Form::Row(Control& label, Control& field, Control& unit) {
  QWidget* const words = MakeWidget(binder_, label, parent_);
  QWidget* const widget = MakeWidget(binder_, field, parent_);
  static_cast<QLabel*>(words)->setBuddy(widget);
  Place(words, widget, MakeWidget(binder_, unit, parent_));
  return widget;
}

void Form::Wide(QWidget* widget, Qt::Alignment alignment) {
  grid_->addWidget(widget, row_, column_, 1, 3, alignment);
  ++row_;
}

void Form::Row(QWidget* words, QWidget* widget) {
  grid_->addWidget(words, row_, column_);
  grid_->addWidget(widget, row_, column_ + 1, 1, 2, Qt::AlignLeft | Qt::AlignVCenter);
  ++row_;
}

void Form::Row(QWidget* words, Control& field, Control& unit) {
  QWidget* const widget = MakeWidget(binder_, field, parent_);
  Place(words, widget, MakeWidget(binder_, unit, parent_));
}

void Form::Fill() { grid_->setRowStretch(row_, 1); }

}  // namespace zefirondo::screens
