#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel {

/// Why a port operation failed.
enum class PortFault { None, NoSuchPort, Busy, NoPermission, Failed };

/// Flow control by the numbers that port settings use.
enum class PortHandshaking { None = 0, XOnXOff = 1, RtsCts = 2 };

/// Event codes of `CommEvent`.
inline constexpr int kCommEventCarrier = 5;

/// One port of the machine as a face lists it.
struct PortEntry {
  int number = 0;           ///< 1 to 256, shown as "COM7"
  std::string device;       ///< what stands behind the number, such as "/dev/ttyUSB0"
  std::string description;  ///< words of the system about the device; may be empty
};

/// The lines that the other end of a cable drives.
struct ControlLines {
  bool clearToSend = false;   ///< CTS: the other end takes octets
  bool dataSetReady = false;  ///< DSR
  bool carrier = false;       ///< DCD

  bool operator==(const ControlLines&) const = default;
};

inline constexpr int kFirstPort = 1;
inline constexpr int kLastPort = 256;

/// A serial port control: configured by its properties, then opened. Non-blocking: `Input` takes
/// what has arrived, `Output` queues. An arriving octet wakes the event loop.
/// It is injected so that a simulated logger can stand at the other end.
class SerialPort {
 public:
  virtual ~SerialPort() = default;

  /// Selects the port by number, 1 to 256. Takes effect at the next opening.
  virtual void SetCommPort(int number) = 0;
  /// "9600,N,8,1": speed in bit/s, parity, data bits, stop bits.
  virtual void SetSettings(std::string_view settings) = 0;
  /// Octets that one `Input` takes at the most; 0 takes all.
  virtual void SetInputLen(int octets) = 0;
  /// Size of the receive buffer in octets. When it is full the oldest octets go.
  virtual void SetInBufferSize(int octets) = 0;
  virtual void SetHandshaking(PortHandshaking handshaking) = 0;
  virtual void SetRTSEnable(bool on) = 0;
  virtual void SetDTREnable(bool on) = 0;

  /// Opens or closes. Closing a closed port is harmless; opening an open one gives Failed.
  virtual PortFault SetPortOpen(bool open) = 0;
  virtual bool PortOpen() const = 0;
  /// True when an open port's device has gone or hung up: nothing more will come or go.
  virtual bool LineLost() const = 0;

  /// Queues octets for the line. Does nothing on a closed or lost port.
  virtual void Output(std::string_view octets) = 0;
  /// Octets that were queued and are not on the line yet.
  virtual std::size_t OutBufferCount() const = 0;
  /// Forgets the octets that are not on the line yet.
  virtual void DiscardOutput() = 0;
  /// Takes up to `InputLen` received octets.
  virtual std::string Input() = 0;
  virtual std::size_t InBufferCount() const = 0;
  /// Received octets that have gone unread from a full receive buffer since the opening.
  virtual std::uint64_t LostOctets() const = 0;

  /// Carrier detect as last seen.
  virtual bool CDHolding() const = 0;
  /// The control lines of the open port; nothing where the device has none.
  virtual std::optional<ControlLines> Lines() const = 0;
  /// Code of the last event; valid inside the `OnComm` handler.
  virtual int CommEvent() const = 0;
  virtual void SetOnComm(std::function<void()> handler) = 0;

  /// Opens and closes a number without touching the port in use; None when both worked or when
  /// the number is the port in use.
  virtual PortFault Probe(int number) = 0;
  /// The ports that exist, in the order of their numbers. Does not open them.
  virtual std::vector<PortEntry> Entries() = 0;
};

}  // namespace ostrel
