#pragma once

#include <optional>
#include <string>

#include "platform/Time.h"

namespace ostrel {

/// Tells how long a transfer will still take, from the speed that it has had.
class RemainingTime {
 public:
  /// A transfer of about `steps` steps begins.
  void Start(TimePoint now, int steps);
  /// So many steps are done. A number that goes back is a new attempt, timed anew.
  void Step(TimePoint now, int done);
  /// What is left, or nothing as long as no speed is known.
  std::optional<Duration> Left(TimePoint now) const;
  int Steps() const { return steps_; }
  int Done() const { return done_; }
  /// Whether more steps have come than were expected: how many there will be is not known then.
  bool IsOverrun() const { return done_ > expected_; }

 private:
  TimePoint start_{};
  TimePoint lastStep_{};
  int expected_ = 1;
  int steps_ = 1;  ///< those expected, or done where these are more
  int done_ = 0;
};

/// A length of time as "1:05" or "2:00:00", part seconds counted as whole ones.
std::string DurationText(Duration duration);

}  // namespace ostrel
