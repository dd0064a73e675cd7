#include "base/Csv.h"

#include <algorithm>

#include "base/Numbers.h"

namespace ostrel {
namespace {

/// Takes a quoted cell from the head of a text; false when it is not closed.
bool TakeQuoted(std::string_view& text, std::string& cell) {
  for (text.remove_prefix(1); !text.empty(); text.remove_prefix(1)) {
    if (text.front() == '"') {
      text.remove_prefix(1);
      if (!text.starts_with('"')) return true;
    }
    cell += text.front();
  }
  return false;
}

}  // namespace

std::string CsvCell(const std::string& cell) {
  if (cell.find_first_of(",\"\r\n") == std::string::npos) return cell;
  std::string quoted = "\"";
  for (const char c : cell) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + '"';
}

std::string SheetText(std::string text) {
  constexpr std::string_view kBeginsFormula = "=+-@";
  const bool looksSo = !text.empty() && kBeginsFormula.find(text[0]) != std::string_view::npos;
  if (looksSo && !IsFloatText(text)) text.insert(0, 1, '\'');
  return text;
}

std::string CsvRow(std::span<const std::string> cells) {
  std::string row;
  for (std::size_t i = 0; i < cells.size(); ++i) row += (i == 0 ? "" : ",") + CsvCell(cells[i]);
  return row + "\r\n";
}

std::optional<std::vector<std::vector<std::string>>> ReadCsv(std::string_view text) {
  std::vector<std::vector<std::string>> rows;
  while (!text.empty()) {
    std::vector<std::string>& row = rows.emplace_back();
    for (bool goesOn = true; goesOn;) {
      std::string& cell = row.emplace_back();
      if (text.starts_with('"') && !TakeQuoted(text, cell)) return {};
      const std::size_t end = std::min(text.find_first_of(",\r\n"), text.size());
      cell += text.substr(0, end);
      text.remove_prefix(end);
      goesOn = text.starts_with(',');
      if (goesOn) text.remove_prefix(1);
    }
    if (text.starts_with('\r')) text.remove_prefix(1);
    if (text.starts_with('\n')) text.remove_prefix(1);
  }
  return rows;
}

}  // namespace ostrel
