#include "screens/pictures.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <array>

namespace zefirondo::screens {
namespace {

constexpr double kMargin = 2.0;
constexpr double kLetterBox = 24.0;

/// The corners of a box seen from above its front: the front face, and the rear face behind it.
struct BoxCorners {
  std::array<QPointF, 4> front;  // lower left, lower right, upper right, upper left
  std::array<QPointF, 4> rear;
};

/// `narrowing` is how much the rear is narrower than the front, as a part of the front on each side.
BoxCorners Corners(const QRectF& area, double narrowing) {
  const QRectF inner = area.adjusted(kLetterBox, kLetterBox * 0.8, -kLetterBox, -kLetterBox * 0.8);
  const double width = inner.width() * 0.62;
  const double height = inner.height() * 0.74;
  const QPointF shift(inner.width() * 0.38, -inner.height() * 0.26);
  const QRectF face(inner.left(), inner.bottom() - height, width, height);
  const double in = width * narrowing;
  return {{face.bottomLeft(), face.bottomRight(), face.topRight(), face.topLeft()},
          {face.bottomLeft() + shift + QPointF(in, 0), face.bottomRight() + shift - QPointF(in, 0),
           face.topRight() + shift - QPointF(in, 0), face.topLeft() + shift + QPointF(in, 0)}};
}

void DrawHidden(QPainter& painter, const BoxCorners& box, const QColor& ink) {
  QPen pen(ink, 1.0, Qt::DashLine);
  pen.setColor(QColor(ink.red(), ink.green(), ink.blue(), 110));
  painter.setPen(pen);
  painter.drawLine(box.front[0], box.rear[0]);
  painter.drawLine(box.rear[0], box.rear[1]);
  painter.drawLine(box.rear[0], box.rear[3]);
}

void DrawVisible(QPainter& painter, const BoxCorners& box, const QColor& ink) {
  painter.setPen(QPen(ink, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const QColor face(ink.red(), ink.green(), ink.blue(), 18);
  painter.setBrush(face);
  painter.drawPolygon(box.front.data(), 4);
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(std::array{box.front[3], box.rear[3], box.rear[2], box.rear[1], box.front[1]}.data(), 5);
  painter.drawLine(box.front[2], box.rear[2]);
}

void DrawLetter(QPainter& painter, const QPointF& at, const char* letter) {
  const QRectF place(at.x() - kLetterBox, at.y() - kLetterBox, 2 * kLetterBox, 2 * kLetterBox);
  painter.drawText(place, Qt::AlignCenter, QLatin1String(letter));
}

void DrawDriver(QPainter& painter, const BoxCorners& box) {
  const QPointF centre = (box.front[0] + box.front[2]) / 2;
  const double radius = (box.front[1].x() - box.front[0].x()) * 0.3;
  painter.drawEllipse(centre, radius, radius);
  painter.drawEllipse(centre, radius * 0.35, radius * 0.35);
}

void DrawBox(QPainter& painter, const QRectF& area, const QColor& ink, double narrowing) {
  const BoxCorners box = Corners(area, narrowing);
  DrawHidden(painter, box, ink);
  DrawVisible(painter, box, ink);
  DrawDriver(painter, box);
  DrawLetter(painter, (box.front[0] + box.front[1]) / 2 + QPointF(0, kLetterBox * 0.45), "L");
  DrawLetter(painter, (box.front[0] + box.front[3]) / 2 - QPointF(kLetterBox * 0.45, 0), "H");
  DrawLetter(painter, (box.front[1] + box.rear[1]) / 2 + QPointF(kLetterBox * 0.45, kLetterBox * 0.35), "P");
  if (narrowing > 0) DrawLetter(painter, (box.rear[2] + box.rear[3]) / 2 - QPointF(0, kLetterBox * 0.4), "LD");
}

/// A length with an arrow at both ends.
void DrawMeasure(QPainter& painter, const QPointF& from, const QPointF& to) {
  const double tip = 4.0;
  painter.drawLine(from, to);
  const bool level = from.y() == to.y();
  for (const double side : {-1.0, 1.0}) {
    const QPointF inward = level ? QPointF(tip, side * tip / 2) : QPointF(side * tip / 2, tip);
    painter.drawLine(from, from + inward);
    painter.drawLine(to, to - inward);
  }
}

constexpr std::array kIconSizes{16, 32, 48};
constexpr QRgb kIconWood = 0x8a5a2b;

/// In parts of the icon's side; `desktop` holds the same drawing.
struct IconRing {
  double centre;
  double radius;
  QRgb colour;
};

constexpr std::array kIconRings = std::to_array<IconRing>({
    {0.60, 0.32, 0x2b2b2b},
    {0.60, 0.25, 0x5a5a5a},
    {0.60, 0.10, 0x1c1c1c},
    {0.17, 0.08, 0x1c1c1c},
});

}  // namespace

void DrawPrism(QPainter& painter, const QRectF& area, const QColor& ink) { DrawBox(painter, area, ink, 0.0); }

void DrawTrapezoid(QPainter& painter, const QRectF& area, const QColor& ink) { DrawBox(painter, area, ink, 0.18); }

void DrawRoundSection(QPainter& painter, const QRectF& area, const QColor& ink) {
  const double diameter = area.height() - 2 * kMargin;
  const QRectF circle(area.center().x() - diameter / 2, area.top() + kMargin, diameter, diameter);
  painter.setPen(QPen(ink, 1.6));
  painter.setBrush(QColor(ink.red(), ink.green(), ink.blue(), 18));
  painter.drawEllipse(circle);
  painter.setPen(QPen(ink, 1.0));
  DrawMeasure(painter, {circle.left() + 2, circle.center().y()}, {circle.right() - 2, circle.center().y()});
}

void DrawRectangularSection(QPainter& painter, const QRectF& area, const QColor& ink) {
  const double height = area.height() - 2 * kMargin;
  const double width = height * 1.5;
  const QRectF section(area.center().x() - width / 2, area.top() + kMargin, width, height);
  painter.setPen(QPen(ink, 1.6, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.setBrush(QColor(ink.red(), ink.green(), ink.blue(), 18));
  painter.drawRect(section);
  painter.setPen(QPen(ink, 1.0));
  DrawLetter(painter, {section.center().x(), section.bottom() - 9}, "a");
  DrawLetter(painter, {section.left() + 9, section.center().y() - 3}, "b");
}

void DrawProgramIcon(QPainter& painter, const QRectF& area, const QColor& /*ink*/) {
  painter.save();
  painter.translate(area.topLeft());
  painter.scale(area.width(), area.height());
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(kIconWood));
  painter.drawRoundedRect(QRectF(0.08, 0.04, 0.84, 0.92), 0.08, 0.08);
  for (const IconRing& ring : kIconRings) {
    painter.setBrush(QColor(ring.colour));
    painter.drawEllipse(QPointF(0.5, ring.centre), ring.radius, ring.radius);
  }
  painter.restore();
}

QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : kIconSizes) {
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawProgramIcon(painter, QRectF(0, 0, size, size), {});
    painter.end();
    icon.addPixmap(picture);
  }
  return icon;
}

PictureWidget::PictureWidget(DrawPicture draw, const QSize& size, QWidget* parent) : QWidget(parent), draw_(draw) {
  setFixedSize(size);
}

void PictureWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  draw_(painter, QRectF(rect()),
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
}

}  // namespace zefirondo::screens
