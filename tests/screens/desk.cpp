#include "desk.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <algorithm>

#include "core/acts.h"
#include "program/assembly.h"
#include "screens/qt_text.h"

namespace zefirondo::screens {
namespace {

constexpr QSize kFrameSize(1280, 860);
constexpr int kLookForBoxes = 5;  // ms

}  // namespace

std::optional<std::filesystem::path> DeskPlatform::ChooseFile(const FileDialog& /*dialog*/) {
  if (on_answer) on_answer();
  if (files.empty()) return std::nullopt;
  const std::filesystem::path file = files.front();
  files.pop_front();
  return file;
}

Desk::Desk(Language language, const std::string& command_line)
    : platform(language), program(platform, language, folder.path().toStdString()) {
  ConnectProgram(program);
  frame = std::make_unique<MainFrameView>(program);
  platform.Attach(frame.get(), [this] { frame->stage().Refresh(); });
  frame->resize(kFrameSize);
  frame->show();
  QApplication::setActiveWindow(frame.get());
  static_cast<void>(QTest::qWaitForWindowActive(frame.get()));
  QObject::connect(&answering_, &QTimer::timeout, frame.get(), [this] { AnswerBox(); });
  answering_.start(kLookForBoxes);
  frame->stage().Act([&] { Start(program, command_line); });
}

Desk::~Desk() { answering_.stop(); }

void Desk::AnswerBox() {
  auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  if (answer_unplanned) {
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog != nullptr && dialog->isVisible()) answer_unplanned(*dialog);
    return;
  }
  if (box == nullptr || !box->isVisible()) return;
  ShownBox shown{box->windowTitle(), box->text(), box->icon(), {}, {}};
  QList<QAbstractButton*> buttons = box->buttons();
  std::sort(buttons.begin(), buttons.end(), [](const auto* a, const auto* b) { return a->x() < b->x(); });
  for (const QAbstractButton* const button : buttons) shown.buttons.append(Spoken(FromQt(button->text())));
  if (box->defaultButton() != nullptr) shown.default_button = Spoken(FromQt(box->defaultButton()->text()));
  boxes.push_back(shown);
  Planned answer{QMessageBox::Ok, std::nullopt};
  if (box->buttons().size() > 1) {
    if (answers_.empty()) {
      QTest::qFail("a question that nobody planned to answer", __FILE__, __LINE__);
      box->reject();
      return;
    }
    answer = answers_.front();
    answers_.pop_front();
  }
  if (answer.key) {
    QTest::keyClick(box, *answer.key);
  } else {
    QTest::mouseClick(box->button(*answer.button), Qt::LeftButton);
  }
}

/// A desktop gives the frame back its activity when a message box closes; this screen does not.
void Desk::Activate() const {
  if (QApplication::activeModalWidget() == nullptr && !frame->isActiveWindow())
    QApplication::setActiveWindow(frame.get());
}

void Desk::Key(Qt::Key key, Qt::KeyboardModifiers modifiers) const {
  Activate();
  QTest::keyClick(frame->windowHandle(), key, modifiers);
  QCoreApplication::processEvents();
}

void Desk::Type(const QString& text) const {
  Activate();
  for (const QChar c : text) QTest::keyClick(frame->windowHandle(), c.toLatin1());
  QCoreApplication::processEvents();
}

QPoint Desk::InWindow(const QWidget& widget, std::optional<QPoint> at) const {
  return widget.mapTo(frame.get(), at.value_or(widget.rect().center()));
}

void Desk::Press(const QString& name, Qt::MouseButton button, std::optional<QPoint> at) {
  QTest::mousePress(frame->windowHandle(), button, {}, InWindow(*Find(name), at));
}

void Desk::Release(const QString& name, Qt::MouseButton button) {
  QTest::mouseRelease(frame->windowHandle(), button, {}, InWindow(*Find(name), {}));
}

void Desk::Click(const QString& name, Qt::MouseButton button, std::optional<QPoint> at) {
  QTest::mouseClick(frame->windowHandle(), button, {}, InWindow(*Find(name), at));
  QCoreApplication::processEvents();
}

void Desk::DoubleClick(const QString& name) {
  QTest::mouseDClick(frame->windowHandle(), Qt::LeftButton, {}, InWindow(*Find(name), {}));
  QCoreApplication::processEvents();
}

void Desk::ClickTab(const QString& caption) {
  auto* const tabs = Find<QTabBar>(QStringLiteral("TabStrip1"));
  for (int i = 0; i < tabs->count(); ++i) {
    if (tabs->tabText(i) == caption) Click(QStringLiteral("TabStrip1"), Qt::LeftButton, tabs->tabRect(i).center());
  }
}

void Desk::ChooseEntry(const QString& name) {
  QCoreApplication::processEvents();  // the bar is laid out when it is first shown
  QMenuBar* const bar = frame->menuBar();
  for (QAction* const top : bar->actions()) {
    QMenu* const menu = top->menu();
    const QList<QAction*> entries = menu == nullptr ? QList<QAction*>() : menu->actions();
    const auto entry = std::find_if(entries.begin(), entries.end(),
                                    [&](const QAction* action) { return action->objectName() == name; });
    if (entry == entries.end() && top->objectName() != name) continue;
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(top).center());
    if (entry != entries.end()) QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(*entry).center());
    QCoreApplication::processEvents();
    return;
  }
  QTest::qFail(qPrintable(QStringLiteral("no menu entry ") + name), __FILE__, __LINE__);
}

