#include "link/WireText.h"

namespace ostrel {

std::string Padded(int number, std::size_t digits) {
  std::string text = std::to_string(number);
  if (text.size() < digits) text.insert(0, digits - text.size(), '0');
  return text;
}

std::string HexOctet(std::uint8_t octet) {
  constexpr std::string_view kHex = "0123456789ABCDEF";
  return {kHex[octet >> 4U], kHex[octet & 0xFU]};
}

std::string_view Characters(std::string_view line, std::size_t first, std::size_t count) {
  return first > line.size() ? std::string_view() : line.substr(first - 1, count);
}

std::string MaskCode(std::string_view text) {
  constexpr std::string_view kCommand = "#11";
  constexpr std::string_view kFramed = ";11";
  constexpr std::size_t kFrameHead = 3;  // "#" and two digits
  if (text.starts_with(kCommand)) return std::string(kCommand) + "****";
  const bool framed = text.starts_with('#') && text.substr(0, kFrameHead + 3).ends_with(kFramed);
  return framed ? std::string(text.substr(0, kFrameHead + kFramed.size())) + "****"
                : std::string(text);
}

}  // namespace ostrel
