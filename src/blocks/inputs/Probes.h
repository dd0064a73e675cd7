#pragma once

#include <array>

#include "blocks/Clearing.h"
#include "blocks/Fields.h"
#include "blocks/LineSection.h"
#include "blocks/Receiver.h"
#include "link/Statement.h"

namespace ostrel {

/// Interface codes of a 1-Wire probe, besides that of one that is off.
enum ProbeInterface : std::int16_t { kInterfaceTemperature = 4, kInterfaceHumidity = 5 };

/// The 1-Wire probes of a configuration.
struct Probes {
  static constexpr SectionMeta kSection{"1WIRE", "1-Wire probe", "PB"};
  /// Probes that are emptied, saved and restored; further records exist and stay untouched.
  static constexpr int kChannels = 4;

  /// Keeps whether a probe is addressed by its identity.
  static void Clear(DeviceConf& conf, const TargetProfile&, const Translation&);
  template <class Visit>
  static void Fields(auto& conf, const TargetProfile&, Visit& visit) {
    VisitRecords(kSection, conf.OneWire, kChannels, visit);
  }
  static void Alarms(const DeviceConf& conf, const Receiver& receiver, const AlarmVisitor& visit) {
    VisitAlarms(kSection, conf.OneWire, Count(receiver), ConfOneWire::kShape, visit);
  }
  static const std::array<LineSection, 3> kLines;

  /// Probes that statements are made for.
  static int Count(const Receiver& receiver) { return receiver.profile.OneWireCount; }
  /// Adds the statements of one probe. The alarms of one that is off go all the same.
  static void Compose(const DeviceConf& conf, const Receiver&, int channel, StatementList& out);
};

}  // namespace ostrel
