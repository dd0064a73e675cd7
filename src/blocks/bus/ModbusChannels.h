#pragma once

#include <array>

#include "blocks/Clearing.h"
#include "blocks/Fields.h"
#include "blocks/FileKeys.h"
#include "blocks/LineSection.h"
#include "blocks/Receiver.h"
#include "link/Statement.h"

namespace ostrel {

/// The MODBUS channels of a configuration.
struct ModbusChannels {
  static constexpr SectionMeta kSection{"MODBUS", "MODBUS channel", "MB"};
  /// Channels that are saved, restored and sent; one more record exists and stays untouched.
  static constexpr int kChannels = 32;
  /// Earlier files mark a register of 32 bits by this key. Where it says so the size is not read.
  static constexpr std::string_view kEarlierSize = "SIZE32";
  static constexpr std::string_view kSize = "TYPE";

  /// Resets the first four channels alone, and not all of these.
  static void Clear(DeviceConf& conf, const TargetProfile&, const Translation&);
  template <class Visit>
  static void Fields(auto& conf, const TargetProfile&, Visit& visit) {
    VisitRecords(kSection, conf.Modbus, kChannels, visit);
  }
  static void Restore(DeviceConf& conf, const TargetProfile& profile, const KeyReader& read);
  static void Alarms(const DeviceConf& conf, const Receiver& receiver, const AlarmVisitor& visit) {
    VisitAlarms(kSection, conf.Modbus, Count(receiver), ConfModbus::kShape, visit);
  }
  static const std::array<LineSection, 3> kLines;

  /// All channels, on a model that has any.
  static int Count(const Receiver& receiver) {
    return receiver.profile.ModbusCount > 0 ? kChannels : 0;
  }
  /// A logger has no mark for "off": it is a channel without a multiplier and without a mask.
  static bool IsOff(const ConfModbus& channel) { return channel.MULT == 0 && channel.MASCARA == 0; }
  /// Adds the statements of one channel. The alarm of one that is off goes all the same.
  static void Compose(const DeviceConf& conf, const Receiver& receiver, int channel,
                      StatementList& out);
  /// A logger has no mode: it reports a digital channel with a multiplier of 0. A mask that it does
  /// not know it cannot report.
  static void AsSent(DeviceConf& read, const DeviceConf& sent, const Receiver& receiver);
};

}  // namespace ostrel
