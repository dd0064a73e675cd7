#include "lang/Lang.h"

#include <algorithm>

#include "base/BoundFailure.h"
#include "base/CodePage.h"
#include "lang/LangRow.h"

namespace ostrel {
bool Lang::Init() {
  langReady_ = false;
  langCount_ = 0;
  rowOfKey_.clear();
  std::fill(langLines_.begin(), langLines_.end(), std::string());
  const auto octets = files_.Read(path_);
  if (!octets) return false;
  try {
    SplitRows(FromCodePage(*octets));
  } catch (const BoundFailure&) {
    return false;
  }
  for (int row = 0; row < langCount_; ++row) IndexRow(row);
  langReady_ = true;
  for (int column = 0; column < kLangColumns; ++column) langNames_[column] = GetLangName(column);
  return true;
}

void Lang::SplitRows(std::string_view text) {
  int count = 0;
  while (!text.empty()) langLines_[count++] = TakeRow(text);
  langCount_ = static_cast<std::int16_t>(count);
}

void Lang::IndexRow(int row) {
  rowOfKey_.try_emplace(std::string(ColumnText(langLines_[row], 1)), row);
}

std::string Lang::GetString(int column, int row) const {
  return std::string(ColumnText(langLines_[row], column));
}

std::vector<std::string> Lang::OfferedNames() const {
  std::vector<std::string> names;
  for (int column = 0; column < kLangColumns; ++column)
    if (std::string name = GetLangName(column); !name.empty()) names.push_back(std::move(name));
  return names;
}

std::string Lang::TranslateTo(std::int16_t column, std::string_view text) {
  if (!langReady_ || column == kSpanishColumn) return std::string(text);
  if (const auto found = rowOfKey_.find(text); found != rowOfKey_.end()) {
    const std::string_view translation = ColumnText(langLines_[found->second], column);
    return std::string(translation.empty() ? text : translation);
  }
  // The free row takes part in the search and matches the empty text.
  const bool isFreeRow = text.empty() && langCount_ < kLangRows;
  if (!isFreeRow) AddNewEntry(text);
  return std::string(text);
}

std::string Lang::TranslateToIfRoom(std::int16_t column, std::string_view text) {
  try {
    return TranslateTo(column, text);
  } catch (const BoundFailure&) {
    return std::string(text);
  }
}

void Lang::AddNewEntry(std::string_view text) {
  if (!langReady_) return;
  const int row = langCount_;
  langLines_[row] = std::string("{").append(text).append("}");
  IndexRow(row);
  ++langCount_;
  SaveLang();
}

void Lang::SaveLang() {
  if (!langReady_) return;
  std::string text;
  for (int row = 0; row <= std::min<int>(langCount_, kLangRows - 1); ++row)
    text += langLines_[row] + "\r\n";
  SaveWhole(files_, path_, ToCodePage(text));
}

}  // namespace ostrel
