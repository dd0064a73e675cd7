#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace ostrel {

/// Timers that their page shows at a time.
inline constexpr int kTimersAtOnce = 4;

/// Four timers that their page shows at a time, as the tree calls them.
struct TimerGroup {
  std::int16_t first;
  std::string_view text;    ///< of the node
  std::string_view keyEnd;  ///< of its key, behind the kind of timer
};

inline constexpr std::array<TimerGroup, 4> kTimerGroups{{
    {0, "0-3", "0_3"},
    {4, "4-7", "4_7"},
    {8, "8-11", "8_11"},
    {12, "12-15", "12_15"},
}};

}  // namespace ostrel
