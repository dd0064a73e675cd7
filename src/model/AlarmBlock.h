#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/Bounded.h"
#include "base/Values.h"
#include "model/ActionList.h"
#include "model/Describe.h"

namespace ostrel {

/// What the alarm of a channel kind has beyond the common ground.
struct AlarmShape {
  int configs;     ///< alarm configurations in use, from cell 0
  bool hasFlag;    ///< FLAG exists
  bool hasNormal;  ///< ACTNO exists
  /// What the persistence of a level alarm counts.
  std::string_view persistence = "readings";
};

/// When something is valid: at all times, or in a range of the day on some days.
struct ValidityRange {
  Bool16 SIEMPRE;
  TimeOfDay INICIO, FINAL;
  std::uint8_t SEMANA = 0;  ///< valid days, bit 0 Monday to bit 6 Sunday

  bool operator==(const ValidityRange&) const = default;
};

/// All days of a week.
inline constexpr std::uint8_t kAllDays = 127;
/// What emptying leaves: valid at all times.
inline constexpr ValidityRange kAlways{kTrue, {}, {}, kAllDays};

/// True when a schedule covers every day of the week and the whole day. Times in seconds of the
/// day.
constexpr bool CheckSiempre(std::int32_t start, std::int32_t stop, std::uint8_t days) {
  constexpr std::int32_t kLastSecondOfDay = 86'399;
  return (days & kAllDays) == kAllDays && start == 0 && stop >= kLastSecondOfDay;
}

/// The fields that all alarms share, for one alarm configuration of one channel.
struct AlarmBlock {
  Bool16 HABIL, REST, RENV, SMS, VOZ, GPRS;
  std::string TEXTO;
  ValidityRange valid;
  std::int16_t FLAG = 0;  ///< 0 the constant "TRUE", n flag F(n-1)
  ActionList ACTHI, ACTLO, ACTNO;

  bool operator==(const AlarmBlock&) const = default;
};

/// Thresholds of level alarms; PERSISTENCIA in readings of the channel.
struct LevelThresholds {
  float MINIMO = 0, MAXIMO = 0, HISTERESIS = 0, PERSISTENCIA = 0;

  bool operator==(const LevelThresholds&) const = default;
};

/// Thresholds of contact alarms: persistence of closing, and of opening.
struct ContactThresholds {
  float PERSIST = 0, REARM = 0;

  bool operator==(const ContactThresholds&) const = default;
};

/// A flag has nothing to compare with.
struct NoThresholds {
  bool operator==(const NoThresholds&) const = default;
};

/// One alarm configuration of a channel.
template <class Thresholds>
struct Alarm {
  AlarmBlock common;
  Thresholds thresholds;

  bool operator==(const Alarm&) const = default;
};

/// A persistence beyond this is a slip of the hand, in whatever it counts.
inline constexpr SensibleRange kPersistence{0, 10'000};
/// Seconds of a contact's persistence: a day at the most.
inline constexpr SensibleRange kContactSeconds{0, 86'400};
/// Levels lie where any unit of engineering has them.
inline constexpr SensibleRange kLevel{-1e9, 1e9};

template <Is<LevelThresholds> T, class Visit>
void Describe(T& t, Visit&& visit) {
  auto& [minimo, maximo, histeresis, persistencia] = t;
  visit(NumberMeta("MINIMO", "minimum", {}, kLevel), minimo);
  visit(NumberMeta("MAXIMO", "maximum", {}, kLevel), maximo);
  visit(NumberMeta("HISTERESIS", "hysteresis", {}, {0, kLevel.most}), histeresis);
  visit(NumberMeta("PERSISTENCIA", "persistence", {}, kPersistence), persistencia);
}

template <Is<ContactThresholds> T, class Visit>
void Describe(T& t, Visit&& visit) {
  auto& [persist, rearm] = t;
  visit(NumberMeta("PERSIST", "persistence", "s", kContactSeconds), persist);
  visit(NumberMeta("REARM", "rearming", "s", kContactSeconds), rearm);
}

template <Is<NoThresholds> T, class Visit>
void Describe(T&, Visit&&) {}

/// The word of the first field of a range; start, stop and days follow it.
inline constexpr std::string_view kAlwaysWord = "SIEMPRE";

template <Is<ValidityRange> T, class Visit>
void Describe(T& t, Visit&& visit) {
  auto& [siempre, inicio, final, semana] = t;
  visit(FieldMeta{kAlwaysWord, "always valid"}, siempre);
  visit(FieldMeta{"INICIO", "valid from"}, inicio);
  visit(FieldMeta{"FINAL", "valid until"}, final);
  visit(FieldMeta{"SEMANA", "valid days", FieldSense::Week}, semana);
}

/// Most characters of an alarm text that an operator may type.
inline constexpr int kAlarmTextLength = 49;

/// Visits one alarm configuration in file order.
template <class AlarmCell, class Visit>
void DescribeAlarm(AlarmCell& cell, int config, AlarmShape shape, Visit&& visit) {
  auto& [habil, rest, renv, sms, voz, gprs, texto, valid, flag, acthi, actlo, actno] = cell.common;
  const auto one = [&](const FieldMeta& meta, auto& field) {
    visit(meta, field, FieldSlot{.config = config});
  };
  one(FieldMeta{"HABIL", "enabled", FieldSense::Enabled}, habil);
  one(FieldMeta{"REST", "restoration message"}, rest);
  one(FieldMeta{"RENV", "resend"}, renv);
  one(FieldMeta{"SMS", "notify by SMS"}, sms);
  one(FieldMeta{"VOZ", "notify by SMS and voice"}, voz);
  one(FieldMeta{"GPRS", "notify by GPRS"}, gprs);
  one(TextMeta("TEXTO", "text", kAlarmTextLength), texto);
  Describe(cell.thresholds, [&](FieldMeta meta, auto& field) {
    if (meta.words == "persistence" && meta.unit.empty()) meta.unit = shape.persistence;
    one(meta, field);
  });
  Describe(valid, one);
  if (shape.hasFlag) one(FieldMeta{"FLAG", "condition flag", FieldSense::Condition}, flag);
  for (int place = 0; place < kActionPlaces; ++place) {
    const auto action = [&](std::string_view word, std::string_view words, auto& list) {
      visit(FieldMeta{word, words, FieldSense::Action}, list[place], FieldSlot{config, place});
    };
    action("ACTHI", "actions, high", acthi);
    action("ACTLO", "actions, low", actlo);
    if (shape.hasNormal) action("ACTNO", "actions, normal", actno);
  }
}

/// Visits all alarm configurations in use of a channel.
template <class AlarmCells, class Visit>
void DescribeAlarms(AlarmCells& cells, AlarmShape shape, Visit&& visit) {
  for (int config = 0; config < shape.configs; ++config)
    DescribeAlarm(cells[config], config, shape, visit);
}

}  // namespace ostrel
