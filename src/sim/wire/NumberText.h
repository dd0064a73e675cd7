#pragma once

#include <charconv>
#include <concepts>
#include <string>

#include "platform/Digits.h"

namespace ostrel::sim {

/// Appends a whole number in plain digits.
template <std::integral T>
void AppendNumber(std::string& text, T value) {
  char digits[24];
  text.append(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
}

/// Appends the shortest decimal text that reads back as the same float, without an exponent.
inline void AppendNumber(std::string& text, float value) {
  char digits[160];
  const float zeroUnsigned = value == 0 ? 0.0F : value;
  text.append(
      digits,
      std::to_chars(digits, digits + sizeof digits, zeroUnsigned, std::chars_format::fixed).ptr);
}

/// Appends a number in exactly that many digits, zeros in front.
inline void AppendPadded(std::string& text, int value, std::size_t digits) {
  text += Padded(value, digits);
}

}  // namespace ostrel::sim
