#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/PortFacts.h"
#include "platform/SerialPort.h"

namespace ostrel {

/// "9600,N,8,1" taken apart.
struct LineSettings {
  int speed = 9600;   ///< bit/s
  char parity = 'N';  ///< N, E or O
  int dataBits = 8;   ///< 5 to 8
  int stopBits = 1;   ///< 1 or 2

  bool operator==(const LineSettings&) const = default;
};

/// Takes settings apart; what is missing or makes no sense keeps 9600,N,8,1.
LineSettings ReadLineSettings(std::string_view text);

/// How a device is to be opened.
struct DeviceOpening {
  LineSettings settings;
  PortHandshaking handshaking = PortHandshaking::None;
  bool rts = true;  ///< without flow control by the hardware, which moves this line itself
  bool dtr = true;
};

/// What an open device tells, on the loop.
struct DeviceEvents {
  std::function<void()> arrived;    ///< there is something to read
  std::function<void()> lost;       ///< it has gone or hung up; nothing more comes
  std::function<void()> lineMoved;  ///< carrier or flow control may have changed
};

/// An open serial device of the machine, as its driver offers it. Closed at its end, at once, with
/// what the line has not taken forgotten.
class SerialDevice {
 public:
  virtual ~SerialDevice() = default;
  /// Takes up to `most` octets that have arrived.
  virtual std::string Read(std::size_t most) = 0;
  /// Whether octets have arrived and were not read.
  virtual bool HasMore() const = 0;
  virtual void Write(std::string_view octets) = 0;
  /// Octets that were written and that the driver still holds.
  virtual std::size_t Queued() const = 0;
  virtual void DiscardOutput() = 0;
  virtual void SetRts(bool on) = 0;
  virtual void SetDtr(bool on) = 0;
  /// The lines that the other end drives; nothing where the device has none.
  virtual std::optional<ControlLines> Lines() const = 0;
};

/// The serial devices of a machine, by their port numbers.
class SerialDevices : public PortInspector {
 public:
  /// Path of a number's device, which need not exist; empty for a number without.
  virtual std::string DeviceOf(int number) const = 0;
  /// Number of a path, an own one for a path that has none yet; 0 when there is none to give.
  virtual int NumberFor(const std::string& path) = 0;
  /// The devices that exist, in the order of their numbers.
  virtual std::vector<PortEntry> Entries() = 0;
  /// Opens and closes a device, without waiting for its lines.
  virtual PortFault Try(const std::string& path) = 0;
  /// Opens a device into `opened`, which stays empty after a fault.
  virtual PortFault Open(const std::string& path, const DeviceOpening& how, DeviceEvents events,
                         std::unique_ptr<SerialDevice>& opened) = 0;
};

}  // namespace ostrel
