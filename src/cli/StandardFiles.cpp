#include "cli/StandardFiles.h"

#include <algorithm>

namespace ostrel::cli {

FileResult StandardFiles::ReadUpTo(const std::string& path, std::size_t most, std::string& octets) {
  if (const std::int64_t id = HistoryEntry(path)) return ReadHistory(id, octets);
  if (path != kStandard) return files_.ReadUpTo(path, most, octets);
  if (!read_) read_ = readInput_(input_);
  octets = input_;
  return *read_;
}

FileResult StandardFiles::ReadEnd(const std::string& path, std::size_t most, std::string& octets) {
  if (!IsOwn(path)) return files_.ReadEnd(path, most, octets);
  FileResult read = ReadUpTo(path, kMostFileOctets, octets);
  octets.erase(0, octets.size() - std::min(octets.size(), most));
  return read;
}

FileResult StandardFiles::ReadHistory(std::int64_t id, std::string& octets) {
  octets.clear();
  const auto entry = books_ ? FindEntry(*books_, id) : std::nullopt;
  if (!entry) return {"the ledger has no such entry"};
  auto content = entry->content.empty() ? std::nullopt : books_->Content(entry->content);
  if (!content) return {"the entry has no configuration"};
  octets = std::move(*content);
  return {};
}

}  // namespace ostrel::cli
