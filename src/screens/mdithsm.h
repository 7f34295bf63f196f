// The screen of `mdithsm`: the frame, the windows in it, and where Qt's focus is.
#pragma once

#include <QMainWindow>
#include <map>
#include <memory>
#include <vector>

#include "screens/stage.h"

class QMdiArea;
class QMdiSubWindow;

namespace zefirondo::screens {

class MenuBar;
class WindowView;

class MainFrameView : public QMainWindow {
 public:
  explicit MainFrameView(Program& program);
  ~MainFrameView() override;

  [[nodiscard]] Stage& stage() { return stage_; }
  [[nodiscard]] QMdiArea* area() const { return area_; }
  /// The view of a window, or null as long as the window was never shown.
  [[nodiscard]] WindowView* ViewOf(const Window& window) const;

  /// Shows the frame at a size that suits the screen.
  void ShowOnScreen();

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void ReadCaretOfFocus();
  void ShowData();
  void ShowWindows();
  void ShowWindow(Window& window);
  void ShowOrder();
  void ShowFocus();
  void NoteSize();
  void SubWindowActivated(QMdiSubWindow* activated);
  void FocusChanged(QWidget* now);
  [[nodiscard]] WindowView* FrontView() const;
  [[nodiscard]] QWidget* FocusTarget() const;

  Stage stage_;
  QMdiArea* area_;
  MenuBar* menu_bar_;
  std::map<const Window*, WindowView*> views_;
  std::vector<const Window*> shown_order_;
};

}  // namespace zefirondo::screens
