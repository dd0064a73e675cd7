#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace ostrel {

/// An index outside its array. Raised by every checked access; what it ends is told where it is
/// caught.
class BoundFailure : public std::out_of_range {
 public:
  BoundFailure(std::int64_t index, std::size_t size)
      : std::out_of_range("index " + std::to_string(index) + " outside an array of " +
                          std::to_string(size)),
        index_(index),
        size_(size) {}

  std::int64_t Index() const { return index_; }
  std::size_t Size() const { return size_; }

 private:
  std::int64_t index_;
  std::size_t size_;
};

}  // namespace ostrel
