#include "print_test.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QStandardPaths>

#include "core/acts.h"
#include "core/run_time_error.h"
#include "desk.h"
#include "print/graph_page.h"
#include "print/project_report.h"
#include "screens/page_painter.h"
#include "screens/printing.h"
#include "screens/qt_text.h"
#include "support/desk.h"

using namespace zefirondo;
using namespace zefirondo::screens;

namespace {

/// A word of a PDF, in twips.
struct PdfWord {
  int page;
  QRectF box;
  QString text;
};

QString FolderOf(const zefirondo::Desk& desk) { return QString::fromStdString(desk.folder.path().string()); }

QString PdfPath(const zefirondo::Desk& desk, const QString& name) {
  const QString kept = qEnvironmentVariable("ZEFIRONDO_PAGES");  // a folder, for who wants to look at the pages
  return kept.isEmpty() ? FolderOf(desk) + QLatin1Char('/') + name : kept + QLatin1Char('/') + name;
}

void PrintToPdf(const std::vector<Page>& pages, const QString& path) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(path);
  SetUpPaper(printer);
  PrintPages(printer, pages);
}

QString OutputOf(const QString& tool, const QStringList& arguments) {
  QProcess process;
  process.start(tool, arguments);
  if (!process.waitForFinished()) return {};
  return QString::fromUtf8(process.readAllStandardOutput());
}

bool HasTool(const QString& tool) { return !QStandardPaths::findExecutable(tool).isEmpty(); }

QString Unescaped(QString text) {
  return text.replace("&lt;", "<").replace("&gt;", ">").replace("&quot;", "\"").replace("&amp;", "&");
}

std::vector<PdfWord> WordsOf(const QString& path) {
  static const QRegularExpression kPattern(
      R"re(<page |<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">(.*?)</word>)re");
  std::vector<PdfWord> words;
  int page = 0;
  auto matches = kPattern.globalMatch(OutputOf("pdftotext", {"-bbox", path, "-"}));
  while (matches.hasNext()) {
    const auto match = matches.next();
    if (match.captured(1).isEmpty()) {
      ++page;
      continue;
    }
    const QPointF from(match.captured(1).toDouble(), match.captured(2).toDouble());
    const QPointF to(match.captured(3).toDouble(), match.captured(4).toDouble());
    words.push_back({page, QRectF(from * kTwipsPerPoint, to * kTwipsPerPoint), Unescaped(match.captured(5))});
  }
  return words;
}

/// Whether one word of the PDF begins at the place that a text of the page asks for.
bool Stands(const PageText& text, const std::vector<PdfWord>& words) {
  constexpr double kAcross = 25.0;  // the white at the left of a letter
  constexpr double kDown = 40.0;    // the white above it
  const QString first = ToQt(text.text).trimmed().section(QLatin1Char(' '), 0, 0);
  const double x = text.tab > 0 ? TabStop(text.tab) : text.x;
  return std::any_of(words.begin(), words.end(), [&](const PdfWord& word) {
    return word.text == first && std::abs(word.box.left() - x) < kAcross && std::abs(word.box.top() - text.y) < kDown;
  });
}

QStringList TextsOutOfPlace(const Page& page, const std::vector<PdfWord>& words) {
  QStringList missing;
  for (const PageItem& item : page.items) {
    const auto* const text = std::get_if<PageText>(&item);
    if (text != nullptr && !ToQt(text->text).trimmed().isEmpty() && !Stands(*text, words))
      missing.append(QStringLiteral("%1 %2 %3").arg(text->x).arg(text->y).arg(ToQt(text->text)));
  }
  return missing;
}

QStringList WordsThatOverlap(const std::vector<PdfWord>& words) {
  QStringList found;
  for (std::size_t i = 0; i < words.size(); ++i) {
    for (std::size_t j = i + 1; j < words.size(); ++j) {
      const QRectF shared = words[i].box & words[j].box;
      if (words[i].page == words[j].page && shared.width() > 10 && shared.height() > 60)
        found.append(words[i].text + QLatin1Char('|') + words[j].text);
    }
  }
  return found;
}

constexpr QSizeF kPaper(11906, 16838);  // A4 in twips

QStringList WordsOffThePaper(const std::vector<PdfWord>& words) {
  QStringList found;
  for (const PdfWord& word : words) {
    if (!QRectF(QPointF(), kPaper).contains(word.box)) found.append(word.text);
  }
  return found;
}

