#pragma once

#include <string>
#include <vector>

#include "model/DeviceConf.h"
#include "platform/Ledger.h"
#include "shell/words/Phrase.h"

namespace ostrel {

class Configurator;

/// What a logger holds, or most probably holds, after work on it was interrupted.
enum class Holding { Former, New, Unknown };

/// Work on a logger that never came to its end, and of which nobody has found out since what it
/// left behind.
struct Interrupted {
  LedgerEntry entry;  ///< of the writing, also where it was its reading back that was interrupted
  Holding holding = Holding::Unknown;
  std::string readOn{};  ///< when it was last read since; empty where nothing came of that

  /// Whether reading the logger's configuration tells anything about it.
  bool CanLook() const { return entry.kind == LedgerKind::Writing && !entry.content.empty(); }
  /// Whether what was to be written is kept, so that it can be written again.
  bool CanFinish() const { return CanLook(); }
  /// Whether what the logger held before is kept.
  bool CanPutBack() const { return !entry.former.empty(); }
};

/// What is told of an interruption.
struct InterruptedWords {
  Phrase what{};     ///< what was done with which logger, and when
  Phrase holding{};  ///< what the logger most probably holds now
  Phrase why{};      ///< how that is known
};

/// All interruptions that are open, the oldest first, and of one kind on one logger the last alone:
/// what was begun later is what was wanted last. One is closed by a later writing of the same
/// logger that succeeded, by a reading that found what was to be written, and by `Settle`.
std::vector<Interrupted> FindInterrupted(Ledger& books);

InterruptedWords WordsOf(const Interrupted& interrupted);

/// The operator wants to hear no more of an interruption.
void Settle(Ledger& books, LedgerEntry entry);

/// What a logger was found to hold by reading it: what it held before the interrupted writing, what
/// was written, or neither, which is `Unknown`. `read` is the reading.
Holding WhatWasFound(const Configurator& configurator, const LedgerEntry& entry,
                     const DeviceConf& read);
/// That in words.
Phrase FoundWords(Holding found);

}  // namespace ostrel
