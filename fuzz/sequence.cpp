// Phase sequences of the clipboard, staged in a file and read again, and phase traces.
#include "core/run_time_error.h"
#include "files/phase_file.h"
#include "fuzz_file.h"

namespace zefirondo {
namespace {

void ExpectWhole(const PhaseCurve& curve) {
  const bool as_long = curve.x.size() == curve.hertz.size() && curve.x.size() == curve.degrees.size();
  if (!as_long || curve.x.back() != 0.0 || curve.hertz.back() != 0.0 || curve.degrees.back() != 0.0) std::abort();
}

void StageAndRead(const std::string& text) {
  const FuzzFile staged(nullptr, 0);
  StageSequence(staged.path(), text);
  try {
    if (HasSequenceHeading(staged.path())) ExpectWhole(ReadSequence(staged.path()));
  } catch (const RunTimeError&) {
  } catch (const LogarithmError&) {
  }
}

void ImportTraceOf(const std::uint8_t* data, std::size_t size) {
  const FuzzFile file(data, size);
  FuzzDesk desk;
  desk.platform.files.emplace_back(file.path());
  PhaseCurve curve;
  const bool read = ImportPhaseTrace(desk.program, curve);
  desk.ExpectFound();
  if (read == (desk.out.find("message ") != std::string::npos)) std::abort();
  if (read) ExpectWhole(curve);
}

}  // namespace
}  // namespace zefirondo

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  zefirondo::StageAndRead(text);
  zefirondo::StageAndRead(";Freq(Hz)\r\n" + text);  // most of what is tried would stop at the heading
  zefirondo::ImportTraceOf(data, size);
  return 0;
}
