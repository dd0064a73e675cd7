#pragma once

#include "sim/Alarm.h"

namespace ostrel::sim {

struct Block;

/// Fires at a time of day on some days of the week. It is off while its week is empty.
struct WeeklyTimer {
  int time = 0;  ///< seconds since midnight
  int week = 0;  ///< bit 0 is Monday
  Actions actions{};

  bool operator==(const WeeklyTimer&) const = default;
};

extern const Block kWeeklyTimerBlock;

}  // namespace ostrel::sim
