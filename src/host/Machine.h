#pragma once

#include <memory>
#include <string>

#include "host/SimulatedLoggers.h"
#include "host/System.h"
#include "platform/DevicePort.h"
#include "platform/Platform.h"
#include "platform/PortSwitch.h"
#include "platform/qt/QtClock.h"
#include "platform/qt/QtEventLoop.h"
#include "platform/qt/QtSettings.h"
#include "platform/qt/SqlLedger.h"

namespace ostrel {

/// What every face has of a real machine: the loop, the user's settings and files, the clock, and
/// the ports, of which the last six numbers are kept for simulated loggers.
class Machine {
 public:
  Machine();
  Machine(const Machine&) = delete;
  Machine& operator=(const Machine&) = delete;

  /// Puts the simulated loggers at their numbers. They stay as long as the machine.
  SimulatedLoggers& AddSimulatedLoggers();
  /// Number of the port of a device path, an own one if it has none yet; 0 when there is none to
  /// give.
  int NumberOfDevice(const std::string& path) { return devices_->NumberFor(path); }
  /// Tells of the machine's own ports.
  PortInspector& Inspector() { return *devices_; }
  /// All of it for a configurator, with what a face brings itself.
  Platform With(Dialogs& dialogs, Processes& processes);

  QtEventLoop loop;
  SystemFiles files;
  QtClock clock;

 private:
  QtSettings settings_;
  SqlLedger ledger_;
  std::unique_ptr<SerialDevices> devices_;
  DevicePort serialPort_;
  std::unique_ptr<SimulatedLoggers> simulated_;
  PortSwitch ports_;
};

}  // namespace ostrel
