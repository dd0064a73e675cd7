#include "platform/virtual/VirtualLedger.h"

namespace ostrel {
namespace {

bool IsSought(const LedgerQuery& query, const LedgerEntry& entry) {
  return (query.id == 0 || entry.id == query.id) && entry.id > query.after &&
         (query.serial.empty() || entry.serial == query.serial) &&
         (query.file.empty() || entry.file == query.file) &&
         (query.content.empty() || entry.content == query.content) && entry.began >= query.since;
}

}  // namespace

std::int64_t VirtualLedger::Add(const LedgerEntry& entry) {
  if (!fault.empty()) return 0;
  const auto id = static_cast<std::int64_t>(entries.size()) + 1;
  if (cut) return id;
  entries.push_back(entry);
  entries.back().id = id;
  entries.back().user = "user";
  entries.back().machine = "machine";
  entries.back().process = process;
  return id;
}

bool VirtualLedger::Change(const LedgerEntry& entry) {
  if (!fault.empty()) return false;
  if (cut) return true;
  LedgerEntry& kept = entries.at(static_cast<std::size_t>(entry.id) - 1);
  const LedgerEntry former = kept;
  kept = entry;
  kept.user = former.user;
  kept.machine = former.machine;
  kept.process = former.process;
  return true;
}

std::vector<LedgerEntry> VirtualLedger::Find(const LedgerQuery& query) {
  std::vector<LedgerEntry> found;
  if (!fault.empty()) return found;
  for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry)
    if (IsSought(query, *entry) && (query.most == 0 || found.size() < query.most))
      found.push_back(*entry);
  return found;
}

bool VirtualLedger::KeepContent(const std::string& hash, const std::string& octets) {
  if (!fault.empty()) return false;
  if (!cut) contents.emplace(hash, octets);
  return true;
}

std::optional<std::string> VirtualLedger::Content(const std::string& hash) {
  const auto found = contents.find(hash);
  if (!fault.empty() || found == contents.end()) return {};
  return found->second;
}

}  // namespace ostrel
