#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace ostrel {

// Rows of the language table: one a line, with one field in braces a language. Characters outside
// braces count for nothing.

/// Takes the first row off a text, without its line end, which is LF or CR LF.
std::string_view TakeRow(std::string_view& text);

/// Where the text of a field stands in its row.
struct LangField {
  std::size_t start;
  std::size_t length;
};

/// The first field at or behind a position. One that is never closed ends with the row.
std::optional<LangField> FindField(std::string_view row, std::size_t from);

/// All fields of a row.
std::vector<LangField> FieldsOf(std::string_view row);

/// The text of a column, counted from 1; empty where the row lacks it.
std::string_view ColumnText(std::string_view row, int column);

}  // namespace ostrel
