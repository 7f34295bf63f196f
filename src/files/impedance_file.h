// Measured impedances: rows of frequency in Hz and modulus in ohm.
#pragma once

#include "core/project_state.h"
#include "files/row_reader.h"

namespace zefirondo {

/// Whether a row stands before the data: a frequency of 0 up to below 1 Hz, which prints with a leading "0".
/// The fields of a heading line read as 0, and so such lines are passed too.
[[nodiscard]] bool IsBeforeData(const Row& row);

/// Appends rows to the arrays of a measured curve, with the zero slot behind the last one. The first row empties
/// what stood there.
class ImpedanceStore {
 public:
  ImpedanceStore(Curve& hertz, Curve& ohm) : hertz_(hertz), ohm_(ohm) {}

  void Add(const Row& row);
  [[nodiscard]] bool IsEmpty() const { return empty_; }

 private:
  Curve& hertz_;
  Curve& ohm_;
  bool empty_ = true;
};

/// Skips what stands before the data and hands every row to `use`, but the last: a pair is used only when the file
/// goes on behind it, as wanted. Throws as `RowReader`.
template <class Use>
void ReadImpedanceRows(RowReader& reader, Use use) {
  Row row = reader.ReadRow();
  while (IsBeforeData(row)) row = reader.ReadRow();
  while (!reader.AtEnd()) {
    use(row);
    row = reader.ReadRow();
  }
}

}  // namespace zefirondo
