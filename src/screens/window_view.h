// The screen of one window: its widgets and their binder, built when the window is first shown.
#pragma once

#include <QMdiSubWindow>
#include <functional>

#include "screens/binder.h"

namespace zefirondo::screens {

/// Fills a content widget with the widgets of a window.
using BuildContent = void (*)(Binder& binder, Window& window, QWidget* content);

/// A window in the frame. It closes when the program says so, never by itself.
class WindowView : public QMdiSubWindow {
 public:
  WindowView(Stage& stage, Window& window, BuildContent build);

  [[nodiscard]] Window& data() const { return window_; }
  [[nodiscard]] Binder& binder() { return binder_; }
  /// What holds Qt's focus when none of the window's controls does.
  [[nodiscard]] QWidget* ground() const { return ground_; }

  /// Brings the window's widgets and its title in line with the data.
  void ShowData();

  /// Gives the window its place when it is opened, inside what can be seen of the frame.
  void Place(const QSize& room);
  /// Moves the window inside what can be seen, as far as it fits.
  void KeepInside(const QSize& room);
  /// Forgets the place, since a window that is opened again gets its own one again.
  void Unplace() { placed_ = false; }
  [[nodiscard]] bool placed() const { return placed_; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  Stage& stage_;
  Window& window_;
  Binder binder_;
  QWidget* ground_;
  bool placed_ = false;
};

}  // namespace zefirondo::screens
