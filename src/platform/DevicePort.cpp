#include "platform/DevicePort.h"

#include <optional>

#include "platform/Time.h"

namespace ostrel {
namespace {

/// Octets taken from the driver with one event: a reader that keeps up loses none.
constexpr std::size_t kMostAtOnce = 4096;
constexpr Duration kReaderPatience = std::chrono::milliseconds(500);

}  // namespace

void DevicePort::SetRTSEnable(bool on) {
  rts_ = on;
  // With hardware flow control the driver moves this line.
  if (device_ && handshaking_ != PortHandshaking::RtsCts) device_->SetRts(on);
}

void DevicePort::SetDTREnable(bool on) {
  dtr_ = on;
  if (device_) device_->SetDtr(on);
}

PortFault DevicePort::SetPortOpen(bool open) {
  if (open) return open_ ? PortFault::Failed : Open();
  Close();
  return PortFault::None;
}

PortFault DevicePort::Open() {
  const std::string path = devices_.DeviceOf(commPort_);
  if (path.empty()) return PortFault::NoSuchPort;
  const DeviceOpening how{ReadLineSettings(settings_), handshaking_, rts_, dtr_};
  const PortFault fault = devices_.Open(path, how,
                                        {.arrived = [this] { TakeIn(); },
                                         .lost = [this] { Lose(); },
                                         .lineMoved = [this] { SeeLines(); }},
                                        device_);
  if (fault != PortFault::None) {
    Close();  // the device may have gone in between
    return fault;
  }
  open_ = true;
  openNumber_ = commPort_;
  lost_ = false;
  readAt_ = loop_.Now();
  carrier_ = Lines().value_or(ControlLines{}).carrier;
  return PortFault::None;
}

void DevicePort::Close() {
  drain_.Stop();
  for (TimerId* timer : {&loseTimer_, &takeTimer_}) loop_.Cancel(std::exchange(*timer, 0));
  device_.reset();
  open_ = false;
  lost_ = false;
  carrier_ = false;
  received_.Clear();
  lineFree_ = {};
}

void DevicePort::TakeIn() {
  loop_.Cancel(std::exchange(takeTimer_, 0));
  if (!device_ || lost_) return;
  const bool isRead = loop_.Now() - readAt_ < kReaderPatience;
  received_.Put(device_->Read(isRead ? std::min(received_.Room(), kMostAtOnce) : kMostAtOnce));
  if (!device_->HasMore()) return;
  // What is left has no event of its own.
  const bool isFull = received_.Room() == 0;
  takeTimer_ = loop_.After(isRead && isFull ? kReaderPatience : Duration::zero(), "receive buffer",
                           [this] { TakeIn(); });
}

std::string DevicePort::Input() {
  std::string input = received_.Take(inputLen_);
  readAt_ = loop_.Now();
  // A buffer that was full is filled up again when half of it is free.
  if (takeTimer_ != 0 && device_ && !lost_ && received_.Count() <= received_.Size() / 2) TakeIn();
  return input;
}

/// The device has gone. It is put away from the loop, because its own code is calling.
void DevicePort::Lose() {
  if (lost_) return;
  lost_ = true;
  carrier_ = false;
  loop_.Cancel(std::exchange(takeTimer_, 0));
  loseTimer_ = loop_.After(Duration::zero(), "lost port", [this] { device_.reset(); });
}

void DevicePort::SeeLines() {
  if (!device_ || lost_) return;
  if (OutBufferCount() > 0) drain_.Start();  // flow control may have let the line go
  const std::optional<ControlLines> lines = Lines();
  if (!lines || lines->carrier == carrier_) return;
  carrier_ = lines->carrier;
  commEvent_ = kCommEventCarrier;
  if (onComm_) onComm_();
}

void DevicePort::Output(std::string_view octets) {
  if (!device_ || lost_) return;
  device_->Write(octets);
  lineFree_ = std::max(lineFree_, loop_.Now()) + LineTime(octets.size());
  drain_.Start();
}

std::size_t DevicePort::OutBufferCount() const {
  if (!device_ || lost_) return 0;
  return std::max(device_->Queued(), OctetsUnderWay());
}

/// Octets that a line cannot have carried yet. An adapter with a store of its own, or a
/// pseudo-terminal, takes them at once, and its driver counts nothing more.
std::size_t DevicePort::OctetsUnderWay() const {
  const Duration left = lineFree_ - loop_.Now();
  if (left <= Duration::zero()) return 0;
  return static_cast<std::size_t>(left * kLineOctetsPerSecond / std::chrono::seconds(1)) + 1;
}

void DevicePort::DiscardOutput() {
  lineFree_ = loop_.Now();
  if (device_ && !lost_) device_->DiscardOutput();
}

PortFault DevicePort::Probe(int number) {
  if (open_ && number == openNumber_) return PortFault::None;
  const std::string path = devices_.DeviceOf(number);
  return path.empty() ? PortFault::NoSuchPort : devices_.Try(path);
}

}  // namespace ostrel
