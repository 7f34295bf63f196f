#include "fields_test.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QWheelEvent>

#include "core/acts.h"
#include "desk.h"
#include "screens/qt_text.h"

using namespace zefirondo;
using namespace zefirondo::screens;

namespace {

/// A new project with the page of the parameters in front and the focus in `txtfs`.
struct ParametersDesk : Desk {
  ParametersDesk() {
    NewProject();
    ClickTab("Parameters");
  }
};

}  // namespace

void FieldsTest::AnEmptyFieldHoldsTheFocusAgainstAClick() {
  ParametersDesk desk;
  QCOMPARE(desk.FocusName(), "txtfs");
  desk.Click("txtbl");
  QCOMPARE(desk.boxes.size(), 1U);
  QCOMPARE(desk.boxes[0].text, "Please enter a non zero value");
  QCOMPARE(desk.boxes[0].title, "Error");
  QCOMPARE(desk.boxes[0].icon, QMessageBox::Critical);
  QCOMPARE(desk.boxes[0].buttons, QStringList({"OK"}));
  QCOMPARE(desk.FocusName(), "txtfs");
  desk.Type("35");
  QCOMPARE(desk.Text("txtfs"), "35");
  QCOMPARE(desk.Text("txtbl"), "");

  desk.Key(Qt::Key_Tab);
  QCOMPARE(desk.FocusName(), "txtrvc");
  desk.Key(Qt::Key_Backtab, Qt::ShiftModifier);
  QCOMPARE(desk.boxes.size(), 2U);
  QCOMPARE(desk.FocusName(), "txtrvc");
}

void FieldsTest::AHeldFocusKeepsTheTab() {
  ParametersDesk desk;
  desk.ClickTab("Dimensions");
  QCOMPARE(desk.boxes.size(), 1U);
  const auto* const tabs = desk.Find<QTabBar>("TabStrip1");
  QCOMPARE(tabs->tabText(tabs->currentIndex()), "Parameters");
  QVERIFY(desk.Find("txtfs")->isVisible());
  QCOMPARE(desk.FocusName(), "txtfs");
  desk.Click("cmdreset");  // the way out of a field that holds
  QCOMPARE(desk.boxes.size(), 1U);
}

void FieldsTest::ARejectedCharacterLeavesTheField() {
  ParametersDesk desk;
  desk.Type("3x");
  QCOMPARE(desk.boxes.size(), 1U);
  QCOMPARE(desk.boxes[0].text, "Warning: Inputs must be a number");
  QCOMPARE(desk.Text("txtfs"), "3");
  desk.Type("5");
  QCOMPARE(desk.Text("txtfs"), "35");
  desk.Key(Qt::Key_Home);
  desk.Type("-");  // no minus; the caret stays where it was
  QCOMPARE(desk.boxes.size(), 2U);
  desk.Type("1");
  QCOMPARE(desk.Text("txtfs"), "135");
  QCOMPARE(QString::fromStdString(desk.program.state.txtfs), "135");
}

void FieldsTest::ACommaBecomesAPoint() {
  ParametersDesk desk;
  desk.Type("3,5");
  QCOMPARE(desk.Text("txtfs"), "3.5");
  QVERIFY(desk.boxes.empty());
  desk.Type(",");
  QCOMPARE(desk.boxes.size(), 1U);
  QCOMPARE(desk.Text("txtfs"), "3.5");
}

void FieldsTest::AZeroGoesOnWithAPointOnly() {
  ParametersDesk desk;
  desk.Type("05");
  QCOMPARE(desk.boxes.size(), 1U);
  QCOMPARE(desk.Text("txtfs"), "0");
  desk.Type(".5");
  QCOMPARE(desk.Text("txtfs"), "0.5");
}

void FieldsTest::TheFirstClickSelectsTheSecondPlacesTheCaret() {
  ParametersDesk desk;
  desk.Type("35");
  desk.Key(Qt::Key_Tab);
  desk.Type("5.6");
  desk.Click("txtfs");
  const auto* const line = desk.Find<QLineEdit>("txtfs");
  QCOMPARE(line->selectedText(), "35");
  desk.Click("txtfs", Qt::LeftButton, QPoint(3, line->height() / 2));
  QVERIFY(!line->hasSelectedText());
  QCOMPARE(line->cursorPosition(), 0);
  desk.Type("1");
  QCOMPARE(desk.Text("txtfs"), "135");
}

