#include "link/dialogues/Upload.h"

#include <utility>

#include "link/LinkTimes.h"

namespace ostrel {
namespace {

constexpr std::string_view kTakenOver = "#B91";

}  // namespace

Upload::Upload(Line& line, ProgressFeed& progress, const DeviceInfo& info,
               std::function<void()> composed)
    : line_(line),
      progress_(progress),
      statements_(line, info, [this] { Tell(Progress::Stage::Step); }),
      composed_(std::move(composed)) {}

StatementList Upload::Compose() const {
  StatementList statements;
  for (const WireBlock& block : blocks_) block.compose(statements);
  return statements;
}

LinkFault Upload::Run() {
  statements_.Restart();
  expected_ = 0;
  Tell(Progress::Stage::Begun);
  LinkFault fault;
  for (int attempt = 0; attempt < kLinkAttempts; ++attempt) {
    Tell(Progress::Stage::Attempt);
    fault = RunOnce();
    // What cannot be composed now cannot be at the next attempt.
    if (fault.Ok() || !line_.GoesOn() || fault.kind == LinkFault::Kind::PeriodTooLong) break;
  }
  Tell(fault.Ok() ? Progress::Stage::Done : Progress::Stage::Failed);
  return fault;
}

LinkFault Upload::RunOnce() {
  statements_.Restart();
  // Composed at once, so that what is sent is one state of the model.
  const StatementList composed = Compose();
  if (!composed.Fault().Ok()) return composed.Fault();
  const std::vector<std::string>& statements = composed.All();
  if (composed_) composed_();
  expected_ = static_cast<int>(statements.size());
  for (const std::string& statement : statements) {
    LinkFault fault = statements_.Send(statement);
    if (!fault.Ok()) return fault;
  }
  return Close(statements);
}

LinkFault Upload::Close(const std::vector<std::string>& statements) {
  Tell(Progress::Stage::Closing);
  line_.NoteQuestion();
  const int sent = statements_.Sent();
  const bool hasLeft = line_.Post(statements_.Closing());
  if (!hasLeft || !line_.RxSer(line_.ReplyTimeout)) return line_.WaitFault(sent);
  if (line_.RxLine.starts_with(kTakenOver)) return {};
  const bool isLateRefusal = line_.RxLine.find(kStatementRefused) != std::string::npos;
  if (isLateRefusal && !statements.empty())
    return line_.FaultNow(LinkFault::Kind::Refused, sent - 1, statements.back());
  return line_.FaultNow(LinkFault::Kind::NotTakenOver, sent, line_.RxLine);
}

void Upload::Tell(Progress::Stage stage) {
  const bool isStep = stage == Progress::Stage::Step;
  progress_.Tell({DialogueKind::Upload, stage, statements_.Sent(), isStep ? expected_ : 0});
}

}  // namespace ostrel
