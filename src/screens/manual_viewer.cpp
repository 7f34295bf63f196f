#include "screens/manual_viewer.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QScrollBar>
#include <QSplitter>
#include <QStackedWidget>
#include <QTextBrowser>
#include <QToolBar>
#include <QTreeWidget>
#include <algorithm>

namespace zefirondo::screens {
namespace {

constexpr QSize kComfortable(1000, 720);  // pixels
constexpr double kSmallest = 6;           // points
constexpr double kLargest = 36;

QTextEdit::ExtraSelection Mark(const QTextCursor& cursor) {
  QTextEdit::ExtraSelection mark;
  mark.cursor = cursor;
  mark.format.setBackground(QColor(255, 235, 120));  // both colours fixed: readable on any theme
  mark.format.setForeground(QColor(Qt::black));
  return mark;
}

QTextCursor CursorAt(QTextDocument* document, int place, int length) {
  QTextCursor cursor(document);
  cursor.setPosition(place);
  cursor.setPosition(place + length, QTextCursor::KeepAnchor);
  return cursor;
}

}  // namespace

ManualViewer::ManualViewer(const QString& folder, Language language)
    : folder_(folder), language_(language), pages_(ReadManual(folder)) {
  setObjectName(QStringLiteral("manual"));
  BuildSide();
  BuildPage();
  auto* const splitter = new QSplitter;
  splitter->addWidget(search_->parentWidget());
  splitter->addWidget(page_);
  splitter->setStretchFactor(1, 1);
  splitter->setChildrenCollapsible(false);
  splitter->setSizes({kSideWidth, kComfortable.width() - kSideWidth});
  setCentralWidget(splitter);
  tools_ = addToolBar(Words("Manual", "Manuale"));
  tools_->setMovable(false);
  tools_->setContextMenuPolicy(Qt::PreventContextMenu);
  find_bar_ = new QToolBar(Words("Find on this page", "Cerca nella pagina"));
  BuildFindBar(*find_bar_);
  addToolBar(Qt::BottomToolBarArea, find_bar_);
  find_bar_->hide();
  BuildActions();
  FillContents();
  resize(kComfortable.boundedTo(screen()->availableSize()));
}

QString ManualViewer::Words(const char* english, const char* italian) const {
  return QString::fromUtf8(language_ == Language::Italian ? italian : english);
}

void ManualViewer::ShowIndex() {
  Go(QString::fromLatin1(kIndex));
  if (isMinimized()) showNormal();
  show();
  raise();
  activateWindow();
  page_->setFocus();
}

void ManualViewer::Go(const QString& file, const QString& anchor) {
  QUrl url = QUrl::fromLocalFile(folder_ + u'/' + file);
  if (!anchor.isEmpty()) url.setFragment(anchor);
  page_->setSource(url);
}

/// The browser itself knows the new page only after it has told of it.
void ManualViewer::PageChanged(const QUrl& url) {
  setWindowTitle(page_->documentTitle() + QStringLiteral(" – ") + Words("Zefirondo manual", "Manuale di Zefirondo"));
  MarkInContents(url.fileName(), url.fragment());
  Highlight(find_bar_->isVisible() ? find_->text() : search_->text().simplified());
}

/// The page that shows is the one marked in the contents; a section of it, if its heading was gone to.
void ManualViewer::MarkInContents(const QString& file, const QString& anchor) {
  for (int i = 0; i < contents_->topLevelItemCount(); ++i) {
    QTreeWidgetItem* item = contents_->topLevelItem(i);
    if (item->data(0, kFileRole).toString() != file) continue;
    item->setExpanded(true);
    for (int k = 0; k < item->childCount() && !anchor.isEmpty(); ++k) {
      if (item->child(k)->data(0, kAnchorRole).toString() != anchor) continue;
      contents_->setCurrentItem(item->child(k));
      return;
    }
    contents_->setCurrentItem(item);
    return;
  }
}

void ManualViewer::Search() {
  const QString wanted = search_->text().simplified();
  hits_found_ = SearchManual(pages_, wanted);
  const QSignalBlocker quiet(hits_);
  hits_->clear();
  for (const ManualHit& hit : hits_found_) {
    hits_->addItem(pages_[hit.page].title + u'\n' + hit.line);
  }
  const bool searching = !wanted.isEmpty();
  side_->setCurrentWidget(searching ? static_cast<QWidget*>(hits_) : contents_);
  count_->setVisible(searching);
  count_->setText(hits_found_.empty()
                      ? Words("Nothing found", "Nessun risultato")
                      : Words("Places found: ", "Punti trovati: ") + QString::number(hits_found_.size()));
  Highlight(wanted);
}

void ManualViewer::ShowHit(int row) {
  if (row < 0 || row >= static_cast<int>(hits_found_.size())) return;
  const ManualHit& hit = hits_found_[static_cast<std::size_t>(row)];
  const QString& file = pages_[hit.page].file;
  if (page_->source().fileName() != file) Go(file);
  Highlight(search_->text().simplified());
  Select(hit.place, hit.length);
}

/// Goes to the next place of what the find bar asks for, round the end of the page; with `from_here` the place that
/// is selected may stay.
void ManualViewer::FindOnPage(bool forward, bool from_here) {
  const QString wanted = find_->text();
  Highlight(wanted);
  const std::vector<int> places = PlacesOf(wanted, page_->document()->toPlainText());
  found_->setText(places.empty() && !wanted.isEmpty() ? Words("Nothing found", "Nessun risultato") : QString());
  if (places.empty()) return;
  const QTextCursor here = page_->textCursor();
  auto next = std::lower_bound(places.begin(), places.end(), here.selectionStart());
  if (forward) {
    if (!from_here && here.hasSelection()) {
      next = std::upper_bound(places.begin(), places.end(), here.selectionStart());
    }
    if (next == places.end()) next = places.begin();
  } else {
    next = next == places.begin() ? places.end() - 1 : next - 1;
  }
  Select(*next, static_cast<int>(wanted.size()));
  found_->setText(QStringLiteral("%1 / %2").arg(next - places.begin() + 1).arg(places.size()));
}

void ManualViewer::FindNext(bool forward) {
  if (find_bar_->isVisible()) {
    FindOnPage(forward, false);
  } else if (hits_->count() > 0) {
    const int count = hits_->count();
    const int now = hits_->currentRow();
    hits_->setCurrentRow(now < 0 ? 0 : (now + (forward ? 1 : count - 1)) % count);
  }
}

void ManualViewer::OpenFindBar() {
  find_bar_->show();
  find_->setFocus();
  find_->selectAll();
  if (!find_->text().isEmpty()) FindOnPage(true, true);
}

void ManualViewer::CloseFindBar() {
  find_bar_->hide();
  Highlight(search_->text().simplified());
  page_->setFocus();
}

/// Selects a place, in the middle of the window rather than at its edge.
void ManualViewer::Select(int place, int length) {
  page_->setTextCursor(CursorAt(page_->document(), place, length));
  QScrollBar& bar = *page_->verticalScrollBar();
  bar.setValue(bar.value() + page_->cursorRect().center().y() - page_->viewport()->height() / 2);
}

void ManualViewer::Highlight(const QString& wanted) {
  QList<QTextEdit::ExtraSelection> marks;
  if (wanted.size() > 1) {
    for (const int place : PlacesOf(wanted, page_->document()->toPlainText())) {
      marks.append(Mark(CursorAt(page_->document(), place, static_cast<int>(wanted.size()))));
    }
  }
  page_->setExtraSelections(marks);
}

void ManualViewer::Resize(double step) {
  QFont font = page_->font();
  font.setPointSizeF(std::clamp(font.pointSizeF() + step, kSmallest, kLargest));
  page_->setFont(font);
}

}  // namespace zefirondo::screens
