#include "platform/LineQueue.h"

#include <algorithm>
#include <utility>

namespace ostrel {
namespace {

constexpr std::size_t kWakeOctets = 16;
constexpr std::size_t kBurstOctets = 4096;

/// How many octets a line time is enough for: the reverse of `LineTime`.
std::size_t OctetsIn(Duration span) {
  return static_cast<std::size_t>(((span.count() + 1) * kLineOctetsPerSecond - 1) / 1'000'000);
}

}  // namespace

LineQueue::LineQueue(EventLoop& loop, std::string_view name, std::function<void()> onArrival)
    : loop_(loop), name_(name), onArrival_(std::move(onArrival)) {}

LineQueue::~LineQueue() { loop_.Cancel(wake_); }

void LineQueue::SetPaced(bool paced) {
  if (paced == paced_) return;
  Settle();
  paced_ = paced;
  Restart();
}

void LineQueue::Put(std::string_view octets) {
  Settle();
  const bool idle = Held() == ready_;
  octets_.append(octets);
  if (idle) {
    Restart();
  } else if (wake_ == 0) {
    Schedule();
  }
}

std::size_t LineQueue::Coming() const {
  if (!paced_ || hold_) return 0;
  return std::min(OctetsIn(loop_.Now() - start_) - settled_, Held() - ready_);
}

std::size_t LineQueue::Arrived() const { return ready_ + Coming(); }

void LineQueue::Settle() {
  const std::size_t coming = Coming();
  ready_ += coming;
  settled_ += coming;
}

void LineQueue::Restart() {
  start_ = loop_.Now();
  settled_ = 0;
  Schedule();
}

void LineQueue::Schedule() {
  loop_.Cancel(wake_);
  wake_ = 0;
  if (hold_ || Held() == ready_) return;
  Duration delay{};
  if (paced_) {
    const std::string_view next =
        std::string_view(octets_).substr(first_ + ready_).substr(0, kWakeOctets);
    const std::size_t count = std::min(next.find('\r'), next.size() - 1) + 1;
    delay = start_ + LineTime(settled_ + count) - loop_.Now();
  }
  WakeIn(delay);
}

void LineQueue::WakeIn(Duration delay) {
  wake_ = loop_.After(delay, name_, [this] { Wake(); });
}

void LineQueue::Wake() {
  wake_ = 0;
  if (paced_) {
    Settle();
  } else {
    ready_ = std::min(Held(), ready_ + kBurstOctets);
  }
  // Scheduled before the call, so that the line moves on in waits within it.
  Schedule();
  onArrival_();
}

std::string LineQueue::Take(std::size_t most) {
  Settle();
  const std::size_t count = std::min(most, ready_);
  std::string taken = octets_.substr(first_, count);
  first_ += count;
  ready_ -= count;
  if (first_ == octets_.size()) {
    octets_.clear();
    first_ = 0;
  } else if (first_ > octets_.size() / 2) {
    octets_.erase(0, first_);
    first_ = 0;
  }
  return taken;
}

void LineQueue::Hold(bool hold) {
  if (hold == hold_) return;
  Settle();
  hold_ = hold;
  Restart();
  if (hold && ready_ > 0) WakeIn(Duration::zero());
}

void LineQueue::Discard() {
  Settle();
  octets_.resize(first_ + ready_);
  Schedule();
  if (ready_ > 0) WakeIn(Duration::zero());
}

void LineQueue::Flush() {
  ready_ = Held();
  Schedule();
}

void LineQueue::Clear() {
  octets_.clear();
  first_ = 0;
  ready_ = 0;
  Schedule();
}

}  // namespace ostrel
