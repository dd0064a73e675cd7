#pragma once

#include <array>

#include "blocks/Clearing.h"
#include "blocks/Fields.h"
#include "blocks/LineSection.h"
#include "blocks/Receiver.h"
#include "link/Statement.h"

namespace ostrel {

/// The flow meters of a configuration.
struct FlowMeters {
  static constexpr SectionMeta kSection{"CAUDAL", "flow meter", "FL"};
  /// Meters that are emptied, saved and restored; one more record exists and stays untouched.
  static constexpr int kChannels = 9;

  /// Keeps more than other kinds do: persistence and condition flag of the alarms, besides what
  /// emptying keeps of every alarm, and the weight in the totaliser.
  static void Clear(DeviceConf& conf, const TargetProfile&, const Translation&);
  template <class Visit>
  static void Fields(auto& conf, const TargetProfile&, Visit& visit) {
    VisitRecords(kSection, conf.Caudal, kChannels, visit);
  }
  static void Alarms(const DeviceConf& conf, const Receiver& receiver, const AlarmVisitor& visit) {
    VisitAlarms(kSection, conf.Caudal, Count(receiver), ConfCaudal::kShape, visit);
  }
  static const std::array<LineSection, 3> kLines;

  /// Meters that statements are made for.
  static int Count(const Receiver& receiver) { return receiver.profile.CaudalCount; }
  /// Adds the statements of one meter, its weight in the totaliser among them.
  static void Compose(const DeviceConf& conf, const Receiver& receiver, int channel,
                      StatementList& out);
};

}  // namespace ostrel
