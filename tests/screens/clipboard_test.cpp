#include "clipboard_test.h"

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QMimeData>
#include <QUrl>

#include "desk.h"

using namespace zefirondo;
using namespace zefirondo::screens;

namespace {

/// A driver that is late by some milliseconds: its phase falls by 360 degrees for each period.
QString PhaseCurve(double late) {
  QString text(QStringLiteral(";Freq(Hz)  Phase(deg)\r\n"));
  for (double f = 100; f <= 2000; f += 50) {
    const double degrees = std::remainder(-360 * f * late / 1000, 360);
    text += QStringLiteral("%1 %2\r\n").arg(f).arg(degrees, 0, 'f', 4);
  }
  return text;
}

struct ToolDesk : Desk {
  ToolDesk() {
    ChooseEntry("mnudelay");
    Front("frmFaseSh");
  }
};

}  // namespace

void ClipboardTest::init() { QApplication::clipboard()->clear(); }

void ClipboardTest::TwoCurvesArePastedAndTheirOffsetFound() {
  ToolDesk desk;
  QApplication::clipboard()->setText(PhaseCurve(0));
  desk.Click("frmFaseSh.cmdimporta");
  QCOMPARE(desk.program.state.PhaseCurveCount, 1);
  QCOMPARE(QApplication::clipboard()->text(), QString());  // taken
  QApplication::clipboard()->setText(PhaseCurve(0.25));
  desk.Click("frmFaseSh.cmdimporta");
  QCOMPARE(desk.program.state.PhaseCurveCount, 2);
  QVERIFY(desk.boxes.empty());
  QVERIFY(!desk.Find("frmFaseSh.cmdimporta")->isEnabled());

  desk.Click("frmFaseSh.cmdcalcola");
  QVERIFY(desk.View("frmfasecompl")->isVisible());
  desk.Fill("frmfasecompl.txtfrequenza", "1000");
  desk.Key(Qt::Key_O, Qt::AltModifier);
  QTRY_COMPARE(desk.boxes.size(), 1U);
  QVERIFY(std::abs(std::abs(desk.program.state.DelayMs) - 0.25) < 0.001);  // 90 degrees of a period of 1 ms
  desk.Click("frmFaseSh.cmdsomma");
  QVERIFY(desk.View("frmsommadelay")->isVisible());
  QCOMPARE(desk.FieldsThatDiffer(), QStringList());
}

void ClipboardTest::WhatHoldsNoCurveIsTold_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<bool>("picture");
  QTest::addColumn<QString>("title");
  QTest::newRow("nothing") << QString() << false << "There are no data";
  QTest::newRow("a picture") << QString() << true << "There are no data";
  QTest::newRow("other words") << QStringLiteral("Dear reader,\nhello") << false << "Values are not consistent";
  QTest::newRow("no heading") << QStringLiteral("100 -5\r\n200 -9\r\n") << false << "Values are not consistent";
}

void ClipboardTest::WhatHoldsNoCurveIsTold() {
  QFETCH(const QString, text);
  QFETCH(const bool, picture);
  QFETCH(const QString, title);
  ToolDesk desk;
  if (picture) {
    QApplication::clipboard()->setImage(QImage(8, 8, QImage::Format_RGB32));
  } else if (!text.isEmpty()) {
    QApplication::clipboard()->setText(text);
  }
  desk.Click("frmFaseSh.cmdimporta");
  QCOMPARE(desk.boxes.size(), 1U);
  QCOMPARE(desk.boxes[0].title, title);
  QCOMPARE(desk.program.state.PhaseCurveCount, 0);
  QVERIFY(desk.View("frmFaseSh")->isVisible());
  QVERIFY(!desk.platform.ended());
}

void ClipboardTest::AFieldTakesWhatAnotherGave() {
  Desk desk;
  desk.NewProject();
  desk.Fill("txtmarca", "Ponente");
  desk.Key(Qt::Key_A, Qt::ControlModifier);
  desk.Key(Qt::Key_C, Qt::ControlModifier);
  QCOMPARE(QApplication::clipboard()->text(), "Ponente");
  desk.Click("txtmodello");
  desk.Key(Qt::Key_V, Qt::ControlModifier);
  QCOMPARE(desk.Text("txtmodello"), "Ponente");
  QCOMPARE(QString::fromStdString(desk.program.state.txtmodello), "Ponente");
}