void FieldsTest::TypingIsUndone() {
  ParametersDesk desk;
  desk.Type("35");
  desk.Key(Qt::Key_Z, Qt::ControlModifier);
  QCOMPARE(desk.Text("txtfs"), QString::fromStdString(desk.program.state.txtfs));
  QVERIFY(desk.Text("txtfs") != "35");
  desk.Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  QCOMPARE(desk.Text("txtfs"), QString::fromStdString(desk.program.state.txtfs));
}

void FieldsTest::EditsOfTheFieldItselfReachTheData() {
  ParametersDesk desk;
  QApplication::clipboard()->setText("42.5");
  desk.Key(Qt::Key_V, Qt::ControlModifier);
  QCOMPARE(QString::fromStdString(desk.program.state.txtfs), "42.5");
  desk.Key(Qt::Key_Home);
  desk.Key(Qt::Key_Delete);
  QCOMPARE(QString::fromStdString(desk.program.state.txtfs), "2.5");
  QCOMPARE(desk.Find<QLineEdit>("txtfs")->cursorPosition(), 0);
  desk.Key(Qt::Key_Right);
  desk.Key(Qt::Key_Backspace);
  desk.Type("7");
  QCOMPARE(QString::fromStdString(desk.program.state.txtfs), "7.5");
}

void FieldsTest::AnIdleMnemonicTypesNothing() {
  ParametersDesk desk;
  QVERIFY(!desk.Find("cmdcalcola")->isEnabled());
  desk.Key(Qt::Key_C, Qt::AltModifier);
  QCOMPARE(desk.Text("txtfs"), "");
  QVERIFY(desk.boxes.empty());
}

void FieldsTest::ALockedFieldTakesNoKeys() {
  ParametersDesk desk;
  desk.Type("35");
  desk.Click("txtzmax");
  QCOMPARE(desk.FocusName(), "txtzmax");
  desk.Type("8");
  desk.Key(Qt::Key_V, Qt::ControlModifier);
  QCOMPARE(desk.Text("txtzmax"), "");
  QCOMPARE(desk.Find("txtzmax")->palette().color(QPalette::Base), QColor(224, 224, 224));
  desk.Key(Qt::Key_Return);  // leads to `txtfs`, locked or not
  QCOMPARE(desk.FocusName(), "txtfs");
}

void FieldsTest::TheTwinOfAFilledFieldTurnsGrey() {
  ParametersDesk desk;
  desk.Type("35");
  desk.Click("txtd");
  desk.Type("2");
  const auto* const twin = desk.Find<QLineEdit>("txtsd");
  QVERIFY(twin->isReadOnly());
  QCOMPARE(twin->palette().color(QPalette::Base), QColor(224, 224, 224));
  QCOMPARE(twin->palette().color(QPalette::Text), QColor(Qt::black));
}

void FieldsTest::AComboBoxIsPickedAndTyped() {
  Desk desk;
  desk.NewProject();
  desk.Click("cmbnumvc", Qt::LeftButton, QPoint(10, 10));
  QCOMPARE(desk.FocusName(), "cmbnumvc");
  desk.Key(Qt::Key_Down);
  QCOMPARE(desk.Text("cmbnumvc"), "2");
  QCOMPARE(QString::fromStdString(desk.program.state.cmbnumvc), "2");
  desk.Key(Qt::Key_A, Qt::ControlModifier);
  desk.Type("7");
  QCOMPARE(QString::fromStdString(desk.program.state.cmbnumvc), "7");
  desk.Type("x");
  QCOMPARE(desk.boxes.size(), 1U);
  QCOMPARE(desk.Text("cmbnumvc"), "7");
  desk.Click("txtmarca");
  QCOMPARE(desk.Text("cmbnumvc"), "1");  // no such number of coils
}

void FieldsTest::TheWheelLeavesAComboBoxWithoutFocusAlone() {
  Desk desk;
  desk.NewProject();
  QWidget* const combo = desk.Find("cmbnumvc");
  const QPointF at(5, 5);
  QWheelEvent turn(at, combo->mapToGlobal(at), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                   Qt::NoScrollPhase, false);
  QApplication::sendEvent(combo, &turn);
  QCOMPARE(desk.Text("cmbnumvc"), "1");
  QCOMPARE(desk.FocusName(), "txtproduttore");
  desk.Click("cmbnumvc", Qt::LeftButton, QPoint(10, 10));
  QApplication::sendEvent(combo, &turn);
  QCOMPARE(QString::fromStdString(desk.program.state.cmbnumvc), "2");
}

