#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/SerialDevice.h"
#include "platform/posix/DeviceFacts.h"
#include "platform/posix/PortMap.h"
#include "platform/qt/QtEventLoop.h"

namespace ostrel {

/// The serial devices of the machine by the paths of their nodes, pseudo-terminals among them. The
/// loop must outlive them.
class PosixSerialDevices final : public SerialDevices {
 public:
  PosixSerialDevices(QtEventLoop& loop, PortMap map) : loop_(loop), map_(std::move(map)) {}

  /// Which device stands behind which number.
  PortMap& Map() { return map_; }

  std::string DeviceOf(int number) const override { return map_.DeviceOf(number); }
  int NumberFor(const std::string& path) override { return map_.NumberFor(path); }
  std::vector<PortEntry> Entries() override;
  PortFacts Inspect(int number) override { return FactsOfDevice(map_.DeviceOf(number)); }
  /// The device of a locked port belongs to another program; a node without a device fails.
  PortFault Try(const std::string& path) override;
  PortFault Open(const std::string& path, const DeviceOpening& how, DeviceEvents events,
                 std::unique_ptr<SerialDevice>& opened) override;

 private:
  QtEventLoop& loop_;
  PortMap map_;
};

}  // namespace ostrel
