#pragma once

#include <cstdint>

namespace ostrel {

// Codes of the interface of an input that all kinds of inputs share.
inline constexpr std::int16_t kInterfaceOff = 0;
/// Where there is nothing to choose but on or off.
inline constexpr std::int16_t kInterfaceOn = 6;

}  // namespace ostrel
