#pragma once

#include <windows.h>

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/SerialDevice.h"
#include "platform/qt/QtEventLoop.h"
#include "platform/windows/Handle.h"
#include "platform/windows/OverlappedCall.h"

namespace ostrel {

/// An open serial device, with one reading, one writing and one wait for its lines under way at a
/// time. Each wakes the loop when it ends; nothing is polled.
class WindowsSerialDevice final : public SerialDevice {
 public:
  /// `device` was opened for overlapped use.
  WindowsSerialDevice(QtEventLoop& loop, Handle device, DeviceEvents events)
      : loop_(loop), device_(std::move(device)), events_(std::move(events)) {}
  ~WindowsSerialDevice() override;
  WindowsSerialDevice(const WindowsSerialDevice&) = delete;
  WindowsSerialDevice& operator=(const WindowsSerialDevice&) = delete;

  /// Sets speed, flow control and lines, and begins to listen. A pipe has none of them.
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
  bool SetMode(const DeviceOpening& how);
  DWORD OctetsToRead() const;
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
  OverlappedCall reading_{loop_, [this] { TakeRead(); }};
  OverlappedCall writing_{loop_, [this] { TakeWritten(); }};
  OverlappedCall watching_{loop_, [this] { TakeLines(); }};
  std::array<char, 4096> block_{};  ///< octets that have arrived
  std::size_t arrived_ = 0, read_ = 0;
  std::string underWay_, waiting_;  ///< octets that are being written, and those behind them
  DWORD moved_ = 0;                 ///< which lines have moved
  TimerId nextTelling_ = 0;
  bool isPipe_ = false;
  bool isLost_ = false;
};

}  // namespace ostrel
