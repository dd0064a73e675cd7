#pragma once

#include <windows.h>

#include <QWinEventNotifier>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/SerialDevice.h"
#include "platform/qt/QtEventLoop.h"
#include "platform/windows/Handle.h"

namespace ostrel {

/// An open serial device, with one reading, one writing and one wait for its lines under way at a
/// time. Each wakes the loop when it ends; nothing is polled.
class WindowsSerialDevice final : public SerialDevice {
 public:
  /// `device` was opened for overlapped use.
  WindowsSerialDevice(QtEventLoop& loop, Handle device, DeviceEvents events);
  ~WindowsSerialDevice() override;
  WindowsSerialDevice(const WindowsSerialDevice&) = delete;
  WindowsSerialDevice& operator=(const WindowsSerialDevice&) = delete;

  /// Sets speed, flow control and lines, and begins to listen.
  PortFault Start(const DeviceOpening& how);

  std::string Read(std::size_t most) override;
  bool HasMore() const override { return read_ < arrived_; }
  void Write(std::string_view octets) override;
  std::size_t Queued() const override;
  void DiscardOutput() override;
  void SetRts(bool on) override { ::EscapeCommFunction(device_.Get(), on ? SETRTS : CLRRTS); }
  void SetDtr(bool on) override { ::EscapeCommFunction(device_.Get(), on ? SETDTR : CLRDTR); }
  std::optional<ControlLines> Lines() const override;

 private:
  /// A call that the system carries out meanwhile, and what wakes the loop at its end.
  struct Call {
    OVERLAPPED state{};
    Handle event;
    std::unique_ptr<QWinEventNotifier> notifier;
    bool isUnderWay = false;
  };

  void Prepare(Call& call, void (WindowsSerialDevice::*ended)());
  /// Whether a call that was just begun is under way, or has ended already.
  bool IsBegun(Call& call, bool ended);
  /// How many octets a call has moved; nothing when the device has gone.
  std::optional<std::size_t> End(Call& call);
  void ReadOn();
  void TakeRead();
  void WriteOn();
  void TakeWritten();
  void AwaitLines();
  void TakeLines();
  void Lose();

  QtEventLoop& loop_;
  Handle device_;
  DeviceEvents events_;
  Call reading_, writing_, watching_;
  std::array<char, 4096> block_{};  ///< octets that have arrived
  std::size_t arrived_ = 0, read_ = 0;
  std::string underWay_, waiting_;  ///< octets that are being written, and those behind them
  DWORD moved_ = 0;                 ///< which lines have moved
  bool isLost_ = false;
};

}  // namespace ostrel
