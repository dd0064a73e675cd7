#include "model/DeviceInfo.h"

#include <array>
#include <charconv>
#include <cmath>

namespace ostrel {

std::string VersionText(float hundredths) {
  std::array<char, 64> text{};
  const double whole = std::round(static_cast<double>(hundredths));  // halves away from zero
  const auto end = std::to_chars(text.data(), text.data() + text.size(), whole / 100,
                                 std::chars_format::fixed, 2);
  return {text.data(), end.ptr};
}

std::string FeaturesText(std::int32_t features) {
  std::array<char, 8> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(),
                                 static_cast<std::uint32_t>(features), 16);
  return "0x" + std::string(text.data(), end.ptr);
}

}  // namespace ostrel
