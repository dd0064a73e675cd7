#include "platform/SerialDevice.h"

#include <charconv>

namespace ostrel {
namespace {

/// The next part of a text of commas, without blanks around it.
std::string_view NextPart(std::string_view& rest) {
  const std::size_t end = rest.find(',');
  std::string_view part = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  while (part.starts_with(' ')) part.remove_prefix(1);
  while (part.ends_with(' ')) part.remove_suffix(1);
  return part;
}

/// A whole number from `least` to `most`; `other` for anything else.
int NumberOr(std::string_view text, int least, int most, int other) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool isWhole = error == std::errc() && end == text.data() + text.size();
  return isWhole && number >= least && number <= most ? number : other;
}

}  // namespace

LineSettings ReadLineSettings(std::string_view text) {
  constexpr int kFastest = 4'000'000;
  LineSettings read;
  read.speed = NumberOr(NextPart(text), 1, kFastest, read.speed);
  const std::string_view parity = NextPart(text);
  if (parity == "E" || parity == "e") read.parity = 'E';
  if (parity == "O" || parity == "o") read.parity = 'O';
  read.dataBits = NumberOr(NextPart(text), 5, 8, read.dataBits);
  read.stopBits = NumberOr(NextPart(text), 1, 2, read.stopBits);
  return read;
}

}  // namespace ostrel
