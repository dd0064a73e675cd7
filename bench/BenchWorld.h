#pragma once

#include "platform/virtual/VirtualWorld.h"
#include "shell/Configurator.h"
#include "sim/Logger.h"
#include "sim/wire/LineComposer.h"

namespace ostrel {

inline double Seconds(Duration duration) { return std::chrono::duration<double>(duration).count(); }

/// A configurator and a simulated logger with a dense configuration, on virtual time.
struct BenchWorld : VirtualWorld {
  static constexpr std::int16_t kPort = 7;

  explicit BenchWorld(sim::Model model, bool paced = false) {
    const sim::LoggerOptions options = sim::MakeDefaultOptions(model);
    port.AddDevice(kPort, "sim", "", [&](LineEnd& end) {
      auto made = std::make_unique<sim::Logger>(loop, end, options);
      logger = made.get();
      return made;
    });
    logger->SetConf(sim::RandomConfiguration(model, options.features, 1, 1.0));
    clock.SetNow(logger->Clock());
    port.SetPaced(paced);
    program.StartForCommand(sim::TraitsOf(model).displayName, 1);
  }

  /// Octets of the whole configuration stream, its end included.
  std::size_t StreamOctets() const {
    std::size_t octets = FrameOctets(2);
    for (const std::string& record : sim::ConfigurationRecords(logger->Conf(), logger->Self()))
      octets += FrameOctets(5 + record.size());
    return octets;
  }

  /// Octets on the line for a payload: "#", checksum, ";", payload, carriage return.
  static std::size_t FrameOctets(std::size_t payload) { return payload + 5; }

  sim::Logger* logger = nullptr;
  Configurator program{platform, {.programFolder = "", .langFile = "/Lang.txt"}};
};

}  // namespace ostrel
