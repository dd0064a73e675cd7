#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/Bounded.h"
#include "platform/Files.h"

namespace ostrel {

/// Rows of the language table.
inline constexpr int kLangRows = 401;
/// Language names that are read from the header, column 0 included.
inline constexpr int kLangColumns = 6;
/// Columns of the languages that the program is shipped with. Spanish is the keys' own.
inline constexpr std::int16_t kSpanishColumn = 1, kEnglishColumn = 2;

/// Translates the interface. The Spanish text in the code is the key of its translation. The table
/// is a text file, one row a line and one field in braces a language; a text that it lacks is added
/// the first time it is asked for, so that translators find every text there after use. On disk it
/// is code page 1252, in memory UTF-8.
class Lang {
 public:
  /// `path` is that of the table; nothing is read before `Init`.
  Lang(Files& files, std::string path) : files_(files), path_(std::move(path)) {}

  /// Reads the table. False, with `LangReady` false, when it cannot be read or has too many lines.
  bool Init();
  bool LangReady() const { return langReady_; }

  /// Column of the language in use.
  std::int16_t SelectedLang() const { return selectedLang_; }
  void SetSelectedLang(std::int16_t column) { selectedLang_ = column; }

  /// Index of the next free row, which equals the number of rows.
  std::int16_t LangCount() const { return langCount_; }
  /// A row as it stands in the file. Raises `BoundFailure` outside the table.
  const std::string& LangLine(int row) const { return langLines_[row]; }
  /// Name of a language as `Init` read it; empty for column 0. Raises `BoundFailure`.
  const std::string& LangName(int column) const { return langNames_[column]; }

  /// The field of a column, counted from 1; empty when the row lacks it. Raises `BoundFailure` for
  /// a row outside the table.
  std::string GetString(int column, int row) const;
  /// The header's field of a column.
  std::string GetLangName(int column) const { return GetString(column, 0); }
  /// The language names to choose from. The column of a language is its place here plus 1, so the
  /// header must have no gaps.
  std::vector<std::string> OfferedNames() const;

  /// The text in the language in use; the text itself when there is no translation. A text that
  /// has no row gets one; when the table is full that raises `BoundFailure` and changes nothing.
  std::string Translate(std::string_view text) { return TranslateTo(selectedLang_, text); }

  /// The same, but a text for which the table has no room is given back as it stands.
  std::string TranslateIfRoom(std::string_view text) {
    return TranslateToIfRoom(selectedLang_, text);
  }
  /// The same in the language of a column, whichever is in use.
  std::string TranslateToIfRoom(std::int16_t column, std::string_view text);

  /// Appends a row and saves the table. Raises `BoundFailure` when it is full. Does nothing before
  /// a successful `Init`, so that a table that could not be read is never replaced.
  void AddNewEntry(std::string_view text);

  /// Rewrites the file: the rows, and the free row as an empty line. A failure is silent, and the
  /// rows stay in memory for the next time. Does nothing before a successful `Init`.
  void SaveLang();

 private:
  struct TextHash : std::hash<std::string_view> {
    using is_transparent = void;
  };

  std::string TranslateTo(std::int16_t column, std::string_view text);
  void SplitRows(std::string_view text);
  void IndexRow(int row);

  Files& files_;
  std::string path_;
  std::int16_t selectedLang_ = kSpanishColumn;
  std::int16_t langCount_ = 0;
  bool langReady_ = false;
  Bounded<std::string, kLangColumns> langNames_;
  Bounded<std::string, kLangRows> langLines_;
  /// The first row of each key among the rows below `langCount_`.
  std::unordered_map<std::string, int, TextHash, std::equal_to<>> rowOfKey_;
};

}  // namespace ostrel
