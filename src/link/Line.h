#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "link/Countdown.h"
#include "link/LinkFault.h"
#include "platform/EventLoop.h"
#include "platform/SerialPort.h"

namespace ostrel {

/// The line to a logger, or to the modem in between: frames, plain lines, and the waits for them.
/// Texts are UTF-8; the line carries code page 1252. Times are in ms unless a type says so.
///
/// All waits spin on the event loop. There is one countdown and one reply text, so one dialogue
/// runs at a time: `Converse` sees to that.
class Line {
 public:
  class Dialogue;
  class Limit;

  Line(EventLoop& loop, SerialPort& port);
  Line(const Line&) = delete;
  Line& operator=(const Line&) = delete;

  // Dialogues.
  /// Runs a dialogue, which gives its fault. It is turned away while another one runs or the port
  /// is closed, and breaks off `longest` from now.
  LinkResult Converse(Duration longest, const std::function<LinkFault()>& work);
  /// The longest that a dialogue of some messages may take on this line: as long as sending each in
  /// vain, with the line held once besides.
  Duration TimeFor(std::size_t messages) const;
  /// True while there is something to wait for: the port is open, its device there, flow control
  /// not holding the line for good, and the dialogue within its time.
  bool GoesOn() const;
  /// Makes the dialogue under way break off, as silence would: what waits in it ends, and the port
  /// stays open.
  void BreakOff() { brokenOff_ = LinkBusy; }
  /// Asks the dialogue under way to end behind the message under way, which is not sent again.
  void GiveWay() { givesWay_ = LinkBusy; }
  bool GivesWay() const { return givesWay_; }
  /// A fault of the dialogue under way. What ended the line counts more than what it led to.
  LinkFault FaultNow(LinkFault::Kind kind, int number = 0, std::string text = {}) const;
  /// The fault of having waited for a frame in vain.
  LinkFault WaitFault(int number = 0) const;

  // Port.
  PortFault Open(int number);
  void Close();
  bool PortOpen() const { return port_.PortOpen(); }

  // Messages.
  /// Frames and sends a message, and waits for a reply with up to 3 attempts when `timeout` is
  /// above 0. `message` is overwritten with the frame. The reply is `RxLine`, empty for none.
  /// A message with a control character, which would tear its frame or make another one, is not
  /// sent: it stays as it is, the trace says so, and the dialogue ends as unsendable.
  void TxSer(std::string& message, int timeout);
  /// Waits for one frame; on success `RxLine` is its message form.
  bool RxSer(int timeout);
  /// Sends a message and awaits the reply, `extraMs` longer than is usual; false when there is
  /// none.
  bool Ask(std::string message, int extraMs = 0);
  /// Sends a message and awaits a reply that starts with `head`.
  LinkFault AskFor(std::string message, std::string_view head);
  /// Sends a message and awaits exactly one reply to it, in a time of its own.
  LinkFault AskOnly(std::string message, int timeout, std::string_view reply);
  /// Sends a message that has no reply of its own, and waits until it has left; false when it does
  /// not leave. `RxLine` is empty then, and a damaged frame from now on counts as one of its time.
  bool Post(std::string message);
  /// Swallows frames until none comes for `quietMs`, or for `longest` at the most.
  void DrainFrames(int quietMs, Duration longest);

  // Plain lines of a modem.
  /// Sends a command line; the answer is `RxLine`.
  void TxGsm(std::string_view command, int timeout);
  /// Waits for one plain line.
  bool RxGsm(int timeout);
  /// The same as `TxGsm`, with an empty `RxLine` also where nothing could be sent.
  void AskModem(std::string_view command, int timeout);

  // Octets.
  void Put(std::string_view octets);
  /// Ends what is left of a message that was given up, where there is such a thing. `Put` does it,
  /// too; this is for who must keep silent before the next octet.
  void EndTornMessage();
  /// Waits until what was written is on the line, but for the last `mayWait` octets, however long
  /// that takes as long as it moves. A line that flow control holds for too long is given up: the
  /// rest is discarded, so that it never reaches a logger late, and the result is false.
  bool AwaitSent(std::size_t mayWait = 0);
  /// Octets that were written and are not on the line yet.
  std::size_t Unsent() const { return port_.OutBufferCount(); }
  /// One received character as an octet in a text, or empty after `timeout`.
  std::string GetChar(int timeout);
  /// All that has been received and not taken yet.
  std::string TakeInput();
  /// Waits for something that received characters bring about. False when it has not come in time.
  bool AwaitThat(const std::function<bool()>& hasCome, int timeout);
  /// Ignores what arrives until the line is quiet: for a stream that failed and may still run.
  void AwaitQuiet();
  /// Waits, serving events. Ends early when the port is closed or lost meanwhile.
  void Delay(int ms);
  void PumpEvents() { loop_.PumpEvents(); }

