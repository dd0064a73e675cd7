#include "sim/wire/LineComposer.h"

#include <cstddef>

#include "sim/blocks/Block.h"

namespace ostrel::sim {

Report& Report::Start(std::string_view key) {
  records_.emplace_back(key);
  return *this;
}

std::string& Report::Comma() { return records_.back() += ','; }

Report& Report::Add(std::string_view text) {
  Comma().append(text);
  return *this;
}

Report& Report::Add(const Scale& scale) {
  return Add(scale.signalStart).Add(scale.valueAtStart).Add(scale.signalEnd).Add(scale.valueAtEnd);
}

Report& Report::AddRange(const Alarm& alarm) {
  return Add(alarm.start).Add(alarm.stop).Add(alarm.week).Add(alarm.notify);
}

Report& Report::AddPlaces(std::initializer_list<const Actions*> lists) {
  for (std::size_t place = 0; place < kActions; ++place) {
    for (const Actions* list : lists) Add((*list)[place]);
  }
  return *this;
}

void Report::ContactAlarms(const std::string& key, int channel, std::span<const Alarm> row) {
  int number = 0;
  for (const Alarm& alarm : row) {
    Start(key + ".ALM").Add(channel).Add(number).Add(alarm.text);
    Add(alarm.persistence).Add(alarm.rearm).AddRange(alarm).Add(alarm.flag);
    Start(key + ".ACT").Add(channel).Add(number++).AddPlaces({&alarm.high, &alarm.low});
  }
}

void Report::LevelAlarms(const std::string& key, int channel, std::span<const Alarm> row,
                         bool withPersistence) {
  int number = 0;
  for (const Alarm& alarm : row) {
    Start(key + ".ALM").Add(channel).Add(number).Add(alarm.text);
    Add(alarm.minimum).Add(alarm.maximum).Add(alarm.hysteresis).AddRange(alarm).Add(alarm.flag);
    if (withPersistence) Add(alarm.persistence);
    Start(key + ".ACT").Add(channel).Add(number++);
    AddPlaces({&alarm.high, &alarm.normal, &alarm.low});
  }
}

std::vector<std::string> ConfigurationRecords(const Configuration& conf, const Identity& self) {
  Report out;
  for (const Block* block : Blocks()) {
    if (block->stands(self)) block->report(conf, self, out);
  }
  return out.Take();
}

}  // namespace ostrel::sim
