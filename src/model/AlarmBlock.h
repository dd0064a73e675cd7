#pragma once

#include <cstdint>
#include <string>

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
};

/// The fields that all alarms share, for one alarm configuration of one channel.
struct AlarmBlock {
  Bool16 HABIL, REST, RENV, SMS, VOZ, GPRS;
  std::string TEXTO;
  Bool16 SIEMPRE = kTrue;
  TimeOfDay INICIO, FINAL;
  std::uint8_t SEMANA = 127;  ///< valid days, bit 0 Monday to bit 6 Sunday
  std::int16_t FLAG = 0;      ///< 0 the constant "TRUE", n flag F(n-1)
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

template <Is<LevelThresholds> T, class Visit>
void Describe(T& t, Visit&& visit) {
  auto& [minimo, maximo, histeresis, persistencia] = t;
  visit("MINIMO", minimo);
  visit("MAXIMO", maximo);
  visit("HISTERESIS", histeresis);
  visit("PERSISTENCIA", persistencia);
}

template <Is<ContactThresholds> T, class Visit>
void Describe(T& t, Visit&& visit) {
  auto& [persist, rearm] = t;
  visit("PERSIST", persist);
  visit("REARM", rearm);
}

template <Is<NoThresholds> T, class Visit>
void Describe(T&, Visit&&) {}

/// Visits the file keys of one alarm configuration: "HABIL( 0)" ... "ACTHI( 0 7)".
template <class AlarmCell, class Visit>
void DescribeAlarm(AlarmCell& cell, int config, AlarmShape shape, Visit&& visit) {
  auto& [habil, rest, renv, sms, voz, gprs, texto, siempre, inicio, final, semana, flag, acthi,
         actlo, actno] = cell.common;
  const std::string open = "(" + NumText(config);
  const auto one = [&](std::string_view word, auto& field) {
    visit(std::string(word) + open + ")", field);
  };
  one("HABIL", habil);
  one("REST", rest);
  one("RENV", renv);
  one("SMS", sms);
  one("VOZ", voz);
  one("GPRS", gprs);
  one("TEXTO", texto);
  Describe(cell.thresholds, one);
  one("SIEMPRE", siempre);
  one("INICIO", inicio);
  one("FINAL", final);
  one("SEMANA", semana);
  if (shape.hasFlag) one("FLAG", flag);
  for (int place = 0; place < kActionPlaces; ++place) {
    const std::string at = open + NumText(place) + ")";
    visit("ACTHI" + at, acthi[place]);
    visit("ACTLO" + at, actlo[place]);
    if (shape.hasNormal) visit("ACTNO" + at, actno[place]);
  }
}

/// Visits all alarm configurations in use of a channel.
template <class AlarmCells, class Visit>
void DescribeAlarms(AlarmCells& cells, AlarmShape shape, Visit&& visit) {
  for (int config = 0; config < shape.configs; ++config)
    DescribeAlarm(cells[config], config, shape, visit);
}

/// Resets what clearing a page resets of an alarm: all but GPRS and the action lists, which keep
/// their values on purpose.
void ClearAlarm(AlarmBlock& alarm);

/// Resets an alarm configuration with its thresholds.
template <class Thresholds>
void ClearAlarm(Alarm<Thresholds>& cell) {
  ClearAlarm(cell.common);
  cell.thresholds = {};
}

}  // namespace ostrel
