#include "recording/Recording.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "link/WireText.h"
#include "platform/Digits.h"

namespace ostrel {
namespace {

constexpr std::string_view kLetters = ";$><!=";  // in the order of the kinds
constexpr char kTimeLetter = '@';
constexpr std::size_t kMilliDigits = 3;

std::string Escaped(std::string_view octets) {
  std::string text;
  for (const char c : octets) {
    const auto octet = static_cast<unsigned char>(c);
    if (c == '\\')
      text += "\\\\";
    else if (c == '\r')
      text += "\\r";
    else if (c == '\n')
      text += "\\n";
    else if (octet < 0x20 || octet > 0x7E)
      text += "\\x" + HexOctet(octet);
    else
      text += c;
  }
  return text;
}

/// The octet that an escape stands for, which is taken off the head of a text behind its "\".
std::optional<char> TakeEscaped(std::string_view& text) {
  if (text.empty()) return {};
  const char letter = text.front();
  text.remove_prefix(1);
  if (letter == '\\') return '\\';
  if (letter == 'r') return '\r';
  if (letter == 'n') return '\n';
  unsigned octet = 0;
  if (letter != 'x' || text.size() < 2) return {};
  const auto read = std::from_chars(text.data(), text.data() + 2, octet, 16);
  if (read.ec != std::errc() || read.ptr != text.data() + 2) return {};
  text.remove_prefix(2);
  return static_cast<char>(octet);
}

std::optional<std::string> Unescaped(std::string_view text) {
  std::string octets;
  while (!text.empty()) {
    const char c = text.front();
    text.remove_prefix(1);
    const std::optional<char> octet = c == '\\' ? TakeEscaped(text) : c;
    if (!octet) return {};
    octets += *octet;
  }
  return octets;
}

/// A time such as "12.034", in seconds.
std::optional<Duration> TimeOf(std::string_view text) {
  const std::size_t point = text.find('.');
  if (point == std::string_view::npos || text.size() - point - 1 != kMilliDigits) return {};
  std::int64_t milliseconds = 0;
  const std::string digits = std::string(text.substr(0, point)).append(text.substr(point + 1));
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), milliseconds);
  constexpr std::int64_t kLongest = std::int64_t{1} << 40;  // some 35 years
  const bool isWhole = read.ec == std::errc() && read.ptr == digits.data() + digits.size();
  if (!isWhole || milliseconds < 0 || milliseconds > kLongest) return {};
  return std::chrono::milliseconds(milliseconds);
}

/// Takes a line over into a recording; the words of what is wrong with it, or nothing.
std::string TakeLine(std::string_view line, Duration& now, Recording& recording) {
  const char letter = line.front();
  const std::string_view rest = line.substr(std::min<std::size_t>(2, line.size()));
  if (line.size() > 1 && line[1] != ' ') return "a blank belongs behind the first letter";
  if (letter == kTimeLetter) {
    const auto at = TimeOf(rest);
    if (at) now = *at;
    return at ? "" : "\"" + std::string(rest) + "\" is no time";
  }
  const std::size_t kind = kLetters.find(letter);
  if (kind == std::string_view::npos) return std::string("no line starts with \"") + letter + "\"";
  auto octets = Unescaped(rest);
  if (!octets) return "an escape is none of \\\\ \\r \\n \\x and two digits";
  recording.push_back({now, static_cast<RecordedKind>(kind), std::move(*octets)});
  return {};
}

}  // namespace

std::string RecordedLine(const RecordedEvent& event) {
  return std::string{kLetters[static_cast<std::size_t>(event.kind)], ' '} + Escaped(event.text) +
         "\n";
}

std::string RecordedTime(Duration at) {
  const auto whole = std::chrono::duration_cast<std::chrono::milliseconds>(at).count();
  return std::string{kTimeLetter, ' '} + std::to_string(whole / 1000) + "." +
         Padded(whole % 1000, kMilliDigits) + "\n";
}

std::optional<Recording> ReadRecording(std::string_view text, std::string& error) {
  error.clear();
  Recording recording;
  Duration now{};
  for (std::size_t number = 1; !text.empty(); ++number) {
    std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (number == 1 && line != kLineRecordingHead) error = "it is no recording";
    if (number > 1 && !line.empty()) error = TakeLine(line, now, recording);
    if (error.empty()) continue;
    error = "line " + std::to_string(number) + ": " + error;
    return std::nullopt;
  }
  if (recording.empty()) error = "it is no recording";
  if (!error.empty()) return std::nullopt;
  // A line is written when it ends, and counts from when it began.
  std::ranges::stable_sort(recording, {}, &RecordedEvent::at);
  return recording;
}

}  // namespace ostrel
