// A running program on a screen that nobody sees, and the hands of a person on its keys and mouse.
#pragma once

#include <QMessageBox>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "core/program.h"
#include "screens/mdithsm.h"
#include "screens/qt_platform.h"
#include "screens/window_view.h"

namespace zefirondo::screens {

/// The desktop of the tests: a wide screen, one fixed day, files chosen in advance, nothing written elsewhere.
class DeskPlatform : public QtPlatform {
 public:
  using QtPlatform::QtPlatform;

  std::deque<std::filesystem::path> files;
  std::function<void()> on_answer;  // called when a file dialog is answered

  double ScreenWidth() override { return 1920 * 15.0; }
  Date Today() override { return {1, 2, 2024}; }
  void WriteStore(const std::string& /*key*/, const std::string& /*value*/) override {}
  bool StartTool(const std::filesystem::path& /*tool*/) override { return false; }
  std::optional<std::filesystem::path> ChooseFile(const FileDialog& dialog) override;
};

/// A message box as it stood on the screen.
struct ShownBox {
  QString title;
  QString text;
  QMessageBox::Icon icon = QMessageBox::NoIcon;
  QStringList buttons;
  QString default_button;
};

class Desk {
 public:
  explicit Desk(Language language = Language::English, const std::string& command_line = {});
  ~Desk();
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;

  QTemporaryDir folder;
  DeskPlatform platform;
  Program program;
  std::unique_ptr<MainFrameView> frame;
  std::vector<ShownBox> boxes;
  /// Closes a dialog that nobody planned to answer; without it such a dialog is a failure of the test.
  std::function<void(QDialog&)> answer_unplanned;

  /// Has the next message box answered with a key or by a click on a button. A box with OK alone needs none.
  void AnswerByClick(QMessageBox::StandardButton button) { answers_.push_back({button, std::nullopt}); }
  void AnswerByKey(Qt::Key key) { answers_.push_back({std::nullopt, key}); }

  /// Keys as the keyboard sends them: to the window, which has the focus widget.
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
  void Type(const QString& text) const;

  /// A mouse button on a control's widget, at its middle or at a place of it.
  void Press(const QString& name, Qt::MouseButton button = Qt::LeftButton, std::optional<QPoint> at = {});
  void Release(const QString& name, Qt::MouseButton button = Qt::LeftButton);
  void Click(const QString& name, Qt::MouseButton button = Qt::LeftButton, std::optional<QPoint> at = {});
  void DoubleClick(const QString& name);
  void ClickTab(const QString& caption);

  /// Opens a menu of the bar with the mouse and clicks an entry, or clicks an entry of the bar itself.
  void ChooseEntry(const QString& name);
  /// Brings a window to the front, as its tab in the window list would.
  void Front(std::string_view window);
  /// Opens a combo box with the mouse and takes an item with Enter.
  void PickItem(const QString& name, const QString& item);

  /// Puts the caret into a field with the mouse, types over what it holds.
  void Fill(const QString& name, const QString& text);

  /// A new project with entered parameters, by the menu's mnemonics.
  void NewProject();
  /// The pages of a made-up woofer for a vented box, typed; the page "par" is in front then.
  void FillWoofer();
  /// Computes, and takes the vented box that is proposed.
  void DesignVentedBox();

  /// A widget by its control's name, or by "window.control" where windows share it.
  [[nodiscard]] QWidget* Find(const QString& name) const;
  template <class Widget>
  [[nodiscard]] Widget* Find(const QString& name) const {
    return qobject_cast<Widget*>(Find(name));
  }
  [[nodiscard]] QString Text(const QString& name) const;
  [[nodiscard]] QString FocusName() const;
  [[nodiscard]] QStringList MenuTitles() const;
  [[nodiscard]] WindowView* View(std::string_view window) const;

  /// The names of the fields whose widget shows other than the data.
  [[nodiscard]] QStringList FieldsThatDiffer() const;

 private:
  struct Planned {
    std::optional<QMessageBox::StandardButton> button;
    std::optional<Qt::Key> key;
  };

  void Activate() const;
  void AnswerBox();
  [[nodiscard]] QPoint InWindow(const QWidget& widget, std::optional<QPoint> at) const;

  std::deque<Planned> answers_;
  QTimer answering_;
};

}  // namespace zefirondo::screens
