#include "transducer/events.h"

#include "transducer/thiele_small.h"

namespace zefirondo {

void ConnectTransducer(Program& program) { ConnectThieleSmall(program); }

}  // namespace zefirondo
