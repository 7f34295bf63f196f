#include "print/project_report.h"

#include <array>

#include "core/numbers.h"
#include "core/run_time_error.h"
#include "core/text.h"
#include "print/title.h"

namespace zefirondo {
namespace {

/// A caption of the table, or a fixed one; the value of a field; its unit. Tab stops are columns.
struct ReportRow {
  double y;
  Caption caption;
  Control Sheet::*field;
  const char* unit;
  int value_tab;
  int unit_tab;
};

constexpr double kTableAx = 2697;
constexpr double kPortsX = 8600;
constexpr double kDesignLeftX = 5862;
constexpr double kDesignRightX = 8580;

// The inner dimensions of the box.
constexpr auto kBoxRows = std::to_array<ReportRow>({
    {6860, 477, &Sheet::cmbforma, "", 55, 69},
    {7085, 478, &Sheet::cmbrappo, "", 55, 69},
    {7312, 479, &Sheet::txtl, "Cm", 55, 69},
    {7539, 480, &Sheet::txth, "Cm", 55, 69},
    {7766, 481, &Sheet::txtp, "Cm", 55, 69},
});
constexpr auto kTrapezoidRows = std::to_array<ReportRow>({
    {7993, 482, &Sheet::txtld, "Cm", 55, 69},
    {8220, 483, &Sheet::cmbgradi, "°", 55, 69},
    {8447, 484, &Sheet::txtboxvolume, "l", 55, 69},
});
constexpr ReportRow kPrismVolume{7993, 484, &Sheet::txtboxvolume, "l", 55, 69};

constexpr auto kPortRows = std::to_array<ReportRow>({
    {6635, 486, &Sheet::cmbnumcond, "", 139, 150},
    {6860, 487, &Sheet::txtlungmis, "Cm", 139, 150},
    {7085, 488, &Sheet::txtareasez, "Cm²", 139, 150},
    {7310, 489, &Sheet::txtseztot, "Cm²", 139, 150},
});
constexpr ReportRow kRoundRow{7535, 490, &Sheet::cmbDoa, "Cm", 139, 150};
constexpr auto kRectangularRows = std::to_array<ReportRow>({
    {7535, 491, &Sheet::cmbDoa, "Cm", 139, 150},
    {7760, 492, &Sheet::txtb, "Cm", 139, 150},
});

constexpr auto kDesignLeft = std::to_array<ReportRow>({
    {8443, 493, &Sheet::cmbnumdriver, "", 105, 115},
    {8668, 494, &Sheet::txtvolnetto, "l", 105, 115},
    {8893, 495, &Sheet::txtvoloccu, "l", 105, 115},
    {9118, 496, &Sheet::txtingombro, "l", 105, 115},
});
constexpr auto kDesignRight = std::to_array<ReportRow>({
    {8443, 497, &Sheet::txtfb, "Hz", 138, 150},
    {8668, 498, &Sheet::txtfreriso, "Hz", 138, 150},
});

/// A cell of the transducer's table: its row, the left edge of its group, and the tab stops.
struct TransducerCell {
  int row;
  double x;
  Caption caption;
  Control Sheet::*field;
  const char* unit;
  int value_tab;
  int unit_tab;
};

constexpr double kFirst = 300;
constexpr double kSecond = 2697;
constexpr double kThird = 5878;
constexpr double kFourth = 8580;
constexpr double kTransducerY = 10410;
constexpr double kTransducerPitch = 227;

// clang-format off
constexpr auto kTransducerCells = std::to_array<TransducerCell>({
    {0, kFirst, "Zmax", &Sheet::txtzmax, "Ohm", 13, 29},
    {0, kSecond, "Qms", &Sheet::txtqmesin, "", 47, 63},
    {0, kThird, 392, &Sheet::txtforo, "mm", 105, 113},
    {0, kFourth, 396, &Sheet::txtesterno, "mm", 142, 150},
    {1, kFirst, "Zmin", &Sheet::txtzmin, "Ohm", 13, 29},
    {1, kSecond, "Qes", &Sheet::txtqes, "", 47, 63},
    {1, kThird, 393, &Sheet::txtprof, "mm", 105, 113},
    {1, kFourth, 397, &Sheet::txtspesbordo, "mm", 142, 150},
    {2, kFirst, "Fs", &Sheet::txtfs, "Hz", 13, 29},
    {2, kSecond, "Qts", &Sheet::txtqts, "", 47, 63},
    {2, kThird, 394, &Sheet::txtlagmagne, "mm", 105, 113},
    {2, kFourth, 395, &Sheet::txtprofmag, "mm", 142, 150},
    {3, kFirst, "Fl", &Sheet::txtfl, "Hz", 13, 29},
    {3, kSecond, "Lces", &Sheet::txtlces, "mH", 47, 63},
    {3, kThird, 398, &Sheet::txtdiambob, "mm", 105, 113},
    {3, kFourth, 399, &Sheet::txtvolume, "l", 142, 153},
    {4, kFirst, "Fh", &Sheet::txtfh, "Hz", 13, 29},
    {4, kSecond, "Cmes", &Sheet::txtcmes, "µF", 47, 63},
    {5, kFirst, "Bw", &Sheet::txtbw, "Hz", 13, 29},
    {5, kSecond, "Res", &Sheet::txtrmes, "Ohm", 47, 63},
    {6, kFirst, "Rvc", &Sheet::txtrvc, "Ohm", 13, 29},
    {6, kSecond, "Cms", &Sheet::txtcms, "m/N", 47, 63},
    {7, kFirst, "Bl", &Sheet::txtbl, "Wb/m", 13, 29},
    {7, kSecond, "Mms", &Sheet::txtmms, "Kg", 47, 63},
    {8, kFirst, "Vas", &Sheet::txtvas, "m³", 13, 29},
    {8, kSecond, "Rms", &Sheet::txtrms, "N/m x s", 47, 63},
    {8, kThird, 352, &Sheet::txtimpedenza, "Ohm", 107, 112},
    {8, kFourth, 351, &Sheet::txtpotenza, "W", 142, 152},
    {9, kFirst, "D", &Sheet::txtd, "mm", 13, 29},
    {9, kSecond, "Cas", &Sheet::txtcas, "m^5/N", 47, 63},
    {9, kThird, 353, &Sheet::txtsensibilita, "dB", 105, 114},
    {9, kFourth, 354, &Sheet::txthg, "mm", 142, 150},
    {10, kFirst, "Sd", &Sheet::txtsd, "m²", 13, 29},
    {10, kSecond, "Mas", &Sheet::txtmas, "Kg/m^4", 47, 63},
    {10, kThird, "Xmax", &Sheet::txtxmax, "mm", 105, 113},
    {10, kFourth, 356, &Sheet::txtrendimento, "%", 142, 152},
    {11, kFirst, "Le", &Sheet::txtle, "mH", 13, 29},
    {11, kSecond, "Ras", &Sheet::txtras, "N/m^5 x s", 47, 63},
    {11, kThird, 358, &Sheet::cmbnumvc, "", 105, 113},
});
// clang-format on

struct FrequencyLabel {
  const char* text;
  double x;
};

constexpr auto kFrequencies = std::to_array<FrequencyLabel>({
    {"10", 850},
    {"20", 1625},
    {"30", 2120},
    {"40", 2460},
    {"50", 2730},
    {"100", 3510},
    {"200", 4330},
    {"300", 4810},
    {"1k", 6280},
    {"2k", 7110},
    {"3k", 7600},
    {"4k", 7940},
    {"5k", 8180},
});

/// A frame with its title in the upper edge.
struct ReportFrame {
  int title;
  double title_x, title_y;
  double right, bottom;
};

constexpr auto kUpperFrames = std::to_array<ReportFrame>({
    {463, 262, 6300, 5536, 8643},
    {464, 5862, 6300, 11200, 7735},
    {465, 5862, 8062, 11200, 9324},
});
constexpr auto kLowerFrames = std::to_array<ReportFrame>({
    {499, 262, 10080, 5700, 13104},
    {500, 5812, 10260, 11200, 11515},
    {501, 5812, 12022, 11200, 13104},
});

class Writer {
 public:
  explicit Writer(Program& program) : program_(program), sheet_(program.windows.frmthsm) {}

