#pragma once

#include <string>

#include "sim/Alarm.h"

namespace ostrel::sim {

struct Block;

inline constexpr int kMaths = 4;

/// A channel that is computed from others.
struct MathChannel {
  std::string name;
  std::string unit;
  std::string equation;
  bool on = false;
  SingleAlarm alarms;

  bool operator==(const MathChannel&) const = default;
};

extern const Block kMathBlock;

}  // namespace ostrel::sim
