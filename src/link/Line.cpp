#include "link/Line.h"

#include <algorithm>
#include <utility>

#include "base/Printable.h"
#include "link/LinkTimes.h"
#include "link/WireText.h"

namespace ostrel {

Line::Line(EventLoop& loop, SerialPort& port) : loop_(loop), port_(port), MainTimer_(loop) {}

LinkResult Line::Converse(Duration longest, const std::function<LinkFault()>& work) {
  if (LinkBusy) return LinkFault{LinkFault::Kind::Busy};
  if (!PortOpen()) return LinkFault{LinkFault::Kind::PortClosed};
  const Dialogue dialogue(*this);
  const Limit limit(*this, longest);
  return work();
}

Duration Line::TimeFor(std::size_t messages) const {
  return static_cast<int>(messages) * kLinkAttempts * std::chrono::milliseconds(ReplyTimeout) +
         kLongestHold;
}

bool Line::GoesOn() const {
  return PortOpen() && !port_.LineLost() && !heldOut_ && !unsendable_ && !brokenOff_ &&
         loop_.Now() < limit_;
}

LinkFault Line::FaultNow(LinkFault::Kind kind, int number, std::string text) const {
  if (unsendable_) kind = LinkFault::Kind::Unsendable;
  if (heldOut_) kind = LinkFault::Kind::LineHeld;
  if (port_.LineLost()) kind = LinkFault::Kind::LineLost;
  if (!PortOpen()) kind = LinkFault::Kind::PortClosed;
  return {kind, number, std::move(text)};
}

LinkFault Line::WaitFault(int number) const {
  if (loop_.Now() >= limit_) return FaultNow(LinkFault::Kind::OutOfTime, number);
  if (!damaged_) return FaultNow(LinkFault::Kind::Silence, number);
  return FaultNow(tooLong_ ? LinkFault::Kind::LineTooLong : LinkFault::Kind::BadChecksum, number);
}

PortFault Line::Open(int number) {
  port_.SetCommPort(number);
  port_.SetSettings("9600,N,8,1");
  port_.SetInputLen(1);
  port_.SetInBufferSize(kReceiveBuffer);
  port_.SetHandshaking(PortHandshaking::RtsCts);
  port_.SetRTSEnable(false);
  port_.SetDTREnable(true);
  torn_ = false;
  answeredAt_ = loop_.Now();
  askedAt_.reset();
  return port_.SetPortOpen(true);
}

void Line::Close() { port_.SetPortOpen(false); }

Line::TakenLine Line::TakeLine(int timeout, Starts starts) {
  TakenLine line;
  MainTimer_.Start(timeout);
  NoteLostOctets();
  if (!HasInput()) PumpEvents();  // else what waits comes first, so that the buffer keeps its room
  for (;;) {
    TakeWaiting(line, starts);
    if (line.complete || !MainTimer_.Running() || !GoesOn()) return line;
    AwaitInput(MainTimer_.Deadline());
  }
}

/// Takes the characters that have arrived, up to the end of the line: they count even when the
/// countdown has ended while something else held the loop up.
void Line::TakeWaiting(TakenLine& line, Starts starts) {
  while (!line.complete && HasInput()) {
    heardAt_ = loop_.Now();
    for (const char c : port_.Input()) {
      if (line.text.empty()) {
        if (starts(c)) line.text = c;
        continue;
      }
      ++line.behindFirst;
      line.complete = c == kEndOfLine;
      if (line.complete) break;
      line.tooLong = line.text.size() >= kLongestLine;
      if (!line.tooLong) line.text += c;
    }
  }
}

bool Line::AwaitInput(TimePoint deadline) {
  return loop_.RunUntil([this] { return HasInput() || !GoesOn(); }, std::min(deadline, limit_));
}

/// Tells the trace of octets that came while nobody took any.
void Line::NoteLostOctets() {
  const std::uint64_t lost = port_.LostOctets();
  if (lost > lostTold_)
    Note("Receive buffer full, octets lost: ", std::to_string(lost - lostTold_));
  lostTold_ = lost;
}

void Line::AwaitQuiet() {
  const TimePoint giveUp = loop_.Now() + kLongestStreamQuiet;
  std::size_t ignored = IgnoreWaiting();
  while (AwaitInput(std::min(heardAt_ + kStreamQuiet, giveUp)) && GoesOn() && loop_.Now() < giveUp)
    ignored += IgnoreWaiting();
  if (ignored > 0) Note("Rest of a stream ignored, octets: ", std::to_string(ignored));
}

std::size_t Line::IgnoreWaiting() {
  std::size_t ignored = 0;
  while (HasInput()) {
    heardAt_ = loop_.Now();
    ignored += port_.Input().size();
  }
  return ignored;
}

void Line::Put(std::string_view octets) {
  EndTornMessage();
  port_.Output(octets);
}

/// What was left of a message lies at the other end as the start of a line. A carriage return makes
/// it a damaged line, which is ignored, so that it does not swallow the next message.
void Line::EndTornMessage() {
  if (std::exchange(torn_, false)) port_.Output(std::string_view(&kEndOfLine, 1));
}

bool Line::AwaitSent(std::size_t mayWait) {
  for (std::size_t queued = Unsent(); queued > mayWait; queued = Unsent()) {
    const TimePoint giveUp = loop_.Now() + LineTime(queued) + kLongestHold;
    // A queue tells when it is empty; when it holds little enough follows from the line's speed.
    if (mayWait > 0)
      loop_.RunUntil([&] { return Unsent() <= mayWait || !GoesOn(); },
                     std::min(loop_.Now() + LineTime(queued - mayWait + 1), limit_));
    const bool moved =
        loop_.RunUntil([&] { return Unsent() < queued || !GoesOn(); }, std::min(giveUp, limit_));
    if (moved && GoesOn()) continue;
    GiveUpSending(!moved);
    return false;
  }
  return true;
}

/// What is left must not reach the logger late.
void Line::GiveUpSending(bool held) {
  port_.DiscardOutput();
  torn_ = true;
  heldOut_ = held && LinkBusy;
  RxLine.clear();
  Note("Not sent to its end");
}

bool Line::CanSend(std::string_view text) {
  if (UpToControl(text).size() == text.size()) return true;
  unsendable_ = LinkBusy;
  RxLine.clear();
  Note("Not sent, it holds a control character: ", text);
  return false;
}

std::string Line::GetChar(int timeout) {
  MainTimer_.Start(timeout);
  AwaitInput(MainTimer_.Deadline());
  return HasInput() ? port_.Input() : std::string();
}

std::string Line::TakeInput() {
  NoteLostOctets();
  std::string taken;
  while (HasInput()) {
    heardAt_ = loop_.Now();
    taken += port_.Input();
  }
  return taken;
}

bool Line::AwaitThat(const std::function<bool()>& hasCome, int timeout) {
  MainTimer_.Start(timeout);
  loop_.RunUntil([&] { return hasCome() || !GoesOn(); }, std::min(MainTimer_.Deadline(), limit_));
  return hasCome();
}

void Line::Delay(int ms) {
  const bool wentOn = GoesOn();
  MainTimer_.Start(ms);
  loop_.RunUntil([&] { return !MainTimer_.Running() || (wentOn && !GoesOn()); },
                 MainTimer_.Deadline());
}

Duration Line::SilentFor() const {
  // What has come and is not taken yet, while a question to the operator stands, is no silence.
  if (!LinkBusy || !awaitedSince_ || HasInput()) return Duration::zero();
  return loop_.Now() - *awaitedSince_;
}

Duration Line::UnansweredFor() const {
  return askedAt_ && !HasInput() ? loop_.Now() - *askedAt_ : Duration::zero();
}

void Line::NoteQuestion() {
  if (!askedAt_) askedAt_ = loop_.Now();
}

void Line::ExpectAnswer(bool due) {
  awaitedSince_.reset();
  if (due) awaitedSince_ = loop_.Now();
}

void Line::Note(std::string_view what, std::string_view text) const {
  if (!Trace) return;
  constexpr std::size_t kStampWidth = 9;
  std::string line = std::to_string(loop_.Now() / std::chrono::milliseconds(1));
  if (line.size() < kStampWidth) line.insert(0, kStampWidth - line.size(), ' ');
  const std::string shown = MaskCode(TracesPasswords ? std::string(text) : MaskPasswords(text));
  Trace(line.append(" ").append(what).append(Printable(shown)));
}

Line::Dialogue::Dialogue(Line& line) : line_(line), wasBusy_(std::exchange(line.LinkBusy, true)) {
  line.heldOut_ = line.unsendable_ = line.brokenOff_ = line.givesWay_ = false;
  line.ExpectAnswer(true);
}

Line::Dialogue::~Dialogue() {
  line_.LinkBusy = wasBusy_;
  line_.heldOut_ = line_.unsendable_ = line_.brokenOff_ = line_.givesWay_ = false;
}

Line::Limit::Limit(Line& line, Duration span) : line_(line), former_(line.limit_) {
  line.limit_ = std::min(former_, Sum(line.loop_.Now(), span));
}

}  // namespace ostrel
