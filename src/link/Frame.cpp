#include "link/Frame.h"

#include <charconv>

#include "link/WireText.h"

namespace ostrel {
namespace {

constexpr std::size_t kDigitsAt = 1;
constexpr std::size_t kDigits = 2;
constexpr std::size_t kPayloadAt = 4;

}  // namespace

std::uint8_t PayloadSum(std::string_view payload) {
  unsigned sum = 0;
  for (const char c : payload) sum += static_cast<unsigned char>(c);
  return static_cast<std::uint8_t>(sum);
}

std::string FrameOf(std::string_view message) {
  if (!message.empty()) message.remove_prefix(1);
  return "#" + HexOctet(PayloadSum(message)) + ";" + std::string(message);
}

bool ChecksumOk(std::string_view frame) {
  if (frame.size() <= kPayloadAt) return false;
  const char* const digits = frame.data() + kDigitsAt;
  unsigned sum = 0;
  const auto read = std::from_chars(digits, digits + kDigits, sum, 16);
  return read.ec == std::errc() && read.ptr == digits + kDigits &&
         sum == PayloadSum(frame.substr(kPayloadAt));
}

std::string MessageOf(std::string_view frame) {
  return "#" + std::string(frame.substr(kPayloadAt));
}

}  // namespace ostrel
