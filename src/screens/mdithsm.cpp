#include "screens/mdithsm.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>
#include <algorithm>
#include <array>

#include "core/acts.h"
#include "core/events.h"
#include "core/window_life.h"
#include "screens/frmAbout.h"
#include "screens/frmFase.h"
#include "screens/frmFaseSh.h"
#include "screens/frmairspeed.h"
#include "screens/frmalfa.h"
#include "screens/frmcalcolatrice.h"
#include "screens/frmescursione.h"
#include "screens/frmgrafcassa.h"
#include "screens/frmgrafico.h"
#include "screens/frmspl.h"
#include "screens/frmsplMax.h"
#include "screens/frmthsm.h"
#include "screens/menu_bar.h"
#include "screens/plain_form.h"
#include "screens/qt_text.h"
#include "screens/window_view.h"

namespace zefirondo::screens {
namespace {

constexpr double kTwipsPerPixel = 15.0;
constexpr QSize kComfortable(1280, 860);  // pixels; a smaller screen is filled

struct ContentRow {
  std::string_view window;
  BuildContent build;
};

/// The windows with a layout of their own; the others are rows of fields.
constexpr std::array kContents = std::to_array<ContentRow>({
    {"frmthsm", BuildSheet},
    {"frmgrafcassa", BuildBoxResponse},
    {"frmgrafico", BuildImpedanceGraph},
    {"frmspl", BuildSplGraph},
    {"frmsplMax", BuildSplMaxGraph},
    {"frmescursione", BuildExcursionGraph},
    {"frmairspeed", BuildAirSpeedGraph},
    {"frmFase", BuildPhaseGraph},
    {"frmalfa", BuildAlignmentChart},
    {"frmFaseSh", BuildPhaseOffsetTool},
    {"frmcalcolatrice", BuildCalculator},
    {"frmAbout", BuildAbout},
});

BuildContent ContentOf(const Window& window) {
  const auto row = std::find_if(kContents.begin(), kContents.end(),
                                [&](const ContentRow& candidate) { return candidate.window == window.name; });
  return row == kContents.end() ? BuildPlainForm : row->build;
}

}  // namespace

MainFrameView::MainFrameView(Program& program) : stage_(program), area_(new QMdiArea), menu_bar_(new MenuBar(stage_)) {
  setObjectName(QStringLiteral("mdithsm"));
  area_->setFocusPolicy(Qt::NoFocus);
  area_->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->installEventFilter(this);
  setCentralWidget(area_);
  setMenuBar(menu_bar_);
  stage_.read = [this] { ReadCaretOfFocus(); };
  stage_.show = [this] { ShowData(); };
  connect(area_, &QMdiArea::subWindowActivated, this, &MainFrameView::SubWindowActivated);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { FocusChanged(now); });
}

MainFrameView::~MainFrameView() {
  // The widgets' last signals come too late to be acts.
  stage_.read = nullptr;
  stage_.show = nullptr;
  disconnect(area_, nullptr, this, nullptr);
  disconnect(qApp, nullptr, this, nullptr);
}

WindowView* MainFrameView::ViewOf(const Window& window) const {
  const auto found = views_.find(&window);
  return found == views_.end() ? nullptr : found->second;
}

void MainFrameView::ShowOnScreen() {
  stage_.Refresh();
  const QSize room = screen()->availableSize();
  if (room.width() < kComfortable.width() || room.height() < kComfortable.height()) {
    resize(room);
    showMaximized();
  } else {
    resize(kComfortable);
    show();
  }
  NoteSize();
}

void MainFrameView::closeEvent(QCloseEvent* event) {
  event->ignore();
  stage_.Act([this] { CloseBox(stage_.program, stage_.program.windows.mdithsm.window); });
}

bool MainFrameView::eventFilter(QObject* object, QEvent* event) {
  if (object == area_ && event->type() == QEvent::Resize) {
    NoteSize();
    for (const auto& [window, view] : views_) view->KeepInside(area_->size());
  }
  return QMainWindow::eventFilter(object, event);
}

