#pragma once

#include <string>

#include "link/Line.h"

namespace ostrel {

/// Prepares the modem on a line and dials. No fault when the data call stands.
LinkFault Dial(Line& line, const std::string& phone);

/// Ends a data call: the escape with its guard times, then the command to hang up.
void HangUp(Line& line);

}  // namespace ostrel
