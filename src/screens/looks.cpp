#include "screens/looks.h"

#include <QApplication>
#include <QPalette>
#include <QWidget>

#include "core/controls.h"

namespace zefirondo::screens {
namespace {

constexpr int kLightFrom = 128;  // the grey value from which on a background wants dark text

QColor Background(const QPalette& system, int back) {
  if (back == colour::kWindow) return system.color(QPalette::Base);
  if (back == colour::kFace) return system.color(QPalette::Button);
  return LiteralColour(back);
}

QColor TextColour(const QPalette& system, int back, int fore) {
  if (fore >= 0) return LiteralColour(fore);
  if (back < 0) return system.color(back == colour::kFace ? QPalette::ButtonText : QPalette::Text);
  return qGray(LiteralColour(back).rgb()) >= kLightFrom ? QColor(Qt::black) : QColor(Qt::white);
}

}  // namespace

QColor LiteralColour(int colour) { return QColor(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF); }

void ShowColours(QWidget& widget, int back, int fore) {
  const bool plain = (back == colour::kWindow || back == colour::kFace) && fore == colour::kText;
  const bool field = widget.inherits("QLineEdit") || widget.inherits("QComboBox") || widget.inherits("QPlainTextEdit");
  if (plain && (back == colour::kWindow || !field)) {
    widget.setPalette(QPalette());
    return;
  }
  QPalette palette = QApplication::palette(&widget);
  if (field) {
    palette.setColor(QPalette::Base, Background(palette, back));
    palette.setColor(QPalette::Text, TextColour(palette, back, fore));
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(Qt::gray));
  } else if (fore >= 0) {
    palette.setColor(QPalette::WindowText, LiteralColour(fore));
    palette.setColor(QPalette::ButtonText, LiteralColour(fore));
  }
  widget.setPalette(palette);
}

}  // namespace zefirondo::screens
