#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "blocks/Clearing.h"
#include "blocks/Fields.h"
#include "blocks/LineSection.h"
#include "blocks/Receiver.h"
#include "link/Statement.h"

namespace ostrel {

/// Interface codes of a 1-Wire probe, besides that of one that is off.
enum ProbeInterface : std::int16_t { kInterfaceTemperature = 4, kInterfaceHumidity = 5 };

/// Half of an identity that was never set.
inline constexpr std::string_view kUnsetHalf = "0";

/// The four octets of half an identity as numbers; empty when it is none. A half that was never set
/// is all zeros.
std::vector<int> OctetsOfHalf(std::string_view half);

/// Half of an identity in three digits an octet; what is none stays as it is.
std::string WholeHalf(std::string_view half);

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
  /// A logger reports each octet of an identity in three digits.
  static void AsSent(DeviceConf& read, const DeviceConf& sent, const Receiver&);
};

}  // namespace ostrel
