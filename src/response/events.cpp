#include "response/events.h"

#include "response/box_response.h"

namespace zefirondo {

void ConnectResponse(Program& program) { ConnectBoxResponse(program); }

}  // namespace zefirondo
