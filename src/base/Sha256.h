#pragma once

#include <string>
#include <string_view>

namespace ostrel {

/// The SHA-256 of octets, as 64 small hexadecimal digits.
std::string Sha256(std::string_view octets);

}  // namespace ostrel
