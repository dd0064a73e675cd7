#include "sim/wire/Text1252.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace ostrel::sim {
namespace {

/// Characters of the octets 0x80 to 0x9F; all others have the number of their octet.
constexpr std::array<char16_t, 32> kHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void AppendUtf8(std::string& text, unsigned character) {
  if (character < 0x80) {
    text += static_cast<char>(character);
    return;
  }
  if (character < 0x800) {
    text += static_cast<char>(0xC0 | character >> 6);
  } else {
    text += static_cast<char>(0xE0 | character >> 12);
    text += static_cast<char>(0x80 | (character >> 6 & 0x3F));
  }
  text += static_cast<char>(0x80 | (character & 0x3F));
}

/// Takes one character of up to three octets; -1 when it is broken.
int TakeCharacter(std::string_view& text) {
  const auto lead = static_cast<unsigned char>(text.front());
  const std::size_t more = lead < 0x80 ? 0 : lead >= 0xC2 && lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
  if ((lead >= 0x80 && lead < 0xC2) || more > 2 || text.size() <= more) return -1;
  unsigned character = more == 0 ? lead : more == 1 ? lead & 0x1FU : lead & 0x0FU;
  for (std::size_t i = 1; i <= more; ++i) {
    const auto next = static_cast<unsigned char>(text[i]);
    if ((next & 0xC0) != 0x80) return -1;
    character = character << 6 | (next & 0x3FU);
  }
  if (more == 2 && character < 0x800) return -1;
  text.remove_prefix(more + 1);
  return static_cast<int>(character);
}

}  // namespace

std::string ToUtf8(std::string_view octets) {
  std::string text;
  text.reserve(octets.size());
  for (const char c : octets) {
    const auto octet = static_cast<unsigned char>(c);
    AppendUtf8(text, octet >= 0x80 && octet < 0xA0 ? kHigh[octet - 0x80U] : octet);
  }
  return text;
}

std::optional<std::string> FromUtf8(std::string_view text) {
  std::string octets;
  octets.reserve(text.size());
  while (!text.empty()) {
    const int character = TakeCharacter(text);
    if (character < 0) return std::nullopt;
    const auto* high = std::ranges::find(kHigh, static_cast<char16_t>(character));
    if (high != kHigh.end())
      octets += static_cast<char>(0x80 + (high - kHigh.begin()));
    else if (character < 0x80 || (character >= 0xA0 && character < 0x100))
      octets += static_cast<char>(character);
    else
      return std::nullopt;
  }
  return octets;
}

}  // namespace ostrel::sim
