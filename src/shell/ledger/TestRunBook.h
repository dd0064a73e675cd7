#pragma once

#include <optional>

#include "factory/TestBook.h"
#include "shell/ledger/LedgerKeeper.h"

namespace ostrel {

/// What stands in the ledger of a test run, beside its own words: the first words of a fault, and
/// marks in the lines of a detail. A face that speaks other languages translates these.
inline constexpr std::string_view kUnconfirmed =
    "the board did not confirm the first order, so the checks behind it did not run";
inline constexpr std::string_view kNotKept = "its record was not kept";
inline constexpr std::string_view kNewNumber = "new number";
inline constexpr std::string_view kOutOfBand = "FAILED";

/// Keeps test runs in the ledger. The first line of the detail tells which test, by whom and where;
/// the others what was measured, a value a line. The fault is what the operator was told, behind
/// whatever else speaks against the board and a colon.
class TestRunBook final : public TestBook {
 public:
  explicit TestRunBook(LedgerKeeper& ledger) : ledger_(ledger) {}

  void Begins(const TestRecord& record) override;
  void Ends(const TestRecord& record) override;

 private:
  LedgerKeeper& ledger_;
  std::optional<LedgerWork> work_;
};

}  // namespace ostrel
