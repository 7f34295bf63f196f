// A person who tries everything, for a long time: random clicks, keys, menus and window events on a screen that
// nobody sees. The memory in use must be at the end where it was after the first rounds.
//
// usage: random_screen [EVENTS [SEED]]
#include <malloc.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QPrintDialog>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <random>

#include "core/events.h"
#include "core/window_life.h"
#include "desk.h"
#include "screens/plot_widget.h"

namespace {

using namespace zefirondo;
using namespace zefirondo::screens;

constexpr int kRound = 100;       // events between two looks at the memory
constexpr double kGrowth = 1.15;  // of the least memory in use, from the first third of the looks to the last
constexpr int kWarmUp = 1000;     // events until the toolkit's caches are filled
constexpr const char* kTyped = "0123456789.,-5 ";

class Person {
 public:
  explicit Person(std::uint32_t seed) : dice_(seed), language_(seed % 2 == 0 ? Language::Italian : Language::English) {
    Begin();
  }

  void Act() {
    if (desk_->platform.ended()) Begin();
    if (QWidget* const popup = QApplication::activePopupWidget()) popup->close();
    switch (Throw(12)) {
      case 0: ChooseFromMenu(); break;
      case 1: ClickSomeTab(); break;
      case 2: PressSomeKey(); break;
      case 3: CloseOrFront(); break;
      default: UseSomeWidget(); break;
    }
  }

  /// Closes all that is open and wipes all plots, so that only what is kept for good is still in use. Bytes.
  std::size_t MemoryInUse() {
    if (desk_->platform.ended()) Begin();
    Program& program = desk_->program;
    desk_->frame->stage().Act([&] {
      RunEvent(program, [&] {
        program.state = ProjectState{};
        for (Window* const window : program.all) {
          if (window->open && window != &program.windows.mdithsm.window) CloseWindow(program, *window);
          for (Control* const control : window->controls) {
            if (control->surface == nullptr) continue;
            control->surface->Clear();
            control->surface->points.shrink_to_fit();
            control->surface->strokes.shrink_to_fit();
          }
        }
      });
    });
    if (desk_->platform.ended()) Begin();
    desk_->boxes.clear();
    desk_->boxes.shrink_to_fit();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    malloc_trim(0);
    return mallinfo2().uordblks + mallinfo2().hblkhd;
  }

  [[nodiscard]] int lives() const { return lives_; }

 private:
  int Throw(int sides) { return std::uniform_int_distribution<int>(0, sides - 1)(dice_); }
  template <class List>
  auto& OneOf(List& list) {
    return list[static_cast<std::size_t>(Throw(static_cast<int>(list.size())))];
  }

  /// A new program, all of whose windows and dialogs have been on the screen once.
  void Begin() {
    ++lives_;
    desk_.reset();
    desk_ = std::make_unique<Desk>(language_);
    desk_->answer_unplanned = [this](QDialog& dialog) { AnswerDialog(dialog); };
    Program& program = desk_->program;
    desk_->platform.ShowHelp("guida.hlp");
    static_cast<void>(desk_->platform.ChoosePrinter());
    for (Window* const window : program.all) {
      if (window == &program.windows.mdithsm.window) continue;
      desk_->frame->stage().Act([&] {
        RunEvent(program, [&] {
          program.state.BoxScaleTop = program.state.ImpScaleTop = program.state.SplScaleTop = 65;
          LoadWindow(program, program.windows.frmthsm.window);
          program.state.txtfs = "35";
          program.state.txtvas = "0.1";
          OpenWindow(program, *window);
          CloseWindow(program, *window);
        });
      });
    }
  }

  void AnswerDialog(QDialog& dialog) {
    if (auto* const box = qobject_cast<QMessageBox*>(&dialog)) {
      QList<QAbstractButton*> buttons = box->buttons();
      buttons[Throw(static_cast<int>(buttons.size()))]->click();
    } else {
      dialog.reject();
    }
  }

  void OfferFiles() {
    // Copies: a save dialog gets the same answers.
    const std::filesystem::path examples = desk_->folder.filePath(QStringLiteral("examples")).toStdString();
    if (!exists(examples)) copy(ZEFIRONDO_EXAMPLES, examples);
    const std::filesystem::path own = desk_->folder.filePath(QStringLiteral("own.pro")).toStdString();
    const std::vector<std::filesystem::path> files{examples / "maestrale-22.pro",  examples / "tramontana-26.ovl",
                                                   examples / "tramontana-26.wdr", examples / "small-room.ovl",
                                                   examples / "README.md",         own};
    desk_->platform.files.clear();
    if (Throw(4) != 0) desk_->platform.files.push_back(OneOf(files));
  }

