#pragma once

#include <array>

#include "blocks/Clearing.h"
#include "blocks/Fields.h"
#include "blocks/LineSection.h"
#include "blocks/Receiver.h"
#include "link/Statement.h"

namespace ostrel {

/// Where the logger of a configuration reports to over GPRS, and by FTP.
struct GprsParameters {
  static constexpr SectionMeta kSection{"GPRS", "GPRS and FTP", ""};

  static void Clear(DeviceConf& conf, const TargetProfile&, const Translation&);
  template <class Visit>
  static void Fields(auto& conf, const TargetProfile&, Visit& visit) {
    Describe(conf.Gprs, AtRecord(kSection, -1, visit));
  }
  static const std::array<LineSection, 1> kLines;

  /// 1 for a firmware with GPRS.
  static int Count(const Receiver& receiver) { return receiver.Has(Feature::Gprs) ? 1 : 0; }
  /// With what belongs to FTP for a firmware that has that, too.
  static void Compose(const DeviceConf& conf, const Receiver& receiver, int, StatementList& out);
};

}  // namespace ostrel
