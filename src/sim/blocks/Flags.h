#pragma once

#include "sim/Alarm.h"

namespace ostrel::sim {

struct Block;

/// The alarm that a flag raises when it changes; it has no condition flag of its own.
extern const Block kFlagBlock;

}  // namespace ostrel::sim
