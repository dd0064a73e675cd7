#include "shell/ledger/TestRunBook.h"

namespace ostrel {
namespace {

void Add(std::string& text, std::string_view mark, std::string_view part) {
  if (!part.empty()) text.append(text.empty() ? "" : mark).append(part);
}

/// Why a run is no success, ahead of what was told.
std::string_view ReasonOf(const TestRecord& record) {
  switch (record.verdict) {
    case TestVerdict::Passed:
      return record.checked ? "" : kUnconfirmed;
    case TestVerdict::Failed:
      return record.failures.empty() ? kNotKept : "";
    default:
      return VerdictWord(record.verdict);
  }
}

std::string FaultOf(const TestRecord& record) {
  std::string fault(ReasonOf(record)), told;
  for (const std::string& failure : record.failures) Add(told, "; ", failure);
  Add(fault, ": ", told);
  return fault;
}

void AddMeasured(std::string& detail, const TestRecord& record) {
  if (!record.givenSerial.empty())
    detail.append("\n").append(kNewNumber).append(" ").append(record.givenSerial);
  for (const Measurement& one : record.values) {
    detail +=
        "\n" + one.name + " = " + (one.value ? one.Text() : "?") + " (" + one.band.Text() + ")";
    if (!one.passed) detail.append(" ").append(kOutOfBand);
  }
}

}  // namespace

void TestRunBook::Begins(const TestRecord& record) {
  std::string who = record.test;
  Add(who, ", ", record.operatorName);
  Add(who, ", ", record.station);
  work_ = ledger_.Begin(LedgerKind::TestRun, who);
}

void TestRunBook::Ends(const TestRecord& record) {
  work_->entry.serial = record.serial;  // it may be new
  AddMeasured(work_->entry.detail, record);
  ledger_.End(*std::exchange(work_, std::nullopt), FaultOf(record));
}

}  // namespace ostrel
