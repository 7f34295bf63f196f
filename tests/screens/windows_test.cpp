#include "windows_test.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenuBar>
#include <QPushButton>

#include "desk.h"
#include "screens/plot_widget.h"

using namespace zefirondo;
using namespace zefirondo::screens;

namespace {

const QStringList kFrameMenus{"&File", "&Project", "&Settings", "&Utility", "&?"};
const QStringList kSheetMenus{"&File", "&Edit", "&?"};
const QStringList kBoxMenus{"&File", "&Show", "Insert &Filters", "&Calculator", "&?"};

/// A vented box is designed, its response stands in front.
struct DesignedDesk : Desk {
  DesignedDesk() {
    NewProject();
    FillWoofer();
    DesignVentedBox();
  }
};

/// A place on a plot at a part of its width and height.
QPoint Part(const QWidget& plot, double x, double y) {
  return {static_cast<int>(plot.width() * x), static_cast<int>(plot.height() * y)};
}

}  // namespace

void WindowsTest::TheMenuBarIsThatOfTheWindowInFront() {
  Desk desk;
  QCOMPARE(desk.MenuTitles(), kFrameMenus);
  desk.NewProject();
  QCOMPARE(desk.MenuTitles(), kSheetMenus);
  desk.FillWoofer();
  desk.DesignVentedBox();
  QCOMPARE(desk.MenuTitles(), kBoxMenus);
  desk.Click("TabStrip1", Qt::LeftButton, QPoint(300, 40));  // beside the tabs
  QTest::mouseClick(desk.View("frmthsm"), Qt::LeftButton, {}, QPoint(60, 8));
  QCOMPARE(desk.MenuTitles(), kSheetMenus);
  desk.View("frmgrafcassa")->close();
  desk.AnswerByClick(QMessageBox::No);
  desk.View("frmthsm")->close();
  QCOMPARE(desk.MenuTitles(), kFrameMenus);
}

void WindowsTest::MenuEntriesFollowTheData() {
  DesignedDesk desk;
  const auto* const red = desk.frame->findChild<QAction*>("mnusalvatracciatorosso");
  QVERIFY(red != nullptr);
  QVERIFY(!red->isEnabled());
  desk.Click("cmdset1");
  QVERIFY(red->isEnabled());
}

void WindowsTest::ClosingAModifiedSheetAsks() {
  DesignedDesk desk;
  desk.AnswerByKey(Qt::Key_Escape);
  desk.View("frmthsm")->close();
  QCOMPARE(desk.boxes.size(), 2U);
  QCOMPARE(desk.boxes[1].title, "Exit");
  QCOMPARE(desk.boxes[1].text, "The project has been modified\n\nDo you want to save the project?");
  QCOMPARE(desk.boxes[1].icon, QMessageBox::Question);
  QCOMPARE(desk.boxes[1].buttons, QStringList({"Yes", "No", "Cancel"}));
  QVERIFY(desk.View("frmthsm")->isVisible());
  desk.AnswerByClick(QMessageBox::No);
  desk.View("frmthsm")->close();
  QVERIFY(!desk.View("frmthsm")->isVisible());
  QVERIFY(!desk.View("frmgrafcassa")->isVisible());
  desk.NewProject();
  QVERIFY(desk.View("frmthsm")->isVisible());
  QCOMPARE(desk.Text("txtfs"), "");
  QCOMPARE(desk.Find<QTabBar>("TabStrip1")->count(), 4);
}

void WindowsTest::TheFrameStaysWhileTheProjectIsModified() {
  DesignedDesk desk;
  desk.frame->close();
  QCOMPARE(desk.boxes.back().title, "Active Project");
  QCOMPARE(desk.boxes.back().icon, QMessageBox::Information);
  QVERIFY(desk.frame->isVisible());
  QVERIFY(!desk.platform.ended());
  desk.AnswerByClick(QMessageBox::No);
  desk.View("frmthsm")->close();
  QTimer::singleShot(0, desk.frame.get(), [&desk] { desk.frame->close(); });
  QCOMPARE(QApplication::exec(), 0);
  QVERIFY(desk.platform.ended());
}

