#include "host/LangSeed.h"

#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "lang/Lang.h"
#include "lang/LangRow.h"

namespace ostrel {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

/// Rows as octets, without their line ends.
std::vector<std::string> RowsOf(std::string_view text) {
  std::vector<std::string> rows;
  while (!text.empty()) rows.emplace_back(TakeRow(text));
  return rows;
}

/// Puts a text into a column that is empty or not there yet.
void FillField(std::string& row, int column, std::string_view text) {
  const std::vector<LangField> fields = FieldsOf(row);
  const int count = static_cast<int>(fields.size());
  if (column <= count) {
    row.insert(fields[static_cast<std::size_t>(column) - 1].start, text);
    return;
  }
  const bool isOpen = !fields.empty() && fields.back().start + fields.back().length == row.size();
  if (isOpen) row += '}';
  for (int missing = count + 1; missing < column; ++missing) row += "{}";
  row.append("{").append(text).append("}");
}

/// For each language of the shipped table, by its place there, the column of the same name in the
/// working copy, whose header gets the names that it lacks; 0 where there is no room. The first is
/// the language of the keys in both.
std::vector<int> MatchColumns(std::string& header, std::string_view shippedHeader) {
  std::vector<int> columns;
  const int shippedCount = static_cast<int>(FieldsOf(shippedHeader).size());
  for (int shipped = 1; shipped <= shippedCount; ++shipped) {
    const std::string_view name = ColumnText(shippedHeader, shipped);
    const int count = static_cast<int>(FieldsOf(header).size());
    int column = shipped == 1 ? 1 : 2;
    while (shipped > 1 && column <= count && ColumnText(header, column) != name) ++column;
    if (column >= kLangColumns) column = 0;
    if (column > 0 && ColumnText(header, column).empty()) FillField(header, column, name);
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
  const std::vector<int> columns = MatchColumns(rows.front(), shipped.front());
  std::unordered_map<std::string, std::size_t> places;
  for (std::size_t row = 0; row < rows.size(); ++row)
    places.try_emplace(std::string(ColumnText(rows[row], 1)), row);
  for (std::size_t n = 1; n < shipped.size(); ++n) {
    const std::string key(ColumnText(shipped[n], 1));
    if (key.empty()) continue;
    const auto [place, isNew] = places.try_emplace(key, rows.size());
    if (isNew) {
      if (rows.size() + 1 >= static_cast<std::size_t>(kLangRows)) continue;
      rows.push_back("{" + key + "}");
    }
    if (place->second >= rows.size()) continue;  // there was no room for it
    std::string& row = rows[place->second];
    for (std::size_t i = 1; i < columns.size(); ++i) {
      const std::string_view text = ColumnText(shipped[n], static_cast<int>(i) + 1);
      if (columns[i] > 0 && !text.empty() && ColumnText(row, columns[i]).empty())
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
