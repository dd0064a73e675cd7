#pragma once

#include <cstddef>
#include <functional>
#include <iterator>
#include <list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "base/CodePage.h"

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

  OrderedMap() = default;
  OrderedMap(OrderedMap&&) noexcept = default;
  OrderedMap& operator=(OrderedMap&&) noexcept = default;

  Value* Find(std::string_view key) {
    const auto found = Indexed(key);
    return found == index_.end() ? nullptr : &found->second->value;
  }
  const Value* Find(std::string_view key) const {
    const auto found = Indexed(key);
    return found == index_.end() ? nullptr : &found->second->value;
  }

  /// Adds a key that the map does not hold at the end of the order.
  Value& Add(std::string_view key, Value value) {
    entries_.push_back({std::string(key), std::move(value)});
    AddToIndex(std::prev(entries_.end()));
    return entries_.back().value;
  }

  /// False when the key is absent.
  bool Remove(std::string_view key) {
    const auto found = Indexed(key);
    if (found == index_.end()) return false;
    const auto entry = found->second;
    index_.erase(found);
    entries_.erase(entry);
    // A change of mode may have hidden a later key behind this one.
    if (index_.size() != entries_.size()) SetMode(mode_);
    return true;
  }

  void Clear() {
    index_.clear();
    entries_.clear();
  }

  /// Changes how keys compare. Where keys become equal, the first in order is the one found.
  void SetMode(CaseMode mode) {
    mode_ = mode;
    index_.clear();
    for (auto entry = entries_.begin(); entry != entries_.end(); ++entry) AddToIndex(entry);
  }

  auto begin() const { return entries_.begin(); }
  auto end() const { return entries_.end(); }
  std::size_t size() const { return entries_.size(); }

 private:
  struct Hash : std::hash<std::string_view> {
    using is_transparent = void;
  };
  using Entries = std::list<Entry>;
  using Index = std::unordered_map<std::string, typename Entries::iterator, Hash, std::equal_to<>>;

  typename Index::const_iterator Indexed(std::string_view key) const {
    return mode_ == CaseMode::Exact ? index_.find(key) : index_.find(FoldText(key));
  }

  void AddToIndex(typename Entries::iterator entry) {
    index_.emplace(mode_ == CaseMode::Exact ? entry->key : FoldText(entry->key), entry);
  }

  CaseMode mode_ = CaseMode::Exact;
  Entries entries_;
  Index index_;  ///< by the keys as they compare
};

}  // namespace ostrel