void WindowsTest::AClickBringsAWindowForward() {
  DesignedDesk desk;
  QCOMPARE(desk.frame->area()->activeSubWindow(), desk.View("frmgrafcassa"));
  desk.Click("txtvolnetto", Qt::LeftButton, QPoint(5, 5));
  QCOMPARE(desk.frame->area()->activeSubWindow(), desk.View("frmthsm"));
  QCOMPARE(desk.program.order.front(), &desk.program.windows.frmthsm.window);
  QCOMPARE(desk.FocusName(), "txtvolnetto");
}

void WindowsTest::KeysLeadFromWindowToWindow() {
  DesignedDesk desk;
  desk.Key(Qt::Key_Tab, Qt::ControlModifier);
  QTest::keyRelease(desk.frame->windowHandle(), Qt::Key_Control);
  QTRY_COMPARE(desk.program.order.front(), &desk.program.windows.frmthsm.window);
  desk.Key(Qt::Key_PageUp, Qt::ControlModifier);
  QCOMPARE(desk.program.windows.frmthsm.selected_tab, std::string("dim"));
}

void WindowsTest::TheSettingsHideTheGraph() {
  DesignedDesk desk;
  desk.ClickTab("Settings");
  QVERIFY(!desk.View("frmgrafcassa")->isVisible());
  QCOMPARE(desk.Text("txttemperatura"), "25");
  desk.ClickTab("Vented Box");
  QVERIFY(desk.View("frmgrafcassa")->isVisible());
}

void WindowsTest::ATraceIsStoredAndShownByClicks() {
  DesignedDesk desk;
  const auto* const box = desk.Find<QAbstractButton>("chkonoff1");
  QVERIFY(!box->isVisible());
  const std::size_t plain = desk.program.windows.frmgrafcassa.surface.strokes.size();
  desk.Click("cmdset1");
  QVERIFY(box->isVisible());
  QVERIFY(box->isChecked());
  QCOMPARE(desk.program.windows.frmgrafcassa.surface.strokes.size(), plain + 1);
  QCOMPARE(desk.program.windows.frmgrafcassa.surface.strokes.back().colour, colour::kRed);
  desk.Click("chkonoff1", Qt::LeftButton, QPoint(6, box->height() / 2));
  QVERIFY(!box->isChecked());
  QVERIFY(!desk.program.state.Set1BoxShown);
  QCOMPARE(desk.program.windows.frmgrafcassa.surface.strokes.size(), plain);
}

void WindowsTest::TheReadOutShowsWhileTheButtonIsDown() {
  DesignedDesk desk;
  auto* const plot = static_cast<PlotWidget*>(desk.Find("pctgraf"));
  const auto* const readout = plot->findChild<QLabel*>();
  desk.Press("pctgraf", Qt::LeftButton, Part(*plot, 0.25, 0.25));
  QVERIFY(readout->isVisible());
  QCOMPARE(readout->text(), QString::fromStdString(*desk.program.windows.frmgrafcassa.txtpos.text));
  QVERIFY(readout->text().endsWith(" dB"));
  QVERIFY(plot->rect().contains(readout->geometry()));
  QVERIFY(readout->x() > Part(*plot, 0.25, 0).x());  // right of the mouse in the left half
  desk.Release("pctgraf");
  QVERIFY(!readout->isVisible());
  desk.Press("pctgraf", Qt::LeftButton, Part(*plot, 0.97, 0.97));
  QVERIFY(plot->rect().contains(readout->geometry()));
  desk.Release("pctgraf");
}

void WindowsTest::ADoubleClickOpensTheDimensions() {
  DesignedDesk desk;
  QTest::mouseClick(desk.View("frmthsm"), Qt::LeftButton, {}, QPoint(60, 8));
  desk.DoubleClick("txtl");
  QVERIFY(desk.View("frmdimensioni") != nullptr);
  QVERIFY(desk.View("frmdimensioni")->isVisible());
  QCOMPARE(desk.FocusName(), "txtLmanual");
  QCOMPARE(desk.Text("txtLmanual"), desk.Text("txtl"));
  desk.Key(Qt::Key_C, Qt::AltModifier);  // "&Cancel"
  QTRY_VERIFY(!desk.View("frmdimensioni")->isVisible());
  desk.Click("txtl");
  desk.Key(Qt::Key_F2);
  QVERIFY(desk.View("frmdimensioni")->isVisible());
}

