#include "sim/wire/Frame.h"

#include <algorithm>

namespace ostrel::sim {
namespace {

constexpr std::string_view kHexDigits = "0123456789ABCDEF";

int HexDigit(char c) {
  if (c >= 'a' && c <= 'f') c = static_cast<char>(c - 'a' + 'A');
  const std::size_t at = kHexDigits.find(c);
  return at == std::string_view::npos ? -1 : static_cast<int>(at);
}

/// The message of a whole frame without its carriage return, if it is good.
std::optional<std::string> Open(std::string_view frame) {
  if (frame.size() < 5 || frame[3] != ';') return std::nullopt;
  const int high = HexDigit(frame[1]);
  const int low = HexDigit(frame[2]);
  const std::string_view payload = frame.substr(4);
  if (high < 0 || low < 0 || high * 16 + low != Checksum(payload)) return std::nullopt;
  return std::string("#").append(payload);
}

}  // namespace

std::uint8_t Checksum(std::string_view payload) {
  unsigned sum = 0;
  for (const char c : payload) sum += static_cast<unsigned char>(c);
  return static_cast<std::uint8_t>(sum & 0xFF);
}

void AppendFrame(std::string& octets, std::string_view message) {
  const std::string_view payload = message.substr(std::min<std::size_t>(1, message.size()));
  const unsigned sum = Checksum(payload);
  octets += '#';
  octets += kHexDigits[sum >> 4];
  octets += kHexDigits[sum & 15];
  octets += ';';
  octets += payload;
  octets += '\r';
}

std::string ComposeFrame(std::string_view message) {
  std::string octets;
  AppendFrame(octets, message);
  return octets;
}

std::optional<std::string> FrameReader::Take(std::string_view& octets) {
  while (!octets.empty()) {
    if (frame_.empty()) {
      const std::size_t head = octets.find('#');
      octets.remove_prefix(std::min(head, octets.size()));
      if (octets.empty()) break;
    }
    const std::size_t end = octets.find('\r');
    frame_ += octets.substr(0, end);
    octets.remove_prefix(std::min(end, octets.size()));
    const bool ended = !octets.empty();
    if (frame_.size() > kLongest) frame_.clear();
    if (!ended) break;
    octets.remove_prefix(1);
    auto message = Open(frame_);
    frame_.clear();
    if (message) return message;
  }
  return std::nullopt;
}

}  // namespace ostrel::sim
