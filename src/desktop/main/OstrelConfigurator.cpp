#include <QApplication>
#include <QDesktopServices>
#include <QUrl>
#include <exception>
#include <iostream>

#include "desktop/forms/Icons.h"
#include "desktop/forms/QtDialogs.h"
#include "desktop/forms/Words.h"
#include "desktop/program/CommandLine.h"
#include "desktop/program/Desktop.h"
#include "desktop/program/HelpProcesses.h"
#include "desktop/program/Screenshot.h"
#include "host/Folders.h"
#include "host/GrowingFiles.h"
#include "host/LangSeed.h"
#include "host/Machine.h"
#include "host/System.h"
#include "host/UsualStation.h"
#include "platform/qt/QtProcesses.h"

namespace {

using namespace ostrel;

bool ShowDocument(const std::string& path) {
  return QDesktopServices::openUrl(QUrl::fromLocalFile(ToQt(path)));
}

Station StationOf(const CommandLine& line) {
  Station station = UsualStation();
  if (!line.factoryFolder.empty()) station.folder = line.factoryFolder;
  return station;
}

int RunWindow(const CommandLine& line) {
  Machine machine;
  if (line.demo) machine.AddSimulatedLoggers().Port().SetPaced(true);
  QtProcesses realProcesses(ShowDocument);
  QtDialogs dialogs;
  HelpProcesses processes(realProcesses, dialogs, ShippedFolder() + "/help");
  machine.files.MakeFolder(UserDataFolder());
  const std::string langFile =
      SeedLang(machine.files, LangIn(ShippedFolder()), LangIn(UserDataFolder()));
  Desktop desktop(machine.With(dialogs, processes),
                  {.programFolder = ShippedFolder(),
                   .langFile = langFile,
                   .openLog = OpenLog,
                   .openRecording = OpenRecording,
                   .station = StationOf(line),
                   .factory = line.factory,
                   .ticking = true},
                  UserDataFolder(), machine.Inspector());
  dialogs.StandBefore(desktop.Window());
  machine.loop.SetFaultHandler([&](std::exception_ptr fault) { desktop.ShowFault(fault); });
  desktop.ShowAndStart(line.file);
  if (!line.page.empty()) {
    if (!FindNodeTarget(line.page, desktop.Core().profile, true)) {
      std::cerr << "ostrel-configurator: there is no page " << line.page << std::endl;
      return 1;
    }
    desktop.Window().GoTo(line.page);
  }
  return QApplication::exec();
}

int Run(int argc, char** argv) {
  if (NeedsNoDisplay(argc, argv)) DrawWithoutDisplay();
  const QApplication application(argc, argv);
  QApplication::setApplicationName("ostrel-configurator");
  QApplication::setApplicationVersion(OSTREL_VERSION);
  QApplication::setDesktopFileName("ostrel-configurator");
  const CommandLine line = ReadCommandLine(QApplication::arguments());
  ApplyScheme(line.scheme);
  if (line.screenshot.empty()) return RunWindow(line);
  const std::string wrong = TakeScreenshot(line, LangIn(ShippedFolder()));
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
