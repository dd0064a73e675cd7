#include "store/IniClass.h"

#include <algorithm>
#include <charconv>

#include "base/CodePage.h"
#include "base/Utf8.h"

namespace ostrel {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

/// Characters that stand behind a backslash in escaped text, by what they stand for.
struct Escape {
  char plain, letter;
};
constexpr Escape kEscapes[] = {{'\\', '\\'}, {'\r', 'r'}, {'\n', 'n'}, {'\t', 't'}, {'"', '"'}};

[[noreturn]] void Raise(std::string_view what, std::string_view name) {
  throw IniError(std::string(what) + " \"" + std::string(name) + "\"");
}

bool IsHeader(std::string_view line) {
  return line.size() > 1 && line.front() == '[' && line.back() == ']';
}

/// Takes the character of a decimal code off the text behind a backslash: three characters, or what
/// is left. They are gone even when they are no number of a character.
std::string TakeCode(std::string_view& text) {
  const std::string_view digits = FirstCharacters(text, 3);
  text.remove_prefix(digits.size());
  unsigned code = 0;
  const char* const end = digits.data() + digits.size();
  const auto result = std::from_chars(digits.data(), end, code);
  if (result.ptr != end || code > 0xFF) return {};
  const char octet = static_cast<char>(code);
  return FromCodePage({&octet, 1});
}

/// Takes what stands behind a backslash off the text and gives its meaning.
std::string TakeEscape(std::string_view& text) {
  if (text.front() >= '0' && text.front() <= '9') return TakeCode(text);
  const char letter = text.front();
  for (const Escape& escape : kEscapes) {
    if (escape.letter != letter) continue;
    text.remove_prefix(1);
    return {escape.plain};
  }
  const std::string_view character = FirstCharacters(text, 1);
  text.remove_prefix(character.size());
  return std::string("\\").append(character);
}

}  // namespace

void IniClass::NewINI() {
  root_ = OrderedMap<Section>();
  ApplyCaseMode();
}

void IniClass::OpenINI(const std::string& path, bool skipComments) {
  const auto octets = files_.Read(path);
  if (octets) path_ = path;
  ParseText(FromCodePage(octets.value_or("")), skipComments, true);
}

void IniClass::InsertINI(const std::string& path, bool skipComments) {
  const auto octets = files_.Read(path);
  ParseText(FromCodePage(octets.value_or("")), skipComments, false);
}

void IniClass::InputINI(std::string_view text, bool skipComments) {
  ParseText(text, skipComments, true);
}

void IniClass::InsertData(std::string_view text, bool skipComments) {
  ParseText(text, skipComments, false);
}

void IniClass::ApplyCaseMode() {
  root_.SetMode(caseSensitive_ ? CaseMode::Exact : CaseMode::Folded);
}

void IniClass::ParseText(std::string_view text, bool skipComments, bool reset) {
  if (reset) root_ = OrderedMap<Section>();
  ApplyCaseMode();
  std::string lines(text);
  std::erase(lines, '\r');
  std::string_view rest = lines;
  Section* current = root_.Find("");
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    const std::string_view line = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    if (line.empty() || (skipComments && line.front() == '#')) continue;
    if (IsHeader(line)) {
      const std::string_view name = line.substr(1, line.size() - 2);
      current = root_.Find(name);
      if (current == nullptr) current = &root_.Add(name, KeyTable());
    } else {
      ParseKeyLine(line, current);
    }
  }
}

void IniClass::ParseKeyLine(std::string_view line, Section*& current) {
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos) return;
  // A key ahead of the first header is lost, and leaves the empty name without a key table.
  if (current == nullptr) current = &root_.Add("", std::nullopt);
  if (!current->has_value()) return;
  const std::string_view key = line.substr(0, equals);
  (*current)->Remove(key);
  (*current)->Add(key, std::string(line.substr(equals + 1)));
}

std::string IniClass::OutputINI() const {
  std::string text;
  const auto line = [&](auto... parts) {
    if (!text.empty()) text += kLineEnd;
    (text.append(parts), ...);
  };
  Visit([&](std::string_view section) { line("[", section, "]"); },
        [&](std::string_view key, std::string_view value) { line(key, "=", value); });
  return text;
}

