// One control and the widget that shows it.
#pragma once

#include <QString>
#include <string>
#include <vector>

#include "core/program.h"

class QLabel;
class QLineEdit;
class QWidget;

namespace zefirondo::screens {

struct Pair {
  Control* control = nullptr;
  QWidget* widget = nullptr;
  QLabel* words = nullptr;  // of a field: the words beside it; of a page: its heading
  QLabel* unit = nullptr;   // of a field: the words behind it

  // What the widget shows and could not be asked for cheaply.
  int back = colour::kWindow;
  int fore = colour::kText;
  std::string tip;
  std::string spoken;
  std::vector<std::string> list;

  /// The line that a text box or the typed part of a combo box is edited in; null for other widgets.
  [[nodiscard]] QLineEdit* Line() const;
};

/// Brings what a widget shows in line with its control: words, list, colours.
void ShowContent(Pair& pair, const Program& program);

/// Brings in line whether it is shown, and what can be done with it.
void ShowState(Pair& pair);

/// The text that a field shows, as the program keeps texts.
[[nodiscard]] std::string FieldText(const Pair& pair);

/// Takes the caret and the selection from a field's widget into its control, and puts them back.
void ReadCaret(const Pair& pair);
void ShowCaret(const Pair& pair);

}  // namespace zefirondo::screens
