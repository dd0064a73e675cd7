#include "tools/RichText.h"

#include "base/CodePage.h"

namespace ostrel {
namespace {

constexpr std::string_view kHead =
    "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fmodern Courier New;}}\r\n\\f0\\fs20 ";
constexpr std::string_view kHex = "0123456789abcdef";

}  // namespace

std::string RichTextOf(std::string_view text) {
  const std::string octets = ToCodePage(text);
  std::string rich(kHead);
  rich.reserve(octets.size() + octets.size() / 8);
  char before = '\0';
  for (const char octet : octets) {
    const auto code = static_cast<unsigned char>(octet);
    if (octet == '\\' || octet == '{' || octet == '}') {
      rich.append(1, '\\').append(1, octet);
    } else if (octet == '\r' || octet == '\n') {
      if (octet == '\r' || before != '\r') rich += "\\par\r\n";
    } else if (octet == '\t') {
      rich += "\\tab ";
    } else if (code < 0x20 || code >= 0x7F) {
      rich.append("\\'").append(1, kHex[code >> 4U]).append(1, kHex[code & 15U]);
    } else {
      rich += octet;
    }
    before = octet;
  }
  return rich + "}\r\n";
}

}  // namespace ostrel
