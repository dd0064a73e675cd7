#include "store/ProfileIndex.h"

#include <algorithm>

#include "base/CodePage.h"

namespace ostrel {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

/// Takes the text up to the first `end` character off `rest`, and that character with it.
std::string_view TakeUntil(char end, std::string_view& rest) {
  const std::size_t length = std::min(rest.find(end), rest.size());
  const std::string_view taken = rest.substr(0, length);
  rest.remove_prefix(std::min(length + 1, rest.size()));
  return taken;
}

std::string Folded(std::string_view name) {
  std::string folded(name);
  FoldOctets(folded);
  return folded;
}

}  // namespace

std::string_view WithoutBlanks(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

std::string NameRead(std::string_view name) { return FoldText(WithoutBlanks(name)); }

ProfileIndex::ProfileIndex(std::string octets) : text_(std::move(octets)) {
  std::string_view rest = text_;
  while (!rest.empty()) {
    std::string_view lines = TakeUntil('\n', rest);
    while (!lines.empty()) AddLine(WithoutBlanks(TakeUntil('\r', lines)));
  }
}

void ProfileIndex::AddLine(std::string_view line) {
  const std::size_t close = line.starts_with('[') ? line.rfind(']') : std::string_view::npos;
  if (close != std::string_view::npos) {
    const std::string_view name = FoldInPlace(WithoutBlanks(line.substr(1, close - 1)));
    const auto [section, isFirst] = sections_.try_emplace(name);
    open_ = isFirst ? &section->second : nullptr;
    return;
  }
  const std::size_t equals = line.find('=');
  if (open_ == nullptr || equals == std::string_view::npos) return;
  const std::string_view name = FoldInPlace(WithoutBlanks(line.substr(0, equals)));
  open_->try_emplace(name, WithoutBlanks(line.substr(equals + 1)));
}

/// Takes the letter case off a name where it stands in the text.
std::string_view ProfileIndex::FoldInPlace(std::string_view name) {
  const auto start = static_cast<std::size_t>(name.data() - text_.data());
  FoldOctets({text_.data() + start, name.size()});
  return name;
}

/// The keys of a section; null when there is none of the name.
ProfileIndex::Keys* ProfileIndex::KeysOf(std::string_view section) {
  if (askedSection_ != section) {
    askedSection_ = section;
    const auto found = sections_.find(Folded(WithoutBlanks(section)));
    askedKeys_ = found == sections_.end() ? nullptr : &found->second;
  }
  return askedKeys_;
}

std::string_view ProfileIndex::Find(std::string_view section, std::string_view key) {
  const Keys* const keys = KeysOf(section);
  if (keys == nullptr) return {};
  const auto found = keys->find(Folded(WithoutBlanks(key)));
  return found == keys->end() ? std::string_view() : found->second;
}

}  // namespace ostrel
