#pragma once

#include <cstdint>

namespace ostrel {

// Codes of the interface of an input that all kinds of inputs share.
inline constexpr std::int16_t kInterfaceOff = 0;
/// Where there is nothing to choose but on or off.
inline constexpr std::int16_t kInterfaceOn = 6;

/// Codes of the electrical interface of an analog input that is on.
enum AnalogInterface : std::int16_t {
  kInterfaceCurrent = 1,
  kInterface5V = 2,
  kInterface10V = 3,
  kInterfacePressure = 7,
};

}  // namespace ostrel
