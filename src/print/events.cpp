#include "print/events.h"

#include "print/graph_page.h"
#include "print/project_report.h"

namespace zefirondo {

void ConnectPrint(Program& program) {
  ConnectReport(program);
  ConnectGraphPages(program);
}

}  // namespace zefirondo
