#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "link/Countdown.h"
#include "link/LinkFault.h"
#include "link/Wire.h"
#include "model/DeviceInfo.h"
#include "model/RealTimeData.h"
#include "model/TargetProfile.h"
#include "platform/EventLoop.h"
#include "platform/Platform.h"
#include "platform/SerialPort.h"

namespace ostrel {

/// The records that the dialogues fill and consult.
struct LinkRecords {
  const TargetProfile& profile;
  DeviceInfo& info;
  RealTimeData& live;
  TotalCounts& totals;
  bool& ComBusy;  ///< true while a download replaces the model
};

/// What the link asks of the pages above it. All are called on the event thread.
struct LinkHooks {
  std::function<void()> clearPages;             ///< empties the model, ahead of a download
  std::function<void()> loadPages;              ///< shows the model, after a download
  std::function<void(int maximum)> barMaximum;  ///< progress bar; its value is set after this
  std::function<void(int value)> barValue;
  std::function<void()> composed;  ///< an attempt of an upload has taken its state from the model
  std::function<void(std::string_view key)> infoChanged;  ///< one value of `DeviceInfo` has arrived
  std::function<void()> showPWForm;   ///< asks the access code, modal, into AccessCode
  std::function<void()> carrierLost;  ///< tells the operator
  std::function<void(std::string_view portName)> portFound;  ///< one usable port, such as "COM7"
};

struct LiveRequest;

/// The device link: owns the serial port, the frame of every message and every dialogue with a
/// logger. Texts are UTF-8; the line carries code page 1252. Times are in ms unless a type says so.
///
/// All waits spin on the event loop. There is one countdown and one reply text, so one dialogue
/// runs at a time: `LinkBusy` guards that, and a dialogue called while it is set returns at once.
class Comms {
 public:
  /// Holds the link for one dialogue, of this object or of a page that has its own.
  class Dialogue;

  Comms(const Platform& platform, const LinkRecords& records, LinkHooks hooks);
  ~Comms();
  Comms(const Comms&) = delete;
  Comms& operator=(const Comms&) = delete;

  /// Makes known how lines are read and what an upload sends, each in order.
  void SetWire(std::vector<WireSection> sections, std::vector<WireBlock> blocks);

  // Transport.
  /// Tries every port number and reports the usable ones through the hook, in order.
  void ScanPorts();
  /// Opens the port; on a modem path (non-empty phone) dials and gets the access code; then the
  /// handshake. False leaves the port closed and `Fault` filled.
  bool StartComs(std::int16_t port, const std::string& phone);
  /// Closes the port; hangs a data call up first when `modem` is set.
  void CloseComs(bool modem);
  /// Closes the port at once, without any dialogue: a running wait ends, and with it the dialogue,
  /// which fails.
  void Abort();
  /// One received character as an octet in a text, or empty after `timeout`.
  std::string GetChar(int timeout);
  /// Waits, serving events. Ends early when the port is closed or lost meanwhile.
  void Delay(int ms);
  /// Serves what is due now.
  void PumpEvents();

  // Frames.
  /// Frames and sends a message, and waits for a reply with up to 3 attempts when `timeout` is
  /// above 0. `message` is overwritten with the frame. The reply is `RxLine`, empty for none.
  void TxSer(std::string& message, int timeout);
  /// Waits for one frame; on success `RxLine` is its message form.
  bool RxSer(int timeout);
  /// Sends an AT command line; the answer is `RxLine`.
  void TxGsm(std::string_view command, int timeout);
  /// Waits for one plain line.
  bool RxGsm(int timeout);
  /// Comma-separated field of `RxLine`, counted from 1.
  std::string GetField(int n) const;
  /// Text in braces of `RxLine`: 2 is the text inside the first braces.
  std::string GetField1(int n) const;

  // Dialogues.
  /// Downloads the configuration into the model. False: nothing, or only a part, has arrived.
  bool ReadConf();
  /// Uploads the configuration. True: the logger has taken it over.
  bool WriteConf();
  /// The statements that `WriteConf` would send now, without their numbers.
  std::vector<std::string> ComposeStatements() const;
  /// Sends one statement under `StatementNo`, which rises by 1 and is told to `bar`. False when
  /// the logger refuses within its window, or when the line is closed, lost or held; silence is
  /// good.
  bool SendStatement(std::string_view statement, const std::function<void(int)>& bar);
  /// Asks the logger who it is. Always false; the values stand in the records.
  bool ReadInfo();
  /// What the last `ReadInfo` came to: no fault when it got the stream to its end. A damaged line
  /// ends it early, and the values behind that line stay as they were.
  const LinkFault& InfoFault() const { return infoFault_; }
  /// Brings the logger's clock into `DeviceClock`, which stays as it was on failure.
  void ReadDeviceRTC();
  /// Sets the logger's clock to the computer's.
  bool WriteDeviceRTC();
  /// Fills the totals; false when no answer has come.
  bool ReadTotalCount();
  /// Fetches the names and units that the logger holds. True whatever was answered.
  bool ReadIOParameter();
  /// Refreshes the live values; true when the logger's masks have arrived.
  bool ReadRealTime();
  /// Sets all outputs by a mask, one bit each.
  bool SetOutput(std::int16_t mask);
  bool SetSingleOutput(std::int16_t index, bool on);
  /// Sets the total of a pulse counter; true when the logger confirms.
  bool SetTotalCNT(std::int16_t index, std::int32_t value);
  /// Sets the total of an expansion counter; true when the logger confirms.
  bool SetExpValue(std::int16_t index, std::int32_t value);

  bool PortOpen() const;
  /// What the last dialogue that failed came to; kept until the next one starts.
  const LinkFault& Fault() const { return fault_; }
  /// How long a reply or a line has been awaited in vain: time since the last good frame, while a
  /// dialogue runs; zero otherwise.
  Duration SilentFor() const;

