#pragma once

#include "platform/DateTime.h"

namespace ostrel {

/// The computer's wall clock, injected because sessions compare it with a logger's.
class Clock {
 public:
  virtual ~Clock() = default;
  /// Present local date and time.
  virtual DateTime LocalNow() const = 0;
};

}  // namespace ostrel
