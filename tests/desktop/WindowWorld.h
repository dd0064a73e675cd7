#pragma once

#include <QCoreApplication>
#include <QTemporaryDir>
#include <functional>
#include <memory>

#include "desktop/forms/QtDialogs.h"
#include "desktop/forms/Words.h"
#include "desktop/program/Desktop.h"
#include "host/System.h"
#include "platform/virtual/LinePort.h"
#include "platform/virtual/VirtualClock.h"
#include "platform/virtual/VirtualDialogs.h"
#include "platform/virtual/VirtualLedger.h"
#include "platform/virtual/VirtualLoop.h"
#include "platform/virtual/VirtualProcesses.h"
#include "platform/virtual/VirtualSettings.h"
#include "sim/Logger.h"

namespace ostrel {

/// A window's outside world: real files in a folder of its own, all else in memory.
template <class Loop>
struct WindowWorld {
  static constexpr int kPort = 7;

  WindowWorld() {
    const std::string table =
        FromQt(QCoreApplication::applicationDirPath()) + "/../share/ostrel-configurator/Lang.txt";
    files.Create(Path("Lang.txt"));
    files.Write(Path("Lang.txt"), files.Read(table).value_or(""));
  }

  std::string Path(const std::string& name) const { return FromQt(folder.filePath(ToQt(name))); }
  std::string& Stored(const std::string& key) {
    return settings.values[{"Quorvane", "Ostrel Configurator", key}];
  }
  /// Fills the store as a program that has run before does.
  void StartBefore(const std::string& target, const std::string& language) {
    Stored("Idioma") = language;
    Stored("ComPort") = "7";
    Stored("Target") = target;
  }
  /// Puts a simulated logger on the port, with a change of its options.
  void AddLogger(sim::Model model, const sim::Faults& faults = {},
                 const std::function<void(sim::LoggerOptions&)>& change = {}) {
    line = &port.AddDevice(kPort, "/dev/sim", "", [&](LineEnd& end) {
      sim::LoggerOptions options = sim::MakeDefaultOptions(model);
      options.faults = faults;
      if (change) change(options);
      auto made = std::make_unique<sim::Logger>(loop, end, options);
      logger = made.get();
      logger->SetConf(sim::DemoConfiguration(model));
      clock.SetNow(logger->Clock());
      return made;
    });
  }
  /// Changes what the logger holds.
  void Alter(const std::function<void(sim::Configuration&)>& change) {
    sim::Configuration held = logger->Conf();
    change(held);
    logger->SetConf(held);
  }
  /// `asking` takes the place of the window's own dialogs, if set.
  std::unique_ptr<Desktop> Make(Dialogs* asking = nullptr) {
    auto made = std::make_unique<Desktop>(
        Platform{.loop = loop,
                 .port = port,
                 .settings = settings,
                 .dialogs = asking ? *asking : dialogsOfWindow,
                 .files = files,
                 .processes = processes,
                 .clock = clock,
                 .ledger = &ledger},
        ConfiguratorOptions{
            .programFolder = "/nowhere", .langFile = Path("Lang.txt"), .ticking = true},
        FromQt(folder.path()), inspector);
    dialogsOfWindow.StandBefore(made->Window());
    return made;
  }

  QTemporaryDir folder;
  Loop loop;
  LinePort port{loop};
  VirtualSettings settings;
  SystemFiles files;
  VirtualProcesses processes;
  VirtualClock clock;
  VirtualLedger ledger;
  QtDialogs dialogsOfWindow;
  BlindInspector inspector;
  sim::Logger* logger = nullptr;
  LineEnd* line = nullptr;  ///< the logger's end
};

/// The widget of a control of the page in front.
template <class Widget = QWidget>
Widget* On(Desktop& desktop, std::string_view control) {
  FormView* front = desktop.Window().Pages().Front();
  auto* widget = front ? dynamic_cast<Widget*>(front->WidgetOf(control)) : nullptr;
  if (!widget) throw std::runtime_error("no widget for " + std::string(control));
  return widget;
}

}  // namespace ostrel