  Page page;

  void Text(double x, double y, const std::string& text, int tab = 0) {
    if (!text.empty()) page.items.emplace_back(PageText{x, y, text, tab});
  }
  void Heading(double x, double y, const std::string& text) { page.items.emplace_back(PageText{x, y, text, 0, true}); }
  void Line(double x1, double y1, double x2, double y2) { page.items.emplace_back(PageLine{x1, y1, x2, y2}); }

  void Row(double x, double y, const Caption& caption, Control Sheet::*field, const char* unit, int value_tab,
           int unit_tab) {
    Text(x, y, caption.Text(program_.language));
    Text(x, y, *(sheet_.*field).text, value_tab);
    Text(x, y, unit, unit_tab);
  }

  template <class Rows>
  void RowsAt(double x, const Rows& rows) {
    for (const ReportRow& row : rows) RowAt(x, row);
  }
  void RowAt(double x, const ReportRow& row) {
    Row(x, row.y, row.caption, row.field, row.unit, row.value_tab, row.unit_tab);
  }

  void Picture(double x, double y, double width, double height, std::string source, const Surface& plot = {}) {
    page.items.emplace_back(PagePicture{x, y, width, height, std::move(source), plot});
  }

  /// The title interrupts the upper edge.
  void Frame(const ReportFrame& frame) {
    constexpr double kEdgeBelow = 70;  // the edge runs through the upper half of the title
    constexpr double kIndent = 70;
    constexpr double kTitleGap = 40;
    constexpr double kLetter = 107;  // the mean width of a capital
    const std::string title = program_.Text(frame.title);
    const double left = frame.title_x - kIndent;
    const double top = frame.title_y + kEdgeBelow;
    const double behind = frame.title_x + static_cast<double>(CharacterCount(title)) * kLetter + kTitleGap;
    Heading(frame.title_x, frame.title_y, title);
    Line(left, top, frame.title_x - kTitleGap, top);
    Line(behind, top, frame.right, top);
    Line(left, top, left, frame.bottom);
    Line(frame.right, top, frame.right, frame.bottom);
    Line(left, frame.bottom, frame.right, frame.bottom);
  }

