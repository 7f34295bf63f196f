#include "manual_test.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QToolBar>
#include <QTreeWidget>

#include "core/acts.h"
#include "core/window_life.h"
#include "desk.h"
#include "screens/manual_viewer.h"
#include "screens/qt_text.h"

using namespace zefirondo;
using namespace zefirondo::screens;

namespace {

/// A desktop on which the manual lies in none of the places.
class BareDesk : public QtPlatform {
 public:
  using QtPlatform::QtPlatform;
  std::vector<zefirondo::MessageBox> boxes;

  Answer ShowMessage(const zefirondo::MessageBox& box) override {
    boxes.push_back(box);
    return Answer::Ok;
  }

 protected:
  [[nodiscard]] QStringList ManualPlaces(const std::filesystem::path& file) const override {
    return {ToQt(file.parent_path().string())};
  }
};

QString Folder(Language language) { return FindManual({QCoreApplication::applicationDirPath()}, language); }

QList<QMainWindow*> OpenManuals() {
  QList<QMainWindow*> open;
  for (QWidget* const widget : QApplication::topLevelWidgets()) {
    if (widget->objectName() == QStringLiteral("manual") && widget->isVisible()) {
      open.append(qobject_cast<QMainWindow*>(widget));
    }
  }
  return open;
}

/// The window alone, as the program shows it.
class Viewer {
 public:
  explicit Viewer(Language language = Language::English) : window(Folder(language), language) {
    window.ShowIndex();
    QApplication::setActiveWindow(&window);
    static_cast<void>(QTest::qWaitForWindowActive(&window));
  }

  ManualViewer window;

  [[nodiscard]] QTextBrowser& page() { return *window.findChild<QTextBrowser*>("manual_page"); }
  [[nodiscard]] QTreeWidget& contents() { return *window.findChild<QTreeWidget*>("manual_contents"); }
  [[nodiscard]] QListWidget& hits() { return *window.findChild<QListWidget*>("manual_hits"); }
  [[nodiscard]] QLineEdit& search() { return *window.findChild<QLineEdit*>("manual_search"); }
  [[nodiscard]] QLineEdit& find() { return *window.findChild<QLineEdit*>("manual_find"); }
  [[nodiscard]] QString Label(const char* name) { return window.findChild<QLabel*>(name)->text(); }
  [[nodiscard]] QString File() { return page().source().fileName(); }

  /// A key to whatever has the focus, through the window's shortcuts.
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(window.windowHandle(), key, modifiers);
    QCoreApplication::processEvents();
  }
  void Type(const QString& text) {
    for (const QChar c : text) QTest::keyClick(window.windowHandle(), c.toLatin1());
  }
};

QUrl PageUrl(const QString& file, const QString& anchor = {}) {
  QUrl url = QUrl::fromLocalFile(Folder(Language::English) + u'/' + file);
  if (!anchor.isEmpty()) url.setFragment(anchor);
  return url;
}

/// The entry with this name in the menu bar that shows.
QAction* ShownEntry(const QMainWindow& frame, const QString& name) {
  for (const QAction* const title : frame.menuBar()->actions()) {
    if (title->menu() == nullptr) continue;
    for (QAction* const entry : title->menu()->actions()) {
      if (entry->objectName() == name && entry->isVisible() && entry->isEnabled()) return entry;
    }
  }
  return nullptr;
}

void AddLanguages() {
  QTest::addColumn<bool>("italian");
  QTest::newRow("english") << false;
  QTest::newRow("italian") << true;
}

Language FetchedLanguage() {
  QFETCH(bool, italian);
  return italian ? Language::Italian : Language::English;
}

}  // namespace

void ManualTest::initTestCase() {
  QVERIFY(!Folder(Language::English).isEmpty());
  QVERIFY(!Folder(Language::Italian).isEmpty());
}

void ManualTest::TheEntriesOfSeveralWindowsOpenTheIndex_data() {
  QTest::addColumn<QString>("name");
  QTest::addColumn<bool>("italian");
  for (const char* const name : {"frmthsm", "frmgrafcassa", "frmspl", "frmFase", "frmescursione", "frmfiltri"}) {
    QTest::newRow(name) << QString(name) << false;
  }
  QTest::newRow("mdithsm") << "mdithsm" << false;
  QTest::newRow("frmgrafcassa, Italian") << "frmgrafcassa" << true;
}

