#pragma once

#include <string>
#include <string_view>

namespace ostrel {

/// A text as a terminal may show it: control characters, which a logger's or a file's text can
/// hold, are written as "\x1b".
std::string Printable(std::string_view text);

}  // namespace ostrel
