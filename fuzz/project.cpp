// Project files, opened from the command line: the program ends in the message, in an opened project, or says why it
// ends.
#include "fuzz_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zefirondo;
  const FuzzFile file(data, size);
  FuzzDesk desk;
  Start(desk.program, file.path());
  const bool told = desk.out.find("message ") != std::string::npos;
  // A file with a strange section line is read to its end, and has no box page.
  const std::string& section = desk.program.state.BoxSection;
  const bool strange = section != "ClosedBox" && section != "VentedBox";
  const bool opened = desk.program.windows.frmthsm.tabs.size() == 5 || strange;
  if (!told && !opened) std::abort();
  if (desk.program.run == RunState::EndedByFailure && !told) std::abort();
  return 0;
}
