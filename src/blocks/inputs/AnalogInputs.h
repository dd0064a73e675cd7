#pragma once

#include <array>

#include "blocks/Clearing.h"
#include "blocks/Fields.h"
#include "blocks/LineSection.h"
#include "blocks/Receiver.h"
#include "blocks/inputs/InterfaceCodes.h"
#include "link/Statement.h"

namespace ostrel {

/// The analog inputs of a configuration.
struct AnalogInputs {
  static constexpr SectionMeta kSection{"ANALOG", "analog input", "AI"};
  /// Inputs that are emptied, saved and restored; one more record exists and stays untouched.
  static constexpr int kChannels = 4;

  static void Clear(DeviceConf& conf, const TargetProfile& profile, const Translation& translate);
  template <class Visit>
  static void Fields(auto& conf, const TargetProfile&, Visit& visit) {
    VisitRecords(kSection, conf.Analog, kChannels, visit);
  }
  static void Alarms(const DeviceConf& conf, const Receiver& receiver, const AlarmVisitor& visit) {
    VisitAlarms(kSection, conf.Analog, Count(receiver), ConfAnalog::kShape, visit);
  }
  static const std::array<LineSection, 3> kLines;

  /// Inputs that statements are made for.
  static int Count(const Receiver& receiver) { return receiver.profile.AnalogCount; }
  /// Adds the statements of one input. The alarms of one that is off go all the same.
  static void Compose(const DeviceConf& conf, const Receiver& receiver, int channel,
                      StatementList& out);
};

/// The power groups of the analog inputs.
struct AnalogGroups {
  static constexpr SectionMeta kSection{"GRUPO", "analog group", ""};
  static constexpr int kGroups = 4;

  static void Clear(DeviceConf& conf, const TargetProfile&, const Translation&);
  template <class Visit>
  static void Fields(auto& conf, const TargetProfile&, Visit& visit) {
    VisitRecords(kSection, conf.Grupo, kGroups, visit);
  }
  static const std::array<LineSection, 1> kLines;

  /// Groups that statements are made for: as many as there are inputs.
  static int Count(const Receiver& receiver) { return receiver.profile.AnalogCount; }
  static void Compose(const DeviceConf& conf, const Receiver& receiver, int group,
                      StatementList& out);
};

}  // namespace ostrel