  void ChooseFromMenu() {
    std::vector<QString> names;
    for (const QAction* const top : desk_->frame->menuBar()->actions()) {
      if (top->menu() == nullptr) {
        names.push_back(top->objectName());
        continue;
      }
      for (const QAction* const entry : top->menu()->actions()) names.push_back(entry->objectName());
    }
    OfferFiles();
    if (!names.empty()) desk_->ChooseEntry(OneOf(names));
  }

  void ClickSomeTab() {
    auto* const tabs = desk_->frame->findChild<QTabBar*>();
    if (tabs == nullptr || !tabs->isVisible() || tabs->count() == 0) return;
    desk_->Click(tabs->objectName(), Qt::LeftButton, tabs->tabRect(Throw(tabs->count())).center());
  }

  void PressSomeKey() {
    constexpr std::array kKeys{Qt::Key_Tab,  Qt::Key_Return, Qt::Key_Escape,   Qt::Key_F2,    Qt::Key_Up,
                               Qt::Key_Down, Qt::Key_Space,  Qt::Key_PageDown, Qt::Key_Delete};
    desk_->Key(OneOf(kKeys), Throw(3) == 0 ? Qt::ControlModifier : Qt::NoModifier);
  }

  void CloseOrFront() {
    const QList<QMdiSubWindow*> views = desk_->frame->area()->subWindowList();
    if (views.isEmpty()) return;
    QMdiSubWindow* const view = views[Throw(static_cast<int>(views.size()))];
    if (!view->isVisible()) return;
    if (Throw(4) == 0) {
      view->close();
    } else {
      desk_->frame->area()->setActiveSubWindow(view);
    }
  }

  void UseSomeWidget() {
    QMdiSubWindow* const view = desk_->frame->area()->activeSubWindow();
    if (view == nullptr) return ChooseFromMenu();
    std::vector<QWidget*> widgets;
    for (QWidget* const widget : view->findChildren<QWidget*>()) {
      const bool usable = widget->isVisible() && widget->isEnabled() && !widget->objectName().isEmpty();
      if (usable && !widget->objectName().startsWith(QLatin1String("qt_"))) widgets.push_back(widget);
    }
    if (widgets.empty()) return;
    QWidget& widget = *OneOf(widgets);
    const QPoint place = widget.mapTo(desk_->frame.get(), widget.rect().center());
    if (!desk_->frame->rect().contains(place)) return;
    OfferFiles();
    if (dynamic_cast<PlotWidget*>(&widget) != nullptr) {
      QTest::mousePress(desk_->frame->windowHandle(), Qt::LeftButton, {}, place);
      QTest::mouseRelease(desk_->frame->windowHandle(), Qt::LeftButton, {}, place);
    } else {
      const Qt::MouseButton button = Throw(8) == 0 ? Qt::RightButton : Qt::LeftButton;
      QTest::mouseClick(desk_->frame->windowHandle(), button, {}, place);
    }
    const bool field = qobject_cast<QLineEdit*>(&widget) != nullptr || qobject_cast<QComboBox*>(&widget) != nullptr;
    if (field && QApplication::activePopupWidget() == nullptr) TypeSomething();
  }

  void TypeSomething() {
    const QString letters = QString::fromLatin1(kTyped);
    if (Throw(2) == 0) desk_->Key(Qt::Key_A, Qt::ControlModifier);
    for (int left = Throw(5); left > 0; --left) desk_->Type(letters[Throw(static_cast<int>(letters.size()))]);
  }

  std::mt19937 dice_;
  Language language_;  // one for all lives, whose words take as much memory
  std::unique_ptr<Desk> desk_;
  int lives_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const int events = argc > 1 ? std::atoi(argv[1]) : 15000;  // two hours, at one each half second
  const auto seed = static_cast<std::uint32_t>(argc > 2 ? std::atoi(argv[2]) : 1);
  const QApplication application(argc, argv);
  Person person(seed);
  std::vector<std::size_t> looks;
  for (int event = 1; event <= events; ++event) {
    person.Act();
    if (event > kWarmUp && event % kRound == 0) looks.push_back(person.MemoryInUse());
  }
  if (looks.size() < 6) {
    std::fprintf(stderr, "too few events to compare: at least %d\n", kWarmUp + kRound * 6);
    return 2;
  }
  // Caches come and go, so the least of the first third is held against the least of the last.
  const auto third = static_cast<std::ptrdiff_t>(looks.size() / 3);
  const auto first = static_cast<double>(*std::min_element(looks.begin(), looks.begin() + third));
  const auto last = static_cast<double>(*std::min_element(looks.end() - third, looks.end()));
  std::printf("seed %u: %d events in %d lives of the program, memory in use from %.0f kB to %.0f kB\n", seed, events,
              person.lives(), first / 1024, last / 1024);
  if (last > first * kGrowth) {
    for (const std::size_t look : looks) std::printf("%zu ", look / 1024);
    std::printf("kB\n");
  }
  return last <= first * kGrowth ? 0 : 1;
}
