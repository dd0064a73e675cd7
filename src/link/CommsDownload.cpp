#include "base/BoundFailure.h"
#include "base/Scope.h"
#include "link/Comms.h"
#include "link/WireText.h"

namespace ostrel {
namespace {

constexpr std::string_view kStreamHead = "#BD";
constexpr int kBarMaximum = 300;
constexpr int kAttempts = 3;
constexpr std::size_t kNumberAt = 4;
constexpr std::size_t kNumberDigits = 3;
constexpr std::size_t kKeyAt = 7;

}  // namespace

bool Comms::ReadConf() {
  if (LinkBusy) return false;
  fault_ = {};
  if (!Alive()) return FailWaiting(0);
  const Dialogue dialogue(*this);
  const Lent comBusy(records_.ComBusy, true);
  if (hooks_.barMaximum) hooks_.barMaximum(kBarMaximum);
  if (hooks_.barValue) hooks_.barValue(0);
  // Once only: what a failed attempt has brought stays.
  if (hooks_.clearPages) hooks_.clearPages();
  bool done = false;
  boundFailed_ = false;
  for (int attempt = 0; attempt < kAttempts && !done; ++attempt) {
    if (attempt > 0) AwaitQuiet();  // the stream that failed may still be running
    done = DownloadOnce();
    if (boundFailed_ || !Alive()) break;
  }
  if (!done) return false;
  fault_ = {};
  if (hooks_.barValue) hooks_.barValue(kBarMaximum);
  if (hooks_.loadPages) hooks_.loadPages();
  return true;
}

bool Comms::DownloadOnce() {
  RxChars = 0;
  RecordExpected_ = 0;
  if (!Ask("#42")) return FailWaiting(RecordExpected_);
  if (RxLine == kStreamHead) return Fail(LinkFault::Kind::EmptyStream);
  while (RxLine != kStreamHead) {
    if (!ParseConfLine())
      return !boundFailed_ && Fail(LinkFault::Kind::OutOfSequence, RecordExpected_, RxLine);
    damaged_ = false;
    if (!RxSer(ReplyTimeout)) return FailWaiting(RecordExpected_);
  }
  return true;
}

bool Comms::ParseConfLine() {
  if (!TakeRecordNumber(kStreamHead)) return false;
  if (RecordReceived_ < kBarMaximum && hooks_.barValue) hooks_.barValue(RecordReceived_);
  const auto section = sections_.find(std::string(Characters(FieldOfLine(RxLine, 1), kKeyAt)));
  if (section == sections_.end()) return true;  // of a newer firmware
  return ReadSection(section->second);
}

/// Lets a section read the line in hand. An index beyond its array ends the whole download.
bool Comms::ReadSection(const std::function<void(LineReader&)>& section) {
  try {
    LineReader reader(RxLine);
    section(reader);
    return true;
  } catch (const BoundFailure& failure) {
    boundFailed_ = true;
    Note("Bound failure, ", std::string(failure.what()) + ": " + RxLine);
    return Fail(LinkFault::Kind::IndexOutOfRange, RecordReceived_, RxLine);
  }
}

bool Comms::TakeRecordNumber(std::string_view head) {
  if (!RxLine.starts_with(head)) return false;
  const double number = NumVal(Characters(RxLine, kNumberAt, kNumberDigits));
  RecordReceived_ = RoundToEven<std::int16_t>(number).value_or(-1);
  if (RecordReceived_ != RecordExpected_) return false;
  ++RecordExpected_;
  return true;
}

}  // namespace ostrel
