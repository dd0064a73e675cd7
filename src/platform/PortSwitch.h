#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/SerialPort.h"

namespace ostrel {

/// One port made of several: each range of numbers belongs to one of them. Properties are kept here
/// and given to the port that a number leads to when it is opened, in the order in which they were
/// set. The ports must outlive the switch.
class PortSwitch final : public SerialPort {
 public:
  /// Hands the numbers from `first` to `last` to a port. An earlier range wins where two overlap.
  void AddRange(int first, int last, SerialPort& port);

  void SetCommPort(int number) override;
  void SetSettings(std::string_view settings) override;
  void SetInputLen(int octets) override;
  void SetInBufferSize(int octets) override;
  void SetHandshaking(PortHandshaking handshaking) override;
  void SetRTSEnable(bool on) override;
  void SetDTREnable(bool on) override;
  PortFault SetPortOpen(bool open) override;
  bool PortOpen() const override { return open_ && open_->PortOpen(); }
  bool LineLost() const override { return open_ && open_->LineLost(); }
  void Output(std::string_view octets) override;
  std::size_t OutBufferCount() const override { return open_ ? open_->OutBufferCount() : 0; }
  void DiscardOutput() override;
  std::string Input() override { return open_ ? open_->Input() : std::string(); }
  std::size_t InBufferCount() const override { return open_ ? open_->InBufferCount() : 0; }
  std::uint64_t LostOctets() const override { return open_ ? open_->LostOctets() : 0; }
  bool CDHolding() const override { return open_ && open_->CDHolding(); }
  std::optional<ControlLines> Lines() const override {
    return open_ ? open_->Lines() : std::nullopt;
  }
  int CommEvent() const override { return open_ ? open_->CommEvent() : 0; }
  void SetOnComm(std::function<void()> handler) override { onComm_ = std::move(handler); }
  PortFault Probe(int number) override;
  std::vector<PortEntry> Entries() override;

 private:
  enum class Property { Settings, InputLen, InBufferSize, Handshaking, RTSEnable, DTREnable };
  using Apply = std::function<void(SerialPort&)>;
  struct Range {
    int first;
    int last;
    SerialPort* port;
  };

  SerialPort* PortOf(int number) const;
  void Keep(Property property, Apply apply);

  std::vector<Range> ranges_;
  int commPort_ = 1;
  int openNumber_ = 0;
  std::vector<std::pair<Property, Apply>> properties_;  ///< in the order of setting
  SerialPort* open_ = nullptr;
  std::function<void()> onComm_;
};

}  // namespace ostrel
