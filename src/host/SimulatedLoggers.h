#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/virtual/LinePort.h"
#include "sim/Logger.h"

namespace ostrel {

/// Number of the first simulated logger; the others follow in the order of `sim::kModels`.
inline constexpr int kFirstSimulatedPort = 251;

/// Lets a simulated logger take its state from a file; where nothing stands it stays as it is. A
/// file that cannot be read, or holds no state of its model, is a failure: it must not be replaced.
FileResult TakeState(Files& files, sim::Logger& logger, const std::string& path);

/// Six simulated loggers in this process, one of each model, each on a port of its own.
class SimulatedLoggers {
 public:
  using MakeOptions = std::function<sim::LoggerOptions(sim::Model)>;

  /// Loggers as they come, with their clocks set and a small configuration; `makeOptions` makes
  /// others. The loop must outlive them.
  SimulatedLoggers(EventLoop& loop, const Clock& clock,
                   const MakeOptions& makeOptions = sim::MakeDefaultOptions);

  LinePort& Port() { return port_; }
  sim::Logger& LoggerOf(sim::Model model) { return *loggers_[static_cast<std::size_t>(model)]; }

  /// Port number of the logger of a model, by its display name; 0 for any other name.
  std::int16_t NumberOf(std::string_view model) const;
  /// Display name of the model at a port number; empty where no simulated logger stands.
  std::string ModelAt(int number) const;

  /// Keeps the logger of a model in a file: takes it from there if the file stands, and writes it
  /// there with `SaveState`. Fails when the file holds none or cannot be read, and leaves it alone
  /// then.
  FileResult UseStateFile(Files& files, std::string_view model, const std::string& path);
  FileResult SaveState(Files& files);

 private:
  LinePort port_;
  std::array<sim::Logger*, sim::kModels.size()> loggers_{};
  sim::Logger* kept_ = nullptr;
  std::string statePath_;
};

}  // namespace ostrel
