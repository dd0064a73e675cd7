#pragma once

#include <array>

#include "blocks/Clearing.h"
#include "blocks/Fields.h"
#include "blocks/LineSection.h"
#include "blocks/Receiver.h"
#include "link/Statement.h"

namespace ostrel {

/// The timers that run at a time of day on some days of the week.
struct WeeklyTimers {
  static constexpr SectionMeta kSection{"WTIMER", "weekly timer", ""};

  /// Resets all but the actions.
  static void Clear(DeviceConf& conf, const TargetProfile&, const Translation&);
  template <class Visit>
  static void Fields(auto& conf, const TargetProfile&, Visit& visit) {
    VisitRecords(kSection, conf.WTimer, kTimers, visit);
  }
  static const std::array<LineSection, 2> kLines;

  static int Count(const Receiver&) { return kTimers; }
  static void Compose(const DeviceConf& conf, const Receiver&, int timer, StatementList& out);
};

}  // namespace ostrel
