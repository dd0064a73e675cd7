#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "model/AlarmBlock.h"

namespace ostrel {

/// Gives a text in the language in use: emptying a pressure logger sets a unit in words.
using Translation = std::function<std::string(std::string_view text)>;

/// Resets what emptying resets of every alarm. GPRS and the action lists keep their values on
/// purpose; the condition flag is the caller's, since some kinds keep it.
void ClearAlarm(AlarmBlock& alarm);

/// Resets all alarm configurations in use of a channel, with thresholds and condition flag.
template <class Cells>
void ClearAlarms(Cells& cells, AlarmShape shape) {
  for (int config = 0; config < shape.configs; ++config) {
    ClearAlarm(cells[config].common);
    cells[config].common.FLAG = 0;
    cells[config].thresholds = {};
  }
}

}  // namespace ostrel
