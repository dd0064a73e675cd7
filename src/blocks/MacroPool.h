#pragma once

#include <array>

#include "blocks/Clearing.h"
#include "blocks/Fields.h"
#include "blocks/LineSection.h"
#include "blocks/Receiver.h"
#include "link/Statement.h"

namespace ostrel {

/// The macros and equations of a configuration.
struct MacroPool {
  static constexpr SectionMeta kSection{"MACROS", "macros and equations", ""};

  /// Keeps the pool: emptying reaches the list of the page alone, and the pool with its next
  /// commit.
  static void Clear(DeviceConf&, const TargetProfile&, const Translation&) {}
  template <class Visit>
  static void Fields(auto& conf, const TargetProfile&, Visit& visit) {
    Describe(conf.Macro, AtRecord(kSection, -1, visit));
  }
  /// A stream brings the pool from its first place on, so each attempt starts with an empty one.
  static void BeginStream(DeviceConf& conf) { conf.Macro = {}; }
  static const std::array<LineSection, 3> kLines;

  static int Count(const Receiver&) { return 1; }
  /// The lines of the places that a logger gets, as they stand.
  static void Compose(const DeviceConf& conf, const Receiver&, int, StatementList& out);
  /// A logger reports the lines that it got without the empty places between them.
  static void AsSent(DeviceConf& read, const DeviceConf& sent, const Receiver&);
};

}  // namespace ostrel
