#include "host/LangSeed.h"

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

/// The field that is the key of a row, in its braces; empty for a row without.
std::string_view KeyOf(std::string_view row) {
  const std::size_t open = row.find('{');
  const std::size_t close = row.find('}');
  if (open == std::string_view::npos || close == std::string_view::npos || close < open) return {};
  return row.substr(open, close + 1 - open);
}

bool HasTranslation(std::string_view row) {
  return row.find('{', KeyOf(row).size()) != std::string_view::npos;
}

/// The rows of a working copy with what the installed rows have beyond them.
std::vector<std::string> Merge(std::vector<std::string> rows,
                               const std::vector<std::string>& shipped) {
  std::unordered_map<std::string, std::size_t> places;
  for (std::size_t row = 0; row < rows.size(); ++row)
    places.try_emplace(std::string(KeyOf(rows[row])), row);
  for (const std::string& row : shipped) {
    const std::string key(KeyOf(row));
    if (key.empty()) continue;
    const auto [place, isNew] = places.try_emplace(key, rows.size());
    if (!isNew && !HasTranslation(rows[place->second])) rows[place->second] = row;
    if (isNew && rows.size() + 1 < static_cast<std::size_t>(kLangRows)) rows.push_back(row);
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
