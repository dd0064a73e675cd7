#include "model/DeviceInfo.h"

#include <array>
#include <charconv>

namespace ostrel {

std::string VersionText(float hundredths) {
  std::array<char, 64> text{};
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), static_cast<double>(hundredths) / 100,
                    std::chars_format::fixed, 2);
  return {text.data(), end.ptr};
}

}  // namespace ostrel
