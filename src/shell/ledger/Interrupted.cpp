#include "shell/ledger/Interrupted.h"

#include <algorithm>

#include "shell/Configurator.h"
#include "shell/compare/Against.h"
#include "shell/ledger/History.h"

namespace ostrel {
namespace {

/// What is older than so many entries is not told any more.
constexpr std::size_t kLookedThrough = 2000;
constexpr const char* kNotKnown =
    "whether it holds its former or the new configuration is not known";

/// Work that leaves a logger in doubt when it is interrupted.
bool LeavesDoubt(LedgerKind kind) {
  return kind == LedgerKind::Writing || kind == LedgerKind::VoiceWriting ||
         kind == LedgerKind::Firmware;
}

bool IsOfSameMatter(const LedgerEntry& one, const LedgerEntry& other) {
  return one.kind == other.kind && one.serial == other.serial && !one.serial.empty();
}

/// Whether an entry of the same logger ends the doubt that work has left: it was done once more, or
/// what it was to bring was found there, or nobody wants to hear of what was begun even later.
bool Ends(const LedgerEntry& entry, const LedgerEntry& work) {
  if (entry.settled && IsOfSameMatter(entry, work)) return true;
  if (entry.serial != work.serial) return false;
  // Who tells its version has not erased it: the order was never heard.
  if (work.kind == LedgerKind::Firmware && !work.closing && entry.kind == LedgerKind::Session)
    return !entry.firmware.empty();
  if (entry.state != LedgerState::Done) return false;
  if (entry.kind == work.kind) return true;
  if (work.kind == LedgerKind::Writing)
    return entry.kind == LedgerKind::Reading && !entry.content.empty() &&
           entry.content == work.content;
  return work.kind == LedgerKind::VoiceWriting && entry.kind == LedgerKind::VoiceReading;
}

/// Whether work was begun so far that the logger is left in doubt when it fails: a list is erased
/// first of all.
bool HasHarmed(const LedgerEntry& work) {
  return work.closing || (work.kind == LedgerKind::VoiceWriting && work.attempts > 0);
}

/// Whether a program was ended in the midst of what an entry tells of.
bool IsCutOff(const Ledger& books, const LedgerEntry& entry) { return books.IsCutOff(entry); }

/// The last reading of that logger among later entries, the newest first.
auto LastReading(const LedgerEntry& work, const std::vector<LedgerEntry>& later) {
  return std::ranges::find_if(later, [&](const LedgerEntry& entry) {
    return entry.kind == LedgerKind::Reading && entry.state == LedgerState::Done &&
           !entry.content.empty() && entry.serial == work.serial;
  });
}

Holding HoldingOf(const LedgerEntry& work) {
  if (work.state == LedgerState::Done) return Holding::New;
  if (work.kind != LedgerKind::Writing || work.closing) return Holding::Unknown;
  return Holding::Former;
}

/// An interruption as far as later entries tell of it. A reading that is neither of the two to the
/// letter may still be one of them, told in another form.
Interrupted Judged(const LedgerEntry& work, const std::vector<LedgerEntry>& later) {
  const auto reading = LastReading(work, later);
  if (work.kind != LedgerKind::Writing || work.former.empty() || reading == later.end())
    return {.entry = work, .holding = HoldingOf(work)};
  const bool isFormer = reading->content == work.former;
  return {.entry = work,
          .holding = isFormer ? Holding::Former : Holding::Unknown,
          .readOn = reading->began};
}

Phrase WhatWasInterrupted(const LedgerEntry& entry) {
  const std::vector<std::string> of{entry.model, entry.serial.empty() ? "?" : entry.serial,
                                    entry.began};
  if (entry.kind == LedgerKind::VoiceWriting)
    return {"writing the voice-call list to the %1 %2, begun on %3, was interrupted", of};
  if (entry.kind == LedgerKind::Firmware)
    return {"writing the firmware to the %1 %2, begun on %3, was interrupted", of};
  if (entry.state == LedgerState::Done)
    return {"reading back what was written to the %1 %2, begun on %3, was interrupted", of};
  return {"writing the configuration to the %1 %2, begun on %3, was interrupted", of};
}

}  // namespace

std::vector<Interrupted> FindInterrupted(Ledger& books) {
  std::vector<Interrupted> open;
  std::vector<LedgerEntry> later;  // of which the newest come first
  for (const LedgerEntry& entry : books.Find({.most = kLookedThrough})) {
    // A reading back that failed, too, counts for the writing that it is about.
    const bool isReadBack = entry.kind == LedgerKind::Reading && entry.about != 0 &&
                            (entry.state == LedgerState::Failed || IsCutOff(books, entry));
    const auto work = isReadBack ? FindEntry(books, entry.about) : std::optional(entry);
    const bool isOpen = work && LeavesDoubt(work->kind) && !work->settled &&
                        (isReadBack || IsCutOff(books, entry) ||
                         (work->state == LedgerState::Failed && HasHarmed(*work)));
    const auto ends = [&](const LedgerEntry& one) { return Ends(one, *work); };
    const auto follows = [&](const Interrupted& one) { return IsOfSameMatter(one.entry, *work); };
    if (isOpen && std::ranges::none_of(later, ends) && std::ranges::none_of(open, follows))
      open.push_back(Judged(*work, later));
    later.push_back(entry);
  }
  std::ranges::reverse(open);
  return open;
}

InterruptedWords WordsOf(const Interrupted& interrupted) {
  const LedgerEntry& entry = interrupted.entry;
  InterruptedWords words{.what = WhatWasInterrupted(entry)};
  if (entry.kind == LedgerKind::VoiceWriting) {
    words.holding = {"its list is most probably not whole"};
    words.why = {"writing begins with erasing the former one"};
  } else if (entry.kind == LedgerKind::Firmware) {
    words.holding = {"whether it holds a whole firmware is not known"};
    words.why = {"a firmware is written over the former one"};
  } else if (!interrupted.readOn.empty() && interrupted.holding == Holding::Former) {
    words.holding = {"it holds its former configuration"};
    words.why = {"it was read on %1", {interrupted.readOn}};
  } else if (!interrupted.readOn.empty()) {
    words.holding = {kNotKnown};
    words.why = {"it was read on %1, and told neither of the two to the letter",
                 {interrupted.readOn}};
  } else if (interrupted.holding == Holding::Former) {
    words.holding = {"it most probably holds its former configuration"};
    words.why = {"it had not been asked to take the new one over"};
  } else if (interrupted.holding == Holding::New) {
    words.holding = {"it most probably holds the new configuration"};
    words.why = {"it has said that it took it over, which is not verified"};
  } else {
    words.holding = {kNotKnown};
    words.why = {"it had been asked to take the new one over, and its answer is not known"};
  }
  return words;
}

void Settle(Ledger& books, LedgerEntry entry) {
  entry.settled = true;
  books.Change(entry);
}

Holding WhatWasFound(const Configurator& configurator, const LedgerEntry& entry,
                     const DeviceConf& read) {
  const auto isAs = [&](const std::string& hash) {
    const auto known = ContentOfHistory(configurator, hash);
    return known && known->profile.TargetName == configurator.profile.TargetName &&
           Against(configurator, known->conf, read).WhatCameBack().isSame;
  };
  if (isAs(entry.content)) return Holding::New;
  return isAs(entry.former) ? Holding::Former : Holding::Unknown;
}

Phrase FoundWords(Holding found) {
  if (found == Holding::New) return {"the logger holds the new configuration"};
  if (found == Holding::Former) return {"the logger holds its former configuration"};
  return {"the logger holds neither its former nor the new configuration"};
}

}  // namespace ostrel
