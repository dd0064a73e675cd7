#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace ostrel {

/// Gives this program's English texts in other languages, by the tables that it brings along. A
/// text that its table lacks, and one of a language without a table, stays English.
std::function<std::string(std::string_view language, std::string_view text)> MakeTranslator();

}  // namespace ostrel
