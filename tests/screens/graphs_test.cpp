#include "graphs_test.h"

#include <QAbstractButton>
#include <QFile>
#include <QMdiArea>
#include <QProgressBar>

#include "desk.h"

using namespace zefirondo;
using namespace zefirondo::screens;

namespace {

struct DesignedDesk : Desk {
  explicit DesignedDesk(Language language = Language::English) : Desk(language) {
    NewProject();
    if (language == Language::English) FillWoofer();
  }
};

std::filesystem::path Example(const char* name) { return std::filesystem::path(ZEFIRONDO_EXAMPLES) / name; }

/// How many curves stand on a plot: chains of more than one segment.
int CurvesOn(const Surface& surface) {
  return static_cast<int>(std::count_if(surface.strokes.begin(), surface.strokes.end(),
                                        [](const Stroke& stroke) { return stroke.count > 2; }));
}

/// The pixels of a plot that are of a colour.
int PixelsOf(const Desk& desk, const QString& plot, QRgb colour) {
  const QImage picture = desk.Find(plot)->grab().toImage();
  int count = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) count += (picture.pixel(x, y) & 0xffffff) == (colour & 0xffffff);
  }
  return count;
}

QByteArray BytesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

void GraphsTest::EveryGraphOpensFromTheMenus_data() {
  QTest::addColumn<QString>("entry");
  QTest::addColumn<QString>("window");
  QTest::addColumn<QString>("plot");
  QTest::newRow("phase") << "mnufase"
                         << "frmFase"
                         << "pctgrafFase";
  QTest::newRow("level") << "mnuspl"
                         << "frmspl"
                         << "pctgrafspl";
  QTest::newRow("maximum level") << "mnusplmax"
                                 << "frmsplMax"
                                 << "pctgrafspl";
  QTest::newRow("excursion") << "mnuescursione"
                             << "frmescursione"
                             << "pctgrafex";
  QTest::newRow("air speed") << "mnuairspeed"
                             << "frmairspeed"
                             << "pctgrafair";
}

void GraphsTest::EveryGraphOpensFromTheMenus() {
  QFETCH(const QString, entry);
  QFETCH(const QString, window);
  QFETCH(const QString, plot);
  DesignedDesk desk;
  desk.DesignVentedBox();
  desk.ChooseEntry(entry);
  WindowView* const view = desk.View(window.toStdString());
  QVERIFY(view != nullptr);
  QVERIFY(view->isVisible());
  QCOMPARE(desk.frame->area()->activeSubWindow(), view);
  QVERIFY2(desk.frame->area()->viewport()->rect().contains(view->geometry()), "a part of the window is out of sight");
  const QImage picture = desk.Find(window + "." + plot)->grab().toImage();
  int dark = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) dark += qGray(picture.pixel(x, y)) < 100;
  }
  QVERIFY2(dark > 200, "no curve was painted");
  QCOMPARE(desk.FieldsThatDiffer(), QStringList());

  desk.ClickTab("Parameters");
  QVERIFY(!view->isVisible());
  desk.ClickTab("Vented Box");
  QVERIFY(view->isVisible());
  view->close();
  QVERIFY(!view->isVisible());
  QVERIFY(desk.View("frmgrafcassa")->isVisible());
}

void GraphsTest::PowersAreTypedAndShown() {
  DesignedDesk desk;
  desk.DesignVentedBox();
  desk.ChooseEntry("mnuescursione");
  desk.Fill("frmescursione.txtpot", "40");
  desk.Key(Qt::Key_Return);
  const QImage before = desk.Find("frmescursione.pctgrafex")->grab().toImage();
  desk.Click("frmescursione.cmdcalc");
  QVERIFY2(desk.Text("frmescursione.lbltitolo").contains("40"), qPrintable(desk.Text("frmescursione.lbltitolo")));
  desk.Fill("frmescursione.txtpot", "10");
  desk.Click("frmescursione.cmdcalc");
  QVERIFY(desk.Find("frmescursione.pctgrafex")->grab().toImage() != before);
  QVERIFY2(desk.Text("frmescursione.lbltitolo").contains("10"), qPrintable(desk.Text("frmescursione.lbltitolo")));
  QCOMPARE(desk.FieldsThatDiffer(), QStringList());
}