void ManualTest::TheEntriesOfSeveralWindowsOpenTheIndex() {
  QFETCH(QString, name);
  const Language language = FetchedLanguage();
  Desk desk(language);
  if (name != QStringLiteral("mdithsm")) {
    const std::string project = std::string(ZEFIRONDO_EXAMPLES) + "/maestrale-22.pro";
    desk.frame->stage().Act([&] { Start(desk.program, project); });
    Window* const window = desk.program.FindWindow(name.toStdString());
    desk.frame->stage().Act([&] { OpenWindow(desk.program, *window); });
  }
  QCOMPARE(std::string(MenuBarWindow(desk.program).name), name.toStdString());
  QAction* const entry = ShownEntry(*desk.frame, QStringLiteral("mnuguida"));
  QVERIFY(entry != nullptr);
  QVERIFY(OpenManuals().isEmpty());
  entry->trigger();
  QCOMPARE(OpenManuals().size(), 1);
  const QUrl source = OpenManuals()[0]->findChild<QTextBrowser*>("manual_page")->source();
  QCOMPARE(source.fileName(), "index.html");
  QVERIFY(source.path().endsWith(language == Language::Italian ? "/manual/it/index.html" : "/manual/en/index.html"));
}

void ManualTest::ThereIsOneWindowAndItHoldsNothingUp() {
  Desk desk;
  desk.platform.ShowHelp(desk.program.folder / "guida.hlp");
  QCOMPARE(OpenManuals().size(), 1);
  QMainWindow* const manual = OpenManuals()[0];
  QVERIFY(!manual->isModal());
  QVERIFY(!manual->isAncestorOf(desk.frame.get()) && !desk.frame->isAncestorOf(manual));
  auto& page = *manual->findChild<QTextBrowser*>("manual_page");
  page.setSource(PageUrl("files.html"));
  manual->showMinimized();
  desk.platform.ShowHelp(desk.program.folder / "guida.hlp");
  QCOMPARE(OpenManuals(), QList<QMainWindow*>{manual});
  QVERIFY(!manual->isMinimized());
  QCOMPARE(page.source().fileName(), "index.html");
  QCoreApplication::processEvents();
  desk.NewProject();  // the program goes on beside it
  QVERIFY(desk.program.windows.frmthsm.window.open);
  QVERIFY(manual->isVisible());
  manual->close();
  QVERIFY(OpenManuals().isEmpty());
  desk.platform.ShowHelp(desk.program.folder / "guida.hlp");
  QCOMPARE(OpenManuals().size(), 1);
}

void ManualTest::ItClosesWithTheProgram() {
  Desk desk;
  desk.platform.ShowHelp(desk.program.folder / "guida.hlp");
  QCOMPARE(OpenManuals().size(), 1);
  desk.frame->close();
  QVERIFY(desk.platform.ended());
  QVERIFY(OpenManuals().isEmpty());
  // The exit was called outside the event loop; it would hold for the dialogs of later tests.
  QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
  QApplication::exec();
}

void ManualTest::AMissingManualIsTold_data() { AddLanguages(); }

void ManualTest::AMissingManualIsTold() {
  const Language language = FetchedLanguage();
  const bool italian = language == Language::Italian;
  BareDesk platform(language);
  platform.ShowHelp("/nowhere/guida.hlp");
  QCOMPARE(platform.boxes.size(), std::size_t{1});
  QCOMPARE(ToQt(platform.boxes[0].title), italian ? "Guida" : "Help");
  QCOMPARE(ToQt(platform.boxes[0].text), italian ? "La guida non è stata trovata: /nowhere/manual/it/index.html"
                                                 : "The help was not found: /nowhere/manual/en/index.html");
  QVERIFY(OpenManuals().isEmpty());
}

void ManualTest::TheFirstFolderThatHasItWins() {
  const QTemporaryDir root;
  for (const char* const folder : {"/b/manual/en", "/c/manual/en"}) {
    QVERIFY(QDir().mkpath(root.path() + folder));
    QFile index(root.path() + folder + "/index.html");
    QVERIFY(index.open(QIODevice::WriteOnly));
  }
  const QStringList places{root.path() + "/a", root.path() + "/b", root.path() + "/c"};
  QCOMPARE(FindManual(places, Language::English), root.path() + "/b/manual/en");
  QCOMPARE(FindManual(places, Language::Italian), QString());
}

void ManualTest::TheContentsOpenEveryPage_data() { AddLanguages(); }

