#include "response/events.h"

#include <array>

#include "response/air_speed.h"
#include "response/box_response.h"
#include "response/excursion.h"
#include "response/impedance_graph.h"
#include "response/phase.h"
#include "response/spl.h"

namespace zefirondo {

namespace {

/// The entries of the "Show" menus, which are the same in every graph window.
struct Opener {
  std::string_view entry;
  void (*open)(Program&);
};

constexpr std::array<Opener, 6> kOpeners{{
    {"mnufase", ApriFase},
    {"mnugraffase", ApriFase},
    {"mnuspl", ApriSpl},
    {"mnusplmax", ApriSplMax},
    {"mnuescursione", ApriEscursione},
    {"mnuairspeed", ApriAirspeed},
}};

}  // namespace

void ConnectResponse(Program& program) {
  ConnectBoxResponse(program);
  ConnectImpedanceGraph(program);
  ConnectSpl(program);
  ConnectExcursion(program);
  ConnectAirSpeed(program);
  ConnectPhase(program);
  for (const Window* const window : program.all) {
    for (const Opener& opener : kOpeners) {
      if (Control* const entry = window->Find(opener.entry)) entry->on.click = opener.open;
    }
  }
}

}  // namespace zefirondo
