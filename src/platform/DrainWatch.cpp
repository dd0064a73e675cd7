#include "platform/DrainWatch.h"

#include <algorithm>

namespace ostrel {
namespace {

/// Drivers count in steps of some milliseconds.
constexpr Duration kShortestPause = std::chrono::milliseconds(20);
constexpr Duration kLongestPause = std::chrono::seconds(1);

}  // namespace

void DrainWatch::Start() {
  Stop();
  pause_ = Duration::zero();
  seen_ = 0;
  Look();
}

void DrainWatch::Stop() { loop_.Cancel(std::exchange(timer_, 0)); }

void DrainWatch::Look() {
  timer_ = 0;
  const std::size_t queued = queued_();
  if (queued == 0) return;
  if (queued < seen_) pause_ = Duration::zero();
  pause_ = std::clamp(2 * pause_, kShortestPause, kLongestPause);
  seen_ = queued;
  timer_ = loop_.After(std::max(LineTime(queued), pause_), "output queue", [this] { Look(); });
}

}  // namespace ostrel
