#pragma once

#include <string>
#include <string_view>

namespace ostrel {

/// A text as a terminal may show it: control characters, which a logger's or a file's text can
/// hold, are written as "\x1b".
std::string Printable(std::string_view text);

/// The beginning of a text that may be of any length, as a message may show it.
std::string Excerpt(std::string_view text);

/// The text before its first control character: as much as a line can hold, on the wire, in a file
/// or in a box of one line.
std::string_view UpToControl(std::string_view text);

}  // namespace ostrel
