// Controls and windows as plain data: what a person sees of them, and what their events run.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "core/messages.h"
#include "core/project_state.h"
#include "core/record.h"
#include "core/surface.h"

namespace zefirondo {

struct Program;
struct Window;
struct FieldRules;

/// Colours are 24 bits with red in the low byte; the system's own colours stand below zero.
namespace colour {
inline constexpr int kWindow = -1;  // the normal background of a field
inline constexpr int kText = -2;    // the normal colour of text
inline constexpr int kFace = -3;    // the face of a button
inline constexpr int kBlack = 0;
inline constexpr int kRed = 255;
inline constexpr int kGreen = 65280;
inline constexpr int kBlue = 16711680;
inline constexpr int kOrange = 33023;
inline constexpr int kCyan = 16776960;
inline constexpr int kMagenta = 16711935;
inline constexpr int kGrey = 14737632;    // 224, 224, 224: a field that the user cannot type in
inline constexpr int kYellow = 12648447;  // 255, 255, 192: a field that reacts to the mouse
inline constexpr int kWhite = 16777215;
}  // namespace colour

enum class ControlKind {
  Label,
  TextBox,
  ComboBox,
  CheckBox,
  Option,
  Button,
  Picture,
  Plot,
  Frame,
  TabStrip,
  ProgressBar,
  Menu,       // opens its entries
  MenuEntry,  // does something
};

/// The routines that a control's events run. An empty one does nothing.
struct ControlEvents {
  using Routine = void (*)(Program&);
  Routine click = nullptr;
  Routine change = nullptr;
  Routine got_focus = nullptr;
  Routine lost_focus = nullptr;
  Routine double_click = nullptr;
  Routine right_click = nullptr;
  /// A test before the focus leaves; true lets it go.
  bool (*validate)(Program&) = nullptr;
  /// A key that the field takes for itself, before its key filter; true when it did.
  bool (*key)(Program&, int key) = nullptr;
  void (*mouse_down)(Program&, double x, double y) = nullptr;
  void (*mouse_up)(Program&) = nullptr;
};

/// A text of the table by its number, or a fixed one.
struct Caption {
  constexpr Caption() = default;
  constexpr Caption(int message) : id(message) {}           // NOLINT(google-explicit-constructor)
  constexpr Caption(const char* fixed) : literal(fixed) {}  // NOLINT(google-explicit-constructor)
  int id = 0;
  const char* literal = "";

  [[nodiscard]] std::string Text(Language language) const {
    return std::string(id != 0 ? MessageText(id, language) : std::string_view(literal));
  }
};

/// How a control stands when its window is loaded.
struct ControlDesign {
  Caption caption{};                           // the words on it; of a field, the words beside it
  Caption unit{};                              // the words behind a field
  std::string ProjectState::*field = nullptr;  // the member that is the text of a sheet field
  const char* parent = "";                     // the frame it stands on, or the menu it belongs to
  Caption text{};                              // the text of a field
  std::vector<Caption> list{};
  bool enabled = true;
  bool visible = true;
  bool locked = false;
  int back = colour::kFace;
  Caption tip{};
  bool multiline = false;  // Enter begins a new line
};

struct Control {
  std::string_view name;
  int index = -1;  // the place in a control array; -1 for a single control
  ControlKind kind = ControlKind::Label;
  Window* window = nullptr;
  Control* parent = nullptr;
  ControlDesign design;

  std::string* text = nullptr;  // the record's string for a sheet field, `own_text` otherwise
  std::string own_text;         // a caption, or the text of a field of its own
  std::string label;            // the words beside a field, and behind it
  std::string unit;
  std::string tip;
  bool enabled = true;
  bool visible = true;
  bool locked = false;
  bool checked = false;
  int back = colour::kFace;
  int fore = colour::kText;
  std::vector<std::string> list;

  std::size_t selection_start = 0;  // in characters; the caret stands behind the selection
  std::size_t selection_length = 0;
  double left = 0.0, top = 0.0, width = 0.0;  // of a read-out, in user coordinates of its plot
  int progress = 0;                           // percent, of a progress bar
  Surface* surface = nullptr;                 // of a plot
  Control* readout = nullptr;                 // of a plot: the text that shows at the mouse
  const FieldRules* rules = nullptr;          // of a field that filters keys or tests its text

  ControlEvents on;

  Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  [[nodiscard]] bool IsField() const { return kind == ControlKind::TextBox || kind == ControlKind::ComboBox; }
  [[nodiscard]] bool IsMenu() const { return kind == ControlKind::Menu || kind == ControlKind::MenuEntry; }
  /// Whether the keyboard can reach it at all.
  [[nodiscard]] bool TakesFocus() const;
  /// Visible, and every frame it stands on too.
  [[nodiscard]] bool IsShown() const;
  /// Enabled, and every frame or menu it belongs to too.
  [[nodiscard]] bool IsUsable() const;
  /// The name as people give it: bare, or with its place in the array.
  [[nodiscard]] std::string FullName() const;
};

struct WindowEvents {
  void (*load)(Program&) = nullptr;
  void (*activate)(Program&) = nullptr;
  bool (*close_box)(Program&) = nullptr;     // false refuses the close box, and it alone
  bool (*query_unload)(Program&) = nullptr;  // false refuses the close, by whatever road
  void (*unload)(Program&) = nullptr;
};

/// A value that a window keeps, by name.
struct WindowValue {
  std::string_view name;
  ValueRef value;
};

struct TabStripItem {
  std::string key;
  std::string caption;
};

struct Window {
  std::string_view name;
  Caption caption_design;
  std::string caption;
  bool open = false;
  bool hidden = false;
  bool centred = false;      // placed in the middle of the frame when opened
  bool takes_focus = false;  // a small window that the user fills in: it takes the focus when opened
  double left = 0.0, top = 0.0, width = 0.0, height = 0.0;  // twips, within the frame
  double design_left = 0.0, design_top = 0.0;
  std::vector<Control*> controls;  // in the order of the form, which is the tab order
  std::vector<WindowValue> values;
  WindowEvents on;

  Window() = default;
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  [[nodiscard]] Control* Find(std::string_view control, int index = -1) const;
  [[nodiscard]] bool HasMenus() const;
};

/// One row of a window's description: what the control is called, where it stands in the window's struct, what
/// it is and how it looks.
template <class Form>
struct ControlRow {
  ControlKind kind = ControlKind::Label;
  const char* name = "";
  int index = -1;
  Control& (*member)(Form&) = nullptr;
  ControlDesign design{};
};

/// Ties one control to its description.
void DescribeControl(Window& window, Control& control, ControlKind kind, std::string_view name, int index,
                     const ControlDesign& design, ProjectState& state);

/// Ties the controls of a window to their descriptions, in the given order.
template <class Form>
void DescribeWindow(Form& form, ProjectState& state, const std::vector<ControlRow<Form>>& rows) {
  for (const ControlRow<Form>& row : rows) {
    DescribeControl(form.window, row.member(form), row.kind, row.name, row.index, row.design, state);
  }
}

/// Puts every control of a window back to its design, with the captions of the language.
void ApplyDesign(Window& window, Language language);

}  // namespace zefirondo
