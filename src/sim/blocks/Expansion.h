#pragma once

#include <string>

#include "sim/Alarm.h"
#include "sim/wire/Scale.h"

namespace ostrel::sim {

struct Block;

inline constexpr int kExpansionInputs = 96;

enum class ExpansionMode : int { Off = 0, Digital = 1, Flow = 2, Counter = 3, Analog = 4 };

/// An input on an external module. A mode leaves what it lacks at its default.
struct ExpansionInput {
  ExpansionMode mode = ExpansionMode::Off;
  int module = 0;  ///< address of the module, 0 to 15
  int input = 0;   ///< on the module, 0 to 7
  int group = 0;   ///< that it is read in, 0 to 15
  std::string name;
  std::string unit;
  bool normallyClosed = false;
  int timeBase = 0;  ///< seconds
  float ratio = 1;   ///< units of a pulse
  Interface interface = Interface::Off;
  Scale scale;
  SingleAlarm alarms;

  bool operator==(const ExpansionInput&) const = default;
};

extern const Block kExpansionBlock;

}  // namespace ostrel::sim
