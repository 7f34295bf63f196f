#include "filters/events.h"

#include "filters/filter_designer.h"
#include "filters/phase_tool.h"
#include "filters/summation.h"

namespace zefirondo {

void ConnectFilters(Program& program) {
  ConnectFilterDesigner(program);
  ConnectSummation(program);
  ConnectPhaseTool(program);
}

}  // namespace zefirondo
