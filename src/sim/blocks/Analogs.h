#pragma once

#include <string>

#include "sim/Alarm.h"
#include "sim/wire/Scale.h"

namespace ostrel::sim {

struct Block;

inline constexpr int kAnalogs = 4;

struct AnalogInput {
  std::string name;
  std::string unit;
  Interface interface = Interface::Off;
  Scale scale;
  int group = 0;
  AlarmRow alarms;

  bool operator==(const AnalogInput&) const = default;
};

extern const Block kAnalogBlock;

}  // namespace ostrel::sim
