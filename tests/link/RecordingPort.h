#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/SerialPort.h"

namespace ostrel {

/// Hands everything on to another port and notes what is set, in order.
class RecordingPort final : public SerialPort {
 public:
  explicit RecordingPort(SerialPort& port) : port_(port) {}

  void SetCommPort(int n) override { port_.SetCommPort(Noted("CommPort ", n)); }
  void SetSettings(std::string_view s) override { log.push_back("Settings " + std::string(s)); }
  void SetInputLen(int n) override { port_.SetInputLen(Noted("InputLen ", n)); }
  void SetInBufferSize(int n) override { port_.SetInBufferSize(Noted("InBufferSize ", n)); }
  void SetHandshaking(PortHandshaking h) override {
    Noted("Handshaking ", static_cast<int>(h));
    port_.SetHandshaking(h);
  }
  void SetRTSEnable(bool on) override { port_.SetRTSEnable(Noted("RTSEnable ", on)); }
  void SetDTREnable(bool on) override { port_.SetDTREnable(Noted("DTREnable ", on)); }
  PortFault SetPortOpen(bool open) override { return port_.SetPortOpen(Noted("PortOpen ", open)); }
  bool PortOpen() const override { return port_.PortOpen(); }
  bool LineLost() const override { return port_.LineLost(); }
  void Output(std::string_view octets) override { port_.Output(octets); }
  std::size_t OutBufferCount() const override { return port_.OutBufferCount(); }
  void DiscardOutput() override { port_.DiscardOutput(); }
  std::string Input() override { return port_.Input(); }
  std::size_t InBufferCount() const override { return port_.InBufferCount(); }
  std::uint64_t LostOctets() const override { return port_.LostOctets(); }
  bool CDHolding() const override { return port_.CDHolding(); }
  int CommEvent() const override { return port_.CommEvent(); }
  void SetOnComm(std::function<void()> handler) override { port_.SetOnComm(std::move(handler)); }
  PortFault Probe(int number) override { return port_.Probe(number); }
  std::vector<PortEntry> Entries() override { return port_.Entries(); }

  std::vector<std::string> log;

 private:
  template <class Value>
  Value Noted(const char* what, Value value) {
    log.push_back(what + std::to_string(value));
    return value;
  }

  SerialPort& port_;
};

}  // namespace ostrel
