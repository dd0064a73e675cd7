#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel {

/// The keys of one profile file, found in one pass over its text. The first occurrence of a section
/// counts, and of a key in it; names compare ignoring letter case. CR and LF end a line; blanks and
/// tabs at the ends of names and values do not belong to them.
///
/// All texts are octets of code page 1252. Not movable: the index points into the text that it
/// owns.
class ProfileIndex {
 public:
  explicit ProfileIndex(std::string octets);
  ProfileIndex(const ProfileIndex&) = delete;
  ProfileIndex& operator=(const ProfileIndex&) = delete;

  /// The value of a key; empty when there is none. The view lives as long as the index.
  std::string_view Find(std::string_view section, std::string_view key) const;

 private:
  /// A section, or a key of one.
  struct Entry {
    std::uint32_t owner;  ///< 0 for a section, else 1 + the entry number of the key's section
    std::uint32_t hash;
    std::string_view name, value;
  };

  static std::uint32_t HashOf(std::uint32_t owner, std::string_view name);
  std::size_t SlotOf(std::uint32_t owner, std::uint32_t hash, std::string_view name) const;
  bool Add(std::uint32_t owner, std::string_view name, std::string_view value);
  void Grow();
  void AddLine(std::string_view line, std::uint32_t& owner);

  const std::string text_;
  std::vector<Entry> entries_;
  std::vector<std::uint32_t> slots_;  ///< open addressing: 1 + entry number, 0 when free
};

}  // namespace ostrel
