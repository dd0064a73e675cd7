#include "platform/posix/PosixSerialDevices.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <QSerialPort>
#include <QSerialPortInfo>
#include <algorithm>
#include <cerrno>
#include <map>
#include <optional>
#include <utility>

#include "platform/posix/CarrierWatch.h"
#include "platform/posix/NodeWatch.h"

namespace ostrel {
namespace {

/// Octets that wait for a reader, beyond which the driver keeps them.
constexpr qint64 kMostHeld = 4096;
constexpr Duration kNextTry = std::chrono::milliseconds(10);

PortFault FaultOfErrno(int code) {
  switch (code) {
    case ENOENT:
    case ENODEV:
    case ENXIO:
      return PortFault::NoSuchPort;
    case EBUSY:
    case EWOULDBLOCK:
      return PortFault::Busy;
    case EACCES:
    case EPERM:
      return PortFault::NoPermission;
    default:
      return PortFault::Failed;
  }
}

/// A device that is open and locked, before anything else is done to it: what another program uses
/// is left as it is.
class LockedNode {
 public:
  explicit LockedNode(const std::string& path)
      : number_(::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)) {
    if (number_ < 0 || ::flock(number_, LOCK_EX | LOCK_NB) != 0) fault_ = FaultOfErrno(errno);
  }
  ~LockedNode() {
    if (number_ >= 0) ::close(number_);
  }
  LockedNode(const LockedNode&) = delete;
  LockedNode& operator=(const LockedNode&) = delete;

  PortFault Fault() const { return fault_; }
  int Number() const { return number_; }

 private:
  int number_;
  PortFault fault_ = PortFault::None;
};

QSerialPort::Parity ParityOf(char letter) {
  if (letter == 'E') return QSerialPort::EvenParity;
  return letter == 'O' ? QSerialPort::OddParity : QSerialPort::NoParity;
}

QSerialPort::FlowControl FlowOf(PortHandshaking handshaking) {
  switch (handshaking) {
    case PortHandshaking::RtsCts:
      return QSerialPort::HardwareControl;
    case PortHandshaking::XOnXOff:
      return QSerialPort::SoftwareControl;
    case PortHandshaking::None:
      break;
  }
  return QSerialPort::NoFlowControl;
}

class PosixSerialDevice final : public SerialDevice {
 public:
  PosixSerialDevice(QtEventLoop& loop, DeviceEvents events)
      : loop_(loop), events_(std::move(events)) {}
  ~PosixSerialDevice() override;
  PosixSerialDevice(const PosixSerialDevice&) = delete;
  PosixSerialDevice& operator=(const PosixSerialDevice&) = delete;

  PortFault Open(const std::string& path, const DeviceOpening& how);

  std::string Read(std::size_t most) override {
    return port_.read(static_cast<qint64>(most)).toStdString();
  }
  bool HasMore() const override { return port_.bytesAvailable() > 0; }
  void Write(std::string_view octets) override {
    port_.write(octets.data(), static_cast<qint64>(octets.size()));
  }
  std::size_t Queued() const override;
  void DiscardOutput() override { port_.clear(QSerialPort::Output); }
  void SetRts(bool on) override { Set(TIOCM_RTS, on); }
  void SetDtr(bool on) override { Set(TIOCM_DTR, on); }
  std::optional<ControlLines> Lines() const override;

 private:
  bool OpenPort(const DeviceOpening& how);
  void Watch(const std::string& path);
  void Listen();
  void SeeError(QSerialPort::SerialPortError error);
  bool HasGone() const;
  /// Moves a modem line, if the device has such lines.
  void Set(int line, bool on) { ::ioctl(port_.handle(), on ? TIOCMBIS : TIOCMBIC, &line); }
  /// Octets in the driver's queue; none where it counts none.
  int HeldByDriver() const;

