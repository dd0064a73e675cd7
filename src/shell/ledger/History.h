#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Files.h"
#include "platform/Ledger.h"
#include "shell/files/ConfigurationFile.h"
#include "shell/words/Phrase.h"

namespace ostrel {

class Configurator;

/// What a past configuration is called where a file is named: "history:12" is that of entry 12.
inline constexpr std::string_view kHistory = "history:";

/// The name of an entry's configuration.
inline std::string HistoryName(std::int64_t id) {
  return std::string(kHistory) + std::to_string(id);
}
/// The entry that such a name stands for; 0 for any other name.
std::int64_t HistoryEntry(std::string_view name);

/// The entry of a number; nothing where there is none.
std::optional<LedgerEntry> FindEntry(Ledger& books, std::int64_t id);

/// An entry of the configuration that a logger held before a writing; nothing where it is not kept.
std::optional<LedgerEntry> FormerEntry(Ledger& books, const LedgerEntry& writing);

/// A configuration that is kept under a hash, of whichever model; nothing where it is not kept.
std::optional<ModelConfiguration> ContentOfHistory(const Configurator& configurator,
                                                   const std::string& hash);

/// Saves the configuration of an entry to a file, which from then on has the history of the entry.
FileResult ExportEntry(Ledger& books, const LedgerEntry& entry, Files& files,
                       const std::string& path, Replacing replacing = Replacing::Unprotected);

/// Has the configuration of an entry stand at a path of the program's own, and stay as it is. What
/// stands there already is replaced unless it is just that, and has its history.
FileResult KeepExported(Ledger& books, const LedgerEntry& entry, Files& files,
                        const std::string& path);

}  // namespace ostrel
