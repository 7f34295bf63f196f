// The two stored traces that the box, SPL and phase graphs each have.
#pragma once

#include <array>

#include "core/program.h"

namespace zefirondo {

struct TraceSlot {
  Curve* x;
  Curve* y;
  bool* stored;  // it holds data
  bool* shown;
  Control* tick;        // shows and hides it
  Control* save_entry;  // enabled while it is shown
  int colour;
};

/// A graph with its computed curve and its two slots.
struct TraceGraph {
  std::array<TraceSlot, 2> slots;
  const Curve* x;
  const Curve* y;
  double top;  // of the scale in which traces are drawn
  Surface* surface;
  void (*draw_plain)(Program&);  // clears the plot, and draws the grid and the computed curve
  void (*restore)(Program&);     // a complete redraw, after a shown slot was stored anew
};

/// Stores the computed curve in a slot. A slot that is shown already is redrawn at once; another one is ticked.
void StoreTrace(Program& program, const TraceGraph& graph, std::size_t slot);

/// Answers the tick of a slot: draws its trace on top, or rebuilds the plot without it.
void ToggleTrace(Program& program, const TraceGraph& graph, std::size_t slot);

void DrawTrace(const TraceGraph& graph, std::size_t slot);
void DrawTraceAt(const TraceGraph& graph, std::size_t slot, double top);

/// Clears the flags of both slots, and hides and unticks their check boxes.
void ForgetTraces(const TraceGraph& graph);

/// Shows the check boxes as the flags of the slots tell, when a window is loaded.
void ShowTraceTicks(const TraceGraph& graph);

/// Reads a trace from a file and paints it; it is not kept.
void PaintTraceFile(Program& program, const TraceGraph& graph, const std::string& words);

void SaveTraceSlot(Program& program, const TraceGraph& graph, std::size_t slot);

}  // namespace zefirondo
