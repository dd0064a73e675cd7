#pragma once

#include <functional>
#include <string_view>

#include "link/Line.h"
#include "model/DeviceInfo.h"
#include "platform/DateTime.h"

namespace ostrel {

/// Asks a logger who it is. `changed` runs for each value of the record that arrives. A damaged
/// line ends it early, and the values behind that line stay as they were.
LinkFault ReadInformation(Line& line, DeviceInfo& info,
                          const std::function<void(std::string_view key)>& changed);

/// Brings a logger's clock into `clock`, which stays as it was on failure. A date or time beyond
/// its range counts on from the nearest real one, so an unset clock is a date long past.
LinkFault ReadClock(Line& line, DateTime& clock);

/// The message that sets a logger's clock.
std::string ClockMessage(const DateTime& now);

}  // namespace ostrel
