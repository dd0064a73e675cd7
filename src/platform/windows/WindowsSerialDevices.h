#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/SerialDevice.h"
#include "platform/qt/QtEventLoop.h"

namespace ostrel {

/// The serial devices of the machine. Their numbers are the system's own: 7 is COM7. A named pipe,
/// on which a program may offer a logger, gets a number that no device has. The loop must outlive
/// them.
class WindowsSerialDevices final : public SerialDevices {
 public:
  explicit WindowsSerialDevices(QtEventLoop& loop) : loop_(loop) {}

  /// "COM7", whether there is such a device or not, or the name of a pipe.
  std::string DeviceOf(int number) const override;
  /// Takes "COM7" in any letter case, with or without the prefix "\\.\" of a device, and
  /// "\\.\pipe\name".
  int NumberFor(const std::string& path) override;
  /// Those of the registry, with the friendly names that the device manager shows.
  std::vector<PortEntry> Entries() override;
  /// Ports have no permissions here, and nobody is told who has one open.
  PortFacts Inspect(int number) override;
  PortFault Try(const std::string& path) override;
  PortFault Open(const std::string& path, const DeviceOpening& how, DeviceEvents events,
                 std::unique_ptr<SerialDevice>& opened) override;

 private:
  QtEventLoop& loop_;
  std::map<int, std::string> pipes_;
};

}  // namespace ostrel