  // What is told about it.
  /// How long a reply or a line has been awaited in vain: time since the last good frame, while a
  /// dialogue runs and expects one; zero otherwise.
  Duration SilentFor() const;
  /// Time since the last good frame; since the opening where none has come.
  Duration SinceAnswer() const { return loop_.Now() - answeredAt_; }
  /// When the last good frame came, or the port was opened.
  TimePoint AnsweredAt() const { return answeredAt_; }
  /// When characters of any kind were last taken.
  TimePoint HeardAt() const { return heardAt_; }
  /// How long the oldest question is out to which nothing has come since; zero for none.
  Duration UnansweredFor() const;
  /// A question goes out that wants an answer.
  void NoteQuestion();
  /// From now on an answer is due, or none.
  void ExpectAnswer(bool due);
  void Note(std::string_view what, std::string_view text = {}) const;

  std::int32_t ReplyTimeout = 1000;
  bool LinkBusy = false;
  std::string RxLine;
  std::int32_t RxChars = 0;
  std::function<void(const std::string& line)> Trace;
  bool TracesPasswords = false;  ///< those of the configuration; access codes never

 private:
  /// What came of waiting for one line.
  struct TakenLine {
    std::string text;  ///< octets, without the carriage return
    int behindFirst = 0;
    bool complete = false;
    bool tooLong = false;
  };
  using Starts = bool (*)(char c);

  TakenLine TakeLine(int timeout, Starts starts);
  void TakeWaiting(TakenLine& line, Starts starts);
  bool HasInput() const { return port_.InBufferCount() > 0; }
  /// Waits for characters, to `deadline` and the end of the phase under way at the latest.
  bool AwaitInput(TimePoint deadline);
  std::size_t IgnoreWaiting();
  void NoteLostOctets();
  void DrainPlainLines();
  void GiveUpSending(bool held);
  /// Whether a text fits a line; says so and ends the dialogue when it does not.
  bool CanSend(std::string_view text);

  EventLoop& loop_;
  SerialPort& port_;
  Countdown MainTimer_;
  TimePoint limit_ = kNever;               ///< when the phase under way ends at the latest
  TimePoint heardAt_{};                    ///< when characters were last taken
  std::uint64_t lostTold_ = 0;             ///< lost octets that the trace has been told of
  std::optional<TimePoint> awaitedSince_;  ///< last sign of the logger; none while none is due
  TimePoint answeredAt_{};                 ///< when the last good frame came
  std::optional<TimePoint> askedAt_;       ///< of the oldest question that nothing has answered
  bool damaged_ = false;     ///< a bad frame has come since the last message or good frame
  bool tooLong_ = false;     ///< the bad frame was longer than any line
  bool unsendable_ = false;  ///< a message of the dialogue could not be sent, which ends it
  bool heldOut_ = false;     ///< flow control has held the line for so long that the dialogue ends
  bool brokenOff_ = false;   ///< the dialogue is to end
  bool givesWay_ = false;    ///< the dialogue is to end behind its message
  bool torn_ = false;        ///< the last message may have left in part, without its end
};

/// Holds the line for one dialogue.
class Line::Dialogue {
 public:
  explicit Dialogue(Line& line);
  ~Dialogue();
  Dialogue(const Dialogue&) = delete;
  Dialogue& operator=(const Dialogue&) = delete;

 private:
  Line& line_;
  bool wasBusy_;
};

/// Ends a phase of a dialogue after a span, as silence would. A limit within another one cannot
/// outlast it.
class Line::Limit {
 public:
  Limit(Line& line, Duration span);
  ~Limit() { line_.limit_ = former_; }
  Limit(const Limit&) = delete;
  Limit& operator=(const Limit&) = delete;

 private:
  Line& line_;
  TimePoint former_;
};

}  // namespace ostrel
