#pragma once

#include <string_view>

#include "platform/Processes.h"

namespace ostrel {

/// Starts the help viewer on the page of a topic, which exists in Spanish alone, and does not wait.
/// `programFolder` is without a separator at its end. False when the viewer cannot be started.
bool ShowHelp(Processes& processes, std::string_view programFolder, std::string_view topic);

}  // namespace ostrel
