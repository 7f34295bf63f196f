// Paints a drawing of this folder as PNG files of several sizes, when the program is built. It reads as much of SVG as
// the drawings use, and refuses what it does not know.
//
// usage: paint_icons DRAWING.svg SIZE=FILE.png ...

#include <QColor>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPolygonF>
#include <QXmlStreamReader>
#include <cstdio>
#include <stdexcept>

namespace {

double Number(const QXmlStreamAttributes& attributes, const char* name) {
  return attributes.value(QLatin1String(name)).toDouble();
}

QPolygonF Points(const QXmlStreamAttributes& attributes) {
  QPolygonF points;
  for (const auto& pair : attributes.value(QLatin1String("points")).split(u' ', Qt::SkipEmptyParts)) {
    const auto numbers = pair.split(u',');
    if (numbers.size() != 2) throw std::runtime_error("points are not pairs");
    points << QPointF(numbers[0].toDouble(), numbers[1].toDouble());
  }
  return points;
}

QColor Colour(QStringView name) { return name.isEmpty() || name == u"none" ? QColor() : QColor(name.toString()); }

void SetColours(QPainter& painter, const QXmlStreamAttributes& attributes) {
  const QColor fill = Colour(attributes.value(QLatin1String("fill")));
  const QColor stroke = Colour(attributes.value(QLatin1String("stroke")));
  painter.setBrush(fill.isValid() ? QBrush(fill) : QBrush(Qt::NoBrush));
  const QPen pen(stroke, Number(attributes, "stroke-width"), Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
  painter.setPen(stroke.isValid() ? pen : QPen(Qt::NoPen));
}

void PaintElement(QPainter& painter, QXmlStreamReader& drawing) {
  const QXmlStreamAttributes attributes = drawing.attributes();
  const auto number = [&attributes](const char* name) { return Number(attributes, name); };
  SetColours(painter, attributes);
  if (drawing.name() == u"rect") {
    const QRectF rectangle(number("x"), number("y"), number("width"), number("height"));
    painter.drawRoundedRect(rectangle, number("rx"), number("rx"));
  } else if (drawing.name() == u"circle") {
    painter.drawEllipse(QPointF(number("cx"), number("cy")), number("r"), number("r"));
  } else if (drawing.name() == u"polygon") {
    painter.drawPolygon(Points(attributes));
  } else if (drawing.name() == u"polyline") {
    painter.drawPolyline(Points(attributes));
  } else if (drawing.name() != u"title") {
    throw std::runtime_error("unknown element " + drawing.name().toString().toStdString());
  }
  drawing.skipCurrentElement();
}

/// The user units of the drawing become the pixels of the image.
void FitViewBox(QPainter& painter, QStringView view_box, int size) {
  const auto numbers = view_box.split(u' ');
  if (numbers.size() != 4) throw std::runtime_error("no viewBox");
  painter.scale(size / numbers[2].toDouble(), size / numbers[3].toDouble());
  painter.translate(-numbers[0].toDouble(), -numbers[1].toDouble());
}

QImage Paint(const QString& path, int size) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("cannot be read");
  QXmlStreamReader drawing(&file);
  if (!drawing.readNextStartElement() || drawing.name() != u"svg") throw std::runtime_error("not a drawing");
  QImage image(size, size, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  FitViewBox(painter, drawing.attributes().value(QLatin1String("viewBox")), size);
  while (drawing.readNextStartElement()) PaintElement(painter, drawing);
  if (drawing.hasError()) throw std::runtime_error(drawing.errorString().toStdString());
  return image;
}

void WriteIcon(const QString& drawing, const QString& wanted) {
  const int size = wanted.section(u'=', 0, 0).toInt();
  const QString file = wanted.section(u'=', 1);
  if (size <= 0 || file.isEmpty()) throw std::runtime_error("usage: paint_icons DRAWING.svg SIZE=FILE.png ...");
  if (!Paint(drawing, size).save(file, "PNG")) throw std::runtime_error("cannot write " + file.toStdString());
}

}  // namespace

int main(int argc, char** argv) {
  try {
    for (int i = 2; i < argc; ++i) WriteIcon(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[i]));
    return argc > 2 ? 0 : 2;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "paint_icons: %s: %s\n", argv[1], error.what());
    return 1;
  }
}
