#include "host/LangSeed.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "lang/Lang.h"

namespace ostrel {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

/// Rows as octets, without their line ends.
std::vector<std::string> RowsOf(std::string_view text) {
  std::vector<std::string> rows;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    std::string_view row = text.substr(0, end);
    if (row.ends_with('\r')) row.remove_suffix(1);
    rows.emplace_back(row);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return rows;
}

/// Where the text of a field stands in its row.
struct FieldPlace {
  std::size_t start;
  std::size_t length;
};

/// The fields of a row. One that is never closed ends with the row.
std::vector<FieldPlace> FieldsOf(std::string_view row) {
  std::vector<FieldPlace> fields;
  for (std::size_t open = row.find('{'); open != row.npos;) {
    const std::size_t start = open + 1;
    const std::size_t end = std::min(row.find('}', start), row.size());
    fields.push_back({start, end - start});
    open = row.find('{', end);
  }
  return fields;
}

/// The text of a column, counted from 1; empty where the row lacks it.
std::string_view FieldText(std::string_view row, std::size_t column) {
  const std::vector<FieldPlace> fields = FieldsOf(row);
  if (column > fields.size()) return {};
  return row.substr(fields[column - 1].start, fields[column - 1].length);
}

/// Puts a text into a column that is empty or not there yet.
void FillField(std::string& row, std::size_t column, std::string_view text) {
  const std::vector<FieldPlace> fields = FieldsOf(row);
  if (column <= fields.size()) {
    row.insert(fields[column - 1].start, text);
    return;
  }
  const bool isOpen = !fields.empty() && fields.back().start + fields.back().length == row.size();
  if (isOpen) row += '}';
  for (std::size_t missing = fields.size() + 1; missing < column; ++missing) row += "{}";
  row.append("{").append(text).append("}");
}

/// For each language of the shipped table, by its place there, the column of the same name in the
/// working copy, whose header gets the names that it lacks; 0 where there is no room. The first is
/// the language of the keys in both.
std::vector<std::size_t> MatchColumns(std::string& header, std::string_view shippedHeader) {
  std::vector<std::size_t> columns;
  const std::size_t shippedCount = FieldsOf(shippedHeader).size();
  for (std::size_t shipped = 1; shipped <= shippedCount; ++shipped) {
    const std::string_view name = FieldText(shippedHeader, shipped);
    const std::size_t count = FieldsOf(header).size();
    std::size_t column = shipped == 1 ? 1 : 2;
    while (shipped > 1 && column <= count && FieldText(header, column) != name) ++column;
    if (column >= static_cast<std::size_t>(kLangColumns)) column = 0;
    if (column > 0 && FieldText(header, column).empty()) FillField(header, column, name);
    columns.push_back(column);
  }
  return columns;
}

/// The rows of a working copy with what the installed rows have beyond them: texts of fields that
/// are empty, rows, and languages.
std::vector<std::string> Merge(std::vector<std::string> rows,
                               const std::vector<std::string>& shipped) {
  if (shipped.empty()) return rows;
  if (rows.empty()) rows.emplace_back();
  const std::vector<std::size_t> columns = MatchColumns(rows.front(), shipped.front());
  std::unordered_map<std::string, std::size_t> places;
  for (std::size_t row = 0; row < rows.size(); ++row)
    places.try_emplace(std::string(FieldText(rows[row], 1)), row);
  for (std::size_t n = 1; n < shipped.size(); ++n) {
    const std::string key(FieldText(shipped[n], 1));
    if (key.empty()) continue;
    const auto [place, isNew] = places.try_emplace(key, rows.size());
    if (isNew) {
      if (rows.size() + 1 >= static_cast<std::size_t>(kLangRows)) continue;
      rows.push_back("{" + key + "}");
    }
    if (place->second >= rows.size()) continue;  // there was no room for it
    std::string& row = rows[place->second];
    for (std::size_t i = 1; i < columns.size(); ++i) {
      const std::string_view text = FieldText(shipped[n], i + 1);
      if (columns[i] > 0 && !text.empty() && FieldText(row, columns[i]).empty())
        FillField(row, columns[i], text);
    }
  }
  return rows;
}

std::string Folder(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

}  // namespace

std::string SeedLang(Files& files, const std::string& shippedPath, const std::string& workingPath) {
  const auto shipped = files.Read(shippedPath);
  if (!shipped) return workingPath;
  const auto working = files.Read(workingPath);
  if (!working) {
    // One that stands but cannot be read holds somebody's work.
    if (files.Exists(workingPath)) return workingPath;
    if (const std::string folder = Folder(workingPath); !folder.empty()) files.MakeFolder(folder);
    SaveWhole(files, workingPath, *shipped);
    return workingPath;
  }
  const std::vector<std::string> rows = RowsOf(*working);
  const std::vector<std::string> merged = Merge(rows, RowsOf(*shipped));
  if (merged == rows) return workingPath;
  std::string text;
  for (const std::string& row : merged) text.append(row).append(kLineEnd);
  SaveWhole(files, workingPath, text);
  return workingPath;
}

}  // namespace ostrel
