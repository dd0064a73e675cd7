#pragma once

#include <ostream>

#include "cli/Result.h"
#include "platform/Ledger.h"

namespace ostrel::cli {

/// An entry for programs. `isCutOff` tells that a program was ended in its midst.
Json EntryJson(const LedgerEntry& entry, bool isCutOff);
/// An entry on one line.
void PrintEntryLine(std::ostream& out, const LedgerEntry& entry, bool isCutOff);
/// An entry with all that is known of it, a line a field.
void PrintEntry(std::ostream& out, const LedgerEntry& entry, bool isCutOff);

}  // namespace ostrel::cli
