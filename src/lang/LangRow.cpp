#include "lang/LangRow.h"

#include <algorithm>

namespace ostrel {

std::string_view TakeRow(std::string_view& text) {
  const std::size_t end = text.find('\n');
  std::string_view row = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  if (end != std::string_view::npos && row.ends_with('\r')) row.remove_suffix(1);
  return row;
}

std::optional<LangField> FindField(std::string_view row, std::size_t from) {
  const std::size_t open = row.find('{', from);
  if (open == std::string_view::npos) return std::nullopt;
  const std::size_t end = std::min(row.find('}', open + 1), row.size());
  return LangField{open + 1, end - open - 1};
}

std::vector<LangField> FieldsOf(std::string_view row) {
  std::vector<LangField> fields;
  for (auto field = FindField(row, 0); field; field = FindField(row, field->start + field->length))
    fields.push_back(*field);
  return fields;
}

std::string_view ColumnText(std::string_view row, int column) {
  auto field = FindField(row, 0);
  for (int count = 1; field && count != column; ++count)
    field = FindField(row, field->start + field->length);
  return field ? row.substr(field->start, field->length) : std::string_view();
}

}  // namespace ostrel
