#pragma once

#include <vector>

#include "controls/Readouts.h"
#include "model/DeviceConf.h"
#include "model/DeviceInfo.h"
#include "model/LiveRound.h"

namespace ostrel {

/// The bands of the enabled alarms that a configuration has on a value, in the unit of the value;
/// none for a value without level alarms. The firmware tells in what flow meters have theirs.
std::vector<AlarmBand> BandsOf(const DeviceConf& conf, const DeviceInfo& info, LiveId id);

}  // namespace ostrel
