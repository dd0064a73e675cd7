#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/SerialPort.h"

namespace ostrel {

/// What can happen to a line besides octets.
enum class LineEvent { Opened, NotOpened, Closed, Discarded, CarrierRose, CarrierFell, Lost };

/// Follows what passes through a port. Nothing may be done with the port meanwhile.
class LineListener {
 public:
  virtual ~LineListener() = default;
  /// Octets that the program has queued for the line.
  virtual void Sent(std::string_view octets) = 0;
  /// Octets that the program has taken, and those that it left when it closed the port.
  virtual void Received(std::string_view octets) = 0;
  /// `detail` is the port's name for an opening, and the count of octets that were discarded.
  virtual void Happened(LineEvent event, const std::string& detail) = 0;
};

/// A port that lets others listen. The port behind it must outlive it, and so must the listeners,
/// unless they leave.
class TappedPort final : public SerialPort {
 public:
  explicit TappedPort(SerialPort& port) : port_(port) {}
  ~TappedPort() override;
  TappedPort(const TappedPort&) = delete;
  TappedPort& operator=(const TappedPort&) = delete;

  void Join(LineListener& listener) { listeners_.push_back(&listener); }
  void Leave(LineListener& listener) { std::erase(listeners_, &listener); }

  void SetCommPort(int number) override;
  void SetSettings(std::string_view settings) override { port_.SetSettings(settings); }
  void SetInputLen(int octets) override { port_.SetInputLen(octets); }
  void SetInBufferSize(int octets) override { port_.SetInBufferSize(octets); }
  void SetHandshaking(PortHandshaking handshaking) override { port_.SetHandshaking(handshaking); }
  void SetRTSEnable(bool on) override { port_.SetRTSEnable(on); }
  void SetDTREnable(bool on) override { port_.SetDTREnable(on); }
  PortFault SetPortOpen(bool open) override;
  bool PortOpen() const override { return port_.PortOpen(); }
  bool LineLost() const override;
  void Output(std::string_view octets) override;
  std::size_t OutBufferCount() const override { return port_.OutBufferCount(); }
  void DiscardOutput() override;
  std::string Input() override;
  std::size_t InBufferCount() const override { return port_.InBufferCount(); }
  std::uint64_t LostOctets() const override { return port_.LostOctets(); }
  bool CDHolding() const override { return port_.CDHolding(); }
  std::optional<ControlLines> Lines() const override { return port_.Lines(); }
  int CommEvent() const override { return port_.CommEvent(); }
  void SetOnComm(std::function<void()> handler) override;
  PortFault Probe(int number) override { return port_.Probe(number); }
  std::vector<PortEntry> Entries() override { return port_.Entries(); }

 private:
  void Tell(LineEvent event, const std::string& detail = {}) const;
  void TakeRest();

  SerialPort& port_;
  std::vector<LineListener*> listeners_;
  int number_ = 1;
  bool handles_ = false;  ///< the port behind calls a handler of this one
  mutable bool lostTold_ = false;
};

}  // namespace ostrel
