#include "platform/qt/QtSerialPort.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <QSerialPortInfo>
#include <algorithm>
#include <cerrno>
#include <map>

#include "platform/Time.h"

namespace ostrel {
namespace {

using std::chrono::milliseconds;

/// Octets taken from the driver with one event: a reader that keeps up loses none.
constexpr qint64 kMostAtOnce = 4096;
constexpr Duration kReaderPatience = milliseconds(500);

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

/// Opens a device and closes it again, without waiting for its modem lines.
PortFault TryDevice(const std::string& path) {
  const int handle = ::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
  if (handle < 0) return FaultOfErrno(errno);
  termios mode{};
  PortFault fault = PortFault::None;
  // A locked port belongs to another program; a node without a device behind it has no mode.
  if (::flock(handle, LOCK_EX | LOCK_NB) != 0) {
    fault = FaultOfErrno(errno);
  } else if (::tcgetattr(handle, &mode) != 0) {
    fault = PortFault::Failed;
  }
  ::close(handle);
  return fault;
}

QSerialPort::Parity ParityOf(char letter) {
  switch (letter) {
    case 'E':
    case 'e':
      return QSerialPort::EvenParity;
    case 'O':
    case 'o':
      return QSerialPort::OddParity;
    default:
      return QSerialPort::NoParity;
  }
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

}  // namespace

QtSerialPort::QtSerialPort(QtEventLoop& loop, const PortMap& map) : loop_(loop), map_(map) {}

QtSerialPort::~QtSerialPort() { Close(); }

void QtSerialPort::SetRTSEnable(bool on) {
  rts_ = on;
  // With hardware flow control the driver moves this line.
  if (handshaking_ != PortHandshaking::RtsCts) ApplyModemLine(TIOCM_RTS, on);
}

void QtSerialPort::SetDTREnable(bool on) {
  dtr_ = on;
  ApplyModemLine(TIOCM_DTR, on);
}

/// Moves a modem line of the open device, if it has such lines.
void QtSerialPort::ApplyModemLine(int line, bool on) const {
  if (device_) ::ioctl(device_->handle(), on ? TIOCMBIS : TIOCMBIC, &line);
}

PortFault QtSerialPort::SetPortOpen(bool open) {
  if (open) return open_ ? PortFault::Failed : Open();
  Close();
  return PortFault::None;
}

PortFault QtSerialPort::Open() {
  const std::string path = map_.DeviceOf(commPort_);
  if (path.empty()) return PortFault::NoSuchPort;
  const PortFault fault = OpenDevice(path);
  if (fault != PortFault::None) {
    device_.reset();
    return fault;
  }
  open_ = true;
  lost_ = false;
  readAt_ = loop_.Now();
  ApplyModemLine(TIOCM_DTR, dtr_);
  if (handshaking_ != PortHandshaking::RtsCts) ApplyModemLine(TIOCM_RTS, rts_);
  QObject::connect(device_.get(), &QSerialPort::readyRead, device_.get(), [this] { TakeIn(); });
  QObject::connect(device_.get(), &QSerialPort::errorOccurred, device_.get(),
                   [this](QSerialPort::SerialPortError error) {
                     if (error == QSerialPort::ResourceError || error == QSerialPort::ReadError ||
                         error == QSerialPort::WriteError) {
                       Lose();
                     }
                   });
  WatchDevice(path);
  return PortFault::None;
}

/// A hang-up comes as an event of reading. This is for what has none there: a node that is taken
/// away, and the lines of carrier and flow control where the device has them.
void QtSerialPort::WatchDevice(const std::string& path) {
  nodeWatch_ = std::make_unique<NodeWatch>(loop_, path, [this] { Lose(); });
  const int handle = device_->handle();
  CarrierLine line{.look = [handle]() -> std::optional<bool> {
                     int lines = 0;
                     if (::ioctl(handle, TIOCMGET, &lines) != 0) return {};
                     return (lines & TIOCM_CD) != 0;
                   },
                   .await =
                       [handle] {
                         return ::ioctl(handle, TIOCMIWAIT, TIOCM_CD | TIOCM_CTS) == 0 ||
                                errno == EINTR;
                       }};
  const std::optional<bool> carrier = line.look();
  if (!carrier) return;
  carrier_ = *carrier;
  carrierWatch_ = std::make_unique<CarrierWatch>(
      loop_, std::move(line), [this](std::optional<bool> now) { SeeCarrier(now); });
}

PortFault QtSerialPort::OpenDevice(const std::string& path) {
  if (::access(path.c_str(), F_OK) != 0) return PortFault::NoSuchPort;
  device_ = std::make_unique<QSerialPort>();
  device_->setPortName(QString::fromStdString(path));
  device_->setReadBufferSize(kMostAtOnce);
  ApplySettings(*device_);
  bool opened = device_->open(QIODevice::ReadWrite);
  if (!opened && device_->error() == QSerialPort::UnsupportedOperationError) {
    device_->setFlowControl(QSerialPort::NoFlowControl);
    opened = device_->open(QIODevice::ReadWrite);
  }
  if (!opened) {
    const bool refused = device_->error() == QSerialPort::PermissionError;
    const PortFault fault = TryDevice(path);
    if (fault != PortFault::None) return fault;
    // The device itself can be had, so what refused it is the lock of another program.
    return refused ? PortFault::Busy : PortFault::Failed;
  }
  if (::flock(device_->handle(), LOCK_EX | LOCK_NB) != 0) return FaultOfErrno(errno);
  return PortFault::None;
}

/// Sets speed, parity, data bits and stop bits; what is missing in the text keeps 9600,N,8,1.
void QtSerialPort::ApplySettings(QSerialPort& device) const {
  const QStringList parts = QString::fromStdString(settings_).split(',');
  const int speed = parts.value(0).toInt();
  device.setBaudRate(speed > 0 ? speed : 9600);
  device.setParity(ParityOf(parts.value(1, "N").trimmed().toStdString().append("N").front()));
  const int dataBits = parts.value(2).toInt();
  device.setDataBits(dataBits >= 5 && dataBits < 8 ? static_cast<QSerialPort::DataBits>(dataBits)
                                                   : QSerialPort::Data8);
  device.setStopBits(parts.value(3).toInt() == 2 ? QSerialPort::TwoStop : QSerialPort::OneStop);
  device.setFlowControl(FlowOf(handshaking_));
}

void QtSerialPort::Close() {
  drain_.Stop();
  for (TimerId* timer : {&loseTimer_, &takeTimer_}) loop_.Cancel(std::exchange(*timer, 0));
  carrierWatch_.reset();
  nodeWatch_.reset();
  if (device_ && !lost_) {
    device_->disconnect();
    device_->flush();
    // A driver would hold the closing up for octets that flow control keeps back.
    int held = 0;
    if (::ioctl(device_->handle(), TIOCOUTQ, &held) == 0 && held > 0) {
      ::tcflush(device_->handle(), TCOFLUSH);
    }
  }
  device_.reset();
  open_ = false;
  lost_ = false;
  carrier_ = false;
  received_.Clear();
  lineFree_ = {};
}

void QtSerialPort::TakeIn() {
  loop_.Cancel(std::exchange(takeTimer_, 0));
  if (!device_ || lost_) return;
  const bool isRead = loop_.Now() - readAt_ < kReaderPatience;
  const auto room = static_cast<qint64>(received_.Size() - received_.Count());
  const QByteArray octets = device_->read(isRead ? room : kMostAtOnce);
  received_.Put({octets.constData(), static_cast<std::size_t>(octets.size())});
  if (device_->bytesAvailable() > 0)
    takeTimer_ = loop_.After(kReaderPatience, "receive buffer", [this] { TakeIn(); });
}

std::string QtSerialPort::Input() {
  std::string input = received_.Take(inputLen_);
  readAt_ = loop_.Now();
  // A buffer that was full is filled up again when half of it is free.
  if (takeTimer_ != 0 && device_ && !lost_ && received_.Count() <= received_.Size() / 2) TakeIn();
  return input;
}

/// The device has gone. It is put away from the loop, because its own code is calling.
void QtSerialPort::Lose() {
  if (lost_) return;
  lost_ = true;
  carrier_ = false;
  loop_.Cancel(std::exchange(takeTimer_, 0));
  loseTimer_ = loop_.After(Duration::zero(), "lost port", [this] {
    carrierWatch_.reset();
    nodeWatch_.reset();
    device_.reset();
  });
}

void QtSerialPort::SeeCarrier(std::optional<bool> carrier) {
  if (!carrier) return Lose();
  if (OutBufferCount() > 0) drain_.Start();  // flow control may have let the line go
  if (*carrier == carrier_ || lost_) return;
  carrier_ = *carrier;
  commEvent_ = kCommEventCarrier;
  if (onComm_) onComm_();
}

void QtSerialPort::Output(std::string_view octets) {
  if (!device_ || lost_) return;
  device_->write(octets.data(), static_cast<qint64>(octets.size()));
  lineFree_ = std::max(lineFree_, loop_.Now()) + LineTime(octets.size());
  drain_.Start();
}

std::size_t QtSerialPort::OutBufferCount() const {
  if (!device_ || lost_) return 0;
  int held = 0;
  if (::ioctl(device_->handle(), TIOCOUTQ, &held) != 0) held = 0;
  const std::size_t queued = static_cast<std::size_t>(device_->bytesToWrite()) +
                             static_cast<std::size_t>(std::max(held, 0));
  return std::max(queued, OctetsUnderWay());
}

/// Octets that a line cannot have carried yet. An adapter with a store of its own, or a
/// pseudo-terminal, takes them at once, and its driver counts nothing more.
std::size_t QtSerialPort::OctetsUnderWay() const {
  const Duration left = lineFree_ - loop_.Now();
  if (left <= Duration::zero()) return 0;
  return static_cast<std::size_t>(left * kLineOctetsPerSecond / std::chrono::seconds(1)) + 1;
}

void QtSerialPort::DiscardOutput() {
  lineFree_ = loop_.Now();
  if (device_ && !lost_) device_->clear(QSerialPort::Output);
}

std::optional<ControlLines> QtSerialPort::Lines() const {
  int lines = 0;
  if (!device_ || lost_ || ::ioctl(device_->handle(), TIOCMGET, &lines) != 0) return {};
  return ControlLines{.clearToSend = (lines & TIOCM_CTS) != 0,
                      .dataSetReady = (lines & TIOCM_DSR) != 0,
                      .carrier = (lines & TIOCM_CD) != 0};
}

PortFault QtSerialPort::Probe(int number) {
  if (open_ && number == commPort_) return PortFault::None;
  const std::string path = map_.DeviceOf(number);
  // Most numbers have no node at all; this keeps a scan of all of them instant.
  if (path.empty() || ::access(path.c_str(), F_OK) != 0) return PortFault::NoSuchPort;
  return TryDevice(path);
}

std::vector<PortEntry> QtSerialPort::Entries() {
  std::map<std::string, std::string> descriptions;
  for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts()) {
    descriptions[info.systemLocation().toStdString()] = info.description().toStdString();
  }
  std::vector<PortEntry> entries;
  for (const int number : map_.Numbers()) {
    const std::string path = map_.DeviceOf(number);
    if (::access(path.c_str(), F_OK) != 0) continue;
    entries.push_back({number, path, descriptions[path]});
  }
  return entries;
}

}  // namespace ostrel
