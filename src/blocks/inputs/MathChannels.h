#pragma once

#include <array>

#include "blocks/Clearing.h"
#include "blocks/Fields.h"
#include "blocks/LineSection.h"
#include "blocks/Receiver.h"
#include "link/Statement.h"

namespace ostrel {

/// The channels that a logger computes.
struct MathChannels {
  static constexpr SectionMeta kSection{"MATH", "math channel", ""};

  static void Clear(DeviceConf& conf, const TargetProfile& profile, const Translation&);
  template <class Visit>
  static void Fields(auto& conf, const TargetProfile& profile, Visit& visit) {
    VisitRecords(kSection, conf.Math, profile.MathCount, visit);
  }
  static void Alarms(const DeviceConf& conf, const Receiver& receiver, const AlarmVisitor& visit) {
    VisitAlarms(kSection, conf.Math, Count(receiver), ConfMath::kShape, visit);
  }
  static const std::array<LineSection, 3> kLines;

  /// Channels that statements are made for: none on a firmware without math.
  static int Count(const Receiver& receiver) {
    return receiver.Has(Feature::Math) ? receiver.profile.MathCount : 0;
  }
  /// Adds the statements of one channel. The alarm of one that is off goes all the same.
  static void Compose(const DeviceConf& conf, const Receiver&, int channel, StatementList& out);
};

}  // namespace ostrel