void GraphsTest::TracesOfTheLevelGraphAreSetSavedAndReadBack() {
  DesignedDesk desk;
  desk.DesignVentedBox();
  desk.ChooseEntry("mnuspl");
  const Surface& surface = desk.program.windows.frmspl.surface;
  const int plain = CurvesOn(surface);
  desk.Click("frmspl.cmdset1");
  desk.Click("frmspl.cmdset2");
  QCOMPARE(CurvesOn(surface), plain + 2);
  QVERIFY(desk.Find<QAbstractButton>("frmspl.chkonoff1")->isChecked());

  const QString file = desk.folder.filePath("level.trc");
  desk.platform.files.push_back(file.toStdString());
  desk.ChooseEntry("mnusalvasplRosso");
  QVERIFY(BytesOf(file).startsWith(" 255 \r\n"));
  const QByteArray red = BytesOf(file);
  desk.Click("frmspl.chkonoff1", Qt::LeftButton, QPoint(6, 8));
  QCOMPARE(CurvesOn(surface), plain + 1);
  QVERIFY(surface.strokes.back().colour == colour::kBlue);
  desk.platform.files.push_back(file.toStdString());
  desk.ChooseEntry("mnuimportatracciato");
  QCOMPARE(CurvesOn(surface), plain + 2);  // painted, and not kept
  QCOMPARE(surface.strokes.back().colour, colour::kRed);
  QCOMPARE(static_cast<int>(surface.strokes.back().count), static_cast<int>(red.count('\n') - 2));  // without the last
  QVERIFY(!desk.program.state.Set1SplShown);
  QCOMPARE(desk.boxes.size(), 1U);  // the question of the box type alone
}

void GraphsTest::AFilterIsDrawnAndTakenAway() {
  DesignedDesk desk;
  desk.DesignVentedBox();
  const Surface& surface = desk.program.windows.frmgrafcassa.surface;
  const int plain = CurvesOn(surface);
  desk.ChooseEntry("mnufiltri");
  QVERIFY(desk.View("frmfiltri")->isVisible());
  desk.PickItem("frmfiltri.cmballineamento", "Peaking");
  QCOMPARE(desk.Text("frmfiltri.cmballineamento"), "Peaking");
  desk.PickItem("frmfiltri.cmbgain", "6");
  desk.Fill("frmfiltri.txtft", "60");
  desk.Click("frmfiltri.cmdvisualizza");
  QVERIFY(desk.boxes.size() == 1);
  QVERIFY(desk.program.state.FilterComputed);
  QVERIFY(CurvesOn(surface) > plain);
  QCOMPARE(desk.FieldsThatDiffer(), QStringList());
  desk.Click("frmfiltri.cmdcanc");
  QCOMPARE(CurvesOn(surface), plain);
}

void GraphsTest::AResponseIsImportedCalibratedAndSummed() {
  DesignedDesk desk;
  desk.DesignVentedBox();
  const Surface& surface = desk.program.windows.frmgrafcassa.surface;
  const int plain = CurvesOn(surface);
  desk.platform.files.push_back(Example("small-room.ovl"));
  desk.ChooseEntry("mnuimportaOverlay");
  QCOMPARE(CurvesOn(surface), plain + 1);
  QVERIFY(desk.Find("frmgrafcassa.txtdbcal")->isEnabled());
  const QImage before = desk.Find("frmgrafcassa.pctgraf")->grab().toImage();
  desk.Fill("frmgrafcassa.txtdbcal", "-2");
  desk.Click("frmgrafcassa.cmdcalibra");
  QVERIFY(desk.Find("frmgrafcassa.pctgraf")->grab().toImage() != before);
  desk.Click("frmgrafcassa.cmdpiu");
  QVERIFY(desk.Text("frmgrafcassa.txtdbcal") != "-2");
  desk.Click("frmgrafcassa.cmdsomma");
  QCOMPARE(surface.strokes.back().colour, colour::kMagenta);
  QVERIFY(!desk.Find("frmgrafcassa.cmdsomma")->isEnabled());
  desk.Click("frmgrafcassa.cmdcancella");
  QVERIFY(!desk.Find("frmgrafcassa.cmdcancella")->isEnabled());
  QCOMPARE(desk.Text("frmgrafcassa.txtdbcal"), "0");
  QCOMPARE(desk.FieldsThatDiffer(), QStringList());
}

