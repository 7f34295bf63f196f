// Measured responses, by the dialog of both graphs: rows, a message, or a logarithm that there is not.
#include "core/numbers.h"
#include "core/run_time_error.h"
#include "files/overlay_file.h"
#include "fuzz_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zefirondo;
  const FuzzFile file(data, size);
  for (const double limit : {6826.0, 2000.0}) {
    FuzzDesk desk;
    desk.platform.files.emplace_back(file.path());
    Curve x;
    try {
      const bool read = ImportOverlay(desk.program, limit, [&](const Row& row) {
        if (row.first >= limit) std::abort();
        x.push_back(20 * Log10(row.first));
      });
      const bool told = desk.out.find("message ") != std::string::npos;
      if (read == told) std::abort();
    } catch (const LogarithmError&) {
    }
    desk.ExpectFound();
  }
  return 0;
}