void MainFrameView::NoteSize() {
  Window& frame = stage_.program.windows.mdithsm.window;
  frame.width = area_->width() * kTwipsPerPixel;
  frame.height = area_->height() * kTwipsPerPixel;
}

void MainFrameView::ReadCaretOfFocus() {
  const Control* const focus = stage_.program.focus;
  WindowView* const view = focus == nullptr ? nullptr : ViewOf(*focus->window);
  if (view == nullptr) return;
  if (const Pair* const pair = view->binder().Find(*focus)) ReadCaret(*pair);
}

void MainFrameView::ShowData() {
  const QString title = ToQt(stage_.program.windows.mdithsm.window.caption);
  if (windowTitle() != title) setWindowTitle(title);
  ShowWindows();
  ShowOrder();
  menu_bar_->ShowMenus();
  ShowFocus();
}

void MainFrameView::ShowWindows() {
  for (Window* const window : stage_.program.all) {
    if (window != &stage_.program.windows.mdithsm.window) ShowWindow(*window);
  }
}

void MainFrameView::ShowWindow(Window& window) {
  WindowView* view = ViewOf(window);
  const bool wanted = window.open && !window.hidden;
  if (wanted && view == nullptr) {
    view = new WindowView(stage_, window, ContentOf(window));
    area_->addSubWindow(view, view->windowFlags());
    views_.emplace(&window, view);
  }
  if (view == nullptr) return;
  if (wanted) {
    view->ShowData();
    if (!view->placed()) view->Place(area_->size());
  }
  if (!window.open) view->Unplace();
  if (view->isHidden() == wanted) view->setVisible(wanted);
}

void MainFrameView::ShowOrder() {
  const std::vector<const Window*> order(stage_.program.order.begin(), stage_.program.order.end());
  WindowView* const front = FrontView();
  if (order == shown_order_ && (front == nullptr || area_->activeSubWindow() == front)) return;
  shown_order_ = order;
  std::for_each(order.rbegin(), order.rend(), [this](const Window* window) {
    if (WindowView* const view = ViewOf(*window); view != nullptr && !view->isHidden()) view->raise();
  });
  if (front != nullptr) area_->setActiveSubWindow(front);
}

WindowView* MainFrameView::FrontView() const {
  for (const Window* const window : stage_.program.order) {
    WindowView* const view = ViewOf(*window);
    if (view != nullptr && !window->hidden) return view;
  }
  return nullptr;
}

/// The widget that has the program's focus. Qt's focus makes a window the active one, so that a control of a
/// window behind the front one cannot have it.
QWidget* MainFrameView::FocusTarget() const {
  WindowView* const front = FrontView();
  if (front == nullptr) return nullptr;
  const Control* const focus = stage_.program.focus;
  const Pair* const pair = focus == nullptr ? nullptr : front->binder().Find(*focus);
  return pair == nullptr ? front->ground() : pair->widget;
}

void MainFrameView::ShowFocus() {
  QWidget* const target = FocusTarget();
  if (target == nullptr) return;
  if (focusWidget() != target) target->setFocus(Qt::OtherFocusReason);
  WindowView* const front = FrontView();
  const Control* const focus = stage_.program.focus;
  const Pair* const pair = focus == nullptr ? nullptr : front->binder().Find(*focus);
  if (pair != nullptr) ShowCaret(*pair);
}

/// The person went to another window by the keys of the frame.
void MainFrameView::SubWindowActivated(QMdiSubWindow* activated) {
  if (activated == nullptr || !stage_.Listening() || activated == FrontView()) return;
  Program& program = stage_.program;
  Window& window = static_cast<WindowView*>(activated)->data();
  stage_.Act([&] { RunEvent(program, [&] { BringToFront(program, window); }); });
}

/// Qt moves its focus by itself when windows come and go; it is put back where the program's is.
void MainFrameView::FocusChanged(QWidget* now) {
  if (now == nullptr || now->window() != this || menu_bar_->isAncestorOf(now) || now == menu_bar_) return;
  if (!stage_.Listening() || now == FocusTarget()) return;
  QMetaObject::invokeMethod(
      this, [this] { stage_.Refresh(); }, Qt::QueuedConnection);
}

}  // namespace zefirondo::screens
