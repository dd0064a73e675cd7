#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace ostrel {

/// A text without the blanks and tabs around it.
std::string_view WithoutBlanks(std::string_view text);

/// The name of a section or key, in UTF-8, as a file's reader compares it.
std::string NameRead(std::string_view name);

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

  /// The value of a key; empty when there is none. The view lives as long as the index. Asking all
  /// keys of one section in a row is fastest: it is looked up once.
  std::string_view Find(std::string_view section, std::string_view key);

 private:
  /// By names without letter case.
  using Keys = std::unordered_map<std::string_view, std::string_view>;

  void AddLine(std::string_view line);
  std::string_view FoldInPlace(std::string_view name);
  Keys* KeysOf(std::string_view section);

  std::string text_;
  std::unordered_map<std::string_view, Keys> sections_;
  Keys* open_ = nullptr;  ///< of the section that the next line's key belongs to
  std::optional<std::string> askedSection_;
  Keys* askedKeys_ = nullptr;
};

}  // namespace ostrel
