#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ostrel {

/// What an octet that belongs to no well-formed UTF-8 sequence counts as: one character by itself.
inline constexpr char32_t kMalformed = 0xFFFFFFFF;

/// The character at `position`, which moves behind it. `position` must lie within the text.
/// A malformed octet gives `kMalformed` and counts alone.
char32_t NextCharacter(std::string_view text, std::size_t& position);

/// Appends a character in UTF-8. It must be a valid one.
void AppendCharacter(char32_t character, std::string& text);

/// Length of a text in characters.
std::size_t CharacterCount(std::string_view text);

/// The first `count` characters of a text; all of it when it has no more.
std::string_view FirstCharacters(std::string_view text, std::size_t count);

}  // namespace ostrel
