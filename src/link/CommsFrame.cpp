#include <algorithm>
#include <limits>
#include <utility>

#include "base/CodePage.h"
#include "link/Comms.h"
#include "link/Frame.h"

namespace ostrel {
namespace {

constexpr char kEndOfLine = '\r';
constexpr int kDrainMs = 100;
constexpr int kAttempts = 3;
/// A stream has ended when nothing of it has come for so long, or is not waited for any longer.
constexpr Duration kQuiet = std::chrono::milliseconds(300);
constexpr Duration kLongestUnquiet = std::chrono::seconds(10);
/// Far above the longest answer of any logger.
constexpr std::size_t kLongestLine = 64 * 1024;
/// How long a source that never stops is listened to ahead of a message.
constexpr Duration kLongestDrain = std::chrono::seconds(10);
/// A line on which nothing has moved for so long is given up. Longer than any wait for a reply, so
/// that a busy logger or modem may hold the line as long as it may think.
constexpr Duration kLongestHold = std::chrono::seconds(10);

bool StartsFrame(char c) { return c == '#'; }
/// The first of a plain line: blanks, line ends and control characters before it are passed over.
bool StartsPlainLine(char c) { return c > ' ' && c <= '~'; }

/// A running count that starts over instead of overflowing.
void AddTo(std::int32_t& count, int more) {
  count = more > std::numeric_limits<std::int32_t>::max() - count ? more : count + more;
}

}  // namespace

void Comms::TxSer(std::string& message, int timeout) {
  if (!PortOpen()) return;
  const std::string plain = Trace ? message : std::string();
  const std::string frame = FrameOf(ToCodePage(message));
  message = FromCodePage(frame);
  const auto send = [&] {
    Put(frame + kEndOfLine);
    Note("TxSer: ", plain);
  };
  if (timeout <= 0) return send();
  Drain(&Comms::RxSer, kDrainMs, kLongestDrain);
  damaged_ = false;
  for (int attempt = 0; attempt < kAttempts && Alive(); ++attempt) {
    send();
    if (!AwaitSent() || RxSer(timeout)) return;
  }
}

bool Comms::RxSer(int timeout) {
  if (!PortOpen()) return false;
  const TakenLine line = TakeLine(timeout, StartsFrame);
  AddTo(RxChars, line.behindFirst);
  RxLine.clear();
  if (line.tooLong || (line.complete && !ChecksumOk(line.text))) {
    damaged_ = true;
    Note("RxSer Checksum error!");
    return false;
  }
  if (!line.complete) return false;
  RxLine = FromCodePage(MessageOf(line.text));
  awaitedSince_ = platform_.loop.Now();
  Note("RxSer: ", RxLine);
  return true;
}

void Comms::TxGsm(std::string_view command, int timeout) {
  if (!PortOpen()) return;
  Drain(&Comms::RxGsm, kDrainMs, kLongestDrain);
  for (int attempt = 0; attempt < kAttempts && Alive(); ++attempt) {
    Put(ToCodePage(command) + kEndOfLine);
    Note("TxGsm: ", command);
    if (timeout <= 0) return;
    if (!AwaitSent() || (RxGsm(timeout) && RxLine != "+CME ERROR: 515")) return;
  }
}

bool Comms::RxGsm(int timeout) {
  if (!PortOpen()) return false;
  const TakenLine line = TakeLine(timeout, StartsPlainLine);
  RxLine.clear();
  if (line.tooLong || !line.complete) return false;
  RxLine = FromCodePage(line.text);
  awaitedSince_ = platform_.loop.Now();
  Note("RxGsm: ", RxLine);
  return true;
}

std::string Comms::GetField(int n) const { return std::string(FieldOfLine(RxLine, n)); }

std::string Comms::GetField1(int n) const { return std::string(BracedFieldOfLine(RxLine, n)); }

Comms::TakenLine Comms::TakeLine(int timeout, Starts starts) {
  TakenLine line;
  MainTimer_.Start(timeout);
  NoteLostOctets();
  if (!HasInput()) PumpEvents();  // else what waits comes first, so that the buffer keeps its room
  for (;;) {
    TakeWaiting(line, starts);
    if (line.complete || !MainTimer_.Running() || !Alive()) return line;
    platform_.loop.RunUntil([this] { return HasInput() || !Alive(); },
                            std::min(MainTimer_.Deadline(), limit_));
  }
}

/// Tells the trace of octets that came while nobody took any.
void Comms::NoteLostOctets() {
  const std::uint64_t lost = platform_.port.LostOctets();
  if (lost > lostTold_)
    Note("Receive buffer full, octets lost: ", std::to_string(lost - lostTold_));
  lostTold_ = lost;
}

/// Takes the characters that have arrived, up to the end of the line: they count even when the
/// countdown has ended while something else held the loop up.
void Comms::TakeWaiting(TakenLine& line, Starts starts) {
  while (!line.complete && HasInput()) {
    heardAt_ = platform_.loop.Now();
    for (const char c : platform_.port.Input()) {
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

void Comms::Drain(bool (Comms::*receive)(int), int quietMs, Duration longest) {
  const Limit limit(*this, longest);
  while ((this->*receive)(quietMs) && Alive()) {
  }
}

void Comms::AwaitQuiet() {
  const TimePoint giveUp = platform_.loop.Now() + kLongestUnquiet;
  std::size_t ignored = IgnoreWaiting();
  while (platform_.loop.RunUntil([this] { return HasInput() || !Alive(); },
                                 std::min(heardAt_ + kQuiet, giveUp)) &&
         Alive() && platform_.loop.Now() < giveUp)
    ignored += IgnoreWaiting();
  if (ignored > 0) Note("Rest of a stream ignored, octets: ", std::to_string(ignored));
}

std::size_t Comms::IgnoreWaiting() {
  std::size_t ignored = 0;
  while (HasInput()) {
    heardAt_ = platform_.loop.Now();
    ignored += platform_.port.Input().size();
  }
  return ignored;
}

void Comms::Put(std::string_view octets) {
  EndTornMessage();
  platform_.port.Output(octets);
}

/// What was left of a message lies at the other end as the start of a line. A carriage return makes
/// it a damaged line, which is ignored, so that it does not swallow the next message.
void Comms::EndTornMessage() {
  if (std::exchange(torn_, false)) platform_.port.Output(std::string_view(&kEndOfLine, 1));
}

bool Comms::AwaitSent() {
  SerialPort& port = platform_.port;
  for (std::size_t queued = port.OutBufferCount(); queued > 0; queued = port.OutBufferCount()) {
    const TimePoint giveUp = platform_.loop.Now() + LineTime(queued) + kLongestHold;
    const bool moved = platform_.loop.RunUntil(
        [&] { return port.OutBufferCount() < queued || !Alive(); }, std::min(giveUp, limit_));
    if (moved && Alive()) continue;
    GiveUpSending(!moved);
    return false;
  }
  return true;
}

/// What is left must not reach the logger late.
void Comms::GiveUpSending(bool held) {
  platform_.port.DiscardOutput();
  torn_ = true;
  heldOut_ = held && LinkBusy;
  RxLine.clear();
  Note("Not sent to its end");
}

bool Comms::Ask(std::string message) {
  RxLine.clear();  // a closed port leaves it alone, and an old line is no answer
  TxSer(message, ReplyTimeout);
  return !RxLine.empty();
}

void Comms::AskModem(std::string_view command, int timeout) {
  RxLine.clear();
  TxGsm(command, timeout);
}

}  // namespace ostrel
