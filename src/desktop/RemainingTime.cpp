#include "desktop/RemainingTime.h"

#include <algorithm>

namespace ostrel {
namespace {

constexpr Duration kSettling = std::chrono::seconds(1);  // before this no speed is known

}  // namespace

void RemainingTime::Start(TimePoint now, int steps) {
  start_ = lastStep_ = now;
  steps_ = std::max(steps, 1);
  done_ = 0;
}

void RemainingTime::Step(TimePoint now, int step) {
  if (step < done_) start_ = now;
  done_ = step;
  steps_ = std::max(steps_, step);
  lastStep_ = now;
}

std::optional<Duration> RemainingTime::Left(TimePoint now) const {
  const Duration worked = lastStep_ - start_;
  if (done_ <= 0 || worked < kSettling) return {};
  // The speed is that of the steps done; waiting for the next one is taken off what is left.
  const Duration left = worked * (steps_ - done_) / done_ - (now - lastStep_);
  return std::max(left, Duration::zero());
}

}  // namespace ostrel
