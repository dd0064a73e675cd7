#pragma once

#include <string>

#include "desktop/program/CommandLine.h"

namespace ostrel {

/// Draws one page of the window into a PNG file, without touching the user's settings or any port
/// but the simulated ones. `langFile` is the translation table, which is only read. Returns what
/// went wrong, empty when the picture stands: no such page, no configuration in the file, a picture
/// that cannot be written.
std::string TakeScreenshot(const CommandLine& line, const std::string& langFile);

}  // namespace ostrel
