#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

/// What each parser's file defines: takes one input. Whatever it is, the parser must neither crash
/// nor give something that it does not read again as the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace ostrel::fuzz {

inline std::string_view TextOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// Ends the program where something does not hold.
inline void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

/// Takes a line off a text, without its end.
inline std::string_view TakeLine(std::string_view& text) {
  const std::string_view line = text.substr(0, text.find('\n'));
  text.remove_prefix(line.size() < text.size() ? line.size() + 1 : text.size());
  return line;
}

/// Whether an input is one of those, about one of so many, that also go where it takes long.
inline bool IsChosen(std::string_view text, unsigned oneOf) {
  unsigned sum = 0;
  for (const char c : text) sum = sum * 31 + static_cast<unsigned char>(c);
  return sum % oneOf == 0;
}

}  // namespace ostrel::fuzz
