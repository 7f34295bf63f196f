#include "utilities/events.h"

#include "utilities/about.h"
#include "utilities/calculator.h"

namespace zefirondo {

void ConnectUtilities(Program& program) {
  ConnectCalculator(program);
  ConnectAbout(program);
}

}  // namespace zefirondo
