// Traces, read and written again.
#include "core/run_time_error.h"
#include "files/trace_file.h"
#include "fuzz_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zefirondo;
  const FuzzFile file(data, size);
  try {
    const Trace trace = ReadTrace(file.path());
    if (trace.x.size() != trace.y.size() || trace.x.back() != 0.0) std::abort();
    static_cast<void>(TraceText(trace.colour, trace.x, trace.y));
  } catch (const RunTimeError&) {
  }
  return 0;
}