void ManualTest::TheContentsOpenEveryPage() {
  const Language language = FetchedLanguage();
  Viewer viewer(language);
  QTreeWidget& contents = viewer.contents();
  const auto files = QDir(Folder(language)).entryList({"*.html"}).size();
  QCOMPARE(contents.topLevelItemCount(), static_cast<int>(files));
  int sections = 0;
  for (int i = 0; i < contents.topLevelItemCount(); ++i) {
    QTreeWidgetItem* const item = contents.topLevelItem(i);
    emit contents.itemActivated(item, 0);
    const QString title = viewer.page().document()->metaInformation(QTextDocument::DocumentTitle);
    QVERIFY(!title.isEmpty());
    if (i > 0) QCOMPARE(title, item->text(0));
    QVERIFY(viewer.window.windowTitle().startsWith(title));
    QVERIFY(viewer.page().toPlainText().size() > 300);
    for (int k = 0; k < item->childCount(); ++k, ++sections) {
      emit contents.itemActivated(item->child(k), 0);
      const QString anchor = viewer.page().source().fragment();
      QVERIFY(!anchor.isEmpty());
      QVERIFY(viewer.page().document()->toHtml().contains("name=\"" + anchor + '"'));
    }
  }
  QVERIFY(sections > 50);
}

void ManualTest::TheContentsFollowThePage() {
  Viewer viewer;
  QCOMPARE(viewer.contents().currentItem()->text(0), "Contents");
  viewer.page().setSource(PageUrl("box.html"));
  QCOMPARE(viewer.contents().currentItem()->text(0), "The box page");
  viewer.page().setSource(PageUrl("box.html", "ports"));
  QCOMPARE(viewer.contents().currentItem()->text(0), "Vents");
  QVERIFY(viewer.page().verticalScrollBar()->value() > 0);
}

void ManualTest::LinksAreFollowedByKeysAndBack() {
  Viewer viewer;
  viewer.page().setFocus();
  viewer.Key(Qt::Key_Tab);
  viewer.Key(Qt::Key_Return);
  QCOMPARE(viewer.File(), "start.html");
  viewer.Key(Qt::Key_Left, Qt::AltModifier);
  QCOMPARE(viewer.File(), "index.html");
  viewer.Key(Qt::Key_Right, Qt::AltModifier);
  QCOMPARE(viewer.File(), "start.html");
  viewer.Key(Qt::Key_Home, Qt::AltModifier);
  QCOMPARE(viewer.File(), "index.html");
}

void ManualTest::TheSearchFindsAndJumps_data() { AddLanguages(); }

