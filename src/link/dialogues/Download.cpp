#include "link/dialogues/Download.h"

#include <utility>

#include "base/BoundFailure.h"
#include "base/Scope.h"
#include "link/LinkTimes.h"

namespace ostrel {

Download::Download(Line& line, ProgressFeed& progress, Model model)
    : line_(line), progress_(progress), model_(std::move(model)), stream_(line, "#42", "#BD") {}

void Download::SetSections(std::vector<WireSection> sections) {
  sections_.clear();
  for (WireSection& section : sections)
    sections_.try_emplace(std::string(section.key), std::move(section.read));
}

LinkFault Download::Run() {
  if (!line_.GoesOn()) return line_.WaitFault();  // the model is left alone
  const Lent comBusy(model_.ComBusy, true);
  stream_.Restart();
  Tell(Progress::Stage::Begun);
  // Once only: what a failed attempt has brought stays.
  if (model_.clear) model_.clear();
  LinkFault fault = RunAttempts();
  Tell(fault.Ok() ? Progress::Stage::Done : Progress::Stage::Failed);
  if (fault.Ok() && model_.load) model_.load();
  return fault;
}

LinkFault Download::RunAttempts() {
  LinkFault fault;
  for (int attempt = 0; attempt < kLinkAttempts; ++attempt) {
    if (attempt > 0) line_.AwaitQuiet();  // the stream that failed may still be running
    Tell(Progress::Stage::Attempt);
    line_.RxChars = 0;
    lines_.clear();
    if (model_.begin) model_.begin();
    fault = stream_.Read([this](const StreamRecord& record) { return TakeRecord(record); });
    const bool isFinal = fault.Ok() || fault.kind == LinkFault::Kind::IndexOutOfRange;
    if (isFinal || !line_.GoesOn()) break;
  }
  return fault;
}

LinkFault Download::TakeRecord(const StreamRecord& record) {
  Tell(Progress::Stage::Step);
  lines_.emplace_back(record.line);
  const auto section = sections_.find(std::string(record.key));
  if (section == sections_.end()) return {};  // of a newer firmware
  return Read(section->second, record);
}

void Download::TakeKept(std::span<const std::string> lines) {
  for (const std::string& line : lines) {
    const auto section = sections_.find(std::string(KeyOf(line)));
    if (section != sections_.end()) Read(section->second, {0, section->first, line});
  }
}

/// Lets a section read a record. An index beyond its array ends the whole download.
LinkFault Download::Read(const std::function<void(LineReader&)>& section,
                         const StreamRecord& record) {
  try {
    LineReader reader(record.line);
    section(reader);
    return {};
  } catch (const BoundFailure& failure) {
    std::string text(record.line);
    line_.Note("Bound failure, ", std::string(failure.what()) + ": " + text);
    return line_.FaultNow(LinkFault::Kind::IndexOutOfRange, record.number, std::move(text));
  }
}

void Download::Tell(Progress::Stage stage) {
  progress_.Tell({DialogueKind::Download, stage, stream_.Expected(), 0});
}

}  // namespace ostrel