void FieldsTest::ALockedComboBoxStaysAsItIs() {
  Desk desk;
  desk.NewProject();
  desk.program.windows.frmthsm.cmbnumvc.locked = true;
  desk.Click("cmbnumvc", Qt::LeftButton, QPoint(10, 10));
  QCOMPARE(desk.FocusName(), "cmbnumvc");
  desk.Key(Qt::Key_Down);
  desk.Type("2");
  desk.Click("cmbnumvc", Qt::LeftButton, QPoint(desk.Find("cmbnumvc")->width() - 5, 10));
  QVERIFY(QApplication::activePopupWidget() == nullptr);
  QCOMPARE(desk.Text("cmbnumvc"), "1");
}

void FieldsTest::TheCommentHasLines() {
  Desk desk;
  desk.NewProject();
  desk.Click("txtcommento");
  desk.Type("one");
  desk.Key(Qt::Key_Return);
  desk.Type("two");
  QCOMPARE(desk.program.state.txtcommento, std::string("one\r\ntwo"));
  QCOMPARE(desk.Text("txtcommento"), "one\ntwo");
  desk.Key(Qt::Key_Home);
  desk.Key(Qt::Key_Backspace);
  QCOMPARE(desk.program.state.txtcommento, std::string("onetwo"));
  desk.Type("-");
  QCOMPARE(desk.program.state.txtcommento, std::string("one-two"));
  desk.Key(Qt::Key_Tab);
  QCOMPARE(desk.FocusName(), "txtpotenza");
  QCOMPARE(desk.program.state.txtcommento, std::string("one-two"));
}

void FieldsTest::TabRunsDownEachPage_data() {
  QTest::addColumn<QString>("tab");
  for (const char* const tab : {"General", "Parameters", "Dimensions", "Vented Box", "Settings"}) {
    QTest::newRow(tab) << QString::fromLatin1(tab);
  }
}

/// Within the sheet, what comes next stands below, or further right at the head of another column.
void FieldsTest::TabRunsDownEachPage() {
  QFETCH(QString, tab);
  Desk desk;
  desk.NewProject();
  desk.FillWoofer();
  desk.DesignVentedBox();
  desk.ClickTab(tab);
  QRect before;
  QString name_before;
  int seen = 0;
  for (Control* const control : desk.program.windows.frmthsm.window.controls) {
    if (control->kind == ControlKind::TabStrip || !control->TakesFocus()) continue;
    if (WhyNot(desk.program, *control) != Refusal::None) continue;
    const QString name = QString::fromStdString(control->FullName());
    const QWidget* const widget = desk.Find(name);
    const QRect place(widget->mapTo(desk.frame.get(), QPoint(0, 0)), widget->size());
    const bool in_order = before.isNull() || place.top() >= before.bottom() || place.left() >= before.right();
    QVERIFY2(in_order, qPrintable(name_before + " before " + name));
    before = place;
    name_before = name;
    ++seen;
  }
  QVERIFY(seen >= 4);
}

void FieldsTest::EveryFieldHasAName() {
  Desk desk;
  desk.NewProject();
  desk.FillWoofer();
  desk.DesignVentedBox();
  for (const Window* const window : desk.program.all) {
    for (const Control* const control : window->controls) {
      if (!control->IsField() || desk.frame->ViewOf(*window) == nullptr) continue;
      const QString name = QString::fromStdString(control->FullName());
      // The second side of a section has its words only while the section has two.
      if (name == "txtb") continue;
      QVERIFY2(!desk.Find(name)->accessibleName().isEmpty(), qPrintable(name));
    }
  }
  QCOMPARE(desk.Find("txtbl")->accessibleName(), "B l");
  QCOMPARE(desk.Find("txtd")->accessibleName(), "D");
  QCOMPARE(desk.Find("cmbDoa")->accessibleName(), "Internal Diameter");
}

void FieldsTest::PlacesInFieldsAreCountedInCharacters() {
  QCOMPARE(ToField("a\r\nb\rc"), "a\nb\nc");
  QCOMPARE(FromField("a\nb"), std::string("a\r\nb"));
  QCOMPARE(ToFieldPlace("a\r\nb", 3), 2);
  QCOMPARE(FromFieldPlace("a\nb", 2), 3U);
  QCOMPARE(ToFieldPlace("\xC2\xB5\xF0\x9F\x94\x8A!", 2), 3);  // a letter, and a sign of two UTF-16 units
  QCOMPARE(FromFieldPlace(QString::fromUtf8("\xC2\xB5\xF0\x9F\x94\x8A!"), 3), 2U);
  QCOMPARE(Spoken("&Save && go "), "Save & go");
}
