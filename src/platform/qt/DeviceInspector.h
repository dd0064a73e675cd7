#pragma once

#include "platform/PortFacts.h"
#include "platform/qt/PortMap.h"

namespace ostrel {

/// The facts of the machine's own ports: the device's node, its group, and who has it open. The map
/// must outlive it.
class DeviceInspector final : public PortInspector {
 public:
  explicit DeviceInspector(const PortMap& map) : map_(map) {}

  PortFacts Inspect(int number) override;

 private:
  const PortMap& map_;
};

}  // namespace ostrel
