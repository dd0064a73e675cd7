#include "shell/ledger/History.h"

#include <charconv>

#include "base/Sha256.h"
#include "shell/Configurator.h"

namespace ostrel {

std::int64_t HistoryEntry(std::string_view name) {
  if (!name.starts_with(kHistory)) return 0;
  const std::string_view digits = name.substr(kHistory.size());
  std::int64_t id = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), id);
  return error == std::errc() && end == digits.data() + digits.size() && id > 0 ? id : 0;
}

std::optional<LedgerEntry> FindEntry(Ledger& books, std::int64_t id) {
  auto found = books.Find({.id = id, .most = 1});
  if (id <= 0 || found.empty()) return {};
  return std::move(found.front());
}

std::optional<LedgerEntry> FormerEntry(Ledger& books, const LedgerEntry& writing) {
  if (writing.former.empty()) return {};
  for (LedgerEntry& entry : books.Find({.serial = writing.serial}))
    if (entry.id < writing.id && entry.content == writing.former) return std::move(entry);
  return {};
}

std::optional<ModelConfiguration> ContentOfHistory(const Configurator& configurator,
                                                   const std::string& hash) {
  Ledger* const books = configurator.ledger.Books();
  auto octets = books && !hash.empty() ? books->Content(hash) : std::nullopt;
  if (!octets) return {};
  return ReadContent(std::move(*octets), configurator.profile,
                     [&](std::string_view text) { return configurator.context.Translate(text); });
}

FileResult ExportEntry(Ledger& books, const LedgerEntry& entry, Files& files,
                       const std::string& path, Replacing replacing) {
  const auto octets = entry.content.empty() ? std::nullopt : books.Content(entry.content);
  if (!octets) return {"the entry has no configuration"};
  FileResult saved = SaveWhole(files, path, *octets, replacing, Readers::OwnerAlone);
  if (!saved.Ok()) return saved;
  LedgerEntry kept = entry;
  kept.id = kept.session = kept.about = 0;
  kept.kind = LedgerKind::Saving;
  kept.state = LedgerState::Done;
  kept.file = files.Absolute(path);
  kept.former.clear();
  kept.copy.clear();
  kept.fault.clear();
  kept.closing = kept.settled = false;
  kept.milliseconds = kept.steps = kept.attempts = 0;
  kept.detail = "of entry " + std::to_string(entry.id);
  books.Add(kept);
  return saved;
}

FileResult KeepExported(Ledger& books, const LedgerEntry& entry, Files& files,
                        const std::string& path) {
  const auto stands = files.Read(path);
  const auto last = books.Find({.file = files.Absolute(path), .most = 1});
  if (stands && Sha256(*stands) == entry.content && !last.empty() &&
      last.front().content == entry.content)
    return {};
  const FileResult saved = ExportEntry(books, entry, files, path, Replacing::Any);
  return saved.Ok() ? files.Preserve(path) : saved;
}

}  // namespace ostrel
