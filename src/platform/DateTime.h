#pragma once

#include <chrono>
#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ostrel {

/// A local date and time of day to the second. The default is the zero date of the calendar that
/// the model uses, 30 December 1899 at midnight.
struct DateTime {
  int year = 1899;
  int month = 12;
  int day = 30;
  int hour = 0;
  int minute = 0;
  int second = 0;

  auto operator<=>(const DateTime&) const = default;
};

/// True when all fields stand for a day and time that exist.
constexpr bool IsValid(const DateTime& t) {
  using namespace std::chrono;
  const year_month_day date{year{t.year}, month{static_cast<unsigned>(t.month)},
                            day{static_cast<unsigned>(t.day)}};
  return t.month > 0 && t.day > 0 && date.ok() && t.hour >= 0 && t.hour < 24 && t.minute >= 0 &&
         t.minute < 60 && t.second >= 0 && t.second < 60;
}

/// "2026-03-02 09:05:07".
std::string DateTimeText(const DateTime& time);
/// "2026-03-02 09:05:07.250", of a time since 1 January 1970.
std::string StampText(std::chrono::milliseconds time);

/// "+01:00", of how far local time is ahead of universal time.
std::string UtcOffsetText(std::chrono::minutes offset);

/// Reads "2026-03-02", with a blank or "T" and a time of hours, minutes and perhaps seconds behind
/// it, else midnight. Nothing for any other text, nor for a moment that does not exist.
std::optional<DateTime> ReadDateTime(std::string_view text);

/// Seconds since 1 January 1970 at midnight, without time zones.
constexpr std::int64_t ToSeconds(const DateTime& t) {
  using namespace std::chrono;
  const sys_days days{year_month_day{year{t.year}, month{static_cast<unsigned>(t.month)},
                                     day{static_cast<unsigned>(t.day)}}};
  return std::int64_t{days.time_since_epoch().count()} * 86'400 + t.hour * 3600 + t.minute * 60 +
         t.second;
}

/// The reverse of `ToSeconds`.
constexpr DateTime FromSeconds(std::int64_t seconds) {
  using namespace std::chrono;
  const std::int64_t dayCount = (seconds >= 0 ? seconds : seconds - 86'399) / 86'400;
  const int rest = static_cast<int>(seconds - dayCount * 86'400);
  const year_month_day date{sys_days{days{static_cast<int>(dayCount)}}};
  return {static_cast<int>(date.year()),
          static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day())),
          rest / 3600,
          rest / 60 % 60,
          rest % 60};
}

/// The day of the week, from 0 for Monday to 6.
constexpr int WeekdayOf(const DateTime& t) {
  using namespace std::chrono;
  const sys_days date{year_month_day{year{t.year}, month{static_cast<unsigned>(t.month)},
                                     day{static_cast<unsigned>(t.day)}}};
  return static_cast<int>(weekday{date}.iso_encoding()) - 1;
}

/// The real date and time that fields beyond their range stand for: month 0 is the December before,
/// day 0 the last day of the month before, and so on.
constexpr DateTime CountedOn(const DateTime& t) {
  using namespace std::chrono;
  const int months = t.year * 12 + t.month - 1;
  const sys_days first{year{months / 12} / month{static_cast<unsigned>(months % 12 + 1)} / 1};
  const std::int64_t dayCount = first.time_since_epoch().count() + t.day - 1;
  return FromSeconds(dayCount * 86'400 + t.hour * 3600 + t.minute * 60 + t.second);
}

}  // namespace ostrel