 private:
  Program& program_;
  const Sheet& sheet_;
};

/// The step of the value labels, in tens of dB.
int LabelStep(int top) {
  if (top < 160) return 1;
  if (top < 320) return 2;
  return top < 480 ? 3 : 4;
}

void WriteGraph(Writer& out, Program& program) {
  const int top = program.state.BoxScaleTop;
  const int step = LabelStep(top);
  const double dy = RoundHalfEven(Divide(45000.0, Divide(top, step)));
  double line = 5290 - dy;
  for (int level = 10 * step; level <= top; level += 10 * step) {
    out.Text(500, line + 200, std::to_string(level - 40));
    line -= dy;
  }
  out.Picture(900, 1000, 8272 - 900, 5536 - 1000, "frmgrafcassa.pctgraf", program.windows.frmgrafcassa.surface);
  out.page.items.emplace_back(PageBox{900, 1000, 8272, 5536});
  for (const FrequencyLabel& label : kFrequencies) out.Text(label.x, 5580, label.text);
  out.Text(4047, 5800, program.Text(254));
  out.Text(100, 2750, "dB");
}

void WriteBox(Writer& out, Program& program) {
  const Sheet& sheet = program.windows.frmthsm;
  const bool trapezoid = sheet.imgbox[1].visible;
  out.Picture(200, 6600, 2300, 1900, trapezoid ? "imgbox(1)" : "imgbox(0)");
  out.RowsAt(kTableAx, kBoxRows);
  if (trapezoid) {
    out.RowsAt(kTableAx, kTrapezoidRows);
  } else {
    out.RowAt(kTableAx, kPrismVolume);
  }
}

void WritePorts(Writer& out, Program& program) {
  const bool round = program.windows.frmthsm.RoundPort();
  out.Picture(5840, 6600, round ? 500 : 750, 500, round ? "imgforma(0)" : "imgforma(1)");
  out.Text(5862, 7164, program.Text(485));
  out.RowsAt(kPortsX, kPortRows);
  if (round) {
    out.RowAt(kPortsX, kRoundRow);
  } else {
    out.RowsAt(kPortsX, kRectangularRows);
  }
}

void WriteTransducer(Writer& out) {
  for (const TransducerCell& cell : kTransducerCells) {
    out.Row(cell.x, kTransducerY + kTransducerPitch * cell.row, cell.caption, cell.field, cell.unit, cell.value_tab,
            cell.unit_tab);
  }
}

/// The name that is printed: asked for when the project has none, and without the extension of a file.
std::string AskName(Program& program) {
  const std::string& title = program.state.ProjectTitle;
  if (!title.empty()) return WithoutExtension(title);
  const std::string name = program.platform.ShowInput({program.Text(475), program.Text(460)});
  return name.empty() ? program.Text(502) : name;
}

}  // namespace

Page ReportPage(Program& program, const std::string& name) {
  Writer out(program);
  out.Heading(3400, 350,
              program.Text(461) + program.state.BoxSection + program.Text(476) + name + program.Text(462) +
                  DateText(program.platform.Today()));
  out.Heading(3670, 780, program.Text(268));
  WriteGraph(out, program);
  for (const ReportFrame& frame : kUpperFrames) out.Frame(frame);
  WriteBox(out, program);
  if (program.state.BoxSection == program.Text(211)) WritePorts(out, program);
  out.RowsAt(kDesignLeftX, kDesignLeft);
  out.RowsAt(kDesignRightX, kDesignRight);
  for (const ReportFrame& frame : kLowerFrames) out.Frame(frame);
  WriteTransducer(out);
  return out.page;
}

void PrintProject(Program& program) {
  try {
    const std::string name = AskName(program);
    const auto choice = program.platform.ChoosePrinter();
    if (!choice) return;
    std::vector<Page> pages(static_cast<std::size_t>(choice->copies), ReportPage(program, name));
    if (!pages.empty()) pages.back().last = true;
    program.platform.Print(pages, *choice);
  } catch (const RunTimeError& error) {
    program.ErrorMessage(program.Text(134) + error.what());
  }
}

void ConnectReport(Program& program) { program.windows.frmthsm.mnustampa.on.click = PrintProject; }

}  // namespace zefirondo
