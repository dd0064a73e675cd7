#include "platform/posix/PosixSerialDevices.h"

#include <fcntl.h>
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

  PortFault Open(const std::string& path, const DeviceOpening& how, SerialDevices& all);

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
  /// Moves a modem line, if the device has such lines.
  void Set(int line, bool on) { ::ioctl(port_.handle(), on ? TIOCMBIS : TIOCMBIC, &line); }
  /// Octets in the driver's queue; none where it counts none.
  int HeldByDriver() const;

  QtEventLoop& loop_;
  DeviceEvents events_;
  mutable QSerialPort port_;  // the handle of a port is not to be had from a constant one
  std::unique_ptr<CarrierWatch> carrierWatch_;
  std::unique_ptr<NodeWatch> nodeWatch_;
};

PosixSerialDevice::~PosixSerialDevice() {
  carrierWatch_.reset();
  nodeWatch_.reset();
  port_.disconnect();
  if (!port_.isOpen()) return;
  port_.flush();
  // A driver would hold the closing up for octets that flow control keeps back.
  if (HeldByDriver() > 0) ::tcflush(port_.handle(), TCOFLUSH);
}

PortFault PosixSerialDevice::Open(const std::string& path, const DeviceOpening& how,
                                  SerialDevices& all) {
  port_.setPortName(QString::fromStdString(path));
  port_.setReadBufferSize(kMostHeld);
  if (!OpenPort(how)) {
    const bool isRefused = port_.error() == QSerialPort::PermissionError;
    const PortFault fault = all.Try(path);
    if (fault != PortFault::None) return fault;
    // The device itself can be had, so what refused it is the lock of another program.
    return isRefused ? PortFault::Busy : PortFault::Failed;
  }
  if (::flock(port_.handle(), LOCK_EX | LOCK_NB) != 0) return FaultOfErrno(errno);
  SetDtr(how.dtr);
  if (how.handshaking != PortHandshaking::RtsCts) SetRts(how.rts);
  QObject::connect(&port_, &QSerialPort::readyRead, &port_, [this] { events_.arrived(); });
  QObject::connect(&port_, &QSerialPort::errorOccurred, &port_,
                   [this](QSerialPort::SerialPortError error) {
                     if (error == QSerialPort::ResourceError || error == QSerialPort::ReadError ||
                         error == QSerialPort::WriteError)
                       events_.lost();
                   });
  Watch(path);
  return PortFault::None;
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
  carrierWatch_ = std::make_unique<CarrierWatch>(
      loop_, std::move(line),
      [this](std::optional<bool> carrier) { carrier ? events_.lineMoved() : events_.lost(); });
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
  const int handle = ::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
  if (handle < 0) return FaultOfErrno(errno);
  termios mode{};
  PortFault fault = PortFault::None;
  if (::flock(handle, LOCK_EX | LOCK_NB) != 0) {
    fault = FaultOfErrno(errno);
  } else if (::tcgetattr(handle, &mode) != 0) {
    fault = PortFault::Failed;
  }
  ::close(handle);
  return fault;
}

PortFault PosixSerialDevices::Open(const std::string& path, const DeviceOpening& how,
                                   DeviceEvents events, std::unique_ptr<SerialDevice>& opened) {
  if (::access(path.c_str(), F_OK) != 0) return PortFault::NoSuchPort;
  auto device = std::make_unique<PosixSerialDevice>(loop_, std::move(events));
  const PortFault fault = device->Open(path, how, *this);
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
