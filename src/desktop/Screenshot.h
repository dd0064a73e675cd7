#pragma once

#include <string>

#include "desktop/CommandLine.h"

namespace ostrel {

/// Draws one page of the window into a PNG file, without touching the user's settings or any port
/// but the simulated ones. False when the picture cannot be written or the page does not exist.
/// `langFile` is the translation table, which is only read.
bool TakeScreenshot(const CommandLine& line, const std::string& langFile);

}  // namespace ostrel
