// The parts of the manual's window, and what its keys do.

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QStackedWidget>
#include <QStyle>
#include <QTextBrowser>
#include <QTextDocument>
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "screens/manual_viewer.h"

namespace zefirondo::screens {

void ManualViewer::BuildSide() {
  auto* const side = new QWidget;
  auto* const column = new QVBoxLayout(side);
  search_ = new QLineEdit;
  search_->setObjectName(QStringLiteral("manual_search"));
  search_->setPlaceholderText(Words("Search all pages", "Cerca in tutte le pagine"));
  search_->setAccessibleName(search_->placeholderText());
  search_->setClearButtonEnabled(true);
  contents_ = new QTreeWidget;
  contents_->setObjectName(QStringLiteral("manual_contents"));
  contents_->setAccessibleName(Words("Contents", "Indice"));
  contents_->setHeaderHidden(true);
  hits_ = new QListWidget;
  hits_->setObjectName(QStringLiteral("manual_hits"));
  hits_->setAccessibleName(Words("Places found", "Punti trovati"));
  hits_->setWordWrap(true);
  hits_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  hits_->setSpacing(2);
  count_ = new QLabel;
  count_->setObjectName(QStringLiteral("manual_count"));
  count_->hide();
  side_ = new QStackedWidget;
  side_->addWidget(contents_);
  side_->addWidget(hits_);
  column->addWidget(search_);
  column->addWidget(count_);
  column->addWidget(side_);
  column->setContentsMargins(4, 4, 0, 4);

  connect(search_, &QLineEdit::textChanged, this, [this] { Search(); });
  connect(search_, &QLineEdit::returnPressed, this, [this] { FindNext(true); });
  connect(hits_, &QListWidget::currentRowChanged, this, [this](int row) { ShowHit(row); });
  connect(hits_, &QListWidget::itemActivated, this, [this] { page_->setFocus(); });
  connect(contents_, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
    Go(item->data(0, kFileRole).toString(), item->data(0, kAnchorRole).toString());
  });
  connect(contents_, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
    Go(item->data(0, kFileRole).toString(), item->data(0, kAnchorRole).toString());
  });
}

void ManualViewer::BuildPage() {
  page_ = new QTextBrowser;
  page_->setObjectName(QStringLiteral("manual_page"));
  page_->setAccessibleName(Words("Page of the manual", "Pagina del manuale"));
  page_->document()->setDocumentMargin(14);
  plain_size_ = page_->font().pointSizeF();
  connect(page_, &QTextBrowser::sourceChanged, this, [this](const QUrl& url) { PageChanged(url); });
}

void ManualViewer::BuildFindBar(QToolBar& bar) {
  bar.setObjectName(QStringLiteral("manual_find_bar"));
  bar.setMovable(false);
  bar.setContextMenuPolicy(Qt::PreventContextMenu);
  find_ = new QLineEdit;
  find_->setObjectName(QStringLiteral("manual_find"));
  find_->setAccessibleName(bar.windowTitle());
  find_->setMaximumWidth(kSideWidth);
  auto* const words = new QLabel(Words("&Find on this page:", "&Cerca nella pagina:"));
  words->setBuddy(find_);
  found_ = new QLabel;
  found_->setObjectName(QStringLiteral("manual_found"));
  bar.addWidget(words);
  bar.addWidget(find_);
  connect(bar.addAction(Words("Previous", "Precedente")), &QAction::triggered, this, [this] { FindNext(false); });
  connect(bar.addAction(Words("Next", "Successivo")), &QAction::triggered, this, [this] { FindNext(true); });
  connect(bar.addAction(Words("Close", "Chiudi")), &QAction::triggered, this, [this] { CloseFindBar(); });
  bar.addWidget(found_);
  connect(find_, &QLineEdit::textChanged, this, [this] { FindOnPage(true, true); });
  connect(find_, &QLineEdit::returnPressed, this, [this] { FindNext(true); });
}

