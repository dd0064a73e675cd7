#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <iterator>
#include <list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "base/CodePage.h"
#include "base/Utf8.h"

namespace ostrel {

/// How the keys of a map compare.
enum class CaseMode { Exact, Folded };

/// A map from text to values that keeps the order in which keys were added, with a hash index
/// beside. Values keep their address until they are removed.
template <class Value>
class OrderedMap {
 public:
  struct Entry {
    std::string key;
    Value value;
  };

  explicit OrderedMap(CaseMode mode = CaseMode::Exact) : index_(0, Hash{mode}, Equal{mode}) {}
  OrderedMap(OrderedMap&&) noexcept = default;
  OrderedMap& operator=(OrderedMap&&) noexcept = default;

  Value* Find(std::string_view key) {
    const auto found = index_.find(key);
    return found == index_.end() ? nullptr : &found->second->value;
  }
  const Value* Find(std::string_view key) const {
    const auto found = index_.find(key);
    return found == index_.end() ? nullptr : &found->second->value;
  }

  /// Adds a key that the map does not hold at the end of the order.
  Value& Add(std::string_view key, Value value) {
    entries_.push_back({std::string(key), std::move(value)});
    const auto last = std::prev(entries_.end());
    index_.emplace(last->key, last);
    return last->value;
  }

  /// False when the key is absent.
  bool Remove(std::string_view key) {
    const auto found = index_.find(key);
    if (found == index_.end()) return false;
    const auto entry = found->second;
    index_.erase(found);
    entries_.erase(entry);
    // A change of mode may have hidden a later key behind this one.
    if (index_.size() != entries_.size()) SetMode(index_.hash_function().mode);
    return true;
  }

  void Clear() {
    index_.clear();
    entries_.clear();
  }

  /// Changes how keys compare. Where keys become equal, the first in order is the one found.
  void SetMode(CaseMode mode) {
    index_ = Index(entries_.size(), Hash{mode}, Equal{mode});
    for (auto entry = entries_.begin(); entry != entries_.end(); ++entry)
      index_.emplace(entry->key, entry);
  }

  auto begin() const { return entries_.begin(); }
  auto end() const { return entries_.end(); }
  std::size_t size() const { return entries_.size(); }

 private:
  struct Hash {
    CaseMode mode;

    std::size_t operator()(std::string_view text) const {
      if (mode == CaseMode::Exact) return std::hash<std::string_view>()(text);
      std::uint64_t hash = 0xCBF29CE484222325U;
      for (std::size_t position = 0; position < text.size();)
        hash = (hash ^ FoldCharacter(NextCharacter(text, position))) * 0x100000001B3U;
      return static_cast<std::size_t>(hash);
    }
  };
  struct Equal {
    CaseMode mode;

    bool operator()(std::string_view a, std::string_view b) const {
      if (mode == CaseMode::Exact) return a == b;
      std::size_t inA = 0;
      std::size_t inB = 0;
      while (inA < a.size() && inB < b.size())
        if (FoldCharacter(NextCharacter(a, inA)) != FoldCharacter(NextCharacter(b, inB)))
          return false;
      return inA == a.size() && inB == b.size();
    }
  };
  using Entries = std::list<Entry>;
  using Index = std::unordered_map<std::string_view, typename Entries::iterator, Hash, Equal>;

  Entries entries_;
  Index index_;  ///< views into the keys of `entries_`
};

}  // namespace ostrel
