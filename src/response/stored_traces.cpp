#include "response/stored_traces.h"

#include "core/events.h"
#include "files/trace_file.h"
#include "response/graph_surface.h"

namespace zefirondo {

void StoreTrace(Program& program, const TraceGraph& graph, std::size_t slot) {
  const TraceSlot& chosen = graph.slots.at(slot);
  *chosen.x = *graph.x;
  *chosen.y = *graph.y;
  if (*chosen.shown) {
    graph.restore(program);
    return;
  }
  *chosen.stored = *chosen.shown = true;
  chosen.tick->visible = true;
  SetChecked(program, *chosen.tick, true);
}

void ToggleTrace(Program& program, const TraceGraph& graph, std::size_t slot) {
  const TraceSlot& chosen = graph.slots.at(slot);
  const std::size_t other = 1 - slot;
  if (!*chosen.stored) return;
  *chosen.shown = chosen.save_entry->enabled = chosen.tick->checked;
  if (*chosen.shown) {
    DrawTrace(graph, slot);
    return;
  }
  graph.draw_plain(program);
  if (*graph.slots.at(other).shown) DrawTrace(graph, other);
}

void DrawTraceAt(const TraceGraph& graph, std::size_t slot, double top) {
  const TraceSlot& chosen = graph.slots.at(slot);
  DisegnaCurva(*chosen.x, *chosen.y, top, *graph.surface, chosen.colour);
}

void DrawTrace(const TraceGraph& graph, std::size_t slot) { DrawTraceAt(graph, slot, graph.top); }

void ForgetTraces(const TraceGraph& graph) {
  for (const TraceSlot& slot : graph.slots) {
    *slot.stored = *slot.shown = false;
    slot.tick->visible = slot.tick->checked = false;
  }
}

void ShowTraceTicks(const TraceGraph& graph) {
  for (const TraceSlot& slot : graph.slots) {
    slot.tick->visible = *slot.stored;
    slot.tick->checked = *slot.shown;
  }
}

void PaintTraceFile(Program& program, const TraceGraph& graph, const std::string& words) {
  Trace trace;
  if (!ImportTrace(program, words, trace)) return;
  DisegnaCurva(trace.x, trace.y, graph.top, *graph.surface, trace.colour);
}

void SaveTraceSlot(Program& program, const TraceGraph& graph, std::size_t slot) {
  const TraceSlot& chosen = graph.slots.at(slot);
  SaveTrace(program, chosen.colour, *chosen.x, *chosen.y);
}

}  // namespace zefirondo