/// A design of the kinds that a report tells apart.
struct Design {
  Language language = Language::English;
  bool vented = true;
  bool round = true;
  bool trapezoid = false;

  [[nodiscard]] QString Name() const {
    return QStringList{language == Language::English ? "english" : "italian", vented ? "vented" : "closed",
                       round ? "round" : "rectangular", trapezoid ? "trapezoid" : "prism"}
        .join('-');
  }
};

Design DesignOf(int kind) {
  return {(kind & 8) == 0 ? Language::English : Language::Italian, (kind & 4) == 0, (kind & 2) == 0, (kind & 1) != 0};
}

void Make(zefirondo::Desk& desk, const Design& design) {
  if (design.vented) {
    desk.DesignVented();
  } else {
    desk.DesignClosed();
  }
  desk.state.ProjectTitle = "Maestrale 22 con un nome lungo.pro";
  if (design.vented && !design.round) {
    desk.Click("imgforma(0)");
    desk.Set("cmbDoa", "14.5");
    desk.Leave();
    desk.Set("txtb", "6");
    desk.Leave();
  }
  if (design.trapezoid) {
    desk.Pick("cmbforma", desk.program.Text(503));
    desk.Leave();
  }
}

zefirondo::ErrorNumber NumberOfFailure(QPrinter& printer, const std::vector<Page>& pages) {
  try {
    PrintPages(printer, pages);
  } catch (const RunTimeError& error) {
    return static_cast<ErrorNumber>(error.number());
  }
  return static_cast<ErrorNumber>(0);
}

/// Answers the printer dialog when it shows.
template <class Act>
void WithPrintDialog(const Act& act) {
  auto* const timer = new QTimer(qApp);
  QObject::connect(timer, &QTimer::timeout, timer, [timer, act] {
    auto* const dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    timer->deleteLater();
    act(*dialog);
  });
  timer->start(5);
}

}  // namespace

void PrintTest::EveryWordStandsInItsPlace_data() {
  QTest::addColumn<int>("kind");
  for (int kind = 0; kind < 16; ++kind) QTest::newRow(qPrintable(DesignOf(kind).Name())) << kind;
}

void PrintTest::EveryWordStandsInItsPlace() {
  QFETCH(const int, kind);
  if (!HasTool("pdftotext")) QSKIP("pdftotext is not installed");
  const Design design = DesignOf(kind);
  zefirondo::Desk desk(design.language);
  Make(desk, design);
  QCOMPARE(desk.sheet.RoundPort(), design.round || !design.vented);
  QCOMPARE(desk.sheet.imgbox[1].visible, design.trapezoid);
  desk.state.ImpFileTitle = "Maestrale 22.txt";
  desk.state.ImpScaleTop = 65;
  const std::vector<Page> pages{ReportPage(desk.program, "Maestrale 22 con un nome lungo"), BoxGraphPage(desk.program),
                                ImpedancePage(desk.program)};
  const QString path = PdfPath(desk, design.Name() + ".pdf");
  PrintToPdf(pages, path);

  const std::vector<PdfWord> words = WordsOf(path);
  QCOMPARE(words.empty() ? 0 : words.back().page, 3);
  for (int page = 1; page <= 3; ++page) {
    std::vector<PdfWord> own;
    std::copy_if(words.begin(), words.end(), std::back_inserter(own), [&](const PdfWord& w) { return w.page == page; });
    QCOMPARE(TextsOutOfPlace(pages[static_cast<std::size_t>(page - 1)], own), QStringList());
  }
  QCOMPARE(WordsThatOverlap(words), QStringList());
  QCOMPARE(WordsOffThePaper(words), QStringList());
}

void PrintTest::PlotsAndFramesAreLines() {
  if (!HasTool("pdfimages")) QSKIP("pdfimages is not installed");
  zefirondo::Desk desk;
  Make(desk, {});
  desk.Click("frmgrafcassa.cmdset1");  // a trace is coloured
  const QString path = PdfPath(desk, "lines.pdf");
  PrintToPdf({ReportPage(desk.program, "W210"), BoxGraphPage(desk.program)}, path);
  // Two lines of a heading, and no picture below them.
  QCOMPARE(OutputOf("pdfimages", {"-list", path}).count('\n'), 2);
  // The trace is there all the same: its colour stands in the page, inside the plot and nowhere else.
  OutputOf("pdftoppm", {"-r", "72", "-png", "-f", "2", "-l", "2", path, FolderOf(desk) + "/p"});
  const QStringList pictures = QDir(FolderOf(desk)).entryList({"p*.png"});
  QCOMPARE(pictures.size(), 1);
  const QImage picture(FolderOf(desk) + "/" + pictures.front());
  QVERIFY(picture.width() >= 595 && picture.height() >= 842);  // A4 at one pixel a point
  int inside = 0;
  int outside = 0;
  const QRectF plot(900 / 20.0, 800 / 20.0, 7372 / 20.0, 4536 / 20.0);
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixelColor(x, y).saturation() < 60) continue;
      ++(plot.adjusted(-1, -1, 1, 1).contains(x, y) ? inside : outside);
    }
  }
  QVERIFY2(inside > 300, qPrintable(QString::number(inside)));
  QCOMPARE(outside, 0);
}

