#include "host/System.h"

#include <QtGlobal>

#ifdef _WIN32
#include "platform/windows/WindowsSerialDevices.h"
#else
#include "platform/posix/PosixSerialDevices.h"
#endif

namespace ostrel {

#ifdef _WIN32
void DrawWithoutDisplay() {}  // here Qt finds fonts only where it can show windows, too

std::unique_ptr<SerialDevices> MachineDevices(QtEventLoop& loop, const Settings&) {
  return std::make_unique<WindowsSerialDevices>(loop);  // numbers are the system's own here
}
#else
void DrawWithoutDisplay() { qputenv("QT_QPA_PLATFORM", "offscreen"); }

std::unique_ptr<SerialDevices> MachineDevices(QtEventLoop& loop, const Settings& settings) {
  return std::make_unique<PosixSerialDevices>(loop, PortMap::FromSettings(settings));
}
#endif

}  // namespace ostrel
