#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/DrainWatch.h"
#include "platform/EventLoop.h"
#include "platform/ReceiveBuffer.h"
#include "platform/SerialDevice.h"

namespace ostrel {

/// The port control over the serial devices of the machine. What a device does not have, such as
/// the modem lines of a pseudo-terminal, is passed over. Loop and devices must outlive the port.
///
/// While somebody reads, a full receive buffer leaves the rest to the driver, which holds the
/// device up by flow control. When nobody has read for half a second, the device may talk on, and
/// the oldest octets go.
class DevicePort final : public SerialPort {
 public:
  DevicePort(EventLoop& loop, SerialDevices& devices) : loop_(loop), devices_(devices) {}
  ~DevicePort() override { Close(); }
  DevicePort(const DevicePort&) = delete;
  DevicePort& operator=(const DevicePort&) = delete;

  void SetCommPort(int number) override { commPort_ = number; }
  void SetSettings(std::string_view settings) override { settings_ = settings; }
  void SetInputLen(int octets) override {
    inputLen_ = static_cast<std::size_t>(std::max(octets, 0));
  }
  void SetInBufferSize(int octets) override {
    received_.SetSize(static_cast<std::size_t>(std::max(octets, 1)));
  }
  void SetHandshaking(PortHandshaking handshaking) override { handshaking_ = handshaking; }
  void SetRTSEnable(bool on) override;
  void SetDTREnable(bool on) override;
  PortFault SetPortOpen(bool open) override;
  bool PortOpen() const override { return open_; }
  bool LineLost() const override { return open_ && lost_; }
  void Output(std::string_view octets) override;
  /// Counts what the driver holds, and what the line has not had the time to carry.
  std::size_t OutBufferCount() const override;
  void DiscardOutput() override;
  std::string Input() override;
  std::size_t InBufferCount() const override { return received_.Count(); }
  std::uint64_t LostOctets() const override { return received_.Lost(); }
  bool CDHolding() const override { return carrier_; }
  std::optional<ControlLines> Lines() const override {
    return device_ && !lost_ ? device_->Lines() : std::nullopt;
  }
  int CommEvent() const override { return commEvent_; }
  void SetOnComm(std::function<void()> handler) override { onComm_ = std::move(handler); }
  PortFault Probe(int number) override;
  std::vector<PortEntry> Entries() override { return devices_.Entries(); }

 private:
  PortFault Open();
  void Close();
  void TakeIn();
  void SeeLines();
  std::size_t OctetsUnderWay() const;
  void Lose();

  EventLoop& loop_;
  SerialDevices& devices_;
  int commPort_ = 1;
  std::string settings_ = "9600,N,8,1";
  std::size_t inputLen_ = 0;
  PortHandshaking handshaking_ = PortHandshaking::None;
  bool rts_ = true;
  bool dtr_ = true;
  std::unique_ptr<SerialDevice> device_;
  bool open_ = false;
  int openNumber_ = 0;  ///< of the open port: another may have been set since
  bool lost_ = false;
  ReceiveBuffer received_;
  TimePoint readAt_{};    ///< when somebody last took octets
  TimePoint lineFree_{};  ///< when the last octet sent can have left
  bool carrier_ = false;
  int commEvent_ = 0;
  std::function<void()> onComm_;
  DrainWatch drain_{loop_, [this] { return OutBufferCount(); }};
  TimerId loseTimer_ = 0;
  TimerId takeTimer_ = 0;  ///< for octets left to the driver
};

}  // namespace ostrel
