#include "host/System.h"

#ifdef _WIN32
#include "platform/windows/WindowsSerialDevices.h"
#else
#include "platform/posix/PosixSerialDevices.h"
#endif

namespace ostrel {

#ifdef _WIN32
std::unique_ptr<SerialDevices> MachineDevices(QtEventLoop& loop, const Settings&) {
  return std::make_unique<WindowsSerialDevices>(loop);  // numbers are the system's own here
}
#else
std::unique_ptr<SerialDevices> MachineDevices(QtEventLoop& loop, const Settings& settings) {
  return std::make_unique<PosixSerialDevices>(loop, PortMap::FromSettings(settings));
}
#endif

}  // namespace ostrel
