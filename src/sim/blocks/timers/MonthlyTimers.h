#pragma once

#include <cstdint>

#include "sim/Alarm.h"

namespace ostrel::sim {

struct Block;

/// Fires at a time of day on some days of the month. It is off while it has no days.
struct MonthlyTimer {
  int time = 0;            ///< seconds since midnight
  std::uint32_t days = 0;  ///< bit 0 is the first; bit 31 is the last of the month, whichever
  Actions actions{};

  bool operator==(const MonthlyTimer&) const = default;
};

extern const Block kMonthlyTimerBlock;

}  // namespace ostrel::sim
