#pragma once

#include <functional>

#include "model/Field.h"

namespace ostrel {

/// A visitor of the description of one record that goes on to a visitor of whole configurations.
template <class Visit>
auto AtRecord(const SectionMeta& section, int channel, Visit& visit) {
  return [&section, channel, &visit](const FieldMeta& meta, auto& field, FieldSlot slot = {}) {
    visit(FieldId{&section, channel, meta.word, slot}, meta, field);
  };
}

/// Visits the fields of numbered records, from the first on.
template <class Records, class Visit>
void VisitRecords(const SectionMeta& section, Records& records, int count, Visit& visit) {
  for (int channel = 0; channel < count; ++channel)
    Describe(records[channel], AtRecord(section, channel, visit));
}

/// The place of one alarm configuration within a whole configuration.
struct AlarmPlace {
  const SectionMeta* section;
  int channel;
  int config;
};

/// Gets one alarm with its place.
using AlarmVisitor = std::function<void(const AlarmPlace& place, const AlarmBlock& alarm)>;

/// Visits the alarms in use of numbered records.
template <class Records>
void VisitAlarms(const SectionMeta& section, const Records& records, int count, AlarmShape shape,
                 const AlarmVisitor& visit) {
  for (int channel = 0; channel < count; ++channel)
    for (int config = 0; config < shape.configs; ++config)
      visit({&section, channel, config}, records[channel].ALARM[config].common);
}

}  // namespace ostrel
