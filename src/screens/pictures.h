// The program's own drawings: the box with its dimensions, and the section of a port.
#pragma once

#include <QSize>
#include <QWidget>

class QIcon;
class QPainter;

namespace zefirondo::screens {

/// Draws into a rectangle, with the pen's colour for lines and words.
using DrawPicture = void (*)(QPainter& painter, const QRectF& area, const QColor& ink);

void DrawPrism(QPainter& painter, const QRectF& area, const QColor& ink);
void DrawTrapezoid(QPainter& painter, const QRectF& area, const QColor& ink);
void DrawRoundSection(QPainter& painter, const QRectF& area, const QColor& ink);
void DrawRectangularSection(QPainter& painter, const QRectF& area, const QColor& ink);
void DrawProgramIcon(QPainter& painter, const QRectF& area, const QColor& ink);

/// The program's icon: a woofer on its baffle.
[[nodiscard]] QIcon ProgramIcon();

class PictureWidget : public QWidget {
 public:
  PictureWidget(DrawPicture draw, const QSize& size, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  DrawPicture draw_;
};

}  // namespace zefirondo::screens
