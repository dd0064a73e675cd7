#pragma once

#include "sim/Alarm.h"

namespace ostrel::sim {

struct Block;

inline constexpr int kTimers = 16;  ///< of each kind

/// Fires every so many seconds. It is off while its period is 0 or its week empty.
struct CyclicTimer {
  float period = 0;  ///< seconds
  int start = 0;     ///< seconds since midnight
  int stop = 0;      ///< seconds since midnight; 86400 is the end of the day
  int week = 0;      ///< bit 0 is Monday
  int flag = 0;      ///< 0 always, else flag F(n-1)
  Actions actions{};

  bool operator==(const CyclicTimer&) const = default;
};

extern const Block kCyclicTimerBlock;

}  // namespace ostrel::sim
