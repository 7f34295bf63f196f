#include "print/graph_page.h"

#include <array>
#include <span>

#include "core/numbers.h"
#include "core/run_time_error.h"
#include "print/title.h"
#include "response/graph_surface.h"

namespace zefirondo {
namespace {

struct FrequencyLabel {
  const char* text;
  double x;
};

// Not under the lines of the plot, which begins at 10 Hz on its left edge: these places are wanted.
constexpr auto kBoxFrequencies = std::to_array<FrequencyLabel>({
    {"10", 2140},
    {"20", 2940},
    {"30", 3385},
    {"40", 3720},
    {"50", 3970},
    {"100", 4730},
    {"200", 5510},
    {"300", 6030},
    {"1k", 7390},
    {"2k", 8170},
});

constexpr auto kImpedanceFrequencies = std::to_array<FrequencyLabel>({
    {"10", 1800},
    {"20", 2377},
    {"100", 3680},
    {"200", 4247},
    {"1k", 5700},
    {"2k", 6267},
    {"10k", 7620},
    {"20k", 8230},
});

/// What differs between the two pages.
struct GraphDesign {
  const char* heading;
  const std::string* title;  // of the project or of the measurement, with its extension
  int top;
  int shown_less;  // taken off a level for its label
  const char* source;
  const Surface* surface;
  std::span<const FrequencyLabel> frequencies;
  const char* unit;
};

Page GraphPage(Program& program, const GraphDesign& design) {
  Page page;
  const auto text = [&](double x, double y, const std::string& words) {
    page.items.emplace_back(PageText{x, y, words, 0});
  };
  const int step = GridStep(design.top) / 10;
  const double pitch = RoundHalfEven(Divide(45000.0, Divide(design.top, step)));
  double y = 5290 - pitch;
  page.items.emplace_back(
      PageText{2000, 580, design.heading + WithoutExtension(*design.title) + "  " + DateText(program.platform.Today()),
               0, true});
  for (int level = 10 * step; level <= design.top; level += 10 * step) {
    text(500, y, std::to_string(level - design.shown_less));
    y -= pitch;
  }
  page.items.emplace_back(PagePicture{900, 800, 7372, 4536, design.source, *design.surface});
  page.items.emplace_back(PageBox{900, 800, 8272, 5336});
  for (const FrequencyLabel& label : design.frequencies) text(label.x, 5380, label.text);
  text(4247, 5600, "Frequenza Hz");
  text(100, 2550, design.unit);
  return page;
}

void PrintGraph(Program& program, Page (*make)(Program&)) {
  try {
    const auto choice = program.platform.ChoosePrinter();
    if (!choice) return;
    std::vector<Page> pages(static_cast<std::size_t>(choice->copies), make(program));
    for (Page& page : pages) page.landscape = choice->landscape;
    if (!pages.empty()) pages.back().last = true;
    program.platform.Print(pages, *choice);
  } catch (const RunTimeError& error) {
    program.Message(MessageIcon::Warning, program.Text(134) + error.what(), program.Text(108));
  }
}

void PrintBoxGraph(Program& program) { PrintGraph(program, BoxGraphPage); }
void PrintImpedance(Program& program) { PrintGraph(program, ImpedancePage); }

}  // namespace

Page BoxGraphPage(Program& program) {
  return GraphPage(
      program, {"Funzione di trasferimento. Diffusore: ", &program.state.ProjectTitle, program.state.BoxScaleTop, 40,
                "frmgrafcassa.pctgraf", &program.windows.frmgrafcassa.surface, kBoxFrequencies, "dB"});
}

Page ImpedancePage(Program& program) {
  return GraphPage(program,
                   {"Grafico impedenza. Trasduttore: ", &program.state.ImpFileTitle, program.state.ImpScaleTop, 0,
                    "frmgrafico.pctgrafimp", &program.windows.frmgrafico.surface, kImpedanceFrequencies, "Ohm"});
}

void ConnectGraphPages(Program& program) {
  program.windows.frmgrafcassa.mnugrafstampa.on.click = PrintBoxGraph;
  program.windows.frmgrafico.mnugrafstampa.on.click = PrintImpedance;
}

}  // namespace zefirondo
