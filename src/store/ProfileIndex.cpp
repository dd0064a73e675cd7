#include "store/ProfileIndex.h"

#include <algorithm>

#include "base/CodePage.h"

namespace ostrel {
namespace {

/// The owner of keys that stand in no section, or in a later occurrence of one.
constexpr std::uint32_t kNoOwner = 0xFFFFFFFF;
constexpr std::size_t kFirstSlots = 1024;

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

/// Takes the text up to the first `end` character off `rest`, and that character with it.
std::string_view TakeUntil(char end, std::string_view& rest) {
  const std::size_t length = std::min(rest.find(end), rest.size());
  const std::string_view taken = rest.substr(0, length);
  rest.remove_prefix(std::min(length + 1, rest.size()));
  return taken;
}

bool SameName(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return FoldOctet(x) == FoldOctet(y);
         });
}

}  // namespace

ProfileIndex::ProfileIndex(std::string octets) : text_(std::move(octets)), slots_(kFirstSlots) {
  std::uint32_t owner = kNoOwner;
  std::string_view rest = text_;
  while (!rest.empty()) {
    std::string_view lines = TakeUntil('\n', rest);
    while (!lines.empty()) AddLine(Trimmed(TakeUntil('\r', lines)), owner);
  }
}

void ProfileIndex::AddLine(std::string_view line, std::uint32_t& owner) {
  const std::size_t close = line.rfind(']');
  if (line.starts_with('[') && close != std::string_view::npos) {
    const bool isFirst = Add(0, Trimmed(line.substr(1, close - 1)), {});
    owner = isFirst ? static_cast<std::uint32_t>(entries_.size()) : kNoOwner;
    return;
  }
  const std::size_t equals = line.find('=');
  if (owner == kNoOwner || equals == std::string_view::npos) return;
  Add(owner, Trimmed(line.substr(0, equals)), Trimmed(line.substr(equals + 1)));
}

std::uint32_t ProfileIndex::HashOf(std::uint32_t owner, std::string_view name) {
  std::uint32_t hash = 0x811C9DC5U ^ (owner * 0x9E3779B1U);
  for (const char c : name) hash = (hash ^ FoldOctet(c)) * 0x01000193U;
  return hash ^ hash >> 15U;
}

/// The slot of an entry, or the free one where it belongs. There always is a free one.
std::size_t ProfileIndex::SlotOf(std::uint32_t owner, std::uint32_t hash,
                                 std::string_view name) const {
  std::size_t slot = hash & (slots_.size() - 1);
  for (; slots_[slot] != 0; slot = (slot + 1) & (slots_.size() - 1)) {
    const Entry& entry = entries_[slots_[slot] - 1];
    if (entry.hash == hash && entry.owner == owner && SameName(entry.name, name)) break;
  }
  return slot;
}

/// Adds an entry; false when one of that name stands.
bool ProfileIndex::Add(std::uint32_t owner, std::string_view name, std::string_view value) {
  if (entries_.size() * 2 >= slots_.size()) Grow();
  const std::uint32_t hash = HashOf(owner, name);
  std::uint32_t& slot = slots_[SlotOf(owner, hash, name)];
  if (slot != 0) return false;
  entries_.push_back({owner, hash, name, value});
  slot = static_cast<std::uint32_t>(entries_.size());
  return true;
}

void ProfileIndex::Grow() {
  slots_.assign(slots_.size() * 4, 0);
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    std::size_t slot = entries_[i].hash & (slots_.size() - 1);
    while (slots_[slot] != 0) slot = (slot + 1) & (slots_.size() - 1);
    slots_[slot] = static_cast<std::uint32_t>(i + 1);
  }
}

std::string_view ProfileIndex::Find(std::string_view section, std::string_view key) const {
  section = Trimmed(section);
  key = Trimmed(key);
  const std::uint32_t owner = slots_[SlotOf(0, HashOf(0, section), section)];
  if (owner == 0) return {};
  const std::uint32_t found = slots_[SlotOf(owner, HashOf(owner, key), key)];
  return found == 0 ? std::string_view() : entries_[found - 1].value;
}

}  // namespace ostrel
