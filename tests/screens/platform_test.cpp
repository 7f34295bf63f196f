#include "platform_test.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <cmath>
#include <limits>

#include "desk.h"
#include "screens/association.h"
#include "screens/plot_widget.h"

using namespace zefirondo;
using namespace zefirondo::screens;

namespace {

QByteArray ContentOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A surface of 100 by 100 user units.
Surface SquareSurface() {
  Surface surface;
  surface.scale = {0, 100, 100};
  return surface;
}

}  // namespace

void PlatformTest::initTestCase() { QStandardPaths::setTestModeEnabled(true); }

void PlatformTest::FiltersOfFileDialogsAreTranslated() {
  const std::vector<std::string> expected{"Projects (*.pro)", "Measurements (*.ovl *.txt)"};
  QCOMPARE(NameFilters("Projects (*.pro)|*.pro|Measurements|*.ovl;*.txt|"), expected);
  QVERIFY(NameFilters("").empty());
}

void PlatformTest::AMessageBoxShowsWhatTheDataSay() {
  Desk desk(Language::Italian);
  desk.AnswerByKey(Qt::Key_Escape);
  QCOMPARE(desk.platform.ShowMessage({MessageIcon::Warning, "T", "a <b> c", MessageButtons::YesNo}), Answer::No);
  QCOMPARE(desk.boxes[0].text, "a <b> c");
  QCOMPARE(desk.boxes[0].icon, QMessageBox::Warning);
  QCOMPARE(desk.boxes[0].buttons, QStringList({QStringLiteral("Sì"), "No"}));
  QCOMPARE(desk.boxes[0].default_button, QStringLiteral("Sì"));
  desk.AnswerByKey(Qt::Key_Escape);
  const MessageBox question{MessageIcon::Question, "T", "x", MessageButtons::YesNoCancel};
  QCOMPARE(desk.platform.ShowMessage(question), Answer::Cancel);
  QCOMPARE(desk.boxes[1].buttons, QStringList({QStringLiteral("Sì"), "No", "Annulla"}));
  desk.AnswerByKey(Qt::Key_Return);
  QCOMPARE(desk.platform.ShowMessage(question), Answer::Yes);
  QCOMPARE(desk.platform.ShowMessage({MessageIcon::None, "T", "x", MessageButtons::Ok}), Answer::Ok);
}

void PlatformTest::ProjectFilesAreTiedToTheProgram() {
  const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  const QString package = data + "/mime/packages/zefirondo.xml";
  const QString entry = data + "/applications/io.github.zefirondo.Zefirondo.desktop";
  QFile::remove(package);
  QFile::remove(entry);
  QtPlatform platform(Language::English);
  platform.WriteStore("Zefirondo", "Zefirondo");
  platform.WriteStore(".pro", "Zefirondo");
  QVERIFY(!QFile::exists(entry));
  platform.WriteStore("Zefirondo\\shell\\open\\command", "/usr/bin/zefirondo %1");
  QVERIFY(ContentOf(package).contains("<glob pattern=\"*.pro\""));
  QVERIFY(ContentOf(entry).contains("MimeType=application/x-zefirondo-project;"));
  QVERIFY(ContentOf(entry).contains(QCoreApplication::applicationFilePath().toUtf8() + "\" %f\n"));

  QFile file(entry);
  QVERIFY(file.open(QIODevice::ReadWrite));
  const QDateTime long_ago(QDate(2001, 1, 1), QTime(0, 0));
  QVERIFY(file.setFileTime(long_ago, QFileDevice::FileModificationTime));
  file.close();
  platform.WriteStore("Zefirondo\\shell\\open\\command", "/usr/bin/zefirondo %1");
  QCOMPARE(QFileInfo(entry).lastModified(), long_ago);  // what is the same is not written again
}

void PlatformTest::AnInstalledProgramLeavesTheUsersFolderAlone() {
  const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  const QString name = QStringLiteral("/applications/io.github.zefirondo.Zefirondo.desktop");
  const QTemporaryDir prefix;
  const QString executable = prefix.filePath(QStringLiteral("bin/zefirondo"));
  const QString share = prefix.filePath(QStringLiteral("share"));
  QVERIFY(QDir().mkpath(share + QStringLiteral("/applications")));
  QFile installed(share + name);
  QVERIFY(installed.open(QIODevice::WriteOnly));
  installed.close();
  const QByteArray before = qgetenv("XDG_DATA_DIRS");

  qputenv("XDG_DATA_DIRS", share.toUtf8());
  QFile::remove(data + name);
  AssociateProjectFiles(executable);
  QVERIFY(!QFile::exists(data + name));

  AssociateProjectFiles(QStringLiteral("/elsewhere/bin/zefirondo"));  // a copy that nobody installed
  QVERIFY(ContentOf(data + name).contains("Exec=\"/elsewhere/bin/zefirondo\" %f\n"));
  AssociateProjectFiles(executable);  // its entry would hide the installed one
  QVERIFY(ContentOf(data + name).contains(executable.toUtf8() + "\" %f\n"));

  QFile::remove(data + name);
  qputenv("XDG_DATA_DIRS", "/nowhere");  // installed where the desktop does not look
  AssociateProjectFiles(executable);
  QVERIFY(QFile::exists(data + name));
  before.isEmpty() ? qunsetenv("XDG_DATA_DIRS") : qputenv("XDG_DATA_DIRS", before);
}

