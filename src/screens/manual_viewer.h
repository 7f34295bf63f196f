// The window of the manual: contents or hits at the left, the page at the right. It stands beside the program's frame
// and never holds it up.
#pragma once

#include <QMainWindow>

#include "screens/manual_pages.h"

class QAction;
class QLabel;
class QLineEdit;
class QListWidget;
class QStackedWidget;
class QTextBrowser;
class QToolBar;
class QTreeWidget;
class QTreeWidgetItem;

namespace zefirondo::screens {

class ManualViewer : public QMainWindow {
 public:
  ManualViewer(const QString& folder, Language language);

  /// Opens the window at the index, or brings it to the front there.
  void ShowIndex();

 private:
  static constexpr int kSideWidth = 320;  // pixels
  static constexpr int kFileRole = Qt::UserRole;
  static constexpr int kAnchorRole = Qt::UserRole + 1;
  static constexpr const char* kIndex = "index.html";

  void BuildSide();
  void BuildPage();
  void BuildFindBar(QToolBar& bar);
  void BuildActions();
  QAction* AddAction(const char* name, const char* english, const char* italian, const QList<QKeySequence>& keys);
  void FillContents();
  [[nodiscard]] QString Words(const char* english, const char* italian) const;

  void Go(const QString& file, const QString& anchor = {});
  void PageChanged(const QUrl& url);
  void MarkInContents(const QString& file, const QString& anchor);
  void Search();
  void ShowHit(int row);
  void FindOnPage(bool forward, bool from_here);
  void FindNext(bool forward);
  void OpenFindBar();
  void CloseFindBar();
  void Select(int place, int length);
  void Highlight(const QString& wanted);
  void Resize(double step);

  QString folder_;
  Language language_;
  std::vector<ManualPage> pages_;
  std::vector<ManualHit> hits_found_;
  double plain_size_ = 0;  // of the text, in points

  QLineEdit* search_ = nullptr;
  QLabel* count_ = nullptr;
  QStackedWidget* side_ = nullptr;
  QTreeWidget* contents_ = nullptr;
  QListWidget* hits_ = nullptr;
  QTextBrowser* page_ = nullptr;
  QToolBar* find_bar_ = nullptr;
  QLineEdit* find_ = nullptr;
  QLabel* found_ = nullptr;
  QToolBar* tools_ = nullptr;
};

}  // namespace zefirondo::screens