FileResult IniClass::SaveINI(const std::string& path, Replacing replacing, Readers readers) const {
  return SaveWhole(files_, path, ToCodePage(OutputINI()), replacing, readers);
}

IniClass::KeyTable& IniClass::TableOf(std::string_view section) {
  Section* const found = root_.Find(section);
  if (found == nullptr) root_.Add(section, std::nullopt);
  if (found == nullptr || !found->has_value()) Raise("no keys in section", section);
  return **found;
}

std::string IniClass::ReadKey(std::string_view section, std::string_view key) {
  KeyTable& table = TableOf(section);
  const std::string* const value = table.Find(key);
  return value != nullptr ? *value : table.Add(key, "");
}

std::string IniClass::ReadKeyEscaped(std::string_view section, std::string_view key) {
  return UnescapeText(ReadKey(section, key));
}

void IniClass::WriteKey(std::string_view section, std::string_view key, std::string_view value) {
  if (root_.Find(section) == nullptr) root_.Add(section, KeyTable());
  KeyTable& table = TableOf(section);
  if (std::string* const present = table.Find(key))
    *present = value;
  else
    table.Add(key, std::string(value));
}

void IniClass::WriteKeyEscaped(std::string_view section, std::string_view key,
                               std::string_view value) {
  WriteKey(section, key, EscapeText(value));
}

std::string IniClass::KeyData(std::string_view section, std::string_view key) {
  return ReadKey(section, key);
}

void IniClass::SetKeyData(std::string_view section, std::string_view key, std::string_view value) {
  WriteKey(section, key, value);
}

std::string IniClass::KeyDataEscaped(std::string_view section, std::string_view key) {
  return ReadKeyEscaped(section, key);
}

void IniClass::SetKeyDataEscaped(std::string_view section, std::string_view key,
                                 std::string_view value) {
  WriteKeyEscaped(section, key, value);
}

std::vector<std::string> IniClass::GetSection(std::string_view section) {
  std::vector<std::string> keys;
  for (const auto& entry : TableOf(section)) keys.push_back(entry.key);
  return keys;
}

void IniClass::EmptySection(std::string_view section) { TableOf(section).Clear(); }

void IniClass::RemoveKey(std::string_view section, std::string_view key) {
  if (!KeyExists(section, key)) Raise("no key", key);
  TableOf(section).Remove(key);
}

void IniClass::RemoveSection(std::string_view section) {
  if (!root_.Remove(section)) Raise("no section", section);
}

const std::string* IniClass::Find(std::string_view section, std::string_view key) const {
  const Section* const found = root_.Find(section);
  return found != nullptr && found->has_value() ? (*found)->Find(key) : nullptr;
}

bool IniClass::KeyExists(std::string_view section, std::string_view key) const {
  return Find(section, key) != nullptr;
}

void IniClass::SetKeyExists(std::string_view section, std::string_view key, bool exists) {
  if (exists)
    ReadKey(section, key);
  else if (KeyExists(section, key))
    TableOf(section).Remove(key);
}

bool IniClass::SectionExists(std::string_view, std::string_view second) const {
  return root_.Find(second) != nullptr;
}

void IniClass::SetSectionExists(std::string_view first, std::string_view, bool exists) {
  if (!exists)
    root_.Remove(first);
  else if (root_.Find(first) == nullptr)
    root_.Add(first, std::nullopt);
}

std::string IniClass::EscapeText(std::string_view text) {
  std::string escaped;
  escaped.reserve(text.size());
  for (const char c : text) {
    const auto* const found = std::find_if(std::begin(kEscapes), std::end(kEscapes),
                                           [c](const Escape& escape) { return escape.plain == c; });
    if (found == std::end(kEscapes))
      escaped += c;
    else
      escaped.append({'\\', found->letter});
  }
  return escaped;
}

std::string IniClass::UnescapeText(std::string_view text) {
  std::string plain;
  while (!text.empty()) {
    const std::size_t slash = text.find('\\');
    plain += text.substr(0, slash);
    if (slash == std::string_view::npos) break;
    text.remove_prefix(slash + 1);
    if (!text.empty()) plain += TakeEscape(text);
  }
  return plain;
}

}  // namespace ostrel
