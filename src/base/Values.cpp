#include "base/Values.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "platform/Digits.h"

namespace ostrel {
namespace {

constexpr std::int32_t kDaySeconds = 86'400;

std::string_view TrimBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

/// A number of one or two digits below `limit`.
std::optional<std::int32_t> TimePart(std::string_view text, std::int32_t limit) {
  if (text.empty() || text.size() > 2) return std::nullopt;
  std::int32_t value = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') return std::nullopt;
    value = value * 10 + (c - '0');
  }
  return value < limit ? std::optional(value) : std::nullopt;
}

}  // namespace

std::string BoolText(Bool16 value) { return value == kTrue ? "True" : "False"; }

Bool16 TextBool(std::string_view text) { return Bool16(text == "True"); }

std::optional<TimeOfDay> SecondsToTime(std::int32_t& seconds) {
  if (seconds == kDaySeconds) seconds = kDaySeconds - 1;
  if (seconds < 0 || seconds >= kDaySeconds) return std::nullopt;
  return TimeOfDay{seconds};
}

std::string TimeText(TimeOfDay time) {
  const std::int32_t seconds = std::clamp(time.seconds, 0, kDaySeconds - 1);
  return std::to_string(seconds / 3600) + ":" + Padded(seconds / 60 % 60, 2) + ":" +
         Padded(seconds % 60, 2);
}

std::optional<TimeOfDay> TextTime(std::string_view text) {
  constexpr std::array<std::int32_t, 3> kLimits = {24, 60, 60};
  std::string_view rest = TrimBlanks(text);
  const std::size_t blank = rest.rfind(' ');
  const bool hasDate = blank != std::string_view::npos && rest.substr(0, blank).find('/') < blank;
  if (hasDate) rest.remove_prefix(blank + 1);
  std::int32_t seconds = 0;
  std::size_t parts = 0;
  for (bool isLast = false; !isLast; ++parts) {
    if (parts == kLimits.size()) return std::nullopt;
    const std::size_t colon = rest.find(':');
    isLast = colon == std::string_view::npos;
    const auto part = TimePart(rest.substr(0, colon), kLimits[parts]);
    if (!part) return std::nullopt;
    seconds = seconds * 60 + *part;
    if (!isLast) rest.remove_prefix(colon + 1);
  }
  if (parts < 2) return std::nullopt;
  return TimeOfDay{parts == 2 ? seconds * 60 : seconds};
}

std::string WeekText(std::uint8_t week) {
  constexpr int kDays = 7;
  std::string text;
  for (int day = 0; day < kDays; ++day) text += (week >> day & 1) != 0 ? '1' : '0';
  return text;
}

std::string Dec2Bin(double mask) {
  constexpr std::size_t kBits = 32;
  std::string text(kBits, '0');
  for (std::size_t bit = kBits; bit-- > 0;) {
    const double worth = std::ldexp(1.0, static_cast<int>(bit));
    if (worth > mask) continue;
    text[bit] = '1';
    mask -= worth;
  }
  return text;
}

std::string_view FieldOf(std::string_view text, int field) {
  for (int at = 1; at < field; ++at) {
    const std::size_t comma = text.find(',');
    if (comma == std::string_view::npos) return {};
    text.remove_prefix(comma + 1);
  }
  return text.substr(0, text.find(','));
}

std::string CommaToPoint(std::string_view text) {
  std::string result(text);
  std::replace(result.begin(), result.end(), ',', '.');
  return result;
}

std::string WithDecimalPoint(std::string_view text) {
  const std::size_t comma = text.find(',');
  if (comma == std::string_view::npos || text.find('.') != std::string_view::npos ||
      text.find_first_of("0123456789", comma) != comma + 1)
    return std::string(text);
  std::string number(text);
  number[comma] = '.';
  return IsFloatText(number) ? number : std::string(text);
}

}  // namespace ostrel
