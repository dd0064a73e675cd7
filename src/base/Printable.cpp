#include "base/Printable.h"

#include <algorithm>

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

std::string Excerpt(std::string_view text) {
  constexpr std::size_t kMostCharacters = 30;
  const std::string_view start = FirstCharacters(text, kMostCharacters);
  return Printable(start) + (start.size() < text.size() ? "..." : "");
}

std::string_view UpToControl(std::string_view text) {
  const auto isControl = [](char c) {
    const auto octet = static_cast<unsigned char>(c);
    return octet < 0x20 || octet == 0x7F;
  };
  const auto end = std::find_if(text.begin(), text.end(), isControl);
  return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

}  // namespace ostrel
