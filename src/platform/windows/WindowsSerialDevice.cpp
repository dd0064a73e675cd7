#include "platform/windows/WindowsSerialDevice.h"

#include <algorithm>
#include <utility>

namespace ostrel {
namespace {

constexpr DWORD kLines = EV_RLSD | EV_CTS;
constexpr DWORD kDriverOctets = 4096;  // that the driver is to hold each way

DCB ModeOf(const DeviceOpening& how) {
  DCB mode{};
  mode.DCBlength = sizeof mode;
  mode.BaudRate = static_cast<DWORD>(how.settings.speed);
  mode.fBinary = TRUE;
  mode.Parity = NOPARITY;
  if (how.settings.parity == 'E') mode.Parity = EVENPARITY;
  if (how.settings.parity == 'O') mode.Parity = ODDPARITY;
  mode.fParity = mode.Parity != NOPARITY;
  mode.ByteSize = static_cast<BYTE>(how.settings.dataBits);
  mode.StopBits = how.settings.stopBits == 2 ? TWOSTOPBITS : ONESTOPBIT;
  mode.fDtrControl = how.dtr ? DTR_CONTROL_ENABLE : DTR_CONTROL_DISABLE;
  mode.fRtsControl = how.rts ? RTS_CONTROL_ENABLE : RTS_CONTROL_DISABLE;
  if (how.handshaking == PortHandshaking::RtsCts) {
    mode.fOutxCtsFlow = TRUE;
    mode.fRtsControl = RTS_CONTROL_HANDSHAKE;
  }
  if (how.handshaking == PortHandshaking::XOnXOff) {
    constexpr int kRoom = 512;
    mode.fOutX = mode.fInX = TRUE;
    mode.XonChar = 0x11;
    mode.XoffChar = 0x13;
    mode.XonLim = mode.XoffLim = kRoom;
  }
  return mode;
}

}  // namespace

/// What is under way uses memory of this object: it is ended and waited for.
WindowsSerialDevice::~WindowsSerialDevice() {
  loop_.Cancel(nextTelling_);
  for (OverlappedCall* call : {&reading_, &writing_, &watching_}) call->Abandon(device_.Get());
  ::PurgeComm(device_.Get(), PURGE_TXABORT | PURGE_TXCLEAR);
}

PortFault WindowsSerialDevice::Start(const DeviceOpening& how) {
  isPipe_ = ::GetFileType(device_.Get()) == FILE_TYPE_PIPE;
  if (!isPipe_ && !SetMode(how)) return PortFault::Failed;
  ReadOn();
  if (!isPipe_ && ::SetCommMask(device_.Get(), kLines)) AwaitLines();
  return isLost_ ? PortFault::Failed : PortFault::None;
}

bool WindowsSerialDevice::SetMode(const DeviceOpening& how) {
  DCB mode = ModeOf(how);
  if (!::SetCommState(device_.Get(), &mode)) {
    // A device without the lines of flow control goes on without it.
    mode.fOutxCtsFlow = FALSE;
    mode.fRtsControl = RTS_CONTROL_ENABLE;
    if (!::SetCommState(device_.Get(), &mode)) return false;
  }
  COMMTIMEOUTS times{};  // none
  if (!::SetCommTimeouts(device_.Get(), &times)) return false;
  ::SetupComm(device_.Get(), kDriverOctets, kDriverOctets);
  ::PurgeComm(device_.Get(), PURGE_RXCLEAR | PURGE_TXCLEAR);
  return true;
}

/// A reading of a device ends when it has all that it was to read, be that after hours: it reads
/// what the driver holds, or else waits for one octet. A pipe gives what there is.
DWORD WindowsSerialDevice::OctetsToRead() const {
  constexpr DWORD kMost = sizeof block_;
  if (isPipe_) return kMost;
  COMSTAT state{};
  DWORD errors = 0;
  ::ClearCommError(device_.Get(), &errors, &state);
  return std::clamp<DWORD>(state.cbInQue, 1, kMost);
}

void WindowsSerialDevice::ReadOn() {
  if (isLost_ || reading_.IsUnderWay() || HasMore()) return;
  arrived_ = read_ = 0;
  if (!reading_.Begun(
          ::ReadFile(device_.Get(), block_.data(), OctetsToRead(), nullptr, reading_.State())))
    Lose();
}

void WindowsSerialDevice::TakeRead() {
  const std::optional<std::size_t> count = reading_.End(device_.Get());
  if (!count) return Lose();
  arrived_ = *count;
  if (arrived_ > 0) events_.arrived();
  ReadOn();
}

std::string WindowsSerialDevice::Read(std::size_t most) {
  const std::size_t count = std::min(most, arrived_ - read_);
  std::string octets(block_.data() + read_, count);
  read_ += count;
  ReadOn();
  return octets;
}

void WindowsSerialDevice::Write(std::string_view octets) {
  waiting_ += octets;
  WriteOn();
}

void WindowsSerialDevice::WriteOn() {
  if (isLost_ || writing_.IsUnderWay() || waiting_.empty()) return;
  underWay_ = std::exchange(waiting_, {});
  const auto size = static_cast<DWORD>(underWay_.size());
  if (!writing_.Begun(
          ::WriteFile(device_.Get(), underWay_.data(), size, nullptr, writing_.State())))
    Lose();
}

void WindowsSerialDevice::TakeWritten() {
  const std::optional<std::size_t> count = writing_.End(device_.Get());
  const bool isDiscarded = !count && ::GetLastError() == ERROR_OPERATION_ABORTED;
  if (!count && !isDiscarded) return Lose();
  if (count && *count < underWay_.size()) waiting_.insert(0, underWay_, *count);
  underWay_.clear();
  WriteOn();
}

std::size_t WindowsSerialDevice::Queued() const {
  COMSTAT state{};
  DWORD errors = 0;
  const bool knows = ::ClearCommError(device_.Get(), &errors, &state) != 0;
  // What is being written counts until the driver has taken all of it.
  return std::max(knows ? std::size_t{state.cbOutQue} : 0, underWay_.size()) + waiting_.size();
}

void WindowsSerialDevice::DiscardOutput() {
  waiting_.clear();
  if (writing_.IsUnderWay()) ::CancelIoEx(device_.Get(), writing_.State());
  ::PurgeComm(device_.Get(), PURGE_TXABORT | PURGE_TXCLEAR);
}

std::optional<ControlLines> WindowsSerialDevice::Lines() const {
  DWORD lines = 0;
  if (!::GetCommModemStatus(device_.Get(), &lines)) return {};
  return ControlLines{.clearToSend = (lines & MS_CTS_ON) != 0,
                      .dataSetReady = (lines & MS_DSR_ON) != 0,
                      .carrier = (lines & MS_RLSD_ON) != 0};
}

void WindowsSerialDevice::AwaitLines() {
  if (isLost_ || watching_.IsUnderWay()) return;
  // A device that cannot wait for its lines is used without.
  watching_.Begun(::WaitCommEvent(device_.Get(), &moved_, watching_.State()));
}

void WindowsSerialDevice::TakeLines() {
  if (!watching_.End(device_.Get())) return;  // gone, or unable: the reading tells which
  AwaitLines();
  // Not from within the call: whoever is told may close this device.
  loop_.Cancel(nextTelling_);
  nextTelling_ = loop_.After(Duration::zero(), "control lines", [this] {
    const auto tell = events_.lineMoved;
    tell();
  });
}

void WindowsSerialDevice::Lose() {
  if (std::exchange(isLost_, true)) return;
  events_.lost();
}

}  // namespace ostrel
