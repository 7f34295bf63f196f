#include "screens/frmthsm.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>
#include <vector>

#include "screens/box_page.h"
#include "screens/form.h"

namespace zefirondo::screens {
namespace {

constexpr int kCommentLines = 7;
constexpr int kColumnGap = 28;

/// A page of the sheet: its heading, and below it what the page holds.
struct Page {
  QWidget* widget;
  QVBoxLayout* column;
};

Page MakePage(Binder& binder, Control& frame, QStackedWidget& pages) {
  auto* const widget = new QWidget(&pages);
  widget->setObjectName(QString::fromStdString(frame.FullName()));
  auto* const column = new QVBoxLayout(widget);
  auto* const heading = new QLabel(widget);
  heading->setTextFormat(Qt::PlainText);
  QFont bold = heading->font();
  bold.setBold(true);
  heading->setFont(bold);
  column->addWidget(heading);
  binder.Bind(frame, widget).words = heading;
  pages.addWidget(widget);
  return {widget, column};
}

void AddButtons(Binder& binder, Page& page, const std::vector<Control*>& buttons) {
  auto* const row = new QHBoxLayout;
  row->addStretch(1);
  for (Control* const button : buttons) row->addWidget(MakeWidget(binder, *button, page.widget));
  page.column->addLayout(row);
}

QGridLayout* MakeIdentification(Binder& binder, Sheet& sheet, QWidget* parent) {
  auto* const grid = new QGridLayout;
  Form form(binder, parent, grid);
  for (Control* const field : {&sheet.txtproduttore, &sheet.txtmarca, &sheet.txtmodello, &sheet.txtdatifor}) {
    form.TextRow(*field);
  }
  form.Row(sheet.txtdatacreaz);
  QWidget* const comment = form.TextRow(sheet.txtcommento);
  comment->setFixedHeight(comment->fontMetrics().lineSpacing() * kCommentLines);
  if (QLabel* const words = binder.Find(sheet.txtcommento)->words) words->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  form.Fill();
  return grid;
}

QWidget* MakeSpecifications(Binder& binder, Sheet& sheet, QWidget* parent) {
  QGroupBox* const group = MakeGroup(binder, sheet.fraspecifiche, parent);
  Form form(binder, group, new QGridLayout(group));
  for (Control* const field : {&sheet.txtpotenza, &sheet.txtimpedenza, &sheet.txtsensibilita, &sheet.txthg,
                               &sheet.txtxmax, &sheet.txtrendimento, &sheet.txtle, &sheet.cmbnumvc}) {
    form.Row(*field);
  }
  form.Fill();
  return group;
}

void BuildGeneralPage(Binder& binder, Sheet& sheet, QStackedWidget& pages) {
  Page page = MakePage(binder, sheet.fragenerale, pages);
  auto* const row = new QHBoxLayout;
  row->addLayout(MakeIdentification(binder, sheet, page.widget));
  row->addSpacing(kColumnGap);
  row->addWidget(MakeSpecifications(binder, sheet, page.widget), 0, Qt::AlignTop);
  row->addStretch(1);
  page.column->addLayout(row);
  page.column->addStretch(1);
  AddButtons(binder, page, {&sheet.cmdnext});
}

/// What is typed stands in the first column, what follows from it beside it.
void BuildParametersPage(Binder& binder, Sheet& sheet, QStackedWidget& pages) {
  Page page = MakePage(binder, sheet.frathsm, pages);
  auto* const grid = new QGridLayout;
  Form inputs(binder, page.widget, grid, 0);
  for (Control* const field :
       {&sheet.txtzmax, &sheet.txtfs, &sheet.txtrvc, &sheet.txtqmesin, &sheet.txtbw, &sheet.txtbl}) {
    inputs.Row(*field);
  }
  inputs.Row(sheet.lbld, sheet.txtd);
  inputs.Row(sheet.txtsd);
  Form factors(binder, page.widget, grid, 4);
  for (Control* const field : {&sheet.txtfl, &sheet.txtfh, &sheet.txtzmin, &sheet.txtqmes, &sheet.txtqes, &sheet.txtqts,
                               &sheet.txtmms, &sheet.txtvas}) {
    factors.Row(*field);
  }
  Form components(binder, page.widget, grid, 8);
  for (Control* const field : {&sheet.txtlces, &sheet.txtcmes, &sheet.txtrmes, &sheet.txtcms, &sheet.txtrms,
                               &sheet.txtcas, &sheet.txtmas, &sheet.txtras}) {
    components.Row(*field);
  }
  for (const int gap : {3, 7}) grid->setColumnMinimumWidth(gap, kColumnGap);
  grid->setColumnStretch(11, 1);
  page.column->addLayout(grid);
  page.column->addStretch(1);
  QWidget* const bar = MakeWidget(binder, sheet.prgbar, page.widget);
  KeepPlace(bar);
  page.column->addWidget(bar);
  AddButtons(binder, page, {&sheet.cmdcalcola, &sheet.cmdreset});
}

void BuildDimensionsPage(Binder& binder, Sheet& sheet, QStackedWidget& pages) {
  Page page = MakePage(binder, sheet.fradim, pages);
  auto* const grid = new QGridLayout;
  Form form(binder, page.widget, grid);
  for (Control* const field : {&sheet.txtforo, &sheet.txtprof, &sheet.txtlagmagne, &sheet.txtprofmag, &sheet.txtesterno,
                               &sheet.txtspesbordo, &sheet.txtdiambob, &sheet.txtvolume}) {
    form.Row(*field);
  }
  grid->setColumnStretch(3, 1);
  page.column->addLayout(grid);
  page.column->addStretch(1);
  AddButtons(binder, page, {&sheet.cmdnext1});
}

void BuildSettingsPage(Binder& binder, Sheet& sheet, QStackedWidget& pages) {
  Page page = MakePage(binder, sheet.fraimpo, pages);
  auto* const grid = new QGridLayout;
  Form form(binder, page.widget, grid);
  for (Control* const field : {&sheet.txttemperatura, &sheet.txtpressione, &sheet.txtvelocita}) form.Row(*field);
  grid->setColumnStretch(3, 1);
  page.column->addLayout(grid);
  page.column->addStretch(1);
  AddButtons(binder, page, {&sheet.cmddefault});
}

}  // namespace

void BuildSheet(Binder& binder, Window& /*window*/, QWidget* content) {
  Sheet& sheet = binder.stage().program.windows.frmthsm;
  auto* const column = new QVBoxLayout(content);
  auto* const tabs = new QTabBar(content);
  tabs->setObjectName(QStringLiteral("TabStrip1"));
  tabs->setDrawBase(true);
  tabs->setExpanding(false);
  binder.Bind(sheet.TabStrip1, tabs);
  auto* const pages = new QStackedWidget(content);
  column->addWidget(tabs);
  column->addWidget(pages, 1);
  BuildGeneralPage(binder, sheet, *pages);
  BuildParametersPage(binder, sheet, *pages);
  BuildDimensionsPage(binder, sheet, *pages);
  const Page box = MakePage(binder, sheet.frabox, *pages);
  BuildBoxPage(binder, box.widget, *box.column);
  BuildSettingsPage(binder, sheet, *pages);
}

}  // namespace zefirondo::screens
