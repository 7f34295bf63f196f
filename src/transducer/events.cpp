#include "transducer/events.h"

#include "transducer/component_values.h"
#include "transducer/impedance_import.h"
#include "transducer/thiele_small.h"

namespace zefirondo {

void ConnectTransducer(Program& program) {
  ConnectThieleSmall(program);
  ConnectImpedanceImport(program);
  ConnectComponentValues(program);
}

}  // namespace zefirondo
