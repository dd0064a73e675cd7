#pragma once

#include <algorithm>
#include <chrono>

#include "platform/EventLoop.h"

namespace ostrel {

/// The one countdown of a link. Each wait starts it anew.
class Countdown {
 public:
  explicit Countdown(const EventLoop& loop) : loop_(loop) {}

  /// Starts over with `ms`; 0 and less end at once.
  void Start(int ms) { deadline_ = loop_.Now() + std::chrono::milliseconds(std::max(ms, 0)); }
  bool Running() const { return loop_.Now() < deadline_; }
  TimePoint Deadline() const { return deadline_; }

 private:
  const EventLoop& loop_;
  TimePoint deadline_{};
};

}  // namespace ostrel
