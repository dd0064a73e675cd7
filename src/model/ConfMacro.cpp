#include "model/ConfMacro.h"

#include <charconv>

namespace ostrel {
namespace {

constexpr std::string_view kMacro = "MACRO";
constexpr std::string_view kEquation = "F";
constexpr std::string_view kName = ",NAME=";

}  // namespace

std::optional<MacroLine> ReadMacroLine(std::string_view line) {
  MacroLine read{.isEquation = !line.starts_with(kMacro), .command = {}};
  const std::string_view word = read.isEquation ? kEquation : kMacro;
  if (!line.starts_with(word)) return {};
  line.remove_prefix(word.size());
  const auto number = std::from_chars(line.data(), line.data() + line.size(), read.number);
  if (number.ec != std::errc() || read.number < 0) return {};
  line.remove_prefix(static_cast<std::size_t>(number.ptr - line.data()));
  if (!line.starts_with("={") || line.find('}') != line.size() - 1) return {};
  read.command = line.substr(2, line.size() - 3);
  if (const std::size_t at = read.command.find(kName);
      !read.isEquation && at != std::string_view::npos) {
    read.name = read.command.substr(at + kName.size());
    read.command = read.command.substr(0, at);
  }
  return read;
}

}  // namespace ostrel
