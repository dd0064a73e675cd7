#pragma once

#include <chrono>

#include "platform/DateTime.h"

namespace ostrel {

/// The computer's wall clock, injected because sessions compare it with a logger's.
class Clock {
 public:
  virtual ~Clock() = default;
  /// Present local time since 1 January 1970 at midnight, without time zones.
  virtual std::chrono::milliseconds LocalTime() const = 0;
  /// How far local time is ahead of universal time at present.
  virtual std::chrono::minutes UtcOffset() const = 0;
  /// Present local date and time.
  DateTime LocalNow() const {
    return FromSeconds(std::chrono::floor<std::chrono::seconds>(LocalTime()).count());
  }
};

}  // namespace ostrel
