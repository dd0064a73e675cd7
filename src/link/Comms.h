#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "link/Background.h"
#include "link/Line.h"
#include "link/LinkDeed.h"
#include "link/Progress.h"
#include "link/Wire.h"
#include "link/dialogues/Download.h"
#include "link/dialogues/FirmwareDialogue.h"
#include "link/dialogues/LiveCommands.h"
#include "link/dialogues/Upload.h"
#include "link/dialogues/VoiceDialogue.h"
#include "model/DeviceInfo.h"
#include "model/ProbeIdentity.h"
#include "model/RealTimeData.h"
#include "model/TargetProfile.h"
#include "platform/Platform.h"

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
  std::function<void()> clearPages;     ///< empties the model, ahead of a download
  std::function<void()> beginStream{};  ///< makes the model ready for an attempt of a download
  std::function<void()> loadPages;      ///< shows the model, after a download
  std::function<void()> composed;  ///< an attempt of an upload has taken its state from the model
  std::function<void(std::string_view key)> infoChanged;  ///< one value of `DeviceInfo` has arrived
  std::function<void()> showPWForm;   ///< asks the access code, modal, into AccessCode
  std::function<void()> carrierLost;  ///< tells the operator
  std::function<void(std::string_view portName)> portFound;  ///< one usable port, such as "COM7"
  std::function<void(const LinkDeed&)> deedBegins{};         ///< ahead of its first octet
  std::function<void(const LinkDeed&, const LinkFault&)> deedEnds{};
  /// One that stood has ended, and its port is closed; `fault` tells whether its line was lost.
  std::function<void(const LinkFault& fault)> sessionEnds{};
};

/// The device link: owns the serial port and has every dialogue with a logger. It is the face of
/// the line and of the dialogues, each of which has a file of its own.
///
/// One dialogue runs at a time, as long as `LinkBusy` is set; another one called meanwhile fails at
/// once and sends nothing. Texts are UTF-8. Times are in ms unless a type says so.
class Comms {
 public:
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
  /// handshake. Failure leaves the port closed.
  LinkResult StartComs(std::int16_t port, const std::string& phone);
  /// Closes the port; hangs a data call up first when `modem` is set.
  void CloseComs(bool modem);
  /// Closes the port at once, without any dialogue: a running wait ends, and with it the dialogue,
  /// which fails.
  void Abort() { ClosePort(); }
  /// Leaves the closed port to somebody else for some work: no dialogue begins meanwhile, and what
  /// the carrier does is none of ours. False when a dialogue runs or the port is open.
  bool LendPort(const std::function<void()>& work);
  std::string GetChar(int timeout) { return line_.GetChar(timeout); }
  std::string TakeInput() { return line_.TakeInput(); }
  void Delay(int ms) { line_.Delay(ms); }
  void PumpEvents() { line_.PumpEvents(); }
  bool PortOpen() const { return line_.PortOpen(); }

  // Frames.
  void TxSer(std::string& message, int timeout) { line_.TxSer(message, timeout); }
  bool RxSer(int timeout) { return line_.RxSer(timeout); }
  void TxGsm(std::string_view command, int timeout) { line_.TxGsm(command, timeout); }
  bool RxGsm(int timeout) { return line_.RxGsm(timeout); }
  /// Comma-separated field of `RxLine`, counted from 1.
  std::string GetField(int n) const;
  /// Text in braces of `RxLine`: 2 is the text inside the first braces.
  std::string GetField1(int n) const;

