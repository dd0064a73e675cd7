#pragma once

#include <string>

#include "sim/Alarm.h"

namespace ostrel::sim {

struct Block;

inline constexpr int kDigitals = 9;

struct DigitalInput {
  std::string name;
  bool normallyClosed = false;
  AlarmRow alarms;

  bool operator==(const DigitalInput&) const = default;
};

extern const Block kDigitalBlock;

}  // namespace ostrel::sim
