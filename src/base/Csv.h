#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel {

/// One row of a table of comma-separated values, with its line end. A cell that holds a comma, a
/// quote or a line end stands in quotes.
std::string CsvRow(std::span<const std::string> cells);

/// The rows of such a table; nothing where a quoted cell is not closed, as in a file that was cut.
std::optional<std::vector<std::vector<std::string>>> ReadCsv(std::string_view text);

}  // namespace ostrel
