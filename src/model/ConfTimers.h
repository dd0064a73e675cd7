#pragma once

#include <cstdint>

#include "base/Values.h"
#include "model/ActionList.h"
#include "model/AlarmBlock.h"
#include "model/Describe.h"

namespace ostrel {

/// Timers of each kind that are shown, sent and saved; one more record exists and stays untouched.
inline constexpr int kTimers = 16;

/// Runs its actions every so many seconds, within a range and while a flag is true.
struct ConfCTimer {
  Bool16 HABIL;
  float PERIOD = 0;  ///< seconds
  ValidityRange valid;
  std::int16_t EQ = 0;  ///< 0 the constant "TRUE", n flag F(n-1)
  ActionList ACT;

  bool operator==(const ConfCTimer&) const = default;
};

/// Runs its actions every so many days.
struct ConfLTimer {
  Bool16 HABIL;
  std::int16_t PERIOD = 0;  ///< days
  ActionList ACT;

  bool operator==(const ConfLTimer&) const = default;
};

/// Runs its actions at a time of day on some days of the week.
struct ConfWTimer {
  Bool16 HABIL;
  TimeOfDay INICIO;
  std::uint8_t SEMANA = 0;  ///< bit 0 Monday to bit 6 Sunday
  ActionList ACT;

  bool operator==(const ConfWTimer&) const = default;
};

/// Runs its actions at a time of day on some days of the month.
struct ConfMTimer {
  Bool16 HABIL;
  TimeOfDay INICIO;
  double MES = 0;  ///< bit 0 the first to bit 30; bit 31 the last of the month, whichever
  ActionList ACT;

  bool operator==(const ConfMTimer&) const = default;
};

/// Visits the places of a list of actions that a record has once.
template <class List, class Visit>
void DescribeActions(List& list, Visit& visit) {
  for (int place = 0; place < kActionPlaces; ++place)
    visit(FieldMeta{"ACT", "actions", FieldSense::Action}, list[place], FieldSlot{.place = place});
}

inline constexpr FieldMeta kTimerEnabled{"HABIL", "enabled", FieldSense::Enabled};
inline constexpr FieldMeta kTimerTime{"INICIO", "time of day"};

template <Is<ConfCTimer> R, class Visit>
void Describe(R& r, Visit&& visit) {
  auto& [habil, period, valid, eq, act] = r;
  visit(kTimerEnabled, habil);
  visit(NumberMeta("PERIOD", "period", "s", {}), period);
  Describe(valid, visit);
  visit(FieldMeta{"EQ", "condition flag", FieldSense::Condition}, eq);
  DescribeActions(act, visit);
}

template <Is<ConfLTimer> R, class Visit>
void Describe(R& r, Visit&& visit) {
  auto& [habil, period, act] = r;
  visit(kTimerEnabled, habil);
  visit(NumberMeta("PERIOD", "period", "days", {}), period);
  DescribeActions(act, visit);
}

template <Is<ConfWTimer> R, class Visit>
void Describe(R& r, Visit&& visit) {
  auto& [habil, inicio, semana, act] = r;
  visit(kTimerEnabled, habil);
  visit(kTimerTime, inicio);
  visit(FieldMeta{"SEMANA", "days of the week", FieldSense::Week}, semana);
  DescribeActions(act, visit);
}

template <Is<ConfMTimer> R, class Visit>
void Describe(R& r, Visit&& visit) {
  auto& [habil, inicio, mes, act] = r;
  visit(kTimerEnabled, habil);
  visit(kTimerTime, inicio);
  visit(FieldMeta{"MES", "days of the month", FieldSense::Month}, mes);
  DescribeActions(act, visit);
}

}  // namespace ostrel
