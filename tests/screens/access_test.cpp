#include "access_test.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QPalette>

#include "core/events.h"
#include "core/window_life.h"
#include "desk.h"
#include "screens/plot_widget.h"

using namespace zefirondo;
using namespace zefirondo::screens;

namespace {

/// Puts a dark desktop in place of the usual one, for as long as it lives.
class DarkDesktop {
 public:
  DarkDesktop() : usual_(QApplication::palette()) {
    QPalette dark(QColor(55, 55, 58), QColor(45, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    QApplication::setPalette(dark);
  }
  DarkDesktop(const DarkDesktop&) = delete;
  DarkDesktop& operator=(const DarkDesktop&) = delete;
  ~DarkDesktop() { QApplication::setPalette(usual_); }

 private:
  QPalette usual_;
};

/// The contrast of two colours as the web's guidelines reckon it, from 1 to 21.
double Contrast(const QColor& one, const QColor& other) {
  const auto luminance = [](const QColor& colour) {
    const auto linear = [](double part) {
      return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
  };
  const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

}  // namespace

void AccessTest::EveryControlHasAName_data() {
  QTest::addColumn<QString>("window");
  QTest::addColumn<bool>("italian");
  Desk names;
  for (const bool italian : {false, true}) {
    for (const Window* const window : names.program.all) {
      if (window == &names.program.windows.mdithsm.window) continue;
      const QString name = QString::fromStdString(std::string(window->name));
      QTest::newRow(qPrintable(name + (italian ? " it" : " en"))) << name << italian;
    }
  }
}

void AccessTest::EveryControlHasAName() {
  QFETCH(const QString, window);
  QFETCH(const bool, italian);
  Desk desk(italian ? Language::Italian : Language::English);
  Window& data = *desk.program.FindWindow(window.toStdString());
  desk.frame->stage().Act([&] {
    RunEvent(desk.program, [&] {
      desk.program.state.BoxScaleTop = desk.program.state.ImpScaleTop = desk.program.state.SplScaleTop = 65;
      LoadWindow(desk.program, desk.program.windows.frmthsm.window);
      desk.program.state.txtfs = "35";
      desk.program.state.txtvas = "0.1";
      OpenWindow(desk.program, data);
    });
  });
  QCoreApplication::processEvents();
  QVERIFY(desk.frame->ViewOf(data) != nullptr);
  int seen = 0;
  for (QWidget* const widget : desk.frame->ViewOf(data)->findChildren<QWidget*>()) {
    const bool plot = dynamic_cast<PlotWidget*>(widget) != nullptr;
    const bool control = (widget->focusPolicy() & Qt::TabFocus) != 0 && !widget->objectName().isEmpty();
    if (!plot && !control) continue;
    if (widget->objectName().startsWith("qt_") || widget->objectName() == "txtb") continue;  // side b: while it shows
    const QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(widget);
    QVERIFY(spoken != nullptr);
    QVERIFY2(!spoken->text(QAccessible::Name).trimmed().isEmpty(),
             qPrintable(widget->objectName() + " " + widget->metaObject()->className()));
    ++seen;
  }
  QVERIFY(seen > 0);
}

void AccessTest::APlotIsWhiteOnADarkDesktop() {
  const DarkDesktop dark;
  Desk desk;
  desk.NewProject();
  desk.FillWoofer();
  desk.DesignVentedBox();
  const QImage plot = desk.Find("frmgrafcassa.pctgraf")->grab().toImage();
  QCOMPARE(plot.pixel(3, 3), qRgb(255, 255, 255));
  desk.Press("frmgrafcassa.pctgraf");
  const auto* const readout = desk.Find("frmgrafcassa.pctgraf")->findChild<QLabel*>();
  QVERIFY(Contrast(readout->palette().color(QPalette::Window), readout->palette().color(QPalette::WindowText)) > 7);
  desk.Release("frmgrafcassa.pctgraf");
}

void AccessTest::WordsStandOutOnADarkDesktop() {
  const DarkDesktop dark;
  Desk desk;
  desk.NewProject();
  desk.FillWoofer();
  desk.DesignVentedBox();
  int seen = 0;
  for (const Window* const window : desk.program.all) {
    WindowView* const view = desk.frame->ViewOf(*window);
    if (view == nullptr || !window->open) continue;
    for (const Control* const control : window->controls) {
      if (!control->IsField()) continue;
      const auto* const widget = view->findChild<QWidget*>(QString::fromStdString(control->FullName()));
      const QPalette palette = widget->palette();
      const double contrast =
          Contrast(palette.color(QPalette::Active, QPalette::Base), palette.color(QPalette::Active, QPalette::Text));
      QVERIFY2(contrast > 4.5, qPrintable(widget->objectName()));
      ++seen;
    }
  }
  QVERIFY(seen > 60);
}
