#pragma once

#include <array>

#include "blocks/Clearing.h"
#include "blocks/Fields.h"
#include "blocks/FileKeys.h"
#include "blocks/LineSection.h"
#include "blocks/Receiver.h"
#include "link/Statement.h"

namespace ostrel {

/// The bit rates of the bus that an operator can choose.
inline constexpr std::array<std::int32_t, 7> kModbusBitRates{1200,   2400,   4800,  9600,
                                                             19'200, 38'400, 57'600};

/// The MODBUS port of a configuration.
struct ModbusBus {
  static constexpr SectionMeta kSection{"MODBUS", "MODBUS bus", ""};
  /// The key of the role, which earlier files lack.
  static constexpr std::string_view kRole = "MASTER";

  static void Clear(DeviceConf& conf, const TargetProfile&, const Translation&);
  template <class Visit>
  static void Fields(auto& conf, const TargetProfile&, Visit& visit) {
    Describe(conf.ModbusBus, AtRecord(kSection, -1, visit));
  }
  /// Reads an emptied record. A file that does not say which role the logger has is of a time when
  /// every logger was a master, and has no address of its own.
  static void Restore(DeviceConf& conf, const TargetProfile&, const KeyReader& read);
  static const std::array<LineSection, 1> kLines;

  /// 1 on a model with MODBUS channels.
  static int Count(const Receiver& receiver) { return receiver.profile.ModbusCount > 0 ? 1 : 0; }
  static void Compose(const DeviceConf& conf, const Receiver& receiver, int, StatementList& out);
};

}  // namespace ostrel
