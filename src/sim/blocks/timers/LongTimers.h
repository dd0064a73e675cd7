#pragma once

#include "sim/Alarm.h"

namespace ostrel::sim {

struct Block;

/// Fires every so many days. It is off while its period is 0.
struct LongTimer {
  int seconds = 0;  ///< period
  Actions actions{};

  bool operator==(const LongTimer&) const = default;
};

extern const Block kLongTimerBlock;

}  // namespace ostrel::sim
