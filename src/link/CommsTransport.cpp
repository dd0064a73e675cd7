#include "base/Scope.h"
#include "link/Comms.h"

namespace ostrel {
namespace {

constexpr int kCableReplyMs = 1000;
constexpr int kModemReplyMs = 10'000;
constexpr int kQuietLineMs = 1000;
/// Long enough for the rest of most downloads that a former session has broken off.
constexpr Duration kLongestOpeningDrain = std::chrono::seconds(20);
/// From the first command to the modem to the connection. A modem that says nothing at all is
/// through with all its commands and their repeats in 130 s.
constexpr Duration kLongestDialling = std::chrono::seconds(150);
constexpr int kModemAnswerMs = 1000;
constexpr int kDialExtraMs = 30'000;
constexpr int kHangUpMs = 5000;
constexpr int kGuardMs = 1000;
constexpr int kBetweenPlusMs = 200;
constexpr int kCodePasses = 3;
constexpr int kReceiveBuffer = 8192;

LinkFault::Kind KindOf(PortFault fault) {
  switch (fault) {
    case PortFault::None:
      return LinkFault::Kind::None;
    case PortFault::NoSuchPort:
      return LinkFault::Kind::NoSuchPort;
    case PortFault::Busy:
      return LinkFault::Kind::PortBusy;
    case PortFault::NoPermission:
      return LinkFault::Kind::NoPermission;
    case PortFault::Failed:
      break;
  }
  return LinkFault::Kind::PortFailed;
}

std::string PortName(int number) { return "COM" + std::to_string(number); }

}  // namespace

void Comms::ScanPorts() {
  for (int number = kFirstPort; number <= kLastPort; ++number)
    if (platform_.port.Probe(number) == PortFault::None && hooks_.portFound)
      hooks_.portFound(PortName(number));
}

bool Comms::StartComs(std::int16_t port, const std::string& phone) {
  bool connected = false;
  fault_ = {};
  {
    const Dialogue dialogue(*this);
    const AtEnd closed([&] {
      if (!connected) platform_.port.SetPortOpen(false);
    });
    connected = OpenPort(port) && Connect(phone);
    opened_ = connected;
  }
  // A flag left behind by whatever ran before must not block the session.
  if (connected) LinkBusy = false;
  return connected;
}

bool Comms::OpenPort(std::int16_t number) {
  SerialPort& port = platform_.port;
  port.SetCommPort(number);
  port.SetSettings("9600,N,8,1");
  port.SetInputLen(1);
  port.SetInBufferSize(kReceiveBuffer);
  port.SetHandshaking(PortHandshaking::RtsCts);
  port.SetRTSEnable(false);
  port.SetDTREnable(true);
  const PortFault opened = port.SetPortOpen(true);
  torn_ = false;
  if (opened != PortFault::None) fault_ = {KindOf(opened), number, PortName(number)};
  return opened == PortFault::None;
}

bool Comms::Connect(const std::string& phone) {
  if (phone.empty()) {
    ReplyTimeout = kCableReplyMs;
    Drain(&Comms::RxSer, kQuietLineMs, kLongestOpeningDrain);
  }
  if (!phone.empty()) {
    if (!Dial(phone)) return false;
    AskAccessCode();
  }
  return Handshake();
}

bool Comms::Dial(const std::string& phone) {
  ReplyTimeout = kModemReplyMs;
  const Limit limit(*this, kLongestDialling);
  AskModem("ATE0", kModemAnswerMs);
  AskModem("AT", kModemAnswerMs);
  if (!RxLine.starts_with("OK")) return Fail(LinkFault::Kind::NoModem, 0, RxLine);
  AskModem("AT+IFC=2,2", kModemAnswerMs);
  AskModem("ATD" + phone, ReplyTimeout + kDialExtraMs);
  if (!RxLine.starts_with("CONNECT")) return Fail(LinkFault::Kind::NoConnect, 0, RxLine);
  return true;
}

void Comms::AskAccessCode() {
  for (int pass = 0; pass < kCodePasses && Alive(); ++pass) {
    AccessCode.clear();
    awaitedSince_.reset();  // the operator takes the time now
    if (hooks_.showPWForm) hooks_.showPWForm();
    awaitedSince_ = platform_.loop.Now();
    if (AccessCode.empty()) continue;
    const Limit limit(*this, TimeFor(1));
    Ask("#11" + AccessCode);
    if (RxLine == "#PassWord=1") return;
  }
}

bool Comms::Handshake() {
  const Limit limit(*this, TimeFor(1));
  Ask("#40");
  return RxLine.starts_with("#BF") || Fail(LinkFault::Kind::NoHandshake, 0, RxLine);
}

void Comms::CloseComs(bool modem) {
  const Dialogue dialogue(*this);
  const AtEnd closed([this] { platform_.port.SetPortOpen(false); });
  if (modem && Alive()) HangUp();
  if (Alive()) AwaitSent();
}

void Comms::HangUp() {
  constexpr int kPlusSigns = 3;
  EndTornMessage();  // ahead of the guard time
  for (int sign = 0; sign < kPlusSigns; ++sign) {
    Delay(sign == 0 ? kGuardMs : kBetweenPlusMs);
    if (!Alive()) return;
    Put("+");
    Note("TxGsm: ", "+");
  }
  Delay(kGuardMs);
  AskModem("ATH", kHangUpMs);
}

void Comms::Abort() { platform_.port.SetPortOpen(false); }

std::string Comms::GetChar(int timeout) {
  MainTimer_.Start(timeout);
  platform_.loop.RunUntil([this] { return HasInput() || !Alive(); }, MainTimer_.Deadline());
  return HasInput() ? platform_.port.Input() : std::string();
}

void Comms::Delay(int ms) {
  const bool wasAlive = Alive();
  MainTimer_.Start(ms);
  platform_.loop.RunUntil([&] { return !MainTimer_.Running() || (wasAlive && !Alive()); },
                          MainTimer_.Deadline());
}

void Comms::PumpEvents() { platform_.loop.PumpEvents(); }

bool Comms::PortOpen() const { return platform_.port.PortOpen(); }

bool Comms::Alive() const {
  return PortOpen() && !platform_.port.LineLost() && !heldOut_ && platform_.loop.Now() < limit_;
}

bool Comms::HasInput() const { return platform_.port.InBufferCount() > 0; }

}  // namespace ostrel
