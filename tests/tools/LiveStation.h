#pragma once

#include <gmock/gmock.h>

#include "shell/SimWorld.h"
#include "shell/navigation/Navigation.h"

namespace ostrel {

/// A program with a simulated waterworks on its line, and what it sends.
struct LiveStation {
  explicit LiveStation(sim::Model model, sim::LoggerOptions options = {})
      : world(options.serial.empty() ? sim::MakeDefaultOptions(model) : options) {
    program.StartForCommand(world.TargetName(), 1);
    world.logger->SetConf(sim::DemoConfiguration(model));
  }
  void Connect() {
    ASSERT_TRUE(program.session.Open(SimWorld::kPort, ""));
    program.session.CompleteInfo();
    program.comms.Trace = [this](const std::string& line) {
      if (const auto at = line.find("TxSer: "); at != std::string::npos)
        sent.push_back(line.substr(at + 7));
    };
  }
  /// Connects and lets a round come to the monitor.
  void ShowMonitor() {
    Connect();
    navigation.NodeClick("T_Real");
    Run(std::chrono::milliseconds(900));
  }
  Form& Monitor() { return program.monitor.GetForm(); }
  template <class Control>
  Control& Get(const std::string& name) {
    return Monitor().Get<Control>(name);
  }
  std::string Caption(const std::string& name) { return FaceOf(Monitor()[name]).Caption(); }
  const std::string& Digits(const std::string& name) { return Get<DigitBox>(name).Text(); }
  /// How many of a family of controls are shown.
  int Shown(const std::string& family) {
    int count = 0;
    for (const ControlRef& control : Monitor().Controls()) {
      const Face& face = FaceOf(control);
      if (face.Name().starts_with(family + "(")) count += face.Visible() ? 1 : 0;
    }
    return count;
  }
  void Run(Duration span) { world.loop.RunFor(span); }

  SimWorld world;
  Configurator program{world.platform, world.Options(false)};
  Navigation navigation{program};
  std::vector<std::string> sent;
};

}  // namespace ostrel
