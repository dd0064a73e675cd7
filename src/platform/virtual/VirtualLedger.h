#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/Ledger.h"

namespace ostrel {

/// A ledger in memory, open to tests. It can be cut off from a moment on, as when the program is
/// killed, and it can be one that was never opened.
class VirtualLedger final : public Ledger {
 public:
  std::vector<LedgerEntry> entries;  ///< by number, from 1
  std::map<std::string, std::string> contents;
  std::string fault;            ///< why it cannot be used; empty while it can
  bool cut = false;             ///< nothing that is kept from now on arrives
  std::string process = "one";  ///< the program that runs

  std::string Fault() const override { return fault; }
  std::int64_t Add(const LedgerEntry& entry) override;
  bool Change(const LedgerEntry& entry) override;
  std::vector<LedgerEntry> Find(const LedgerQuery& query) override;
  bool KeepContent(const std::string& hash, const std::string& octets) override;
  std::optional<std::string> Content(const std::string& hash) override;
  bool IsRunning(const LedgerEntry& entry) const override { return entry.process == process; }
};

}  // namespace ostrel
