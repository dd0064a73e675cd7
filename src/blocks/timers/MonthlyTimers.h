#pragma once

#include <array>

#include "blocks/Clearing.h"
#include "blocks/Fields.h"
#include "blocks/LineSection.h"
#include "blocks/Receiver.h"
#include "link/Statement.h"

namespace ostrel {

/// The timers that run at a time of day on some days of the month.
struct MonthlyTimers {
  static constexpr SectionMeta kSection{"MTIMER", "monthly timer", ""};

  /// Resets all but the actions.
  static void Clear(DeviceConf& conf, const TargetProfile&, const Translation&);
  template <class Visit>
  static void Fields(auto& conf, const TargetProfile&, Visit& visit) {
    VisitRecords(kSection, conf.MTimer, kTimers, visit);
  }
  static const std::array<LineSection, 2> kLines;

  /// None on a firmware without monthly timers.
  static int Count(const Receiver& receiver) {
    return receiver.Has(Feature::MonthlyTimers) ? kTimers : 0;
  }
  static void Compose(const DeviceConf& conf, const Receiver&, int timer, StatementList& out);
};

}  // namespace ostrel
