#pragma once

#include <array>
#include <string>

namespace ostrel::sim {

inline constexpr int kFlags = 16;
inline constexpr int kAlarms = 4;  ///< alarm configurations of most channels
inline constexpr int kActions = 8;
inline constexpr int kWholeDay = 86'400;
inline constexpr int kEveryDay = 127;

/// Bits of `Alarm::notify`. A voice call brings its SMS along, so it needs no SMS bit.
enum Notify : int {
  kNotifySms = 1,
  kNotifyVoice = 2,
  kNotifyRestored = 4,
  kNotifyAgain = 8,
  kNotifyGprs = 16
};

/// Action numbers in the order of running; 0 is an empty place.
using Actions = std::array<int, kActions>;

/// One alarm of any kind of channel; a kind leaves what it lacks at its default. It is off while
/// its week is empty.
struct Alarm {
  std::string text;
  float minimum = 0;
  float maximum = 0;
  float hysteresis = 0;
  float persistence = 0;  ///< on a contact that of closing
  float rearm = 0;        ///< on a contact the persistence of opening
  int start = 0;          ///< seconds since midnight
  int stop = 0;           ///< seconds since midnight; 86400 is the end of the day
  int week = 0;           ///< bit 0 is Monday
  int notify = 0;         ///< sum of `Notify` bits
  int flag = 0;           ///< 0 always, else flag F(n-1)
  Actions high{};         ///< on a contact those of closing
  Actions low{};          ///< on a contact those of opening
  Actions normal{};

  bool operator==(const Alarm&) const = default;
};

using AlarmRow = std::array<Alarm, kAlarms>;
/// The row of a kind of channel that has one alarm.
using SingleAlarm = std::array<Alarm, 1>;

}  // namespace ostrel::sim
