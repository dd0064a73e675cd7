#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Ledger.h"

namespace ostrel {

/// One thing that is known of an entry of the ledger.
struct EntryFact {
  std::string_view name;  ///< of the field, as it stands in the ledger
  std::string text;       ///< may be of several lines
  bool isWord = false;    ///< a word of the program's own, which a face may translate
};

/// How an entry ended, in a word. `isCutOff` tells that a program was ended in its midst.
std::string_view StateWord(const LedgerEntry& entry, bool isCutOff);

/// All that is known of an entry, in the order of its fields.
std::vector<EntryFact> FactsOf(const LedgerEntry& entry, bool isCutOff);

}  // namespace ostrel
