#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/EventLoop.h"
#include "platform/Line.h"
#include "platform/ReceiveBuffer.h"
#include "platform/SerialPort.h"

namespace ostrel {

/// A serial port whose numbers lead to devices in this process. It works on any event loop.
///
/// Nothing passes from one end to the other within a call: octets and carrier changes travel
/// through the loop, at once or, when paced, at 960 octets/s each way. DTR is told to the device
/// within the call that changes it. The loop and the devices must outlive the port.
class LinePort final : public SerialPort {
 public:
  /// Makes the device for a line; it may keep the reference for its life.
  using Attach = std::function<std::unique_ptr<LineDevice>(LineEnd& end)>;

  explicit LinePort(EventLoop& loop);
  ~LinePort() override;

  /// Puts a device at a number, in place of an earlier one, which vanishes.
  LineEnd& AddDevice(int number, std::string device, std::string description, const Attach& attach);
  /// The same for a device that someone else owns.
  LineEnd& AddDevice(int number, std::string device, std::string description, LineDevice& logger);
  /// Plugs a vanished device in again. An open port stays lost until it is closed.
  void Restore(int number);
  /// What opening this number comes to from now on.
  void SetOpenFault(int number, PortFault fault);
  /// The device keeps the line towards it stopped, like a low CTS, or lets it go.
  void HoldOutput(int number, bool hold);
  /// The control lines of this number from now on. It has none at first, as a pseudo-terminal.
  void SetLines(int number, ControlLines lines);
  /// Whether octets take their line time; off at first.
  void SetPaced(bool paced);

  void SetCommPort(int number) override { commPort_ = number; }
  /// Ignored: the lines know one speed.
  void SetSettings(std::string_view) override {}
  void SetInputLen(int octets) override {
    inputLen_ = static_cast<std::size_t>(std::max(octets, 0));
  }
  void SetInBufferSize(int octets) override;
  /// Ignored: the program holds no device up, and a device holds the line by `HoldOutput`.
  void SetHandshaking(PortHandshaking) override {}
  void SetRTSEnable(bool) override {}
  void SetDTREnable(bool on) override;
  PortFault SetPortOpen(bool open) override;
  bool PortOpen() const override { return open_ != nullptr; }
  bool LineLost() const override;
  void Output(std::string_view octets) override;
  /// Always 0 when neither paced nor held: such a line takes octets at once.
  std::size_t OutBufferCount() const override;
  void DiscardOutput() override;
  std::string Input() override;
  std::size_t InBufferCount() const override;
  std::uint64_t LostOctets() const override { return received_.Lost(); }
  bool CDHolding() const override { return carrier_; }
  std::optional<ControlLines> Lines() const override;
  int CommEvent() const override { return commEvent_; }
  void SetOnComm(std::function<void()> handler) override { onComm_ = std::move(handler); }
  PortFault Probe(int number) override;
  std::vector<PortEntry> Entries() override;

 private:
  class Wire;

  Wire& AddWire(int number, std::string device, std::string description);
  std::shared_ptr<Wire> Find(int number) const;
  PortFault FaultOf(int number) const;
  PortFault Open();
  void Close();
  void Forget();
  void TakeIn();
  void PostCarrier(bool on);
  void TellCarrier();

  EventLoop& loop_;
  std::map<int, std::shared_ptr<Wire>> wires_;
  bool paced_ = false;
  int commPort_ = 1;
  std::size_t inputLen_ = 0;
  bool dtr_ = true;
  std::shared_ptr<Wire> open_;
  ReceiveBuffer received_;
  bool isTaken_ = false;  ///< the program has taken octets since some last arrived
  bool carrier_ = false;
  std::deque<bool> carrierChanges_;  ///< seen on the line, not told yet
  TimerId carrierTimer_ = 0;
  int commEvent_ = 0;
  std::function<void()> onComm_;
};

}  // namespace ostrel
