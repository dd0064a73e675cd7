#pragma once

#include <memory>

#include "Meddler.h"
#include "platform/TappedPort.h"
#include "platform/virtual/VirtualWorld.h"
#include "recording/Recorder.h"
#include "sim/Logger.h"

namespace ostrel::campaign {

/// What stands around a program: one logger at port 7, behind a line that takes damage, and all of
/// which is recorded.
struct World : VirtualWorld {
  static constexpr std::int16_t kPort = 7;

  World(const sim::LoggerOptions& options, std::uint64_t seed) {
    port.AddDevice(kPort, "logger", "", [&](LineEnd& end) {
      auto made = std::make_unique<Meddler>(end, seed);
      meddler = made.get();
      auto far = std::make_unique<sim::Logger>(loop, *made, options);
      logger = far.get();
      made->device = std::move(far);
      return made;
    });
    clock.SetNow(options.clockStart);
    tapped.Join(recorder);
  }
  World(const World&) = delete;
  World& operator=(const World&) = delete;

  std::string recording;
  Recorder recorder{loop, [this](std::string_view text) { recording += text; }, "campaign"};
  TappedPort tapped{port};
  Platform watched = platform.With(tapped);  ///< what the program is given
  Meddler* meddler = nullptr;
  sim::Logger* logger = nullptr;
};

}  // namespace ostrel::campaign
