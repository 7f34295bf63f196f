#include "screens/frmAbout.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "screens/form.h"
#include "screens/pictures.h"

namespace zefirondo::screens {
namespace {

constexpr QSize kIconSize(64, 64);
constexpr int kLineOfText = 62;      // average characters after which a line of text is broken
constexpr double kTitleScale = 1.5;  // against the font of the other words

QLabel* MakeText(Binder& binder, Control& control, QWidget* content) {
  auto* const text = static_cast<QLabel*>(MakeWidget(binder, control, content));
  text->setWordWrap(true);
  text->setFixedWidth(text->fontMetrics().averageCharWidth() * kLineOfText);
  return text;
}

}  // namespace

void BuildAbout(Binder& binder, Window& /*window*/, QWidget* content) {
  About& about = binder.stage().program.windows.frmAbout;
  auto* const row = new QHBoxLayout(content);
  auto* const icon = new PictureWidget(DrawProgramIcon, kIconSize, content);
  binder.Bind(about.picIcon, icon);
  row->addWidget(icon, 0, Qt::AlignTop);
  auto* const column = new QVBoxLayout;
  auto* const title = static_cast<QLabel*>(MakeWidget(binder, about.lblTitle, content));
  QFont large = title->font();
  large.setBold(true);
  large.setPointSizeF(large.pointSizeF() * kTitleScale);
  title->setFont(large);
  column->addWidget(title);
  column->addWidget(MakeWidget(binder, about.lblVersion, content));
  for (Control* const text : {&about.lblDescription, &about.lblDisclaimer, &about.lblcontact}) {
    column->addWidget(MakeText(binder, *text, content));
  }
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(MakeWidget(binder, about.cmdok, content));
  buttons->addWidget(MakeWidget(binder, about.cmdSysInfo, content));
  column->addStretch(1);
  column->addLayout(buttons);
  row->addLayout(column);
}

}  // namespace zefirondo::screens
