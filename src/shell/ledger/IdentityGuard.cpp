#include "shell/ledger/IdentityGuard.h"

#include <algorithm>
#include <utility>

#include "base/Sha256.h"
#include "shell/Configurator.h"
#include "shell/compare/Against.h"
#include "shell/ledger/History.h"

namespace ostrel {
namespace {

/// Contents of a file that are looked into, the newest; what is older counts by its hash alone.
constexpr std::size_t kLookedInto = 8;

/// How many copies of copies of a file are followed.
constexpr int kCopiesFollowed = 16;

/// Whether an entry tells of a configuration that its file has had. A writing counts however it
/// ended; a voice-call list goes ways of its own.
bool TellsContent(const LedgerEntry& entry) {
  return !entry.content.empty() && entry.kind != LedgerKind::VoiceWriting &&
         (entry.state == LedgerState::Done || entry.kind == LedgerKind::Writing);
}

/// The entries of a file that tell what it was used for, the newest first, and behind its saving
/// under another name those of the file that it is a copy of.
std::vector<LedgerEntry> UsesOf(Ledger& books, std::string file) {
  std::vector<LedgerEntry> uses;
  std::int64_t copied = 0;
  for (int copies = 0; copies < kCopiesFollowed && !file.empty(); ++copies) {
    const std::int64_t last = std::exchange(copied, 0);
    if (const std::int64_t id = HistoryEntry(file))
      if (auto entry = FindEntry(books, id)) uses.push_back(std::move(*entry));
    for (LedgerEntry& entry : books.Find({.file = std::exchange(file, {})})) {
      if (last != 0 && entry.id > last) continue;
      if (!TellsContent(entry)) continue;
      uses.push_back(std::move(entry));
      copied = uses.back().kind == LedgerKind::Saving ? uses.back().about : 0;
      const auto from = FindEntry(books, copied);
      if (!from) continue;
      file = from->file;
      break;
    }
  }
  return uses;
}

bool HasMetALogger(const LedgerEntry& use) {
  return !use.serial.empty() && (use.state == LedgerState::Done || use.closing);
}

std::string HashOfHeld(const Configurator& configurator, const DeviceConf& conf) {
  return Sha256(ContentOf(configurator.context.platform.files, conf, configurator.profile));
}

std::vector<LedgerEntry> UsesOf(const LedgerKeeper& keeper) {
  if (!keeper.Books()) return {};
  return UsesOf(*keeper.Books(), keeper.File());
}

/// The same, where a file that nothing is known of by its name, or that came through a pipe, is
/// known by what it holds.
std::vector<LedgerEntry> UsesByNameOrContent(const Configurator& configurator) {
  std::vector<LedgerEntry> uses = UsesOf(configurator.ledger);
  if (std::ranges::any_of(uses, HasMetALogger)) return uses;
  uses =
      configurator.ledger.Books()->Find({.content = HashOfHeld(configurator, configurator.conf)});
  std::erase_if(uses, [](const LedgerEntry& entry) { return !TellsContent(entry); });
  return uses;
}

/// The newest use with a logger.
auto LastWith(const std::vector<LedgerEntry>& uses, const std::string& serial) {
  return serial.empty() ? uses.end() : std::ranges::find(uses, serial, &LedgerEntry::serial);
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
  const std::string& serial = configurator.info.SerialNumber;
  if (!keeper.Books()) return {};
  if (keeper.File().empty() && !keeper.Origin().empty()) {
    if (keeper.Origin() == serial) return {};
    if (serial.empty())
      return {
          {"the configuration was read from the logger %1, and the logger that answers has not "
           "told its serial number",
           {keeper.Origin()}}};
    return {{"the configuration was read from the logger %1, and the logger that answers is %2",
             {keeper.Origin(), serial}}};
  }
  const std::vector<LedgerEntry> uses = UsesByNameOrContent(configurator);
  const auto last = std::ranges::find_if(uses, HasMetALogger);
  if (last == uses.end()) return {};
  std::vector<Phrase> doubts;
  if (serial.empty())
    doubts.push_back(
        {"the file was last used with the logger %1 on %2, and the logger that answers has not "
         "told its serial number",
         {last->serial, last->began}});
  else if (last->serial != serial)
    doubts.push_back(
        {"the file was last used with the logger %1 on %2, and the logger that answers "
         "is %3",
         {last->serial, last->began, serial}});
  const auto features = static_cast<std::uint32_t>(configurator.info.Features);
  const auto told = std::ranges::find_if(uses, [&](const LedgerEntry& entry) {
    return HasMetALogger(entry) && entry.features != LedgerEntry::kUnknown;
  });
  if (told != uses.end() && told->features != features)
    doubts.push_back(
        {"the file was last used with a firmware of the features %1, and the logger "
         "that answers has %2",
         {MaskText(told->features), MaskText(features)}});
  return doubts;
}

bool HaveMet(const Configurator& configurator) {
  const std::vector<LedgerEntry> uses = UsesOf(configurator.ledger);
  return LastWith(uses, configurator.info.SerialNumber) != uses.end();
}

std::optional<Phrase> DoubtOfHeld(const Configurator& configurator, const DeviceConf& held) {
  const std::vector<LedgerEntry> uses = UsesOf(configurator.ledger);
  const auto last = LastWith(uses, configurator.info.SerialNumber);
  if (last == uses.end()) return {};
  // What it held when a writing was interrupted is not known where nothing was read ahead of it.
  if (last->kind == LedgerKind::Writing && last->state != LedgerState::Done && last->former.empty())
    return {};
  std::vector<std::string> known;
  for (const LedgerEntry& use : uses)
    for (const std::string& hash : {use.content, use.former})
      if (!hash.empty() && std::ranges::find(known, hash) == known.end()) known.push_back(hash);
  const std::string hash = HashOfHeld(configurator, held);
  if (std::ranges::find(known, hash) != known.end()) return {};
  // A logger may tell the same thing in another form than it was sent.
  std::optional<Comparison> changes;
  known.resize(std::min(known.size(), kLookedInto));
  for (const std::string& one : known) {
    const auto content = ContentOfHistory(configurator, one);
    if (!content) continue;
    Comparison comparison = Against(configurator, content->conf, held).WhatCameBack();
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
