#pragma once

#include <string>
#include <string_view>

namespace ostrel {

/// A text as a file of rich text, all of it in one style: what any word processor opens.
std::string RichTextOf(std::string_view text);

}  // namespace ostrel
