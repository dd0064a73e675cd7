#pragma once

#include <cstdint>

namespace ostrel {

/// Bits of the firmware feature mask that a logger reports of itself.
enum class Feature : std::uint32_t {
  RetryRules = 0x1,
  Gprs = 0x2,
  FlagAlarms = 0x4,
  AnalogPersistence = 0x8,
  Ftp = 0x10,
  ModbusConstant = 0x20,
  Math = 0x40,
  NormallyClosed = 0x80,
  AllChannelsIsMinusOne = 0x100,
  ModbusFloat = 0x200,
  FastRefusal = 0x400,
  MonthlyTimers = 0x800,
  MissedCallMacro = 0x1000,
  ModbusSlave = 0x2000,
  ExtendedMasks = 0x10000,
  SampleRate = 0x80000,
  TotalRatio = 0x100000,
  FlowThresholds = 0x200000,
};

/// True when a mask as a logger reports it has the bit.
constexpr bool Has(std::int32_t features, Feature bit) {
  return (static_cast<std::uint32_t>(features) & static_cast<std::uint32_t>(bit)) != 0;
}

}  // namespace ostrel
