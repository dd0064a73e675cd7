#include <QApplication>
#include <QDesktopServices>
#include <QStandardPaths>
#include <QUrl>
#include <exception>
#include <iostream>

#include "desktop/CommandLine.h"
#include "desktop/Demo.h"
#include "desktop/Desktop.h"
#include "desktop/HelpProcesses.h"
#include "desktop/Icons.h"
#include "desktop/QtDialogs.h"
#include "desktop/Screenshot.h"
#include "desktop/Words.h"
#include "host/LangSeed.h"
#include "platform/qt/PortMap.h"
#include "platform/qt/QtClock.h"
#include "platform/qt/QtEventLoop.h"
#include "platform/qt/QtFiles.h"
#include "platform/qt/QtProcesses.h"
#include "platform/qt/QtSerialPort.h"
#include "platform/qt/QtSettings.h"
#include "platform/virtual/PortSwitch.h"

namespace {

using namespace ostrel;

std::string ShippedFolder() {
  return FromQt(QCoreApplication::applicationDirPath()) + "/../share/ostrel-configurator";
}

std::string UserDataFolder() {
  return FromQt(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)) +
         "/ostrel-configurator";
}

bool ShowDocument(const std::string& path) {
  return QDesktopServices::openUrl(QUrl::fromLocalFile(ToQt(path)));
}

int RunWindow(const CommandLine& line) {
  QtEventLoop loop;
  QtSettings settings;
  QtFiles files;
  QtProcesses realProcesses(ShowDocument);
  QtDialogs dialogs;
  HelpProcesses processes(realProcesses, dialogs);
  QtClock clock;
  const PortMap map = PortMap::FromSettings(settings);
  QtSerialPort serialPort(loop, map);
  LinePort demoPort(loop);
  if (line.demo) AddDemoLoggers(demoPort, loop, clock);
  PortSwitch ports;
  ports.AddRange(kFirstPort, kFirstDemoPort - 1, serialPort);
  ports.AddRange(kFirstDemoPort, kLastDemoPort, demoPort);
  files.MakeFolder(UserDataFolder());
  const std::string langFile =
      SeedLang(files, ShippedFolder() + "/Lang.txt", UserDataFolder() + "/Lang.txt");
  Desktop desktop({.loop = loop,
                   .port = ports,
                   .settings = settings,
                   .dialogs = dialogs,
                   .files = files,
                   .processes = processes,
                   .clock = clock},
                  {.programFolder = ShippedFolder(), .langFile = langFile, .ticking = true},
                  UserDataFolder());
  dialogs.StandBefore(desktop.Window());
  loop.SetFaultHandler([&](std::exception_ptr fault) { desktop.ShowFault(fault); });
  desktop.Start(line.file);
  desktop.Window().show();
  return QApplication::exec();
}

int Run(int argc, char** argv) {
  if (NeedsNoDisplay(argc, argv)) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  QApplication::setApplicationName("ostrel-configurator");
  QApplication::setApplicationVersion(OSTREL_VERSION);
  QApplication::setDesktopFileName("ostrel-configurator");
  const CommandLine line = ReadCommandLine(QApplication::arguments());
  ApplyScheme(line.scheme);
  if (line.screenshot.empty()) return RunWindow(line);
  const std::string wrong = TakeScreenshot(line, ShippedFolder() + "/Lang.txt");
  if (wrong.empty()) return 0;
  std::cerr << "ostrel-configurator: " << wrong << std::endl;
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "ostrel-configurator: " << error.what() << std::endl;
    return 1;
  }
}