void GraphsTest::AMeasurementBecomesABox_data() {
  QTest::addColumn<int>("language");
  QTest::newRow("English") << static_cast<int>(Language::English);
  QTest::newRow("Italian") << static_cast<int>(Language::Italian);
}

void GraphsTest::AMeasurementBecomesABox() {
  QFETCH(const int, language);
  const bool italian = language == static_cast<int>(Language::Italian);
  Desk desk(static_cast<Language>(language));
  desk.ChooseEntry("mnuthisma");
  QVERIFY(desk.View("frmthsm")->isVisible());
  desk.platform.files.push_back(Example("tramontana-26.wdr"));
  desk.ChooseEntry("mnuimportadati");
  QCOMPARE(desk.Text("txtmodello"), "T26");
  desk.platform.files.push_back(Example("tramontana-26.ovl"));
  desk.ChooseEntry("mnuimporta");
  QCOMPARE(desk.boxes.size(), 1U);  // data and measurement must be of one woofer
  QCOMPARE(desk.boxes[0].icon, QMessageBox::Warning);
  QVERIFY(desk.platform.files.empty());
  QVERIFY(!desk.Text("txtfs").isEmpty());
  QVERIFY(desk.View("frmgrafico") != nullptr);
  QVERIFY(desk.View("frmgrafico")->isVisible());
  QVERIFY(PixelsOf(desk, "frmgrafico.pctgrafimp", 0xffffff) > 0);

  desk.ClickTab(italian ? "Parametri" : "Parameters");
  desk.AnswerByKey(Qt::Key_Return);
  desk.Click("cmdcalcola");
  QCOMPARE(desk.boxes.size(), 2U);
  QVERIFY(desk.boxes[1].title.startsWith("EBP"));
  QVERIFY(desk.View("frmgrafcassa")->isVisible());

  desk.Click("frmgrafcassa.cmdset1");
  const QString file = desk.folder.filePath("box.trc");
  desk.platform.files.push_back(file.toStdString());
  desk.ChooseEntry("mnusalvatracciatorosso");
  QVERIFY(BytesOf(file).startsWith(" 255 \r\n"));
  desk.Fill("txtvolnetto", "40");
  desk.Key(Qt::Key_Return);
  desk.Front("frmgrafcassa");
  const Surface& surface = desk.program.windows.frmgrafcassa.surface;
  const int plain = CurvesOn(surface);
  desk.platform.files.push_back(file.toStdString());
  desk.ChooseEntry("mnuimportatracciato");
  QCOMPARE(CurvesOn(surface), plain + 1);
  QCOMPARE(surface.strokes.back().colour, colour::kRed);
  QCOMPARE(static_cast<int>(surface.strokes.back().count), static_cast<int>(BytesOf(file).count('\n') - 2));
  QCOMPARE(desk.FieldsThatDiffer(), QStringList());
}

void GraphsTest::TheImportPaintsItsBarSeldom() {
  Desk desk;
  desk.ChooseEntry("mnuthisma");
  auto* const bar = desk.Find<QProgressBar>("prgbar");
  int updates = 0;
  int last = -1;
  QObject::connect(bar, &QProgressBar::valueChanged, bar, [&](int value) {
    ++updates;
    last = std::max(last, value);
  });
  desk.platform.files.push_back(Example("tramontana-26.wdr"));
  desk.ChooseEntry("mnuimportadati");
  desk.platform.files.push_back(Example("tramontana-26.ovl"));
  desk.ChooseEntry("mnuimporta");
  QVERIFY2(updates >= 1 && updates <= 100, qPrintable(QString::number(updates)));
  QVERIFY(last > 0);
  QVERIFY(!bar->isVisible());
}
