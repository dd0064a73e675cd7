#include "base/Printable.h"

#include "base/Utf8.h"

namespace ostrel {

std::string Printable(std::string_view text) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string shown;
  for (std::size_t position = 0; position < text.size();) {
    const std::size_t start = position;
    const char32_t character = NextCharacter(text, position);
    const bool isControl = character < 0x20 || (character >= 0x7F && character < 0xA0);
    if (character != kMalformed && !isControl) {
      shown += text.substr(start, position - start);
      continue;
    }
    const auto octet =
        character == kMalformed ? static_cast<unsigned char>(text[start]) : character;
    shown += "\\x";
    shown += digits[octet >> 4U & 15U];
    shown += digits[octet & 15U];
  }
  return shown;
}

}  // namespace ostrel
