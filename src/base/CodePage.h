#pragma once

#include <span>
#include <string>
#include <string_view>

namespace ostrel {

/// UTF-8 to the octets of code page 1252, one for each character. A character that the page lacks
/// and a malformed octet become "?".
std::string ToCodePage(std::string_view utf8);

/// Octets of code page 1252 to UTF-8. The five octets without a character give the control
/// character of the same value, so that every octet comes back as itself.
std::string FromCodePage(std::string_view octets);

/// Takes the letter case off octets of the code page, for comparing names: capital letters become
/// small ones, everything else stays.
void FoldOctets(std::span<char> octets);

/// A text in UTF-8 without letter case: the letters of the code page fold, all other characters
/// stay. Malformed octets all become the same one, which no well-formed text holds.
std::string FoldText(std::string_view utf8);

}  // namespace ostrel
