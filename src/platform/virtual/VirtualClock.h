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

  std::chrono::milliseconds LocalTime() const override {
    const std::chrono::seconds shown(ToSeconds(shown_));
    if (!loop_) return shown;
    return shown + std::chrono::floor<std::chrono::milliseconds>(loop_->Now() - setAt_);
  }
  std::chrono::minutes UtcOffset() const override { return utcOffset; }

  std::chrono::minutes utcOffset{60};

 private:
  const EventLoop* loop_ = nullptr;
  DateTime shown_;
  TimePoint setAt_{};
};

}  // namespace ostrel
