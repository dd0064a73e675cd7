#include "platform/DateTime.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace ostrel {

std::string DateTimeText(const DateTime& time) {
  constexpr std::string_view kBehind = "-- ::";
  const std::array parts{time.year, time.month, time.day, time.hour, time.minute, time.second};
  std::string text;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    const std::string digits = std::to_string(parts[i]);
    const std::size_t width = i == 0 ? 4 : 2;
    if (digits.size() < width) text.append(width - digits.size(), '0');
    text += digits;
    if (i < kBehind.size()) text += kBehind[i];
  }
  return text;
}

}  // namespace ostrel
