#include "screens/plain_form.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <map>
#include <memory>
#include <vector>

#include "screens/form.h"
#include "screens/qt_text.h"

namespace zefirondo::screens {
namespace {

constexpr int kLineOfText = 52;  // average characters after which a line of text is broken

/// One place that controls stand on, the window or a group in it, with the form that is being laid out there.
struct Ground {
  QWidget* widget = nullptr;
  std::unique_ptr<Form> form;
};

class PlainForm {
 public:
  PlainForm(Binder& binder, Window& window, QWidget* content)
      : binder_(binder), window_(window), content_(content), column_(new QVBoxLayout(content)) {}

  void Build() {
    auto* const grid = new QGridLayout;
    column_->addLayout(grid);
    grounds_[nullptr] = {content_, std::make_unique<Form>(binder_, content_, grid)};
    for (Control* const control : window_.controls) {
      if (!control->IsMenu()) controls_.push_back(control);
    }
    for (std::size_t i = 0; i < controls_.size(); ++i) i += Add(i);
    column_->addStretch(1);
    if (buttons_ != nullptr) column_->addLayout(buttons_);
  }

 private:
  /// Adds the control at a place and those that belong to its row; gives how many of them were more than one.
  std::size_t Add(std::size_t place) {
    Control& control = *controls_[place];
    switch (control.kind) {
      case ControlKind::Frame: AddGroup(control); return 0;
      case ControlKind::Button: AddButton(control); return 0;
      case ControlKind::Label: return AddLabel(place);
      case ControlKind::Option: return AddOption(place);
      case ControlKind::TextBox:
      case ControlKind::ComboBox: FormOf(control).Row(control); return 0;
      default: FormOf(control).Wide(MakeWidget(binder_, control, GroundOf(control).widget)); return 0;
    }
  }

  std::size_t AddLabel(std::size_t place) {
    Control& label = *controls_[place];
    Control* const field = At(place + 1);
    if (field == nullptr || !field->IsField()) {
      AddText(label);
      return 0;
    }
    Control* const behind = At(place + 2);
    Control* const after = At(place + 3);
    const bool is_unit = behind != nullptr && behind->kind == ControlKind::Label && field->unit.empty() &&
                         (after == nullptr || !after->IsField());
    if (is_unit) {
      FormOf(label).Row(label, *field, *behind);
    } else {
      FormOf(label).Row(label, *field);
    }
    return is_unit ? 2 : 1;
  }

  /// An option stands in a row of its own, or beside the field that it chooses.
  std::size_t AddOption(std::size_t place) {
    Control& option = *controls_[place];
    QWidget* const widget = MakeWidget(binder_, option, GroundOf(option).widget);
    Control* const field = At(place + 1);
    Control* const unit = At(place + 2);
    if (field == nullptr || !field->IsField() || unit == nullptr || unit->kind != ControlKind::Label) {
      FormOf(option).Wide(widget);
      return 0;
    }
    FormOf(option).Row(widget, *field, *unit);
    QWidget* const chosen = binder_.Find(*field)->widget;
    binder_.Follow([&option, chosen] { chosen->setAccessibleName(Spoken(*option.text)); });
    return 2;
  }

  void AddText(Control& label) {
    auto* const text = static_cast<QLabel*>(MakeWidget(binder_, label, GroundOf(label).widget));
    text->setWordWrap(true);
    text->setMinimumWidth(text->fontMetrics().averageCharWidth() * kLineOfText);
    FormOf(label).Wide(text);
  }

  void AddGroup(Control& frame) {
    QGroupBox* const group = MakeGroup(binder_, frame, content_);
    grounds_[&frame] = {group, std::make_unique<Form>(binder_, group, new QGridLayout(group))};
    column_->addWidget(group);
  }

  void AddButton(Control& button) {
    if (buttons_ == nullptr) {
      buttons_ = new QHBoxLayout;
      buttons_->addStretch(1);
    }
    buttons_->addWidget(MakeWidget(binder_, button, content_));
  }

  Control* At(std::size_t place) const { return place < controls_.size() ? controls_[place] : nullptr; }
  Ground& GroundOf(const Control& control) { return grounds_.at(control.parent); }
  Form& FormOf(const Control& control) { return *GroundOf(control).form; }

  Binder& binder_;
  Window& window_;
  QWidget* content_;
  QVBoxLayout* column_;
  QHBoxLayout* buttons_ = nullptr;
  std::vector<Control*> controls_;
  std::map<const Control*, Ground> grounds_;
};

}  // namespace

void BuildPlainForm(Binder& binder, Window& window, QWidget* content) { PlainForm(binder, window, content).Build(); }

}  // namespace zefirondo::screens
