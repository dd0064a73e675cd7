#include "shell/words/Phrase.h"

namespace ostrel {

std::string Filled(std::string_view text, const std::vector<std::string>& arguments) {
  std::string filled;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char next = i + 1 < text.size() ? text[i + 1] : '\0';
    const auto place = static_cast<std::size_t>(next - '1');
    if (text[i] == '%' && next >= '1' && place < arguments.size()) {
      filled += arguments[place];
      ++i;
    } else {
      filled += text[i];
    }
  }
  return filled;
}

}  // namespace ostrel
