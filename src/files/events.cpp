#include "files/events.h"

#include "files/project_file.h"

namespace zefirondo {

void ConnectFiles(Program& program) { ConnectProjectFile(program); }

}  // namespace zefirondo
