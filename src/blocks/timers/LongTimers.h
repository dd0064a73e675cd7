#pragma once

#include <array>

#include "blocks/Clearing.h"
#include "blocks/Fields.h"
#include "blocks/LineSection.h"
#include "blocks/Receiver.h"
#include "link/Statement.h"

namespace ostrel {

/// The timers that run every so many days.
struct LongTimers {
  static constexpr SectionMeta kSection{"LTIMER", "long timer", ""};
  /// The longest period whose seconds a logger can take, and the negative of the shortest.
  static constexpr int kMostDays = 24'855;

  /// Resets all but the actions.
  static void Clear(DeviceConf& conf, const TargetProfile&, const Translation&);
  template <class Visit>
  static void Fields(auto& conf, const TargetProfile&, Visit& visit) {
    VisitRecords(kSection, conf.LTimer, kTimers, visit);
  }
  static const std::array<LineSection, 2> kLines;

  static int Count(const Receiver&) { return kTimers; }
  /// Fails for an enabled timer whose seconds overflow.
  static void Compose(const DeviceConf& conf, const Receiver&, int timer, StatementList& out);
};

}  // namespace ostrel
