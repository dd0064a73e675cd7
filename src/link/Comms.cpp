#include "link/Comms.h"

#include <algorithm>
#include <utility>

#include "base/Scope.h"
#include "base/Sha256.h"
#include "link/LinkTimes.h"
#include "link/Modem.h"
#include "link/dialogues/Information.h"
#include "link/dialogues/LiveCommands.h"
#include "link/dialogues/Opening.h"
#include "link/dialogues/ProbeReading.h"
#include "platform/Clock.h"

namespace ostrel {
namespace {

constexpr int kOutputBits = 16;

/// "counter 2 = 1500".
std::string TotalText(std::string_view whose, std::int16_t index, std::int32_t value) {
  return std::string(whose) + std::to_string(index) + " = " + std::to_string(value);
}

/// The numbers of a list, one a line, as a text file has them.
std::string NumbersText(const ConfAutVoz& list) {
  std::string text;
  for (const std::string& number : NumbersOf(list)) text += number + "\n";
  return text;
}

/// "3 numbers, macro 2".
std::string ListText(const ConfAutVoz& list) {
  return std::to_string(NumbersOf(list).size()) + " numbers, " +
         (list.MACRO < 0 ? "no macro" : "macro " + std::to_string(list.MACRO));
}

/// "123456 octets, SHA-256 0123456789abcdef...", of the image.
std::string FirmwareText(const FirmwareFiles& files) {
  return std::to_string(files.image.size()) + " octets, SHA-256 " + Sha256(files.image);
}

}  // namespace

Comms::Comms(const Platform& platform, const LinkRecords& records, LinkHooks hooks)
    : platform_(platform),
      records_(records),
      hooks_(std::move(hooks)),
      line_(platform.loop, platform.port),
      background_(platform.loop, line_),
      download_(line_, progress_,
                {hooks_.clearPages, hooks_.beginStream, hooks_.loadPages, records.ComBusy}),
      upload_(line_, progress_, records.info, hooks_.composed),
      voice_(line_, progress_, records.info) {
  platform_.port.SetOnComm([this] {
    if (platform_.port.CommEvent() != kCommEventCarrier || lent_) return;
    carrierGoneAt_.reset();
    if (platform_.port.CDHolding()) return;
    carrierGoneAt_ = platform_.loop.Now();
    if (hooks_.carrierLost) hooks_.carrierLost();
  });
}

Comms::~Comms() {
  platform_.port.SetOnComm({});
  if (opened_) ClosePort();
}

void Comms::SetWire(std::vector<WireSection> sections, std::vector<WireBlock> blocks) {
  download_.SetSections(std::move(sections));
  upload_.SetBlocks(std::move(blocks));
}

void Comms::ScanPorts() {
  for (int number = kFirstPort; number <= kLastPort; ++number)
    if (platform_.port.Probe(number) == PortFault::None && hooks_.portFound)
      hooks_.portFound(PortName(number));
}

bool Comms::LineLost() const {
  if (!line_.PortOpen() || platform_.port.LineLost()) return true;
  if (!carrierGoneAt_ || line_.AnsweredAt() > *carrierGoneAt_) return false;
  return isCall_ || line_.HeardAt() <= *carrierGoneAt_ + kCarrierTail;
}

LinkResult Comms::StartComs(std::int16_t port, const std::string& phone) {
  carrierGoneAt_.reset();
  isCall_ = !phone.empty();
  const LinkDeed deed{
      .kind = LedgerKind::Session, .detail = {}, .port = PortName(port), .phone = phone};
  if (hooks_.deedBegins) hooks_.deedBegins(deed);
  const LinkResult result = Keep(Opening(line_, AccessCode, hooks_.showPWForm).Run(port, phone));
  opened_ = stands_ = result;
  if (hooks_.deedEnds) hooks_.deedEnds(deed, result.Fault());
  if (!result) return result;
  // A flag left behind by whatever ran before must not block the session.
  LinkBusy = false;
  // The values that are held may be those of another logger.
  records_.live.reads = {};
  records_.live.ClockRead = {};
  return result;
}

void Comms::CloseComs(bool modem) {
  const Line::Dialogue dialogue(line_);
  const AtEnd closed([this, isLost = LineLost()] { ClosePort(isLost); });
  if (modem && line_.GoesOn()) HangUp(line_);
  if (line_.GoesOn()) line_.AwaitSent();
}

bool Comms::LendPort(const std::function<void()>& work) {
  if (LinkBusy || PortOpen()) return false;
  const Lent busy(LinkBusy, true), lent(lent_, true);
  work();
  return true;
}

std::string Comms::GetField(int n) const { return std::string(FieldOf(RxLine, n)); }

std::string Comms::GetField1(int n) const { return std::string(BracedFieldOfLine(RxLine, n)); }

/// A dialogue that was turned away leaves the fault of the one that runs to that one.
LinkResult Comms::Keep(LinkResult result) {
  if (result.Fault().kind != LinkFault::Kind::Busy) fault_ = result.Fault();
  return result;
}

void Comms::ClosePort() { ClosePort(line_.PortOpen() && LineLost()); }

void Comms::ClosePort(bool isLost) {
  line_.Close();
  if (!std::exchange(stands_, false) || !hooks_.sessionEnds) return;
  hooks_.sessionEnds(isLost ? LinkFault{LinkFault::Kind::LineLost} : LinkFault{});
}

LinkResult Comms::Do(const LinkDeed& deed, const std::function<LinkResult()>& dialogue) {
  // What is turned away does nothing with a logger.
  if (LinkBusy || !line_.PortOpen()) return Keep(dialogue());
  if (hooks_.deedBegins) hooks_.deedBegins(deed);
  LinkFault fault{LinkFault::Kind::WrongAnswer};  // what is thrown was found in an answer
  const AtEnd ended([&] {
    if (hooks_.deedEnds) hooks_.deedEnds(deed, fault);
  });
  LinkResult result = Keep(dialogue());
  // An output is set without a look at the answer; that none came is worth knowing later.
  const bool isUnanswered = deed.kind == LedgerKind::Output && result && RxLine.empty();
  fault = isUnanswered ? LinkFault{LinkFault::Kind::Silence} : result.Fault();
  return result;
}

LinkResult Comms::ReadConf() {
  return Do({LedgerKind::Reading},
            [this] { return line_.Converse(kAnyTime, [this] { return download_.Run(); }); });
}

LinkResult Comms::WriteConf() {
  return Do({LedgerKind::Writing},
            [this] { return line_.Converse(kAnyTime, [this] { return upload_.Run(); }); });
}

bool Comms::ReadInfo() {
  const LinkResult result = line_.Converse(line_.TimeFor(kLinkAttempts), [this] {
    return ReadInformation(line_, records_.info, hooks_.infoChanged);
  });
  if (result.Fault().kind != LinkFault::Kind::Busy) infoFault_ = result.Fault();
  return false;
}

LinkResult Comms::ReadDeviceRTC() {
  const LinkResult result = line_.Converse(
      line_.TimeFor(kLinkAttempts), [this] { return ReadClock(line_, records_.live.DeviceClock); });
  if (result.Fault().kind != LinkFault::Kind::Busy)
    records_.live.ClockRead.Note(result, platform_.clock.LocalTime());
  return result;
}

LinkResult Comms::WriteDeviceRTC() {
  const DateTime now = platform_.clock.LocalNow();
  return Set({LedgerKind::Clock, DateTimeText(now)}, ClockMessage(now), "#A3");
}

LinkResult Comms::ReadTotalCount() {
  return line_.Converse(line_.TimeFor(kLinkAttempts),
                        [this] { return FetchTotals(line_, records_.totals); });
}

LinkResult Comms::ReadIOParameter() {
  const auto requests = NameRequests(records_.live, records_.profile, records_.info);
  return line_.Converse(line_.TimeFor(requests.size()), [&] { return FetchEach(line_, requests); });
}

LinkResult Comms::ReadRealTime() {
  const auto requests = ValueRequests(records_.live, records_.profile, records_.info);
  return line_.Converse(line_.TimeFor(requests.size()),
                        [&] { return FetchLive(line_, requests, platform_.clock); });
}

LinkResult Comms::SetOutput(std::int16_t mask) {
  const int count = std::clamp<int>(records_.profile.OutputCount, 0, kOutputBits);
  const auto bits = static_cast<std::uint16_t>(mask);
  std::string detail = "outputs";
  for (int i = 0; i < count; ++i) detail += (bits >> i & 1) != 0 ? " on" : " off";
  return Do({LedgerKind::Output, std::move(detail)}, [&] {
    return line_.Converse(line_.TimeFor(static_cast<std::size_t>(count)),
                          [&] { return SwitchOutputs(line_, bits, count); });
  });
}

LinkResult Comms::SetSingleOutput(std::int16_t index, bool on) {
  return Do({LedgerKind::Output, "output " + std::to_string(index) + (on ? " on" : " off")}, [&] {
    return line_.Converse(line_.TimeFor(1), [&] { return SwitchOutput(line_, index, on); });
  });
}

LinkResult Comms::SetTotalCNT(std::int16_t index, std::int32_t value) {
  return Set({LedgerKind::Total, TotalText("counter ", index, value)},
             TotalMessage("#41CNT", index, value), "#BE1");
}

LinkResult Comms::SetExpValue(std::int16_t index, std::int32_t value) {
  return Set({LedgerKind::Total, TotalText("expansion counter ", index, value)},
             TotalMessage("#41EXP", index, value), "#BE1");
}

LinkResult Comms::ReadProbeIdentity(ProbeIdentity& identity) {
  return Keep(line_.Converse(line_.TimeFor(1), [&] { return ReadProbe(line_, identity); }));
}

LinkResult Comms::WriteAutVoz(const ConfAutVoz& list) {
  return Do({.kind = LedgerKind::VoiceWriting, .detail = ListText(list), .text = NumbersText(list)},
            [&] { return line_.Converse(kAnyTime, [&] { return voice_.Write(list); }); });
}

LinkResult Comms::ReadAutVozList(ConfAutVoz& list) {
  return Do({LedgerKind::VoiceReading},
            [&] { return line_.Converse(kAnyTime, [&] { return voice_.Read(list); }); });
}

LinkResult Comms::SendFirmware(const FirmwareFiles& files,
                               const FirmwareDialogue::OnStage& onStage) {
  return Do({.kind = LedgerKind::Firmware, .detail = FirmwareText(files), .file = files.name}, [&] {
    return line_.Converse(kAnyTime,
                          [&] { return FirmwareDialogue(line_, progress_).Run(files, onStage); });
  });
}

LinkResult Comms::Set(const LinkDeed& deed, std::string message, std::string_view answer) {
  return Do(deed, [&] {
    return line_.Converse(line_.TimeFor(1),
                          [&] { return Confirm(line_, std::move(message), answer); });
  });
}

}  // namespace ostrel
