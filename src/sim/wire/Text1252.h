#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ostrel::sim {

/// Code page 1252 as UTF-8. The five octets without a character stand for the control of the same
/// number, so every text comes back.
std::string ToUtf8(std::string_view octets);

/// The reverse; nothing for broken UTF-8 or a character that the code page lacks.
std::optional<std::string> FromUtf8(std::string_view text);

}  // namespace ostrel::sim
