#pragma once

#include <concepts>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "sim/Configuration.h"
#include "sim/wire/NumberText.h"

namespace ostrel::sim {

/// Builds the records of a download one after the other: `Start` a key, then add its fields.
class Report {
 public:
  Report& Start(std::string_view key);
  Report& Add(std::string_view text);
  template <class Number>
  requires(std::integral<Number> || std::same_as<Number, float>) Report& Add(Number value) {
    AppendNumber(Comma(), value);
    return *this;
  }
  /// The points in turn, each signal before its value.
  Report& Add(const Scale& scale);
  /// Start, stop, week and notification of an alarm.
  Report& AddRange(const Alarm& alarm);
  /// One number of each list for place 0, then for place 1 and so on.
  Report& AddPlaces(std::initializer_list<const Actions*> lists);

  /// The records "<key>.ALM" and "<key>.ACT" of a contact's alarms.
  void ContactAlarms(const std::string& key, int channel, std::span<const Alarm> row);
  /// The same of alarms on a level; the persistence is left out where the firmware has none.
  void LevelAlarms(const std::string& key, int channel, std::span<const Alarm> row,
                   bool withPersistence = true);

  std::vector<std::string> Take() { return std::move(records_); }

 private:
  std::string& Comma();

  std::vector<std::string> records_;
};

/// The configuration as records "KEY,fields" in the order of reporting.
std::vector<std::string> ConfigurationRecords(const Configuration& conf, const Identity& self);

}  // namespace ostrel::sim