void PrintTest::CopiesArePages() {
  if (!HasTool("pdftotext")) QSKIP("pdftotext is not installed");
  zefirondo::Desk desk;
  Make(desk, {});
  desk.platform.printers.push_back({false, false, {3, false}});
  desk.Choose("frmgrafcassa.mnugrafstampa");
  QCOMPARE(desk.platform.pages.size(), 3U);
  const QString path = PdfPath(desk, "copies.pdf");
  PrintToPdf(desk.platform.pages, path);
  const std::vector<PdfWord> words = WordsOf(path);
  QCOMPARE(words.size() % 3, 0U);
  QVERIFY(words.size() > 30);
  const std::size_t each = words.size() / 3;
  for (std::size_t i = 0; i < each; ++i) {
    for (const std::size_t copy : {each, 2 * each}) {
      QCOMPARE(words[i + copy].text, words[i].text);
      QCOMPARE(words[i + copy].box, words[i].box);
    }
  }
}

void PrintTest::LandscapeTurnsThePaper() {
  if (!HasTool("pdfinfo")) QSKIP("pdfinfo is not installed");
  zefirondo::Desk desk;
  Make(desk, {});
  Page page = BoxGraphPage(desk.program);
  page.landscape = true;
  const QString path = PdfPath(desk, "landscape.pdf");
  PrintToPdf({page}, path);
  QVERIFY(OutputOf("pdfinfo", {path}).contains(QRegularExpression("Page size: +842 x 595 pts")));
  QCOMPARE(TextsOutOfPlace(page, WordsOf(path)), QStringList());
}

void PrintTest::APrinterThatFailsIsTold() {
  const QTemporaryDir folder;
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  SetUpPaper(printer);
  Page page;
  page.items.emplace_back(PageText{100, 100, "word"});
  printer.setOutputFileName(folder.filePath("no/such/folder/page.pdf"));
  QCOMPARE(NumberOfFailure(printer, {page}), ErrorNumber::DeviceError);
  printer.setOutputFileName(folder.filePath("page.pdf"));
  QCOMPARE(NumberOfFailure(printer, {page}), static_cast<ErrorNumber>(0));
  QVERIFY(QFileInfo(folder.filePath("page.pdf")).size() > 0);
}

void PrintTest::TheDialogLeadsToAFile() {
  screens::Desk desk;
  desk.NewProject();
  desk.FillWoofer();
  desk.DesignVentedBox();
  const QString path = desk.folder.filePath("report.pdf");
  WithPrintDialog([&](QPrintDialog& dialog) {
    dialog.printer()->setOutputFormat(QPrinter::PdfFormat);
    for (QLineEdit* const field : dialog.findChildren<QLineEdit*>()) {
      if (field->objectName() == "filename") field->setText(path);
    }
    auto* const buttons = dialog.findChild<QDialogButtonBox*>();
    for (QAbstractButton* const button : buttons->buttons()) {
      if (buttons->buttonRole(button) == QDialogButtonBox::AcceptRole) QTest::mouseClick(button, Qt::LeftButton);
    }
  });
  const auto choice = desk.platform.ChoosePrinter();
  QVERIFY(choice.has_value());
  QCOMPARE(choice->copies, 1);
  QVERIFY(!choice->landscape);
  desk.platform.Print({BoxGraphPage(desk.program)}, *choice);
  QVERIFY(QFileInfo(path).size() > 0);
}

void PrintTest::ACancelledDialogPrintsNothing() {
  screens::Desk desk;
  WithPrintDialog([](QPrintDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  QVERIFY(!desk.platform.ChoosePrinter().has_value());
  QVERIFY(desk.boxes.empty());
}
