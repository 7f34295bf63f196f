#include "box/events.h"

#include "box/box_page.h"
#include "box/closed_box.h"
#include "box/dimension_entry.h"
#include "box/geometry.h"
#include "box/ports.h"
#include "box/vented_box.h"

namespace zefirondo {

void ConnectBox(Program& program) {
  ConnectBoxPage(program);
  ConnectClosedBox(program);
  ConnectVentedBox(program);
  ConnectPorts(program);
  ConnectGeometry(program);
  ConnectDimensionEntry(program);
}

}  // namespace zefirondo
