#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "base/OrderedMap.h"
#include "platform/Files.h"

namespace ostrel {

/// A section or key that an operation needs is not there.
class IniError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// An INI document in memory: sections in the order in which they first appeared, each with its
/// keys in order. Section names may fold letter case, key names never do.
///
/// A section can stand without a key table: it is written as a bare header and takes no key. Only
/// `WriteKey` and the parser make a section that takes keys.
///
/// Text in memory is UTF-8, the file is code page 1252.
class IniClass {
 public:
  explicit IniClass(Files& files) : files_(files) {}

  /// Whether section names compare exactly. It takes effect with the next `NewINI` or parse; before
  /// the first of these they do.
  bool CaseSensitive() const { return caseSensitive_; }
  void SetCaseSensitive(bool isSensitive) { caseSensitive_ = isSensitive; }

  /// Starts an empty document.
  void NewINI();
  /// Reads a file into an empty document. One that cannot be read leaves the document empty.
  void OpenINI(const std::string& path, bool skipComments);
  /// Reads a file into the present document. One that cannot be read adds nothing.
  void InsertINI(const std::string& path, bool skipComments);
  /// Parses a text into an empty document. With `skipComments` lines that begin with "#" are
  /// dropped; else they are lines like others. Nothing is trimmed, and a line that is no header
  /// and holds no "=" is dropped.
  void InputINI(std::string_view text, bool skipComments);
  /// Parses a text into the present document.
  void InsertData(std::string_view text, bool skipComments);

  /// The document as text: lines end in CR LF, but for the last, which has no end.
  std::string OutputINI() const;
  /// Replaces the file by the document; the old one stands whole after a failure. Whoever saves
  /// without a word may ignore the result.
  FileResult SaveINI(const std::string& path, Replacing replacing = Replacing::Unprotected,
                     Readers readers = Readers::AsBefore) const;
  /// The path of the file last opened with success.
  const std::string& Path() const { return path_; }

  /// The value of a key. A key that the section lacks is added with an empty value. Raises
  /// `IniError` when the section is absent, which leaves it standing without a key table.
  std::string ReadKey(std::string_view section, std::string_view key);
  std::string ReadKeyEscaped(std::string_view section, std::string_view key);
  /// Sets the value of a key, adding section and key at the end as needed; a present key keeps its
  /// place. Raises `IniError` when the section has no key table.
  void WriteKey(std::string_view section, std::string_view key, std::string_view value);
  void WriteKeyEscaped(std::string_view section, std::string_view key, std::string_view value);

  /// `ReadKey` and `WriteKey` in the form of a property.
  std::string KeyData(std::string_view section, std::string_view key);
  void SetKeyData(std::string_view section, std::string_view key, std::string_view value);
  std::string KeyDataEscaped(std::string_view section, std::string_view key);
  void SetKeyDataEscaped(std::string_view section, std::string_view key, std::string_view value);

  /// The keys of a section in order. Fails as `ReadKey` does.
  std::vector<std::string> GetSection(std::string_view section);
  /// Removes all keys of a section and keeps it. Fails as `ReadKey` does.
  void EmptySection(std::string_view section);
  /// Raises `IniError` when section or key is absent.
  void RemoveKey(std::string_view section, std::string_view key);
  /// Raises `IniError` when the section is absent.
  void RemoveSection(std::string_view section);

  /// The value of a key that stands; null where section or key is absent.
  const std::string* Find(std::string_view section, std::string_view key) const;
  bool KeyExists(std::string_view section, std::string_view key) const;
  /// True adds the key with an empty value unless it stands; false removes it where it stands. A
  /// section that this adds has no key table, so `IniError` is raised and the key not added.
  void SetKeyExists(std::string_view section, std::string_view key, bool exists);
  /// Tests the second name; the first is ignored.
  bool SectionExists(std::string_view first, std::string_view second) const;
  /// Acts on the first name; the second is ignored. A section that this adds has no key table.
  void SetSectionExists(std::string_view first, std::string_view second, bool exists);

  /// Visits the document in order: `onSection(name)`, then `onKey(key, value)` for each of its
  /// keys, where the value is a string that stands as long as the key. The document must not be
  /// changed meanwhile.
  template <class OnSection, class OnKey>
  void Visit(OnSection&& onSection, OnKey&& onKey) const {
    for (const auto& section : root_) {
      onSection(std::string_view(section.key));
      if (!section.value) continue;
      for (const auto& entry : *section.value) onKey(std::string_view(entry.key), entry.value);
    }
  }

 private:
  using KeyTable = OrderedMap<std::string>;
  using Section = std::optional<KeyTable>;

  void ParseText(std::string_view text, bool skipComments, bool reset);
  void ParseKeyLine(std::string_view line, Section*& current);
  void ApplyCaseMode();
  KeyTable& TableOf(std::string_view section);
  static std::string EscapeText(std::string_view text);
  static std::string UnescapeText(std::string_view text);

  Files& files_;
  OrderedMap<Section> root_;
  bool caseSensitive_ = false;
  std::string path_;
};

}  // namespace ostrel
