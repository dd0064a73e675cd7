#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "base/BoundFailure.h"

namespace ostrel {

/// An array of `N` values that is reached by checked access alone. A fresh one holds `T{}`.
template <class T, std::size_t N>
class Bounded {
 public:
  /// The element at `index`, counted from 0. Raises `BoundFailure` for a negative index too.
  constexpr T& operator[](std::integral auto index) { return items_[Checked(index)]; }
  constexpr const T& operator[](std::integral auto index) const { return items_[Checked(index)]; }

  constexpr auto begin() { return items_.begin(); }
  constexpr auto end() { return items_.end(); }
  constexpr auto begin() const { return items_.begin(); }
  constexpr auto end() const { return items_.end(); }
  static constexpr std::size_t size() { return N; }

  bool operator==(const Bounded&) const = default;

 private:
  static constexpr std::size_t Checked(std::integral auto index) {
    if (std::cmp_less(index, 0) || std::cmp_greater_equal(index, N))
      throw BoundFailure(static_cast<std::int64_t>(index), N);
    return static_cast<std::size_t>(index);
  }

  std::array<T, N> items_{};
};

}  // namespace ostrel
