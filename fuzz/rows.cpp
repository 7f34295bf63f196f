// Measurements and responses: the free-form rows, the search on the curve, the component values.
#include "core/run_time_error.h"
#include "files/impedance_file.h"
#include "fuzz_file.h"
#include "transducer/component_values.h"
#include "transducer/impedance_import.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zefirondo;
  const FuzzFile file(data, size);
  Curve hertz;
  Curve ohm;
  try {
    RowReader reader(file.path());
    reader.ReadLine();
    ImpedanceStore store(hertz, ohm);
    ReadImpedanceRows(reader, [&](const Row& row) { store.Add(row); });
  } catch (const RunTimeError&) {
  }
  try {
    static_cast<void>(FindImpedancePoints(hertz, ohm, 5.6, [](std::size_t) {}));
  } catch (const RunTimeError&) {
  }
  for (const auto find : {FindCapacitivePoints, FindInductivePoints}) {
    try {
      const CurvePoints points = find(file.path(), 20, 200);
      static_cast<void>(CapacitorOf(points));
    } catch (const RunTimeError&) {
    }
  }
  return 0;
}
