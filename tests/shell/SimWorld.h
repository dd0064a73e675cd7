#pragma once

#include "World.h"
#include "sim/Logger.h"

namespace ostrel {

/// A world with one simulated logger at port 7, on a cable or behind a modem.
struct SimWorld : World {
  static constexpr std::int16_t kPort = 7;

  explicit SimWorld(const sim::LoggerOptions& options) {
    line = &port.AddDevice(kPort, "sim", "", [&](LineEnd& end) {
      auto made = std::make_unique<sim::Logger>(loop, end, options);
      logger = made.get();
      return made;
    });
    clock.SetNow(logger->Clock());
  }

  std::string TargetName() const {
    return std::string(sim::TraitsOf(logger->Options().model).displayName);
  }

  sim::Logger* logger = nullptr;
  LineEnd* line = nullptr;  ///< the logger's end
};

}  // namespace ostrel
