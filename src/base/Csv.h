#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel {

/// A cell as it stands between commas: in quotes where it holds a comma, a quote or a line end.
std::string CsvCell(const std::string& cell);

/// A text that a spreadsheet takes for no formula: one that looks like it, and is no number, has an
/// apostrophe in front. For tables that are made for other programs.
std::string SheetText(std::string text);

/// One row of a table of comma-separated values, with its line end.
std::string CsvRow(std::span<const std::string> cells);

/// The rows of such a table; nothing where a quoted cell is not closed, as in a file that was cut.
std::optional<std::vector<std::vector<std::string>>> ReadCsv(std::string_view text);

}  // namespace ostrel