  QtEventLoop& loop_;
  DeviceEvents events_;
  std::optional<LockedNode> node_;
  mutable QSerialPort port_;  // the handle of a port is not to be had from a constant one
  std::unique_ptr<CarrierWatch> carrierWatch_;
  std::unique_ptr<NodeWatch> nodeWatch_;
  TimerId nextTry_ = 0;
};

PosixSerialDevice::~PosixSerialDevice() {
  loop_.Cancel(nextTry_);
  carrierWatch_.reset();
  nodeWatch_.reset();
  port_.disconnect();
  // A driver would hold the closing up for octets that flow control keeps back.
  if (port_.isOpen()) port_.clear(QSerialPort::Output);
}

PortFault PosixSerialDevice::Open(const std::string& path, const DeviceOpening& how) {
  node_.emplace(path);
  if (node_->Fault() != PortFault::None) return node_->Fault();
  port_.setPortName(QString::fromStdString(path));
  port_.setReadBufferSize(kMostHeld);
  // The device itself can be had, so what refuses it now is the lock of another program.
  if (!OpenPort(how))
    return port_.error() == QSerialPort::PermissionError ? PortFault::Busy : PortFault::Failed;
  SetDtr(how.dtr);
  if (how.handshaking != PortHandshaking::RtsCts) SetRts(how.rts);
  Listen();
  Watch(path);
  return PortFault::None;
}

void PosixSerialDevice::Listen() {
  QObject::connect(&port_, &QSerialPort::readyRead, &port_,
                   [this] { loop_.Guard([this] { events_.arrived(); }); });
  QObject::connect(&port_, &QSerialPort::errorOccurred, &port_,
                   [this](QSerialPort::SerialPortError error) {
                     loop_.Guard([this, error] { SeeError(error); });
                   });
}

/// A call can fail in passing, as when another program has read what was announced to this one.
/// Then writing is tried again with what is left, and reading begins anew.
void PosixSerialDevice::SeeError(QSerialPort::SerialPortError error) {
  if (error != QSerialPort::ResourceError && error != QSerialPort::ReadError &&
      error != QSerialPort::WriteError)
    return;
  if (HasGone()) return events_.lost();
  loop_.Cancel(nextTry_);
  nextTry_ = loop_.After(kNextTry, "serial device", [this] {
    port_.flush();
    if (!HasMore()) port_.read(1);  // of nothing: it has the port listen again
  });
}

bool PosixSerialDevice::HasGone() const {
  pollfd state{.fd = port_.handle(), .events = 0, .revents = 0};
  termios mode{};
  return ::poll(&state, 1, 0) != 0 || ::tcgetattr(port_.handle(), &mode) != 0;
}

bool PosixSerialDevice::OpenPort(const DeviceOpening& how) {
  port_.setBaudRate(how.settings.speed);
  port_.setParity(ParityOf(how.settings.parity));
  port_.setDataBits(static_cast<QSerialPort::DataBits>(how.settings.dataBits));
  port_.setStopBits(how.settings.stopBits == 2 ? QSerialPort::TwoStop : QSerialPort::OneStop);
  port_.setFlowControl(FlowOf(how.handshaking));
  if (port_.open(QIODevice::ReadWrite)) return true;
  if (port_.error() != QSerialPort::UnsupportedOperationError) return false;
  port_.setFlowControl(QSerialPort::NoFlowControl);
  return port_.open(QIODevice::ReadWrite);
}

/// A hang-up comes as an event of reading. This is for what has none there: a node that is taken
/// away, and the lines of carrier and flow control where the device has them.
void PosixSerialDevice::Watch(const std::string& path) {
  nodeWatch_ = std::make_unique<NodeWatch>(loop_, path, events_.lost);
  if (!Lines()) return;
  const int handle = port_.handle();
  CarrierLine line{.look = [this]() -> std::optional<bool> {
                     const auto lines = Lines();
                     return lines ? std::optional(lines->carrier) : std::nullopt;
                   },
                   .await =
                       [handle] {
                         return ::ioctl(handle, TIOCMIWAIT, TIOCM_CD | TIOCM_CTS) == 0 ||
                                errno == EINTR;
                       }};
  carrierWatch_ =
      std::make_unique<CarrierWatch>(loop_, std::move(line), [this](std::optional<bool> carrier) {
        const auto tell = carrier ? events_.lineMoved : events_.lost;  // it may end this device
        tell();
      });
}

int PosixSerialDevice::HeldByDriver() const {
  int held = 0;
  return ::ioctl(port_.handle(), TIOCOUTQ, &held) == 0 ? std::max(held, 0) : 0;
}

std::size_t PosixSerialDevice::Queued() const {
  return static_cast<std::size_t>(port_.bytesToWrite()) + static_cast<std::size_t>(HeldByDriver());
}

std::optional<ControlLines> PosixSerialDevice::Lines() const {
  int lines = 0;
  if (::ioctl(port_.handle(), TIOCMGET, &lines) != 0) return {};
  return ControlLines{.clearToSend = (lines & TIOCM_CTS) != 0,
                      .dataSetReady = (lines & TIOCM_DSR) != 0,
                      .carrier = (lines & TIOCM_CD) != 0};
}

}  // namespace

PortFault PosixSerialDevices::Try(const std::string& path) {
  // Most numbers have no node at all; this keeps a scan of all of them instant.
  if (::access(path.c_str(), F_OK) != 0) return PortFault::NoSuchPort;
  const LockedNode node(path);
  if (node.Fault() != PortFault::None) return node.Fault();
  termios mode{};
  return ::tcgetattr(node.Number(), &mode) == 0 ? PortFault::None : PortFault::Failed;
}

PortFault PosixSerialDevices::Open(const std::string& path, const DeviceOpening& how,
                                   DeviceEvents events, std::unique_ptr<SerialDevice>& opened) {
  if (::access(path.c_str(), F_OK) != 0) return PortFault::NoSuchPort;
  auto device = std::make_unique<PosixSerialDevice>(loop_, std::move(events));
  const PortFault fault = device->Open(path, how);
  if (fault == PortFault::None) opened = std::move(device);
  return fault;
}

std::vector<PortEntry> PosixSerialDevices::Entries() {
  std::map<std::string, std::string> descriptions;
  for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts())
    descriptions[info.systemLocation().toStdString()] = info.description().toStdString();
  std::vector<PortEntry> entries;
  for (const int number : map_.Numbers()) {
    const std::string path = map_.DeviceOf(number);
    if (::access(path.c_str(), F_OK) == 0) entries.push_back({number, path, descriptions[path]});
  }
  return entries;
}

}  // namespace ostrel
