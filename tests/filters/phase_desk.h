// The phase offset tool at a desk: two curves worked out by hand, and how to bring them in.
#pragma once

#include <cmath>

#include "support/desk.h"

namespace zefirondo {

// Black wraps from the bottom to the top edge between 30 and 40 Hz; magenta falls evenly.
inline const std::string kBlackText = ";Freq(Hz)\tPhase\r\n10\t-60\r\n20\t-120\r\n30\t-175\r\n40\t175\r\n50\t120\r\n";
inline const std::string kMagentaText = ";Freq(Hz)\tPhase\r\n10\t-30\r\n20\t-60\r\n30\t-90\r\n40\t-120\r\n50\t-150\r\n";
inline const Curve kRowsHz{10, 20, 30, 40, 50, 0};
inline const Curve kBlackDeg{-60, -120, -175, 175, 120, 0};
inline const Curve kMagentaDeg{-30, -60, -90, -120, -150, 0};
// 20·log10(f) − 10
inline const Curve kRowsX{10, 16.020599913279624, 19.54242509439325, 22.041199826559248, 23.979400086720375, 0};

/// A chain on the chart, apart from the grid: its colour, and its degrees.
struct ChartChain {
  int colour;
  Curve degrees;
};

class PhaseDesk : public Desk {
 public:
  explicit PhaseDesk(Language language = Language::English) : Desk(language) {
    Begin();
    Choose("mdithsm.mnudelay");
    TakeOut();
  }

  PhaseOffsetTool& tool = program.windows.frmFaseSh;
  PhaseOffsetEntry& offset = program.windows.frmfasecompl;
  DelayEntry& delay = program.windows.frmsommadelay;

  Outcome PasteText(const std::string& text) {
    platform.clipboard = text;
    return Click("frmFaseSh.cmdimporta");
  }
  void PasteBoth() {
    PasteText(kBlackText);
    PasteText(kMagentaText);
  }
  /// Finds the offset at a frequency; what was shown is in `out`.
  void FindOffset(const std::string& hertz, bool slope = false) {
    Click("frmFaseSh.cmdcalcola");
    if (slope) Click("frmfasecompl.optcomplessiva");
    Set("frmfasecompl.txtfrequenza", hertz);
    Click("frmfasecompl.cmdok");
  }
  /// Both curves, an offset, and the window of the delay.
  void OpenDelay() {
    PasteBoth();
    FindOffset("25");
    Click("frmFaseSh.cmdsomma");
    TakeOut();
  }

  /// What stands on the chart besides the grid, in the order drawn. A chain leaves out the last row of its curve.
  [[nodiscard]] std::vector<ChartChain> Chart() const {
    std::vector<ChartChain> chains;
    for (const Stroke& stroke : tool.surface.strokes) {
      if (stroke.count == 2) continue;
      ChartChain chain{stroke.colour, {}};
      for (std::size_t i = 0; i < stroke.count; ++i) {
        chain.degrees.push_back(180 - tool.surface.points[stroke.first + i].y);
      }
      chains.push_back(chain);
    }
    return chains;
  }
  [[nodiscard]] std::vector<int> Colours() const {
    std::vector<int> colours;
    for (const ChartChain& chain : Chart()) colours.push_back(chain.colour);
    return colours;
  }
  /// The lines of the grid.
  [[nodiscard]] std::size_t GridLines() const {
    return static_cast<std::size_t>(std::count_if(tool.surface.strokes.begin(), tool.surface.strokes.end(),
                                                  [](const Stroke& stroke) { return stroke.count == 2; }));
  }
};

inline void ExpectNear(const Curve& found, const Curve& expected, double within = 1e-9) {
  ASSERT_EQ(found.size(), expected.size());
  for (std::size_t i = 0; i < found.size(); ++i) EXPECT_NEAR(found[i], expected[i], within) << i;
}

/// The curve as far as a chain shows it.
inline Curve Drawn(Curve degrees) {
  degrees.resize(degrees.size() - 2);
  return degrees;
}

}  // namespace zefirondo
