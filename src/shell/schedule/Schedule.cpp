#include "shell/schedule/Schedule.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

#include "blocks/timers/EnabledTimers.h"

namespace ostrel {
namespace {

constexpr std::int64_t kDay = 86'400;
constexpr std::int64_t kSpan = kScheduleDays * kDay;

std::int64_t TimeOf(std::int64_t moment) { return (moment % kDay + kDay) % kDay; }

std::int64_t StartOfDay(std::int64_t moment) { return moment - TimeOf(moment); }

bool IsOnDay(std::uint8_t week, std::int64_t moment) {
  return (week >> WeekdayOf(FromSeconds(moment)) & 1) != 0;
}

bool IsValid(const ValidityRange& valid, std::int64_t moment) {
  if (valid.SIEMPRE) return true;
  const std::int64_t time = TimeOf(moment), start = valid.INICIO.seconds, end = valid.FINAL.seconds;
  const bool isInHours = start <= end ? time >= start && time <= end : time >= start || time <= end;
  return isInHours && IsOnDay(valid.SEMANA, moment);
}

/// The first moment from `moment` on at which a range is valid; beyond `last` for none up to there.
std::int64_t NextValid(const ValidityRange& valid, std::int64_t moment, std::int64_t last) {
  while (moment <= last && !IsValid(valid, moment)) {
    const std::int64_t day = StartOfDay(moment), start = day + valid.INICIO.seconds;
    moment = moment < start ? start : day + kDay;
  }
  return moment;
}

using Firings = std::vector<std::int64_t>;

/// Periods too short for a clock of seconds fire each second.
Firings FiringsOf(const ConfCTimer& timer, std::int64_t from) {
  const double period = std::max(static_cast<double>(timer.PERIOD), 1.0);
  Firings firings;
  if (!(timer.PERIOD > 0)) return firings;
  for (double count = 1; firings.size() < kFiringsTold; ++count) {
    const double after = std::floor(count * period);
    if (after > kSpan) break;
    const std::int64_t moment = from + static_cast<std::int64_t>(after);
    const std::int64_t next = NextValid(timer.valid, moment, from + kSpan);
    if (next == moment)
      firings.push_back(moment);
    else  // on to the last firing ahead of the next valid moment
      count = std::max(count, std::ceil(static_cast<double>(next - from) / period) - 1);
  }
  return firings;
}

Firings FiringsOf(const ConfLTimer& timer, std::int64_t from) {
  Firings firings;
  for (std::int64_t after = timer.PERIOD * kDay; after > 0 && after <= kSpan;
       after += timer.PERIOD * kDay)
    firings.push_back(from + after);
  return firings;
}

/// The firings at a time of day on the days that `isOn` admits.
template <class IsOn>
Firings DailyFirings(TimeOfDay time, std::int64_t from, const IsOn& isOn) {
  Firings firings;
  for (std::int64_t day = StartOfDay(from); day <= from + kSpan; day += kDay)
    if (const std::int64_t moment = day + time.seconds;
        moment > from && moment <= from + kSpan && isOn(day))
      firings.push_back(moment);
  return firings;
}

Firings FiringsOf(const ConfWTimer& timer, std::int64_t from) {
  return DailyFirings(timer.INICIO, from,
                      [&](std::int64_t day) { return IsOnDay(timer.SEMANA, day); });
}

Firings FiringsOf(const ConfMTimer& timer, std::int64_t from) {
  const std::string days = Dec2Bin(timer.MES);
  return DailyFirings(timer.INICIO, from, [&](std::int64_t day) {
    const bool isLast = FromSeconds(day + kDay).day == 1;
    return days[static_cast<std::size_t>(FromSeconds(day).day - 1)] == '1' ||
           (isLast && days.back() == '1');
  });
}

const ActionList& ActionsOf(const TimerRecord& record) {
  return std::visit([](const auto& timer) -> const ActionList& { return timer.ACT; }, record);
}

/// The macros that timers start. The first firings of a macro are among the first ones of its
/// timers.
std::vector<ScheduledMacro> MacrosOf(const std::vector<ScheduledTimer>& timers) {
  std::map<int, ScheduledMacro> macros;
  for (const ScheduledTimer& timer : timers)
    for (const std::int16_t action : timer.Actions()) {
      if (action > kMacrosOfActions) continue;
      ScheduledMacro& macro = macros.try_emplace(action, ScheduledMacro{action - 1}).first->second;
      for (const DateTime& time : timer.firings)
        macro.starts.push_back({time, timer.section, timer.number});
    }
  std::vector<ScheduledMacro> sorted;
  for (auto& [action, macro] : macros) {
    std::ranges::stable_sort(macro.starts, {}, &ScheduledMacro::Start::time);
    if (macro.starts.size() > kFiringsTold) macro.starts.resize(kFiringsTold);
    sorted.push_back(std::move(macro));
  }
  return sorted;
}

}  // namespace

std::int16_t ScheduledTimer::Flag() const {
  const auto* cyclic = std::get_if<ConfCTimer>(&record);
  return cyclic ? cyclic->EQ : std::int16_t{0};
}

std::vector<std::int16_t> ScheduledTimer::Actions() const {
  std::vector<std::int16_t> actions;
  const ActionList& list = ActionsOf(record);
  for (int place = 0; place < kActionPlaces; ++place)
    if (list[place] > 0) actions.push_back(list[place]);
  return actions;
}

Schedule MakeSchedule(const DeviceConf& conf, const Receiver& receiver, const DateTime& from) {
  Schedule schedule{.from = from, .timers = {}, .macros = {}};
  EachEnabledTimer(conf, [&](const SectionMeta& section, int number, const auto& record) {
    if (&section == &MonthlyTimers::kSection && MonthlyTimers::Count(receiver) == 0) return;
    ScheduledTimer timer{.section = &section, .number = number, .record = record};
    for (const std::int64_t moment : FiringsOf(record, ToSeconds(from)))
      timer.firings.push_back(FromSeconds(moment));
    schedule.timers.push_back(std::move(timer));
  });
  schedule.macros = MacrosOf(schedule.timers);
  return schedule;
}

}  // namespace ostrel
