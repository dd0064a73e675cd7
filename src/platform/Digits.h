#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace ostrel {

/// A whole number of at least 0 in decimal, with leading zeros up to `digits`.
inline std::string Padded(std::int64_t number, std::size_t digits) {
  const std::string plain = std::to_string(number);
  return plain.size() < digits ? std::string(digits - plain.size(), '0') + plain : plain;
}

}  // namespace ostrel
