#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ostrel {

/// UTF-8 to the octets of code page 1252, one for each character. A character that the page lacks
/// and a malformed octet become "?".
std::string ToCodePage(std::string_view utf8);

/// Octets of code page 1252 to UTF-8. The five octets without a character give the control
/// character of the same value, so that every octet comes back as itself.
std::string FromCodePage(std::string_view octets);

/// An octet of the code page with the letter case taken away, for comparing names: capital letters
/// become small ones, everything else stays.
std::uint8_t FoldOctet(char octet);

/// The same for a character: the letters of the code page fold, all others stay.
char32_t FoldCharacter(char32_t character);

}  // namespace ostrel
