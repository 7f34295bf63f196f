// Transducer data, into a project that waits for them.
#include "fuzz_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zefirondo;
  const FuzzFile file(data, size);
  FuzzDesk desk;
  Start(desk.program, "");
  Choose(desk.program, desk.program.windows.mdithsm.mnuthisma);
  desk.platform.files.emplace_back(file.path());
  Choose(desk.program, desk.program.windows.frmthsm.mnuimportadati);
  desk.ExpectFound();
  const bool imported = desk.program.state.DataImported;
  if (imported != desk.program.windows.frmthsm.mnuimporta.enabled) std::abort();
  return 0;
}
