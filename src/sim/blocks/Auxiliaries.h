#pragma once

#include <string>

#include "sim/Alarm.h"
#include "sim/wire/Scale.h"

namespace ostrel::sim {

struct Block;

inline constexpr int kAuxiliaries = 4;

struct AuxiliaryInput {
  std::string name;
  std::string unit;
  bool on = false;
  Scale scale;
  AlarmRow alarms;

  bool operator==(const AuxiliaryInput&) const = default;
};

extern const Block kAuxiliaryBlock;

}  // namespace ostrel::sim
