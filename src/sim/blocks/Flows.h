#pragma once

#include <string>

#include "sim/Alarm.h"

namespace ostrel::sim {

struct Block;

inline constexpr int kFlows = 9;

struct FlowMeter {
  std::string name;
  std::string unit;
  int timeBase = 0;      ///< seconds; 0 while the meter is off
  float ratio = 1;       ///< units of a pulse
  float totalRatio = 1;  ///< weight of a pulse in the total
  AlarmRow alarms;

  bool operator==(const FlowMeter&) const = default;
};

/// The meters, and the sampling rate that they share.
extern const Block kFlowBlock;

}  // namespace ostrel::sim
