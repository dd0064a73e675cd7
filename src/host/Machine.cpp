#include "host/Machine.h"

#include "host/Folders.h"

namespace ostrel {

Machine::Machine()
    : ledger_(UserDataFolder() + "/ledger.db", ThisProgram()),
      devices_(MachineDevices(loop, settings_)),
      serialPort_(loop, *devices_) {
  ports_.AddRange(kFirstPort, kFirstSimulatedPort - 1, serialPort_);
}

SimulatedLoggers& Machine::AddSimulatedLoggers() {
  simulated_ = std::make_unique<SimulatedLoggers>(loop, clock);
  ports_.AddRange(kFirstSimulatedPort, kLastPort, simulated_->Port());
  return *simulated_;
}

Platform Machine::With(Dialogs& dialogs, Processes& processes) {
  return {.loop = loop,
          .port = ports_,
          .settings = settings_,
          .dialogs = dialogs,
          .files = files,
          .processes = processes,
          .clock = clock,
          .ledger = &ledger_};
}

}  // namespace ostrel
