#pragma once

#include <string>

#include "sim/Alarm.h"

namespace ostrel::sim {

struct Block;

inline constexpr int kModbusChannels = 32;

struct ModbusBus {
  int baud = 1200;
  bool slave = false;  ///< the logger is a slave, not the master
  int address = 1;     ///< its own, as a slave

  bool operator==(const ModbusBus&) const = default;
};

/// Size of a register, by the codes that the logger reports.
enum class RegisterSize : int { Bits16 = 0, Bits32 = 1, Float = 2 };

/// A register of a slave. It is off while both multiplier and mask are 0; with a mask alone it is
/// a digital one.
struct ModbusChannel {
  std::string name;
  std::string unit;
  int slave = 0;  ///< 0 inhibits reading
  int address = 0;
  RegisterSize size = RegisterSize::Bits16;
  float multiplier = 0;
  float constant = 0;
  int mask = 0;
  bool negate = false;  ///< turns the masked result over
  SingleAlarm alarms;

  bool operator==(const ModbusChannel&) const = default;
};

extern const Block kModbusBusBlock;
extern const Block kModbusBlock;

}  // namespace ostrel::sim
