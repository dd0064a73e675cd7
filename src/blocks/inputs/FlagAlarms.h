#pragma once

#include <array>

#include "blocks/Clearing.h"
#include "blocks/Fields.h"
#include "blocks/LineSection.h"
#include "blocks/Receiver.h"
#include "link/Statement.h"

namespace ostrel {

/// The alarms that flags of a logger raise.
struct FlagAlarms {
  static constexpr SectionMeta kSection{"FLAG", "flag", "FG"};
  static constexpr int kChannels = 16;

  static void Clear(DeviceConf& conf, const TargetProfile&, const Translation&);
  template <class Visit>
  static void Fields(auto& conf, const TargetProfile&, Visit& visit) {
    VisitRecords(kSection, conf.Flag, kChannels, visit);
  }
  static void Alarms(const DeviceConf& conf, const Receiver& receiver, const AlarmVisitor& visit) {
    VisitAlarms(kSection, conf.Flag, Count(receiver), ConfFlag::kShape, visit);
  }
  static const std::array<LineSection, 2> kLines;

  /// Flags that statements are made for: none on a firmware without flag alarms.
  static int Count(const Receiver& receiver) {
    return receiver.Has(Feature::FlagAlarms) ? kChannels : 0;
  }
  static void Compose(const DeviceConf& conf, const Receiver&, int flag, StatementList& out);
};

}  // namespace ostrel
