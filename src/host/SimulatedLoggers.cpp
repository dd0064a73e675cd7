#include "host/SimulatedLoggers.h"

#include <memory>

namespace ostrel {

FileResult TakeState(Files& files, sim::Logger& logger, const std::string& path) {
  std::string text;
  const FileResult read = files.ReadInto(path, text);
  if (!read.Ok()) return files.Exists(path) ? read : FileResult{};
  std::string error;
  return logger.LoadState(text, error) ? FileResult{} : FileResult{error};
}

SimulatedLoggers::SimulatedLoggers(EventLoop& loop, const Clock& clock,
                                   const MakeOptions& makeOptions)
    : port_(loop) {
  for (const sim::Model model : sim::kModels) {
    sim::LoggerOptions options = makeOptions(model);
    options.clockStart = clock.LocalNow();
    const sim::ModelTraits& traits = sim::TraitsOf(model);
    const int number = kFirstSimulatedPort + static_cast<int>(model);
    port_.AddDevice(number, "sim:" + std::string(traits.word),
                    "simulated " + std::string(traits.displayName), [&](LineEnd& end) {
                      auto logger = std::make_unique<sim::Logger>(loop, end, std::move(options));
                      logger->SetConf(sim::DemoConfiguration(model));
                      loggers_[static_cast<std::size_t>(model)] = logger.get();
                      return logger;
                    });
  }
}

std::int16_t SimulatedLoggers::NumberOf(std::string_view model) const {
  for (const sim::Model candidate : sim::kModels)
    if (sim::TraitsOf(candidate).displayName == model)
      return static_cast<std::int16_t>(kFirstSimulatedPort + static_cast<int>(candidate));
  return 0;
}

std::string SimulatedLoggers::ModelAt(int number) const {
  for (const sim::Model candidate : sim::kModels)
    if (number == kFirstSimulatedPort + static_cast<int>(candidate))
      return std::string(sim::TraitsOf(candidate).displayName);
  return {};
}

FileResult SimulatedLoggers::UseStateFile(Files& files, std::string_view model,
                                          const std::string& path) {
  const std::int16_t number = NumberOf(model);
  if (number == 0) return {"there is no such model"};
  sim::Logger* logger = loggers_[static_cast<std::size_t>(number - kFirstSimulatedPort)];
  if (FileResult taken = TakeState(files, *logger, path); !taken.Ok()) return taken;
  kept_ = logger;
  statePath_ = path;
  return {};
}

FileResult SimulatedLoggers::SaveState(Files& files) {
  return kept_ ? SaveWhole(files, statePath_, kept_->SaveState()) : FileResult{};
}

}  // namespace ostrel