  // Dialogues.
  /// Downloads the configuration into the model. On failure only a part of it may have arrived.
  LinkResult ReadConf();
  /// Uploads the configuration. Success: the logger has taken it over.
  LinkResult WriteConf();
  /// The statements that `WriteConf` would send now, without their numbers.
  std::vector<std::string> ComposeStatements() const { return upload_.Compose().All(); }
  /// Asks the logger who it is. Always false; the values stand in the records.
  bool ReadInfo();
  /// Reads lines of a former download into the model, over what it holds.
  void TakeKeptLines(std::span<const std::string> lines) { download_.TakeKept(lines); }
  /// The logger's own lines of the last download, as messages.
  const std::vector<std::string>& DownloadedLines() const { return download_.Lines(); }
  /// What the last `ReadInfo` came to: no fault when it got the stream to its end.
  const LinkFault& InfoFault() const { return infoFault_; }
  /// Brings the logger's clock into `DeviceClock`, which stays as it was on failure.
  LinkResult ReadDeviceRTC();
  /// Sets the logger's clock to the computer's.
  LinkResult WriteDeviceRTC();
  LinkResult ReadTotalCount();
  /// Fetches the names and units that the logger holds. Succeeds whatever was answered.
  LinkResult ReadIOParameter();
  /// What was answered to the last `ReadIOParameter`.
  const std::vector<NameAnswer>& NamesTold() const { return namesTold_; }
  /// Refreshes the live values; succeeds when the logger's masks have arrived.
  LinkResult ReadRealTime();
  /// Sets all outputs by a mask, one bit each.
  LinkResult SetOutput(std::int16_t mask);
  LinkResult SetSingleOutput(std::int16_t index, bool on);
  /// Sets the total of a pulse counter; succeeds when the logger confirms.
  LinkResult SetTotalCNT(std::int16_t index, std::int32_t value);
  /// Sets the total of an expansion counter; succeeds when the logger confirms.
  LinkResult SetExpValue(std::int16_t index, std::int32_t value);
  /// Reads the identity of the one probe on the logger's 1-Wire bus.
  LinkResult ReadProbeIdentity(ProbeIdentity& identity);
  /// Writes the voice-call list, whose count and check sum are up to date. Success: the logger
  /// holds it.
  LinkResult WriteAutVoz(const ConfAutVoz& list);
  /// Reads the voice-call list. After a failure some of its numbers may have come.
  LinkResult ReadAutVozList(ConfAutVoz& list);
  /// Replaces the logger's firmware, and tells each stage as it begins. Success: all is sent, and
  /// the logger has left the dialogue.
  LinkResult SendFirmware(const FirmwareFiles& files, const FirmwareDialogue::OnStage& onStage);

  /// Why the last opening, transfer or setting failed; kept until the next one ends. What is only
  /// read now and then does not change it.
  const LinkFault& Fault() const { return fault_; }
  Duration SilentFor() const { return line_.SilentFor(); }
  Duration SinceAnswer() const { return line_.SinceAnswer(); }
  Duration UnansweredFor() const { return line_.UnansweredFor(); }
  /// True when nothing can come any more as far as the machine knows: the port is closed, its
  /// device has gone, or the carrier has and nothing was heard of the logger since. On a cable,
  /// where no modem speaks in its place, a text tells of it as well as a frame does.
  bool LineLost() const;
  /// Tells a listener how far the long dialogues are, as long as the subscription lives.
  [[nodiscard]] ProgressFeed::Subscription OnProgress(ProgressFeed::Listener listener) {
    return progress_.Listen(std::move(listener));
  }
  /// Reading that gives way to what the operator asks for.
  Background& Reading() { return background_; }
  /// The line, for a dialogue that is not one of these.
  Line& TheLine() { return line_; }

 private:
  LinkResult Keep(LinkResult result);
  /// Runs a dialogue that book is kept of.
  LinkResult Do(const LinkDeed& deed, const std::function<LinkResult()>& dialogue);
  LinkResult Set(const LinkDeed& deed, std::string message, std::string_view answer);
  void ClosePort();
  /// The same where the line may have been lost before, which closing hides.
  void ClosePort(bool isLost);

  Platform platform_;
  LinkRecords records_;
  LinkHooks hooks_;
  Line line_;
  Background background_;
  ProgressFeed progress_;
  Download download_;
  Upload upload_;
  VoiceDialogue voice_;
  LinkFault fault_;
  LinkFault infoFault_{LinkFault::Kind::Silence};
  std::vector<NameAnswer> namesTold_;
  bool lent_ = false;
  bool opened_ = false;  ///< the open port is ours to close
  bool isCall_ = false;  ///< the session goes through a modem
  bool stands_ = false;  ///< a session whose end has not been told
  std::optional<TimePoint> carrierGoneAt_;

 public:
  std::string AccessCode;  ///< as typed by the operator; written while `showPWForm` runs
  std::int32_t& ReplyTimeout = line_.ReplyTimeout;  ///< 1000 on a cable, 10000 by modem
  bool& LinkBusy = line_.LinkBusy;
  std::string& RxLine = line_.RxLine;     ///< the last line received
  std::int32_t& RxChars = line_.RxChars;  ///< characters taken behind the "#" of frames
  /// Gets a line of text for each thing sent or received, once set: a time stamp in ms, then
  /// "TxGsm: ", "RxGsm: ", "TxSer: ", "RxSer: " and the text, or "RxSer Checksum error!". Access
  /// codes are masked, and passwords unless `TracesPasswords` is set.
  std::function<void(const std::string& line)>& Trace = line_.Trace;
  bool& TracesPasswords = line_.TracesPasswords;
};

}  // namespace ostrel
