#include "screens/window_view.h"

#include <QCloseEvent>
#include <QMouseEvent>
#include <algorithm>

#include "core/acts.h"
#include "core/events.h"
#include "core/window_life.h"
#include "screens/qt_text.h"

namespace zefirondo::screens {
namespace {

constexpr double kTwipsPerPixel = 15.0;

}  // namespace

WindowView::WindowView(Stage& stage, Window& window, BuildContent build)
    : QMdiSubWindow(nullptr, Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                 Qt::WindowCloseButtonHint),
      stage_(stage),
      window_(window),
      binder_(stage),
      ground_(new QWidget) {
  setObjectName(QString::fromUtf8(window.name.data(), static_cast<qsizetype>(window.name.size())));
  setFocusPolicy(Qt::NoFocus);
  build(binder_, window_, ground_);
  ShowData();  // before the layouts are asked for their size
  setWidget(ground_);
  binder_.WatchGround(ground_, window_);
  binder_.WatchGround(this, window_);
}

void WindowView::ShowData() {
  const QString title = ToQt(window_.caption);
  if (windowTitle() != title) setWindowTitle(title);
  binder_.Show();
}

void WindowView::Place(const QSize& room) {
  placed_ = true;
  adjustSize();
  QPoint corner(static_cast<int>(window_.left / kTwipsPerPixel), static_cast<int>(window_.top / kTwipsPerPixel));
  if (window_.centred) corner = QPoint(room.width() - width(), room.height() - height()) / 2;
  move(corner);
  KeepInside(room);
}

void WindowView::KeepInside(const QSize& room) {
  const QPoint furthest(std::max(0, room.width() - width()), std::max(0, room.height() - height()));
  const QPoint place(std::clamp(x(), 0, furthest.x()), std::clamp(y(), 0, furthest.y()));
  if (place != pos()) move(place);
}

void WindowView::closeEvent(QCloseEvent* event) {
  event->ignore();
  stage_.Act([this] { CloseBox(stage_.program, window_); });
}

/// A click beside the controls, or on the title bar, brings the window to the front.
void WindowView::mousePressEvent(QMouseEvent* event) {
  Program& program = stage_.program;
  if (!program.order.empty() && program.order.front() != &window_) {
    stage_.Act([&] { RunEvent(program, [&] { BringToFront(program, window_); }); });
  }
  QMdiSubWindow::mousePressEvent(event);
}

}  // namespace zefirondo::screens