void Desk::Front(std::string_view window) {
  frame->area()->setActiveSubWindow(View(window));
  QCoreApplication::processEvents();
}

void Desk::PickItem(const QString& name, const QString& item) {
  auto* const combo = Find<QComboBox>(name);
  Click(name, Qt::LeftButton, QPoint(combo->width() - 6, combo->height() / 2));
  QAbstractItemView* const list = combo->view();
  if (!list->isVisible()) QTest::qFail(qPrintable(QStringLiteral("no list opened: ") + name), __FILE__, __LINE__);
  const QModelIndex index = combo->model()->index(combo->findText(item), 0);
  list->setCurrentIndex(index);
  QTest::keyClick(list, Qt::Key_Return);
  QCoreApplication::processEvents();
}

void Desk::Fill(const QString& name, const QString& text) {
  Click(name);
  Key(Qt::Key_A, Qt::ControlModifier);
  Type(text);
}

void Desk::NewProject() {
  Key(Qt::Key_P, Qt::AltModifier);
  QWidget* const menu = QApplication::activePopupWidget();
  if (menu == nullptr) QTest::qFail("no menu opened", __FILE__, __LINE__);
  if (menu != nullptr) QTest::keyClick(menu, Qt::Key_P);
  QCoreApplication::processEvents();
}

void Desk::FillWoofer() {
  using Row = std::pair<const char*, const char*>;
  for (const auto& [name, text] : {Row{"txtmodello", "W210"}, Row{"txtpotenza", "100"}, Row{"txtimpedenza", "8"},
                                   Row{"txtsensibilita", "90"}, Row{"txtxmax", "5"}}) {
    Fill(QLatin1String(name), QLatin1String(text));
  }
  ClickTab(QStringLiteral("Dimensions"));
  for (const auto& [name, text] :
       {Row{"txtforo", "230"}, Row{"txtprof", "110"}, Row{"txtlagmagne", "140"}, Row{"txtprofmag", "50"},
        Row{"txtesterno", "260"}, Row{"txtspesbordo", "8"}, Row{"txtdiambob", "38"}}) {
    Fill(QLatin1String(name), QLatin1String(text));
  }
  Click(QStringLiteral("txtvolume"));
  ClickTab(QStringLiteral("Parameters"));
  for (const auto& [name, text] :
       {Row{"txtfs", "35"}, Row{"txtrvc", "5.6"}, Row{"txtqmesin", "4.2"}, Row{"txtbl", "9.5"}, Row{"txtd", "210"},
        Row{"txtqes", "0.45"}, Row{"txtqts", "0.41"}, Row{"txtmms", "0.038"}}) {
    Fill(QLatin1String(name), QLatin1String(text));
  }
}

void Desk::DesignVentedBox() {
  AnswerByClick(QMessageBox::Yes);
  Click(QStringLiteral("cmdcalcola"));
}

QWidget* Desk::Find(const QString& name) const {
  const QString window = name.section(QLatin1Char('.'), 0, -2);
  const QWidget* const place = window.isEmpty() ? frame.get() : static_cast<QWidget*>(View(window.toStdString()));
  QWidget* const found = place == nullptr ? nullptr : place->findChild<QWidget*>(name.section(QLatin1Char('.'), -1));
  if (found == nullptr) QTest::qFail(qPrintable(QStringLiteral("no widget ") + name), __FILE__, __LINE__);
  return found;
}

QString Desk::Text(const QString& name) const {
  QWidget* const widget = Find(name);
  if (const auto* const line = qobject_cast<QLineEdit*>(widget)) return line->text();
  if (const auto* const combo = qobject_cast<QComboBox*>(widget)) return combo->currentText();
  if (const auto* const edit = qobject_cast<QPlainTextEdit*>(widget)) return edit->toPlainText();
  return widget->property("text").toString();
}

QString Desk::FocusName() const {
  const QWidget* const focus = frame->focusWidget();
  return focus == nullptr ? QString() : focus->objectName();
}

QStringList Desk::MenuTitles() const {
  QStringList titles;
  for (const QAction* const action : frame->menuBar()->actions()) titles.append(action->text());
  return titles;
}

WindowView* Desk::View(std::string_view window) const { return frame->ViewOf(*program.FindWindow(window)); }

QStringList Desk::FieldsThatDiffer() const {
  QStringList names;
  for (const Window* const window : program.all) {
    WindowView* const view = frame->ViewOf(*window);
    if (view == nullptr || !window->open) continue;
    for (const Control* const control : window->controls) {
      const QString name = QString::fromStdString(control->FullName());
      if (control->IsField() && Text(name) != ToField(*control->text)) names.append(name);
    }
  }
  return names;
}

}  // namespace zefirondo::screens
