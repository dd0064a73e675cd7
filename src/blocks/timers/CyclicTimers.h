#pragma once

#include <array>

#include "blocks/Clearing.h"
#include "blocks/Fields.h"
#include "blocks/LineSection.h"
#include "blocks/Receiver.h"
#include "link/Statement.h"

namespace ostrel {

/// The timers that run every so many seconds.
struct CyclicTimers {
  static constexpr SectionMeta kSection{"CTIMER", "cyclic timer", ""};

  /// Resets all but the condition flags and the actions.
  static void Clear(DeviceConf& conf, const TargetProfile&, const Translation&);
  template <class Visit>
  static void Fields(auto& conf, const TargetProfile&, Visit& visit) {
    VisitRecords(kSection, conf.CTimer, kTimers, visit);
  }
  static const std::array<LineSection, 2> kLines;

  static int Count(const Receiver&) { return kTimers; }
  static void Compose(const DeviceConf& conf, const Receiver&, int timer, StatementList& out);
};

}  // namespace ostrel
