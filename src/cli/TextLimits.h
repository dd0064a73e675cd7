#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "shell/Configurator.h"

namespace ostrel::cli {

/// How many characters the controls of the pages take for a text, by the words of its section and
/// key, without numbers. A text that no limited control shows is absent.
using TextLimits = std::map<std::pair<std::string, std::string>, int, std::less<>>;

/// Finds the limits by showing marked texts on the pages and looking where they turn up. This
/// replaces what the configurator holds.
TextLimits FindTextLimits(Configurator& configurator);

}  // namespace ostrel::cli
