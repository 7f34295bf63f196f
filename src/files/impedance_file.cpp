#include "files/impedance_file.h"

namespace zefirondo {

bool IsBeforeData(const Row& row) { return row.first >= 0.0 && row.first < 1.0; }

void ImpedanceStore::Add(const Row& row) {
  if (empty_) {
    hertz_.assign(1, 0.0);
    ohm_.assign(1, 0.0);
    empty_ = false;
  }
  RequireRoom(hertz_.size() - 1);
  hertz_.back() = row.first;
  ohm_.back() = row.second;
  hertz_.push_back(0.0);
  ohm_.push_back(0.0);
}

}  // namespace zefirondo
