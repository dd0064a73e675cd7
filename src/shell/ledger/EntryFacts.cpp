#include "shell/ledger/EntryFacts.h"

#include <type_traits>
#include <utility>

#include "model/DeviceInfo.h"

namespace ostrel {

std::string_view StateWord(const LedgerEntry& entry, bool isCutOff) {
  return isCutOff ? "cut off" : WordOf(entry.state);
}

std::vector<EntryFact> FactsOf(const LedgerEntry& entry, bool isCutOff) {
  std::vector<EntryFact> facts;
  const auto add = [&facts](std::string_view name, std::string text, bool isWord = false) {
    if (!text.empty()) facts.push_back({name, std::move(text), isWord});
  };
  VisitLedgerEntry(entry, [&](const char* name, const auto& value) {
    using Value = std::remove_cvref_t<decltype(value)>;
    if constexpr (std::is_same_v<Value, LedgerState>)
      add(name, std::string(StateWord(entry, isCutOff)), true);
    else if constexpr (std::is_enum_v<Value>)
      add(name, std::string(WordOf(value)), true);
    else if constexpr (std::is_same_v<Value, std::string>)
      add(name, value);
    else if constexpr (std::is_same_v<Value, bool>)
      add(name, value ? "yes" : "", true);
    else if (&value == &entry.features)
      add(name, value == LedgerEntry::kUnknown ? std::string()
                                               : FeaturesText(static_cast<std::int32_t>(value)));
    else
      add(name, value == 0 ? std::string() : std::to_string(value));
  });
  return facts;
}

}  // namespace ostrel
