// The chance that drives random events: the same on every machine for the same seed.
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace zefirondo {

class Dice {
 public:
  explicit Dice(std::uint64_t seed) : engine_(seed) {}

  /// A number from 0 to count - 1.
  std::size_t Below(std::size_t count) { return static_cast<std::size_t>(engine_() % count); }
  [[nodiscard]] bool Percent(std::size_t chance) { return Below(100) < chance; }
  /// A number from 0 to below 1.
  double Share() { return static_cast<double>(engine_() >> 11U) * 0x1p-53; }
  double Between(double low, double high) { return low + (high - low) * Share(); }

  template <class Items>
  auto& Of(Items& items) {
    return items[Below(std::size(items))];
  }

 private:
  std::mt19937_64 engine_;
};

}  // namespace zefirondo
