#pragma once

#include <string>
#include <string_view>

namespace ostrel {

// Texts as this system's own calls take and give them: UTF-16. What is no valid text becomes the
// sign for that.
std::wstring ToWide(std::string_view utf8);
std::string FromWide(std::wstring_view wide);

/// A path for a call of the system: absolute ones that are long get the prefix that lifts the limit
/// of 260 characters.
std::wstring WidePath(const std::string& path);

/// The whole path of a name, without "." and "..", with this system's separators.
std::wstring WholePath(const std::wstring& path);

/// The system's words for an error of its own, without a full stop or a line end.
std::string SystemWords(unsigned long code);

}  // namespace ostrel
