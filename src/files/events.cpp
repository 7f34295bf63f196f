#include "files/events.h"

#include "files/project_file.h"
#include "files/transducer_file.h"

namespace zefirondo {

void ConnectFiles(Program& program) {
  ConnectProjectFile(program);
  ConnectTransducerFile(program);
}

}  // namespace zefirondo
