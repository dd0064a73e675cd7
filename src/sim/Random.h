#pragma once

#include <cstdint>
#include <span>

namespace ostrel::sim {

/// A stream of random numbers that is the same for the same seed on every machine.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  std::uint64_t Next() {
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
    return mixed ^ (mixed >> 31);
  }
  /// A whole number from `first` to `last`, both possible.
  int Between(int first, int last) {
    const auto span = static_cast<std::uint64_t>(std::int64_t{last} - first) + 1;
    return static_cast<int>(first + static_cast<std::int64_t>(Next() % span));
  }
  /// True in that share of cases.
  bool Chance(double share) { return static_cast<double>(Next() >> 11) * 0x1p-53 < share; }
  /// One of several things; there must be one.
  template <class Choices>
  const auto& Pick(const Choices& choices) {
    return choices[static_cast<std::size_t>(Next() % std::size(choices))];
  }

 private:
  std::uint64_t state_;
};

}  // namespace ostrel::sim
