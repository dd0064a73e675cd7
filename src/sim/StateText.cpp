#include "sim/StateText.h"

#include <charconv>
#include <cmath>
#include <optional>
#include <system_error>

#include "sim/wire/NumberText.h"
#include "sim/wire/Text1252.h"

namespace ostrel::sim {
namespace {

constexpr std::string_view kLowerHexDigits = "0123456789abcdef";

bool IsEscaped(char c) { return c == '\\' || static_cast<unsigned char>(c) < 0x20; }

/// Controls and the backslash stand as "\0d", so that every text fits on its line.
std::string Escape(std::string_view octets) {
  std::string text;
  for (const char c : octets) {
    if (IsEscaped(c))
      text.append(
          {'\\', kLowerHexDigits[static_cast<std::size_t>(c) >> 4], kLowerHexDigits[c & 15]});
    else
      text += c;
  }
  return text;
}

std::optional<std::string> Unescape(std::string_view text) {
  std::string octets;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\') {
      octets += text[i];
      continue;
    }
    if (i + 2 >= text.size()) return std::nullopt;
    const std::size_t high = kLowerHexDigits.find(text[i + 1]);
    const std::size_t low = kLowerHexDigits.find(text[i + 2]);
    if (high >= 8 || low >= 16) return std::nullopt;
    octets += static_cast<char>(high * 16 + low);
    i += 2;
  }
  return octets;
}

template <class Number>
bool ReadNumber(std::string_view text, Number& number) {
  const auto parsed = std::from_chars(text.data(), text.data() + text.size(), number);
  return parsed.ec == std::errc{} && parsed.ptr == text.data() + text.size();
}

}  // namespace

void StateWriter::Put(const std::string& key, std::string_view value) {
  text_.append(key).append(" = ").append(value).append("\n");
}

void StateWriter::operator()(const std::string& key, std::string_view text,
                             std::string_view standard) {
  if (text != standard) Put(key, ToUtf8(Escape(text)));
}

void StateWriter::operator()(const std::string& key, std::int64_t number) {
  Put(key, std::to_string(number));
}

void StateWriter::operator()(const std::string& key, float number, float standard) {
  std::string digits;
  AppendNumber(digits, number);
  if (number != standard) Put(key, digits);
}

void StateWriter::operator()(const std::string& kind, const std::vector<std::string>& texts) {
  int number = 0;
  for (const std::string& text : texts) {
    std::string key = kind + ".";
    AppendPadded(key, number++, 4);  // so that keys stand in the order of their numbers
    (*this)(key, text);
  }
}

void StateWriter::PutNumbers(const std::string& key, const int* numbers, std::size_t count) {
  std::string list;
  for (std::size_t i = 0; i < count; ++i) {
    if (i > 0) list += ' ';
    AppendNumber(list, numbers[i]);
  }
  Put(key, list);
}

StateReader::StateReader(std::string_view text) {
  for (int number = 1; !text.empty() && error_.empty(); ++number) {
    std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(text.size(), line.size() + 1));
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (!line.empty() && line.front() != ';') TakeLine(line, number);
  }
}

void StateReader::TakeLine(std::string_view line, int number) {
  const std::size_t equals = line.find(" = ");
  const auto octets =
      equals == std::string_view::npos ? std::nullopt : FromUtf8(line.substr(equals + 3));
  const auto value = octets ? Unescape(*octets) : std::nullopt;
  if (!value)
    Fail("line " + std::to_string(number) + " is no \"key = value\"");
  else if (!values_.emplace(line.substr(0, equals), *value).second)
    Fail("line " + std::to_string(number) + ": the key stands twice");
}

void StateReader::Fail(std::string error) {
  if (error_.empty()) error_ = std::move(error);
}

bool StateReader::TakeValue(const std::string& key, std::string& value) {
  auto node = values_.extract(key);
  if (node) value = std::move(node.mapped());
  return !node.empty();
}

template <class Number>
void StateReader::TakeNumber(const std::string& key, Number& number) {
  std::string value;
  if (TakeValue(key, value) && !ReadNumber(value, number)) Fail(key + " is no number");
}

void StateReader::operator()(const std::string& key, std::string& text, std::string_view) {
  TakeValue(key, text);
}
void StateReader::operator()(const std::string& key, int& number) { TakeNumber(key, number); }
void StateReader::operator()(const std::string& key, std::int64_t& number) {
  TakeNumber(key, number);
}

void StateReader::operator()(const std::string& key, std::uint32_t& bits) { TakeNumber(key, bits); }

void StateReader::operator()(const std::string& key, float& number, float) {
  TakeNumber(key, number);
  if (!std::isfinite(number)) Fail(key + " is no number");
}

void StateReader::operator()(const std::string& key, bool& value) {
  int number = value ? 1 : 0;
  TakeNumber(key, number);
  value = number != 0;
}

void StateReader::operator()(const std::string& kind, std::vector<std::string>& texts) {
  for (auto& [number, text] : TakeAll(kind + ".")) texts.push_back(std::move(text));
}

void StateReader::TakeNumbers(const std::string& key, int* numbers, std::size_t count) {
  std::string value;
  if (!TakeValue(key, value)) return;
  std::string_view rest = value;
  for (std::size_t i = 0; i < count; ++i) {
    const std::string_view number = rest.substr(0, rest.find(' '));
    rest.remove_prefix(std::min(rest.size(), number.size() + 1));
    if (!ReadNumber(number, numbers[i])) return Fail(key + " is no list of numbers");
  }
  if (!rest.empty()) Fail(key + " is too long");
}

bool StateReader::Holds(const std::string& prefix) const {
  const auto at = values_.lower_bound(prefix);
  return at != values_.end() && at->first.starts_with(prefix);
}

std::map<std::string, std::string> StateReader::TakeAll(const std::string& prefix) {
  std::map<std::string, std::string> taken;
  auto at = values_.lower_bound(prefix);
  while (at != values_.end() && at->first.starts_with(prefix)) {
    taken.emplace(at->first.substr(prefix.size()), std::move(at->second));
    at = values_.erase(at);
  }
  return taken;
}

bool StateReader::Done() {
  if (!values_.empty()) Fail("unknown key " + values_.begin()->first);
  return error_.empty();
}

}  // namespace ostrel::sim