void WindowsTest::TheSectionIsToggledByClickAndByKey() {
  DesignedDesk desk;
  QTest::mouseClick(desk.View("frmthsm"), Qt::LeftButton, {}, QPoint(60, 8));
  QVERIFY(desk.Find("imgforma(0)")->isVisible());
  QVERIFY(!desk.Find("txtb")->isVisible());
  desk.Click("imgforma(0)");
  QVERIFY(desk.Find("imgforma(1)")->isVisible());
  QVERIFY(desk.Find("txtb")->isVisible());
  QCOMPARE(desk.Text("lblDoL"), "Side a");
  QCOMPARE(desk.Find("txtb")->accessibleName(), "Side b");
  for (const QLabel* const label : desk.View("frmthsm")->findChildren<QLabel*>()) {
    if (label->text() == "Side b") QCOMPARE(label->alignment(), Qt::AlignRight | Qt::AlignVCenter);
  }
  desk.Click("txtlungmis");
  desk.Key(Qt::Key_F2);
  QTRY_VERIFY(desk.Find("imgforma(0)")->isVisible());
  QCOMPARE(desk.Text("lblDoL"), "Internal Diameter");
}

void WindowsTest::AReopenedWindowTakesItsPlaceAgain() {
  DesignedDesk desk;
  QTest::mouseClick(desk.View("frmthsm"), Qt::LeftButton, {}, QPoint(60, 8));
  desk.DoubleClick("txtl");
  WindowView* const view = desk.View("frmdimensioni");
  const QPoint place = view->pos();
  view->move(0, 0);
  view->close();
  QVERIFY(!view->isVisible());
  desk.DoubleClick("txth");
  QVERIFY(view->isVisible());
  QCOMPARE(view->pos(), place);
}

void WindowsTest::MenusMoveNoFocus() {
  Desk desk;
  desk.NewProject();
  desk.ClickTab("Parameters");
  desk.Key(Qt::Key_E, Qt::AltModifier);
  QVERIFY(QApplication::activePopupWidget() != nullptr);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
  desk.Key(Qt::Key_Escape);
  QTRY_COMPARE(desk.FocusName(), "txtfs");
  QVERIFY(desk.boxes.empty());
  desk.Type("35");
  QCOMPARE(desk.Text("txtfs"), "35");
}

void WindowsTest::TheCalculatorTakesTheKeyboard() {
  Desk desk;
  desk.Key(Qt::Key_U, Qt::AltModifier);
  QVERIFY(QApplication::activePopupWidget() != nullptr);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_C);  // the capacitance comes first, then the calculator
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_C);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
  QTRY_VERIFY(desk.View("frmcalcolatrice") != nullptr);
  desk.Type("12+30");
  desk.Key(Qt::Key_Return);
  const Calculator& calculator = desk.program.windows.frmcalcolatrice;
  QCOMPARE(desk.Text("Readout"), QString::fromStdString(*calculator.Readout.text));
  QVERIFY2(desk.Text("Readout").startsWith("42"), qPrintable(desk.Text("Readout")));
  desk.Key(Qt::Key_Escape);
  QVERIFY(desk.Text("Readout").startsWith("0"));
}

void WindowsTest::AnOptionIsChosenByArrows() {
  Desk desk;
  desk.Key(Qt::Key_S, Qt::AltModifier);
  QVERIFY(QApplication::activePopupWidget() != nullptr);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_O);
  QTRY_VERIFY(desk.View("frmopzioni") != nullptr);
  QCOMPARE(desk.FocusName(), "optbiamp");
  QVERIFY(desk.Find<QAbstractButton>("optbiamp")->isChecked());
  desk.Key(Qt::Key_Down);
  QVERIFY(!desk.Find<QAbstractButton>("optbiamp")->isChecked());
  QVERIFY(desk.Find<QAbstractButton>("optparallelo")->isChecked());
  QCOMPARE(desk.FocusName(), "optparallelo");
  desk.Click("optserie", Qt::LeftButton, QPoint(8, 8));
  QVERIFY(desk.Find<QAbstractButton>("optserie")->isChecked());
  QVERIFY(!desk.Find<QAbstractButton>("optparallelo")->isChecked());
}
