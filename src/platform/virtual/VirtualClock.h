#pragma once

#include "platform/Clock.h"
#include "platform/EventLoop.h"

namespace ostrel {

/// A wall clock that shows what it was set to; made with a loop, it moves with that loop's time.
class VirtualClock final : public Clock {
 public:
  explicit VirtualClock(const DateTime& start = {2011, 3, 14, 9, 26, 53}) : shown_(start) {}
  VirtualClock(const DateTime& start, const EventLoop& loop) : loop_(&loop) { SetNow(start); }

  void SetNow(const DateTime& now) {
    shown_ = now;
    setAt_ = loop_ ? loop_->Now() : TimePoint{};
  }

  DateTime LocalNow() const override {
    if (!loop_) return shown_;
    const auto since = std::chrono::floor<std::chrono::seconds>(loop_->Now() - setAt_);
    return FromSeconds(ToSeconds(shown_) + since.count());
  }

 private:
  const EventLoop* loop_ = nullptr;
  DateTime shown_;
  TimePoint setAt_{};
};

}  // namespace ostrel
