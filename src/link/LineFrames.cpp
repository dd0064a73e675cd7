#include <limits>

#include "base/CodePage.h"
#include "link/Frame.h"
#include "link/Line.h"
#include "link/LinkTimes.h"
#include "link/WireText.h"

namespace ostrel {
namespace {

bool StartsFrame(char c) { return c == '#'; }
/// The first of a plain line: blanks, line ends and control characters before it are passed over.
bool StartsPlainLine(char c) { return c > ' ' && c <= '~'; }

/// A running count that starts over instead of overflowing.
void AddTo(std::int32_t& count, int more) {
  count = more > std::numeric_limits<std::int32_t>::max() - count ? more : count + more;
}

}  // namespace

void Line::TxSer(std::string& message, int timeout) {
  if (!PortOpen() || !CanSend(message)) return;
  const std::string plain = Trace ? message : std::string();
  const std::string frame = FrameOf(ToCodePage(message));
  message = FromCodePage(frame);
  const auto send = [&] {
    Put(frame + kEndOfLine);
    Note("TxSer: ", plain);
  };
  if (timeout <= 0) return send();
  DrainFrames(kStaleMs, kLongestStale);
  damaged_ = false;
  NoteQuestion();
  for (int attempt = 0; attempt < kLinkAttempts && GoesOn(); ++attempt) {
    send();
    if (!AwaitSent() || RxSer(timeout) || givesWay_) return;
  }
}

bool Line::RxSer(int timeout) {
  if (!PortOpen()) return false;
  const TakenLine line = TakeLine(timeout, StartsFrame);
  AddTo(RxChars, line.behindFirst);
  RxLine.clear();
  if (line.tooLong || (line.complete && !ChecksumOk(line.text))) {
    damaged_ = true;
    tooLong_ = line.tooLong;
    Note("RxSer Checksum error!");
    return false;
  }
  if (!line.complete) return false;
  damaged_ = false;
  RxLine = FromCodePage(MessageOf(line.text));
  ExpectAnswer(true);
  answeredAt_ = loop_.Now();
  askedAt_.reset();
  Note("RxSer: ", RxLine);
  return true;
}

bool Line::Ask(std::string message, int extraMs) {
  RxLine.clear();  // a closed port leaves it alone, and an old line is no answer
  TxSer(message, ReplyTimeout + extraMs);
  return !RxLine.empty();
}

LinkFault Line::AskFor(std::string message, std::string_view head) {
  if (!Ask(std::move(message))) return WaitFault();
  if (RxLine.starts_with(head)) return {};
  return FaultNow(LinkFault::Kind::WrongAnswer, 0, RxLine);
}

LinkFault Line::AskOnly(std::string message, int timeout, std::string_view reply) {
  RxLine.clear();
  TxSer(message, timeout);
  if (RxLine.empty()) return WaitFault();
  if (RxLine == reply) return {};
  return FaultNow(LinkFault::Kind::WrongAnswer, 0, RxLine);
}

bool Line::Post(std::string message) {
  RxLine.clear();
  TxSer(message, 0);
  damaged_ = false;
  return AwaitSent() && GoesOn();
}

void Line::DrainFrames(int quietMs, Duration longest) {
  const Limit limit(*this, longest);
  while (RxSer(quietMs) && GoesOn()) {
  }
  RxLine.clear();  // a drain that was cut off must not leave its last frame as an answer
}

void Line::TxGsm(std::string_view command, int timeout) {
  if (!PortOpen() || !CanSend(command)) return;
  DrainPlainLines();
  for (int attempt = 0; attempt < kLinkAttempts && GoesOn(); ++attempt) {
    Put(ToCodePage(command) + kEndOfLine);
    Note("TxGsm: ", command);
    if (timeout <= 0) return;
    if (!AwaitSent() || (RxGsm(timeout) && RxLine != "+CME ERROR: 515")) return;
  }
}

bool Line::RxGsm(int timeout) {
  if (!PortOpen()) return false;
  const TakenLine line = TakeLine(timeout, StartsPlainLine);
  RxLine.clear();
  if (line.tooLong || !line.complete) return false;
  RxLine = FromCodePage(line.text);
  ExpectAnswer(true);
  Note("RxGsm: ", RxLine);
  return true;
}

void Line::AskModem(std::string_view command, int timeout) {
  RxLine.clear();
  TxGsm(command, timeout);
}

void Line::DrainPlainLines() {
  const Limit limit(*this, kLongestStale);
  while (RxGsm(kStaleMs) && GoesOn()) {
  }
  RxLine.clear();
}

}  // namespace ostrel
