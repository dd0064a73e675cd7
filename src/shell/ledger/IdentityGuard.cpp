#include "shell/ledger/IdentityGuard.h"

#include <algorithm>
#include <set>

#include "base/Sha256.h"
#include "shell/Against.h"
#include "shell/Configurator.h"
#include "shell/ledger/History.h"

namespace ostrel {
namespace {

/// Contents of a file that are looked into, the newest; all that is older counts by its hash alone.
constexpr std::size_t kLookedInto = 8;

/// The entries of a file that tell what it was used for, the newest first.
std::vector<LedgerEntry> UsesOf(Ledger& books, const std::string& file) {
  std::vector<LedgerEntry> uses = books.Find({.file = file});
  std::erase_if(uses, [](const LedgerEntry& entry) {
    return entry.state != LedgerState::Done || entry.content.empty();
  });
  if (const std::int64_t id = HistoryEntry(file))
    if (auto entry = FindEntry(books, id)) uses.push_back(std::move(*entry));
  return uses;
}

std::string MaskText(std::int64_t features) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text;
  for (auto rest = static_cast<std::uint64_t>(features); rest != 0 || text.empty(); rest /= 16)
    text.insert(text.begin(), kDigits[rest % 16]);
  return "0x" + text;
}

}  // namespace

std::vector<Phrase> DoubtsOfIdentity(const Configurator& configurator) {
  const LedgerKeeper& keeper = configurator.ledger;
  const DeviceInfo& info = configurator.info;
  if (!keeper.Books() || info.SerialNumber.empty()) return {};
  if (keeper.File().empty()) {
    if (keeper.Origin().empty() || keeper.Origin() == info.SerialNumber) return {};
    return {{"the configuration was read from the logger %1, and the logger that answers is %2",
             {keeper.Origin(), info.SerialNumber}}};
  }
  const std::vector<LedgerEntry> uses = UsesOf(*keeper.Books(), keeper.File());
  const auto last =
      std::ranges::find_if(uses, [](const LedgerEntry& entry) { return !entry.serial.empty(); });
  if (last == uses.end()) return {};
  std::vector<Phrase> doubts;
  if (last->serial != info.SerialNumber)
    doubts.push_back(
        {"the file was last used with the logger %1 on %2, and the logger that answers "
         "is %3",
         {last->serial, last->began, info.SerialNumber}});
  const auto features = static_cast<std::uint32_t>(info.Features);
  if (last->features != LedgerEntry::kUnknown && last->features != features)
    doubts.push_back(
        {"the file was last used with a firmware of the features %1, and the logger "
         "that answers has %2",
         {MaskText(last->features), MaskText(features)}});
  return doubts;
}

std::optional<Phrase> DoubtOfHeld(const Configurator& configurator, const DeviceConf& held) {
  const LedgerKeeper& keeper = configurator.ledger;
  if (!keeper.Books() || keeper.File().empty()) return {};
  const std::vector<LedgerEntry> uses = UsesOf(*keeper.Books(), keeper.File());
  const auto last = std::ranges::find(uses, configurator.info.SerialNumber, &LedgerEntry::serial);
  if (last == uses.end()) return {};  // the file and this logger have not met
  const std::string hash =
      Sha256(ContentOf(configurator.context.platform.files, held, configurator.profile));
  if (std::ranges::find(uses, hash, &LedgerEntry::content) != uses.end()) return {};
  // A logger may tell the same thing in another form than it was sent.
  std::optional<Comparison> changes;
  std::set<std::string> seen;
  for (const LedgerEntry& use : uses) {
    if (seen.size() == kLookedInto) break;
    if (!seen.insert(use.content).second) continue;
    const auto known = ContentOfHistory(configurator, use.content);
    if (!known) continue;
    Comparison comparison = Against(configurator, known->conf, held).WhatCameBack();
    if (comparison.isSame) return {};
    if (!changes) changes = std::move(comparison);
  }
  if (!changes || changes->differences.empty())
    return Phrase{"the logger holds what the file has never held: it was changed since %1",
                  {last->began}};
  const Difference& first = changes->differences.front();
  return Phrase{
      "the logger was changed by others since the file was last used with it on %1: %2 "
      "field(s) differ, the first %3 in %4",
      {last->began, std::to_string(changes->differences.size()), first.Key(), first.Section()}};
}

}  // namespace ostrel
