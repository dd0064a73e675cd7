#pragma once

#include <cstdint>
#include <variant>
#include <vector>

#include "blocks/Receiver.h"
#include "model/DeviceConf.h"
#include "platform/DateTime.h"

namespace ostrel {

/// How far a schedule looks ahead, and how many firings it tells of each timer and macro.
inline constexpr int kScheduleDays = 7;
inline constexpr std::size_t kFiringsTold = 10;

/// A copy of an enabled timer's record, by its kind.
using TimerRecord = std::variant<ConfCTimer, ConfLTimer, ConfWTimer, ConfMTimer>;

/// An enabled timer, and when it fires.
struct ScheduledTimer {
  const SectionMeta* section;  ///< its kind
  int number;
  TimerRecord record;
  std::vector<DateTime> firings{};  ///< the next ones, in order

  /// The condition flag: 0 for none, n for F(n-1).
  std::int16_t Flag() const;
  /// The numbers of its actions in the order of running.
  std::vector<std::int16_t> Actions() const;
};

/// A macro that timers start, and when.
struct ScheduledMacro {
  struct Start {
    DateTime time;
    const SectionMeta* section;  ///< kind and number of the timer
    int timer;
  };
  int number;  ///< action `number` + 1 starts it
  std::vector<Start> starts{};
};

/// What happens when, as far as a configuration tells.
///
/// A weekly or monthly timer fires by the logger's clock. A cyclic or long one counts from a moment
/// that the logger alone knows; it is told as if it had begun to count at the start of the
/// schedule, and a cyclic one keeps on counting outside its range. A range whose end is before its
/// beginning goes over midnight, and each of its moments belongs to its own day. A timer with a
/// condition flag is told as if the flag were true.
struct Schedule {
  DateTime from;
  std::vector<ScheduledTimer> timers;  ///< the enabled ones, by kind and number
  std::vector<ScheduledMacro> macros;  ///< those that timers start, by number
};

/// The schedule of a configuration from a moment on. Timers that the firmware does not have are
/// left out.
Schedule MakeSchedule(const DeviceConf& conf, const Receiver& receiver, const DateTime& from);

}  // namespace ostrel
