#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/EventLoop.h"

namespace ostrel {

/// The event loop on Qt's: a wait sleeps in Qt until a byte, a timer or a user event, and works
/// inside and outside `QCoreApplication::exec`. Needs an application object; for its thread only.
///
/// Exceptions of callbacks must not pass through Qt: they are caught where Qt calls, and thrown
/// again from the innermost wait under way; without one they go to the fault handler, or, as long
/// as there is none, are thrown from the next wait.
class QtEventLoop final : public EventLoop {
 public:
  using FaultHandler = std::function<void(std::exception_ptr)>;

  QtEventLoop();

  TimePoint Now() const override;
  TimerId After(Duration delay, std::string_view name, Callback callback) override;
  /// An interval below 1 ms counts as 1 ms. Ticks fall on multiples of their interval, so that an
  /// idle program wakes once for all that come as often: the first one may come early.
  TimerId Every(Duration interval, std::string_view name, Callback callback) override;
  void Cancel(TimerId timer) override;
  bool RunUntil(const Condition& condition, TimePoint deadline) override;
  void PumpEvents() override;

  /// Calls what Qt has woken; whatever calls program code from a slot does it through this.
  void Guard(const Callback& callback);
  /// Takes exceptions of callbacks that no wait is under way for.
  void SetFaultHandler(FaultHandler handler) { faultHandler_ = std::move(handler); }

 private:
  struct Timer {
    TimerId id;
    TimePoint due;
    Duration interval;  ///< zero for a single shot
    std::shared_ptr<const Callback> callback;
  };

  TimerId Add(Duration delay, Duration interval, Callback callback);
  std::vector<Timer>::iterator Earliest();
  void SetAlarm();
  void ServeOne();
  void Process(bool sleep);

  QElapsedTimer clock_;
  QTimer alarm_;               ///< single shot, for the earliest timer
  std::vector<Timer> timers_;  ///< in the order of setting or re-arming
  TimerId lastId_ = 0;
  int waits_ = 0;
  std::uint64_t served_ = 0;  ///< how often Qt has called program code
  std::exception_ptr fault_;
  FaultHandler faultHandler_;
};

}  // namespace ostrel
