#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel {

/// A cell as it stands between commas: in quotes where it holds a comma, a quote or a line end.
std::string CsvCell(const std::string& cell);

/// One row of a table of comma-separated values, with its line end.
std::string CsvRow(std::span<const std::string> cells);

/// The rows of such a table; nothing where a quoted cell is not closed, as in a file that was cut.
std::optional<std::vector<std::vector<std::string>>> ReadCsv(std::string_view text);

}  // namespace ostrel
