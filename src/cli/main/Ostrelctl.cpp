#include "cli/Ostrelctl.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QStandardPaths>
#include <exception>
#include <fstream>
#include <iostream>
#include <vector>

#include "cli/Terminal.h"
#include "host/SignalPipe.h"
#include "host/SimulatedLoggers.h"
#include "platform/SilentDialogs.h"
#include "platform/qt/PortMap.h"
#include "platform/qt/QtClock.h"
#include "platform/qt/QtFiles.h"
#include "platform/qt/QtProcesses.h"
#include "platform/qt/QtSerialPort.h"
#include "platform/qt/QtSettings.h"
#include "platform/virtual/PortSwitch.h"

namespace {

using namespace ostrel;
using namespace ostrel::cli;

constexpr int kInterrupted = 130;

std::unique_ptr<std::ostream> OpenLog(const std::string& path) {
  auto file = std::make_unique<std::ofstream>(path, std::ios::binary);
  if (!*file) return nullptr;
  return file;
}

std::string UserDataFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString() +
         "/ostrel-configurator";
}

std::string ShippedLang() {
  return QCoreApplication::applicationDirPath().toStdString() +
         "/../share/ostrel-configurator/Lang.txt";
}

int Run(const std::vector<std::string>& args) {
  QtEventLoop loop;
  QtSettings settings;
  QtFiles files;
  QtProcesses processes;
  QtClock clock;
  SilentDialogs nobody;
  PortMap map = PortMap::FromSettings(settings);
  QtSerialPort serialPort(loop, map);
  SimulatedLoggers simulated(loop, clock);
  PortSwitch ports;
  ports.AddRange(kFirstPort, kFirstSimulatedPort - 1, serialPort);
  ports.AddRange(kFirstSimulatedPort, kLastPort, simulated.Port());
  Environment environment{
      .platform = {.loop = loop,
                   .port = ports,
                   .settings = settings,
                   .dialogs = nobody,
                   .files = files,
                   .processes = processes,
                   .clock = clock},
      .simulated = simulated,
      .out = std::cout,
      .err = std::cerr,
      .errIsTerminal = isatty(STDERR_FILENO) == 1,
      .ask = {},
      .dataFolder = UserDataFolder(),
      .shippedLang = ShippedLang(),
      .numberOfDevice = [&](const std::string& path) { return map.NumberFor(path); },
      .openLog = OpenLog,
      .onInterrupt = {}};
  if (HasOperator()) environment.ask = AskOnTerminal;
  SignalPipe watch(loop, [&] {
    if (!environment.onInterrupt) std::_Exit(kInterrupted);
    environment.onInterrupt();
  });
  return static_cast<int>(RunOstrelctl(args, environment));
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  try {
    return Run({argv + 1, argv + argc});
  } catch (const std::exception& error) {
    std::cerr << "ostrelctl: " << error.what() << std::endl;
    return static_cast<int>(ExitCode::DialogueFailed);
  }
}
