#include "base/Utf8.h"

#include <cstdint>

namespace ostrel {
namespace {

/// The well-formed sequences by their first octet.
struct Lead {
  std::uint8_t first, last;  ///< range of the first octet
  std::size_t length;        ///< octets in all
  char32_t lowest;           ///< a smaller character is too short for this length
};

constexpr Lead kLeads[] = {{0xC2, 0xDF, 2, 0x80}, {0xE0, 0xEF, 3, 0x800}, {0xF0, 0xF4, 4, 0x10000}};

bool IsCharacter(char32_t c) { return c <= 0x10FFFF && (c < 0xD800 || c > 0xDFFF); }

std::uint8_t OctetAt(std::string_view text, std::size_t position) {
  return static_cast<std::uint8_t>(text[position]);
}

/// The character of a sequence of more than one octet; `kMalformed` when it is not well-formed.
char32_t Sequence(std::string_view text, std::size_t position, const Lead& lead) {
  if (text.size() - position < lead.length) return kMalformed;
  char32_t character = OctetAt(text, position) & (0x7FU >> lead.length);
  for (std::size_t i = 1; i < lead.length; ++i) {
    const std::uint8_t octet = OctetAt(text, position + i);
    if ((octet & 0xC0U) != 0x80U) return kMalformed;
    character = character << 6U | (octet & 0x3FU);
  }
  return character >= lead.lowest && IsCharacter(character) ? character : kMalformed;
}

}  // namespace

char32_t NextCharacter(std::string_view text, std::size_t& position) {
  const std::uint8_t first = OctetAt(text, position);
  if (first < 0x80) {
    ++position;
    return first;
  }
  for (const Lead& lead : kLeads) {
    if (first < lead.first || first > lead.last) continue;
    const char32_t character = Sequence(text, position, lead);
    position += character == kMalformed ? 1 : lead.length;
    return character;
  }
  ++position;
  return kMalformed;
}

void AppendCharacter(char32_t character, std::string& text) {
  const auto append = [&](char32_t octet) { text += static_cast<char>(octet); };
  const auto appendRest = [&](unsigned shift) { append(0x80U | (character >> shift & 0x3FU)); };
  if (character < 0x80) {
    append(character);
  } else if (character < 0x800) {
    append(0xC0U | character >> 6U);
    appendRest(0);
  } else if (character < 0x10000) {
    append(0xE0U | character >> 12U);
    appendRest(6);
    appendRest(0);
  } else {
    append(0xF0U | character >> 18U);
    appendRest(12);
    appendRest(6);
    appendRest(0);
  }
}

std::size_t CharacterCount(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t position = 0; position < text.size(); ++count) NextCharacter(text, position);
  return count;
}

std::string_view FirstCharacters(std::string_view text, std::size_t count) {
  std::size_t position = 0;
  for (; count > 0 && position < text.size(); --count) NextCharacter(text, position);
  return text.substr(0, position);
}

}  // namespace ostrel