QAction* ManualViewer::AddAction(const char* name, const char* english, const char* italian,
                                 const QList<QKeySequence>& keys) {
  auto* const action = new QAction(Words(english, italian), this);
  action->setObjectName(QString::fromLatin1(name));
  action->setShortcuts(keys);
  const QString key = keys.isEmpty() ? QString() : keys.constFirst().toString(QKeySequence::NativeText);
  action->setToolTip(Words(english, italian).remove(u'&') + QStringLiteral(" (") + key + u')');
  addAction(action);
  return action;
}

void ManualViewer::BuildActions() {
  QAction* const back = AddAction("manual_back", "Back", "Indietro", QKeySequence::keyBindings(QKeySequence::Back));
  QAction* const forward =
      AddAction("manual_forward", "Forward", "Avanti", QKeySequence::keyBindings(QKeySequence::Forward));
  QAction* const home = AddAction("manual_home", "Contents", "Indice", {QKeySequence(Qt::ALT | Qt::Key_Home)});
  QAction* const find = AddAction("manual_find_action", "Find", "Cerca", {QKeySequence(Qt::CTRL | Qt::Key_F)});
  QAction* const smaller =
      AddAction("manual_smaller", "Smaller", "Più piccolo", {QKeySequence(Qt::CTRL | Qt::Key_Minus)});
  QAction* const larger = AddAction("manual_larger", "Larger", "Più grande",
                                    {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
  back->setIcon(style()->standardIcon(QStyle::SP_ArrowBack));
  forward->setIcon(style()->standardIcon(QStyle::SP_ArrowForward));
  tools_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  tools_->addActions({back, forward, home});
  tools_->addSeparator();
  tools_->addActions({find, smaller, larger});
  back->setEnabled(false);
  forward->setEnabled(false);
  connect(page_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(page_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
  connect(back, &QAction::triggered, page_, &QTextBrowser::backward);
  connect(forward, &QAction::triggered, page_, &QTextBrowser::forward);
  connect(home, &QAction::triggered, this, [this] { Go(QString::fromLatin1(kIndex)); });
  connect(find, &QAction::triggered, this, [this] { OpenFindBar(); });
  connect(smaller, &QAction::triggered, this, [this] { Resize(-1); });
  connect(larger, &QAction::triggered, this, [this] { Resize(1); });

  // Those without a button.
  const auto add = [this](const char* name, const char* english, const char* italian, const QKeySequence& key,
                          const std::function<void()>& act) {
    connect(AddAction(name, english, italian, {key}), &QAction::triggered, this, act);
  };
  add("manual_normal", "Normal size", "Grandezza normale", QKeySequence(Qt::CTRL | Qt::Key_0),
      [this] { Resize(plain_size_ - page_->font().pointSizeF()); });
  add("manual_search_action", "Search all pages", "Cerca in tutte le pagine",
      QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F), [this] {
        search_->setFocus();
        search_->selectAll();
      });
  add("manual_next", "Next place", "Punto successivo", QKeySequence(Qt::Key_F3), [this] { FindNext(true); });
  add("manual_previous", "Previous place", "Punto precedente", QKeySequence(Qt::SHIFT | Qt::Key_F3),
      [this] { FindNext(false); });
  add("manual_close", "Close", "Chiudi", QKeySequence(Qt::CTRL | Qt::Key_W), [this] { close(); });
  add("manual_escape", "Close the search", "Chiudi la ricerca", QKeySequence(Qt::Key_Escape),
      [this] { find_bar_->isVisible() ? CloseFindBar() : search_->clear(); });
}

void ManualViewer::FillContents() {
  for (const ManualPage& page : pages_) {
    auto* const item =
        new QTreeWidgetItem(contents_, {page.file == QLatin1String(kIndex) ? Words("Contents", "Indice") : page.title});
    item->setData(0, kFileRole, page.file);
    item->setToolTip(0, item->text(0));
    if (page.file == QLatin1String(kIndex)) continue;
    for (const ManualSection& section : page.sections) {
      auto* const child = new QTreeWidgetItem(item, {section.title});
      child->setData(0, kFileRole, page.file);
      child->setToolTip(0, section.title);
      child->setData(0, kAnchorRole, section.anchor);
    }
  }
}

}  // namespace zefirondo::screens
