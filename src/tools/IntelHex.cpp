#include "tools/IntelHex.h"

#include <charconv>
#include <optional>
#include <string>

namespace ostrel {
namespace {

/// Two digits a number, behind the colon: count of data, address in two, type, data, checksum.
constexpr std::size_t kAroundData = 5;
constexpr unsigned char kEndOfFile = 1;

/// The numbers of a record; nothing when the line is none.
std::optional<std::string> NumbersOfRecord(std::string_view line) {
  if (!line.starts_with(':') || line.size() % 2 == 0) return {};
  std::string numbers;
  for (std::size_t at = 1; at < line.size(); at += 2) {
    unsigned char number = 0;
    const auto [end, error] = std::from_chars(line.data() + at, line.data() + at + 2, number, 16);
    if (error != std::errc() || end != line.data() + at + 2) return {};
    numbers += static_cast<char>(number);
  }
  const bool isWhole = numbers.size() == static_cast<unsigned char>(numbers[0]) + kAroundData;
  return isWhole ? std::optional(numbers) : std::nullopt;
}

bool HasRightSum(std::string_view numbers) {
  unsigned sum = 0;
  for (const char number : numbers) sum += static_cast<unsigned char>(number);
  return sum % 256 == 0;
}

}  // namespace

HexFault FirstHexFault(std::string_view octets) {
  for (int number = 1; !octets.empty(); ++number) {
    const std::size_t end = octets.find('\n');
    std::string_view line = octets.substr(0, end);
    octets.remove_prefix(end == std::string_view::npos ? octets.size() : end + 1);
    line = line.substr(0, line.find_last_not_of("\r \t") + 1);
    if (line.empty()) continue;
    const auto numbers = NumbersOfRecord(line);
    if (!numbers) return {HexFault::Kind::NoRecord, number};
    if (!HasRightSum(*numbers)) return {HexFault::Kind::BadChecksum, number};
    constexpr std::size_t kType = 3;
    if (static_cast<unsigned char>((*numbers)[kType]) == kEndOfFile) return {};
  }
  return {HexFault::Kind::NoEnd};
}

}  // namespace ostrel
