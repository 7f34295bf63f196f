// Project files, opened from the command line: the program ends in the message, in an opened project, or says why it
// ends.
#include "fuzz_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zefirondo;
  const FuzzFile file(data, size);
  FuzzDesk desk;
  Start(desk.program, file.path());
  const bool told = desk.out.find("message ") != std::string::npos;
  const bool opened = desk.program.windows.frmthsm.tabs.size() == 5;
  if (!told && !opened) std::abort();
  if (desk.program.run == RunState::EndedByFailure && !told) std::abort();
  return 0;
}
