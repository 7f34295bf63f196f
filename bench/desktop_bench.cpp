// What a person waits for at the screen: a design change, from the key to the painted windows, and the import of a
// long measurement, from the answer of the file dialog to the painted graph. The screen is Qt's own that nobody sees.
#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <vector>

#include "files/impedance_file.h"
#include "screens/desk.h"
#include "screens/plot_widget.h"
#include "transducer/impedance_import.h"

namespace {

using namespace zefirondo;
using namespace zefirondo::screens;

constexpr QSize kScreen(1920, 1080);
constexpr QRect kGraph(650, 0, 1250, 980);
constexpr double kFrame = 1000.0 / 60;  // ms

double Milliseconds(const QElapsedTimer& timer) { return static_cast<double>(timer.nsecsElapsed()) / 1e6; }

double Median(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2), values.end());
  return values[values.size() / 2];
}

void MeasureDesignChange() {
  Desk desk;
  desk.frame->resize(kScreen);
  desk.NewProject();
  desk.FillWoofer();
  desk.DesignVentedBox();
  desk.View("frmgrafcassa")->setGeometry(kGraph);
  QCoreApplication::processEvents();
  std::vector<double> taken;
  for (int run = 0; run < 40; ++run) {
    desk.Fill("txtvolnetto", QString::number(60 + run % 20));
    QElapsedTimer timer;
    timer.start();
    desk.Key(Qt::Key_Return);
    taken.push_back(Milliseconds(timer));
  }
  const double median = Median(taken);
  std::printf(
      "design change, key to painted / a frame at 60 Hz: %.1f ms at 1920 x 1080, a frame %.1f ms, ratio %.2f (at most "
      "1.00)\n",
      median, kFrame, median / kFrame);
}

/// A resonance at 32 Hz over a rising modulus, 1.4 MB.
void WriteMeasurement(const QString& path) {
  std::ofstream file(path.toStdString());
  file << ";Freq(Hz)  Impedance(Ohm)\r\n";
  double f = 0.3662;
  while (file.tellp() < 1400000) {
    f += 0.3324;
    const double q = 3.8 * (f / 32 - 32 / f);
    char line[64];
    std::snprintf(line, sizeof line, "%.4f  %.6f\r\n", f, 6 + 0.001 * f + 52 / std::sqrt(1 + q * q));
    file << line;
  }
}

double ReadingAlone(const QString& path) {
  QElapsedTimer timer;
  timer.start();
  Curve hertz;
  Curve ohm;
  RowReader reader(path.toStdString());
  reader.ReadLine();
  ImpedanceStore store(hertz, ohm);
  ReadImpedanceRows(reader, [&](const Row& row) { store.Add(row); });
  return Milliseconds(timer);
}

double OneRepaint(const Desk& desk) {
  const QWidget* const plot = desk.Find("frmgrafico.pctgrafimp");
  QElapsedTimer timer;
  timer.start();
  const QImage image = SurfaceImage(desk.program.windows.frmgrafico.surface, plot->size());
  return image.isNull() ? 0.0 : Milliseconds(timer);
}

void MeasureImport() {
  const QTemporaryDir folder;
  const QString path = folder.filePath("measurement.ovl");
  WriteMeasurement(path);
  std::vector<double> imports;
  std::vector<double> readings;
  std::vector<double> repaints;
  for (int run = 0; run < 7; ++run) {
    Desk desk;
    desk.frame->resize(kScreen);
    desk.ChooseEntry("mnuthisma");
    desk.platform.files.push_back(std::filesystem::path(ZEFIRONDO_EXAMPLES) / "tramontana-26.wdr");
    desk.ChooseEntry("mnuimportadati");
    desk.platform.files.push_back(path.toStdString());
    QElapsedTimer answered;
    desk.platform.on_answer = [&answered] { answered.start(); };
    desk.ChooseEntry("mnuimporta");
    imports.push_back(Milliseconds(answered));
    readings.push_back(ReadingAlone(path));
    repaints.push_back(OneRepaint(desk));
  }
  const double allowed = 3 * Median(readings) + Median(repaints);
  std::printf(
      "import to its graph / three readings and a repaint: %.1f ms, reading %.1f ms, one repaint %.1f ms, ratio %.2f "
      "(at most 1.00)\n",
      Median(imports), Median(readings), Median(repaints), Median(imports) / allowed);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  MeasureDesignChange();
  MeasureImport();
  return 0;
}
