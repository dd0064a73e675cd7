#include "platform/DateTime.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <string_view>

#include "platform/Digits.h"

namespace ostrel {

std::string DateTimeText(const DateTime& time) {
  constexpr std::string_view kBehind = "-- ::";
  const std::array parts{time.year, time.month, time.day, time.hour, time.minute, time.second};
  std::string text;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    text += Padded(parts[i], i == 0 ? 4 : 2);
    if (i < kBehind.size()) text += kBehind[i];
  }
  return text;
}

std::string StampText(std::chrono::milliseconds time) {
  const auto whole = std::chrono::floor<std::chrono::seconds>(time);
  return DateTimeText(FromSeconds(whole.count())) + "." + Padded((time - whole).count(), 3);
}

std::string UtcOffsetText(std::chrono::minutes offset) {
  const std::int64_t minutes = std::abs(offset.count());
  return (offset.count() < 0 ? "-" : "+") + Padded(minutes / 60, 2) + ":" + Padded(minutes % 60, 2);
}

std::optional<DateTime> ReadDateTime(std::string_view text) {
  constexpr std::string_view kShape = "dddd-dd-dd dd:dd:dd";
  constexpr std::array<std::size_t, 3> kLengths{10, 16, 19};  // a date, with minutes, with seconds
  if (std::ranges::find(kLengths, text.size()) == kLengths.end()) return {};
  std::array<int, 6> parts{};
  std::size_t part = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (kShape[i] != 'd') {
      if (text[i] != kShape[i] && !(kShape[i] == ' ' && text[i] == 'T')) return {};
      ++part;
    } else {
      if (text[i] < '0' || text[i] > '9') return {};
      parts[part] = parts[part] * 10 + (text[i] - '0');
    }
  }
  const DateTime read{parts[0], parts[1], parts[2], parts[3], parts[4], parts[5]};
  if (!IsValid(read)) return {};
  return read;
}

}  // namespace ostrel
