#include "screens/page_painter.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "screens/pictures.h"
#include "screens/plot_widget.h"
#include "screens/qt_text.h"

namespace zefirondo::screens {
namespace {

constexpr double kColumn = 72.0;         // twips from one column to the next
constexpr int kLetter = 160;             // a font of 8 points
constexpr double kWordGap = 60.0;        // between a text and the next one in its line
constexpr double kPaperRight = 11700.0;  // A4, less what no printer reaches
constexpr double kFrameLine = 8.0;
constexpr PlotPens kPlotPens{6.0, 18.0};
constexpr double kTwipsPerPixel = 15.0;  // the drawings are made for the screen
constexpr int kDrawingLetter = 12;       // pixels

struct Drawing {
  std::string_view source;
  DrawPicture draw;
};

constexpr std::array kDrawings = std::to_array<Drawing>({
    {"imgbox(0)", DrawPrism},
    {"imgbox(1)", DrawTrapezoid},
    {"imgforma(0)", DrawRoundSection},
    {"imgforma(1)", DrawRectangularSection},
});

QFont PaperFont(int pixels, bool strong) {
  QFont font;
  font.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("Arimo"), QStringLiteral("Helvetica"),
                    QStringLiteral("Arial"), font.family()});
  font.setPixelSize(pixels);
  font.setBold(strong);
  return font;
}

double Start(const PageText& text) { return text.tab > 0 ? TabStop(text.tab) : text.x; }

/// Where the next text of the same line begins, or the paper ends.
double NextStart(const Page& page, const PageText& text) {
  double next = kPaperRight;
  for (const PageItem& item : page.items) {
    const auto* const other = std::get_if<PageText>(&item);
    if (other == nullptr || other->y != text.y || Start(*other) <= Start(text)) continue;
    next = std::min(next, Start(*other) - kWordGap);
  }
  return next;
}

class PagePainter {
 public:
  PagePainter(QPainter& painter, const Page& page) : painter_(painter), page_(page) {}

  void operator()(const PageText& text) {
    const QFont font = PaperFont(kLetter, text.strong);
    const QFontMetricsF metrics(font);
    const QString words = ToQt(text.text);
    const double left = Start(text);
    const double room = NextStart(page_, text) - left;
    const double width = metrics.horizontalAdvance(words);
    painter_.save();
    painter_.setFont(font);
    painter_.setPen(Qt::black);
    painter_.translate(left, text.y + metrics.ascent());
    if (width > room) painter_.scale(room / width, 1.0);  // narrower letters rather than two texts in one place
    painter_.drawText(QPointF(), words);
    painter_.restore();
  }

  void operator()(const PageLine& line) {
    painter_.setPen(QPen(Qt::black, kFrameLine, Qt::SolidLine, Qt::SquareCap));
    painter_.drawLine(QLineF(line.x1, line.y1, line.x2, line.y2));
  }

  void operator()(const PageBox& box) {
    painter_.setPen(QPen(Qt::black, kFrameLine, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(QRectF(QPointF(box.x1, box.y1), QPointF(box.x2, box.y2)));
  }

  void operator()(const PagePicture& picture) {
    const QRectF area(picture.x, picture.y, picture.width, picture.height);
    const auto* const drawing = std::find_if(kDrawings.begin(), kDrawings.end(), [&](const Drawing& candidate) {
      return candidate.source == picture.source;
    });
    if (drawing == kDrawings.end()) {
      PaintSurface(painter_, picture.plot, area, kPlotPens);
      return;
    }
    painter_.save();
    painter_.translate(area.topLeft());
    painter_.scale(kTwipsPerPixel, kTwipsPerPixel);
    painter_.setFont(PaperFont(kDrawingLetter, false));
    drawing->draw(painter_, QRectF(QPointF(), area.size() / kTwipsPerPixel), Qt::black);
    painter_.restore();
  }

 private:
  QPainter& painter_;
  const Page& page_;
};

}  // namespace

double TabStop(int column) { return (column - 1) * kColumn; }

void PaintPage(QPainter& painter, const Page& page) {
  painter.setRenderHint(QPainter::Antialiasing);
  PagePainter paint(painter, page);
  for (const PageItem& item : page.items) std::visit(paint, item);
}

}  // namespace zefirondo::screens
