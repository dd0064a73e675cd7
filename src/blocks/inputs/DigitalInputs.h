#pragma once

#include <array>

#include "blocks/Clearing.h"
#include "blocks/Fields.h"
#include "blocks/LineSection.h"
#include "blocks/Receiver.h"
#include "link/Statement.h"

namespace ostrel {

/// The digital inputs of a configuration.
struct DigitalInputs {
  static constexpr SectionMeta kSection{"DIGITAL", "digital input", "DI"};
  /// Inputs that are emptied, saved and restored; one more record exists and stays untouched.
  static constexpr int kChannels = 9;

  static void Clear(DeviceConf& conf, const TargetProfile&, const Translation&);
  template <class Visit>
  static void Fields(auto& conf, const TargetProfile&, Visit& visit) {
    VisitRecords(kSection, conf.Digital, kChannels, visit);
  }
  static void Alarms(const DeviceConf& conf, const Receiver& receiver, const AlarmVisitor& visit) {
    VisitAlarms(kSection, conf.Digital, Count(receiver), ConfDigital::kShape, visit);
  }
  static const std::array<LineSection, 3> kLines;

  /// Inputs that statements are made for.
  static int Count(const Receiver& receiver) { return receiver.profile.DigitalCount; }
  /// Adds the statements of one input.
  static void Compose(const DeviceConf& conf, const Receiver& receiver, int channel,
                      StatementList& out);
};

}  // namespace ostrel
