#include "program/assembly.h"

#include "box/events.h"
#include "core/air.h"
#include "core/fields.h"
#include "core/options.h"
#include "core/sheet.h"
#include "core/shell.h"
#include "files/events.h"
#include "filters/events.h"
#include "print/events.h"
#include "response/events.h"
#include "transducer/events.h"
#include "utilities/events.h"

namespace zefirondo {

void ConnectProgram(Program& program) {
  ConnectFieldRules(program);
  ConnectShell(program);
  ConnectSheet(program);
  ConnectAir(program);
  ConnectOptions(program);
  ConnectFiles(program);
  ConnectResponse(program);
  ConnectBox(program);
  ConnectTransducer(program);
  ConnectFilters(program);
  ConnectPrint(program);
  ConnectUtilities(program);
}

}  // namespace zefirondo
