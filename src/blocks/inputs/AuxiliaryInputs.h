#pragma once

#include <array>

#include "blocks/Clearing.h"
#include "blocks/Fields.h"
#include "blocks/LineSection.h"
#include "blocks/Receiver.h"
#include "link/Statement.h"

namespace ostrel {

/// The auxiliary inputs of a logger for cathodic protection. No model of the family has any yet:
/// they are read, shown and composed, and files do not hold them.
struct AuxiliaryInputs {
  static constexpr SectionMeta kSection{"AUX", "auxiliary input", ""};
  /// Inputs that are emptied, saved and restored; one more record exists and stays untouched.
  static constexpr int kChannels = 4;

  static void Clear(DeviceConf& conf, const TargetProfile&, const Translation&);
  template <class Visit>
  static void Fields(auto& conf, const TargetProfile&, Visit& visit) {
    VisitRecords(kSection, conf.Aux, kChannels, visit);
  }
  static void Alarms(const DeviceConf& conf, const Receiver& receiver, const AlarmVisitor& visit) {
    VisitAlarms(kSection, conf.Aux, Count(receiver), ConfAux::kShape, visit);
  }
  static const std::array<LineSection, 3> kLines;

  /// Inputs that statements are made for.
  static int Count(const Receiver& receiver) { return receiver.profile.AuxCount; }
  /// Adds the statements of one input. The alarms of one that is off go all the same.
  static void Compose(const DeviceConf& conf, const Receiver&, int channel, StatementList& out);
};

/// How a cathodic protection is measured while it is off. A logger tells it; no statement sets it.
struct OffMeasurement {
  static constexpr SectionMeta kSection{"KTX", "OFF measurement", ""};

  /// Leaves all as it is: the page goes to its first rows, and these count with the next commit.
  static void Clear(DeviceConf&, const TargetProfile&, const Translation&) {}
  template <class Visit>
  static void Fields(auto& conf, const TargetProfile&, Visit& visit) {
    Describe(conf.Katodex, AtRecord(kSection, -1, visit));
  }
  static const std::array<LineSection, 1> kLines;
};

}  // namespace ostrel
