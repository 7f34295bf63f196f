#include "core/window_life.h"

#include <algorithm>
#include <array>

namespace zefirondo {
namespace {

struct GraphRow {
  std::string_view window;
  bool ProjectState::*open;
};

constexpr std::array kGraphs = std::to_array<GraphRow>({
    {"frmgrafcassa", &ProjectState::GrafCassaOpen},
    {"frmFase", &ProjectState::GrafFaseOpen},
    {"frmspl", &ProjectState::GrafSplOpen},
    {"frmsplMax", &ProjectState::GrafSplMaxOpen},
    {"frmescursione", &ProjectState::GrafEscursioneOpen},
    {"frmairspeed", &ProjectState::GrafAirspeedOpen},
});

void PutInOrder(Program& program, Window& window, bool front) {
  if (!window.open) return;
  std::erase(program.order, &window);
  const auto frame = std::find(program.order.begin(), program.order.end(), &program.windows.mdithsm.window);
  const bool is_frame = &window == &program.windows.mdithsm.window;
  if (is_frame) {
    program.order.push_back(&window);
  } else {
    program.order.insert(front ? program.order.begin() : frame, &window);
  }
}

void Activate(Program& program, Window& window) {
  program.active = &window;
  if (window.on.activate != nullptr) window.on.activate(program);
}

void Centre(const Program& program, Window& window) {
  const Window& frame = program.windows.mdithsm.window;
  window.left = (frame.width - window.width) / 2;
  window.top = (frame.height - window.height) / 2;
}

/// A small window that is to be filled in takes the focus, as a person expects of a dialog.
void FocusFirstControl(Program& program, Window& window) {
  const auto first = std::find_if(window.controls.begin(), window.controls.end(), [](const Control* control) {
    return control->TakesFocus() && control->IsShown() && control->IsUsable();
  });
  if (first != window.controls.end()) program.focus = *first;
}

}  // namespace

void LoadWindow(Program& program, Window& window) {
  if (window.open) return;
  ApplyDesign(window, program.language);
  window.open = true;
  window.hidden = false;
  if (window.centred) Centre(program, window);
  PutInOrder(program, window, true);
  if (window.on.load != nullptr) window.on.load(program);
  if (window.takes_focus) FocusFirstControl(program, window);
}

void OpenWindow(Program& program, Window& window) {
  LoadWindow(program, window);
  window.hidden = false;
  PutInOrder(program, window, true);
  Activate(program, window);
}

void OpenWindow(Program& program, std::string_view name) {
  if (Window* const window = program.FindWindow(name)) OpenWindow(program, *window);
}

bool CloseWindow(Program& program, Window& window) {
  if (!window.open) return false;
  if (window.on.query_unload != nullptr && !window.on.query_unload(program)) return false;
  if (window.on.unload != nullptr) window.on.unload(program);
  window.open = false;
  window.hidden = false;
  std::erase(program.order, &window);
  if (program.active == &window) program.active = nullptr;
  if (program.focus != nullptr && program.focus->window == &window) program.focus = nullptr;
  return true;
}

bool CloseWindow(Program& program, std::string_view name) {
  Window* const window = program.FindWindow(name);
  return window != nullptr && CloseWindow(program, *window);
}

void BringToFront(Program& program, Window& window) {
  PutInOrder(program, window, true);
  if (program.active != &window && !window.hidden) Activate(program, window);
}

void SendToBack(Program& program, Window& window) { PutInOrder(program, window, false); }

void NascondiGrafici(Program& program) {
  for (const GraphRow& graph : kGraphs) {
    Window* const window = program.FindWindow(graph.window);
    if (window == nullptr || !window->open || !(program.state.*graph.open)) continue;
    window->hidden = true;
    if (program.active == window) program.active = nullptr;
  }
}

void MostraGrafici(Program& program) {
  const std::vector<Window*> before(program.order.rbegin(), program.order.rend());  // back first
  for (const GraphRow& graph : kGraphs) {
    Window* const window = program.FindWindow(graph.window);
    if (window != nullptr && program.state.*graph.open && !window->open) OpenWindow(program, *window);
  }
  for (Window* const window : before) {  // each keeps its place among the others
    const bool flagged = std::any_of(kGraphs.begin(), kGraphs.end(), [&](const GraphRow& graph) {
      return graph.window == window->name && program.state.*graph.open;
    });
    if (flagged) OpenWindow(program, *window);
  }
}

void ChiudiGrafici(Program& program) {
  for (const std::string_view name : {"frmescursione", "frmspl", "frmsplMax", "frmFase"}) CloseWindow(program, name);
}

Window& MenuBarWindow(Program& program) {
  for (Window* const window : program.order) {
    if (!window->hidden && window->HasMenus()) return *window;
  }
  return program.windows.mdithsm.window;
}

}  // namespace zefirondo
