#include "box/events.h"

#include "box/alignment_chart.h"
#include "box/box_page.h"
#include "box/box_type.h"
#include "box/closed_box.h"
#include "box/dimension_entry.h"
#include "box/geometry.h"
#include "box/ports.h"
#include "box/vented_box.h"
#include "box/wiring.h"

namespace zefirondo {

void ConnectBox(Program& program) {
  ConnectBoxPage(program);
  ConnectClosedBox(program);
  ConnectVentedBox(program);
  ConnectPorts(program);
  ConnectGeometry(program);
  ConnectDimensionEntry(program);
  ConnectBoxType(program);
  ConnectAlignmentChart(program);
  ConnectWiring(program);
}

}  // namespace zefirondo
