#include "screens/printing.h"

#include <QPainter>
#include <QPrinter>
#include <algorithm>

#include "core/run_time_error.h"
#include "screens/page_painter.h"

namespace zefirondo::screens {
namespace {

[[noreturn]] void Fail() { throw RunTimeError(ErrorNumber::DeviceError); }

void Turn(QPrinter& printer, const Page& page) {
  printer.setPageOrientation(page.landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
}

/// Twips, counted from the corner of the paper; on a printer that does not reach it, from the first place it reaches.
void SetUnit(QPainter& painter, const QPrinter& printer) {
  const QMarginsF unreached = printer.pageLayout().minimumMargins();  // points
  const double scale = printer.resolution() / kTwipsPerInch;
  painter.resetTransform();
  painter.scale(scale, scale);
  painter.translate(unreached.left() * kTwipsPerPoint, unreached.top() * kTwipsPerPoint);
}

}  // namespace

void SetUpPaper(QPrinter& printer) {
  printer.setPageSize(QPageSize(QPageSize::A4));
  printer.setPageOrientation(QPageLayout::Portrait);
  printer.setFullPage(true);
}

PrintChoice TakeChoice(QPrinter& printer) {
  const PrintChoice choice{std::max(1, printer.copyCount()),
                           printer.pageLayout().orientation() == QPageLayout::Landscape};
  printer.setCopyCount(1);
  return choice;
}

void PrintPages(QPrinter& printer, const std::vector<Page>& pages) {
  if (pages.empty()) return;
  printer.setFullPage(true);
  Turn(printer, pages.front());
  QPainter painter;
  if (!painter.begin(&printer)) Fail();
  for (const Page& page : pages) {
    if (&page != &pages.front()) {
      Turn(printer, page);
      if (!printer.newPage()) Fail();
    }
    SetUnit(painter, printer);
    PaintPage(painter, page);
  }
  if (!painter.end() || printer.printerState() == QPrinter::Error || printer.printerState() == QPrinter::Aborted) {
    Fail();
  }
}

}  // namespace zefirondo::screens
