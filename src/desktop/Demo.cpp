#include "desktop/Demo.h"

#include <memory>

#include "sim/Logger.h"

namespace ostrel {

void AddDemoLoggers(LinePort& port, EventLoop& loop, const Clock& clock) {
  int number = kFirstDemoPort;
  for (const sim::Model model : sim::kModels) {
    sim::LoggerOptions options = sim::MakeDefaultOptions(model);
    options.clockStart = clock.LocalNow();
    port.AddDevice(number++, std::string(sim::TraitsOf(model).displayName), "demo",
                   [&](LineEnd& end) {
                     auto logger = std::make_unique<sim::Logger>(loop, end, std::move(options));
                     logger->SetConf(sim::DemoConfiguration(model));
                     return logger;
                   });
  }
  port.SetPaced(true);
}

}  // namespace ostrel
