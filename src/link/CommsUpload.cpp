#include "link/Comms.h"
#include "link/WireText.h"
#include "model/Features.h"

namespace ostrel {
namespace {

constexpr std::string_view kRefusal = "#BA0";
constexpr std::string_view kTakenOver = "#B91";
constexpr int kBarMaximum = 350;
constexpr int kAttempts = 3;
constexpr std::size_t kNumberDigits = 3;
constexpr int kRefusalMs = 200;
constexpr int kFastRefusalMs = 10;

}  // namespace

bool Comms::WriteConf() {
  if (LinkBusy) return false;
  fault_ = {};
  const Dialogue dialogue(*this);
  if (hooks_.barMaximum) hooks_.barMaximum(kBarMaximum);
  if (hooks_.barValue) hooks_.barValue(0);
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    if (UploadOnce()) {
      fault_ = {};
      if (hooks_.barValue) hooks_.barValue(kBarMaximum);
      return true;
    }
    if (!Alive()) break;
  }
  return false;
}

bool Comms::UploadOnce() {
  StatementNo = 0;
  // Composed at once, so that what is sent is one state of the model.
  const std::vector<std::string> statements = ComposeStatements();
  if (hooks_.composed) hooks_.composed();
  for (const std::string& statement : statements)
    if (!SendStatement(statement, hooks_.barValue))
      return RxLine.empty() ? FailWaiting(StatementNo - 1)
                            : Fail(LinkFault::Kind::Refused, StatementNo - 1, statement);
  RxLine.clear();
  damaged_ = false;
  std::string closing = "#46" + Padded(StatementNo, kNumberDigits);
  TxSer(closing, 0);
  if (!AwaitSent() || !RxSer(ReplyTimeout)) return FailWaiting(StatementNo);
  if (RxLine.starts_with(kTakenOver)) return true;
  const bool isLateRefusal = RxLine.find(kRefusal) != std::string::npos && !statements.empty();
  return isLateRefusal ? Fail(LinkFault::Kind::Refused, StatementNo - 1, statements.back())
                       : Fail(LinkFault::Kind::NotTakenOver, StatementNo, RxLine);
}

bool Comms::SendStatement(std::string_view statement, const std::function<void(int)>& bar) {
  const bool isFast = Has(records_.info.Features, Feature::FastRefusal);
  std::string message = "#45" + Padded(StatementNo, kNumberDigits);
  message += statement;
  RxLine.clear();
  TxSer(message, 0);
  ++StatementNo;
  if (bar) bar(StatementNo);
  if (!AwaitSent()) return false;
  awaitedSince_ = platform_.loop.Now();  // no answer is due before this window
  RxSer(isFast ? kFastRefusalMs : kRefusalMs);
  return Alive() && RxLine.find(kRefusal) == std::string::npos;
}

std::vector<std::string> Comms::ComposeStatements() const {
  StatementList statements;
  for (const WireBlock& block : blocks_) block.compose(statements);
  return statements.All();
}

}  // namespace ostrel
