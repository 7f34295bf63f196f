// The program's colours and the widgets that show them.
#pragma once

#include <QColor>

class QWidget;

namespace zefirondo::screens {

/// A literal colour of the program: 24 bits with red in the low byte.
[[nodiscard]] QColor LiteralColour(int colour);

/// Gives a widget the program's colours of background and text. Those of the system are the palette's own; a
/// literal light background gets dark text, whatever the theme.
void ShowColours(QWidget& widget, int back, int fore);

}  // namespace zefirondo::screens
