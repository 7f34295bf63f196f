#include "response/events.h"

#include "response/box_response.h"
#include "response/impedance_graph.h"

namespace zefirondo {

void ConnectResponse(Program& program) {
  ConnectBoxResponse(program);
  ConnectImpedanceGraph(program);
}

}  // namespace zefirondo
