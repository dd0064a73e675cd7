#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "sim/Alarm.h"
#include "sim/Model.h"
#include "sim/Random.h"
#include "sim/wire/Scale.h"

namespace ostrel::sim {

/// Makes the parts of a random configuration. `density` from 0 to 1 is the share of things that are
/// wanted.
class RandomParts {
 public:
  RandomParts(const Identity& self, std::uint64_t seed, double density)
      : self_(self), random_(seed), density_(density) {}

  const Identity& Self() const { return self_; }

  bool Wanted() { return random_.Chance(density_); }
  bool Chance(double share) { return random_.Chance(share); }
  int Between(int first, int last) { return random_.Between(first, last); }
  template <class Choices>
  const auto& Pick(const Choices& choices) {
    return random_.Pick(choices);
  }

  std::string Text(std::size_t longest);
  std::string Unit();
  std::string PhoneNumber();
  /// Between two whole numbers, with up to six digits, so that its decimal text is exact.
  float Value(int first, int last);
  Scale TwoPoints();
  Actions ActionList();
  /// `start`, `stop` and `week` of something that is on: always, or some hours of some days.
  template <class AnyRange>
  void Range(AnyRange& range) {
    range.stop = kWholeDay;
    range.week = kEveryDay;
    if (Chance(0.5)) return;
    range.start = Between(0, kWholeDay - 1);
    range.stop = Between(0, kWholeDay - 1);
    range.week = Between(1, kEveryDay);
  }

  /// An alarm without thresholds and without actions on a return to normal.
  Alarm PlainAlarm();
  /// Sets up some of the alarms of a row.
  void ContactAlarms(std::span<Alarm> row);
  void LevelAlarms(std::span<Alarm> row);

 private:
  Identity self_;
  Random random_;
  double density_;
};

}  // namespace ostrel::sim