void PlatformTest::AnExecLineQuotesThePath() {
  QVERIFY(DesktopEntry("/a b/zefirondo").contains("\nExec=\"/a b/zefirondo\" %f\n"));
  QVERIFY(DesktopEntry("/100%/$x/z").contains("\nExec=\"/100%%/\\\\$x/z\" %f\n"));
  QVERIFY(DesktopEntry("/a\\b/z").contains("\nExec=\"/a\\\\\\\\b/z\" %f\n"));
}

void PlatformTest::AGridLineIsOnePixel() {
  Surface surface = SquareSurface();
  surface.Line(0, 50, 100, 50, colour::kBlack);
  surface.Line(25, 0, 25, 100, colour::kBlack);
  const QImage image = SurfaceImage(surface, QSize(200, 200));
  const QRgb line = image.pixel(10, 100);
  QCOMPARE(line, qRgb(0, 0, 0));
  QCOMPARE(image.pixel(10, 99), qRgb(255, 255, 255));
  QCOMPARE(image.pixel(10, 101), qRgb(255, 255, 255));
  QCOMPARE(image.pixel(50, 10), line);
  QCOMPARE(image.pixel(49, 10), qRgb(255, 255, 255));
  QCOMPARE(image.pixel(51, 10), qRgb(255, 255, 255));
}

void PlatformTest::AThinnedCurveKeepsItsPeaks() {
  Surface surface = SquareSurface();
  constexpr std::size_t kCount = 20001;
  Point* const points = surface.Chain(kCount, colour::kRed);
  for (std::size_t i = 0; i < kCount; ++i) points[i] = {static_cast<double>(i) * 100 / (kCount - 1), 60.0};
  points[8003].y = 10;  // one point of a hundred in its pixel column
  points[14007].y = 90;
  const QImage image = SurfaceImage(surface, QSize(200, 200));
  const auto is_red = [&image](int x, int y) { return qGreen(image.pixel(x, y)) < 160; };
  QVERIFY(is_red(5, 120) && is_red(195, 120));
  QVERIFY(is_red(80, 40) && is_red(80, 23));
  QVERIFY(is_red(140, 160) && is_red(140, 177));
  QVERIFY(!is_red(80, 150) && !is_red(140, 80) && !is_red(100, 40));
}

void PlatformTest::ACurveMayLeaveThePlot() {
  Surface surface = SquareSurface();
  Point* const points = surface.Chain(5, colour::kBlue);
  points[0] = {-1e6, 50};
  points[1] = {50, 1e9};
  points[2] = {60, std::numeric_limits<double>::quiet_NaN()};
  points[3] = {70, -1e300};
  points[4] = {1e6, 50};
  const QImage image = SurfaceImage(surface, QSize(200, 200));
  QCOMPARE(image.size(), QSize(200, 200));
  QCOMPARE(SurfaceImage(Surface(), QSize(10, 10)).pixel(5, 5), qRgb(255, 255, 255));
}

void PlatformTest::ACurveThatLeavesThePlotKeepsItsSlope() {
  Surface surface = SquareSurface();
  Point* const points = surface.Chain(3, colour::kRed);
  points[0] = {0, 100};
  points[1] = {50, -4900};  // a hundred up for each one across: the plot's top is reached at 1
  points[2] = {100, 100};
  const QImage image = SurfaceImage(surface, QSize(200, 200));
  const auto is_red = [&image](int x, int y) { return qGreen(image.pixel(x, y)) < 160; };
  QVERIFY(is_red(1, 100));  // halfway up, at 0.5
  QVERIFY(is_red(198, 100));
  for (int x = 5; x < 195; ++x) QVERIFY(!is_red(x, 100) && !is_red(x, 2) && !is_red(x, 197));
}

void PlatformTest::WhatIsDrawnLaterLiesOnTop() {
  Surface surface = SquareSurface();
  Point* const points = surface.Chain(3, colour::kRed);
  points[0] = {0, 50};
  points[1] = {50, 50};
  points[2] = {100, 50};
  surface.Line(25, 0, 25, 100, colour::kBlack);
  const QImage image = SurfaceImage(surface, QSize(200, 200));
  QCOMPARE(image.pixel(50, 100), qRgb(0, 0, 0));
  QVERIFY(qRed(image.pixel(60, 100)) > 200);
}

void PlatformTest::AStrokeKeepsItsScale() {
  Surface surface = SquareSurface();
  surface.Line(0, 50, 100, 50, colour::kBlack);
  surface.scale = {0, 100, 200};
  surface.Line(0, 50, 100, 50, colour::kBlack);
  const QImage image = SurfaceImage(surface, QSize(200, 200));
  QVERIFY(qGray(image.pixel(20, 100)) < 200);
  QVERIFY(qGray(image.pixel(20, 50)) < 200);
}

void PlatformTest::AFailureThatEndsIsAStatusOfOne() {
  screens::QtPlatform good(Language::English);
  good.EndProgram(false);
  QVERIFY(good.ended());
  QCOMPARE(good.exit_status(), 0);
  screens::QtPlatform bad(Language::English);
  bad.EndProgram(true);
  QCOMPARE(bad.exit_status(), 1);
  QTimer::singleShot(0, qApp, &QCoreApplication::quit);  // the end asked for is not that of the tests
  QApplication::exec();
}
