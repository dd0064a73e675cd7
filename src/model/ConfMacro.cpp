#include "model/ConfMacro.h"

#include <charconv>

namespace ostrel {

std::string PoolLine(std::string_view word, std::int32_t number, std::string_view body) {
  return std::string(word) + std::to_string(number) + "={" + std::string(body) + "}";
}

std::optional<MacroLine> ReadMacroLine(std::string_view line) {
  MacroLine read{.isEquation = !line.starts_with(kMacroWord), .command = {}};
  const std::string_view word = read.isEquation ? kEquationWord : kMacroWord;
  if (!line.starts_with(word)) return {};
  line.remove_prefix(word.size());
  const auto number = std::from_chars(line.data(), line.data() + line.size(), read.number);
  if (number.ec != std::errc() || read.number < 0) return {};
  line.remove_prefix(static_cast<std::size_t>(number.ptr - line.data()));
  if (!line.starts_with("={") || line.find('}') != line.size() - 1) return {};
  read.command = line.substr(2, line.size() - 3);
  if (const std::size_t at = read.command.find(kMacroName);
      !read.isEquation && at != std::string_view::npos) {
    read.name = read.command.substr(at + kMacroName.size());
    read.command = read.command.substr(0, at);
  }
  return read;
}

}  // namespace ostrel
