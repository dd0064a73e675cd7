#include "link/Upload.h"

#include <utility>

#include "link/LinkTimes.h"
#include "link/UploadPlan.h"
#include "link/WireText.h"

namespace ostrel {
namespace {

constexpr std::string_view kRefusal = "#BA0";
constexpr std::string_view kTakenOver = "#B91";

}  // namespace

Upload::Upload(Line& line, ProgressFeed& progress, const DeviceInfo& info,
               std::function<void()> composed)
    : line_(line), progress_(progress), info_(info), composed_(std::move(composed)) {}

StatementList Upload::Compose() const {
  StatementList statements;
  for (const WireBlock& block : blocks_) block.compose(statements);
  return statements;
}

LinkFault Upload::Run() {
  statementNo_ = 0;
  Tell(Progress::Stage::Begun);
  LinkFault fault;
  for (int attempt = 0; attempt < kLinkAttempts; ++attempt) {
    fault = RunOnce();
    // What cannot be composed now cannot be at the next attempt.
    if (fault.Ok() || !line_.GoesOn() || fault.kind == LinkFault::Kind::PeriodTooLong) break;
  }
  Tell(fault.Ok() ? Progress::Stage::Done : Progress::Stage::Failed);
  return fault;
}

LinkFault Upload::RunOnce() {
  statementNo_ = 0;
  // Composed at once, so that what is sent is one state of the model.
  const StatementList composed = Compose();
  if (!composed.Fault().Ok()) return composed.Fault();
  const std::vector<std::string>& statements = composed.All();
  if (composed_) composed_();
  for (const std::string& statement : statements) {
    LinkFault fault = SendStatement(statement, static_cast<int>(statements.size()));
    if (!fault.Ok()) return fault;
  }
  return Close(statements);
}

LinkFault Upload::SendStatement(std::string_view statement, int expected) {
  const int number = statementNo_;
  const bool hasLeft = line_.Post("#45" + Padded(number, kRecordDigits) + std::string(statement));
  ++statementNo_;
  Tell(Progress::Stage::Step, expected);
  if (!hasLeft) return line_.WaitFault(number);
  line_.ExpectAnswer(true);  // none was due before this window
  line_.RxSer(RefusalWindowMs(info_.Features));
  if (!line_.GoesOn()) return line_.WaitFault(number);
  if (line_.RxLine.find(kRefusal) == std::string::npos) return {};
  return line_.FaultNow(LinkFault::Kind::Refused, number, std::string(statement));
}

LinkFault Upload::Close(const std::vector<std::string>& statements) {
  line_.NoteQuestion();
  const bool hasLeft = line_.Post("#46" + Padded(statementNo_, kRecordDigits));
  if (!hasLeft || !line_.RxSer(line_.ReplyTimeout)) return line_.WaitFault(statementNo_);
  if (line_.RxLine.starts_with(kTakenOver)) return {};
  const bool isLateRefusal = line_.RxLine.find(kRefusal) != std::string::npos;
  if (isLateRefusal && !statements.empty())
    return line_.FaultNow(LinkFault::Kind::Refused, statementNo_ - 1, statements.back());
  return line_.FaultNow(LinkFault::Kind::NotTakenOver, statementNo_, line_.RxLine);
}

void Upload::Tell(Progress::Stage stage, int expected) {
  progress_.Tell({DialogueKind::Upload, stage, statementNo_, expected});
}

}  // namespace ostrel
