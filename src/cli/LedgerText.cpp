#include "cli/LedgerText.h"

#include <algorithm>
#include <iomanip>
#include <type_traits>

#include "base/Printable.h"
#include "host/LoggerText.h"
#include "shell/ledger/EntryFacts.h"

namespace ostrel::cli {
namespace {

constexpr int kFieldWidth = 14;

std::string FeaturesOf(const LedgerEntry& entry) {
  return entry.features == LedgerEntry::kUnknown
             ? std::string()
             : FeaturesText(static_cast<std::int32_t>(entry.features));
}

/// What an entry is about, beside its kind; of a detail of many lines the first.
std::string Matter(const LedgerEntry& entry) {
  std::string matter;
  for (const std::string& part :
       {entry.detail.substr(0, entry.detail.find('\n')), entry.file, entry.fault})
    if (!part.empty()) matter += (matter.empty() ? "" : ": ") + part;
  return matter;
}

}  // namespace

Json EntryJson(const LedgerEntry& entry, bool isCutOff) {
  Json json;
  VisitLedgerEntry(entry, [&](const char* name, const auto& value) {
    using Value = std::remove_cvref_t<decltype(value)>;
    if constexpr (std::is_enum_v<Value>)
      json[name] = WordOf(value);
    else if constexpr (std::is_same_v<Value, std::string>)
      json[name] = value.empty() ? Json() : Json(value);
    else
      json[name] = value;
  });
  const std::string features = FeaturesOf(entry);
  json["features"] = features.empty() ? Json() : Json(features);
  json["cutOff"] = isCutOff;
  return json;
}

void PrintEntryLine(std::ostream& out, const LedgerEntry& entry, bool isCutOff) {
  out << std::right << std::setw(5) << entry.id << "  " << entry.began << "  " << std::left
      << std::setw(kFieldWidth) << WordOf(entry.kind) << std::setw(10) << StateWord(entry, isCutOff)
      << entry.model;
  if (!entry.serial.empty()) out << ' ' << Printable(entry.serial);
  if (const std::string matter = Matter(entry); !matter.empty()) out << "  " << Printable(matter);
  out << '\n';
}

void PrintEntry(std::ostream& out, const LedgerEntry& entry, bool isCutOff) {
  const auto print = [&out](std::string_view name, std::string_view text) {
    while (!text.empty()) {
      const std::string_view line = text.substr(0, text.find('\n'));
      out << std::left << std::setw(kFieldWidth) << name << Printable(line) << '\n';
      text.remove_prefix(std::min(line.size() + 1, text.size()));
      name = {};
    }
  };
  for (const EntryFact& fact : FactsOf(entry, isCutOff)) print(fact.name, fact.text);
}

}  // namespace ostrel::cli
