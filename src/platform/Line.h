#pragma once

#include <string_view>

namespace ostrel {

/// The near end of a serial line, as a device on it uses it.
class LineEnd {
 public:
  virtual ~LineEnd() = default;
  /// Puts octets on the line towards the program. They take their line time when the line is paced.
  virtual void Send(std::string_view octets) = 0;
  /// Raises or drops carrier detect.
  virtual void SetCarrier(bool on) = 0;
  /// The device goes away, like an adapter pulled out of its socket.
  virtual void Vanish() = 0;
};

/// A device at the far end of a line: it gets what the program sends.
class LineDevice {
 public:
  virtual ~LineDevice() = default;
  /// Octets from the program, in order, as they come off the line.
  virtual void Receive(std::string_view octets) = 0;
  /// The program opened or closed its end (DTR rose or fell).
  virtual void SetTerminalReady(bool ready) = 0;
};

}  // namespace ostrel
