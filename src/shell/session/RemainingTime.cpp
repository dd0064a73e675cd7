#include "shell/session/RemainingTime.h"

#include <algorithm>

#include "platform/Digits.h"

namespace ostrel {
namespace {

constexpr Duration kSettling = std::chrono::seconds(1);  // before this no speed is known

}  // namespace

void RemainingTime::Start(TimePoint now, int steps) {
  start_ = lastStep_ = now;
  steps_ = expected_ = std::max(steps, 1);
  done_ = 0;
}

void RemainingTime::Step(TimePoint now, int done) {
  if (done <= 1 || done < done_) start_ = now;
  done_ = done;
  steps_ = std::max(steps_, done);
  lastStep_ = now;
}

std::optional<Duration> RemainingTime::Left(TimePoint now) const {
  const Duration worked = lastStep_ - start_;
  if (done_ <= 0 || worked < kSettling || IsOverrun()) return {};
  // The speed is that of the steps done; waiting for the next one is taken off what is left.
  const Duration left = worked * (steps_ - done_) / done_ - (now - lastStep_);
  return std::max(left, Duration::zero());
}

std::string DurationText(Duration duration) {
  const auto seconds = std::chrono::ceil<std::chrono::seconds>(duration).count();
  const bool hasHours = seconds >= 3600;
  const std::string minutes =
      hasHours ? std::to_string(seconds / 3600) + ":" + Padded(seconds / 60 % 60, 2)
               : std::to_string(seconds / 60);
  return minutes + ":" + Padded(seconds % 60, 2);
}

}  // namespace ostrel
