#include "screens/box_page.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QShortcut>
#include <QVBoxLayout>

#include "core/acts.h"
#include "screens/form.h"
#include "screens/pictures.h"

namespace zefirondo::screens {
namespace {

constexpr QSize kBoxPicture(190, 130);
constexpr QSize kSectionPicture(60, 40);

QWidget* MakePicture(Binder& binder, Control& control, DrawPicture draw, const QSize& size, QWidget* parent) {
  auto* const picture = new PictureWidget(draw, size, parent);
  picture->setObjectName(QString::fromStdString(control.FullName()));
  binder.Bind(control, picture);
  return picture;
}

/// Two pictures in one place, of which one is shown at a time.
QWidget* MakePictures(Binder& binder, std::array<Control, 2>& controls, DrawPicture first, DrawPicture second,
                      const QSize& size, QWidget* parent) {
  auto* const holder = new QWidget(parent);
  holder->setFixedSize(size);
  MakePicture(binder, controls[0], first, size, holder);
  MakePicture(binder, controls[1], second, size, holder);
  return holder;
}

QWidget* MakeProjectData(Binder& binder, Sheet& sheet, QWidget* parent) {
  QGroupBox* const group = MakeGroup(binder, sheet.fradatiprog, parent);
  Form form(binder, group, new QGridLayout(group));
  for (Control* const field : {&sheet.cmbnumdriver, &sheet.txtvolnetto, &sheet.txtingombro, &sheet.txtvoloccu,
                               &sheet.txtvolappa, &sheet.txtfb, &sheet.txtfstrasdu, &sheet.txtfreriso, &sheet.cmbk}) {
    form.Row(*field);
  }
  form.Fill();
  return group;
}

QWidget* MakeChoice(Binder& binder, Control& frame, Control& label, Control& combo, QWidget* parent) {
  QGroupBox* const group = MakeGroup(binder, frame, parent);
  auto* const grid = new QGridLayout(group);
  Form form(binder, group, grid);
  form.Row(label, combo);
  grid->setColumnStretch(2, 1);
  return group;
}

QWidget* MakeDimensions(Binder& binder, Sheet& sheet, QWidget* parent) {
  QGroupBox* const group = MakeGroup(binder, sheet.framisubox, parent);
  Form form(binder, group, new QGridLayout(group));
  for (Control* const field : {&sheet.cmbforma, &sheet.cmbrappo, &sheet.txtl, &sheet.txth, &sheet.txtp}) {
    form.Row(*field);
  }
  form.Row(sheet.lblLD, sheet.txtld);
  form.Row(sheet.lblgradi, sheet.cmbgradi);
  form.Row(sheet.txtboxvolume);
  form.Wide(MakePictures(binder, sheet.imgbox, DrawPrism, DrawTrapezoid, kBoxPicture, group), Qt::AlignCenter);
  form.Fill();
  return group;
}

QLabel* MakeLabelFor(Binder& binder, Control& control, QWidget* field, QWidget* parent) {
  auto* const label = static_cast<QLabel*>(MakeWidget(binder, control, parent));
  if (field != nullptr) label->setBuddy(field);
  return label;
}

/// The diameter of a round port, or the two sides of a rectangular one. `lblUoX` is the unit of the diameter
/// or the words beside the second side, so that it has a label in both places.
void AddSectionSize(Binder& binder, Sheet& sheet, QWidget* parent, Form& form) {
  form.Row(sheet.lblDoL, sheet.cmbDoa);
  QLabel* const unit = binder.Find(sheet.cmbDoa)->unit;
  QWidget* const side = MakeWidget(binder, sheet.txtb, parent);
  auto* const words = new QLabel(parent);
  words->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  words->setBuddy(side);
  KeepPlace(side);
  const int row = form.row();
  form.Row(words, side);
  form.grid()->addWidget(MakeLabelFor(binder, sheet.lblunib, nullptr, parent), row, 2);
  binder.Follow([&sheet, unit, words, side] {
    const bool two_sides = sheet.txtb.visible;
    const QString text = QString::fromStdString(*sheet.lblUoX.text);
    words->setText(two_sides ? text : QString());
    side->setAccessibleName(words->text());
    unit->setText(QString::fromStdString(two_sides ? *sheet.lblunib.text : *sheet.lblUoX.text));
  });
}

/// The picture of the section takes no focus: F2 on any field of the ports stands for a click on it.
void AddSectionKey(Binder& binder, Sheet& sheet, QWidget* group) {
  auto* const key = new QShortcut(QKeySequence(Qt::Key_F2), group);
  key->setContext(Qt::WidgetWithChildrenShortcut);
  QObject::connect(key, &QShortcut::activated, group, [&binder, &sheet] {
    Control& shown = sheet.imgforma[sheet.RoundPort() ? 0 : 1];
    binder.stage().Act([&] { Click(binder.stage().program, shown); });
  });
}

QWidget* MakePorts(Binder& binder, Sheet& sheet, QWidget* parent) {
  QGroupBox* const group = MakeGroup(binder, sheet.fravented, parent);
  Form form(binder, group, new QGridLayout(group));
  form.Row(sheet.cmbnumcond);
  form.Row(MakeWidget(binder, sheet.lblsezione, group),
           MakePictures(binder, sheet.imgforma, DrawRoundSection, DrawRectangularSection, kSectionPicture, group));
  form.Row(sheet.txtlungmis);
  form.Row(sheet.txtlungappa);
  AddSectionSize(binder, sheet, group, form);
  for (Control* const field : {&sheet.txtareasez, &sheet.txtseztot, &sheet.txtminsv}) form.Row(*field);
  form.Fill();
  AddSectionKey(binder, sheet, group);
  return group;
}

}  // namespace

void BuildBoxPage(Binder& binder, QWidget* page, QVBoxLayout& column) {
  Sheet& sheet = binder.stage().program.windows.frmthsm;
  auto* const row = new QHBoxLayout;
  auto* const first = new QVBoxLayout;
  first->addWidget(MakeProjectData(binder, sheet, page));
  first->addWidget(MakeChoice(binder, sheet.fratiporispo, sheet.lblqtc, sheet.cmballi, page));
  first->addWidget(MakeChoice(binder, sheet.fraql, sheet.lblperdita, sheet.cmbql, page));
  first->addStretch(1);
  row->addLayout(first);
  row->addWidget(MakeDimensions(binder, sheet, page));
  QWidget* const ports = MakePorts(binder, sheet, page);
  KeepPlace(ports);
  row->addWidget(ports);
  row->addStretch(1);
  column.addLayout(row);
  column.addStretch(1);
}

}  // namespace zefirondo::screens
