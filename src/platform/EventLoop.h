#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "platform/Time.h"

namespace ostrel {

using TimerId = std::uint64_t;

/// The one thread's event loop. It is nestable: a wait inside a callback serves timers and input
/// like the outermost loop does. It is injected so that tests run on virtual time.
class EventLoop {
 public:
  using Callback = std::function<void()>;
  using Condition = std::function<bool()>;

  virtual ~EventLoop() = default;

  /// Time since the start of the loop; never goes back.
  virtual TimePoint Now() const = 0;

  /// Calls `callback` once, `delay` from now. The name is for listings only.
  virtual TimerId After(Duration delay, std::string_view name, Callback callback) = 0;

  /// Calls `callback` each `interval`. A tick that falls due while the loop was held up is served
  /// once; missed ticks do not pile up. A tick may arrive inside a wait of an earlier tick.
  /// Timers of one interval tick at the same time, so that they cost one waking: a new one joins
  /// those that run, and its first tick may come early.
  virtual TimerId Every(Duration interval, std::string_view name, Callback callback) = 0;

  /// Stops a timer. An unknown or expired number is harmless.
  virtual void Cancel(TimerId timer) = 0;

  /// Serves events until `condition` holds (then true) or `deadline` is reached (then false).
  /// The condition is looked at first, and again after each event. Never polls.
  virtual bool RunUntil(const Condition& condition, TimePoint deadline) = 0;

  /// Serves what is due now and returns.
  virtual void PumpEvents() = 0;
};

}  // namespace ostrel