void ManualTest::TheSearchFindsAndJumps() {
  const Language language = FetchedLanguage();
  const QString wanted = language == Language::Italian ? "tasto destro" : "right mouse button";
  Viewer viewer(language);
  viewer.Key(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
  QVERIFY(viewer.search().hasFocus());
  viewer.Type(wanted);
  QVERIFY(viewer.hits().isVisible() && !viewer.contents().isVisible());
  const int count = viewer.hits().count();
  QVERIFY(count > 1);
  QVERIFY(viewer.Label("manual_count").endsWith(QString::number(count)));
  QStringList files;
  for (int i = 0; i < count; ++i) {
    viewer.Key(Qt::Key_F3);
    QCOMPARE(viewer.hits().currentRow(), i);
    QCOMPARE(viewer.page().textCursor().selectedText().toLower(), wanted);
    QVERIFY(viewer.page().viewport()->rect().contains(viewer.page().cursorRect().center()));
    QVERIFY(!viewer.page().extraSelections().isEmpty());
    for (const QTextEdit::ExtraSelection& mark : viewer.page().extraSelections()) {
      QCOMPARE(mark.cursor.selectedText().toLower(), wanted);
    }
    if (!files.contains(viewer.File())) files.append(viewer.File());
  }
  QVERIFY(files.size() > 1);
  viewer.Key(Qt::Key_F3);
  QCOMPARE(viewer.hits().currentRow(), 0);
  viewer.Key(Qt::Key_F3, Qt::ShiftModifier);
  QCOMPARE(viewer.hits().currentRow(), count - 1);
}

void ManualTest::ASearchForNothingBringsTheContentsBack() {
  Viewer viewer;
  viewer.search().setText("Zzyzx");
  QCOMPARE(viewer.hits().count(), 0);
  QCOMPARE(viewer.Label("manual_count"), "Nothing found");
  viewer.search().setText("e");  // a letter alone would find everything
  QCOMPARE(viewer.hits().count(), 0);
  viewer.Key(Qt::Key_Escape);
  QCOMPARE(viewer.search().text(), QString());
  QVERIFY(viewer.contents().isVisible());
  QVERIFY(viewer.page().extraSelections().isEmpty());
}

void ManualTest::WordsApartAreFoundInOneParagraph() {
  const std::vector<ManualPage> pages{{"a.html", "A", "One port is red.\nA red box\nwith a port", {}},
                                      {"b.html", "B", "red, and then a Port", {}}};
  const std::vector<ManualHit> hits = SearchManual(pages, "red  port");
  QCOMPARE(hits.size(), std::size_t{2});
  QCOMPARE(hits[0].page, std::size_t{0});
  QCOMPARE(hits[0].place, 12);  // "red" behind "One port is "
  QCOMPARE(hits[0].length, 3);
  QCOMPARE(hits[0].line, "One port is red.");
  QCOMPARE(hits[1].page, std::size_t{1});
  QCOMPARE(hits[1].place, 0);
  QCOMPARE(SearchManual(pages, "is red").size(), std::size_t{1});  // together, the phrase alone counts
}

void ManualTest::AccentsAndCapitalsDoNotMatter() {
  QCOMPARE(PlacesOf("VELOCITA", QStringLiteral("la velocità e la Velocità")), (std::vector<int>{3, 17}));
  QCOMPARE(PlacesOf(QStringLiteral("è"), "E e"), (std::vector<int>{0, 2}));
  QCOMPARE(Folded(QStringLiteral("Più √2")).size(), QStringLiteral("Più √2").size());
  QVERIFY(PlacesOf("", "text").empty());
}

void ManualTest::FindingOnThePageGoesRound() {
  Viewer viewer;
  viewer.page().setSource(PageUrl("printing.html"));
  auto* const bar = viewer.window.findChild<QToolBar*>("manual_find_bar");
  QVERIFY(!bar->isVisible());
  viewer.Key(Qt::Key_F, Qt::ControlModifier);
  QVERIFY(bar->isVisible() && viewer.find().hasFocus());
  viewer.Type("page");
  const auto all = static_cast<int>(PlacesOf("page", viewer.page().toPlainText()).size());
  QVERIFY(all > 2);
  QCOMPARE(viewer.Label("manual_found"), QStringLiteral("1 / %1").arg(all));
  const int first = viewer.page().textCursor().selectionStart();
  for (int i = 2; i <= all; ++i) {
    viewer.Key(Qt::Key_Return);
    QCOMPARE(viewer.Label("manual_found"), QStringLiteral("%1 / %2").arg(i).arg(all));
    QCOMPARE(viewer.page().textCursor().selectedText().toLower(), "page");
  }
  viewer.Key(Qt::Key_F3);
  QCOMPARE(viewer.page().textCursor().selectionStart(), first);
  viewer.Key(Qt::Key_F3, Qt::ShiftModifier);
  QCOMPARE(viewer.Label("manual_found"), QStringLiteral("%1 / %1").arg(all));
  QCOMPARE(viewer.File(), "printing.html");
  viewer.find().setText("Zzyzx");
  QCOMPARE(viewer.Label("manual_found"), "Nothing found");
  viewer.Key(Qt::Key_Escape);
  QVERIFY(!bar->isVisible());
  QVERIFY(viewer.page().hasFocus());
}

void ManualTest::KeysChangeTheSizeOfTheText() {
  Viewer viewer;
  const double plain = viewer.page().font().pointSizeF();
  viewer.Key(Qt::Key_Plus, Qt::ControlModifier);
  viewer.Key(Qt::Key_Equal, Qt::ControlModifier);
  QCOMPARE(viewer.page().font().pointSizeF(), plain + 2);
  viewer.Key(Qt::Key_Minus, Qt::ControlModifier);
  QCOMPARE(viewer.page().font().pointSizeF(), plain + 1);
  viewer.Key(Qt::Key_0, Qt::ControlModifier);
  QCOMPARE(viewer.page().font().pointSizeF(), plain);
  for (int i = 0; i < 60; ++i) viewer.Key(Qt::Key_Minus, Qt::ControlModifier);
  QCOMPARE(viewer.page().font().pointSizeF(), 6.0);
}

void ManualTest::KeysCloseTheWindow() {
  Viewer viewer;
  viewer.Key(Qt::Key_W, Qt::ControlModifier);
  QVERIFY(!viewer.window.isVisible());
}

void ManualTest::EveryPartHasAName_data() { AddLanguages(); }

void ManualTest::EveryPartHasAName() {
  Viewer viewer(FetchedLanguage());
  for (QWidget* const part : std::initializer_list<QWidget*>{&viewer.page(), &viewer.contents(), &viewer.hits(),
                                                             &viewer.search(), &viewer.find()}) {
    QVERIFY2(!part->accessibleName().isEmpty(), qPrintable(part->objectName()));
  }
  for (const QAction* const action : viewer.window.actions()) {
    QVERIFY(!action->text().isEmpty());
    QVERIFY(!action->shortcuts().isEmpty());
  }
}
