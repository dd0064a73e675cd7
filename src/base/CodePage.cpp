#include "base/CodePage.h"

#include <algorithm>
#include <array>

#include "base/Utf8.h"

namespace ostrel {
namespace {

/// The characters of the octets 0x80 to 0x9F; all other octets equal their character.
constexpr std::array<char16_t, 32> kMiddle = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  //
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char OctetOf(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
    return static_cast<char>(character);
  const auto* const found = std::find(kMiddle.begin(), kMiddle.end(), character);
  return found == kMiddle.end() ? '?' : static_cast<char>(0x80 + (found - kMiddle.begin()));
}

/// The head of a text that is the same in the code page and in UTF-8.
std::string_view AsciiHead(std::string_view text) {
  const auto isBeyond = [](char octet) { return static_cast<std::uint8_t>(octet) >= 0x80; };
  return {text.begin(), std::find_if(text.begin(), text.end(), isBeyond)};
}

constexpr std::uint8_t FoldedOctet(unsigned octet) {
  const bool isAscii = octet >= 'A' && octet <= 'Z';
  const bool isLatin = octet >= 0xC0 && octet <= 0xDE && octet != 0xD7;
  if (isAscii || isLatin) return static_cast<std::uint8_t>(octet + 0x20);
  if (octet == 0x8A || octet == 0x8C || octet == 0x8E)
    return static_cast<std::uint8_t>(octet + 0x10);
  return static_cast<std::uint8_t>(octet == 0x9F ? 0xFF : octet);
}

constexpr std::array<char, 256> kFolded = [] {
  std::array<char, 256> table{};
  for (unsigned octet = 0; octet < table.size(); ++octet)
    table[octet] = static_cast<char>(FoldedOctet(octet));
  return table;
}();

char32_t FoldedCharacter(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
    return FoldedOctet(static_cast<unsigned>(character));
  switch (character) {
    case 0x0160:
    case 0x0152:
    case 0x017D:
      return character + 1;
    case 0x0178:
      return 0xFF;
    default:
      return character;
  }
}

}  // namespace

std::string ToCodePage(std::string_view utf8) {
  std::string octets(AsciiHead(utf8));
  for (std::size_t position = octets.size(); position < utf8.size();)
    octets += OctetOf(NextCharacter(utf8, position));
  return octets;
}

std::string FromCodePage(std::string_view octets) {
  std::string utf8(AsciiHead(octets));
  for (const char octet : octets.substr(utf8.size())) {
    const auto value = static_cast<std::uint8_t>(octet);
    if (value < 0x80)
      utf8 += octet;
    else
      AppendCharacter(value < 0xA0 ? kMiddle[value - 0x80U] : value, utf8);
  }
  return utf8;
}

void FoldOctets(std::span<char> octets) {
  for (char& octet : octets) octet = kFolded[static_cast<std::uint8_t>(octet)];
}

std::string FoldText(std::string_view utf8) {
  std::string folded;
  folded.reserve(utf8.size());
  for (std::size_t position = 0; position < utf8.size();) {
    // Nearly all names are plain.
    if (const auto octet = static_cast<unsigned char>(utf8[position]); octet < 0x80) {
      folded += static_cast<char>(FoldedOctet(octet));
      ++position;
      continue;
    }
    const char32_t character = NextCharacter(utf8, position);
    if (character == kMalformed)
      folded += '\xFF';
    else
      AppendCharacter(FoldedCharacter(character), folded);
  }
  return folded;
}

}  // namespace ostrel