  std::int32_t ReplyTimeout = 1000;  ///< wait for a framed reply: 1000 on a cable, 10000 by modem
  std::string AccessCode;            ///< as typed by the operator; written while `showPWForm` runs
  bool LinkBusy = false;
  std::string RxLine;            ///< the last line received
  std::int32_t RxChars = 0;      ///< characters taken behind the "#" of frames
  std::int16_t StatementNo = 0;  ///< number of the next statement

  /// Gets a line of text for each thing sent or received, once set: a time stamp in ms, then
  /// "TxGsm: ", "RxGsm: ", "TxSer: ", "RxSer: " and the text, or "RxSer Checksum error!". Access
  /// codes are masked.
  std::function<void(const std::string& line)> Trace;

 private:
  /// What came of waiting for one line.
  struct TakenLine {
    std::string text;  ///< octets, without the carriage return
    int behindFirst = 0;
    bool complete = false;
    bool tooLong = false;
  };
  using Starts = bool (*)(char c);
  /// Ends a phase of a dialogue after a span, as silence would. A limit within another one cannot
  /// outlast it.
  class Limit;

  // Port.
  bool OpenPort(std::int16_t number);
  bool Connect(const std::string& phone);
  bool Dial(const std::string& phone);
  void AskAccessCode();
  bool Handshake();
  void HangUp();
  /// The longest that a dialogue of some messages may take: as long as asking each in vain, and
  /// flow control may hold the line once besides.
  Duration TimeFor(std::size_t messages) const;
  /// True while characters can come and go, as far and as long as the present dialogue waits for
  /// that.
  bool Alive() const;
  bool HasInput() const;

  // Lines.
  TakenLine TakeLine(int timeout, Starts starts);
  void NoteLostOctets();
  void TakeWaiting(TakenLine& line, Starts starts);
  /// Swallows stale lines until none comes for `quietMs`, or for `longest` at the most.
  void Drain(bool (Comms::*receive)(int timeout), int quietMs, Duration longest);
  /// Ignores what arrives until nothing has arrived for a while.
  void AwaitQuiet();
  std::size_t IgnoreWaiting();
  void Put(std::string_view octets);
  void EndTornMessage();
  /// Waits until what was written is on the line, however long that takes as long as it moves. A
  /// line that flow control holds for too long is given up: the rest is discarded, so that it never
  /// reaches a logger late, and the result is false.
  bool AwaitSent();
  void GiveUpSending(bool held);
  /// Sends a message and awaits the answer; false when there is none.
  bool Ask(std::string message);
  void AskModem(std::string_view command, int timeout);
  void Note(std::string_view what, std::string_view text = {}) const;

  // Failures. A closed, lost or held line is told before anything else.
  LinkFault FaultNow(LinkFault::Kind kind, int number = 0, std::string text = {}) const;
  LinkFault WaitFault(int number) const;
  // These keep the fault and give false.
  bool Fail(LinkFault::Kind kind, int number = 0, std::string text = {});
  bool FailWaiting(int number);

  // Dialogues.
  bool DownloadOnce();
  bool ParseConfLine();
  bool ReadSection(const std::function<void(LineReader&)>& section);
  /// One attempt; `taken` tells whether the last line that came was good.
  LinkFault ReadInfoOnce(bool& taken);
  bool ParseInfoLine();
  void ParseClock();
  bool UploadOnce();
  /// Takes the number of a stream's line; false when it is not the one expected.
  bool TakeRecordNumber(std::string_view head);
  bool Confirm(std::string message, std::string_view answer);
  bool Fetch(const LiveRequest& request);

  Platform platform_;
  LinkRecords records_;
  LinkHooks hooks_;
  Countdown MainTimer_;
  std::unordered_map<std::string, std::function<void(LineReader&)>> sections_;
  std::vector<WireBlock> blocks_;
  LinkFault fault_;
  LinkFault infoFault_{.kind = LinkFault::Kind::Silence};
  bool boundFailed_ = false;  ///< a line of this download had an index beyond its array
  std::int16_t RecordExpected_ = 0;
  std::int16_t RecordReceived_ = 0;
  TimePoint heardAt_{};         ///< when characters were last taken
  TimePoint limit_ = kNever;    ///< when the present phase ends at the latest
  std::uint64_t lostTold_ = 0;  ///< lost octets that the trace has been told of
  bool opened_ = false;         ///< the open port is ours to close
  bool damaged_ = false;        ///< a bad frame has come since this was last cleared
  bool heldOut_ = false;  ///< flow control has held the line for so long that the dialogue ends
  bool torn_ = false;     ///< the last message may have left in part, without its end
  std::optional<TimePoint> awaitedSince_;  ///< last sign of the logger; none while none is due
};

class Comms::Limit {
 public:
  Limit(Comms& comms, Duration span);
  ~Limit() { comms_.limit_ = former_; }
  Limit(const Limit&) = delete;
  Limit& operator=(const Limit&) = delete;

 private:
  Comms& comms_;
  TimePoint former_;
};

class Comms::Dialogue {
 public:
  explicit Dialogue(Comms& comms);
  ~Dialogue();
  Dialogue(const Dialogue&) = delete;
  Dialogue& operator=(const Dialogue&) = delete;

  /// True when the port has been closed since the start.
  bool Cut() const { return wasOpen_ && !comms_.PortOpen(); }

 private:
  Comms& comms_;
  bool wasBusy_;
  bool wasOpen_;
};

/// True when a schedule covers every day of the week and the whole day. Times in seconds of the
/// day.
bool CheckSiempre(std::int32_t start, std::int32_t stop, std::uint8_t days);

}  // namespace ostrel
